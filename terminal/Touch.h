#ifndef TERMINAL_TOUCH_H
#define TERMINAL_TOUCH_H

#include "terminal/Area.h"
#include "terminal/Object_pool.h"

namespace terminal {

/// The control that a finger means at a place of a mask: of the controls that are drawn there, the topmost one, however
/// much that is no control is drawn above it. Empty if there is none.
///
/// A disabled button still looks like a button, so it takes the finger, and what is below it gets none. A disabled
/// input looks like an output and counts as one.
///
/// It takes at most as many steps as the mask has objects to draw, of which Nesting knows the bound.
Object control_at(const Object_pool& pool, Object mask, Position place);

} // namespace terminal

#endif
