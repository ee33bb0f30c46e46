#include "terminal/draw/Shapes.h"

#include <array>
#include <cmath>
#include <optional>

namespace terminal {
namespace {

constexpr double pi = 3.14159265358979323846;
constexpr double tolerance = 1e-9; ///< what is meant to be equal may differ by the rounding of doubles

/// From the centre, y upwards.
struct Direction
{
    double x;
    double y;
};

double cross(Direction a, Direction b) { return a.x * b.y - a.y * b.x; }

Direction direction(int angle) { return {std::cos(angle * pi / 90), std::sin(angle * pi / 90)}; }

/// The ellipse that a box holds, row by row.
class Outline
{
  public:
    Outline(int box_width, int box_height, int thickness) : width(box_width), height(box_height), pen(thickness)
    {
        for (int k = 0; k <= pen; ++k)
            reach[static_cast<std::size_t>(k)] =
                static_cast<int>(std::lround(std::sqrt(static_cast<double>(pen) * pen - static_cast<double>(k) * k)));
    }

    /// How many pixels of a row lie outside, to the left as well as to the right. No row is empty, and the middle one
    /// reaches the box's sides, however flat the ellipse is.
    int inset(int y) const
    {
        const int from_middle = std::abs(2 * y + 1 - height); // in half pixels
        if (from_middle <= 1)
            return 0;
        const double up = static_cast<double>(from_middle) / height;
        const double half = 0.5 * width * std::sqrt(1 - up * up);
        return std::clamp(static_cast<int>(std::ceil(0.5 * width - half - 0.5 - tolerance)), 0, (width - 1) / 2);
    }

    /// As inset(), for what the line leaves inside: everything further than the line's width from any pixel outside.
    int inner_inset(int y) const
    {
        if (y < pen || y >= height - pen)
            return width;
        int most = 0;
        for (int k = -pen; k <= pen; ++k)
            most = std::max(most, inset(y + k) + reach[static_cast<std::size_t>(std::abs(k))]);
        return most;
    }

  private:
    int width;
    int height;
    int pen;
    std::array<int, 256> reach{};
};

/// How far along an ellipse a direction lies.
class Arc_length
{
  public:
    Arc_length(double half_width, double half_height) : a(half_width), b(half_height)
    {
        for (std::size_t i = 0; i < steps; ++i) {
            const double middle = (static_cast<double>(i) + 0.5) * step;
            lengths[i + 1] = lengths[i] + step * std::hypot(a * std::sin(middle), b * std::cos(middle));
        }
    }

    /// Counter-clockwise from the right.
    double at(Direction towards) const
    {
        double angle = std::atan2(towards.y / b, towards.x / a) / step;
        if (angle < 0)
            angle += static_cast<double>(steps);
        const auto i = std::min(static_cast<std::size_t>(angle), steps - 1);
        return lengths[i] + (angle - static_cast<double>(i)) * (lengths[i + 1] - lengths[i]);
    }
    double whole() const { return lengths[steps]; }

  private:
    static constexpr std::size_t steps = 360;
    static constexpr double step = 2 * pi / steps;

