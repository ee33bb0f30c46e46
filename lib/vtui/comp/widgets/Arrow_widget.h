#ifndef VTUI_COMP_ARROW_WIDGET_H
#define VTUI_COMP_ARROW_WIDGET_H

#include "vtui/comp/objects/Dimension.h"
#include "vtui/comp/objects/Has_vertices.h"
#include "vtui/comp/objects/Line_attributes_obj.h"
#include "vtui/comp/objects/Polygon_obj.h"

namespace VT::Comp {

/// A chevron that points left or right: an open line through three points. The application sizes it and shows root().
class VTUI_EXPORT Arrow_widget
{
  public:
    /// The style of the line stays the caller's and outlives the arrow.
    explicit Arrow_widget(Line_attributes_obj& line);

    // Pixels. A side of 0 puts the far points at 65535. A live pool is sent the polygon at once if anything in it has
    // changed.

    /// The tip lies in the middle of the left edge.
    void set_size_left(Dimension d);
    /// The tip lies in the middle of the right edge.
    void set_size_right(Dimension d);
    /// Points right.
    void set_size(Dimension d) { set_size_right(d); }

    Polygon_obj* root() { return &polygon; }

    Polygon_obj polygon;
    Vertex_array<Array_array_3> vertices; ///< the one in the middle is the tip

  private:
    void draw(Dimension size, int tip, int ends);
};

} // namespace VT::Comp

#endif
