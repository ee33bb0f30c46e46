#include "terminal/Terminal.h"

#include "iso11783/Bytes.h"
#include "terminal/Control.h"

#include <algorithm>
#include <utility>

namespace terminal {

using Iso::Function;
using Type = Iso::Object_type;

namespace {

constexpr std::uint8_t low(std::uint32_t value) { return static_cast<std::uint8_t>(value); }
constexpr std::uint8_t high(std::uint32_t value) { return static_cast<std::uint8_t>(value >> 8); }

Iso::Object_id id_of(Object object) { return object ? object.id() : Iso::null_id; }

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
        const std::uint16_t size = properties.mask_size;
        return answer(Function::get_hardware, {properties.boot_time, colours_256, touch_and_pointer, low(size),
                                               high(size), low(size), high(size)});
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
        const Frame result = command->run(live, message, count);
        return send(result.data(), result.size());
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
}

void Terminal::answer(Function function, std::initializer_list<std::uint8_t> rest)
{
    const Frame message = frame(function, rest);
    send(message.data(), message.size());
}

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
    if (fault && pool().empty())
        fault.code |= Pool_fault::pool_deleted;
    answer(Function::end_of_object_pool, {fault ? std::uint8_t{1} : std::uint8_t{0}, low(fault.parent),
                                          high(fault.parent), low(fault.object), high(fault.object), fault.code});
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

bool Terminal::activate(Function function, Object object, Iso::Activation activation)
{
    const Iso::Object_id mask = id_of(active_mask());
    answer(function, {static_cast<std::uint8_t>(activation), low(object.id()), high(object.id()), low(mask), high(mask),
                      object.u8(Field::key_code)});
    return true;
}

bool Terminal::use_key(Iso::Object_id id, Iso::Activation activation)
{
    const Object key = pool().find(id);
    return key && key.is(Type::key) && activate(Function::soft_key_activation, key, activation);
}

bool Terminal::use_button(Iso::Object_id id, Iso::Activation activation)
{
    const Object button = pool().find(id);
    return button && button.is(Type::button) && is_enabled(button) &&
           activate(Function::button_activation, button, activation);
}

bool Terminal::select_input(Iso::Object_id id, bool selected, bool open_for_input)
{
    const Object input = pool().find(id);
    if (!input || !enable_bit(input) || input.is(Type::button))
        return false;
    answer(Function::select_input_object, {low(id), high(id), selected, open_for_input});
    return true;
}

bool Terminal::enter_number(Iso::Object_id id, std::uint32_t value)
{
    const Object input = pool().find(id);
    if (!input || !is_enabled(input) || !may_enter(input, value))
        return false;
    const Object variable = pool().find(input.reference(Field::variable));
    if (!live.set(variable ? variable : input, Field::value, value))
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
    const Object variable = pool().find(input.reference(Field::variable));
    if (!live.set_text(variable ? variable : input, text))
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
    constexpr std::uint8_t no_error = 0;
    answer(Function::esc, {low(id), high(id), no_error});
    return true;
}

} // namespace terminal
