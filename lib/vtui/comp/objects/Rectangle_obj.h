#ifndef VTUI_COMP_RECTANGLE_OBJ_H
#define VTUI_COMP_RECTANGLE_OBJ_H

#include "vt/Rectangle_obj.h"
#include "vtui/comp/objects/Fill_attributes_obj.h"
#include "vtui/comp/objects/Line_attributes_obj.h"
#include "vtui/comp/objects/Link.h"
#include "vtui/comp/objects/Object.h"

namespace VT::Comp {

class VTUI_EXPORT Rectangle_obj : public Object, public Has_macros, public VT::Rectangle_obj
{
  public:
    Rectangle_obj() : VT::Rectangle_obj(NULL_ID, nullptr, NULL_ID, 0, 0, 0, NULL_ID, 0) {}
    ~Rectangle_obj() override;

    void set_fill(Fill_attributes_obj* new_fill)
    {
        set_link(*this, fill, new_fill, &VT::Rectangle_obj::set_fill_attributes);
    }
    void set_line(Line_attributes_obj* new_line)
    {
        set_link(*this, line, new_line, &VT::Rectangle_obj::set_line_attributes);
    }

    bool __set_by_spec(const VT::Client::Object_specification_interface& specification) override;

    Fill_attributes_obj* fill{nullptr};
    Line_attributes_obj* line{nullptr};
};

} // namespace VT::Comp

#endif
