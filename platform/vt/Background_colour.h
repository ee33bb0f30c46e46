#ifndef VT_BACKGROUND_COLOUR_H
#define VT_BACKGROUND_COLOUR_H

#include "vt/Command.h"
#include "vt/VT_obj.h"

namespace VT {

/// Sets an object's background colour and sends Change Background Colour if its pool is live.
inline void change_background_colour(const VT_obj& object, Attribute_colour& attribute, std::uint8_t colour)
{
    attribute = colour;
    Client::Object_pool_interface* const pool = object.get_pool();
    if (!pool || !pool->is_live())
        return;
    Command(Iso::Function::change_background_colour).u16(object.get_id()).u8(colour).send_to(*pool);
    attribute.set_told();
}

} // namespace VT

#endif
