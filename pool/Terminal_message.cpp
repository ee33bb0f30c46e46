#include "pool/Terminal_message.h"

#include "iso11783/Bytes.h"

#include <algorithm>
#include <iterator>

namespace VT {

namespace {

/// Where the answer to a command says which object it is about and what was wrong.
struct Response_layout
{
    Iso::Function function;
    std::uint8_t object_at;
    std::uint8_t error_at;
};

constexpr Response_layout responses[] = {
    {Iso::Function::hide_show, 1, 4},
    {Iso::Function::enable_disable, 1, 4},
    {Iso::Function::change_child_location, 1, 5},
    {Iso::Function::change_size, 1, 3},
    {Iso::Function::change_background_colour, 1, 4},
    {Iso::Function::change_numeric_value, 1, 3},
    {Iso::Function::change_active_mask, 1, 3},
    {Iso::Function::change_soft_key_mask, 1, 5},
    {Iso::Function::change_attribute, 1, 4},
    {Iso::Function::change_string_value, 3, 5},
    {Iso::Function::change_child_position, 1, 5},
};

/// Reads the fields of a message one after the other. All messages are frames at least.
class Fields
{
  public:
    explicit Fields(const std::uint8_t* message) : at(message + 1) {}

    std::uint8_t u8() { return *at++; }
    std::uint16_t u16() { return take<std::uint16_t>(); }
    std::uint32_t u32() { return take<std::uint32_t>(); }
    const std::uint8_t* rest() const { return at; }
    Fields& skip()
    {
        ++at;
        return *this;
    }

  private:
    template <typename T>
    T take()
    {
        const T value = Iso::read<T>(at);
        at += sizeof value;
        return value;
    }

    const std::uint8_t* at;
};

/// Both kinds of activation have the same fields.
template <class Event>
Event activation(Fields fields)
{
    Event event;
    event.activation_code = static_cast<Iso::Activation>(fields.u8());
    event.object_id = fields.u16();
    event.mask_id = fields.u16();
    event.key_code = fields.u8();
    return event;
}

Terminal_message string_value(Fields fields, std::size_t size)
{
    constexpr std::size_t header = 4;
    VT_change_string_value_event event;
    event.object_id = fields.u16();
    const std::uint8_t length = fields.u8();
    if (length > size - header)
        return {};
    event.value.assign(reinterpret_cast<const char*>(fields.rest()), length);
    return event;
}

Terminal_message command_response(const std::uint8_t* message)
{
    const auto function = static_cast<Iso::Function>(message[0]);
    const auto* const layout =
        std::find_if(std::begin(responses), std::end(responses),
                     [function](const Response_layout& response) { return response.function == function; });
    if (layout == std::end(responses))
        return {};
    return Command_response{function, Iso::read<std::uint16_t>(message + layout->object_at), message[layout->error_at]};
}

} // namespace

Terminal_message decode(const std::uint8_t* message, std::size_t size)
{
    if (size < Iso::frame_size)
        return {};
    // The fields of an aggregate are read in the order in which they are written here.
    Fields fields(message);
    switch (static_cast<Iso::Function>(message[0])) {
    case Iso::Function::soft_key_activation:
        return activation<Soft_key_activation_event>(fields);
    case Iso::Function::button_activation:
        return activation<Button_activation_event>(fields);
    case Iso::Function::select_input_object:
        return Select_input_object_event{fields.u16(), fields.u8() == 1, fields.u8() == 1};
    case Iso::Function::esc:
        return Esc_event{fields.u16(), fields.u8()};
    case Iso::Function::input_numeric_value:
        return VT_change_numeric_value_event{fields.u16(), fields.skip().u32()};
    case Iso::Function::input_string_value:
        return string_value(fields, size);
    case Iso::Function::end_of_object_pool:
        return End_of_object_pool_response{fields.u8() == 0, fields.u16(), fields.u16(), fields.u8()};
    case Iso::Function::get_memory:
        return Memory_response{fields.u8(), fields.u8() == 0};
    case Iso::Function::get_hardware:
        return VT_information{fields.u8(), fields.u8(), fields.u8(), fields.u16(), fields.u16()};
    case Iso::Function::terminal_status:
        return Terminal_status{fields.u8(), fields.u16(), fields.u16(), fields.u8(), fields.u8()};
    case Iso::Function::unsupported_function:
        return Unsupported_function_response{static_cast<Iso::Function>(fields.u8())};
    default:
        return command_response(message);
    }
}

} // namespace VT
