#ifndef TERMINAL_TOUCH_H
#define TERMINAL_TOUCH_H

#include "terminal/Area.h"
#include "terminal/Object_pool.h"

#include <cstddef>
#include <vector>

namespace terminal {

class Terminal;

/// What the operator can use on the screen of a terminal: a soft key, an enabled button, check box or input number.
/// Strings and lists are not offered.
bool is_usable(Object object);

/// What a finger means at a pixel of Screen_layout, with the soft keys from `first_key` on in the cells: a soft key or,
/// of the controls that are drawn there, the topmost one, however much that is no control is drawn above it. Empty if
/// there is none.
///
/// A disabled button still looks like a button, so it takes the finger, and what is below it gets none. A disabled
/// input looks like an output and counts as one.
///
/// It takes at most as many steps as the mask has objects to draw, of which Nesting knows the bound; and so do the
/// functions below.
Object target_at(const Terminal& terminal, Position place, std::size_t first_key = 0);

/// Whether the screen shows something of that control, or the object is a soft key of the mask that is shown, in a cell
/// or not.
bool shows(const Terminal& terminal, Iso::Object_id target);

/// Something that the operator can use, and what is to be seen of it: its area on the screen, cut by what it lies in.
struct Target
{
    Object object;
    Area area;
};

/// All that can be used: the controls of the mask in the order of drawing, then the soft keys in the cells. What is
/// shown at several places is listed with the first one, what lies outside of all it lies in is left out.
std::vector<Target> usable_targets(const Terminal& terminal, std::size_t first_key = 0);

} // namespace terminal

#endif
