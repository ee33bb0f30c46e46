#include "vt/Working_set_obj.h"

#include "vt/Command.h"

#include <algorithm>
#include <limits>

namespace VT {

void Working_set_obj::add_mask(Mask_obj& mask)
{
    if (std::find(masks.begin(), masks.end(), &mask) == masks.end())
        masks.push_back(&mask);
}

void Working_set_obj::set_active_mask(Mask_obj& mask)
{
    active = &mask;
    add_mask(mask);
    if (get_id() == NULL_ID)
        return;
    active_mask = id_of(&mask);
    if (tell(Command(Iso::Function::change_active_mask).u16(get_id()).u16(active_mask)))
        active_mask.set_told();
}

void Working_set_obj::add_language(const char (&code)[3])
{
    if (languages.size() / 2 < std::numeric_limits<std::uint8_t>::max())
        languages.append(code, 2);
}

void Working_set_obj::visit(Attribute_visitor& visitor)
{
    visitor.attribute({"background_colour", 1}, background_colour);
    visitor.attribute(Attribute_info::ranged("selectable", 2, 1), selectable);
    visitor.attribute({"active_mask", 3}, active_mask);
    visitor.count(num_objects);
    visitor.count(num_macros);
    visitor.count(static_cast<std::uint8_t>(languages.size() / 2));
    visitor.objects(objects, num_objects);
    visitor.macros(macros, num_macros);
    visitor.raw(languages.data(), languages.size());
}

} // namespace VT
