#ifndef ISO11783_PALETTE_H
#define ISO11783_PALETTE_H

#include <array>
#include <cstdint>

namespace Iso {

/// The colour of a palette index as 0xRRGGBB: 16 named colours, the 6 × 6 × 6 cube from 16 to 231, and 24 greys of this
/// terminal's own, dark to light, from 232.
constexpr std::uint32_t palette_rgb(std::uint8_t colour)
{
    constexpr std::array<std::uint32_t, 16> named{
        0x000000, 0xFFFFFF, 0x009900, 0x009999, 0x990000, 0x990099, 0x999900, 0xCCCCCC,
        0x999999, 0x0000FF, 0x00FF00, 0x00FFFF, 0xFF0000, 0xFF00FF, 0xFFFF00, 0x000099,
    };
    if (colour < 16)
        return named[colour];
    if (colour < 232) {
        const std::uint32_t i = colour - 16u;
        return 51 * (i / 36) << 16 | 51 * (i / 6 % 6) << 8 | 51 * (i % 6);
    }
    return (8 + 10 * (colour - 232u)) * 0x010101;
}

} // namespace Iso

#endif
