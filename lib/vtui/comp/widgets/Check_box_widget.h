#ifndef VTUI_COMP_CHECK_BOX_WIDGET_H
#define VTUI_COMP_CHECK_BOX_WIDGET_H

#include "vt/Event.h"
#include "vtui/comp/Connection_elements.h"
#include "vtui/comp/objects/Button_obj.h"
#include "vtui/comp/objects/Container_obj.h"
#include "vtui/comp/objects/Dimension.h"
#include "vtui/comp/objects/Has_child_placements.h"
#include "vtui/comp/objects/N_state_pointer_obj.h"

namespace VT::Comp {

/// A check box: a button that shows one of two objects of the application's and changes over when it is released.
/// Unchecked at first.
class VTUI_EXPORT Check_box_widget
{
  public:
    /// Mind the order: a toggle button takes its looks the other way round. Either may be null: nothing is shown then.
    Check_box_widget(Connection_elements& elements, VT::VT_obj* checked, VT::VT_obj* unchecked);

    /// One change of the pointer's value if the widget has an id.
    void set_checked(bool checked) { state_pointer.set_state(checked); }
    bool is_checked() const { return state_pointer.state != 0; }

    /// Pixels: room for both looks.
    Dimension get_preferred_size() const;
    /// Pixels. The present look is put in the middle, and a switch moves nothing: give both looks one size. It is
    /// written out with the pool only, not here: later sizes need placements.deref() and an upload of root().
    void set_size(Dimension size);

    using Handled_events = Event_list<Button_activation_event>;

    /// Changes over when the button is released.
    void handle_event(Button_activation_event event);

    Container_obj& root() { return container; }

    N_state_pointer_obj<2> state_pointer;
    Container_obj container;
    Child_placements_array<Array_array_3> placements;
    Button_obj button;
};

} // namespace VT::Comp

#endif
