#ifndef VTUI_COMP_FUNCTION_KEY_H
#define VTUI_COMP_FUNCTION_KEY_H

#include "vt/Event.h"
#include "vtui/comp/widgets/Key_widget.h"

#include <functional>

namespace VT::Comp {

/// A soft key that runs an action when it is released.
class VTUI_EXPORT Function_key : public Key_widget
{
  public:
    Function_key() = default;
    explicit Function_key(std::function<void()> its_action);

    Key_obj& root() { return key; }

    using Handled_events = Event_list<Soft_key_activation_event>;

    /// Runs the action when the key is released. An empty action throws std::bad_function_call: a key that does nothing
    /// is a mistake.
    void handle_event(Soft_key_activation_event& event);

    std::function<void()> action; ///< captures above two pointers allocate; it must not replace itself while it runs
};

} // namespace VT::Comp

#endif
