#include "pool/Names.h"

#include "vt/Iso_object_base.h"

#include <array>
#include <cstddef>

namespace VT {

namespace {

/// By type code.
constexpr std::array class_names{
    "working set",
    "data mask",
    "alarm mask",
    "container",
    "soft key mask",
    "key",
    "button",
    "input boolean",
    "input string",
    "input number",
    "input list",
    "output string",
    "output number",
    "line",
    "rectangle",
    "ellipse",
    "polygon",
    "object",
    "object",
    "object",
    "picture graphic",
    "number variable",
    "string variable",
    "font attributes",
    "line attributes",
    "fill attributes",
    "input attributes",
    "object pointer",
    "macro",
};

std::string class_of(const Iso::Iso_object_base& object)
{
    const auto type = static_cast<std::size_t>(object.get_type());
    return type < class_names.size() ? class_names[type] : "object";
}

} // namespace

std::string name_of(const Iso::Iso_object_base& object)
{
    return *object.get_name() ? object.get_name() : describe(object);
}

std::string describe(const Iso::Iso_object_base& object)
{
    const bool has_name = *object.get_name();
    std::string text = class_of(object);
    if (has_name)
        text.append(" '").append(object.get_name()).append("'");
    if (object.get_id() == Iso::null_id)
        return text;
    const std::string id = std::to_string(object.get_id());
    return text + (has_name ? " (" + id + ")" : " " + id);
}

std::string name_of(Iso::Function function)
{
    using Iso::Function;
    switch (function) {
    case Function::object_pool_transfer:
        return "Object Pool Transfer";
    case Function::end_of_object_pool:
        return "End of Object Pool";
    case Function::hide_show:
        return "Hide/Show";
    case Function::enable_disable:
        return "Enable/Disable";
    case Function::change_child_location:
        return "Change Child Location";
    case Function::change_size:
        return "Change Size";
    case Function::change_background_colour:
        return "Change Background Colour";
    case Function::change_numeric_value:
        return "Change Numeric Value";
    case Function::change_active_mask:
        return "Change Active Mask";
    case Function::change_soft_key_mask:
        return "Change Soft Key Mask";
    case Function::change_attribute:
        return "Change Attribute";
    case Function::change_string_value:
        return "Change String Value";
    case Function::change_child_position:
        return "Change Child Position";
    case Function::get_memory:
        return "Get Memory";
    case Function::get_hardware:
        return "Get Hardware";
    case Function::working_set_maintenance:
        return "Working Set Maintenance";
    default:
        return "function " + std::to_string(static_cast<unsigned>(function));
    }
}

} // namespace VT
