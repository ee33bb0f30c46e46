#include "apps/gallery/Icons.h"

namespace gallery {

namespace {

constexpr std::uint16_t side_of_the_smallest = 12; // pixels

void add(std::deque<VT::Comp::Picture_graphic_obj>& pictures, const Bitmap& bitmap, std::uint16_t side)
{
    constexpr std::uint8_t four_bits = 1, transparent_and_run_lengths = 1 | 4, magenta = 13;
    pictures.emplace_back(side, side, side, four_bits, transparent_and_run_lengths, magenta,
                          static_cast<std::uint32_t>(bitmap.size), bitmap.data);
}

} // namespace

Icons::Icons(std::uint16_t mask_size)
{
    const unsigned first = mask_size >= 480 ? 1 : 0;
    const auto side = static_cast<std::uint16_t>(side_of_the_smallest << first);
    for (const auto& sizes : icon_bitmaps) {
        add(small, sizes[first], side);
        add(large, sizes[first + 1], static_cast<std::uint16_t>(2 * side));
    }
}

} // namespace gallery
