#include "vtui/comp/objects/Polygon_obj.h"

namespace VT::Comp {

namespace {

/// The product of two 16-bit numbers needs the room.
std::uint16_t scaled(std::uint16_t coordinate, std::uint16_t to, std::uint16_t from)
{
    return static_cast<std::uint16_t>(std::int64_t{coordinate} * to / from);
}

} // namespace

Polygon_obj::~Polygon_obj() = default;

void Polygon_obj::__set_scale(std::uint16_t a, std::uint16_t b, std::uint16_t c, std::uint16_t d)
{
    for (std::size_t i = 0; i < num_points; ++i) {
        points[i].x = scaled(points[i].x, a, c);
        points[i].y = scaled(points[i].y, b, d);
    }
    VT::Polygon_obj::__set_scale(a, b, c, d);
}

} // namespace VT::Comp
