#include "vt/Input_number_obj.h"

#include "vt/Command.h"

namespace VT {

namespace {
constexpr Attribute_info min_info{"min_value", 7};
constexpr Attribute_info max_info{"max_value", 8};
} // namespace

void Input_number_obj::set_enabled(bool enable)
{
    options_2 = static_cast<std::uint8_t>(enable ? options_2 | enabled : options_2 & ~enabled);
    if (tell(Command(Iso::Function::enable_disable).u16(get_id()).u8(enable)))
        options_2.set_told();
}

void Input_number_obj::set_min_value(std::uint32_t raw) { change(min_info, min_value, raw); }
void Input_number_obj::set_max_value(std::uint32_t raw) { change(max_info, max_value, raw); }

void Input_number_obj::visit(Attribute_visitor& visitor)
{
    visit_field(visitor, 15);
    visitor.attribute({"value"}, value);
    visitor.attribute(min_info, min_value);
    visitor.attribute(max_info, max_value);
    visit_format(visitor);
    visitor.attribute(Attribute_info::ranged("options_2", 15, 3), options_2);
    visit_macros(visitor);
}

} // namespace VT
