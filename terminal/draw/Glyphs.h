#ifndef TERMINAL_DRAW_GLYPHS_H
#define TERMINAL_DRAW_GLYPHS_H

#include "iso11783/Font_size.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace terminal {

/// A piece of a glyph: the pixels of one row of its cell from `left` up to, but without, `right`.
struct Glyph_run
{
    std::uint8_t y;
    std::uint8_t left;
    std::uint8_t right;
};

struct Glyph
{
    const Glyph_run* first;
    std::size_t count;

    const Glyph_run* begin() const { return first; }
    const Glyph_run* end() const { return first + count; }
};

/// The characters of ISO 8859-1 in the fifteen font sizes, plain, bold and italic, without shades of grey. They come
/// from DejaVu Sans Mono, hinted for exactly the cell's size, and below that from the small font, so that pictures are
/// the same on every machine. Glyphs are made when they are first asked for, and kept: all there are take four
/// megabytes.
class Glyphs
{
  public:
    /// Throws std::runtime_error, naming the file, if a font is not there or is no font.
    explicit Glyphs(const std::string& folder = default_folder());
    ~Glyphs();
    Glyphs(const Glyphs&) = delete;
    Glyphs& operator=(const Glyphs&) = delete;

    /// Where the fonts are looked for: what the environment variable VTUI_FONT_DIR names, or where Debian puts them.
    static std::string default_folder();

    /// What making glyphs has cost, in the units of Canvas.
    std::int64_t work() const { return spent; }
    void forget_work() { spent = 0; }

    /// The pixels of a character inside its cell; `size` is a font size code below 15. Valid until the next call. A
    /// character that the standard leaves undefined is blank.
    Glyph glyph(std::uint8_t size, bool bold, bool italic, std::uint8_t character);

  private:
    class Face;

    struct Place
    {
        std::uint32_t first = 0;
        std::uint16_t count = 0;
        bool made = false;
    };
    using Table = std::array<Place, 256>;

    Place make(std::uint8_t size, bool bold, bool italic, std::uint8_t character);
    void add_small(Iso::Font_size cell, bool bold, bool italic, std::uint8_t character);
    void add_outline(std::uint8_t size, bool bold, bool italic, std::uint8_t character);
    template <typename Pixel>
    void add_row(Iso::Font_size cell, int left, int y, int width, Pixel pixel);

    std::array<std::unique_ptr<Face>, 2> faces; ///< plain and bold
    std::array<std::unique_ptr<Table>, 15 * 4> tables;
    std::vector<Glyph_run> runs;
    std::int64_t spent = 0;
};

} // namespace terminal

#endif
