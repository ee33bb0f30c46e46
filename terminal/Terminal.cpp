#include "terminal/Terminal.h"

#include "iso11783/Bytes.h"
#include "terminal/Control.h"
#include "terminal/Indirection.h"
#include "terminal/Touch.h"

#include <algorithm>
#include <utility>

namespace terminal {

using Iso::Function;
using Type = Iso::Object_type;

namespace {

constexpr std::uint8_t low(std::uint32_t value) { return static_cast<std::uint8_t>(value); }
constexpr std::uint8_t high(std::uint32_t value) { return static_cast<std::uint8_t>(value >> 8); }

Frame frame(Function function, std::initializer_list<std::uint8_t> rest)
{
    Frame result;
    result.fill(0xFF);
    result[0] = static_cast<std::uint8_t>(function);
    std::copy(rest.begin(), rest.end(), result.begin() + 1);
    return result;
}

} // namespace

Terminal::Terminal(const Hardware& own_properties, Send send_message)
    : properties(own_properties), send(std::move(send_message))
{}

void Terminal::receive(const std::uint8_t* message, std::size_t count)
{
    take(message, count);
    if (entry_is_void())
        close_entry();
    if (pressing && !pressing.is_on(*this))
        abort();
}

void Terminal::take(const std::uint8_t* message, std::size_t count)
{
    if (count == 0)
        return;
    switch (static_cast<Function>(message[0])) {
    case Function::object_pool_transfer:
        return transfer(message + 1, count - 1);
    case Function::end_of_object_pool:
        return end_of_pool();
    case Function::get_memory: {
        if (count < 6)
            return;
        const bool enough = Iso::read<std::uint32_t>(message + 2) <= properties.memory;
        return answer(Function::get_memory, {properties.version, enough ? std::uint8_t{0} : std::uint8_t{1}});
    }
    case Function::get_number_of_soft_keys: {
        constexpr std::uint8_t navigation_keys = 0;
        return answer(Function::get_number_of_soft_keys,
                      {navigation_keys, 0xFF, 0xFF, properties.soft_key_width, properties.soft_key_height,
                       properties.virtual_soft_keys, properties.physical_soft_keys});
    }
    case Function::get_text_font_data: {
        constexpr std::uint8_t small_sizes = 0x7F; // 8×8 to 32×32, one bit each; 6×8 is always there
        constexpr std::uint8_t large_sizes = 0x7F; // 32×48 to 128×192
        constexpr std::uint8_t styles = 0x0F;      // bold, crossed out, underlined, italic
        return answer(Function::get_text_font_data, {0xFF, 0xFF, 0xFF, 0xFF, small_sizes, large_sizes, styles});
    }
    case Function::get_hardware: {
        constexpr std::uint8_t colours_256 = 2;
        constexpr std::uint8_t touch_and_pointer = 0x03;
        const std::uint8_t by_finger = properties.touch ? touch_and_pointer : 0;
        const std::uint16_t size = properties.mask_size;
        return answer(Function::get_hardware,
                      {properties.boot_time, colours_256, by_finger, low(size), high(size), low(size), high(size)});
    }
    case Function::get_versions: {
        constexpr std::uint8_t labels = 0;
        return answer(Function::versions, {labels});
    }
    case Function::store_version: {
        constexpr std::uint8_t no_memory = 4; // that would outlast the connection
        return answer(Function::store_version, {0xFF, 0xFF, 0xFF, 0xFF, no_memory});
    }
    case Function::load_version:
    case Function::delete_version: {
        constexpr std::uint8_t unknown_label = 2; // as every label is
        return answer(static_cast<Function>(message[0]), {0xFF, 0xFF, 0xFF, 0xFF, unknown_label});
    }
    case Function::working_set_maintenance:
        if (count >= 2 && (message[1] & 1) != 0)
            disconnect(); // the application starts anew, and so does its pool
        return;
    default:
        break;
    }

    if (const Command* const command = find_command(message[0])) {
        if (count < command->size)
            return;
        return tell(command->run(live, message, count));
    }
    constexpr std::uint8_t last_event = 0x0F;
    if (message[0] > last_event)
        answer(Function::unsupported_function, {message[0]});
}

void Terminal::disconnect()
{
    upload = {};
    upload_overflow = false;
    live.clear();
    take_press();
    set_opened({});
}

void Terminal::answer(Function function, std::initializer_list<std::uint8_t> rest) { tell(frame(function, rest)); }

void Terminal::transfer(const std::uint8_t* records, std::size_t count)
{
    if (count > properties.memory - upload.size())
        upload_overflow = true;
    if (!upload_overflow)
        upload.insert(upload.end(), records, records + count);
}

void Terminal::end_of_pool()
{
    Pool_fault fault;
    if (upload_overflow)
        fault.code = Pool_fault::other;
    else
        fault = live.load(std::move(upload), properties.memory);
    upload = {};
    upload_overflow = false;
    const auto replaces = [&](Iso::Object_id id) {
        const Object object = pool().find(id);
        return !fault && object && live.was_uploaded_last(object);
    };
    const bool replaces_open = replaces(opened.number);
    const bool replaces_pressed = replaces(pressing.thing());
    if (fault && pool().empty())
        fault.code |= Pool_fault::pool_deleted;
    answer(Function::end_of_object_pool, {fault ? std::uint8_t{1} : std::uint8_t{0}, low(fault.parent),
                                          high(fault.parent), low(fault.object), high(fault.object), fault.code});
    if (replaces_open)
        close_entry();
    if (replaces_pressed)
        abort();
}

Object Terminal::active_mask() const
{
    const Object owner = working_set();
    return owner ? pool().find(owner.reference(Field::active_mask)) : Object();
}

Object Terminal::active_soft_key_mask() const
{
    const Object mask = active_mask();
    return mask ? pool().find(mask.reference(Field::soft_key_mask)) : Object();
}

Frame Terminal::status(std::uint8_t working_set_address) const
{
    const Iso::Object_id mask = id_of(active_mask());
    const Iso::Object_id keys = id_of(active_soft_key_mask());
    constexpr std::uint8_t not_busy = 0; // every message is done with when receive() returns
    return frame(Function::terminal_status,
                 {working_set_address, low(mask), high(mask), low(keys), high(keys), not_busy});
}

bool Terminal::use_key(Iso::Object_id id, Iso::Activation change)
{
    const Object key = pool().find(id);
    if (!key || !key.is(Type::key))
        return false;
    tell(activation(key, id_of(active_mask()), change));
    return true;
}

bool Terminal::use_button(Iso::Object_id id, Iso::Activation change)
{
    const Object button = pool().find(id);
    if (!button || !button.is(Type::button) || !is_enabled(button))
        return false;
    tell(activation(button, id_of(active_mask()), change));
    return true;
}

bool Terminal::select_input(Iso::Object_id id, bool selected, bool open_for_input)
{
    const Object input = pool().find(id);
    if (!input || !enable_bit(input) || input.is(Type::button))
        return false;
    if (selected && open_for_input && input.is(Type::input_number) && is_enabled(input)) {
        if (opened.number != id)
            close_entry();
        set_opened({id, id_of(active_mask()), number_format(input)});
    } else if (opened.number == id) {
        set_opened({});
    }
    answer(Function::select_input_object, {low(id), high(id), selected, open_for_input});
    return true;
}

bool Terminal::enter_number(Iso::Object_id id, std::uint32_t value)
{
    const Object input = pool().find(id);
    if (!input || !is_enabled(input) || !may_enter(input, value))
        return false;
    if (!live.set(holder(pool(), input), Field::value, value))
        return false;
    answer(Function::input_numeric_value,
           {low(id), high(id), 0xFF, low(value), high(value), low(value >> 16), high(value >> 16)});
    return true;
}

bool Terminal::enter_text(Iso::Object_id id, std::string_view text)
{
    const Object input = pool().find(id);
    if (!input || !input.is(Type::input_string) || !is_enabled(input) || text.size() > 0xFF)
        return false;
    if (!live.set_text(holder(pool(), input), text))
        return false;
    std::vector<std::uint8_t> message;
    Iso::Byte_writer out(message);
    out.u8(static_cast<std::uint8_t>(Function::input_string_value));
    out.u16(id);
    out.u8(low(static_cast<std::uint32_t>(text.size())));
    out.bytes(text.data(), text.size());
    if (message.size() < Iso::frame_size)
        out.fill(Iso::frame_size - message.size(), 0xFF);
    send(message.data(), message.size());
    return true;
}

bool Terminal::escape(Iso::Object_id id)
{
    const Object input = pool().find(id);
    if (!input || !enable_bit(input) || input.is(Type::button))
        return false;
    if (opened.number == id)
        set_opened({});
    constexpr std::uint8_t no_error = 0;
    answer(Function::esc, {low(id), high(id), no_error});
    return true;
}

bool Terminal::press(Position place, std::size_t first_key)
{
    return press(target_at(*this, place, first_key), Press::Finger{place, first_key});
}

bool Terminal::press(Iso::Object_id id) { return press(shows(*this, id) ? pool().find(id) : Object(), std::nullopt); }

bool Terminal::press(Object thing, const std::optional<Press::Finger>& finger)
{
    if (pressing || opened.number != Iso::null_id || !thing || !is_usable(thing))
        return false;
    if (thing.is(Type::button) && thing.u8(Field::options) & button_option::latchable)
        return latch(thing);
    pressing = Press(*this, thing, finger);
    ++n_operations;
    if (pressing.is_told())
        tell(pressing.message(Iso::Activation::pressed)); // upon which the application may end the press
    return true;
}

/// A latchable button changes over with each press, and says only what it is now: pressed or released.
bool Terminal::latch(Object button)
{
    const std::uint8_t options = button.u8(Field::options);
    const bool was_latched = options & button_option::latched;
    live.set(button, Field::options, options ^ button_option::latched);
    return use_button(button.id(), was_latched ? Iso::Activation::released : Iso::Activation::pressed);
}

bool Terminal::hold()
{
    if (!pressing.is_told())
        return false;
    tell(pressing.message(Iso::Activation::held));
    return true;
}

bool Terminal::release()
{
    const Press ended = take_press();
    if (!ended)
        return false;
    const Object input = pool().find(ended.thing());
    if (ended.is_told())
        tell(ended.message(Iso::Activation::released));
    else if (input && input.is(Type::input_number))
        select_input(input.id(), true, true);
    else if (input)
        enter_number(input.id(), number_value(pool(), input) == 0);
    return true;
}

bool Terminal::move(Position place)
{
    if (!pressing)
        return false;
    pressing.move_to(place);
    return !pressing.is_on(*this) && abort();
}

bool Terminal::abort()
{
    const Press ended = take_press();
    if (ended.is_told())
        tell(ended.message(Iso::Activation::aborted));
    return static_cast<bool>(ended);
}

/// Nothing is pressed any longer, before the application is told, which may do anything then.
Press Terminal::take_press()
{
    n_operations += static_cast<bool>(pressing);
    return std::exchange(pressing, {});
}

bool Terminal::touch(Position place, std::size_t first_key)
{
    if (!press(place, first_key))
        return false;
    release();
    return true;
}

std::optional<Number_entry> Terminal::entry() const
{
    const Object input = pool().find(opened.number);
    if (!input)
        return std::nullopt;
    return Number_entry(number_format(input), number_value(pool(), input), input.u32(Field::minimum),
                        input.u32(Field::maximum));
}

std::string Terminal::enter(std::string_view text)
{
    const auto field = entry();
    if (!field)
        return "no number is open for entry";
    const Number_entry::Reading reading = field->read(text);
    if (reading.refusal.empty()) {
        enter_number(opened.number, reading.value);
        close_entry();
    }
    return reading.refusal;
}

bool Terminal::cancel()
{
    const Iso::Object_id id = opened.number;
    return escape(id) && select_input(id, false, false);
}

void Terminal::set_opened(const Opened& now)
{
    n_operations += now.number != opened.number;
    opened = now;
}

void Terminal::close_entry()
{
    const Iso::Object_id id = opened.number;
    set_opened({});
    select_input(id, false, false);
}

bool Terminal::entry_is_void() const
{
    const Object input = pool().find(opened.number);
    if (!input)
        return false;
    // What was begun in kilometres must not be taken for miles.
    const Number_format format = number_format(input);
    const bool same_units = format.offset == opened.format.offset && format.scale == opened.format.scale &&
                            format.decimals == opened.format.decimals;
    return !same_units || !is_enabled(input) || id_of(active_mask()) != opened.mask;
}

} // namespace terminal
