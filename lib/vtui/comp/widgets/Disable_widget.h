#ifndef VTUI_COMP_DISABLE_WIDGET_H
#define VTUI_COMP_DISABLE_WIDGET_H

#include "vtui/comp/Connection_elements.h"
#include "vtui/comp/objects/Dimension.h"
#include "vtui/comp/objects/N_state_pointer_obj.h"

namespace VT::Comp {

/// Shows nothing or one of the style's covers. The pool takes in all of them: it may be another one later.
class VTUI_EXPORT Cover_pointer final : public N_state_pointer_obj<2>
{
  public:
    explicit Cover_pointer(Connection_elements& style);

    VT::VT_obj& largest; ///< in which all other covers lie
};

/// Makes a component look disabled: a pointer at a stippled cover, or at nothing. It only looks so: what lies below
/// still reacts. The owner places root() over the component, at its top left corner. The cover is not cut to the
/// component: 100 × 40 pixels get the one of 128 × 128. The style outlives it. The pool takes in all covers with it, so
/// that the size may change when the pool is live.
class VTUI_EXPORT Disable_widget
{
  public:
    explicit Disable_widget(Connection_elements& elements);

    /// Chooses the smallest cover for an area of `size` pixels; the state stays. If the widget has an id, the pointer's
    /// value is sent. Ends the process above 512.
    void set_size(Dimension size);
    /// One change of the pointer's value if the widget has an id.
    void set_disabled(bool disabled) { state_pointer.set_state(disabled); }

    N_state_pointer_obj<2>& root() { return state_pointer; }

    Connection_elements& elements;
    Cover_pointer state_pointer;
};

} // namespace VT::Comp

#endif
