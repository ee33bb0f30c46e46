#ifndef VTUI_COMP_SHADOW_EDGE_H
#define VTUI_COMP_SHADOW_EDGE_H

#include "vt/Event.h"
#include "vtui/comp/objects/Container_obj.h"
#include "vtui/comp/objects/Dimension.h"
#include "vtui/comp/objects/Has_child_placements.h"
#include "vtui/comp/objects/Rectangle_obj.h"

namespace VT::Comp {

/// A line along the right and the bottom side of an area: what both kinds of border are. The kinds differ in the line.
class VTUI_EXPORT Shadow_edge
{
  public:
    /// Pixels. The rectangle is three pixels narrower and lower, unchecked: below three it becomes huge. Sends nothing:
    /// in a live pool follow with root().upload(true).
    void set_size(Dimension size);

    using Handled_events = Event_list<const VT_information>;

    /// Puts the rectangle back to (3, 3), whatever the terminal says; sends Change Child Position if the pool is live.
    /// In the terminal's pixels, also in a pool that was scaled: don't route borders there.
    void handle_event(const VT_information& terminal);

    Container_obj& root() { return container; }

    Container_obj container;
    Child_placements_array<Array_array_1> placements;
    Rectangle_obj border;

  protected:
    explicit Shadow_edge(Line_attributes_obj& line);
};

} // namespace VT::Comp

#endif
