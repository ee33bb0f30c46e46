#include "Records.h"

namespace records {
namespace {

Bytes with_children(const Bytes& head, const std::vector<std::uint16_t>& children)
{
    Bytes bytes = join(head, static_cast<int>(children.size()), 0);
    for (const std::uint16_t child : children)
        append(bytes, at(child, 0, 0));
    return bytes;
}

} // namespace

Bytes empty_working_set(std::uint16_t mask) { return record(working_set, Type::working_set, 0, 1, w(mask), 0, 0, 0); }
Bytes empty_mask(std::uint16_t id) { return mask_of(id, {}); }

Bytes container_of(std::uint16_t id, const std::vector<std::uint16_t>& children)
{
    return with_children(record(id, Type::container, w(10), w(10), 0), children);
}

Bytes mask_of(std::uint16_t id, const std::vector<std::uint16_t>& children)
{
    return with_children(record(id, Type::data_mask, 0, w(null_id)), children);
}

Bytes pointer_to(std::uint16_t id, std::uint16_t target) { return record(id, Type::object_pointer, w(target)); }

Bytes text(std::uint16_t id, std::string_view value)
{
    return record(id, Type::output_string, w(80), w(16), 0, w(null_id), 0, w(null_id), 0,
                  w(static_cast<std::uint16_t>(value.size())), value, 0);
}

Bytes complete_pool()
{
    const Bytes one_macro = join(1, macro); // on event 1
    return join(
        record(working_set, Type::working_set, 1, 1, w(data_mask), 1, 1, 2, at(output_string, 3, 4), one_macro, "ende"),
        record(data_mask, Type::data_mask, 7, w(soft_key_mask), 8, 1, at(container, 5, 6), at(button, -1, -2),
               at(input_boolean, 0, 0), at(input_string, 10, 20), at(input_number, 30, 40), at(input_list, 50, 60),
               at(pointer, 70, 80), at(container, 300, -300), one_macro),
        record(alarm_mask, Type::alarm_mask, 8, w(null_id), 1, 2, 1, 1, at(output_string, 0, 0), one_macro),
        record(soft_key_mask, Type::soft_key_mask, 9, 3, 1, w(key), w(null_id), w(key_pointer), one_macro),
        record(key, Type::key, 10, 40, 1, 1, at(output_string, 0, 0), one_macro),
        record(other_key, Type::key, 11, 41, 0, 0),
        record(container, Type::container, w(100), w(50), 0, 7, 1, at(output_string, 1, 1), at(output_number, 2, 2),
               at(line, 3, 3), at(rectangle, 4, 4), at(ellipse, 5, 5), at(polygon, 6, 6), at(picture, 7, 7), one_macro),
        record(button, Type::button, w(60), w(30), 12, 13, 42, 2, 1, 1, at(output_string, 0, 0), one_macro),
        record(input_boolean, Type::input_boolean, 14, w(20), w(font), w(number_variable), 1, 1, 1, one_macro),
        record(input_string, Type::input_string, w(90), w(16), 15, w(font), w(input_attributes), 1, w(string_variable),
               5, 5, "Hello", 1, 1, one_macro),
        record(input_number, Type::input_number, w(91), w(17), 16, w(font), 2, w(null_id), d(1000), d(10), d(5000),
               d(0xFFFFFFF6), f(0.5f), 1, 0, 6, 1, 1, one_macro),
        record(input_list, Type::input_list, w(92), w(18), w(null_id), 1, 3, 1, 1, w(output_string), w(null_id),
               w(output_number), one_macro),
        record(pointer, Type::object_pointer, w(picture)), record(key_pointer, Type::object_pointer, w(other_key)),
        record(output_string, Type::output_string, w(80), w(16), 17, w(font), 1, w(null_id), 4, w(5), "Text!", 1,
               one_macro),
        record(output_number, Type::output_number, w(81), w(17), 18, w(font), 4, w(number_variable), d(123), d(7),
               f(0.25f), 2, 1, 10, 1, one_macro),
        record(line, Type::line, w(line_attributes), w(40), w(41), 1, 1, one_macro),
        record(rectangle, Type::rectangle, w(line_attributes), w(42), w(43), 3, w(fill_attributes), 1, one_macro),
        record(ellipse, Type::ellipse, w(line_attributes), w(44), w(45), 2, 10, 90, w(fill_attributes), 1, one_macro),
        record(polygon, Type::polygon, w(46), w(47), w(line_attributes), w(fill_attributes), 3, 3, 1, w(0), w(1), w(2),
               w(3), w(4), w(5), one_macro),
        record(picture, Type::picture_graphic, w(20), w(3), w(2), 1, 1, 19, d(4), 1, 0x12, 0x30, 0x45, 0x60, one_macro),
        record(font, Type::font_attributes, 20, 3, 0, 5, 1, one_macro),
        record(line_attributes, Type::line_attributes, 21, 2, w(0xAAAA), 1, one_macro),
        record(fill_attributes, Type::fill_attributes, 3, 22, w(picture), 1, one_macro),
        record(number_variable, Type::number_variable, d(0x12345678)),
        record(string_variable, Type::string_variable, w(8), "variable"),
        record(input_attributes, Type::input_attributes, 1, 4, "0123", 1, one_macro),
        record(macro, Type::macro, w(8 + 9 + 10), 0xA0, w(container), 0, repeat(4, 0xFF), 0xB4, w(data_mask), w(button),
               w(1), w(2), 0xB3, w(string_variable), w(5), "macro"));
}

Bytes bytes_of(const terminal::Object_pool& pool)
{
    Bytes bytes;
    pool.for_each(
        [&bytes](terminal::Object object) { append(bytes, Bytes(object.data(), object.data() + object.size())); });
    return bytes;
}

} // namespace records
