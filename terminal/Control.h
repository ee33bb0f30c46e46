#ifndef TERMINAL_CONTROL_H
#define TERMINAL_CONTROL_H

#include "terminal/Object.h"

#include <cstdint>

namespace terminal {

namespace button_option {
inline constexpr unsigned latchable = 1, latched = 2, suppress_border = 4, transparent = 8, disabled = 16,
                          no_border = 32;
}

/// Where a control (a button, an input) keeps whether the operator may use it.
struct Enable_bit
{
    Iso::Object_type type;
    Field field;
    std::uint8_t mask;
    bool set_when_enabled;
};

/// The enable bit of an object, or nullptr if it is not a control.
const Enable_bit* enable_bit(Object object);

/// Whether the object is a control that the operator may use.
bool is_enabled(Object object);

/// Whether the operator may enter this number: 0 or 1 in an input boolean, from minimum to maximum in an input number,
/// the index of an item in an input list.
bool may_enter(Object input, std::uint32_t value);

} // namespace terminal

#endif
