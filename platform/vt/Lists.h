#ifndef VT_LISTS_H
#define VT_LISTS_H

#include "vt/Attribute_visitor.h"

#include <cstdint>

namespace VT {

/// A parent's children as its record lists them. The pool writes the list; whoever placed the children owns it.
struct VTUI_EXPORT Object_list
{
    Attribute_object_placement* objects;
    std::uint8_t num_objects;
};

/// The macros of an object; the list is not owned.
struct VTUI_EXPORT Macro_list
{
    const Macro_reference* macros;
    std::uint8_t num_macros;

    void visit_macros(Attribute_visitor& visitor) const
    {
        visitor.count(num_macros);
        visitor.macros(macros, num_macros);
    }
};

/// Children and macros as they stand at the end of a parent's record: both counts, then both lists.
VTUI_EXPORT void visit_lists(Attribute_visitor& visitor, const Object_list& objects, const Macro_list& macros);

} // namespace VT

#endif
