#ifndef VTUI_COMP_VISIBLE_EVENT_H
#define VTUI_COMP_VISIBLE_EVENT_H

class waiter_descriptor;

namespace VT::Comp {

/// A component has come into sight or gone out of it, with the mask that it lies in. The application tells it.
struct Visible_event
{
    bool visible;
    waiter_descriptor* waiter; ///< under which it hears of changes while visible; null will do when it is not
};

} // namespace VT::Comp

#endif
