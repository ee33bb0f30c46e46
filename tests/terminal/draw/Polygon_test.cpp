#include "terminal/draw/Shapes.h"
#include "tests/terminal/draw/Ascii.h"

#include <gtest/gtest.h>

#include <random>
#include <vector>

namespace terminal {
namespace {

constexpr Paint colour_2{2, nullptr};

Pen pen(int width, std::uint16_t art = 0xFFFF) { return {{1, nullptr}, width, art}; }

std::string polygon(std::initializer_list<Position> points, Polygon_type type, const Pen& with,
                    const Paint* fill = nullptr)
{
    return drawn(9, 7, [&](const View& view) {
        draw_polygon(view.inside({1, 1, 99, 99}), 7, 5, points.begin(), points.size(), type, with, fill);
    });
}

TEST(Polygon, ClosesItselfUnlessItIsOpen)
{
    EXPECT_EQ(polygon({{0, 0}, {6, 2}, {0, 4}}, Polygon_type::convex, pen(1)), R"(
.........
.##......
.#.###...
.#....##.
.#.###...
.##......
.........
)");
    EXPECT_EQ(polygon({{0, 0}, {6, 2}, {0, 4}}, Polygon_type::open, pen(1), &colour_2), R"(
.........
.##......
...###...
......##.
...###...
.##......
.........
)");
}

TEST(Polygon, FillsUpToTheMiddleOfItsEdges)
{
    EXPECT_EQ(polygon({{0, 0}, {6, 0}, {6, 4}, {0, 4}}, Polygon_type::convex, pen(0), &colour_2), R"(
.........
.2222222.
.2222222.
.2222222.
.2222222.
.2222222.
.........
)");
    EXPECT_EQ(polygon({{3, 0}, {6, 4}, {0, 4}}, Polygon_type::convex, pen(1), &colour_2), R"(
.........
....#....
...#2#...
..#222#..
..#222#..
.#######.
.........
)");
}

TEST(Polygon, KeepsANotchOpen)
{
    EXPECT_EQ(polygon({{0, 0}, {3, 3}, {6, 0}, {6, 4}, {0, 4}}, Polygon_type::non_convex, pen(0), &colour_2), R"(
.........
.2.....2.
.22...22.
.222.222.
.2222222.
.2222222.
.........
)");
}

TEST(Polygon, LeavesWhatTwoEdgesSurroundEmpty)
{
    // A square inside a square, drawn as one line: the inner one is a hole.
    EXPECT_EQ(polygon({{0, 0}, {6, 0}, {6, 4}, {0, 4}, {0, 0}, {2, 1}, {4, 1}, {4, 3}, {2, 3}, {2, 1}},
                      Polygon_type::complex, pen(0), &colour_2),
              R"(
.........
.2222222.
.2222222.
.222.222.
.2222222.
.2222222.
.........
)");
}

TEST(Polygon, CentresAWidePenOnItsPointsAndIsCutByItsBox)
{
    EXPECT_EQ(polygon({{0, 2}, {6, 2}}, Polygon_type::open, pen(3)), R"(
.........
.........
.#######.
.#######.
.#######.
.........
.........
)");
    EXPECT_EQ(polygon({{2, 0}, {2, 9}}, Polygon_type::open, pen(2)), R"(
.........
...##....
...##....
...##....
...##....
...##....
.........
)");
}

TEST(Polygon, StartsItsLineArtAtEachPoint)
{
    EXPECT_EQ(polygon({{0, 0}, {6, 0}, {6, 4}}, Polygon_type::open, pen(1, 0xC000)), R"(
.........
.##....#.
.......#.
.........
.........
.........
.........
)");
}

TEST(Polygon, OfOnePointIsADotAndOfNoneNothing)
{
    EXPECT_EQ(polygon({{3, 2}}, Polygon_type::open, pen(1)), R"(
.........
.........
.........
....#....
.........
.........
.........
)");
    EXPECT_EQ(polygon({}, Polygon_type::open, pen(1)), drawn(9, 7, [](const View&) {}));
}

TEST(Polygon, WithPointsFarOutsideIsCut)
{
    EXPECT_EQ(polygon({{0, 0}, {65535, 0}, {65535, 65535}}, Polygon_type::convex, pen(1), &colour_2), R"(
.........
.#######.
..#22222.
...#2222.
....#222.
.....#22.
.........
)");
}

/// Whether an odd number of edges crosses the row of a pixel left of it.
bool surrounded(const std::vector<Position>& points, int x, int y)
{
    bool inside = false;
    for (std::size_t i = 0; i < points.size(); ++i) {
        const Position a = points[i];
        const Position b = points[(i + 1) % points.size()];
        if ((a.y <= y) == (b.y <= y))
            continue;
        const double crossing = a.x + double(b.x - a.x) * (y - a.y) / (b.y - a.y);
        inside ^= crossing < x;
    }
    return inside;
}

void expect_filled(const std::vector<Position>& points, int width, int height)
{
    const auto polygon = [&](const Pen& with, const Paint* fill) {
        Canvas canvas(width, height);
        canvas.view().fill(canvas.area(), 0);
        draw_polygon(canvas.view(), width, height, points.data(), points.size(), Polygon_type::complex, with, fill);
        return canvas;
    };
    const Canvas filled = polygon({}, &colour_2);
    const Canvas edges = polygon(pen(1), nullptr);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x)
            ASSERT_EQ(filled.row(y)[x], edges.row(y)[x] != 0 || surrounded(points, x, y) ? 2 : 0) << x << " " << y;
    }
}

TEST(Polygon, FillsItsEdgesAndWhatAnOddNumberOfThemSurrounds)
{
    std::mt19937 random(7);
    const auto below = [&](unsigned end) { return static_cast<int>(random() % end); };
    for (int round = 0; round < 600; ++round) {
        std::vector<Position> points;
        for (int n = 3 + below(5); n > 0; --n)
            points.push_back({below(26) - 3, below(30) - 3});
        expect_filled(points, 20, 24);
        ASSERT_FALSE(HasFatalFailure()) << round;
    }
}

TEST(Polygon, OfTheMostPointsIsFilledAsAnyOther)
{
    std::vector<Position> comb;
    for (int i = 0; i < 255; ++i)
        comb.push_back({i * 5, i % 2 == 0 ? 0 : 9});
    expect_filled(comb, 1280, 10);
}

} // namespace
} // namespace terminal
