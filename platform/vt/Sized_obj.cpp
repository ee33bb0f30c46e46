#include "vt/Sized_obj.h"

#include "vt/Command.h"

namespace VT {

void visit_lists(Attribute_visitor& visitor, const Object_list& objects, const Macro_list& macros)
{
    visitor.count(objects.num_objects);
    visitor.count(macros.num_macros);
    visitor.objects(objects.objects, objects.num_objects);
    visitor.macros(macros.macros, macros.num_macros);
}

std::uint16_t Sized_obj::_get_width() const { return width; }
std::uint16_t Sized_obj::_get_height() const { return height; }

void Sized_obj::change_size(std::uint16_t new_width, std::uint16_t new_height)
{
    width = new_width;
    height = new_height;
    if (!is_live())
        return;
    Command(Iso::Function::change_size).u16(get_id()).u16(width).u16(height).send_to(*get_pool());
    width.set_told();
    height.set_told();
}

} // namespace VT
