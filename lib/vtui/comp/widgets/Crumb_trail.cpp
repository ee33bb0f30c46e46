#include "vtui/comp/widgets/Crumb_trail.h"

#include <algorithm>
#include <iterator>

namespace VT::Comp {

namespace {

constexpr std::uint16_t frame_line_length = 2000;
constexpr int margin = 9; ///< around the frame, inside its cell; the stem's height

constexpr std::uint8_t eight_bits = 2; ///< picture format
constexpr std::uint32_t corner_bytes = Crumb_trail::corner_side * Crumb_trail::corner_side;

/// The top right corner: the line, inside it (0) and outside it (2).
constexpr char corner[Crumb_trail::corner_side][Crumb_trail::corner_side + 1] = {
    "12222222", //
    "01122222", //
    "00012222", //
    "00001222", //
    "00000122", //
    "00000012", //
    "00000012", //
    "00000001",
};

} // namespace

Crumb_trail::Crumb_trail(Connection_elements& ce)
    : arrow(ce.line_black_c), //
      corner_top_right(corner_side, corner_side, corner_side, eight_bits, 0, 0, corner_bytes, corner_pixels[0]),
      corner_bottom_right(corner_side, corner_side, corner_side, eight_bits, 0, 0, corner_bytes, corner_pixels[1]),
      corner_top_left(corner_side, corner_side, corner_side, eight_bits, 0, 0, corner_bytes, corner_pixels[2]),
      corner_bottom_left(corner_side, corner_side, corner_side, eight_bits, 0, 0, corner_bytes, corner_pixels[3]),
      frame_vertical_line(1, frame_line_length, 0), frame_horizontal_line(frame_line_length, 1, 0), select_line(1, 0, 1)
{
    draw_corners(ce.line_black_c.colour, ce.rect_17_patterned.fill->colour);

    for (unsigned i = 0; i < std::size(crumb_pointers); ++i)
        placements.placements[crumb_placement(i)].ref = &crumb_pointers[i];
    for (unsigned i = 0; i < std::size(arrow_pointers); ++i)
        placements.placements[arrow_placement(i)].ref = &arrow_pointers[i];
    for (unsigned i = 0; i < std::size(select_pointers); ++i)
        placements.placements[select_placement(i)].ref = &select_pointers[i];
    for (unsigned i = 0; i < std::size(select_line_pointers); ++i)
        placements.placements[select_line_placement(i)].ref = &select_line_pointers[i];
    placements.detached_objects = {arrow.root(), &select_frame, &select_line};
    container.placements_ptr = &placements;

    VT::VT_obj* const frame[] = {&frame_horizontal_line, &frame_horizontal_line, &frame_vertical_line,
                                 &frame_vertical_line,   &corner_top_right,      &corner_bottom_right,
                                 &corner_top_left,       &corner_bottom_left};
    for (std::size_t i = 0; i < std::size(frame); ++i)
        select_frame_placements.placements[i].ref = frame[i];
    select_frame.placements_ptr = &select_frame_placements;
}

/// The template and its mirror images.
void Crumb_trail::draw_corners(std::uint8_t line, std::uint8_t fill)
{
    constexpr std::size_t last = corner_side - 1;
    auto& [top_right, bottom_right, top_left, bottom_left] = corner_pixels;
    for (std::size_t row = 0; row <= last; ++row)
        for (std::size_t column = 0; column <= last; ++column) {
            // Meant so: outside the line, too, the fill covers what is below.
            const std::uint8_t colour = corner[row][column] == '1' ? line : fill;
            top_right[row * corner_side + column] = colour;
            bottom_right[(last - row) * corner_side + column] = colour;
            top_left[row * corner_side + (last - column)] = colour;
            bottom_left[(last - row) * corner_side + (last - column)] = colour;
        }
}

void Crumb_trail::set_size(Dimension size)
{
    resize(container, size);

    const auto cell = static_cast<std::uint16_t>(size.width / most_crumbs);
    const auto left = [cell](unsigned slot) { return static_cast<int>(slot) * cell; };

    // Again: a specification or a scaled pool may have changed them.
    resize(frame_horizontal_line, {frame_line_length, 1});
    resize(frame_vertical_line, {1, frame_line_length});
    for (Picture_graphic_obj* picture :
         {&corner_top_right, &corner_bottom_right, &corner_top_left, &corner_bottom_left})
        picture->width = corner_side;

    const auto side = static_cast<std::uint16_t>(cell - 2 * margin); // a narrower cell wraps, as sizes do
    const std::int16_t far_line = position(side - 1);
    const std::int16_t far_corner = position(side - corner_side);
    auto& frame = select_frame_placements.placements;
    resize(select_frame, {side, side});
    frame[1].y = far_line;
    frame[3].x = far_line;
    frame[4].x = far_corner;
    frame[5].x = far_corner;
    frame[5].y = far_corner;
    frame[7].y = far_corner;
    select_frame_placements.deref();

    resize(select_line, {1, margin});

    const Dimension chevron(static_cast<std::uint16_t>(cell / 15), static_cast<std::uint16_t>(size.height / 9));
    arrow.set_size(chevron);

    const auto place = [this](unsigned placement, int x, int y) {
        placements.placements[placement].x = position(x);
        placements.placements[placement].y = position(y);
    };
    for (unsigned i = 0; i < most_crumbs; ++i) {
        placements.placements[crumb_placement(i)].x = position(left(i));
        place(select_placement(i), margin + left(i), margin);
        place(select_line_placement(i), cell / 2 + left(i), 0);
    }
    for (unsigned i = 0; i < std::size(arrow_pointers); ++i)
        place(arrow_placement(i), left(i + 1) - chevron.width / 2, size.height / 2 - chevron.height / 2);
    placements.deref();
}

unsigned int Crumb_trail::find_next_crumb() const
{
    const auto* const free = std::find_if(std::begin(crumb_pointers), std::end(crumb_pointers),
                                          [](const Object_pointer_obj& pointer) { return !pointer.target; });
    return static_cast<unsigned>(free - crumb_pointers);
}

void Crumb_trail::add_crumb(VT::VT_obj* crumb)
{
    const unsigned n = find_next_crumb();
    if (n >= most_crumbs)
        return;
    if (n > 0) {
        arrow_pointers[n - 1].set_target(arrow.root());
        select_pointers[n - 1].set_target(nullptr);
        select_line_pointers[n - 1].set_target(nullptr);
    }
    crumb_pointers[n].set_target(crumb);
    select(n);
}

void Crumb_trail::back_crumb()
{
    const unsigned n = find_next_crumb();
    if (n == 0)
        return;
    crumb_pointers[n - 1].set_target(nullptr);
    if (n == 1) {
        // Meant so: the first crumb leaves frame and stem where they are, and they appear in two places more.
        arrow_pointers[2].set_target(&select_frame);
        select_pointers[3].set_target(&select_line);
        return;
    }
    select_pointers[n - 1].set_target(nullptr);
    select_line_pointers[n - 1].set_target(nullptr);
    arrow_pointers[n - 2].set_target(nullptr);
    select(n - 2);
}

/// Hangs the frame over a crumb.
void Crumb_trail::select(unsigned slot)
{
    select_pointers[slot].set_target(&select_frame);
    select_line_pointers[slot].set_target(&select_line);
}

} // namespace VT::Comp
