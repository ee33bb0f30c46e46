#include "vtui/comp/objects/Has_child_placements.h"

#include "util/Fatal.h"

#include <string>

namespace VT::Comp {

void Child_placements::no_child(std::string_view function)
{
    // Compilers spell the function differently, but all end with the array's name and a bracket.
    constexpr std::string_view mark = "Array_type = ";
    function.remove_prefix(function.rfind(mark) + mark.size());
    const std::string name =
        "void VT::Comp::Child_placements_array<Array_type>::deref() [with Array_type = " + std::string(function);
    Fatal::assertion("false", "../../../../lib/vtui/comp/objects/Has_child_placements", 213, name.c_str());
}

} // namespace VT::Comp
