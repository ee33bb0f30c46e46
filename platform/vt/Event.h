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

/// What a terminal says about itself.
struct VT_information
{
    std::uint8_t boot_time;    ///< seconds until it is ready; 255 if it does not say
    std::uint8_t graphic_mode; ///< 0 two colours, 1 sixteen, 2 two hundred and fifty-six
    std::uint8_t hardware;     ///< its options, a bit each
    std::uint16_t mask_width;  ///< pixels
    std::uint16_t mask_height; ///< pixels
};

} // namespace VT

#endif
