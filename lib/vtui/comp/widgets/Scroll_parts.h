#ifndef VTUI_COMP_SCROLL_PARTS_H
#define VTUI_COMP_SCROLL_PARTS_H

#include "vtui/comp/Connection_elements.h"
#include "vtui/comp/objects/Container_obj.h"
#include "vtui/comp/objects/Dimension.h"
#include "vtui/comp/objects/Has_child_placements.h"
#include "vtui/comp/objects/Object_pointer_obj.h"
#include "vtui/comp/objects/Rectangle_obj.h"
#include "vtui/comp/widgets/Key_widget.h"

#include <algorithm>
#include <cstdint>

namespace VT::Comp {

/// The members of a scroll widget, whichever way it scrolls: back is up or left, on is down or right.
struct Scroll_parts
{
    Container_obj& container;
    Child_placements_and_detached<Array_array_3, 2>& placements;
    Object_pointer_obj& back_pointer;
    Object_pointer_obj& on_pointer;
    Rectangle_obj& track;
    Rectangle_obj& indicator;
    Fill_attributes_obj& indicator_fill;
    Key_widget& back_key;
    Key_widget& on_key;
};

/// The children of the container.
enum Scroll_child : std::uint8_t { content_child, track_child, indicator_child };

void construct_scroll(const Scroll_parts& parts, Connection_elements& style, VT::VT_obj* content, VT::VT_obj* back_face,
                      VT::VT_obj* on_face);

/// The content at the top left, the bar at its place, all written out.
void lay_out_scroll(const Scroll_parts& parts, Dimension size, Dimension track, Dimension indicator, Point bar);

void show_scroll_keys(const Scroll_parts& parts, bool overflows);

/// The track keeps its width, also where the bar lies along the bottom.
void hide_scroll_bar(const Scroll_parts& parts);

/// What the track leaves of its thickness inside its two edges; wraps around below 2 pixels.
constexpr std::uint16_t inside_track(std::uint16_t thickness) { return static_cast<std::uint16_t>(thickness - 2); }

// Offsets along the way: 0 shows the start of the content, visible - content its end. Sums and limits have 16 bits with
// a sign before they are compared, so those of a content above 32768 pixels may wrap around.

/// Half of what is visible, and no more than what is hidden.
constexpr std::uint16_t scroll_step(std::uint16_t visible, std::uint16_t content)
{
    return std::min(static_cast<std::uint16_t>(content - visible), static_cast<std::uint16_t>(visible / 2));
}

/// 0 for a content that is smaller than what is visible, wherever it was.
constexpr std::int16_t scrolled_back(std::uint16_t visible, std::uint16_t content, std::int16_t current)
{
    if (content < visible)
        return 0;
    return std::min(position(current + scroll_step(visible, content)), std::int16_t{0});
}

constexpr std::int16_t scrolled_on(std::uint16_t visible, std::uint16_t content, std::int16_t current)
{
    if (content < visible)
        return 0;
    return std::max(position(current - scroll_step(visible, content)), position(visible - content));
}

struct Scroll_thumb
{
    std::int16_t start;
    std::uint16_t length;
};

/// Where the indicator lies in a track as long as what is visible, which is less than the content.
constexpr Scroll_thumb scroll_thumb(std::uint16_t content, std::uint16_t visible, std::int16_t offset)
{
    // The square has 32 bits with a sign: it wraps around above 46340 pixels.
    const auto square = static_cast<std::int32_t>(std::uint32_t{visible} * visible);
    return {position(-offset * visible / content), static_cast<std::uint16_t>(square / content)};
}

} // namespace VT::Comp

#endif
