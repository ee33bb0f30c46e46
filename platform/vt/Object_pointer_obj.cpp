#include "vt/Object_pointer_obj.h"

namespace VT {

void Object_pointer_obj::set_value(Iso::Object_id target) { change_numeric_value(value, target); }

void Object_pointer_obj::visit(Attribute_visitor& visitor) { visitor.attribute({"value", 1}, value); }

} // namespace VT
