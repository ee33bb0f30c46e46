#ifndef VT_OBJECT_POINTER_OBJ_H
#define VT_OBJECT_POINTER_OBJ_H

#include "vt/VT_obj.h"

namespace VT {

/// Stands in for another object, which it can exchange at any time.
class VTUI_EXPORT Object_pointer_obj : public VT_obj
{
  public:
    Object_pointer_obj(Iso::Object_id id, const char* name, Iso::Object_id target)
        : VT_obj(id, name, Iso::Object_type::object_pointer), value(target)
    {}

    Attribute_object_id_spec value; ///< the object shown; the null id shows nothing

    /// Shows another object; sends Change Numeric Value if the pool is live.
    void set_value(Iso::Object_id target);

    void visit(Attribute_visitor& visitor) override;
};

} // namespace VT

#endif
