#include "terminal/draw/Glyphs.h"

#include "iso11783/Font_size.h"
#include "terminal/draw/Small_font.h"

#include <ft2build.h>
#include FT_FREETYPE_H
#include FT_OUTLINE_H
#include FT_SIZES_H

#include <algorithm>
#include <cstdlib>
#include <stdexcept>

namespace terminal {
namespace {

// DejaVu Sans Mono, in parts of the height it is asked for.
constexpr double advance_part = 0.602;   ///< how wide a character is
constexpr double capital_part = 0.729;   ///< how far capitals and digits reach above the baseline
constexpr double descender_part = 0.208; ///< how far g, p, q and y reach below it

/// How a font stands in a cell. All its letters share these numbers, whatever their style: that makes a line of them.
struct Stand
{
    explicit Stand(Iso::Font_size cell)
        // With an eighth of the cell left free, capitals keep most of their accents.
        : width(rounded(cell.width / advance_part)), height(rounded(cell.height * 0.875)),
          below(rounded(height * descender_part)), above(cell.height - below), capitals(rounded(height * capital_part))
    {}

    static int rounded(double pixels) { return static_cast<int>(pixels + 0.5); }

    int width;    ///< what the font is asked for, not in proportion to
    int height;   ///< this
    int below;    ///< rows of the cell that are below the baseline
    int above;    ///< and above it
    int capitals; ///< rows of a capital
};

/// 0 to 31 and 127 to 159 are no characters in ISO 8859-1, 32 and 160 are spaces.
bool printable(std::uint8_t character) { return (character > 32 && character < 127) || character > 160; }

constexpr FT_Pos pixel = 64; ///< FreeType's units

/// Makes a character fit that is too high or too deep for the cell. An accent that would reach out stands as many rows
/// lower, whole, and the capital under it is pressed together; what hangs too deep is pressed from the baseline down.
void press_into_cell(FT_Outline& outline, const Stand& stand)
{
    FT_BBox box;
    FT_Outline_Get_CBox(&outline, &box);
    const FT_Pos rows = (box.yMax + pixel - 1) / pixel;
    const FT_Pos lower = std::max<FT_Pos>(0, rows - stand.above) * pixel;
    const FT_Pos capital = stand.capitals * pixel;
    const FT_Pos bottom = -stand.below * pixel;
    for (int i = 0; i < outline.n_points; ++i) {
        FT_Pos& y = outline.points[i].y;
        if (y >= capital)
            y -= lower;
        else if (y > 0)
            y = y * (capital - lower) / capital;
        else if (box.yMin < bottom)
            y = y * bottom / box.yMin;
    }
}

/// Leans one to the right for every five up; the middle of a capital stays where it is.
void slant(FT_Outline& outline, const Stand& stand)
{
    constexpr FT_Pos up = 5;
    FT_Matrix shear{0x10000, 0x10000 / up, 0, 0x10000};
    FT_Outline_Transform(&outline, &shear);
    FT_Outline_Translate(&outline, -stand.capitals * pixel / 2 / up, 0);
}

} // namespace

/// One font file. FreeType is asked for the outline at the cell's own width and height, which need not be in
/// proportion.
class Glyphs::Face
{
  public:
    explicit Face(const std::string& file)
    {
        if (FT_Init_FreeType(&library) != 0)
            throw std::runtime_error("FreeType does not start");
        if (FT_New_Face(library, file.c_str(), 0, &face) != 0) {
            FT_Done_FreeType(library);
            throw std::runtime_error("no font in " + file + " (Debian package fonts-dejavu-core)");
        }
    }
    ~Face() { FT_Done_FreeType(library); } // and with it the face and its sizes
    Face(const Face&) = delete;
    Face& operator=(const Face&) = delete;

    /// Draws a character; the bitmap is valid until the next call. Returns false if the font cannot.
    bool load(std::uint8_t size, const Stand& stand, bool italic, std::uint8_t character)
    {
        if (!choose(sizes[size], stand) ||
            FT_Load_Char(face, character, FT_LOAD_TARGET_MONO | FT_LOAD_NO_BITMAP) != 0 ||
            face->glyph->format != FT_GLYPH_FORMAT_OUTLINE)
            return false;
        press_into_cell(face->glyph->outline, stand);
        if (italic)
            slant(face->glyph->outline, stand);
        return FT_Render_Glyph(face->glyph, FT_RENDER_MODE_MONO) == 0;
    }

