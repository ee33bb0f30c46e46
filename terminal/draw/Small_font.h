#ifndef TERMINAL_DRAW_SMALL_FONT_H
#define TERMINAL_DRAW_SMALL_FONT_H

#include <array>
#include <cstdint>

namespace terminal {

inline constexpr int small_glyph_width = 5;
inline constexpr int small_glyph_height = 8;

/// The rows of a character, top down; the leftmost of five pixels is bit 4. Drawn by hand for the two font sizes that
/// are 8 pixels high, where no outline font is legible. Capitals are seven rows high. What ISO 8859-1 leaves undefined
/// is blank.
std::array<std::uint8_t, small_glyph_height> small_glyph(std::uint8_t character);

} // namespace terminal

#endif
