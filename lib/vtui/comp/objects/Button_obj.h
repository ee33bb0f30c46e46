#ifndef VTUI_COMP_BUTTON_OBJ_H
#define VTUI_COMP_BUTTON_OBJ_H

#include "vt/Button_obj.h"
#include "vtui/comp/objects/Has_child_placements.h"
#include "vtui/comp/objects/Object.h"

namespace VT::Comp {

/// A button, 200 × 200 until its component sizes it.
class VTUI_EXPORT Button_obj : public Object, public Has_macros, public Has_child_placements, public VT::Button_obj
{
  public:
    Button_obj() : VT::Button_obj(NULL_ID, nullptr, 200, 200, 0, 0, 1, 0, 0, 0, nullptr, nullptr) {}
    ~Button_obj() override;
};

} // namespace VT::Comp

#endif
