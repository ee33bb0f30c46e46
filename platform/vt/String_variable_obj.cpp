#include "vt/String_variable_obj.h"

#include "vt/Command.h"

#include <algorithm>

namespace VT {

void String_variable_obj::set_string(std::uint16_t offset, const char* text, unsigned length)
{
    const std::uint16_t from = std::min(offset, value.item_count);
    const auto copied = static_cast<std::uint16_t>(std::min(length, static_cast<unsigned>(value.item_count - from)));
    char* const end = std::copy_n(text, copied, value.buffer + from);
    if (from + copied < value.item_count)
        *end = '\0';
    value.set_changed();
    if (!is_live())
        return;
    Command(Iso::Function::change_string_value)
        .u16(get_id())
        .u16(num_chars())
        .send_to(*get_pool(), value.buffer, num_chars());
    value.set_told();
}

void String_variable_obj::visit(Attribute_visitor& visitor) { visitor.attribute({"value"}, value); }

} // namespace VT
