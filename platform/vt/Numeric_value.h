#ifndef VT_NUMERIC_VALUE_H
#define VT_NUMERIC_VALUE_H

#include "vt/Command.h"
#include "vt/VT_obj.h"

namespace VT {

/// Sets the value of a number or an object pointer and sends Change Numeric Value if its pool is live.
template <typename Value_attribute, typename T>
void change_numeric_value(const VT_obj& object, Value_attribute& attribute, T value)
{
    attribute = value;
    Client::Object_pool_interface* const pool = object.get_pool();
    if (!pool || !pool->is_live())
        return;
    Command(Iso::Function::change_numeric_value).u16(object.get_id()).u8(0xFF).u32(value).send_to(*pool);
    attribute.set_told();
}

} // namespace VT

#endif
