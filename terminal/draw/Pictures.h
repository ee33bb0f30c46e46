#ifndef TERMINAL_DRAW_PICTURES_H
#define TERMINAL_DRAW_PICTURES_H

#include "terminal/draw/Canvas.h"

#include <cstddef>
#include <cstdint>

namespace terminal {

/// A picture as it came in: rows of packed palette indices, each row starting on a byte, perhaps in runs of equal
/// bytes. The bytes are someone else's. Whatever they are, nothing outside them is read; pixels that they do not tell
/// stay undrawn.
struct Picture
{
    const std::uint8_t* data = nullptr;
    std::size_t size = 0;
    int width = 0; ///< actual size
    int height = 0;
    int bits = 8; ///< a pixel: 1, 4 or 8
    bool runs = false;
    int transparent = -1; ///< palette index that is not drawn, or -1
};

/// As high as the width makes it, the proportions kept; rounded down.
int drawn_height(const Picture& picture, int drawn_width);

/// Draws the picture `drawn_width` wide at the view's top left corner. Each pixel shows the nearest one above and left
/// of its place in the picture.
void draw_picture(const View& view, const Picture& picture, int drawn_width);

/// Fills the view with the picture at its actual size, over and over from the view's top left corner.
void tile_picture(const View& view, const Picture& picture);

} // namespace terminal

#endif
