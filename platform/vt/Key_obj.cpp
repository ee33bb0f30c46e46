#include "vt/Key_obj.h"

namespace VT {

void Key_obj::set_background_colour(std::uint8_t colour) { change_background_colour(background_colour, colour); }

void Key_obj::visit(Attribute_visitor& visitor)
{
    visitor.attribute({"background_colour", 1}, background_colour);
    visitor.attribute({"key_code", 2}, key_code);
    visit_lists(visitor, *this, *this);
}

} // namespace VT
