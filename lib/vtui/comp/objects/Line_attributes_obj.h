#ifndef VTUI_COMP_LINE_ATTRIBUTES_OBJ_H
#define VTUI_COMP_LINE_ATTRIBUTES_OBJ_H

#include "vt/Line_attributes_obj.h"
#include "vtui/comp/objects/Object.h"

namespace VT::Comp {

class VTUI_EXPORT Line_attributes_obj : public Object, public Has_macros, public VT::Line_attributes_obj
{
  public:
    Line_attributes_obj(std::uint8_t line_colour, std::uint8_t line_width, std::uint16_t art)
        : VT::Line_attributes_obj(NULL_ID, nullptr, line_colour, line_width, art, 0)
    {}
    ~Line_attributes_obj() override;

    /// A line without width loses its line art first.
    bool check_scale_area(std::uint16_t a, std::uint16_t b, std::uint16_t c, std::uint16_t d) override;
};

} // namespace VT::Comp

#endif
