#include "vtui/comp/objects/Rectangle_obj.h"

namespace VT::Comp {

Rectangle_obj::~Rectangle_obj() = default;

bool Rectangle_obj::__set_by_spec(const VT::Client::Object_specification_interface& specification)
{
    const bool done = VT::Rectangle_obj::__set_by_spec(specification);
    attribute_null_check(line_attributes, "line_attributes");
    return done;
}

} // namespace VT::Comp
