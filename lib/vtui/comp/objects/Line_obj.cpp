#include "vtui/comp/objects/Line_obj.h"

namespace VT::Comp {

Line_obj::~Line_obj() = default;

bool Line_obj::__set_by_spec(const VT::Client::Object_specification_interface& specification)
{
    const bool done = VT::Line_obj::__set_by_spec(specification);
    attribute_null_check(line_attributes, "line_attributes");
    return done;
}

} // namespace VT::Comp
