#include "terminal/draw/Glyphs.h"
#include "tests/terminal/draw/Ascii.h"
#include "tests/terminal/draw/Golden.h"

#include "iso11783/Font_size.h"
#include "iso11783/Palette.h"
#include "terminal/draw/Small_font.h"
#include "terminal/draw/Text.h"

#include <QTemporaryDir>

#include <algorithm>
#include <fstream>
#include <map>
#include <ostream>
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

/// Rows of a cell, from `top` up to, but without, `bottom`.
struct Rows
{
    int top;
    int bottom;
};

/// One of the sixty ways to draw a character.
struct Kind
{
    std::uint8_t size;
    bool is_bold = false;
    bool is_italic = false;

    Glyph glyph(Glyphs& glyphs, unsigned character) const
    {
        return glyphs.glyph(size, is_bold, is_italic, static_cast<std::uint8_t>(character));
    }
    Rows rows(Glyphs& glyphs, int character) const
    {
        const Glyph runs = glyph(glyphs, static_cast<std::uint8_t>(character));
        return runs.count == 0 ? Rows{} : Rows{runs.begin()->y, (runs.end() - 1)->y + 1};
    }
    /// How many pieces lie above each other, with at least one empty row between them.
    int parts(Glyphs& glyphs, int character) const
    {
        int pieces = 0;
        int next_row = -1;
        for (const Glyph_run& run : glyph(glyphs, static_cast<std::uint8_t>(character))) {
            if (run.y > next_row)
                ++pieces;
            next_row = run.y + 1;
        }
        return pieces;
    }
    bool is_small() const { return Iso::font_size(size).height == small_glyph_height; }
    /// How many rows a round letter reaches beyond a flat one, as is the custom of typefaces.
    int overshoot() const { return (Iso::font_size(size).height + 40) / 80; }

    friend std::ostream& operator<<(std::ostream& out, const Kind& kind)
    {
        return out << ", size " << +kind.size << (kind.is_bold ? " bold" : "") << (kind.is_italic ? " italic" : "");
    }
};

