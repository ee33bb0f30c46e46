#include "terminal/draw/Pictures.h"

#include <limits>

namespace terminal {
namespace {

/// The source coordinate of one drawn pixel after the other: drawn × from ÷ to, starting over at `limit`.
class Steps
{
  public:
    struct Ratio
    {
        int from;
        int to;
    };

    Steps(int drawn, Ratio scale, int limit)
        : end(limit), whole_step(scale.from / scale.to), step(scale.from % scale.to), divisor(scale.to)
    {
        const std::int64_t product = std::int64_t{drawn} * scale.from;
        source = static_cast<int>(product / divisor % end);
        rest = static_cast<int>(product % divisor);
    }

    int operator*() const { return source; }
    void operator++()
    {
        source += whole_step;
        rest += step;
        if (rest >= divisor) {
            rest -= divisor;
            ++source;
        }
        if (source >= end)
            source -= end;
    }

  private:
    int end;
    int whole_step;
    int step;
    int divisor;
    int source;
    int rest;
};

/// The bytes of a picture that is stored as it is.
class Plain_bytes
{
  public:
    Plain_bytes(const std::uint8_t* bytes, std::size_t count) : data(bytes), size(count) {}

    /// The byte at an offset, or -1.
    int at(std::size_t offset) { return offset < size ? data[offset] : -1; }

  private:
    const std::uint8_t* data;
    std::size_t size;
};

/// The bytes of a picture that is stored as pairs of count and value. A copy remembers a place to come back to.
class Run_bytes
{
  public:
    Run_bytes(const std::uint8_t* bytes, std::size_t count) : data(bytes), size(count & ~std::size_t{1}) {}

    /// The byte at an offset of the unpacked picture, or -1. Going forward costs a step a run, going back starts over.
    int at(std::size_t offset)
    {
        if (offset < run_start)
            pair = run_start = 0;
        while (pair < size && offset - run_start >= data[pair]) {
            run_start += data[pair];
            pair += 2;
        }
        return pair < size ? data[pair + 1] : -1;
    }

  private:
    const std::uint8_t* data;
    std::size_t size;
    std::size_t pair = 0;      ///< where the current run is stored
    std::size_t run_start = 0; ///< where it starts in the unpacked picture
};

/// Draws what is visible of `area`, a pixel of the area's row y and column x showing the source pixel at *rows,
/// *columns.
template <typename Bytes>
void draw_rows(const View& view, const Picture& picture, const Area& visible, Steps rows, const Steps& first_column)
{
    const auto bits = static_cast<unsigned>(picture.bits);
    const unsigned mask = (1u << bits) - 1;
    const std::size_t row_size = (static_cast<std::size_t>(picture.width) * bits + 7) / 8;
    Bytes row_start(picture.data, picture.size);
    for (int y = visible.top; y < visible.bottom; ++y, ++rows) {
        const std::size_t row = static_cast<std::size_t>(*rows) * row_size;
        row_start.at(row);
        Bytes bytes = row_start;
        Steps column = first_column;
        int last_column = 0;
        std::uint8_t* to = view.at(visible.left, y);
        for (int x = visible.left; x < visible.right; ++x, ++to, ++column) {
            if (*column < last_column)
                bytes = row_start;
            last_column = *column;
            const std::size_t first_bit = static_cast<std::size_t>(last_column) * bits;
            const int byte = bytes.at(row + first_bit / 8);
            if (byte < 0)
                continue;
            const unsigned pixel = static_cast<unsigned>(byte) >> (8 - bits - first_bit % 8) & mask;
            if (static_cast<int>(pixel) != picture.transparent)
                *to = static_cast<std::uint8_t>(pixel);
        }
    }
}

void draw(const View& view, const Picture& picture, const Area& area, Steps::Ratio scale)
{
    const Area visible = view.visible() & area;
    if (visible.empty())
        return;
    const Steps columns(visible.left, scale, picture.width);
    const Steps rows(visible.top, scale, picture.height);
    (picture.runs ? draw_rows<Run_bytes> : draw_rows<Plain_bytes>)(view, picture, visible, rows, columns);
}

} // namespace

int drawn_height(const Picture& picture, int drawn_width)
{
    if (picture.width <= 0)
        return 0;
    const std::int64_t height = std::int64_t{drawn_width} * picture.height / picture.width;
    return static_cast<int>(std::min<std::int64_t>(height, std::numeric_limits<int>::max() / 4));
}

void draw_picture(const View& view, const Picture& picture, int drawn_width)
{
    if (picture.width <= 0 || picture.height <= 0 || drawn_width <= 0)
        return;
    // The scale is the one of the width in both directions; the height follows from it.
    draw(view, picture, {0, 0, drawn_width, drawn_height(picture, drawn_width)}, {picture.width, drawn_width});
}

void tile_picture(const View& view, const Picture& picture)
{
    if (picture.width <= 0 || picture.height <= 0)
        return;
    Area quadrant = view.visible();
    quadrant.left = std::max(quadrant.left, 0);
    quadrant.top = std::max(quadrant.top, 0);
    draw(view, picture, quadrant, {1, 1});
}

} // namespace terminal
