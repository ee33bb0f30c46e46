#ifndef ISO11783_OBJECT_TYPE_H
#define ISO11783_OBJECT_TYPE_H

#include <cstdint>

namespace Iso {

using Object_id = std::uint16_t;

/// The id that names no object. Real ids run from 0 to 65534.
inline constexpr Object_id null_id = 0xFFFF;

/// The type byte of an object record.
enum class Object_type : std::uint8_t {
    working_set = 0,
    data_mask = 1,
    alarm_mask = 2,
    container = 3,
    soft_key_mask = 4,
    key = 5,
    button = 6,
    input_boolean = 7,
    input_string = 8,
    input_number = 9,
    input_list = 10,
    output_string = 11,
    output_number = 12,
    line = 13,
    rectangle = 14,
    ellipse = 15,
    polygon = 16,
    picture_graphic = 20,
    number_variable = 21,
    string_variable = 22,
    font_attributes = 23,
    line_attributes = 24,
    fill_attributes = 25,
    input_attributes = 26,
    object_pointer = 27,
    macro = 28,
};

} // namespace Iso

#endif
