#ifndef TERMINAL_AREA_H
#define TERMINAL_AREA_H

#include <algorithm>
#include <cstdint>

namespace terminal {

/// Where a pixel lies; y grows downwards.
struct Position
{
    int x = 0;
    int y = 0;
};

/// The pixels from left and top up to, but without, right and bottom.
struct Area
{
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;

    bool empty() const { return left >= right || top >= bottom; }
    bool contains(Position place) const
    {
        return place.x >= left && place.x < right && place.y >= top && place.y < bottom;
    }
    int width() const { return right - left; }
    int height() const { return bottom - top; }
    std::int64_t size() const { return std::int64_t{width()} * height(); } ///< of an area that is not empty
    Area moved(int x, int y) const { return {left + x, top + y, right + x, bottom + y}; }
};

/// The pixels that lie in both areas.
inline Area operator&(const Area& a, const Area& b)
{
    return {std::max(a.left, b.left), std::max(a.top, b.top), std::min(a.right, b.right), std::min(a.bottom, b.bottom)};
}

} // namespace terminal

#endif
