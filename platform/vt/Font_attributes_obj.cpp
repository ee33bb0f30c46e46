#include "vt/Font_attributes_obj.h"

#include "iso11783/Font_size.h"

namespace VT {

std::uint8_t Font_attributes_obj::get_font_width() const { return Iso::font_size(size).width; }
std::uint8_t Font_attributes_obj::get_font_height() const { return Iso::font_size(size).height; }

void Font_attributes_obj::__set_scale(std::uint16_t a, std::uint16_t b, std::uint16_t c, std::uint16_t d)
{
    const unsigned width = get_font_width() * unsigned{a} / c;
    const unsigned height = get_font_height() * unsigned{b} / d;
    std::uint8_t code = Iso::font_sizes.size() - 1;
    while (code > 0 && (Iso::font_sizes[code].width > width || Iso::font_sizes[code].height > height))
        --code;
    size = code;
}

void Font_attributes_obj::visit(Attribute_visitor& visitor)
{
    visitor.attribute({"font_colour", 1}, colour);
    visitor.attribute(Attribute_info::ranged("font_size", 2, Iso::font_sizes.size() - 1), size);
    visitor.attribute({"font_type", 3}, type);
    visitor.attribute(Attribute_info::ranged("font_style", 4, 15), style);
    visit_macros(visitor);
}

} // namespace VT
