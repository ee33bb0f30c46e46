#ifndef VTUI_COMP_LABELLED_INPUT_WIDGET_H
#define VTUI_COMP_LABELLED_INPUT_WIDGET_H

#include "vtui/comp/widgets/Number_widget.h"

#include <utility>

namespace VT::Comp {

/// An input component with a line of text above it. The input covers the whole area, so that a touch on the label means
/// the input too. Events go to the input: route `input`.
template <class Input>
class VTUI_EXPORT Labelled_input_widget
{
  public:
    /// Font and text stay the application's and outlive the field; both may be null. All further arguments are those of
    /// the input's constructor.
    template <typename... Arguments>
    explicit Labelled_input_widget(Font_attributes_obj* font, VT::String_variable_obj* text, Arguments&&... arguments)
        : input(std::forward<Arguments>(arguments)...)
    {
        label.options = 1; // transparent
        label.set_font(font);
        label.set_variable(text);
        placements.placements[0] = {&input.root(), 0, 0};
        placements.placements[1] = {&label, 0, 0};
        container.placements_ptr = &placements;
    }

    /// Pixels: the label above the input.
    Dimension get_preferred_size() const;
    /// Makes the field `size` pixels large, with the label at `margin` from the top left corner and the input's
    /// contents below it. Sends nothing: in a live pool follow with root().upload(true).
    void set_size(Dimension size, Dimension margin);
    /// Shows another text; sends Change Attribute if the pool is live.
    void set_label(VT::String_variable_obj* text) { label.set_variable(text); }

    Container_obj& root() { return container; }

    Container_obj container;
    Child_placements_array<Array_array_2> placements;
    Output_string_obj label;
    VT::String_variable_obj*& label_variable{label.variable};
    Font_attributes_obj*& label_font{label.font};
    Input input;
};

extern template class Labelled_input_widget<Number_widget>;

} // namespace VT::Comp

#endif
