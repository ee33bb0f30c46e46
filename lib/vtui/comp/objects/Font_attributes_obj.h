#ifndef VTUI_COMP_FONT_ATTRIBUTES_OBJ_H
#define VTUI_COMP_FONT_ATTRIBUTES_OBJ_H

#include "vt/Font_attributes_obj.h"
#include "vtui/comp/objects/Object.h"

namespace VT::Comp {

class VTUI_EXPORT Font_attributes_obj : public Object, public Has_macros, public VT::Font_attributes_obj
{
  public:
    Font_attributes_obj() : VT::Font_attributes_obj(NULL_ID, nullptr, 0, 1, 0, 0, 0) {}
    ~Font_attributes_obj() override;
};

} // namespace VT::Comp

#endif
