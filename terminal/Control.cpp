#include "terminal/Control.h"

#include <algorithm>
#include <iterator>

namespace terminal {

using Type = Iso::Object_type;

const Enable_bit* enable_bit(Object object)
{
    static constexpr Enable_bit bits[] = {
        {Type::button, Field::options, button_option::disabled, false},
        {Type::input_boolean, Field::enabled, 1, true},
        {Type::input_string, Field::enabled, 1, true},
        {Type::input_number, Field::options_2, 1, true},
        {Type::input_list, Field::options, 1, true},
    };
    const auto found =
        std::find_if(std::begin(bits), std::end(bits), [object](const Enable_bit& bit) { return object.is(bit.type); });
    return found == std::end(bits) ? nullptr : found;
}

bool is_enabled(Object object)
{
    const Enable_bit* const bit = enable_bit(object);
    return bit && ((object.u8(bit->field) & bit->mask) != 0) == bit->set_when_enabled;
}

bool may_enter(Object input, std::uint32_t value)
{
    switch (input.type()) {
    case Type::input_boolean:
        return value <= 1;
    case Type::input_number:
        return value >= input.u32(Field::minimum) && value <= input.u32(Field::maximum);
    case Type::input_list:
        return value < input.items().size();
    default:
        return false;
    }
}

} // namespace terminal
