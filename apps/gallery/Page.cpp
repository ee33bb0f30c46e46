#include "apps/gallery/Page.h"

namespace gallery {

void Page::add_caption(const char* words, int x, int y, int width, VT::Field_obj::Horizontal justification,
                       VT::Comp::Font_attributes_obj* font)
{
    VT::Comp::Font_attributes_obj& written = font ? *font : style.font_1;
    Caption& caption = captions.emplace_back(words, written);
    caption.set_size({span(width), written.get_font_height()});
    caption.set_justification(justification);
    mask.add(caption.root(), at(x), at(y));
}

void Page::draw(VT::Comp::Rectangle_obj& rectangle, VT::Comp::Dimension size, VT::Comp::Fill_attributes_obj& fill,
                VT::Comp::Line_attributes_obj& line)
{
    resize(rectangle, size);
    rectangle.set_fill(&fill);
    rectangle.set_line(&line);
}

} // namespace gallery
