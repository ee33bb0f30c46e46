#include "terminal/draw/Glyphs.h"
#include "tests/terminal/draw/Ascii.h"
#include "tests/terminal/draw/Golden.h"

#include "iso11783/Font_size.h"
#include "iso11783/Palette.h"
#include "terminal/draw/Small_font.h"
#include "terminal/draw/Text.h"

#include <stdexcept>

namespace terminal {
namespace {

std::string shown(std::uint8_t size, std::uint8_t character, bool is_bold = false, bool is_italic = false)
{
    Glyphs glyphs;
    const Iso::Font_size cell = Iso::font_size(size);
    return drawn(cell.width, cell.height, [&](const View& view) {
        for (const Glyph_run& run : glyphs.glyph(size, is_bold, is_italic, character))
            view.fill({run.left, run.y, run.right, run.y + 1}, 1);
    });
}

TEST(SmallFont, FillsItsCell)
{
    EXPECT_EQ(shown(0, 'A'), R"(
.###..
#...#.
#...#.
#####.
#...#.
#...#.
#...#.
......
)");
    EXPECT_EQ(shown(1, 'g'), R"(
........
........
..####..
.#...#..
.#...#..
..####..
.....#..
..###...
)");
}

TEST(SmallFont, MakesRoomForTheAccentOfACapital)
{
    EXPECT_EQ(shown(0, 0xC4), R"(
.#.#..
......
.###..
#...#.
#####.
#...#.
#...#.
......
)");
}

TEST(SmallFont, IsBoldWithoutClosingGaps)
{
    EXPECT_EQ(shown(0, 'm', true), R"(
......
......
##.##.
#.#.##
#.#.##
#.#.##
#.#.##
......
)");
}

TEST(SmallFont, LeansToTheRightInItalics)
{
    EXPECT_EQ(shown(0, 'I', false, true), R"(
..###.
...#..
...#..
...#..
..#...
..#...
.###..
......
)");
}

TEST(SmallFont, HasEveryCharacterOfIso8859_1AndNoOther)
{
    for (unsigned c = 0; c < 256; ++c) {
        bool blank = true;
        for (const std::uint8_t row : small_glyph(static_cast<std::uint8_t>(c)))
            blank = blank && row == 0;
        const bool space = c == 32 || c == 160;
        const bool undefined = c < 32 || (c >= 127 && c < 160);
        EXPECT_EQ(blank, space || undefined) << c;
    }
}

TEST(Glyphs, LieInsideTheirCell)
{
    Glyphs glyphs;
    for (std::uint8_t size = 0; size < 15; ++size) {
        const Iso::Font_size cell = Iso::font_size(size);
        for (unsigned style = 0; style < 4; ++style) {
            for (unsigned c = 0; c < 256; ++c) {
                for (const Glyph_run& run : glyphs.glyph(size, style & 1, style & 2, static_cast<std::uint8_t>(c))) {
                    ASSERT_LT(run.left, run.right);
                    ASSERT_LE(run.right, cell.width);
                    ASSERT_LT(run.y, cell.height);
                }
            }
        }
    }
}

TEST(Glyphs, AreNeverTwoAlikeInAnySize)
{
    Glyphs glyphs;
    for (std::uint8_t size = 0; size < 15; ++size) {
        std::vector<std::string> seen;
        for (unsigned c = 33; c < 127; ++c) {
            std::string bytes;
            for (const Glyph_run& run : glyphs.glyph(size, false, false, static_cast<std::uint8_t>(c)))
                bytes += {static_cast<char>(run.y), static_cast<char>(run.left), static_cast<char>(run.right)};
            EXPECT_FALSE(bytes.empty());
            EXPECT_EQ(std::count(seen.begin(), seen.end(), bytes), 0) << "size " << +size << ", character " << c;
            seen.push_back(bytes);
        }
    }
}

TEST(Glyphs, ReachFromTheTopOfTheCellToItsBottom)
{
    Glyphs glyphs;
    for (std::uint8_t size = 2; size < 15; ++size) {
        const Iso::Font_size cell = Iso::font_size(size);
        const Glyph capital = glyphs.glyph(size, false, false, 'E');
        EXPECT_LE(capital.begin()->y, cell.height / 16) << +size;
        const Glyph descender = glyphs.glyph(size, false, false, 'p');
        EXPECT_GE((descender.end() - 1)->y, cell.height - 1 - cell.height / 12) << +size;
    }
}

TEST(Glyphs, TellWhichFontIsMissing)
{
    try {
        Glyphs glyphs("/nowhere");
        FAIL() << "there is no font";
    } catch (const std::runtime_error& error) {
        EXPECT_NE(std::string(error.what()).find("/nowhere/DejaVuSansMono.ttf"), std::string::npos);
    }
}

TEST(Glyphs, LookAsTheyDidInEverySizeAndStyle)
{
    Glyphs glyphs;
    const std::string_view sample = "AaBgRm0123456789%-.:() \xC4\xE9\xDF\xB0";
    constexpr std::uint8_t styles[] = {0, bold, italic, bold | italic, underlined, crossed_out};
    for (std::uint8_t size = 0; size < 15; ++size) {
        const Iso::Font_size cell = Iso::font_size(size);
        const int width = cell.width * static_cast<int>(sample.size());
        const bool large = cell.width > 32; // the styles of the largest sizes would only be large files
        const int rows = large ? 1 : 6;
        Canvas canvas(width, rows * cell.height);
        canvas.view().fill(canvas.area(), 1);
        for (int row = 0; row < rows; ++row)
            draw_text(canvas.view().inside({0, row * cell.height, width, (row + 1) * cell.height}), glyphs, sample,
                      {0, size, styles[row]}, width, cell.height, 0, {});
        QImage image(canvas.width(), canvas.height(), QImage::Format_Mono);
        image.setColorTable({qRgb(0, 0, 0), qRgb(255, 255, 255)});
        for (int y = 0; y < canvas.height(); ++y) {
            for (int x = 0; x < canvas.width(); ++x)
                image.setPixel(x, y, canvas.row(y)[x]);
        }
        EXPECT_TRUE(matches_golden(image, "font_" + std::to_string(size)));
    }
}

} // namespace
} // namespace terminal
