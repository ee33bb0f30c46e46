#ifndef TERMINAL_DRAW_TEXT_H
#define TERMINAL_DRAW_TEXT_H

#include "terminal/draw/Canvas.h"
#include "terminal/draw/Glyphs.h"

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace terminal {

/// Font styles, bits.
enum Font_style : std::uint8_t { bold = 1, crossed_out = 2, underlined = 4, italic = 8 };

struct Font
{
    std::uint8_t colour = 0;
    std::uint8_t size = 0; ///< code
    std::uint8_t style = 0;
};

/// Where a text breaks. It always breaks at a carriage return, a line feed, or both in this order.
struct Wrapping
{
    bool at_spaces = false;
    bool after_hyphens = false; ///< counts only together with at_spaces
};

/// Takes the first line off `rest`, without the spaces at its end and what it was broken at. Lines that wrap are at
/// most `columns` long; a word longer than that is cut.
std::string_view take_line(std::string_view& rest, std::size_t columns, Wrapping wrapping);

/// Draws a text into a field as large as given, from the view's top left corner; what does not fit is cut.
/// `justification` is coded as in an object: bits 0-1 left, middle, right; bits 2-3 top, middle, bottom. A NUL ends the
/// text. Does not fill the background.
void draw_text(const View& view, Glyphs& glyphs, std::string_view text, const Font& font, int width, int height,
               std::uint8_t justification, Wrapping wrapping);

} // namespace terminal

#endif
