#ifndef VT_EVENT_H
#define VT_EVENT_H

#include "iso11783/Function.h"
#include "iso11783/Object_type.h"

#include <cstdint>

namespace VT {

/// The operator did something with a soft key.
struct Soft_key_activation_event
{
    Iso::Activation activation_code;
    Iso::Object_id object_id; ///< the key
    Iso::Object_id mask_id;   ///< the mask that shows it
    std::uint8_t key_code;
};

/// The operator did something with a button.
struct Button_activation_event
{
    Iso::Activation activation_code;
    Iso::Object_id object_id; ///< the button
    Iso::Object_id mask_id;   ///< the mask that shows it
    std::uint8_t key_code;
};

/// The operator entered a number.
struct VT_change_numeric_value_event
{
    Iso::Object_id object_id; ///< the input object
    std::uint32_t value;      ///< raw units
};

/// What a terminal says about itself: its answer to Get Hardware, field by field. Byte 0 is the function.
struct VT_information
{
    static constexpr std::uint8_t touch_screen = 1; ///< among the options

    std::uint8_t boot_time;    ///< byte 1: seconds until it is ready; 255 if it does not say
    std::uint32_t code;        ///< byte 2, the kind of graphics: 0 two colours, 1 sixteen, 2 256; others a maker's own
    std::uint8_t options;      ///< byte 3, the hardware: bit 0 a touch screen, bit 1 a pointer
    std::uint16_t mask_width;  ///< bytes 4 and 5: pixels
    std::uint16_t mask_height; ///< bytes 6 and 7: pixels

    bool has_pixels() const { return mask_width != 0 && mask_height != 0; }
};

/// Names the events that a component's handle_event() takes, as its type Handled_events. A class derived from it that
/// hides one of them by a handle_event() of its own does not compile where it is routed, instead of losing events.
template <class... Events>
struct Event_list
{};

} // namespace VT

#endif
