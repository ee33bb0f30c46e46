#include "terminal/draw/Text.h"
#include "tests/terminal/draw/Ascii.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace terminal {
namespace {

constexpr Wrapping at_spaces{true, false};
constexpr Wrapping after_hyphens{true, true};

std::vector<std::string> lines(std::string_view text, std::size_t columns, Wrapping wrapping)
{
    std::vector<std::string> result;
    while (!text.empty())
        result.emplace_back(take_line(text, columns, wrapping));
    return result;
}

using Lines = std::vector<std::string>;

TEST(TextLines, AreOneWithoutWrapping) { EXPECT_EQ(lines("one two-three", 4, {}), Lines({"one two-three"})); }

TEST(TextLines, BreakAtSpaces)
{
    EXPECT_EQ(lines("one two three", 7, at_spaces), Lines({"one two", "three"}));
    EXPECT_EQ(lines("one two three", 6, at_spaces), Lines({"one", "two", "three"}));
    EXPECT_EQ(lines("one two", 7, at_spaces), Lines({"one two"}));
}

TEST(TextLines, SwallowTheSpacesTheyBreakAt)
{
    EXPECT_EQ(lines("one    two", 5, at_spaces), Lines({"one", "two"}));
    EXPECT_EQ(lines("one    ", 3, at_spaces), Lines({"one"}));
    EXPECT_EQ(lines("one    ", 3, {}), Lines({"one"}));
}

TEST(TextLines, KeepSpacesAtTheStart) { EXPECT_EQ(lines("  one two", 5, at_spaces), Lines({"  one", "two"})); }

TEST(TextLines, CutAWordThatIsTooLong)
{
    EXPECT_EQ(lines("abcdefgh ij", 3, at_spaces), Lines({"abc", "def", "gh", "ij"}));
    EXPECT_EQ(lines("a bcdefgh", 3, at_spaces), Lines({"a", "bcd", "efg", "h"}));
    EXPECT_EQ(lines("abc", 1, at_spaces), Lines({"a", "b", "c"}));
}

TEST(TextLines, BreakAfterHyphensOnlyIfAsked)
{
    EXPECT_EQ(lines("one-two three", 8, at_spaces), Lines({"one-two", "three"}));
    EXPECT_EQ(lines("one two-three", 8, at_spaces), Lines({"one", "two-thre", "e"}));
    EXPECT_EQ(lines("one two-three", 8, after_hyphens), Lines({"one two-", "three"}));
    EXPECT_EQ(lines("one two-three", 7, after_hyphens), Lines({"one", "two-", "three"}));
}

TEST(TextLines, KeepAMinusWithItsNumber)
{
    EXPECT_EQ(lines("at -12 C", 4, after_hyphens), Lines({"at", "-12", "C"}));
    EXPECT_EQ(lines("-1234", 3, after_hyphens), Lines({"-12", "34"}));
}

TEST(TextLines, BreakAtCarriageReturnsAndLineFeeds)
{
    for (const Wrapping wrapping : {Wrapping{}, at_spaces}) {
        EXPECT_EQ(lines("a\nb\rc\r\nd", 5, wrapping), Lines({"a", "b", "c", "d"}));
        EXPECT_EQ(lines("a\n\nb", 5, wrapping), Lines({"a", "", "b"}));
        EXPECT_EQ(lines("a\n\rb", 5, wrapping), Lines({"a", "", "b"}));
        EXPECT_EQ(lines("\na \n", 5, wrapping), Lines({"", "a"}));
    }
}

TEST(TextLines, OfSpacesOnlyAreEmpty)
{
    EXPECT_EQ(lines("      ", 2, at_spaces), Lines({""}));
    EXPECT_EQ(lines("      a", 2, at_spaces), Lines({"", "a"}));
}

std::string text(std::string_view what, int width, int height, std::uint8_t justification, const Font& font = {1, 0, 0},
                 Wrapping wrapping = {})
{
    Glyphs glyphs;
    return drawn(width, height, [&](const View& view) {
        draw_text(view, glyphs, what, font, width, height, justification, wrapping);
    });
}

TEST(Text, IsJustifiedNineWays)
{
    // An I in a field of 11 x 12 pixels; its stem stands in column 2 of six, from row 0 to 6.
    const auto stem = [](std::uint8_t justification) {
        const std::string picture = text("I", 11, 12, justification);
        const std::size_t top = picture.find("###") - 1; // the first serif
        return Position{static_cast<int>(top % 12) + 1, static_cast<int>(top / 12)};
    };
    const auto expect_stem = [&](std::uint8_t justification, int x, int y) {
        EXPECT_EQ(stem(justification).x, x) << +justification;
        EXPECT_EQ(stem(justification).y, y) << +justification;
    };
    expect_stem(0, 2, 0);
    expect_stem(1, 4, 0);
    expect_stem(2, 7, 0);
    expect_stem(4, 2, 2);
    expect_stem(5, 4, 2);
    expect_stem(6, 7, 2);
    expect_stem(8, 2, 4);
    expect_stem(9, 4, 4);
    expect_stem(10, 7, 4);
}

TEST(Text, DoesNotCountSpacesAtTheEndWhenJustified)
{
    EXPECT_EQ(text("I  ", 30, 8, 2), text("I", 30, 8, 2));
    EXPECT_NE(text("  I", 30, 8, 2), text("I", 30, 8, 1));
}

TEST(Text, EndsAtANul) { EXPECT_EQ(text(std::string_view("I\0I", 3), 30, 8, 2), text("I", 30, 8, 2)); }

TEST(Text, IsCutAtItsField)
{
    EXPECT_EQ(text("HH", 9, 5, 0), R"(
#...#.#..
#...#.#..
#...#.#..
#####.###
#...#.#..
)");
    EXPECT_EQ(text("HH", 9, 5, 2), R"(
.#.#...#.
.#.#...#.
.#.#...#.
##.#####.
.#.#...#.
)");
}

TEST(Text, HasItsLinesBelowEachOther)
{
    EXPECT_EQ(text("I I", 7, 18, 8, {1, 0, 0}, at_spaces), R"(
.......
.......
.###...
..#....
..#....
..#....
..#....
..#....
.###...
.......
.###...
..#....
..#....
..#....
..#....
..#....
.###...
.......
)");
}

TEST(Text, IsUnderlinedAndCrossedOutAsFarAsItGoes)
{
    EXPECT_EQ(text("I ", 12, 8, 0, {1, 0, underlined}), R"(
.###........
..#.........
..#.........
..#.........
..#.........
..#.........
.###........
######......
)");
    EXPECT_EQ(text("I", 12, 8, 0, {1, 0, crossed_out}), R"(
.###........
..#.........
..#.........
..#.........
######......
..#.........
.###........
............
)");
}

TEST(Text, OfAnUnknownFontSizeIsNotDrawn)
{
    EXPECT_EQ(text("I", 3, 2, 0, {1, 15, 0}), "\n...\n...\n");
    EXPECT_EQ(text("I", 3, 2, 0, {1, 255, 0}), "\n...\n...\n");
}

TEST(Text, OfTheGreatestLengthIsDrawnOnlyWhereVisible)
{
    const std::string long_text(65535, 'H');
    Glyphs glyphs;
    EXPECT_EQ(
        drawn(4, 2,
              [&](const View& view) {
                  draw_text(view.inside({-600, -80, 9, 9}), glyphs, long_text, {1, 0, 0}, 65535, 65535, 0, at_spaces);
              }),
        "\n....\n....\n");
    EXPECT_EQ(
        drawn(4, 2,
              [&](const View& view) {
                  draw_text(view.inside({-600, -40, 9, 9}), glyphs, long_text, {1, 0, 0}, 1000, 65535, 0, at_spaces);
              }),
        "\n#...\n#...\n");
}

TEST(Text, MakesOnlyTheGlyphsThatAreVisible)
{
    const auto made = [](const Area& window) {
        Glyphs glyphs;
        drawn(window.width(), window.height(), [&](const View& view) {
            draw_text(view.inside({-window.left, -window.top, 99, 99}), glyphs, "abcdefgh\nijklmnop", {1, 0, 0}, 48, 16,
                      0, {});
        });
        constexpr int work_of_one = 512;
        return glyphs.work() / work_of_one;
    };
    EXPECT_EQ(made({0, 0, 48, 16}), 16);
    EXPECT_EQ(made({0, 0, 48, 8}), 8);
    EXPECT_EQ(made({0, 8, 48, 16}), 8);
    EXPECT_EQ(made({0, 7, 48, 9}), 16);
    EXPECT_EQ(made({6, 0, 18, 8}), 2);
    EXPECT_EQ(made({5, 0, 19, 8}), 4);
    EXPECT_EQ(made({42, 0, 60, 8}), 1);
    EXPECT_EQ(made({48, 0, 60, 8}), 0);
}

TEST(Text, HasThickerRulesInLargerSizes)
{
    const auto rules = [](std::uint8_t size) {
        const std::string picture = "\n" + text("\xA0", 1, 192, 0, {1, size, underlined | crossed_out});
        std::vector<Position> found; // from which row on, and how many
        for (int y = 0; y < 192; ++y) {
            const auto row = [&](int n) { return picture[2 + 2 * static_cast<std::size_t>(n)] == '#'; };
            if (row(y) && (y == 0 || !row(y - 1)))
                found.push_back({y, 0});
            if (row(y))
                ++found.back().y;
        }
        return found;
    };
    const auto expect_rules = [&](std::uint8_t size, Position crossing, Position under) {
        const std::vector<Position> found = rules(size);
        ASSERT_EQ(found.size(), 2u) << +size;
        EXPECT_EQ(found[0].x, crossing.x) << +size;
        EXPECT_EQ(found[0].y, crossing.y) << +size;
        EXPECT_EQ(found[1].x, under.x) << +size;
        EXPECT_EQ(found[1].y, under.y) << +size;
    };
    expect_rules(2, {6, 1}, {11, 1});
    expect_rules(5, {12, 1}, {23, 1});
    expect_rules(6, {15, 2}, {30, 2});
    expect_rules(8, {23, 3}, {45, 3});
    expect_rules(14, {90, 12}, {180, 12});
}

} // namespace
} // namespace terminal
