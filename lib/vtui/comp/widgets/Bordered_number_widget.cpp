#include "vtui/comp/widgets/Bordered_number_widget.h"

namespace VT::Comp {

Bordered_number_widget::Bordered_number_widget(const Style& style, const Specification& s0, const Specification& s1,
                                               const Specification& s2, VT::String_variable_obj* units_text)
    : number(style.number, s0, s1, s2, units_text)
{
    construct(style.border_line, style.border_fill);
}

Bordered_number_widget::Bordered_number_widget(const Style& style, const Specification& s0, const Specification& s1,
                                               VT::String_variable_obj* units_text)
    : Bordered_number_widget(style, s0, s1, s1, units_text)
{}

Bordered_number_widget::Bordered_number_widget(const Style& style, const Specification& all,
                                               VT::String_variable_obj* units_text)
    : Bordered_number_widget(style, all, all, all, units_text)
{}

Bordered_number_widget::Bordered_number_widget(const Style& style, VT::String_variable_obj* units_text)
    : Bordered_number_widget(style, Specification(), units_text)
{}

void Bordered_number_widget::construct(Line_attributes_obj* line, Fill_attributes_obj* fill)
{
    border.set_line(line);
    border.set_fill(fill);
    placements.placements[0] = {&number.root(), 0, 0};
    placements.placements[1] = {&border, 0, 0};
    container.placements_ptr = &placements;
}

Dimension Bordered_number_widget::get_preferred_size() const
{
    constexpr int margins = 2 * 2;
    const Dimension inner = number.get_preferred_size();
    return {static_cast<std::uint16_t>(inner.width + margins), static_cast<std::uint16_t>(inner.height + margins)};
}

void Bordered_number_widget::set_size(Dimension size)
{
    container.width = size.width;
    container.height = size.height;
    number.set_size(size);

    const Dimension frame = get_preferred_size();
    border.width = frame.width;
    border.height = frame.height;
    Child_placement& placed = placements.placements[1];
    placed.x = number.layout == Number_widget::right_aligned ? static_cast<std::int16_t>(size.width - frame.width)
                                                             : centred(size.width, frame.width);
    placed.y = centred(size.height, frame.height);
    placements.deref();
}

} // namespace VT::Comp
