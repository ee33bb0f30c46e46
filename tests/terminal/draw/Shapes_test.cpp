#include "terminal/draw/Shapes.h"
#include "tests/terminal/draw/Ascii.h"

#include <gtest/gtest.h>

#include <iterator>

namespace terminal {
namespace {

constexpr Paint colour_2{2, nullptr};

Pen pen(int width, std::uint16_t art = 0xFFFF) { return {{1, nullptr}, width, art}; }

std::string line(int width, int height, bool rising, const Pen& with)
{
    return drawn(8, 5, [&](const View& view) { draw_line(view.inside({1, 1, 99, 99}), width, height, rising, with); });
}

TEST(Line, RunsFromTopLeftToBottomRight)
{
    EXPECT_EQ(line(6, 3, false, pen(1)), R"(
........
.##.....
...##...
.....##.
........
)");
}

TEST(Line, RunsFromBottomLeftToTopRight)
{
    EXPECT_EQ(line(6, 3, true, pen(1)), R"(
........
.....##.
...##...
.##.....
........
)");
}

TEST(Line, MayBeSteep)
{
    EXPECT_EQ(line(2, 4, false, pen(1)), R"(
........
.#......
.#......
..#.....
..#.....
)");
}

TEST(Line, MayBeHorizontalVerticalOrOnePixel)
{
    EXPECT_EQ(line(6, 1, false, pen(1)), R"(
........
.######.
........
........
........
)");
    EXPECT_EQ(line(1, 3, true, pen(1)), R"(
........
.#......
.#......
.#......
........
)");
    EXPECT_EQ(line(1, 1, false, pen(1)), R"(
........
.#......
........
........
........
)");
}

TEST(Line, CoversTheSamePixelsFromEitherEnd)
{
    for (const Position end : {Position{9, 4}, Position{4, 9}, Position{7, 7}, Position{9, 0}, Position{8, 3}}) {
        for (const int width : {1, 2, 3}) {
            EXPECT_EQ(drawn(14, 14,
                            [&](const View& view) {
                                stroke(view, pen(width), {1, 1}, end);
                            }),
                      drawn(14, 14, [&](const View& view) {
                          stroke(view, pen(width), end, {1, 1});
                      }));
        }
    }
}

TEST(Line, OfWidthTwoIsDrawnByATwoPixelSquareInsideItsBox)
{
    EXPECT_EQ(line(4, 4, false, pen(2)), R"(
........
.##.....
.###....
..###...
...##...
)");
    EXPECT_EQ(line(6, 2, false, pen(2)), R"(
........
.######.
.######.
........
........
)");
}

TEST(Line, OfWidthThreeIsCutByABoxThatIsLower)
{
    EXPECT_EQ(line(5, 2, false, pen(3)), R"(
........
.#####..
.#####..
........
........
)");
}

TEST(Line, WithoutWidthOrInAnEmptyBoxIsNotDrawn)
{
    const std::string nothing = drawn(8, 5, [](const View&) {});
    EXPECT_EQ(line(6, 3, false, pen(0)), nothing);
    EXPECT_EQ(line(0, 3, false, pen(1)), nothing);
    EXPECT_EQ(line(3, 0, false, pen(1)), nothing);
}

TEST(LineArt, GoesFromTheMostSignificantBitOn)
{
    EXPECT_EQ(drawn(20, 1, [](const View& view) { draw_line(view, 20, 1, false, pen(1, 0xF0C1)); }),
              "\n####....##.....#####\n");
}

TEST(LineArt, TakesAsManyPixelsABitAsTheLineIsWide)
{
    EXPECT_EQ(drawn(12, 2, [](const View& view) { draw_line(view, 12, 2, false, pen(2, 0xA800)); }), R"(
##..##..##..
##..##..##..
)");
}

TEST(LineArt, OfARisingLineStartsAtTheBottom)
{
    EXPECT_EQ(drawn(2, 6, [](const View& view) { draw_line(view, 1, 6, true, pen(1, 0xC000)); }), R"(
..
..
..
..
#.
#.
)");
}

std::string rectangle(int width, int height, unsigned suppressed, const Pen& with, const Paint* fill = nullptr)
{
    return drawn(7, 6, [&](const View& view) {
        draw_rectangle(view.inside({1, 1, 99, 99}), width, height, suppressed, with, fill);
    });
}

TEST(Rectangle, DrawsItsBorderInside)
{
    EXPECT_EQ(rectangle(5, 4, 0, pen(1)), R"(
.......
.#####.
.#...#.
.#...#.
.#####.
.......
)");
    EXPECT_EQ(rectangle(6, 5, 0, pen(2), &colour_2), R"(
.......
.######
.######
.##22##
.######
.######
)");
}

TEST(Rectangle, LeavesOutEachSuppressedSide)
{
    EXPECT_EQ(rectangle(4, 3, top_side, pen(1)), R"(
.......
.#..#..
.#..#..
.####..
.......
.......
)");
    EXPECT_EQ(rectangle(4, 3, right_side, pen(1)), R"(
.......
.####..
.#.....
.####..
.......
.......
)");
    EXPECT_EQ(rectangle(4, 3, bottom_side, pen(1)), R"(
.......
.####..
.#..#..
.#..#..
.......
.......
)");
    EXPECT_EQ(rectangle(4, 3, left_side, pen(1)), R"(
.......
.####..
....#..
.####..
.......
.......
)");
}

TEST(Rectangle, FillsUpToTheEdgeWhereNoSideIsDrawn)
{
    EXPECT_EQ(rectangle(4, 3, top_side | left_side, pen(1), &colour_2), R"(
.......
.222#..
.222#..
.####..
.......
.......
)");
    EXPECT_EQ(rectangle(4, 3, 15, pen(1), &colour_2), R"(
.......
.2222..
.2222..
.2222..
.......
.......
)");
}

TEST(Rectangle, ThinnerThanItsPenIsAllBorder)
{
    EXPECT_EQ(rectangle(4, 2, 0, pen(3), &colour_2), R"(
.......
.####..
.####..
.......
.......
.......
)");
    EXPECT_EQ(rectangle(0, 4, 0, pen(1), &colour_2), drawn(7, 6, [](const View&) {}));
}

TEST(Rectangle, StartsItsLineArtAtEachCornerClockwise)
{
    EXPECT_EQ(rectangle(6, 5, 0, pen(1, 0xE000)), R"(
.......
.###..#
......#
.#....#
.#.....
.#..###
)");
}

TEST(Rectangle, OfTheLargestSizeIsCutToWhatIsVisible)
{
    EXPECT_EQ(drawn(4, 3,
                    [](const View& view) {
                        draw_rectangle(view.inside({-65532, -65533, 99, 99}), 65535, 65535, 0, pen(1), &colour_2);
                    }),
              R"(
22#.
###.
....
)");
}

} // namespace
} // namespace terminal
