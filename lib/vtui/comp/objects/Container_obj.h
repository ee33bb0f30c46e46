#ifndef VTUI_COMP_CONTAINER_OBJ_H
#define VTUI_COMP_CONTAINER_OBJ_H

#include "vt/Container_obj.h"
#include "vtui/comp/objects/Has_child_placements.h"
#include "vtui/comp/objects/Object.h"

namespace VT::Comp {

/// A container, 240 × 240 until its component sizes it.
class VTUI_EXPORT Container_obj : public Object,
                                  public Has_child_placements,
                                  public Has_macros,
                                  public VT::Container_obj
{
  public:
    Container_obj() : VT::Container_obj(NULL_ID, nullptr, 240, 240, 0, 0, 0, nullptr, nullptr) {}
    ~Container_obj() override;
};

} // namespace VT::Comp

#endif
