#ifndef VTUI_COMP_TITLE_WIDGET_H
#define VTUI_COMP_TITLE_WIDGET_H

#include "vtui/comp/Connection_elements.h"
#include "vtui/comp/objects/Container_obj.h"
#include "vtui/comp/objects/Dimension.h"
#include "vtui/comp/objects/Has_child_placements.h"
#include "vtui/comp/objects/Output_string_obj.h"

namespace VT::Comp {

/// The title of a mask: a text of the application's over the style's patterned background, from the left and wrapped.
/// The application gives the text, sizes the bar and places root() in a mask.
class VTUI_EXPORT Title_widget
{
  public:
    /// Style and font outlive the widget. The font may be null only if `text_obj` is given one before the pool is
    /// prepared; for the layout a null `font` has no size.
    Title_widget(Connection_elements& set, VT::Font_attributes_obj* title_font);
    /// In the style's font_4.
    explicit Title_widget(Connection_elements& set) : Title_widget(set, &set.font_4) {}

    Container_obj& root() { return container; }

    /// The text stays the application's and outlives the widget; null for none. Sends Change Attribute if the pool is
    /// live and the terminal shows another one.
    void set_text(VT::String_variable_obj* new_text);

    /// Pixels: the text lies a font's height inside the left and right edge, and 2 pixels inside the others; in a
    /// smaller bar its size wraps around. Each call, with the same size too, moves the background 10 pixels up, on
    /// purpose: after many it no longer fills the bar. Sends nothing: in a live pool follow with root().upload(true).
    void set_size(Dimension size);
    /// Pixels: a margin around all the characters that the text may have, or only the margin where a text or a font is
    /// missing. Too narrow for one line: set_size() keeps two font heights free, this adds half of one and
    /// 8 pixels.
    Dimension get_preferred_size() const;

    /// Sends Hide/Show if the pool is live.
    void set_hidden(bool hide) { container.set_hidden(hide); }
    bool is_hidden() const { return container.hidden != 0; }

    Output_string_obj text_obj;
    VT::String_variable_obj* text{nullptr};
    VT::Font_attributes_obj* font;
    Container_obj container;
    Child_placements_array<Array_array_2> placements; ///< drawn in this order: background, text
};

} // namespace VT::Comp

#endif
