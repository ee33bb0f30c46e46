#ifndef GALLERY_ARROW_H
#define GALLERY_ARROW_H

#include "vtui/comp/objects/Dimension.h"
#include "vtui/comp/objects/Polygon_obj.h"

namespace gallery {

/// A filled triangle that points up or down.
class Arrow
{
  public:
    enum Direction { up, down };

    Arrow(Direction direction, VT::Comp::Dimension size, VT::Comp::Fill_attributes_obj& fill,
          VT::Comp::Line_attributes_obj& line)
    {
        const auto right = static_cast<short>(size.width - 1), bottom = static_cast<short>(size.height - 1);
        const short base = direction == up ? bottom : short{0};
        corners.points[0] = {short{0}, base};
        corners.points[1] = {right, base};
        corners.points[2] = {static_cast<short>(right / 2), static_cast<short>(bottom - base)};
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
