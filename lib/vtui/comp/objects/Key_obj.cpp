#include "vtui/comp/objects/Key_obj.h"

#include "util/Fatal.h"

namespace VT::Comp {

Key_obj::~Key_obj() = default;

bool Key_obj::__set_by_spec(const VT::Client::Object_specification_interface& specification)
{
    const bool done = VT::Key_obj::__set_by_spec(specification);
    if (key_code == 0)
        Fatal::configuration(std::string("Key '") + get_name() + "' has a key code of 0");
    return done;
}

} // namespace VT::Comp
