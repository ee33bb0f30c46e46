#ifndef ISO11783_FONT_SIZE_H
#define ISO11783_FONT_SIZE_H

#include <array>
#include <cstddef>
#include <cstdint>

namespace Iso {

struct Font_size
{
    std::uint8_t width;  ///< pixels a character is wide
    std::uint8_t height; ///< pixels a line is high
};

/// The fifteen non-proportional font sizes by their code.
inline constexpr std::array<Font_size, 15> font_sizes{{
    {6, 8},
    {8, 8},
    {8, 12},
    {12, 16},
    {16, 16},
    {16, 24},
    {24, 32},
    {32, 32},
    {32, 48},
    {48, 64},
    {64, 64},
    {64, 96},
    {96, 128},
    {128, 128},
    {128, 192},
}};

/// The size behind a font size code; a code beyond the table gives 0 × 0.
constexpr Font_size font_size(std::uint8_t code)
{
    return code < font_sizes.size() ? font_sizes[code] : Font_size{0, 0};
}

} // namespace Iso

#endif
