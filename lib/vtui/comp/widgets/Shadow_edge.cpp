#include "vtui/comp/widgets/Shadow_edge.h"

namespace VT::Comp {

namespace {

constexpr std::uint8_t top_and_left = 1 | 8; // line suppression
constexpr std::int16_t shift = 3;            // pixels, to the right and down

} // namespace

Shadow_edge::Shadow_edge(Line_attributes_obj& line)
{
    border.line_suppression = top_and_left;
    border.set_line(&line);
    placements.placements[0] = {&border, shift, shift};
    container.placements_ptr = &placements;
}

void Shadow_edge::set_size(Dimension size)
{
    resize(container, size);
    // Wraps around in 16 bits: a side below three becomes huge.
    resize(border, {static_cast<std::uint16_t>(size.width - shift), static_cast<std::uint16_t>(size.height - shift)});
}

void Shadow_edge::handle_event(const VT_information&)
{
    Child_placement& placed = placements.placements[0];
    placed.x = shift;
    placed.y = shift;
    container.set_child_location(0, shift, shift);
}

} // namespace VT::Comp
