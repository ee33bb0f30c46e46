#include "vt/Mask_obj.h"

#include "vt/Command.h"

#include <algorithm>
#include <limits>

namespace VT {

void Parent_obj::set_background_colour(std::uint8_t colour) { change_background_colour(background_colour, colour); }

void Parent_obj::add_child(VT_obj& child, std::int16_t x, std::int16_t y)
{
    children.push_back(&child);
    Attribute_object_placement placement;
    placement.x = x;
    placement.y = y;
    placements.push_back(placement);
    if (objects) // the pool's list must not point where the placements lay before
        objects = placements.data();
}

void Parent_obj::write_children()
{
    const std::size_t most = std::min<std::size_t>(children.size(), std::numeric_limits<std::uint8_t>::max());
    std::size_t listed = 0;
    for (; listed < most && children[listed]->get_pool() == get_pool(); ++listed)
        placements[listed].object_id = children[listed]->get_id();
    objects = placements.data();
    num_objects = static_cast<std::uint8_t>(listed);
}

void Mask_obj::set_soft_key_mask(Soft_key_mask_obj* keys)
{
    soft_keys = keys;
    if (get_id() == NULL_ID)
        return;
    soft_key_mask = id_of(keys);
    const bool alarm = get_type() == Iso::Object_type::alarm_mask;
    if (tell(Command(Iso::Function::change_soft_key_mask).u8(alarm ? 2 : 1).u16(get_id()).u16(soft_key_mask)))
        soft_key_mask.set_told();
}

void Soft_key_mask_obj::visit(Attribute_visitor& visitor)
{
    visitor.attribute({"background_colour", 1}, background_colour);
    visitor.count(num_objects);
    visitor.count(num_macros);
    visitor.keys(objects, num_objects);
    visitor.macros(macros, num_macros);
}

void Data_mask_obj::visit(Attribute_visitor& visitor)
{
    visitor.attribute({"background_colour", 1}, background_colour);
    visitor.attribute({"soft_key_mask", 2}, soft_key_mask);
    visit_lists(visitor, *this, *this);
}

void Alarm_mask_obj::visit(Attribute_visitor& visitor)
{
    visitor.attribute({"background_colour", 1}, background_colour);
    visitor.attribute({"soft_key_mask", 2}, soft_key_mask);
    visitor.attribute(Attribute_info::ranged("priority", 3, 2), priority);
    visitor.attribute(Attribute_info::ranged("acoustic_signal", 4, 3), acoustic_signal);
    visit_lists(visitor, *this, *this);
}

} // namespace VT
