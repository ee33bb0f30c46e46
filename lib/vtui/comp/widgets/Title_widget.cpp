#include "vtui/comp/widgets/Title_widget.h"

namespace VT::Comp {

namespace {

constexpr int text_margin = 2; ///< above and below the text
constexpr int drift = 10;

} // namespace

Title_widget::Title_widget(Connection_elements& set, VT::Font_attributes_obj* title_font) : font(title_font)
{
    text_obj.options = VT::Field_obj::transparent | VT::Output_string_obj::auto_wrap;
    text_obj.set_font(font);
    placements.placements[0] = {&set.rect_17_patterned, 0, 0};
    placements.placements[1] = {&text_obj, 0, 0};
    container.placements_ptr = &placements;
}

void Title_widget::set_text(VT::String_variable_obj* new_text)
{
    text = new_text;
    text_obj.set_variable(text);
}

void Title_widget::set_size(Dimension size)
{
    const int indent = text_size(1, font).height;
    resize(container, size);
    // Sizes have 16 bits: a bar too small for its margins wraps.
    resize(text_obj, {static_cast<std::uint16_t>(size.width - 2 * indent),
                      static_cast<std::uint16_t>(size.height - 2 * text_margin)});

    Child_placement& background = placements.placements[0];
    background.y = position(background.y - drift); // meant so: further up with every call
    placements.placements[1].x = position(indent);
    placements.placements[1].y = text_margin;
    placements.deref();
}

Dimension Title_widget::get_preferred_size() const
{
    const int half = text_size(1, font).height / 2;
    const Dimension line = text ? text_size(text->get_length(), font) : Dimension();
    return {static_cast<std::uint16_t>(line.width + 8 + half), static_cast<std::uint16_t>(line.height + 4 + half)};
}

} // namespace VT::Comp
