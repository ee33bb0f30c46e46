#include "terminal/draw/Shapes.h"
#include "tests/terminal/draw/Ascii.h"

#include <gtest/gtest.h>

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

} // namespace
} // namespace terminal
