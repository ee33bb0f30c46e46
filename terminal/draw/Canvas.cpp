#include "terminal/draw/Canvas.h"

#include <cstring>

namespace terminal {

void Canvas::resize(int width, int height)
{
    columns = std::max(width, 0);
    rows = std::max(height, 0);
    pixels.resize(offset(rows));
}

void View::fill(const Area& area, std::uint8_t colour) const { fill(area, Paint{colour, nullptr}); }

void View::fill(const Area& area, const Paint& paint) const
{
    constexpr int work_of_call = 4;
    spend(work_of_call);
    const Area place = area.moved(origin.x, origin.y) & clip;
    if (place.empty())
        return;
    constexpr int work_of_row = 2;
    spend(place.size() + std::int64_t{work_of_row} * place.height());
    const auto count = static_cast<std::size_t>(place.width());
    for (int y = place.top; y < place.bottom; ++y) {
        std::uint8_t* const to = canvas->row(y) + place.left;
        if (paint.pattern)
            std::memcpy(to, paint.pattern->row(y) + place.left, count);
        else
            std::memset(to, paint.colour, count);
    }
}

void View::copy_to(Canvas& copy) const
{
    copy.resize(canvas->width(), canvas->height());
    onto(copy).fill(visible(), Paint{0, canvas});
}

} // namespace terminal
