#ifndef VTUI_COMP_DIMENSION_H
#define VTUI_COMP_DIMENSION_H

#include "vt/Sized_obj.h"

#include <cstdint>

namespace VT::Comp {

/// A size in pixels.
struct Dimension
{
    constexpr Dimension() = default;
    constexpr Dimension(std::uint16_t w, std::uint16_t h) : width(w), height(h) {}

    std::uint16_t width{0};
    std::uint16_t height{0};
};

/// A position in pixels from the parent's top left corner.
struct Point
{
    constexpr Point() = default;
    constexpr Point(std::int16_t across, std::int16_t down) : x(across), y(down) {}

    std::int16_t x{0};
    std::int16_t y{0};
};

static_assert(sizeof(Dimension) == 4 && sizeof(Point) == 4, "both travel by value in one word");

inline Dimension size_of(const VT::VT_obj& object) { return {object.get_width(), object.get_height()}; }

/// Sends nothing.
inline void resize(VT::Sized_obj& object, Dimension size)
{
    object.width = size.width;
    object.height = size.height;
}

/// Positions have 16 bits, as in the placements that are sent; what is larger wraps around.
constexpr std::int16_t position(int pixels) { return static_cast<std::int16_t>(pixels); }

/// Where something of that size starts to lie in the middle of what is available; negative when it is too large.
constexpr std::int16_t centred(std::uint16_t available, std::uint16_t size) { return position((available - size) / 2); }

} // namespace VT::Comp

#endif
