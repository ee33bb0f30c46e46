#include "vt/Rectangle_obj.h"

namespace VT {

namespace {
constexpr Attribute_info line_info{"line_attributes", 1};
constexpr Attribute_info fill_info{"fill_attributes", 5};
} // namespace

void Rectangle_obj::set_line_attributes(Iso::Object_id line) { change(line_info, line_attributes, line); }
void Rectangle_obj::set_fill_attributes(Iso::Object_id fill) { change(fill_info, fill_attributes, fill); }

void Rectangle_obj::visit(Attribute_visitor& visitor)
{
    visitor.attribute(line_info, line_attributes);
    visit_size(visitor, 2);
    visitor.attribute(Attribute_info::ranged("line_suppression", 4, 15), line_suppression);
    visitor.attribute(fill_info, fill_attributes);
    visit_macros(visitor);
}

} // namespace VT
