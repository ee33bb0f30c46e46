#ifndef VTUI_COMP_CRUMB_TRAIL_H
#define VTUI_COMP_CRUMB_TRAIL_H

#include "vtui/comp/Connection_elements.h"
#include "vtui/comp/objects/Container_obj.h"
#include "vtui/comp/objects/Dimension.h"
#include "vtui/comp/objects/Has_child_placements.h"
#include "vtui/comp/objects/Line_obj.h"
#include "vtui/comp/objects/Object_pointer_obj.h"
#include "vtui/comp/objects/Picture_graphic_obj.h"
#include "vtui/comp/widgets/Arrow_widget.h"

#include <cstdint>

namespace VT::Comp {

/// The path of a navigation: up to four crumbs from left to right, a chevron between each two, and around the last one
/// a square frame with rounded corners, which hangs from the top edge by a stem. The application sizes the trail,
/// places root() in a mask, and adds a crumb for each level that it goes down.
///
/// Crumbs are objects of the application's, as icons: neither sized nor moved, each at the top left of a cell, a
/// quarter of the trail wide. Nothing leads to one that is not in the trail yet, so the application gives all of them
/// to the pool: `pool.add(crumb)`. A live pool notes a problem about a crumb that it does not have, and shows nothing.
///
/// The lines of frame and stem have no line attributes on purpose: terminals draw the corners only, and the pool warns,
/// unless the application calls set_line() of frame_vertical_line, frame_horizontal_line and select_line before the
/// pool is prepared.
class VTUI_EXPORT Crumb_trail
{
  public:
    static constexpr unsigned most_crumbs = 4;
    static constexpr std::uint8_t corner_side = 8; ///< pixels

    /// The corners take the colours of line_black_c and of rect_17_patterned's fill, which it must have, as they are
    /// now: set them first, and as palette indices. The style outlives the trail.
    explicit Crumb_trail(Connection_elements& ce);

    Container_obj* root() { return &container; }

    /// Pixels, for before the pool is built: at least width / 4 - 9 high, or the frame is cut, and 136 wide, or its
    /// corners overlap; below 72 × 9 some sides wrap around. In a live pool the chevron is
    /// uploaded if it has changed, and nothing else is sent: follow with root()->upload(true).
    void set_size(Dimension size);

    // A live pool is sent one Change Numeric Value for every pointer that is set, changed or not: 3 for the first
    // crumb, 6 for one behind it and for one taken away, 3 for the first one taken away.

    /// Goes one level deeper. A fifth crumb is ignored. Null moves the frame on and shows nothing in it, and the next
    /// crumb takes that place.
    void add_crumb(VT::VT_obj* crumb);
    /// Goes back one level; does nothing when there is none. When the first crumb is taken away frame and stem stay,
    /// and appear a second time further right, until there are four crumbs again: better keep the first one.
    void back_crumb();

    /// 0 to 4.
    unsigned int num_crumbs() const { return find_next_crumb(); }
    /// The first free place, 4 if there is none.
    unsigned int find_next_crumb() const;

    // Where the pointers stand among the root's children. Slots 0 to 3, of arrows 0 to 2.
    static constexpr unsigned crumb_placement(unsigned slot) { return slot; }
    static constexpr unsigned arrow_placement(unsigned slot) { return slot + 4; }
    static constexpr unsigned select_placement(unsigned slot) { return slot + 7; }
    static constexpr unsigned select_line_placement(unsigned slot) { return slot + 11; }

    template <typename T>
    class Array_array_N : public Array_array<T, 15>
    {};

    Container_obj container;
    /// The pool takes in frame, stem and chevron with them, whatever the pointers show.
    Child_placements_and_detached<Array_array_N, 3> placements;

    Arrow_widget arrow; ///< stands in up to three places

    std::uint8_t corner_pixels[4][corner_side * corner_side]; ///< row by row, of the pictures in their order
    Picture_graphic_obj corner_top_right;
    Picture_graphic_obj corner_bottom_right;
    Picture_graphic_obj corner_top_left;
    Picture_graphic_obj corner_bottom_left;

    // Each stands in the frame twice, which cuts it: they are longer than any frame.
    Line_obj frame_vertical_line;
    Line_obj frame_horizontal_line;

    Container_obj select_frame;
    Child_placements_array<Array_array_8> select_frame_placements;
    Line_obj select_line; ///< the stem

    // All that the trail knows is what they point at.
    Object_pointer_obj crumb_pointers[most_crumbs];
    Object_pointer_obj arrow_pointers[most_crumbs - 1];
    Object_pointer_obj select_pointers[most_crumbs];
    Object_pointer_obj select_line_pointers[most_crumbs];

  private:
    void draw_corners(std::uint8_t line, std::uint8_t fill);
    void select(unsigned slot);
};

} // namespace VT::Comp

#endif
