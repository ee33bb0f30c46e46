#ifndef VTUI_COMP_FILL_ATTRIBUTES_OBJ_H
#define VTUI_COMP_FILL_ATTRIBUTES_OBJ_H

#include "vt/Fill_attributes_obj.h"
#include "vtui/comp/objects/Link.h"
#include "vtui/comp/objects/Object.h"
#include "vtui/comp/objects/Picture_graphic_obj.h"

namespace VT::Comp {

class VTUI_EXPORT Fill_attributes_obj : public Object, public Has_macros, public VT::Fill_attributes_obj
{
  public:
    Fill_attributes_obj(std::uint8_t fill_type, std::uint8_t fill_colour)
        : VT::Fill_attributes_obj(NULL_ID, nullptr, fill_type, fill_colour, NULL_ID, 0)
    {}
    ~Fill_attributes_obj() override;

    void set_pattern(Picture_graphic_obj* new_pattern)
    {
        set_link(*this, pattern, new_pattern, &VT::Fill_attributes_obj::set_fill_pattern);
    }

    /// A fill has no area to check.
    bool check_scale_area(std::uint16_t a, std::uint16_t b, std::uint16_t c, std::uint16_t d) override;
    /// Only fill type 3 has a pattern, and it must have one: a picture whose width is a multiple of 8. All else ends
    /// the process.
    bool __set_by_spec(const VT::Client::Object_specification_interface& specification) override;

    Picture_graphic_obj* pattern{nullptr};
};

} // namespace VT::Comp

#endif
