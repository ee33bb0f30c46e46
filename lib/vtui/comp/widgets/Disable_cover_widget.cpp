#include "vtui/comp/widgets/Disable_cover_widget.h"

#include "util/Fatal.h"

#include <array>
#include <string>

namespace VT::Comp {

namespace {

using Tile = Disable_cover_widget_impl<1>;

constexpr auto stipple()
{
    std::array<std::uint8_t, std::size_t{Tile::side} * Tile::side> pixels{};
    for (std::size_t y = 0; y < Tile::side; ++y)
        for (std::size_t x = 0; x < Tile::side; ++x)
            pixels[y * Tile::side + x] = (x + y) % 2 == 0 ? Tile::colour : Tile::transparency_colour;
    return pixels;
}

} // namespace

void no_larger_cover(unsigned depth, const char* source)
{
    const std::string function = "VT::VT_obj* VT::Comp::Disable_cover_widget_impl<DEPTH>::root_at_size(uint16_t) [with "
                                 "unsigned int DEPTH = " +
                                 std::to_string(depth) + "u; uint16_t = short unsigned int]";
    Fatal::assertion("false", source, 100, function.c_str());
}

const std::uint8_t* Disable_cover_widget_impl<1>::get_pic_buf()
{
    static constexpr auto pixels = stipple();
    return pixels.data();
}

template <unsigned DEPTH>
Disable_cover_widget_impl<DEPTH>::Disable_cover_widget_impl()
{
    constexpr std::int16_t half = side / 2;
    VT::VT_obj* const quarter = &inner.root();
    placements.placements[0] = {quarter, 0, 0};
    placements.placements[1] = {quarter, 0, half};
    placements.placements[2] = {quarter, half, 0};
    placements.placements[3] = {quarter, half, half};
    container.placements_ptr = &placements;
    resize(container, {side, side});
}

template <unsigned DEPTH>
VT::VT_obj* Disable_cover_widget_impl<DEPTH>::root_at_size(std::uint16_t size)
{
    if (size > side)
        no_larger_cover(DEPTH, "../../../vtui/comp/widgets/Disable_cover_widget");
    if (size > side / 2)
        return &container;
    if constexpr (DEPTH == 2)
        return &inner.root();
    else
        return inner.root_at_size(size);
}

template <unsigned DEPTH>
void Disable_cover_widget_impl<DEPTH>::set_size(Dimension size)
{
    placements.deref();
    if constexpr (DEPTH > 2)
        inner.set_size(size);
}

template class Disable_cover_widget_impl<2>;
template class Disable_cover_widget_impl<3>;
template class Disable_cover_widget_impl<4>;
template class Disable_cover_widget_impl<5>;

} // namespace VT::Comp
