#include "vtui/comp/objects/Picture_graphic_obj.h"

namespace VT::Comp {

Picture_graphic_obj::~Picture_graphic_obj() = default;

std::uint16_t Picture_graphic_obj::_get_height() const
{
    // A picture too high for 16 bits wraps.
    return static_cast<std::uint16_t>(actual_width ? std::uint32_t{width} * actual_height / actual_width : 0);
}

} // namespace VT::Comp
