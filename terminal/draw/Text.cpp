#include "terminal/draw/Text.h"

#include "iso11783/Font_size.h"

namespace terminal {
namespace {

std::string_view without_spaces_at_end(std::string_view text) { return text.substr(0, text.find_last_not_of(' ') + 1); }

/// Where a line that is too long ends: the last place at or before `columns` with something to read in front of it. The
/// minus of a number is no hyphen.
std::size_t wrap_at(std::string_view text, std::size_t columns, bool after_hyphens)
{
    const std::size_t word = text.find_first_not_of(' ');
    for (std::size_t end = columns; end > word; --end) {
        const bool hyphen = end > word + 1 && text[end - 1] == '-' && text[end - 2] != ' ';
        if (text[end] == ' ' || (after_hyphens && hyphen))
            return end;
    }
    return columns;
}

/// Where something `size` long starts in a room: code 0 at its beginning, 1 in its middle, 2 at its end.
int justified(int code, int room, int size) { return code == 1 ? (room - size) / 2 : code == 2 ? room - size : 0; }

void draw_line(const View& view, Glyphs& glyphs, std::string_view line, const Font& font, int x, int y)
{
    const Iso::Font_size cell = Iso::font_size(font.size);
    const Area visible = view.visible();
    const int length = static_cast<int>(line.size());
    if (y >= visible.bottom || y + cell.height <= visible.top)
        return;
    const int first = std::max(0, (visible.left - x) / cell.width);
    const int last = std::min(length, (visible.right - x + cell.width - 1) / cell.width);
    for (int i = first; i < last; ++i) {
        const auto character = static_cast<std::uint8_t>(line[static_cast<std::size_t>(i)]);
        const int left = x + i * cell.width;
        for (const Glyph_run& run : glyphs.glyph(font.size, font.style & bold, font.style & italic, character))
            view.fill({left + run.left, y + run.y, left + run.right, y + run.y + 1}, font.colour);
    }

    const int thickness = std::max(1, cell.height / 16);
    const auto rule = [&](int top) {
        view.fill({x, y + top, x + length * cell.width, y + top + thickness}, font.colour);
    };
    if (font.style & underlined)
        rule(cell.height - thickness);
    if (font.style & crossed_out)
        rule(cell.height / 2 - thickness / 2);
}

} // namespace

std::string_view take_line(std::string_view& rest, std::size_t columns, Wrapping wrapping)
{
    constexpr std::string_view breaks = "\r\n";
    std::size_t end = rest.substr(0, wrapping.at_spaces ? columns + 1 : rest.npos).find_first_of(breaks);
    if (wrapping.at_spaces && end == rest.npos) {
        // Not to look through all the rest for the end of each line: what follows decides whether this one is too long.
        end = rest.find_first_not_of(' ', columns);
        if (end != rest.npos && breaks.find(rest[end]) == breaks.npos) {
            const std::size_t cut = wrap_at(rest, columns, wrapping.after_hyphens);
            const std::string_view line = without_spaces_at_end(rest.substr(0, cut));
            rest.remove_prefix(rest.find_first_not_of(' ', cut));
            return line;
        }
    }
    end = std::min(end, rest.size());
    const std::string_view line = without_spaces_at_end(rest.substr(0, end));
    rest.remove_prefix(end);
    if (!rest.empty())
        rest.remove_prefix(rest.substr(0, 2) == "\r\n" ? 2 : 1);
    return line;
}

void draw_text(const View& view, Glyphs& glyphs, std::string_view text, const Font& font, int width, int height,
               std::uint8_t justification, Wrapping wrapping)
{
    const View field = view.inside({0, 0, width, height});
    const Iso::Font_size cell = Iso::font_size(font.size);
    if (field.sees_nothing() || cell.width == 0)
        return;
    text = text.substr(0, text.find('\0'));
    constexpr int work_of_character = 20; // to find the line it stands in, twice
    field.spend(work_of_character * static_cast<std::int64_t>(text.size()));
    const auto columns = static_cast<std::size_t>(std::max(1, width / cell.width));

    int lines = 0;
    for (std::string_view rest = text; !rest.empty(); ++lines)
        take_line(rest, columns, wrapping);

    int y = justified(justification >> 2 & 3, height, lines * cell.height);
    for (std::string_view rest = text; !rest.empty(); y += cell.height) {
        const std::string_view line = take_line(rest, columns, wrapping);
        const int length = static_cast<int>(line.size()) * cell.width;
        draw_line(field, glyphs, line, font, justified(justification & 3, width, length), y);
    }
}

} // namespace terminal
