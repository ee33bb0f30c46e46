#ifndef VTUI_COMP_OBJECT_POINTER_OBJ_H
#define VTUI_COMP_OBJECT_POINTER_OBJ_H

#include "vt/Object_pointer_obj.h"
#include "vtui/comp/objects/Link.h"
#include "vtui/comp/objects/Object.h"

namespace VT::Comp {

/// Shows another object in its place. Its size is that of the object.
class VTUI_EXPORT Object_pointer_obj : public Object, public VT::Object_pointer_obj
{
  public:
    Object_pointer_obj() : VT::Object_pointer_obj(NULL_ID, nullptr, NULL_ID) {}
    ~Object_pointer_obj() override;

    /// Points at another object, or at nothing.
    void set_target(VT::VT_obj* new_target) { set_link(*this, target, new_target, &VT::Object_pointer_obj::set_value); }

    std::uint16_t _get_width() const override;
    std::uint16_t _get_height() const override;

    VT::VT_obj* target{nullptr};
};

} // namespace VT::Comp

#endif
