#ifndef POOL_TERMINAL_MESSAGE_H
#define POOL_TERMINAL_MESSAGE_H

#include "iso11783/Export.h"
#include "iso11783/Function.h"
#include "vt/Event.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <variant>

namespace VT {

/// The operator moved onto an input object, or off it.
struct Select_input_object_event
{
    Iso::Object_id object_id;
    bool selected;
    bool open_for_input;
};

/// The operator left an input object without a value.
struct Esc_event
{
    Iso::Object_id object_id;
    std::uint8_t error;
};

/// The operator entered a text.
struct VT_change_string_value_event
{
    Iso::Object_id object_id; ///< the input object
    std::string value;
};

/// What the terminal shows; it says so once a second and after each change.
struct Terminal_status
{
    std::uint8_t working_set_address; ///< of the working set that is shown
    Iso::Object_id active_mask;
    Iso::Object_id active_soft_key_mask;
    std::uint8_t busy_codes;
    std::uint8_t function; ///< the one it is busy with
};

/// The terminal's judgement on the object records that it was sent last.
struct End_of_object_pool_response
{
    bool accepted;
    Iso::Object_id faulty_parent;
    Iso::Object_id faulty_object;
    std::uint8_t error; ///< the standard's code
};

/// Whether the terminal has room for a pool.
struct Memory_response
{
    std::uint8_t terminal_version;
    bool enough;
};

/// The terminal's answer to a command.
struct Command_response
{
    Iso::Function function;
    Iso::Object_id object_id; ///< the object that the command named first; null if the answer does not say
    std::uint8_t error;       ///< the standard's bits; 0: carried out
};

/// The terminal does not know a function that it was sent.
struct Unsupported_function_response
{
    Iso::Function function;
};

/// A message of the terminal; empty when its function is not known here or it is too short.
using Terminal_message =
    std::variant<std::monostate, Soft_key_activation_event, Button_activation_event, VT_change_numeric_value_event,
                 VT_change_string_value_event, Select_input_object_event, Esc_event, Terminal_status, VT_information,
                 Memory_response, End_of_object_pool_response, Command_response, Unsupported_function_response>;

VTUI_EXPORT Terminal_message decode(const std::uint8_t* message, std::size_t size);

} // namespace VT

#endif
