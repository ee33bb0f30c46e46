#include "vtui/comp/objects/Object_pointer_obj.h"

namespace VT::Comp {

Object_pointer_obj::~Object_pointer_obj() = default;

std::uint16_t Object_pointer_obj::_get_width() const { return target ? target->get_width() : std::uint16_t{0}; }
std::uint16_t Object_pointer_obj::_get_height() const { return target ? target->get_height() : std::uint16_t{0}; }

} // namespace VT::Comp
