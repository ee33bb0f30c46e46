#include "apps/gallery/Page_style.h"

namespace gallery {

Page_style::Page_style(VT::Pool& objects, std::uint16_t side)
    : pool(objects), mask_size(side), icons(side), units(objects)
{
    constexpr std::uint8_t size_8_by_12 = 2; // font size
    elements.set_sizes(side);
    elements.line_black_c.colour = white; // it lies on dark faces
    title_font.colour = white;
    title_font.size = elements.font_1.size;
    large_font.colour = white;
    large_font.size = elements.font_3.size;
    key_font.size = size_8_by_12;
    resize(key_frame, key_size);
    key_frame.set_line(&elements.line_black);
}

} // namespace gallery
