#include "apps/gallery/Page.h"

namespace gallery {

using namespace VT::Comp;

void Page::add_title_bar(const char* title)
{
    draw(title_bar, {mask_size, span(5)}, style.fill_17, style.line_none);
    mask.add(title_bar, 0, 0);
    add_caption(title, 2, 1, 50, VT::Field_obj::left, &shared.title_font);
}

void Page::add_caption(const char* words, int x, int y, int width, VT::Field_obj::Horizontal justification,
                       Font_attributes_obj* font)
{
    Font_attributes_obj& written = font ? *font : style.font_1;
    Caption& caption = captions.emplace_back(words, written);
    caption.set_size({span(width), written.get_font_height()});
    caption.set_justification(justification);
    mask.add(caption.root(), at(x), at(y));
}

void Page::add_text(VT::String_variable_obj& text, Font_attributes_obj& font, int x, int y, int width)
{
    Output_string_obj& string = texts.emplace_back();
    string.set_font(&font);
    string.set_variable(&text);
    string.options = VT::Field_obj::transparent;
    resize(string, {span(width), font.get_font_height()});
    mask.add(string, at(x), at(y));
}

void Page::draw(Rectangle_obj& rectangle, Dimension size, Fill_attributes_obj& fill, Line_attributes_obj& line)
{
    resize(rectangle, size);
    rectangle.set_fill(&fill);
    rectangle.set_line(&line);
}

} // namespace gallery
