#include "vt/Button_obj.h"

#include "vt/Command.h"

namespace VT {

namespace {}

void Button_obj::set_background_colour(std::uint8_t colour) { change_background_colour(background_colour, colour); }

void Button_obj::set_enabled(bool enable)
{
    options = static_cast<std::uint8_t>(enable ? options & ~disabled : options | disabled);
    if (tell(Command(Iso::Function::enable_disable).u16(get_id()).u8(enable)))
        options.set_told();
}

void Button_obj::visit(Attribute_visitor& visitor)
{
    visit_size(visitor, 1);
    visitor.attribute({"background_colour", 3}, background_colour);
    visitor.attribute({"border_colour", 4}, border_colour);
    visitor.attribute({"key_code", 5}, key_code);
    visitor.attribute(Attribute_info::ranged("options", 6, 63), options);
    visit_lists(visitor, *this, *this);
}

} // namespace VT
