#include "apps/gallery/Number_page.h"

namespace gallery {

using namespace VT::Comp;

namespace {

constexpr std::uint8_t white = 1, silver = 7;
constexpr std::uint8_t size_8_by_12 = 2; // font size

/// A soft key's cell, in pixels: the keys are drawn for the usual size whatever the mask's is.
constexpr Dimension key_size{60, 60};
constexpr Dimension key_arrow{33, 25};

} // namespace

Number_style::Number_style(Connection_elements& style_set, std::uint16_t side, VT::Pool& objects)
    : elements(style_set), mask_size(side), pool(objects), units(objects)
{
    title_font.colour = white;
    title_font.size = elements.font_1.size;
    key_font.size = size_8_by_12;
    resize(key_frame, key_size);
    key_frame.set_line(&elements.line_black);
}

Number_page::Arrow_key::Arrow_key(Arrow::Direction direction, Number_style& shared)
    : arrow(direction, key_arrow, shared.elements.fill_17, shared.elements.line_none)
{
    children.placements[0] = {&shared.key_frame, 0, 0};
    children.placements[1] = {&arrow.root(), centred(key_size.width, key_arrow.width),
                              centred(key_size.height, key_arrow.height)};
    key.placements_ptr = &children;
    key.background_colour = silver;
}

Number_page::Units_key::Units_key(Number_style& shared) : caption("Units", shared.key_font)
{
    constexpr std::uint16_t line = 12;
    caption.set_size({key_size.width, line});
    caption.set_justification(VT::Field_obj::middle);
    name.set_font(&shared.elements.font_0);
    name.set_variable(&shared.units.name());
    name.options = VT::Field_obj::transparent;
    name.justification = VT::Field_obj::middle;
    resize(name, {key_size.width, line});
    children.placements[0] = {&shared.key_frame, 0, 0};
    children.placements[1] = {&caption.root(), 0, 16};
    children.placements[2] = {&name, 0, 34};
    key.placements_ptr = &children;
    key.background_colour = silver;
}

Number_page::Number_page(const char* page_name, const char* title, Number_style& shared)
    : Page(page_name, silver, shared.elements, shared.mask_size), pool(shared.pool), units(shared.units),
      units_key(shared), up_key(Arrow::up, shared), down_key(Arrow::down, shared),
      up_mark(Arrow::up, area(3, 3), style.fill_17, style.line_none),
      down_mark(Arrow::down, area(3, 3), style.fill_17, style.line_none)
{
    draw(title_bar, {mask_size, span(5)}, style.fill_17, style.line_none);
    mask.add(title_bar, 0, 0);
    add_caption(title, 2, 1, 50, VT::Field_obj::left, &shared.title_font);
    add_caption("Units:", 50, 1, 22, VT::Field_obj::right, &shared.title_font);
    add_text(units.name(), shared.title_font, 74, 1, 22);

    for (Key_obj* key : {&units_key.key, &up_key.key, &down_key.key})
        keys.add(*key);
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

void Number_page::set_stepped(Number_widget& field, double step, int x, int y)
{
    stepped = &field;
    stepped_by = step;
    mask.add(up_mark.root(), at(x), at(y));
    mask.add(down_mark.root(), at(x + 4), at(y));
}

void Number_page::add_text(VT::String_variable_obj& text, Font_attributes_obj& font, int x, int y, int width)
{
    Output_string_obj& string = texts.emplace_back();
    string.set_font(&font);
    string.set_variable(&text);
    string.options = VT::Field_obj::transparent;
    resize(string, {span(width), font.get_font_height()});
    mask.add(string, at(x), at(y));
}

void Number_page::handle_event(const VT::Soft_key_activation_event& event)
{
    if (event.activation_code != Iso::Activation::released)
        return;
    const auto is = [&](const Key_obj& key) { return event.object_id == key.get_id(); };
    if (is(units_key.key))
        units.choose_next();
    else if (stepped && is(up_key.key))
        stepped->increment(stepped_by);
    else if (stepped && is(down_key.key))
        stepped->decrement(stepped_by);
}

} // namespace gallery
