#ifndef VTUI_COMP_ICON_TEXT_BUTTON_WIDGET_H
#define VTUI_COMP_ICON_TEXT_BUTTON_WIDGET_H

#include "vt/Event.h"
#include "vtui/comp/Connection_elements.h"
#include "vtui/comp/objects/Container_obj.h"
#include "vtui/comp/objects/Has_child_placements.h"
#include "vtui/comp/objects/Output_string_obj.h"
#include "vtui/comp/widgets/Button_widget.h"

#include <functional>

namespace VT::Comp {

/// A button with a caption of two lines at its bottom and an icon in the middle of the room above, inside a margin of a
/// tenth of its size. It runs an action when it is released. Icon and text stay the application's.
class VTUI_EXPORT Icon_text_button_widget
{
  public:
    /// The style outlives the widget.
    explicit Icon_text_button_widget(Connection_elements& elements);

    /// An object of the pool, never null. Shows with the next set_size() and, in a live pool, an upload of root() after
    /// that.
    void set_icon(VT::VT_obj* icon) { placements.placements[0].ref = icon; }
    /// Null for no text. Sends Change Attribute if the pool is live.
    void set_text(VT::String_variable_obj* text) { caption.set_variable(text); }

    /// Pixels. If the widget has ids, the button's container is uploaded once, before its new sizes are known: follow
    /// with root().upload(true). A null icon ends the process, here or when the pool is prepared.
    void set_size(Dimension size);

    using Handled_events = Event_list<Button_activation_event>;

    /// Runs the action when the button is released; without one nothing happens.
    void handle_event(Button_activation_event& event);

    /// Sends Hide/Show if the pool is live.
    void set_hidden(bool hide) { button.set_hidden(hide); }
    bool is_hidden() const { return button.is_hidden(); }

    Container_obj& root() { return button.root(); }

    Button_widget button;
    Output_string_obj caption;
    Container_obj inner;
    Child_placements_array<Array_array_2> placements;
    /// The application's to set. Captures above two pointers allocate; it must not replace itself while it runs.
    std::function<void()> action;
};

} // namespace VT::Comp

#endif
