#include "vt/Line_attributes_obj.h"

namespace VT {

void Line_attributes_obj::visit(Attribute_visitor& visitor)
{
    visitor.attribute({"line_colour", 1}, colour);
    visitor.attribute({"line_width", 2}, width);
    visitor.attribute({"line_art", 3}, line_art);
    visit_macros(visitor);
}

} // namespace VT
