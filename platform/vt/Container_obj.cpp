#include "vt/Container_obj.h"

#include "vt/Command.h"

#include <algorithm>

namespace VT {

void Container_obj::set_hidden(bool hide)
{
    hidden = hide;
    if (tell(Command(Iso::Function::hide_show).u16(get_id()).u8(!hide)))
        hidden.set_told();
}

void Container_obj::set_child_location(std::uint8_t index, std::int16_t x, std::int16_t y)
{
    if (index >= num_objects)
        return;
    Attribute_object_placement& child = objects[index];
    child.x = x;
    child.y = y;
    const auto same_child = [&](const Attribute_object_placement& other) { return other.object_id == child.object_id; };
    if (std::count_if(objects, objects + num_objects, same_child) > 1)
        return upload(true);
    if (tell(Command(Iso::Function::change_child_position).u16(get_id()).u16(child.object_id).s16(x).s16(y))) {
        child.x.set_told();
        child.y.set_told();
    }
}

void Container_obj::set_child_location(std::uint8_t index, Iso::Object_id child, std::int16_t x, std::int16_t y,
                                       bool always)
{
    if (index >= num_objects)
        return;
    objects[index].object_id = child;
    objects[index].x = x;
    objects[index].y = y;
    upload(always);
}

void Container_obj::visit(Attribute_visitor& visitor)
{
    visit_size(visitor, 1);
    visitor.attribute(Attribute_info::ranged("hidden", 0, 1), hidden);
    visit_lists(visitor, *this, *this);
}

} // namespace VT