    int left() const { return face->glyph->bitmap_left; }
    int top() const { return face->glyph->bitmap_top; }
    int advance() const { return static_cast<int>((face->glyph->advance.x + pixel / 2) / pixel); }
    int width() const { return static_cast<int>(face->glyph->bitmap.width); }
    int height() const { return static_cast<int>(face->glyph->bitmap.rows); }
    bool marks(int x, int y) const
    {
        const unsigned char* const row = face->glyph->bitmap.buffer + y * face->glyph->bitmap.pitch;
        return row[x / 8] >> (7 - x % 8) & 1;
    }

  private:
    /// The first character of a size takes as long as ten others, so that a size is kept for the next.
    bool choose(FT_Size& size, const Stand& stand)
    {
        if (size)
            return FT_Activate_Size(size) == 0;
        return FT_New_Size(face, &size) == 0 && FT_Activate_Size(size) == 0 &&
               FT_Set_Pixel_Sizes(face, static_cast<FT_UInt>(stand.width), static_cast<FT_UInt>(stand.height)) == 0;
    }

    FT_Library library = nullptr;
    FT_Face face = nullptr;
    std::array<FT_Size, Iso::font_sizes.size()> sizes{};
};

Glyphs::Glyphs(const std::string& folder)
    : faces{std::make_unique<Face>(folder + "/DejaVuSansMono.ttf"),
            std::make_unique<Face>(folder + "/DejaVuSansMono-Bold.ttf")}
{}

Glyphs::~Glyphs() = default;

std::string Glyphs::default_folder()
{
    const char* const named = std::getenv("VTUI_FONT_DIR");
    return named ? named : "/usr/share/fonts/truetype/dejavu";
}

Glyph Glyphs::glyph(std::uint8_t size, bool bold, bool italic, std::uint8_t character)
{
    auto& table = tables[size * 4u + bold * 2u + italic];
    if (!table)
        table = std::make_unique<Table>();
    Place& place = (*table)[character];
    if (!place.made)
        place = make(size, bold, italic, character);
    return {runs.data() + place.first, place.count};
}

Glyphs::Place Glyphs::make(std::uint8_t size, bool bold, bool italic, std::uint8_t character)
{
    const std::size_t first = runs.size();
    if (printable(character)) {
        const Iso::Font_size cell = Iso::font_size(size);
        if (cell.height == small_glyph_height)
            add_small(cell, bold, italic, character);
        else
            add_outline(size, bold, italic, character);
    }
    return {static_cast<std::uint32_t>(first), static_cast<std::uint16_t>(runs.size() - first), true};
}

void Glyphs::add_small(Iso::Font_size cell, bool bold, bool italic, std::uint8_t character)
{
    const auto rows = small_glyph(character);
    constexpr int work_of_small_glyph = 512;
    spent += work_of_small_glyph;
    for (int y = 0; y < small_glyph_height; ++y) {
        const unsigned row = rows[static_cast<std::size_t>(y)] * 2u; // one pixel more to the right
        // Bold spreads to the right, but closes no gap one pixel wide: an M would be a blot.
        const unsigned pixels = bold ? row | (row >> 1 & ~(row << 1)) : row;
        const int left = (cell.width - small_glyph_width) / 2 + (italic && y < small_glyph_height / 2);
        add_row(cell, left, y, small_glyph_width + 1, [&](int x) { return pixels >> (small_glyph_width - x) & 1; });
    }
}

void Glyphs::add_outline(std::uint8_t size, bool bold, bool italic, std::uint8_t character)
{
    const Iso::Font_size cell = Iso::font_size(size);
    constexpr int work_of_outline = 4096; // and half as much for each pixel of the cell
    spent += work_of_outline + cell.width * cell.height / 2;
    const Stand stand(cell);
    Face& face = *faces[bold];
    if (!face.load(size, stand, italic, character))
        return;
    const int left = (cell.width - face.advance()) / 2 + face.left();
    const int top = stand.above - face.top();
    for (int y = 0; y < face.height(); ++y)
        add_row(cell, left, top + y, face.width(), [&](int x) { return face.marks(x, y); });
}

template <typename Pixel>
void Glyphs::add_row(Iso::Font_size cell, int left, int y, int width, Pixel pixel)
{
    for (int x = 0; x < width; ++x) {
        const int start = x;
        while (x < width && pixel(x))
            ++x;
        const int from = std::max(left + start, 0);
        const int to = std::min<int>(left + x, cell.width);
        if (from < to)
            runs.push_back(
                {static_cast<std::uint8_t>(y), static_cast<std::uint8_t>(from), static_cast<std::uint8_t>(to)});
    }
}

} // namespace terminal
