#ifndef VTUI_COMP_BORDERED_NUMBER_WIDGET_H
#define VTUI_COMP_BORDERED_NUMBER_WIDGET_H

#include "vtui/comp/objects/Rectangle_obj.h"
#include "vtui/comp/widgets/Number_widget.h"

namespace VT::Comp {

/// A number field in a rectangle that is four pixels wider and higher than number and units. The rectangle stands at
/// the right edge where they are right-aligned, otherwise in the middle: in a field larger than the preferred size it
/// goes around a centred or stacked number only. What the operator enters is in get_value(); who is to hear of it
/// routes `number.input_number` to itself and passes the event on.
class VTUI_EXPORT Bordered_number_widget
{
  public:
    using Specification = Number_widget::Specification;

    /// What it points to stays the application's and outlives the field.
    struct Style
    {
        Line_attributes_obj* border_line{nullptr};
        Fill_attributes_obj* border_fill{nullptr}; ///< drawn over the number: seldom wanted
        Number_widget::Style number;
    };

    // As those of Number_widget.

    Bordered_number_widget(const Style& style, const Specification& s0, const Specification& s1,
                           const Specification& s2, VT::String_variable_obj* units_text);
    Bordered_number_widget(const Style& style, const Specification& s0, const Specification& s1,
                           VT::String_variable_obj* units_text);
    Bordered_number_widget(const Style& style, const Specification& all, VT::String_variable_obj* units_text);
    Bordered_number_widget(const Style& style, VT::String_variable_obj* units_text);

    /// What all constructors end with.
    void construct(Line_attributes_obj* line, Fill_attributes_obj* fill);

    // As those of Number_widget: engineering units.

    void init(VT::vtui_pool* pool, VT::String_variable_obj* units_text) { number.init(pool, units_text); }
    double get_value() const { return number.get_value(); }
    void set_value(double v) { number.set_value(v); }
    void increment(double step) { number.increment(step); }
    void decrement(double step) { number.decrement(step); }
    bool is_input(unsigned short id) const { return number.is_input(id); }

    // As those of Number_widget; for a switch of units the border follows.

    using Handled_events = Number_widget::Handled_events;

    void handle_event(VT_change_numeric_value_event& event) { number.handle_event(event); }
    void handle_event(const VT_information& terminal) { number.handle_event(terminal); }
    void handle_event(Units_man& units_man);

    /// Pixels: number, units and the border.
    Dimension get_preferred_size() const;
    /// Makes the field `size` pixels large. Sends nothing: in a live pool follow with root().upload(true). Ends the
    /// process if there is no backdrop.
    void set_size(Dimension size);
    void set_preferred_size() { set_size(get_preferred_size()); }
    Dimension get_size() const { return size_of(container); }

    Container_obj& root() { return container; }

    Number_widget number;
    Rectangle_obj border;
    Line_attributes_obj* border_line{nullptr};
    Fill_attributes_obj* border_fill{nullptr};
    Container_obj container;
    Child_placements_array<Array_array_2> placements;
};

} // namespace VT::Comp

#endif
