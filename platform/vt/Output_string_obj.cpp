#include "vt/Output_string_obj.h"

#include <limits>
#include <string>
#include <utility>

namespace VT {

void Output_string_obj::grow(std::uint16_t new_length)
{
    const std::string text(value.text(), value.num_chars());
    length = new_length;
    value.item_count = new_length;
    get_pool()->set_string(*this, text.c_str());
}

void Output_string_obj::hold(std::unique_ptr<char[]> buffer)
{
    held = std::move(buffer);
    value.buffer = held.get();
    value.set_changed();
}

bool Output_string_obj::__set_by_spec(const Client::Object_specification_interface& specification)
{
    const Client::Specified_value* const specified = specification.find("value");
    const std::string* const text = specified ? std::get_if<std::string>(specified) : nullptr;
    if (text && text->size() > length && text->size() <= std::numeric_limits<std::uint16_t>::max())
        grow(static_cast<std::uint16_t>(text->size()));
    return VT_obj::__set_by_spec(specification);
}

void Output_string_obj::visit(Attribute_visitor& visitor)
{
    visit_field(visitor, 7);
    visit_justification(visitor, 7);
    visitor.attribute({"value"}, value);
    visit_macros(visitor);
}

} // namespace VT
