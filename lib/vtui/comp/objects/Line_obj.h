#ifndef VTUI_COMP_LINE_OBJ_H
#define VTUI_COMP_LINE_OBJ_H

#include "vt/Line_obj.h"
#include "vtui/comp/objects/Line_attributes_obj.h"
#include "vtui/comp/objects/Link.h"
#include "vtui/comp/objects/Object.h"

namespace VT::Comp {

class VTUI_EXPORT Line_obj : public Object, public Has_macros, public VT::Line_obj
{
  public:
    Line_obj(std::uint16_t line_width, std::uint16_t line_height, std::uint8_t line_direction)
        : VT::Line_obj(NULL_ID, nullptr, NULL_ID, line_width, line_height, line_direction, 0)
    {}
    ~Line_obj() override;

    void set_line(Line_attributes_obj* new_line)
    {
        set_link(*this, line, new_line, &VT::Line_obj::set_line_attributes);
    }

    bool __set_by_spec(const VT::Client::Object_specification_interface& specification) override;

    Line_attributes_obj* line{nullptr};
};

} // namespace VT::Comp

#endif
