#ifndef VTUI_COMP_DIMENSION_H
#define VTUI_COMP_DIMENSION_H

#include "vt/VT_obj.h"

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

/// Where something of that size starts to lie in the middle of what is available; negative when it is too large.
constexpr std::int16_t centred(std::uint16_t available, std::uint16_t size)
{
    return static_cast<std::int16_t>((int{available} - int{size}) / 2);
}

} // namespace VT::Comp

#endif
