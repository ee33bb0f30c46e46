#ifndef VTUI_COMP_TOGGLE_BUTTON_WIDGET_H
#define VTUI_COMP_TOGGLE_BUTTON_WIDGET_H

#include "vtui/comp/objects/N_state_pointer_obj.h"
#include "vtui/comp/widgets/Button_widget.h"

namespace VT::Comp {

/// A button that shows one of two objects of the application's. It does not switch itself: its owner does, when the
/// button is activated or for any other reason. Off at first. The looks stay at the top left corner; set_content()
/// lays another object over them and does not move them.
class VTUI_EXPORT Toggle_button_widget : public Button_widget
{
  public:
    /// Mind the order: a check box takes its looks the other way round.
    Toggle_button_widget(VT::VT_obj& off, VT::VT_obj& on);

    bool is_on() const { return state_pointer.state == 1; }
    /// One change of the pointer's value if the widget has an id.
    void set_on(bool on) { state_pointer.set_state(on); }
    void toggle() { set_on(!is_on()); }

    N_state_pointer_obj<2> state_pointer;
};

} // namespace VT::Comp

#endif
