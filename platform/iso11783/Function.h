#ifndef ISO11783_FUNCTION_H
#define ISO11783_FUNCTION_H

#include <cstddef>
#include <cstdint>

namespace Iso {

/// The first byte of a message, application to terminal or terminal to application. A terminal answers a command with
/// the command's own function.
enum class Function : std::uint8_t {
    soft_key_activation = 0x00,
    button_activation = 0x01,
    select_input_object = 0x03,
    esc = 0x04,
    input_numeric_value = 0x05, ///< the operator entered a number (named Change Numeric Value, as the command is)
    input_string_value = 0x08,  ///< the operator entered a text (named Change String Value, as the command is)

    object_pool_transfer = 0x11,
    end_of_object_pool = 0x12,

    hide_show = 0xA0,
    enable_disable = 0xA1,
    change_child_location = 0xA5,
    change_size = 0xA6,
    change_background_colour = 0xA7,
    change_numeric_value = 0xA8,
    change_active_mask = 0xAD,
    change_soft_key_mask = 0xAE,
    change_attribute = 0xAF,
    change_string_value = 0xB3,
    change_child_position = 0xB4,

    get_memory = 0xC0,
    get_number_of_soft_keys = 0xC2,
    get_text_font_data = 0xC3,
    get_hardware = 0xC7,

    store_version = 0xD0,
    load_version = 0xD1,
    delete_version = 0xD2,
    get_versions = 0xDF,
    versions = 0xE0, ///< the terminal's answer to Get Versions

    unsupported_function = 0xFD, ///< the terminal's answer to a function that it does not know
    terminal_status = 0xFE,
    working_set_maintenance = 0xFF,
};

/// What the operator did with a key or button.
enum class Activation : std::uint8_t { released = 0, pressed = 1, held = 2, aborted = 3 };

/// Messages shorter than this are filled up with 0xFF; longer ones travel in a transport session.
inline constexpr std::size_t frame_size = 8;

/// What a transport session carries at most, and an extended one.
inline constexpr std::size_t transport_size = 1785;
inline constexpr std::size_t extended_transport_size = 117'440'505;

} // namespace Iso

#endif
