#ifndef VTUI_COMP_ICON_TEXT_WIDGET_H
#define VTUI_COMP_ICON_TEXT_WIDGET_H

#include "vtui/comp/Connection_elements.h"
#include "vtui/comp/objects/Container_obj.h"
#include "vtui/comp/objects/Dimension.h"
#include "vtui/comp/objects/Has_child_placements.h"
#include "vtui/comp/objects/Output_string_obj.h"

namespace VT::Comp {

/// An icon above a caption of two lines, both together in the middle. Icon and text stay the application's. Until an
/// icon is set a blank square of the style's stands for it, which is as large as the mask: set one before the first
/// size.
class VTUI_EXPORT Icon_text_widget
{
  public:
    /// A null font means the style's font_1. Style and font outlive the widget.
    Icon_text_widget(Connection_elements& elements, VT::Font_attributes_obj* font);

    /// An object of the pool, never null. Shows with the next set_size() and, in a live pool, an upload of root() after
    /// that.
    void set_icon(VT::VT_obj* icon) { placements.placements[0].ref = icon; }
    /// Null for no text. Sends Change Attribute if the pool is live.
    void set_text(VT::String_variable_obj* text) { caption.set_variable(text); }

    /// Pixels. Sends nothing: in a live pool follow with root().upload(true). A null icon ends the process, here
    /// or when the pool is prepared.
    void set_size(Dimension size);

    /// Sends Hide/Show if the pool is live.
    void set_hidden(bool hide) { container.set_hidden(hide); }
    bool is_hidden() const { return container.hidden == 1; }

    Container_obj& root() { return container; }

    Output_string_obj caption;
    Container_obj container;
    Child_placements_array<Array_array_2> placements;
};

} // namespace VT::Comp

#endif
