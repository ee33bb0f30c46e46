#include "terminal/draw/Pictures.h"

#include <array>
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
    Plain_bytes(const Picture& picture, std::int64_t&) : data(picture.data), size(picture.size) {}

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
    /// Adds the pairs that it passes to `pairs_passed`.
    Run_bytes(const Picture& picture, std::int64_t& pairs_passed)
        : data(picture.data), size(picture.size & ~std::size_t{1}), passed(&pairs_passed)
    {}

    /// The byte at an offset of the unpacked picture, or -1. Going forward costs a step a run, even one of no bytes;
    /// going back starts over.
    int at(std::size_t offset)
    {
        if (offset < run_start)
            pair = run_start = 0;
        while (pair < size && offset - run_start >= data[pair]) {
            run_start += data[pair];
            pair += 2;
            ++*passed;
        }
        return pair < size ? data[pair + 1] : -1;
    }

  private:
    const std::uint8_t* data;
    std::size_t size;
    std::int64_t* passed;
    std::size_t pair = 0;      ///< where the current run is stored
    std::size_t run_start = 0; ///< where it starts in the unpacked picture
};

constexpr int strip_width = 1024; ///< pixels of a row that are unpacked in one go

/// Draws what is visible of a picture, at most a strip wide. The first pixel shows the source pixel at *rows,
/// *first_column; after `width` columns and `height` rows the picture starts over. Each row of the source is unpacked
/// once, however often it is shown, for its data may be many times its pixels.
template <typename Bytes>
void draw_strip(const View& view, const Picture& picture, const Area& visible, Steps rows, const Steps& first_column,
                int width, int height)
{
    const auto bits = static_cast<unsigned>(picture.bits);
    const unsigned mask = (1u << bits) - 1;
    const std::size_t row_size = (static_cast<std::size_t>(picture.width) * bits + 7) / 8;
    constexpr std::int16_t nothing = -1;
    std::array<std::int16_t, strip_width> pixels;
    const auto columns = static_cast<std::size_t>(visible.width());
    const std::size_t different = std::min(columns, static_cast<std::size_t>(width));

    std::int64_t work = visible.size();
    Bytes bytes(picture, work);
    const auto unpack = [&](std::size_t row) {
        bytes.at(row);
        const Bytes row_start = bytes;
        Steps column = first_column;
        int last_column = 0;
        for (std::size_t i = 0; i < different; ++i, ++column) {
            if (*column < last_column)
                bytes = row_start;
            last_column = *column;
            const std::size_t first_bit = static_cast<std::size_t>(last_column) * bits;
            const int byte = bytes.at(row + first_bit / 8);
            const auto pixel = static_cast<int>(static_cast<unsigned>(byte) >> (8 - bits - first_bit % 8) & mask);
            pixels[i] = byte < 0 || pixel == picture.transparent ? nothing : static_cast<std::int16_t>(pixel);
        }
        for (std::size_t i = different; i < columns; ++i)
            pixels[i] = pixels[i - different];
        constexpr int work_of_row = 4; // however narrow
        work += work_of_row + visible.width();
    };

    int unpacked = -1;
    for (int first = visible.top; first < std::min(visible.bottom, visible.top + height); ++first, ++rows) {
        if (*rows != unpacked) {
            unpacked = *rows;
            unpack(static_cast<std::size_t>(unpacked) * row_size);
        }
        for (int y = first; y < visible.bottom; y += height) {
            std::uint8_t* const to = view.at(visible.left, y);
            for (std::size_t i = 0; i < columns; ++i) {
                if (pixels[i] != nothing)
                    to[i] = static_cast<std::uint8_t>(pixels[i]);
            }
        }
    }
    view.spend(work);
}

/// Draws into an area a picture that starts over after `width` columns and `height` rows.
void draw(const View& view, const Picture& picture, const Area& area, Steps::Ratio scale, int width, int height)
{
    const Area visible = view.visible() & area;
    if (visible.empty())
        return;
    const Steps rows(visible.top, scale, picture.height);
    for (Area strip = visible; strip.left < visible.right; strip.left = strip.right) {
        strip.right = std::min(strip.left + strip_width, visible.right);
        const Steps columns(strip.left, scale, picture.width);
        (picture.runs ? draw_strip<Run_bytes> : draw_strip<Plain_bytes>)(view, picture, strip, rows, columns, width,
                                                                         height);
    }
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
    const int height = drawn_height(picture, drawn_width);
    draw(view, picture, {0, 0, drawn_width, height}, {picture.width, drawn_width}, drawn_width, height);
}

void tile_picture(const View& view, const Picture& picture)
{
    if (picture.width <= 0 || picture.height <= 0)
        return;
    Area quadrant = view.visible();
    quadrant.left = std::max(quadrant.left, 0);
    quadrant.top = std::max(quadrant.top, 0);
    draw(view, picture, quadrant, {1, 1}, picture.width, picture.height);
}

} // namespace terminal
