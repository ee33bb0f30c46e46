#include "terminal/draw/Pictures.h"
#include "tests/terminal/draw/Ascii.h"

#include <gtest/gtest.h>

#include <vector>

namespace terminal {
namespace {

using Bytes = std::vector<std::uint8_t>;

Picture picture(const Bytes& bytes, int width, int height, int bits)
{
    return {bytes.data(), bytes.size(), width, height, bits, false, -1};
}

Picture runs(const Bytes& bytes, int width, int height, int bits)
{
    return {bytes.data(), bytes.size(), width, height, bits, true, -1};
}

std::string shown(const Picture& what, int width, int canvas_width, int canvas_height)
{
    return drawn(canvas_width, canvas_height, [&](const View& view) { draw_picture(view, what, width); });
}

/// The same where everything was of colour 1.
std::string shown_on_1(const Picture& what, int width, int canvas_width, int canvas_height)
{
    return drawn(canvas_width, canvas_height, [&](const View& view) {
        view.fill(view.visible(), 1);
        draw_picture(view, what, width);
    });
}

const Bytes two_by_two{2, 3, 4, 5};

TEST(Picture, OfOneBitStartsEachRowOnAByte)
{
    const Bytes bytes{0b10110000, 0b01000000, 0b01010101, 0b10111111};
    EXPECT_EQ(shown(picture(bytes, 10, 2, 1), 10, 11, 3), R"(
#.##.....#.
.#.#.#.##..
...........
)");
}

TEST(Picture, OfFourBitsHasTheLeftPixelInTheHighNibble)
{
    EXPECT_EQ(shown(picture({0x12, 0x30, 0x45, 0x6F}, 3, 2, 4), 3, 4, 3), R"(
#23.
456.
....
)");
}

TEST(Picture, OfEightBitsHasAByteAPixel)
{
    EXPECT_EQ(shown(picture({2, 3, 10, 35, 1, 0}, 3, 2, 8), 3, 4, 3), R"(
23a.
z#..
....
)");
}

TEST(Picture, LeavesTransparentPixelsOut)
{
    Picture some = picture(two_by_two, 2, 2, 8);
    some.transparent = 4;
    EXPECT_EQ(shown_on_1(some, 2, 2, 2), "\n23\n#5\n");
}

TEST(Picture, GrowsByWholePixels)
{
    EXPECT_EQ(shown(picture(two_by_two, 2, 2, 8), 4, 5, 5), R"(
2233.
2233.
4455.
4455.
.....
)");
    EXPECT_EQ(shown(picture(two_by_two, 2, 2, 8), 5, 5, 5), R"(
22233
22233
22233
44455
44455
)");
}

TEST(Picture, ShrinksByLeavingPixelsOut)
{
    EXPECT_EQ(shown(picture({1, 2, 3, 4, 5, 6, 7, 8}, 4, 2, 8), 2, 3, 2), "\n#3.\n...\n");
    EXPECT_EQ(shown(picture({1, 2, 3, 4, 5, 6, 7, 8, 9}, 3, 3, 8), 2, 3, 3), "\n#2.\n45.\n...\n");
}

TEST(Picture, KeepsItsProportionsRoundedDown)
{
    EXPECT_EQ(drawn_height({nullptr, 0, 32, 16}, 64), 32);
    EXPECT_EQ(drawn_height({nullptr, 0, 3, 2}, 4), 2);
    EXPECT_EQ(drawn_height({nullptr, 0, 100, 1}, 99), 0);
    EXPECT_EQ(drawn_height({nullptr, 0, 0, 1}, 99), 0);
    EXPECT_GT(drawn_height({nullptr, 0, 1, 65535}, 65535), 1 << 24);
}

TEST(Picture, IsCutAtEachSide)
{
    const Bytes bytes{1, 2, 3, 4, 5, 6, 7, 8, 9};
    const Picture some = picture(bytes, 3, 3, 8);
    EXPECT_EQ(drawn(2, 2, [&](const View& view) { draw_picture(view.inside({-1, -1, 9, 9}), some, 3); }), "\n56\n89\n");
    EXPECT_EQ(drawn(2, 2, [&](const View& view) { draw_picture(view.inside({1, 1, 9, 9}), some, 3); }), "\n..\n.#\n");
    EXPECT_EQ(drawn(2, 2, [&](const View& view) { draw_picture(view.inside({-4, -4, 9, 9}), some, 6); }), "\n99\n99\n");
    EXPECT_EQ(drawn(2, 2, [&](const View& view) { draw_picture(view.inside({-3, 0, 9, 9}), some, 3); }), "\n..\n..\n");
}

TEST(Picture, OfOneBitMayBeCutInTheMiddleOfAByte)
{
    const Bytes bytes{0b11111010, 0b10000000};
    EXPECT_EQ(drawn(4, 1,
                    [&](const View& view) {
                        draw_picture(view.inside({-5, 0, 9, 9}), picture(bytes, 9, 1, 1), 9);
                    }),
              "\n.#.#\n");
}

TEST(Picture, WithoutASizeIsNotDrawn)
{
    const std::string nothing = "\n..\n..\n";
    EXPECT_EQ(shown(picture(two_by_two, 0, 2, 8), 2, 2, 2), nothing);
    EXPECT_EQ(shown(picture(two_by_two, 2, 0, 8), 2, 2, 2), nothing);
    EXPECT_EQ(shown(picture(two_by_two, 2, 2, 8), 0, 2, 2), nothing);
}

TEST(Picture, WithTooFewBytesLeavesTheRestUndrawn)
{
    EXPECT_EQ(shown_on_1(picture({2, 3, 4}, 2, 2, 8), 2, 2, 2), "\n23\n4#\n");
    EXPECT_EQ(shown_on_1(picture({}, 2, 2, 8), 2, 2, 2), "\n##\n##\n");
}

TEST(RunLengthPicture, IsPairsOfCountAndValueAcrossRows)
{
    EXPECT_EQ(shown(runs({3, 2, 1, 3, 2, 4}, 3, 2, 8), 3, 4, 3), R"(
222.
344.
....
)");
    EXPECT_EQ(shown(runs({3, 0x12}, 2, 3, 4), 2, 3, 3), "\n#2.\n#2.\n#2.\n");
    EXPECT_EQ(shown(runs({1, 0xF0, 1, 0x0F}, 8, 2, 1), 8, 8, 2), "\n####....\n....####\n");
}

TEST(RunLengthPicture, SkipsRunsOfNothing)
{
    EXPECT_EQ(shown(runs({0, 9, 1, 2, 0, 9, 1, 3}, 2, 1, 8), 2, 2, 1), "\n23\n");
}

TEST(RunLengthPicture, ThatEndsEarlyLeavesTheRestUndrawn)
{
    EXPECT_EQ(shown_on_1(runs({3, 2}, 2, 2, 8), 2, 2, 2), "\n22\n2#\n");
    EXPECT_EQ(shown_on_1(runs({3, 2, 7}, 2, 2, 8), 2, 2, 2), "\n22\n2#\n");
}

TEST(RunLengthPicture, ThatRunsOverIsCut)
{
    EXPECT_EQ(shown(runs({255, 2, 255, 3}, 2, 2, 8), 2, 3, 3), "\n22.\n22.\n...\n");
}

TEST(RunLengthPicture, GrowsAndShrinksAsAPlainOne)
{
    Bytes plain;
    Bytes packed;
    for (std::uint8_t i = 0; i < 7 * 5; ++i) {
        plain.push_back(i);
        packed.insert(packed.end(), {1, i});
    }
    for (int width = 1; width < 25; ++width) {
        EXPECT_EQ(shown(runs(packed, 7, 5, 8), width, 20, 20), shown(picture(plain, 7, 5, 8), width, 20, 20));
        EXPECT_EQ(drawn(6, 6,
                        [&](const View& view) {
                            draw_picture(view.inside({-3, -2, 99, 99}), runs(packed, 7, 5, 8), width);
                        }),
                  drawn(6, 6, [&](const View& view) {
                      draw_picture(view.inside({-3, -2, 99, 99}), picture(plain, 7, 5, 8), width);
                  }));
    }
}

TEST(Picture, OfTheLargestSizeIsDrawnWhereItIsVisible)
{
    const Bytes one_run{255, 7};
    EXPECT_EQ(shown(runs(one_run, 65535, 65535, 8), 65535, 3, 2), "\n777\n...\n");
    EXPECT_EQ(shown(picture(one_run, 65535, 65535, 1), 65535, 3, 2), "\n###\n...\n");
    EXPECT_EQ(shown(picture(one_run, 1, 65535, 8), 65535, 3, 2), "\n???\n???\n");
    EXPECT_EQ(shown(runs(one_run, 65535, 65535, 8), 2, 3, 2), "\n7..\n...\n");
}

TEST(Tiling, RepeatsThePictureFromTheTopLeftCorner)
{
    EXPECT_EQ(drawn(5, 3, [](const View& view) { tile_picture(view, picture(two_by_two, 2, 2, 8)); }), R"(
23232
45454
23232
)");
    EXPECT_EQ(drawn(5, 3,
                    [](const View& view) {
                        tile_picture(view.inside({-1, -1, 4, 2}), picture(two_by_two, 2, 2, 8));
                    }),
              R"(
5454.
3232.
.....
)");
}

TEST(Tiling, RepeatsAPictureOnePixelWideOrHigh)
{
    EXPECT_EQ(drawn(4, 3, [](const View& view) { tile_picture(view, picture(two_by_two, 1, 2, 8)); }),
              "\n2222\n3333\n2222\n");
    EXPECT_EQ(drawn(4, 3, [](const View& view) { tile_picture(view, picture(two_by_two, 2, 1, 8)); }),
              "\n2323\n2323\n2323\n");
}

TEST(Tiling, UnpacksRunsOverAndOver)
{
    EXPECT_EQ(drawn(7, 5,
                    [](const View& view) {
                        tile_picture(view, runs({2, 2, 2, 3, 2, 4}, 3, 2, 8));
                    }),
              R"(
2232232
3443443
2232232
3443443
2232232
)");
}

TEST(Tiling, LeavesTransparentPixelsAsTheyWere)
{
    Picture some = picture(two_by_two, 2, 2, 8);
    some.transparent = 3;
    EXPECT_EQ(drawn(4, 2, [&](const View& view) { tile_picture(view, some); }), "\n2.2.\n4545\n");
}

TEST(Picture, DrawsColourZeroAsAnyOther) { EXPECT_EQ(shown_on_1(picture({0, 2, 0}, 3, 1, 8), 3, 3, 1), "\n.2.\n"); }

TEST(Picture, WiderThanAStripIsDrawnWhole)
{
    constexpr int width = 2100;
    Bytes bytes;
    for (int x = 0; x < width; ++x)
        bytes.push_back(static_cast<std::uint8_t>(x * 7 % 251));
    Canvas canvas(width + 1, 1);
    canvas.view().fill(canvas.area(), 255);
    draw_picture(canvas.view(), picture(bytes, width, 1, 8), width);
    for (int x = 0; x < width; ++x)
        ASSERT_EQ(canvas.row(0)[x], bytes[static_cast<std::size_t>(x)]) << x;
    EXPECT_EQ(canvas.row(0)[width], 255);
}

TEST(Picture, ShowsTheNearestPixelAboveAndLeftAtEveryScaleAndPlace)
{
    Bytes bytes;
    for (std::uint8_t i = 0; i < 7 * 5; ++i)
        bytes.push_back(i);
    const Picture some = picture(bytes, 7, 5, 8);
    for (int width = 1; width < 30; ++width) {
        const int height = width * 5 / 7;
        for (const Position corner : {Position{0, 0}, Position{-4, -3}, Position{5, 2}}) {
            Canvas canvas(16, 16);
            canvas.view().fill(canvas.area(), 255);
            draw_picture(canvas.view().inside({corner.x, corner.y, 99, 99}), some, width);
            for (int y = 0; y < 16; ++y) {
                for (int x = 0; x < 16; ++x) {
                    const Position place{x - corner.x, y - corner.y};
                    const bool covered = place.x >= 0 && place.x < width && place.y >= 0 && place.y < height;
                    const int expected = covered ? place.y * 7 / width * 7 + place.x * 7 / width : 255;
                    ASSERT_EQ(canvas.row(y)[x], expected) << width << " wide: " << x << " " << y;
                }
            }
        }
    }
}

TEST(Tiling, ShowsThePixelOfEachPlaceWhereverItStarts)
{
    Bytes bytes;
    for (std::uint8_t i = 0; i < 5 * 3; ++i)
        bytes.push_back(i);
    for (const Position corner : {Position{0, 0}, Position{-4, -1}, Position{-9, -8}, Position{2, 3}}) {
        Canvas canvas(16, 16);
        canvas.view().fill(canvas.area(), 255);
        tile_picture(canvas.view().inside({corner.x, corner.y, 12, 13}), picture(bytes, 5, 3, 8));
        for (int y = 0; y < 16; ++y) {
            for (int x = 0; x < 16; ++x) {
                const bool covered = x >= corner.x && y >= corner.y && x < 12 && y < 13;
                ASSERT_EQ(canvas.row(y)[x], covered ? (y - corner.y) % 3 * 5 + (x - corner.x) % 5 : 255)
                    << x << " " << y;
            }
        }
    }
}

TEST(Tiling, WithoutASizeDrawsNothing)
{
    EXPECT_EQ(drawn(2, 1, [](const View& view) { tile_picture(view, picture(two_by_two, 0, 2, 8)); }), "\n..\n");
    EXPECT_EQ(drawn(2, 1, [](const View& view) { tile_picture(view, picture(two_by_two, 2, 0, 8)); }), "\n..\n");
}

} // namespace
} // namespace terminal
