#ifndef VTUI_COMP_LABELLED_INPUT_WIDGET_H
#define VTUI_COMP_LABELLED_INPUT_WIDGET_H

#include "vtui/comp/widgets/Button_widget.h"
#include "vtui/comp/widgets/Number_widget.h"

#include <algorithm>
#include <utility>

namespace VT::Comp {

/// An input component with a line of text above it. The input covers the whole area, so that a touch on the label means
/// the input too. Events go to the input: route `input`, or what handles the button's. Construct a button with
/// `style.null_pointer`, which shows nothing, and give its content by `input.set_content()`: the constructor's stays at
/// the top left, under the label.
template <class Input>
class VTUI_EXPORT Labelled_input_widget
{
  public:
    /// Font and text stay the application's and outlive the field; both may be null. All further arguments are those of
    /// the input's constructor.
    template <typename... Arguments>
    explicit Labelled_input_widget(Font_attributes_obj* font, VT::String_variable_obj* text, Arguments&&... arguments)
        : label_font(font), input(std::forward<Arguments>(arguments)...)
    {
        label.options = VT::Field_obj::transparent;
        label.set_font(font);
        set_label(text);
        placements.placements[0] = {&input.root(), 0, 0};
        placements.placements[1] = {&label, 0, 0};
        container.placements_ptr = &placements;
    }

    /// Pixels: the label, with room for all the characters that its variable may have, above the input; no margin.
    /// Without a text or a font it is the input's size alone, although set_size() keeps a line free wherever there is a
    /// font.
    Dimension get_preferred_size() const;
    /// Makes the field `size` pixels large, with the label `margin` away from the top left corner and the input's
    /// contents below it, moved by as much: what hugs the right edge then overhangs. Sends nothing: in a live pool
    /// follow with root().upload(true).
    void set_size(Dimension size, Dimension margin);
    /// Shows another text; sends Change Attribute if the pool is live.
    void set_label(VT::String_variable_obj* text)
    {
        label_variable = text;
        label.set_variable(text);
    }

    Container_obj& root() { return container; }

    Container_obj container;
    Child_placements_array<Array_array_2> placements;
    Output_string_obj label;
    VT::String_variable_obj* label_variable{nullptr};
    Font_attributes_obj* label_font;
    Input input;
};

template <class Input>
Dimension Labelled_input_widget<Input>::get_preferred_size() const
{
    const Dimension below = input.get_preferred_size();
    if (!label_variable || !label_font)
        return below;
    const Dimension line = text_size(label_variable->get_length(), label_font);
    return {std::max(below.width, line.width), static_cast<std::uint16_t>(line.height + below.height)};
}

template <class Input>
void Labelled_input_widget<Input>::set_size(Dimension size, Dimension margin)
{
    const std::uint16_t line = text_size(0, label_font).height;
    resize(container, size);
    resize(label, {size.width, line}); // overhangs by the margin

    const std::uint16_t strip = input.get_preferred_size().height;
    input.set_size(size, {size.width, strip}, {position(margin.width), position(line + margin.height)});
    placements.placements[1].x = position(margin.width);
    placements.placements[1].y = position(margin.height);
    placements.deref();
}

extern template class Labelled_input_widget<Button_widget>;
extern template class Labelled_input_widget<Number_widget>;

} // namespace VT::Comp

#endif
