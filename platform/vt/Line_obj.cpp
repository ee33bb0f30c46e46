#include "vt/Line_obj.h"

namespace VT {

namespace {
constexpr Attribute_info line_info{"line_attributes", 1};
}

void Line_obj::set_line_attributes(Iso::Object_id line) { change(line_info, line_attributes, line); }

void Line_obj::visit(Attribute_visitor& visitor)
{
    visitor.attribute(line_info, line_attributes);
    visit_size(visitor, 2);
    visitor.attribute(Attribute_info::ranged("line_direction", 4, 1), direction);
    visit_macros(visitor);
}

} // namespace VT
