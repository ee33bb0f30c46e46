#include "vtui/comp/widgets/Arrow_widget.h"

namespace VT::Comp {

namespace {

constexpr std::uint8_t open_polygon = 3;

/// A coordinate is kept signed and sent unsigned: beyond 32767, and at -1, it wraps twice.
std::pair<short, short> point(int x, int y) { return {position(x), position(y)}; }

} // namespace

Arrow_widget::Arrow_widget(Line_attributes_obj& line)
{
    polygon.vertices_ptr = &vertices;
    polygon.type = open_polygon;
    polygon.set_line(&line);
}

void Arrow_widget::set_size_left(Dimension d) { draw(d, 0, d.width - 1); }

void Arrow_widget::set_size_right(Dimension d) { draw(d, d.width - 1, 0); }

void Arrow_widget::draw(Dimension size, int tip, int ends)
{
    resize(polygon, size);
    vertices.points[0] = point(ends, 0);
    vertices.points[1] = point(tip, size.height / 2);
    vertices.points[2] = point(ends, size.height - 1);
    vertices.deref();
    polygon.upload(false);
}

} // namespace VT::Comp
