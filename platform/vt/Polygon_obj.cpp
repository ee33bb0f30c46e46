#include "vt/Polygon_obj.h"

namespace VT {

namespace {
constexpr Attribute_info line_info{"line_attributes", 3};
constexpr Attribute_info fill_info{"fill_attributes", 4};
} // namespace

void Polygon_obj::set_line_attributes(Iso::Object_id line) { change(line_info, line_attributes, line); }
void Polygon_obj::set_fill_attributes(Iso::Object_id fill) { change(fill_info, fill_attributes, fill); }

void Polygon_obj::visit(Attribute_visitor& visitor)
{
    visit_size(visitor, 1);
    visitor.attribute(line_info, line_attributes);
    visitor.attribute(fill_info, fill_attributes);
    visitor.attribute(Attribute_info::ranged("polygon_type", 5, 3), type);
    visitor.count(num_points);
    visitor.count(num_macros);
    visitor.points(points, num_points);
    visitor.macros(macros, num_macros);
}

} // namespace VT
