#include "apps/gallery/Number_page.h"

#include <utility>

namespace gallery {

using namespace VT::Comp;

namespace {

constexpr Dimension key_arrow{33, 25}; // pixels

} // namespace

Number_page::Units_face::Units_face(Page_style& shared) : caption("Units", shared)
{
    constexpr Dimension line{key_size.width, 12}, both{key_size.width, 30};
    name.set_font(&shared.elements.font_0);
    name.set_variable(&shared.units.name());
    name.options = VT::Field_obj::transparent;
    name.justification = VT::Field_obj::middle;
    resize(name, line);
    children.placements[0] = {&caption.root(), 0, 0};
    children.placements[1] = {&name, 0, 18};
    container.placements_ptr = &children;
    resize(container, both);
}

Number_page::Number_page(const char* page_name, const char* title, Page_style& page_style)
    : Page(page_name, silver, page_style), units_face(shared),
      up_arrow(Arrow::up, key_arrow, style.fill_17, style.line_none),
      down_arrow(Arrow::down, key_arrow, style.fill_17, style.line_none),
      units_key(shared, units_face.container, [this] { shared.units.choose_next(); }),
      up_key(shared, up_arrow.root(), [this] { step(1); }), down_key(shared, down_arrow.root(), [this] { step(-1); }),
      up_mark(Arrow::up, area(3, 3), style.fill_17, style.line_none),
      down_mark(Arrow::down, area(3, 3), style.fill_17, style.line_none)
{
    add_title_bar(title);
    add_caption("Units:", 50, 1, 22, VT::Field_obj::right, &shared.title_font);
    add_text(shared.units.name(), shared.title_font, 74, 1, 22);

    for (Framed_key* key : {&units_key, &up_key, &down_key})
        keys.add(key->root());
    mask.set_soft_key_mask(&keys);
}

Number_widget::Style Number_page::look(std::uint32_t layout, VT::VT_obj& backdrop) const
{
    Number_widget::Style fields;
    fields.number_font = &style.font_3;
    fields.units_font = &style.font_1;
    fields.backdrop = &backdrop;
    fields.layout = layout;
    return fields;
}

Number_widget::Style Number_page::input_look(VT::VT_obj& backdrop) const
{
    Number_widget::Style inputs = look(Number_widget::right_aligned, backdrop);
    inputs.input = true;
    return inputs;
}

void Number_page::set_step(std::function<void(int direction)> what, int x, int y)
{
    step = std::move(what);
    mask.add(up_mark.root(), at(x), at(y));
    mask.add(down_mark.root(), at(x + 4), at(y));
}

} // namespace gallery
