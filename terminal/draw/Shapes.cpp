#include "terminal/draw/Shapes.h"

#include <array>
#include <cstdlib>
#include <optional>

namespace terminal {

void stroke(const View& view, const Pen& pen, Position from, Position to)
{
    const int spot = pen.width;
    if (spot <= 0)
        return;

    // Along: the longer axis, across: the other one. `distance` counts the pixels along from the start, spot included.
    const bool horizontal = std::abs(to.x - from.x) >= std::abs(to.y - from.y);
    const int along = horizontal ? to.x - from.x : to.y - from.y;
    const int across = horizontal ? to.y - from.y : to.x - from.x;
    const int along_start = horizontal ? from.x : from.y;
    const int across_start = horizontal ? from.y : from.x;
    const int steps = std::abs(along);

    const auto across_at = [&](int step) {
        if (steps == 0)
            return across_start;
        // A half goes where a walk from the left, or from the top, takes it: the same pixels from either end.
        const std::int64_t moved =
            (std::int64_t{2} * step * std::abs(across) + steps - (along < 0)) / (std::int64_t{2} * steps);
        return across_start + static_cast<int>(across < 0 ? -moved : moved);
    };
    const auto paint = [&](int first, int last, int across_first, int across_last) {
        const int start = along < 0 ? along_start + spot - 1 - last : along_start + first;
        const int end = along < 0 ? along_start + spot - first : along_start + last + 1;
        view.fill(horizontal ? Area{start, across_first, end, across_last}
                             : Area{across_first, start, across_last, end},
                  pen.paint);
    };

    const Area visible = view.visible();
    const int low = horizontal ? visible.left : visible.top;
    const int high = horizontal ? visible.right : visible.bottom; // excluded
    const int first = std::max(0, along < 0 ? along_start + spot - high : low - along_start);
    const int last = std::min(steps + spot - 1, along < 0 ? along_start + spot - 1 - low : high - 1 - along_start);

    if (across == 0 && pen.solid())
        return paint(first, last, across_start, across_start + spot); // nothing, if last is before first

    // Neighbouring distances that the spot covers from the same to the same pixel across are painted in one go.
    constexpr int work_of_step = 3;
    view.spend(work_of_step * std::int64_t{std::max(0, last - first + 1)});
    struct Run
    {
        int first;
        int low;
        int high;
    };
    std::optional<Run> run;
    for (int distance = first; distance <= last; ++distance) {
        const int a = across_at(std::max(0, distance - spot + 1));
        const int b = across_at(std::min(distance, steps));
        const int across_low = std::min(a, b);
        const int across_high = std::max(a, b) + spot;
        const bool drawn = pen.marks(distance);
        if (run && (!drawn || across_low != run->low || across_high != run->high)) {
            paint(run->first, distance - 1, run->low, run->high);
            run.reset();
        }
        if (drawn && !run)
            run = {distance, across_low, across_high};
    }
    if (run)
        paint(run->first, last, run->low, run->high);
}

void draw_line(const View& view, int width, int height, bool rising, const Pen& pen)
{
    const int right = std::max(0, width - pen.width);
    const int bottom = std::max(0, height - pen.width);
    stroke(view.inside({0, 0, width, height}), pen, {0, rising ? bottom : 0}, {right, rising ? 0 : bottom});
}

void draw_rectangle(const View& view, int width, int height, unsigned suppressed, const Pen& pen, const Paint* fill)
{
    const View box = view.inside({0, 0, width, height});
    if (box.sees_nothing())
        return;
    if (fill)
        box.fill({0, 0, width, height}, *fill);
    const int right = std::max(0, width - pen.width);
    const int bottom = std::max(0, height - pen.width);
    if (!(suppressed & top_side))
        stroke(box, pen, {0, 0}, {right, 0});
    if (!(suppressed & right_side))
        stroke(box, pen, {right, 0}, {right, bottom});
    if (!(suppressed & bottom_side))
        stroke(box, pen, {right, bottom}, {0, bottom});
    if (!(suppressed & left_side))
        stroke(box, pen, {0, bottom}, {0, 0});
}

void draw_polygon(const View& view, int width, int height, const Position* points, std::size_t count, Polygon_type type,
                  const Pen& pen, const Paint* fill)
{
    const View box = view.inside({0, 0, width, height});
    if (box.sees_nothing() || count == 0)
        return;
    const bool open = type == Polygon_type::open;
    const std::size_t edges = open ? count - 1 : count;
    const auto edge_end = [&](std::size_t edge) { return points[edge + 1 == count ? 0 : edge + 1]; };

    if (fill && !open) {
        const Area visible = box.visible();
        constexpr int work_of_edge = 8; // in each row
        box.spend(work_of_edge * static_cast<std::int64_t>(edges) * visible.height());
        std::array<int, 256> crossings;
        for (int y = visible.top; y < visible.bottom; ++y) {
            std::size_t n = 0;
            for (std::size_t edge = 0; edge < edges && n < crossings.size(); ++edge) {
                Position upper = points[edge];
                Position lower = edge_end(edge);
                if (upper.y > lower.y)
                    std::swap(upper, lower);
                // A corner belongs to the edge below it, so that two edges that meet count once on each row.
                if (y < upper.y || y >= lower.y)
                    continue;
                const std::int64_t run = std::int64_t{lower.x - upper.x} * (y - upper.y);
                // Rounded down, or to one less where negative and exact: the pixels of the edges are added below.
                const std::int64_t moved = run / (lower.y - upper.y) - (run < 0);
                crossings[n++] = upper.x + static_cast<int>(moved);
            }
            std::sort(crossings.begin(), crossings.begin() + n);
            for (std::size_t i = 0; i + 1 < n; i += 2)
                box.fill({crossings[i] + 1, y, crossings[i + 1] + 1, y + 1}, *fill);
        }
        for (std::size_t edge = 0; edge < edges; ++edge)
            stroke(box, {*fill, 1, 0xFFFF}, points[edge], edge_end(edge));
    }

    const int lead = (pen.width - 1) / 2;
    const auto spot_at = [&](Position point) { return Position{point.x - lead, point.y - lead}; };
    if (open && count == 1)
        stroke(box, pen, spot_at(points[0]), spot_at(points[0]));
    for (std::size_t edge = 0; edge < edges; ++edge)
        stroke(box, pen, spot_at(points[edge]), spot_at(edge_end(edge)));
}

} // namespace terminal
