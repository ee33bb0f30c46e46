#include "vt/Output_number_obj.h"

namespace VT {

void Output_number_obj::visit(Attribute_visitor& visitor)
{
    visit_field(visitor, 15);
    visitor.attribute({"value"}, value);
    visit_format(visitor);
    visit_macros(visitor);
}

} // namespace VT
