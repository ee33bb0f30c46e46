#include "terminal/Commands.h"

#include "iso11783/Bytes.h"
#include "terminal/Control.h"

#include <algorithm>
#include <limits>
#include <string_view>

namespace terminal {
namespace {

using Iso::Function;
using Type = Iso::Object_type;

// The bits of the error bytes. Each command has bits of its own; none is a number that means the same everywhere.
constexpr std::uint8_t ok = 0;
constexpr std::uint8_t bit_0 = 1;
constexpr std::uint8_t bit_1 = 2;
constexpr std::uint8_t bit_2 = 4;
constexpr std::uint8_t bit_3 = 8;
constexpr std::uint8_t bit_4 = 16;

Object object_at(const Live_pool& pool, const std::uint8_t* message)
{
    return pool.objects().find(Iso::read<std::uint16_t>(message));
}

std::uint8_t hide_show(Live_pool& pool, const std::uint8_t* message, std::size_t)
{
    const Object object = object_at(pool, message + 1);
    if (!object || !object.is(Type::container))
        return bit_1;                                                     // no such container
    return pool.set(object, Field::hidden, message[3] ^ 1u) ? ok : bit_2; // neither hide nor show
}

std::uint8_t enable_disable(Live_pool& pool, const std::uint8_t* message, std::size_t)
{
    const Object object = object_at(pool, message + 1);
    const Enable_bit* const bit = object ? enable_bit(object) : nullptr;
    if (!bit)
        return bit_1; // no such control
    if (message[3] > 1)
        return bit_2; // neither enable nor disable
    const std::uint32_t others = object.u32(bit->field) & ~std::uint32_t{bit->mask};
    const bool set = (message[3] == 1) == bit->set_when_enabled;
    pool.set(object, bit->field, others | (set ? bit->mask : 0u));
    return ok;
}

/// Moves every child of that id: where a parent holds it twice, a command cannot tell the two apart. `place(Child)`
/// returns the new position as two ints; a position beyond 16 bits refuses the whole command.
template <typename Place>
std::uint8_t move_children(Live_pool& pool, const std::uint8_t* message, Place place)
{
    const Object parent = object_at(pool, message + 1);
    const Object object = object_at(pool, message + 3);
    if (!object)
        return bit_1; // no such child
    if (!parent)
        return bit_0; // no such parent
    const List<Child> children = parent.children();
    bool found = false;
    for (const Child child : children) {
        if (child.id != object.id())
            continue;
        found = true;
        using Limits = std::numeric_limits<std::int16_t>;
        const auto [x, y] = place(child);
        if (std::min(x, y) < Limits::min() || std::max(x, y) > Limits::max())
            return bit_4; // any other error
    }
    if (!found)
        return bit_0; // not the parent of this child
    for (std::size_t i = 0; i < children.size(); ++i) {
        if (children[i].id != object.id())
            continue;
        const auto [x, y] = place(children[i]);
        pool.move_child(parent, i, static_cast<std::int16_t>(x), static_cast<std::int16_t>(y));
    }
    return ok;
}

struct Place
{
    int x;
    int y;
};

std::uint8_t change_child_location(Live_pool& pool, const std::uint8_t* message, std::size_t)
{
    return move_children(pool, message, [message](const Child& child) {
        return Place{child.x + message[5] - 127, child.y + message[6] - 127};
    });
}

std::uint8_t change_child_position(Live_pool& pool, const std::uint8_t* message, std::size_t)
{
    return move_children(pool, message, [message](const Child&) {
        return Place{Iso::read<std::int16_t>(message + 5), Iso::read<std::int16_t>(message + 7)};
    });
}

/// Where an object has a width only, the height follows from it and the height of the command counts for nothing.
std::uint8_t change_size(Live_pool& pool, const std::uint8_t* message, std::size_t)
{
    const Object object = object_at(pool, message + 1);
    if (!object || !pool.set(object, Field::width, Iso::read<std::uint16_t>(message + 3)))
        return bit_0; // no such object, or one without a size
    pool.set(object, Field::height, Iso::read<std::uint16_t>(message + 5));
    return ok;
}

std::uint8_t change_background_colour(Live_pool& pool, const std::uint8_t* message, std::size_t)
{
    const Object object = object_at(pool, message + 1);
    return object && pool.set(object, Field::background, message[3]) ? ok : bit_0; // no such object with a background
}

std::uint8_t change_numeric_value(Live_pool& pool, const std::uint8_t* message, std::size_t)
{
    const Object object = object_at(pool, message + 1);
    if (!object || !object.has(Field::value))
        return bit_0; // no such object with a numeric value
    return pool.set(object, Field::value, Iso::read<std::uint32_t>(message + 4)) ? ok : bit_1; // invalid value
}

std::uint8_t change_active_mask(Live_pool& pool, const std::uint8_t* message, std::size_t)
{
    const Object object = object_at(pool, message + 1);
    if (!object || !object.is(Type::working_set))
        return bit_0; // not the working set
    return pool.set(object, Field::active_mask, Iso::read<std::uint16_t>(message + 3)) ? ok : bit_1; // not a mask
}

std::uint8_t change_soft_key_mask(Live_pool& pool, const std::uint8_t* message, std::size_t)
{
    const Object mask = object_at(pool, message + 2);
    const bool fits =
        mask && ((message[1] == 1 && mask.is(Type::data_mask)) || (message[1] == 2 && mask.is(Type::alarm_mask)));
    if (!fits)
        return bit_0; // no such mask of that type
    const std::uint16_t keys = Iso::read<std::uint16_t>(message + 4);
    return pool.set(mask, Field::soft_key_mask, keys) ? ok : bit_1; // not a soft key mask
}

std::uint8_t change_attribute(Live_pool& pool, const std::uint8_t* message, std::size_t)
{
    const Object object = object_at(pool, message + 1);
    if (!object)
        return bit_0; // no such object
    const auto& attributes = object.layout().attributes;
    const Field field = message[3] < attributes.size() ? attributes[message[3]] : Field::none;
    if (field == Field::none)
        return bit_1; // no such attribute, or one that this command may not change
    return pool.set(object, field, Iso::read<std::uint32_t>(message + 4)) ? ok : bit_2; // invalid value
}

std::uint8_t change_string_value(Live_pool& pool, const std::uint8_t* message, std::size_t count)
{
    constexpr std::size_t header = 5;
    const Object object = object_at(pool, message + 1);
    const std::size_t length = Iso::read<std::uint16_t>(message + 3);
    if (!object || !object.has(Field::length) || object.is(Type::picture_graphic) || object.is(Type::macro))
        return bit_1; // no such object with a text
    if (length > count - header)
        return bit_3; // any other error: the message is shorter than its text
    const std::string_view text(reinterpret_cast<const char*>(message + header), length);
    return pool.set_text(object, text) ? ok : bit_2; // text too long
}

constexpr Command commands[] = {
    {Function::hide_show, 4, 1, 1, 3, 4, hide_show},
    {Function::enable_disable, 4, 1, 1, 3, 4, enable_disable},
    {Function::change_child_location, 7, 1, 1, 4, 5, change_child_location},
    {Function::change_size, 7, 1, 1, 2, 3, change_size},
    {Function::change_background_colour, 4, 1, 1, 3, 4, change_background_colour},
    {Function::change_numeric_value, 8, 1, 1, 7, 3, change_numeric_value},
    {Function::change_active_mask, 5, 3, 1, 2, 3, change_active_mask},
    {Function::change_soft_key_mask, 6, 2, 1, 4, 5, change_soft_key_mask},
    {Function::change_attribute, 8, 1, 1, 3, 4, change_attribute},
    {Function::change_string_value, 5, 1, 3, 2, 5, change_string_value},
    {Function::change_child_position, 9, 1, 1, 4, 5, change_child_position},
};

} // namespace

Frame Command::run(Live_pool& pool, const std::uint8_t* message, std::size_t count) const
{
    Frame answer;
    answer.fill(0xFF);
    answer[0] = message[0];
    std::copy_n(message + echo_from, echo_count, answer.begin() + echo_to);
    answer[error_at] = execute(pool, message, count);
    return answer;
}

const Command* find_command(std::uint8_t function)
{
    const auto found = std::find_if(std::begin(commands), std::end(commands), [function](const Command& command) {
        return static_cast<std::uint8_t>(command.function) == function;
    });
    return found == std::end(commands) ? nullptr : found;
}

} // namespace terminal
