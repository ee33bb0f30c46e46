#include "apps/gallery/Page.h"

namespace gallery {

using namespace VT::Comp;

void Page::add_title_bar(const char* title)
{
    title_bar.set_text(&words(title));
    title_bar.set_size({mask_size, span(5)});
    mask.add(title_bar.root(), 0, 0);
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
    Output_string_obj& string = strings.emplace_back();
    string.set_font(&font);
    string.set_variable(&text);
    string.options = VT::Field_obj::transparent;
    resize(string, {span(width), font.get_font_height()});
    mask.add(string, at(x), at(y));
}

void Page::set_looks(Rectangle_obj& rectangle, Dimension size, Fill_attributes_obj& fill, Line_attributes_obj& line)
{
    resize(rectangle, size);
    rectangle.set_fill(&fill);
    rectangle.set_line(&line);
}

} // namespace gallery
