#ifndef TESTS_TERMINAL_DRAW_ASCII_H
#define TESTS_TERMINAL_DRAW_ASCII_H

#include "terminal/draw/Canvas.h"

#include <QImage>

#include <algorithm>
#include <string>

namespace terminal {

/// A canvas as text: '.' is colour 0, '#' colour 1, other colours are digits and letters. Starts with a line feed, so
/// that a raw string literal can begin on a line of its own.
inline std::string ascii(const Canvas& canvas)
{
    constexpr char colours[] = ".#23456789abcdefghijklmnopqrstuvwxyz";
    std::string text = "\n";
    for (int y = 0; y < canvas.height(); ++y) {
        for (int x = 0; x < canvas.width(); ++x)
            text += canvas.row(y)[x] < sizeof colours - 1 ? colours[canvas.row(y)[x]] : '?';
        text += '\n';
    }
    return text;
}

/// The same of an image of palette indices.
inline std::string ascii(const QImage& image)
{
    Canvas canvas(image.width(), image.height());
    for (int y = 0; y < image.height(); ++y)
        std::copy_n(image.constScanLine(y), image.width(), canvas.row(y));
    return ascii(canvas);
}

/// What `draw(view)` leaves on an empty canvas.
template <typename Draw>
std::string drawn(int width, int height, Draw draw)
{
    Canvas canvas(width, height);
    canvas.view().fill(canvas.area(), 0);
    draw(canvas.view());
    return ascii(canvas);
}

} // namespace terminal

#endif
