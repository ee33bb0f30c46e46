#include "terminal/Press.h"

#include "iso11783/Bytes.h"
#include "terminal/Terminal.h"
#include "terminal/Touch.h"

namespace terminal {

using Iso::Function;
using Type = Iso::Object_type;

namespace {

constexpr std::size_t change_at = 1; ///< in an activation message

/// The null id for a thing of the data mask: its press outlives a change of the soft keys.
Iso::Object_id soft_key_mask_of(const Terminal& terminal, Object thing)
{
    return thing.is(Type::key) ? id_of(terminal.active_soft_key_mask()) : Iso::null_id;
}

} // namespace

Frame activation(Object thing, Iso::Object_id mask, Iso::Activation change)
{
    Frame message;
    message.fill(0xFF);
    message[0] =
        static_cast<std::uint8_t>(thing.is(Type::key) ? Function::soft_key_activation : Function::button_activation);
    message[change_at] = static_cast<std::uint8_t>(change);
    Iso::write(&message[2], thing.id());
    Iso::write(&message[4], mask);
    message[6] = thing.u8(Field::key_code);
    return message;
}

Press::Press(const Terminal& terminal, Object thing, const std::optional<Finger>& by_finger)
    : id(thing.id()), mask(id_of(terminal.active_mask())), soft_key_mask(soft_key_mask_of(terminal, thing)),
      finger(by_finger), told(thing.is(Type::key) || thing.is(Type::button)),
      pressed(activation(thing, mask, Iso::Activation::pressed))
{}

Frame Press::message(Iso::Activation change) const
{
    Frame message = pressed;
    message[change_at] = static_cast<std::uint8_t>(change);
    return message;
}

void Press::move_to(Position place)
{
    if (finger)
        finger->place = place;
}

bool Press::is_on(const Terminal& terminal) const
{
    const Object thing = terminal.pool().find(id);
    if (!thing || !is_usable(thing) || id_of(terminal.active_mask()) != mask ||
        soft_key_mask_of(terminal, thing) != soft_key_mask)
        return false;
    return finger ? id_of(target_at(terminal, finger->place, finger->first_key)) == id : shows(terminal, id);
}

} // namespace terminal
