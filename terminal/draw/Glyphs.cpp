#include "terminal/draw/Glyphs.h"

#include "iso11783/Font_size.h"
#include "terminal/draw/Small_font.h"

#include <ft2build.h>
#include FT_FREETYPE_H
#include FT_OUTLINE_H

#include <algorithm>
#include <cstdlib>
#include <stdexcept>

namespace terminal {
namespace {

constexpr double advance_per_size = 0.602; ///< of DejaVu Sans Mono: how wide a character is when the font is 1 high

/// 0 to 31 and 127 to 159 are no characters in ISO 8859-1, 32 and 160 are spaces.
bool printable(std::uint8_t character) { return (character > 32 && character < 127) || character > 160; }

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
    ~Face()
    {
        FT_Done_Face(face);
        FT_Done_FreeType(library);
    }
    Face(const Face&) = delete;
    Face& operator=(const Face&) = delete;

    /// Draws a character; the bitmap is valid until the next call. Returns false if the font cannot.
    bool load(std::uint8_t character, unsigned width, unsigned height, bool italic)
    {
        if (FT_Set_Pixel_Sizes(face, width, height) != 0 ||
            FT_Load_Char(face, character, FT_LOAD_TARGET_MONO | FT_LOAD_NO_BITMAP) != 0)
            return false;
        if (italic) {
            // One to the right for every five up; the middle of a capital letter stays where it is.
            constexpr FT_Fixed slant = 0x10000 / 5;
            FT_Matrix shear{0x10000, slant, 0, 0x10000};
            FT_Outline_Transform(&face->glyph->outline, &shear);
            FT_Outline_Translate(&face->glyph->outline, -static_cast<FT_Pos>(height) * 64 * 3 / 8 / 5, 0);
        }
        return FT_Render_Glyph(face->glyph, FT_RENDER_MODE_MONO) == 0;
    }

    int left() const { return face->glyph->bitmap_left; }
    int top() const { return face->glyph->bitmap_top; }
    int advance() const { return static_cast<int>((face->glyph->advance.x + 32) >> 6); }
    int width() const { return static_cast<int>(face->glyph->bitmap.width); }
    int height() const { return static_cast<int>(face->glyph->bitmap.rows); }
    bool pixel(int x, int y) const
    {
        const unsigned char* const row = face->glyph->bitmap.buffer + y * face->glyph->bitmap.pitch;
        return row[x / 8] >> (7 - x % 8) & 1;
    }

  private:
    FT_Library library = nullptr;
    FT_Face face = nullptr;
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
            add_outline(cell, bold, italic, character);
    }
    return {static_cast<std::uint32_t>(first), static_cast<std::uint16_t>(runs.size() - first), true};
}

void Glyphs::add_small(Iso::Font_size cell, bool bold, bool italic, std::uint8_t character)
{
    const auto rows = small_glyph(character);
    for (int y = 0; y < small_glyph_height; ++y) {
        const unsigned row = rows[static_cast<std::size_t>(y)] * 2u; // one pixel more to the right
        // Bold spreads to the right, but closes no gap one pixel wide: an M would be a blot.
        const unsigned pixels = bold ? row | (row >> 1 & ~(row << 1)) : row;
        const int left = (cell.width - small_glyph_width) / 2 + (italic && y < small_glyph_height / 2);
        add_row(cell, left, y, small_glyph_width + 1, [&](int x) { return pixels >> (small_glyph_width - x) & 1; });
    }
}

void Glyphs::add_outline(Iso::Font_size cell, bool bold, bool italic, std::uint8_t character)
{
    // As wide as the cell; capitals reach to its top, descenders to its bottom. A capital with an accent would reach
    // out: it stands a little lower, and is made smaller until it fits.
    const auto width = static_cast<unsigned>(cell.width / advance_per_size + 0.5);
    const int baseline = cell.height * 3 / 4;
    unsigned height = cell.height;
    Face& face = *faces[bold];
    while (face.load(character, width, height, italic) && face.top() > baseline + cell.height / 12 &&
           height > cell.height / 2u)
        --height;

    const int left = (cell.width - face.advance()) / 2 + face.left();
    const int top = std::max(0, baseline - face.top());
    for (int y = 0; y < face.height() && top + y < cell.height; ++y)
        add_row(cell, left, top + y, face.width(), [&](int x) { return face.pixel(x, y); });
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
