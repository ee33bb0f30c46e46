#ifndef VTUI_COMP_KEY_OBJ_H
#define VTUI_COMP_KEY_OBJ_H

#include "vt/Key_obj.h"
#include "vtui/comp/objects/Has_child_placements.h"
#include "vtui/comp/objects/Object.h"

namespace VT::Comp {

/// A soft key with key code 1.
class VTUI_EXPORT Key_obj : public Object, public Has_macros, public Has_child_placements, public VT::Key_obj
{
  public:
    Key_obj() : VT::Key_obj(NULL_ID, nullptr, 1, 1, 0, 0, nullptr, nullptr) {}
    ~Key_obj() override;

    /// A key code of 0 ends the process: it belongs to the key that acknowledges alarms.
    bool __set_by_spec(const VT::Client::Object_specification_interface& specification) override;
};

} // namespace VT::Comp

#endif
