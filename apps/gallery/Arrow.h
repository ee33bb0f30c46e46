#ifndef GALLERY_ARROW_H
#define GALLERY_ARROW_H

#include "vtui/comp/objects/Dimension.h"
#include "vtui/comp/objects/Polygon_obj.h"

namespace gallery {

/// A filled triangle.
class Arrow
{
  public:
    enum Direction { up, down, left, right };

    Arrow(Direction direction, VT::Comp::Dimension size, VT::Comp::Fill_attributes_obj& fill,
          VT::Comp::Line_attributes_obj& line)
    {
        const auto far_x = static_cast<short>(size.width - 1), far_y = static_cast<short>(size.height - 1);
        const short base_x = direction == left ? far_x : short{0}, base_y = direction == up ? far_y : short{0};
        corners.points[0] = {base_x, base_y};
        if (direction == up || direction == down) {
            corners.points[1] = {far_x, base_y};
            corners.points[2] = {static_cast<short>(far_x / 2), static_cast<short>(far_y - base_y)};
        } else {
            corners.points[1] = {base_x, far_y};
            corners.points[2] = {static_cast<short>(far_x - base_x), static_cast<short>(far_y / 2)};
        }
        polygon.vertices_ptr = &corners;
        resize(polygon, size);
        polygon.set_fill(&fill);
        polygon.set_line(&line);
    }

    VT::VT_obj& root() { return polygon; }

  private:
    VT::Comp::Polygon_obj polygon;
    VT::Comp::Vertex_array<Array_array_3> corners;
};

} // namespace gallery

#endif
