#ifndef TERMINAL_DRAW_SHAPES_H
#define TERMINAL_DRAW_SHAPES_H

#include "terminal/draw/Canvas.h"

#include <cstddef>
#include <cstdint>

namespace terminal {

/// Line suppression bits: the sides of a rectangle that are not drawn.
enum Suppressed_side : std::uint8_t { top_side = 1, right_side = 2, bottom_side = 4, left_side = 8 };

enum class Polygon_type : std::uint8_t { convex = 0, non_convex = 1, complex = 2, open = 3 };

/// Whole; the arc alone; the arc and its chord; the arc and the two radii to its ends.
enum class Ellipse_type : std::uint8_t { closed = 0, open = 1, segment = 2, section = 3 };

/// What lines are drawn with: a square spot, `width` pixels wide and high, moved from one end to the other. A width of
/// 0 draws nothing. Line art covers the line one bit for every `width` pixels along its longer axis, most significant
/// bit first and over again after sixteen; it starts afresh with each line, side or edge. A bit that is 0 leaves the
/// line out there.
struct Pen
{
    Paint paint;
    int width = 0;
    std::uint16_t art = 0xFFFF;

    bool solid() const { return art == 0xFFFF; }
    /// Whether the line is drawn at `distance` pixels, not negative, from its start.
    bool marks(int distance) const { return art >> (15 - distance / width % 16) & 1; }
};

/// Ellipse angles in steps of 2 degrees, counter-clockwise from the right.
struct Arc
{
    Ellipse_type type = Ellipse_type::closed;
    int start = 0;
    int end = 0;
};

/// Moves the pen's spot, which is placed by its top left pixel.
void stroke(const View& view, const Pen& pen, Position from, Position to);

// Each shape covers exactly `width` x `height` pixels from the view's top left corner: its line lies inside that box,
// and what would reach over is cut. The fill, which may be null, lies under the line.

/// From top left to bottom right, or `rising` from bottom left to top right.
void draw_line(const View& view, int width, int height, bool rising, const Pen& pen);

/// The sides are lines drawn clockwise from the top left corner. The fill reaches to the edges where a side is
/// suppressed.
void draw_rectangle(const View& view, int width, int height, unsigned suppressed, const Pen& pen, const Paint* fill);

/// The outline is as thick everywhere as a round pen makes it. Line art runs counter-clockwise, from the right or from
/// the start angle. Equal angles: an open ellipse is whole, a segment is a point, a section one radius.
void draw_ellipse(const View& view, int width, int height, const Arc& arc, const Pen& pen, const Paint* fill);

/// Points are pixels; the pen's spot is centred on them (an even one reaches further to the right and down). The inside
/// is what an odd number of edges surrounds, and includes the edges' pixels. An open polygon has no inside and no edge
/// from its last point to its first.
void draw_polygon(const View& view, int width, int height, const Position* points, std::size_t count, Polygon_type type,
                  const Pen& pen, const Paint* fill);

} // namespace terminal

#endif
