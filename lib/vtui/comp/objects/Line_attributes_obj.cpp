#include "vtui/comp/objects/Line_attributes_obj.h"

namespace VT::Comp {

Line_attributes_obj::~Line_attributes_obj() = default;

bool Line_attributes_obj::check_scale_area(std::uint16_t a, std::uint16_t b, std::uint16_t c, std::uint16_t d)
{
    if (width == 0)
        line_art = 0;
    return VT::Line_attributes_obj::check_scale_area(a, b, c, d);
}

} // namespace VT::Comp
