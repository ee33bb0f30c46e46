#ifndef VTUI_COMP_DISABLE_COVER_WIDGET_H
#define VTUI_COMP_DISABLE_COVER_WIDGET_H

#include "vtui/comp/objects/Container_obj.h"
#include "vtui/comp/objects/Dimension.h"
#include "vtui/comp/objects/Has_child_placements.h"
#include "vtui/comp/objects/Picture_graphic_obj.h"

#include <algorithm>
#include <cstdint>

namespace VT::Comp {

/// Ends the process: the cover of that depth is the largest. The text names a place in the sources, by which field
/// service knows it.
[[noreturn]] void no_larger_cover(unsigned depth, const char* source);

/// A stippled square that makes what lies under it look disabled, 2^(DEPTH + 4) pixels wide and high: 32 to 512 for
/// DEPTH 1 to 5. Each is made of four of the next smaller one, so all five together cost the terminal one picture and
/// four containers.
template <unsigned DEPTH>
class VTUI_EXPORT Disable_cover_widget_impl
{
    static_assert(DEPTH >= 2 && DEPTH <= 5);

  public:
    static constexpr unsigned depth = DEPTH;
    static constexpr std::uint16_t side = 1U << (DEPTH + 4);

    Disable_cover_widget_impl();

    VT::VT_obj& root() { return container; }

    /// The smallest cover, this one or one inside it, that is at least `size` pixels wide and high. A size above the
    /// side ends the process: there is no larger cover.
    VT::VT_obj* root_at_size(std::uint16_t size);
    /// The same for the larger of width and height.
    VT::VT_obj* root_at_size(Dimension size) { return root_at_size(std::max(size.width, size.height)); }

    /// Writes out the placements of this cover and of those inside it, outermost first. Covers do not change their
    /// size: the argument is ignored.
    void set_size(Dimension);

    Container_obj container;
    Child_placements_array<Array_array_4> placements;
    Disable_cover_widget_impl<DEPTH - 1> inner;
};

/// The innermost cover: one picture, every other pixel transparent.
template <>
class VTUI_EXPORT Disable_cover_widget_impl<1>
{
  public:
    static constexpr std::uint16_t side = 32;

    VT::VT_obj& root() { return tile; }

    /// The pixels of the tile, row by row: side × side bytes that all tiles share.
    static const std::uint8_t* get_pic_buf();

    static constexpr std::uint8_t colour = 188;
    static constexpr std::uint8_t transparency_colour = 13;

    Picture_graphic_obj tile{side, side, side, 2, 1, transparency_colour, std::uint32_t{side} * side, get_pic_buf()};
};

extern template class Disable_cover_widget_impl<2>;
extern template class Disable_cover_widget_impl<3>;
extern template class Disable_cover_widget_impl<4>;
extern template class Disable_cover_widget_impl<5>;

} // namespace VT::Comp

#endif