    double a;
    double b;
    std::array<double, steps + 1> lengths{};
};

/// Fills the pixels of a row from `first` up to `last` for which `wanted(x)` is true.
template <typename Wanted>
void fill_row(const View& view, int first, int last, int y, const Paint& paint, Wanted wanted)
{
    first = std::max(first, view.visible().left);
    last = std::min(last, view.visible().right);
    view.spend(std::max(0, last - first));
    int start = first;
    for (int x = first; x < last; ++x) {
        if (!wanted(x)) {
            view.fill({start, y, x, y + 1}, paint);
            start = x + 1;
        }
    }
    view.fill({start, y, last, y + 1}, paint);
}

} // namespace

void draw_ellipse(const View& view, int width, int height, const Arc& arc, const Pen& pen, const Paint* fill)
{
    const View box = view.inside({0, 0, width, height});
    if (box.sees_nothing())
        return;

    constexpr int round = 180; // angle steps once around
    const int sweep = (arc.end % round - arc.start % round + round) % round;
    const bool whole = arc.type == Ellipse_type::closed || (arc.type == Ellipse_type::open && sweep == 0);
    const Direction start = direction(arc.start);
    const Direction end = direction(arc.end);
    const auto from_centre = [&](int x, int y) { return Direction{x + 0.5 - 0.5 * width, 0.5 * height - y - 0.5}; };
    const auto swept = [&](Direction d) {
        const bool behind_start = cross(start, d) >= -tolerance;
        const bool before_end = cross(end, d) <= tolerance;
        return sweep <= round / 2 ? behind_start && before_end : behind_start || before_end;
    };

    // The middle of the line where the arc starts or ends, from the middle of the box.
    const double a = std::max(0.5, 0.5 * (width - pen.width));
    const double b = std::max(0.5, 0.5 * (height - pen.width));
    const auto arc_point = [&](Direction d) {
        const double length = 1 / std::hypot(d.x / a, d.y / b);
        return Direction{d.x * length, d.y * length};
    };
    const Direction first_point = arc_point(start);
    const Direction last_point = arc_point(end);
    const Direction chord{last_point.x - first_point.x, last_point.y - first_point.y};
    const auto filled = [&](Direction d) {
        if (arc.type == Ellipse_type::segment)
            return cross(chord, {d.x - first_point.x, d.y - first_point.y}) <= tolerance;
        return swept(d);
    };

    const Area visible = box.visible();
    constexpr int work_of_ellipse = 64; // however small
    constexpr int work_of_reach = 8;    // for each pixel of the pen
    constexpr int work_of_inset = 4;    // in each row, of its own and of those that the pen reaches from it
    box.spend(work_of_ellipse + work_of_reach * pen.width +
              std::int64_t{work_of_inset} * visible.height() * (2 * pen.width + 2));
    const Outline outline(width, height, std::min(pen.width, 255));
    if (fill && (whole || sweep != 0) && (arc.type != Ellipse_type::open)) {
        for (int y = visible.top; y < visible.bottom; ++y) {
            const int inset = outline.inset(y);
            if (whole)
                box.fill({inset, y, width - inset, y + 1}, *fill);
            else
                fill_row(box, inset, width - inset, y, *fill, [&](int x) { return filled(from_centre(x, y)); });
        }
    }

    if (pen.width <= 0)
        return;
    std::optional<Arc_length> lengths;
    double art_start = 0;
    if (!pen.solid()) {
        constexpr int work_of_lengths = 4096;
        box.spend(work_of_lengths);
        lengths.emplace(a, b);
        if (arc.type != Ellipse_type::closed)
            art_start = lengths->at(first_point);
    }
    const auto drawn = [&](int x, int y) {
        const Direction d = from_centre(x, y);
        if (!whole && (sweep == 0 || !swept(d)))
            return false;
        if (pen.solid())
            return true;
        constexpr int work_of_length = 8;
        box.spend(work_of_length);
        double along = lengths->at(d) - art_start;
        if (along < -tolerance)
            along += lengths->whole();
        return pen.marks(static_cast<int>(std::max(along, 0.0)));
    };
    for (int y = visible.top; y < visible.bottom; ++y) {
        const int outer = outline.inset(y);
        const int inner = std::min(outline.inner_inset(y), (width + 1) / 2);
        for (const Area& part :
             {Area{outer, y, inner, y + 1}, Area{std::max(inner, width - inner), y, width - outer, y + 1}}) {
            if (whole && pen.solid())
                box.fill(part, pen.paint);
            else
                fill_row(box, part.left, part.right, y, pen.paint, [&](int x) { return drawn(x, y); });
        }
    }

    const auto spot_at = [&](Direction d) {
        return Position{static_cast<int>(std::floor(0.5 * (width - pen.width) + d.x + 0.5)),
                        static_cast<int>(std::floor(0.5 * (height - pen.width) - d.y + 0.5))};
    };
    if (arc.type == Ellipse_type::segment)
        stroke(box, pen, spot_at(first_point), spot_at(last_point));
    if (arc.type == Ellipse_type::section) {
        stroke(box, pen, spot_at({0, 0}), spot_at(first_point));
        stroke(box, pen, spot_at({0, 0}), spot_at(last_point));
    }
}

} // namespace terminal
