#include "terminal/draw/Shapes.h"
#include "tests/terminal/draw/Ascii.h"

#include <gtest/gtest.h>

#include <cmath>

namespace terminal {
namespace {

constexpr Paint colour_2{2, nullptr};

Pen pen(int width, std::uint16_t art = 0xFFFF) { return {{1, nullptr}, width, art}; }

std::string ellipse(int width, int height, const Arc& arc, const Pen& with, const Paint* fill)
{
    return drawn(width, height, [&](const View& view) { draw_ellipse(view, width, height, arc, with, fill); });
}

TEST(Ellipse, IsACircleInASquare)
{
    EXPECT_EQ(ellipse(9, 9, {}, pen(1), &colour_2), R"(
..#####..
.#22222#.
#2222222#
#2222222#
#2222222#
#2222222#
#2222222#
.#22222#.
..#####..
)");
    EXPECT_EQ(ellipse(8, 8, {}, pen(0), &colour_2), R"(
..2222..
.222222.
22222222
22222222
22222222
22222222
.222222.
..2222..
)");
}

TEST(Ellipse, FillsItsBoxFlatOrHigh)
{
    EXPECT_EQ(ellipse(16, 7, {}, pen(1), nullptr), R"(
....########....
.###........###.
#..............#
#..............#
#..............#
.###........###.
....########....
)");
    EXPECT_EQ(ellipse(5, 7, {}, pen(1), nullptr), R"(
.###.
#...#
#...#
#...#
#...#
#...#
.###.
)");
    EXPECT_EQ(ellipse(1, 3, {}, pen(1), nullptr), "\n#\n#\n#\n");
    EXPECT_EQ(ellipse(2, 2, {}, pen(1), nullptr), "\n##\n##\n");
}

TEST(Ellipse, HasALineOfTheSameWidthAllAround)
{
    EXPECT_EQ(ellipse(13, 13, {}, pen(2), &colour_2), R"(
....#####....
..#########..
.###22222###.
.##2222222##.
###2222222###
##222222222##
##222222222##
##222222222##
###2222222###
.##2222222##.
.###22222###.
..#########..
....#####....
)");
}

TEST(Ellipse, SmallerThanItsLineIsAllLine)
{
    EXPECT_EQ(ellipse(4, 4, {}, pen(3), &colour_2), R"(
.##.
####
####
.##.
)");
}

TEST(Ellipse, IsSymmetricAtEverySize)
{
    for (int size = 1; size < 60; ++size) {
        for (const int width : {1, 2, 3}) {
            Canvas canvas(size, 31);
            canvas.view().fill(canvas.area(), 0);
            draw_ellipse(canvas.view(), size, 31, {}, pen(width), &colour_2);
            for (int y = 0; y < 31; ++y) {
                for (int x = 0; x < size; ++x) {
                    ASSERT_EQ(canvas.row(y)[x], canvas.row(y)[size - 1 - x]) << size;
                    ASSERT_EQ(canvas.row(y)[x], canvas.row(30 - y)[x]) << size;
                }
            }
        }
    }
}

TEST(EllipseArc, RunsCounterClockwiseFromTheRight)
{
    EXPECT_EQ(ellipse(11, 11, {Ellipse_type::open, 0, 45}, pen(1), &colour_2), R"(
.....###...
........#..
.........#.
..........#
..........#
..........#
...........
...........
...........
...........
...........
)");
}

TEST(EllipseArc, GoesTheLongWayRoundWhenItEndsBeforeItStarts)
{
    EXPECT_EQ(ellipse(11, 11, {Ellipse_type::open, 45, 0}, pen(1), nullptr), R"(
...###.....
..#........
.#.........
#..........
#..........
#.........#
#.........#
#.........#
.#.......#.
..#.....#..
...#####...
)");
}

TEST(EllipseArc, IsWholeWhenItsAnglesAreEqual)
{
    EXPECT_EQ(ellipse(9, 9, {Ellipse_type::open, 30, 30}, pen(1), nullptr), ellipse(9, 9, {}, pen(1), nullptr));
    EXPECT_EQ(ellipse(9, 9, {Ellipse_type::open, 0, 180}, pen(1), nullptr), ellipse(9, 9, {}, pen(1), nullptr));
}

TEST(EllipseSegment, IsClosedByItsChord)
{
    EXPECT_EQ(ellipse(11, 11, {Ellipse_type::segment, 0, 90}, pen(1), &colour_2), R"(
...#####...
..#22222#..
.#2222222#.
#222222222#
#222222222#
###########
...........
...........
...........
...........
...........
)");
    EXPECT_EQ(ellipse(15, 15, {Ellipse_type::segment, 0, 45}, pen(1), &colour_2), R"(
.......###.....
........#2##...
.........#22#..
..........#22#.
...........#2#.
............#2#
.............##
..............#
...............
...............
...............
...............
...............
...............
...............
)");
}

TEST(EllipseSection, IsClosedByTwoRadii)
{
    EXPECT_EQ(ellipse(15, 15, {Ellipse_type::section, 0, 45}, pen(1), &colour_2), R"(
.......###.....
.......#22##...
.......#2222#..
.......#22222#.
.......#22222#.
.......#222222#
.......#222222#
.......########
...............
...............
...............
...............
...............
...............
...............
)");
    EXPECT_EQ(ellipse(9, 9, {Ellipse_type::section, 45, 0}, pen(1), &colour_2), R"(
..###....
.#22#....
#222#....
#222#....
#222#####
#2222222#
#2222222#
.#22222#.
..#####..
)");
}

TEST(EllipseSection, WithEqualAnglesIsOneRadius)
{
    EXPECT_EQ(ellipse(5, 5, {Ellipse_type::section, 90, 90}, pen(1), &colour_2), R"(
.....
.....
###..
.....
.....
)");
}

TEST(EllipseLineArt, StartsAtTheRightAndGoesUp)
{
    EXPECT_EQ(ellipse(21, 21, {}, pen(1, 0xF000), nullptr), R"(
.......###...........
......#..............
.....................
.....................
.....................
.....................
.....................
....................#
....................#
....................#
....................#
#....................
#....................
#....................
.#...................
.....................
.....................
.....................
.....................
..............#......
...........###.......
)");
}

TEST(Ellipse, OfTheLargestSizeIsCutToWhatIsVisible)
{
    // Its topmost pixels: the row is long, and the line one pixel high.
    EXPECT_EQ(drawn(5, 3,
                    [](const View& view) {
                        draw_ellipse(view.inside({-32765, 0, 99, 99}), 65535, 65535, {}, pen(1), &colour_2);
                    }),
              R"(
#####
22222
22222
)");
}

TEST(Ellipse, ReachesTheSidesOfItsBoxHoweverFlatItIs)
{
    EXPECT_EQ(ellipse(16, 2, {}, pen(0), &colour_2), "\n2222222222222222\n2222222222222222\n");
    EXPECT_EQ(ellipse(16, 1, {}, pen(1), nullptr), "\n################\n");
    EXPECT_EQ(ellipse(16, 3, {}, pen(0), &colour_2), "\n..222222222222..\n2222222222222222\n..222222222222..\n");
}

TEST(Ellipse, IsWhatLiesWithinItsEquation)
{
    for (int width = 3; width < 40; ++width) {
        for (int height = 3; height < 24; ++height) {
            Canvas canvas(width, height);
            canvas.view().fill(canvas.area(), 0);
            draw_ellipse(canvas.view(), width, height, {}, {}, &colour_2);
            for (int y = 0; y < height; ++y) {
                for (int x = 0; x < width; ++x) {
                    const double across = (2 * x + 1 - width) / double(width);
                    const double up = (2 * y + 1 - height) / double(height);
                    const double nearness = across * across + up * up;
                    const bool middle = std::abs(2 * y + 1 - height) <= 1 || std::abs(2 * x + 1 - width) <= 1;
                    if (std::abs(nearness - 1) < 1e-6 || (nearness > 1 && middle))
                        continue; // on the line, or what a row must not be without
                    ASSERT_EQ(canvas.row(y)[x], nearness < 1 ? 2 : 0)
                        << width << " x " << height << ": " << x << " " << y;
                }
            }
        }
    }
}

TEST(Ellipse, KeepsItsLineAsFarFromItsOutsideAsItIsWide)
{
    for (const int width : {2, 3, 5}) {
        constexpr int size = 31;
        Canvas whole(size + 2, size + 2);
        whole.view().fill(whole.area(), 0);
        draw_ellipse(whole.view().inside({1, 1, size + 1, size + 1}), size, size, {}, {}, &colour_2);
        Canvas ring(size + 2, size + 2);
        ring.view().fill(ring.area(), 0);
        draw_ellipse(ring.view().inside({1, 1, size + 1, size + 1}), size, size, {}, pen(width), &colour_2);
        for (int y = 0; y < size + 2; ++y) {
            for (int x = 0; x < size + 2; ++x) {
                int nearest = size * size;
                for (int v = 0; v < size + 2; ++v) {
                    for (int u = 0; u < size + 2; ++u) {
                        if (whole.row(v)[u] == 0)
                            nearest = std::min(nearest, (u - x) * (u - x) + (v - y) * (v - y));
                    }
                }
                const double beyond = std::sqrt(nearest) - width; // the inner edge of the line
                if (nearest != 0 && beyond > -0.5 && beyond <= 0.5)
                    continue;
                ASSERT_EQ(ring.row(y)[x], nearest == 0 ? 0 : beyond < 0 ? 1 : 2) << width << ": " << x << " " << y;
            }
        }
    }
}

TEST(EllipseSection, HasRadiiAsWideAsItsLine)
{
    EXPECT_EQ(ellipse(15, 11, {Ellipse_type::section, 20, 100}, pen(3), &colour_2), R"(
....#######....
..###########..
.############..
.###222######..
####2#######...
##########.....
#########......
.######........
.####..........
...............
...............
)");
    EXPECT_EQ(ellipse(14, 12, {Ellipse_type::section, 100, 20}, pen(2), &colour_2), R"(
..............
..........##..
.........####.
........#####.
.......###2###
.....####222##
...#####2222##
.#####22222###
.###2222222##.
.###222222###.
..##########..
....######....
)");
}

TEST(EllipseSegment, HasAChordAsWideAsItsLine)
{
    EXPECT_EQ(ellipse(15, 11, {Ellipse_type::segment, 20, 100}, pen(3), &colour_2), R"(
....#######....
..###########..
.############..
.###22#######..
############...
##########.....
########.......
.#####.........
.###...........
...............
...............
)");
    EXPECT_EQ(ellipse(14, 12, {Ellipse_type::segment, 100, 20}, pen(2), &colour_2), R"(
..............
..........##..
........#####.
.......######.
.....####22###
....####2222##
..####222222##
.####222222###
.##22222222##.
.###222222###.
..##########..
....######....
)");
}

TEST(EllipseArc, MayBeThickAndDotted)
{
    EXPECT_EQ(ellipse(17, 13, {Ellipse_type::open, 30, 150}, pen(2, 0xCCCC), nullptr), R"(
.......#####.....
........###......
..##.............
.###.............
###..............
.................
.................
.................
.................
.###.............
..###............
...##....##......
.........###.....
)");
    EXPECT_EQ(ellipse(13, 17, {Ellipse_type::section, 150, 30}, pen(2, 0xAAAA), &colour_2), R"(
.............
.............
..........#..
.........#22.
........##22.
.......###2##
........222##
.......222222
......##22222
......###22##
........222##
........22222
........###2.
........####.
..........#..
.............
.............
)");
}

} // namespace
} // namespace terminal
