#ifndef TERMINAL_DRAW_CANVAS_H
#define TERMINAL_DRAW_CANVAS_H

#include "terminal/Area.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace terminal {

class View;

/// A picture of palette indices, one byte a pixel, rows without padding. It owns its pixels; drawing goes through
/// views.
///
/// A canvas counts the work that is done on it, so that a drawing that would take too long can be ended. A unit is some
/// 3 ns on a desk, at worst: one is counted for each pixel written, and several for a step that takes longer.
class Canvas
{
  public:
    Canvas() = default;
    Canvas(int width, int height) { resize(width, height); }

    /// The contents are undefined afterwards. Memory is kept for the next, larger use.
    void resize(int width, int height);

    int width() const { return columns; }
    int height() const { return rows; }
    Area area() const { return {0, 0, columns, rows}; }

    std::int64_t work() const { return spent; }
    void spend(std::int64_t more) { spent += more; }
    void forget_work() { spent = 0; }

    std::uint8_t* row(int y) { return pixels.data() + offset(y); }
    const std::uint8_t* row(int y) const { return pixels.data() + offset(y); }

    View view();

  private:
    std::size_t offset(int y) const { return static_cast<std::size_t>(y) * static_cast<std::size_t>(columns); }

    int columns = 0;
    int rows = 0;
    std::int64_t spent = 0;
    std::vector<std::uint8_t> pixels;
};

/// What covers an area: one colour, or the pixels of another canvas of the same size, each at its own place.
struct Paint
{
    std::uint8_t colour = 0;
    const Canvas* pattern = nullptr;
};

/// A window onto a canvas: coordinates of its own, and the part of the canvas it may change. Views are values: a child
/// is drawn through `view.inside(its area)`, which ends when the child does.
class View
{
  public:
    View(Canvas& target, Position top_left, const Area& may_change)
        : canvas(&target), origin(top_left), clip(may_change & target.area())
    {}

    /// The window that `area` of this view makes: its top left corner becomes (0, 0), nothing outside it changes.
    View inside(const Area& area) const
    {
        const Area place = area.moved(origin.x, origin.y);
        return {*canvas, {place.left, place.top}, place & clip};
    }

    /// The same window onto another canvas of the same size.
    View onto(Canvas& other) const { return {other, origin, clip}; }

    /// What can change, in this view's coordinates.
    Area visible() const { return clip.moved(-origin.x, -origin.y); }
    bool sees_nothing() const { return clip.empty(); }

    /// Counts work that is not writing pixels by fill(), which counts them itself.
    void spend(std::int64_t work) const { canvas->spend(work); }

    /// The pixels from a visible point on.
    std::uint8_t* at(int x, int y) const { return canvas->row(origin.y + y) + (origin.x + x); }

    void fill(const Area& area, std::uint8_t colour) const;
    void fill(const Area& area, const Paint& paint) const;

    /// Makes the visible part of this view, on `copy`, equal to this canvas; `copy` takes this canvas's size.
    void copy_to(Canvas& copy) const;

  private:
    Canvas* canvas;
    Position origin;
    Area clip;
};

inline View Canvas::view() { return {*this, {}, area()}; }

} // namespace terminal

#endif
