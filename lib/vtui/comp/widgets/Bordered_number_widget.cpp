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
    border_line = line;
    border_fill = fill;
    border.set_line(line);
    border.set_fill(fill);
    placements.placements[0] = {&number.root(), 0, 0};
    placements.placements[1] = {&border, 0, 0};
    container.placements_ptr = &placements;
}

void Bordered_number_widget::handle_event(Units_man& units_man)
{
    number.handle_event(units_man);
    set_size(get_size());
    container.upload(true);
}

Dimension Bordered_number_widget::get_preferred_size() const
{
    constexpr int margin = 2; // on every side
    const Dimension inner = number.get_preferred_size();
    return {static_cast<std::uint16_t>(inner.width + 2 * margin),
            static_cast<std::uint16_t>(inner.height + 2 * margin)};
}

void Bordered_number_widget::set_size(Dimension size)
{
    resize(container, size);
    number.set_size(size);

    const Dimension frame = get_preferred_size();
    resize(border, frame);
    Child_placement& placed = placements.placements[1];
    placed.x = number.layout == Number_widget::right_aligned ? position(size.width - frame.width)
                                                             : centred(size.width, frame.width);
    placed.y = centred(size.height, frame.height);
    placements.deref();
}

} // namespace VT::Comp