std::vector<Kind> all_kinds()
{
    std::vector<Kind> kinds;
    for (std::uint8_t size = 0; size < 15; ++size) {
        for (const bool is_bold : {false, true}) {
            for (const bool is_italic : {false, true})
                kinds.push_back({size, is_bold, is_italic});
        }
    }
    return kinds;
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

TEST(SmallFont, TellsAnAccentedCapitalOFromASmallOne)
{
    EXPECT_EQ(shown(0, 0xD6), R"(
.#.#..
......
#####.
#...#.
#...#.
#...#.
#####.
......
)");
}

TEST(SmallFont, PutsEachAccentOnItsLetter)
{
    const auto expect_accent = [](std::uint8_t upper, std::uint8_t lower, std::string_view accented,
                                  std::string_view letters) {
        for (std::size_t i = 0; i < accented.size(); ++i) {
            const auto rows = small_glyph(static_cast<std::uint8_t>(accented[i]));
            const auto plain = small_glyph(static_cast<std::uint8_t>(letters[i]));
            EXPECT_EQ(rows[0], upper) << letters[i];
            EXPECT_EQ(rows[1], lower) << letters[i];
            const bool is_small = letters[i] >= 'a';
            const bool has_other_corners = letters[i] == 'O';
            const bool same = is_small ? std::equal(rows.begin() + 2, rows.end(), plain.begin() + 2)
                                       : rows[2] == plain[0] && rows[6] == plain[6] && rows[7] == 0;
            EXPECT_TRUE(same || has_other_corners) << letters[i];
        }
    };
    expect_accent(0b01000, 0b00100, "\xC0\xC8\xCC\xD2\xD9\xE0\xE8\xEC\xF2\xF9", "AEIOUaeiou");
    expect_accent(0b00010, 0b00100, "\xC1\xC9\xCD\xD3\xDA\xDD\xE1\xE9\xED\xF3\xFA\xFD", "AEIOUYaeiouy");
    expect_accent(0b00100, 0b01010, "\xC2\xCA\xCE\xD4\xDB\xE2\xEA\xEE\xF4\xFB", "AEIOUaeiou");
    expect_accent(0b01001, 0b10110, "\xC3\xD1\xD5\xE3\xF1\xF5", "ANOano");
    expect_accent(0b01010, 0b00000, "\xC4\xCB\xCF\xD6\xDC\xE4\xEB\xEF\xF6\xFC\xFF", "AEIOUaeiouy");
    expect_accent(0b01110, 0b01010, "\xC5\xE5", "Aa");
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
    for (const Kind& kind : all_kinds()) {
        const Iso::Font_size cell = Iso::font_size(kind.size);
        for (unsigned c = 0; c < 256; ++c) {
            for (const Glyph_run& run : kind.glyph(glyphs, c)) {
                ASSERT_LT(run.left, run.right) << c << kind;
                ASSERT_LE(run.right, cell.width) << c << kind;
                ASSERT_LT(run.y, cell.height) << c << kind;
            }
        }
    }
}

TEST(Glyphs, AreKeptInTwoMegabytesAllTogether)
{
    Glyphs glyphs;
    std::size_t runs = 0;
    for (const Kind& kind : all_kinds()) {
        for (unsigned c = 0; c < 256; ++c)
            runs += kind.glyph(glyphs, c).count;
    }
    EXPECT_GT(runs, 300'000u);
    EXPECT_LT(runs * sizeof(Glyph_run), 2'000'000u);
}

TEST(Glyphs, AreNeverTwoAlikeInAnySizeAndStyle)
{
    Glyphs glyphs;
    for (const Kind& kind : all_kinds()) {
        std::map<std::string, unsigned> seen;
        for (unsigned c = 33; c < 256; ++c) {
            const bool undefined = c >= 127 && c < 160;
            const bool looks_like_another = c == 160 || c == 0xAD; // the space and the hyphen where no line breaks
            if (undefined || looks_like_another)
                continue;
            std::string bytes;
            for (const Glyph_run& run : kind.glyph(glyphs, c))
                bytes += {static_cast<char>(run.y), static_cast<char>(run.left), static_cast<char>(run.right)};
            EXPECT_FALSE(bytes.empty()) << c << kind;
            const auto [same, is_new] = seen.emplace(bytes, c);
            EXPECT_TRUE(is_new) << c << " looks like " << same->second << kind;
        }
    }
}

constexpr std::string_view flat_on_top = "ABDEFHIJKLMNPRTUVWXYZ157";
constexpr std::string_view round_on_top = "CGOQS023689";
constexpr std::string_view flat_at_bottom = "ABDEFHIKLMNPRTVWXYZhiklmnrvwxz1247";
constexpr std::string_view round_at_bottom = "CGJOSUabcdeostu035689";
constexpr std::string_view accented = "\xC0\xC1\xC2\xC3\xC4\xC5\xC8\xC9\xCA\xCB\xCC\xCD\xCE\xCF\xD1\xD2\xD3\xD4\xD5\xD6"
                                      "\xD9\xDA\xDB\xDC\xDD\xE0\xE1\xE2\xE3\xE4\xE5\xE8\xE9\xEA\xEB\xEC\xED\xEE\xEF\xF1"
                                      "\xF2\xF3\xF4\xF5\xF6\xF9\xFA\xFB\xFC";

TEST(Glyphs, StandOnOneBaselineInEverySizeAndStyle)
{
    Glyphs glyphs;
    for (const Kind& kind : all_kinds()) {
        const int baseline = kind.rows(glyphs, 'E').bottom;
        EXPECT_EQ(baseline, Kind{kind.size}.rows(glyphs, 'E').bottom) << "as when neither bold nor italic" << kind;
        for (const char c : flat_at_bottom)
            EXPECT_EQ(kind.rows(glyphs, c).bottom, baseline) << c << kind;
        for (const std::string_view letters : {round_at_bottom, accented}) {
            for (const char c : letters) {
                EXPECT_GE(kind.rows(glyphs, c).bottom, baseline) << c << kind;
                EXPECT_LE(kind.rows(glyphs, c).bottom, baseline + kind.overshoot()) << c << kind;
            }
        }
        for (const char c : std::string_view("gjpqy"))
            EXPECT_GT(kind.rows(glyphs, c).bottom, baseline + kind.overshoot()) << c << kind;
    }
}

TEST(Glyphs, ShareTheHeightOfCapitalsAndOfSmallLettersInEverySizeAndStyle)
{
    Glyphs glyphs;
    for (const Kind& kind : all_kinds()) {
        const int capital = kind.rows(glyphs, 'E').top;
        const int small = kind.rows(glyphs, 'x').top;
        EXPECT_EQ(capital, Kind{kind.size}.rows(glyphs, 'E').top) << "as when neither bold nor italic" << kind;
        EXPECT_EQ(small, Kind{kind.size}.rows(glyphs, 'x').top) << "as when neither bold nor italic" << kind;
        for (const char c : flat_on_top)
            EXPECT_EQ(kind.rows(glyphs, c).top, capital) << c << kind;
        for (const char c : round_on_top)
            EXPECT_NEAR(kind.rows(glyphs, c).top, capital, kind.overshoot()) << c << kind;
        for (const char c : std::string_view("acegmnopqrsuvwyz"))
            EXPECT_NEAR(kind.rows(glyphs, c).top, small, kind.overshoot()) << c << kind;
        for (const char c : std::string_view("bdhkl")) {
            EXPECT_LE(kind.rows(glyphs, c).top, capital) << c << kind;
            EXPECT_EQ(kind.rows(glyphs, c).top, kind.rows(glyphs, 'b').top) << c << kind;
        }
    }
}

TEST(Glyphs, HaveTheirAccentsClearOfThem)
{
    Glyphs glyphs;
    for (const Kind& kind : all_kinds()) {
        if (kind.is_small())
            continue; // eight rows have room for dots, but not for all accents
        for (const char c : std::string_view("\xC0\xC1\xC2\xC4\xC8\xC9\xCA\xCB\xD2\xD3\xD4\xD6\xD9\xDA\xDB\xDC"))
            EXPECT_EQ(kind.parts(glyphs, c), 2) << +static_cast<std::uint8_t>(c) << kind;
    }
}

TEST(Glyphs, AreLegibleInEverySize)
{
    Glyphs glyphs;
    for (std::uint8_t size = 0; size < 15; ++size) {
        const Kind kind{size};
        const int height = Iso::font_size(size).height;
        const Rows capital = kind.rows(glyphs, 'E');
        const Rows small = kind.rows(glyphs, 'x');
        EXPECT_GE((capital.bottom - capital.top) * 8, height * 5) << kind;
        EXPECT_GE((small.bottom - small.top) * 20, height * 9) << kind;
        EXPECT_LE((height - kind.rows(glyphs, 'p').bottom) * 50, height) << "nothing is wasted" << kind;
        EXPECT_LE(kind.rows(glyphs, 0xC5).top * 20, height) << "nothing is wasted" << kind;
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

TEST(Glyphs, OfAFontWithoutOutlinesAreBlank)
{
    // Made for exactly the height that size 2 asks for, so that FreeType has its pixels at hand.
    const std::string font = "STARTFONT 2.1\n"
                             "FONT -a-a-Medium-R-Normal--11-110-72-72-C-80-ISO10646-1\n"
                             "SIZE 11 72 72\n"
                             "FONTBOUNDINGBOX 8 11 0 0\n"
                             "STARTPROPERTIES 3\nPIXEL_SIZE 11\n"
                             "CHARSET_REGISTRY \"ISO10646\"\nCHARSET_ENCODING \"1\"\nENDPROPERTIES\n"
                             "CHARS 1\n"
                             "STARTCHAR A\nENCODING 65\nSWIDTH 727 0\nDWIDTH 8 0\nBBX 8 2 0 0\n"
                             "BITMAP\nFF\nFF\nENDCHAR\n"
                             "ENDFONT\n";
    const QTemporaryDir folder;
    for (const char* const name : {"/DejaVuSansMono.ttf", "/DejaVuSansMono-Bold.ttf"})
        std::ofstream(folder.path().toStdString() + name) << font;
    Glyphs glyphs(folder.path().toStdString());
    EXPECT_EQ(glyphs.glyph(2, false, false, 'A').count, 0u);
}

TEST(Glyphs, LookAsTheyDidInEverySizeAndStyle)
{
    Glyphs glyphs;
    const std::string_view sample = "AaBdghijklpRm0123456789%-.:() \xC4\xE9\xDF\xB0";
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
