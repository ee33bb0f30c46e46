#include "vtui/comp/objects/Object.h"

#include "util/Fatal.h"

namespace VT::Comp {

Object::Object(const Object&)
{
    Fatal::assertion("false", "../../../../lib/vtui/comp/objects/Object", 165,
                     "VT::Comp::Object::Object(const VT::Comp::Object&)");
}

} // namespace VT::Comp
