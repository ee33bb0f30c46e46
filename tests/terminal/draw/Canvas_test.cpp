#include "tests/terminal/draw/Ascii.h"

#include <gtest/gtest.h>

namespace terminal {
namespace {

TEST(Canvas, FillsExactlyTheArea)
{
    EXPECT_EQ(drawn(5, 4,
                    [](const View& view) {
                        view.fill({1, 1, 4, 3}, 1);
                    }),
              R"(
.....
.###.
.###.
.....
)");
}

TEST(Canvas, CutsAnAreaAtEachSide)
{
    EXPECT_EQ(drawn(4, 4,
                    [](const View& view) {
                        view.fill({-5, 1, 1, 3}, 1);
                    }),
              R"(
....
#...
#...
....
)");
    EXPECT_EQ(drawn(4, 4,
                    [](const View& view) {
                        view.fill({3, 1, 9, 3}, 1);
                    }),
              R"(
....
...#
...#
....
)");
    EXPECT_EQ(drawn(4, 4,
                    [](const View& view) {
                        view.fill({1, -70000, 3, 1}, 1);
                    }),
              R"(
.##.
....
....
....
)");
    EXPECT_EQ(drawn(4, 4,
                    [](const View& view) {
                        view.fill({1, 3, 3, 70000}, 1);
                    }),
              R"(
....
....
....
.##.
)");
}

TEST(Canvas, LeavesAnEmptyAreaAlone)
{
    EXPECT_EQ(drawn(3, 1, [](const View& view) { view.fill({2, 0, 1, 1}, 1); }), "\n...\n");
    EXPECT_EQ(drawn(3, 1, [](const View& view) { view.fill({0, 1, 3, 0}, 1); }), "\n...\n");
}

TEST(View, StartsAtTheCornerOfItsArea)
{
    EXPECT_EQ(drawn(5, 3,
                    [](const View& view) {
                        view.inside({2, 1, 5, 3}).fill({0, 0, 1, 1}, 1);
                    }),
              R"(
.....
..#..
.....
)");
}

TEST(View, IsCutByEveryViewItLiesIn)
{
    EXPECT_EQ(drawn(6, 4,
                    [](const View& view) {
                        const View outer = view.inside({1, 1, 5, 3});
                        outer.inside({-3, -3, 2, 9}).fill({0, 0, 99, 99}, 1);
                        outer.inside({3, 1, 99, 99}).fill({-99, -99, 99, 99}, 2);
                    }),
              R"(
......
.##...
.##.2.
......
)");
}

TEST(View, SeesNothingOutsideItsParent)
{
    Canvas canvas(4, 4);
    EXPECT_FALSE(canvas.view().inside({3, 3, 9, 9}).sees_nothing());
    EXPECT_TRUE(canvas.view().inside({4, 0, 9, 9}).sees_nothing());
    EXPECT_TRUE(canvas.view().inside({0, 0, 2, 2}).inside({2, 2, 3, 3}).sees_nothing());
}

TEST(View, FillsWithThePixelsOfAPattern)
{
    Canvas pattern(4, 2);
    pattern.view().fill(pattern.area(), 2);
    pattern.view().fill({2, 0, 4, 2}, 3);
    EXPECT_EQ(drawn(4, 2,
                    [&](const View& view) {
                        view.inside({1, 0, 9, 9}).fill({0, 0, 2, 1}, Paint{0, &pattern});
                    }),
              R"(
.23.
....
)");
}

TEST(Canvas, IsNeverSmallerThanNothing)
{
    const Canvas canvas(-3, -2);
    EXPECT_EQ(canvas.width(), 0);
    EXPECT_EQ(canvas.height(), 0);
}

TEST(View, CopiesWhatItSeesToACanvasThatTakesItsSize)
{
    Canvas from(4, 3);
    from.view().fill(from.area(), 5);
    for (const Area& size : {Area{0, 0, 4, 3}, Area{0, 0, 4, 2}, Area{0, 0, 3, 3}, Area{}}) {
        Canvas copy(size.right, size.bottom);
        from.view().copy_to(copy);
        EXPECT_EQ(ascii(copy), "\n5555\n5555\n5555\n");
    }
    Canvas copy(4, 3);
    copy.view().fill(copy.area(), 1);
    from.view().inside({1, 1, 3, 3}).copy_to(copy);
    EXPECT_EQ(ascii(copy), "\n####\n#55#\n#55#\n");
}

} // namespace
} // namespace terminal
