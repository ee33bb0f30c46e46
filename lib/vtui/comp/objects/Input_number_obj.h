#ifndef VTUI_COMP_INPUT_NUMBER_OBJ_H
#define VTUI_COMP_INPUT_NUMBER_OBJ_H

#include "vt/Input_number_obj.h"
#include "vtui/comp/objects/Font_attributes_obj.h"
#include "vtui/comp/objects/Link.h"
#include "vtui/comp/objects/Object.h"

namespace VT::Comp {

/// A number that the operator can change.
class VTUI_EXPORT Input_number_obj : public Has_macros, public Object, public VT::Input_number_obj
{
  public:
    Input_number_obj()
        : VT::Input_number_obj(NULL_ID, nullptr, 0, 0, 0, NULL_ID, 0, NULL_ID, 0, 0, 0, 0, 1.0F, 0, 0, 0, 0, 0)
    {}
    ~Input_number_obj() override;

    void set_font(VT::Font_attributes_obj* new_font)
    {
        set_link(*this, font, new_font, &VT::Input_number_obj::set_font_attributes);
    }

    VT::Font_attributes_obj* font{nullptr};
};

} // namespace VT::Comp

#endif
