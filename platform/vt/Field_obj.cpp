#include "vt/Field_obj.h"

namespace VT {

namespace {
constexpr Attribute_info font_info{"font_attributes", 4};
constexpr Attribute_info variable_info{"variable_reference", 6};
} // namespace

Field_obj::Field_obj(Iso::Object_id id, const char* name, Iso::Object_type type, std::uint16_t width_,
                     std::uint16_t height_, std::uint8_t background, Iso::Object_id font, std::uint8_t option_bits,
                     Iso::Object_id variable, std::uint8_t justified, std::uint8_t num_macros_,
                     const Macro_reference* macros_)
    : Sized_obj(id, name, type, width_, height_), Macro_list{macros_, num_macros_}, background_colour(this, background),
      font_attributes(font), variable_reference(variable), options(option_bits), justification(justified)
{}

void Field_obj::set_font_attributes(Iso::Object_id font) { change(font_info, font_attributes, font); }

void Field_obj::set_variable_reference(Iso::Object_id variable) { change(variable_info, variable_reference, variable); }

void Field_obj::set_background_colour(std::uint8_t colour) { change_background_colour(background_colour, colour); }

void Field_obj::visit_field(Attribute_visitor& visitor, std::uint8_t all_options)
{
    visit_size(visitor, 1);
    visitor.attribute({"background_colour", 3}, background_colour);
    visitor.attribute(font_info, font_attributes);
    visitor.attribute(Attribute_info::ranged("options", 5, all_options), options);
    visitor.attribute(variable_info, variable_reference);
}

void Field_obj::visit_justification(Attribute_visitor& visitor, std::uint8_t attribute_id)
{
    visitor.attribute(Attribute_info::ranged("justification", attribute_id, 10), justification);
}

Number_field_obj::Number_field_obj(Iso::Object_id id, const char* name, Iso::Object_type type, std::uint16_t width_,
                                   std::uint16_t height_, std::uint8_t background, Iso::Object_id font,
                                   std::uint8_t option_bits, Iso::Object_id variable, std::uint32_t raw,
                                   std::int32_t raw_offset, float display_scale, std::uint8_t decimals,
                                   std::uint8_t number_format, std::uint8_t justified, std::uint8_t num_macros_,
                                   const Macro_reference* macros_)
    : Field_obj(id, name, type, width_, height_, background, font, option_bits, variable, justified, num_macros_,
                macros_),
      number_of_decimals(decimals), format(number_format), value(raw), offset(raw_offset), scale(display_scale)
{}

void Number_field_obj::set_value(std::uint32_t raw) { change_numeric_value(value, raw); }

void Number_field_obj::set_offset(std::int32_t raw) { change({"offset", format_id(0)}, offset, raw); }

void Number_field_obj::set_scale(float display_units) { change({"scale", format_id(1)}, scale, display_units); }

void Number_field_obj::set_number_of_decimals(std::uint8_t decimals)
{
    change({"number_of_decimals", format_id(2)}, number_of_decimals, decimals);
}

/// Offset to justification carry ids in a row; an input number has those of its limits before them.
std::uint8_t Number_field_obj::format_id(unsigned place) const
{
    return static_cast<std::uint8_t>((get_type() == Iso::Object_type::input_number ? 9 : 7) + place);
}

void Number_field_obj::visit_format(Attribute_visitor& visitor)
{
    visitor.attribute({"offset", format_id(0)}, offset);
    visitor.attribute({"scale", format_id(1)}, scale);
    visitor.attribute(Attribute_info::ranged("number_of_decimals", format_id(2), 7), number_of_decimals);
    visitor.attribute(Attribute_info::ranged("format", format_id(3), 1), format);
    visit_justification(visitor, format_id(4));
}

} // namespace VT
