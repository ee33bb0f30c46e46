#ifndef TERMINAL_HARDWARE_H
#define TERMINAL_HARDWARE_H

#include <cstddef>
#include <cstdint>

namespace terminal {

/// What the terminal tells of itself.
struct Hardware
{
    std::uint16_t mask_size = 480; ///< the data mask is a square of as many pixels
    std::uint8_t soft_key_width = 60;
    std::uint8_t soft_key_height = 60;
    std::uint8_t physical_soft_keys = 8;
    std::uint8_t virtual_soft_keys = 64;
    std::uint8_t boot_time = 0xFF;              ///< in seconds; 0xFF: not told
    std::uint8_t version = 4;                   ///< of the terminal's functions
    bool touch = true;                          ///< a touch screen and, with it, a pointing device
    std::size_t memory = std::size_t{16} << 20; ///< bytes of object records that the terminal takes
};

} // namespace terminal

#endif
