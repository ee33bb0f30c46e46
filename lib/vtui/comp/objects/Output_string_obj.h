#ifndef VTUI_COMP_OUTPUT_STRING_OBJ_H
#define VTUI_COMP_OUTPUT_STRING_OBJ_H

#include "vt/Output_string_obj.h"
#include "vt/String_variable_obj.h"
#include "vtui/comp/objects/Font_attributes_obj.h"
#include "vtui/comp/objects/Link.h"
#include "vtui/comp/objects/Object.h"

namespace VT::Comp {

/// A text of its own, or that of a string variable.
class VTUI_EXPORT Output_string_obj : public Has_macros, public Object, public VT::Output_string_obj
{
  public:
    Output_string_obj() : VT::Output_string_obj(NULL_ID, nullptr, 0, 0, 1, NULL_ID, 0, NULL_ID, 0, 0, nullptr, 0) {}
    ~Output_string_obj() override;

    void set_font(VT::Font_attributes_obj* new_font)
    {
        set_link(*this, font, new_font, &VT::Output_string_obj::set_font_attributes);
    }
    void set_variable(VT::String_variable_obj* new_variable)
    {
        set_link(*this, variable, new_variable, &VT::Output_string_obj::set_variable_reference);
    }

    /// Grows the value to a specified "length". A value beside a variable, or a variable that is no string variable,
    /// ends the process.
    bool __set_by_spec(const VT::Client::Object_specification_interface& specification) override;

    VT::Font_attributes_obj* font{nullptr};
    VT::String_variable_obj* variable{nullptr};
};

} // namespace VT::Comp

#endif
