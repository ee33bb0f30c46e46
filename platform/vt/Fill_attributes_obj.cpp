#include "vt/Fill_attributes_obj.h"

namespace VT {

namespace {
constexpr Attribute_info pattern_info{"fill_pattern", 3};
}

void Fill_attributes_obj::set_fill_pattern(Iso::Object_id picture) { change(pattern_info, fill_pattern, picture); }

void Fill_attributes_obj::visit(Attribute_visitor& visitor)
{
    visitor.attribute(Attribute_info::ranged("fill_type", 1, 3), type);
    visitor.attribute({"fill_colour", 2}, colour);
    visitor.attribute(pattern_info, fill_pattern);
    visit_macros(visitor);
}

} // namespace VT
