#include "vt/Lists.h"

namespace VT {

void visit_lists(Attribute_visitor& visitor, const Object_list& objects, const Macro_list& macros)
{
    visitor.count(objects.num_objects);
    visitor.count(macros.num_macros);
    visitor.objects(objects.objects, objects.num_objects);
    visitor.macros(macros.macros, macros.num_macros);
}

} // namespace VT
