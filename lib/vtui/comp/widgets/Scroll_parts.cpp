#include "vtui/comp/widgets/Scroll_parts.h"

namespace VT::Comp {

namespace {
constexpr std::uint8_t top_and_left = 1 | 8; // line suppression
} // namespace

void construct_scroll(const Scroll_parts& parts, Connection_elements& style, VT::VT_obj* content, VT::VT_obj* back_face,
                      VT::VT_obj* on_face)
{
    parts.track.line_suppression = top_and_left;
    parts.track.set_fill(&style.fill_17_patterned);
    parts.track.set_line(&style.line_black_c);
    parts.indicator_fill.colour = style.line_black_c.colour; // its index now, not a name that may still wait
    parts.indicator.set_fill(&parts.indicator_fill);
    parts.indicator.set_line(&style.line_black_c);

    parts.placements.placements[content_child] = {content, 0, 0};
    parts.placements.placements[track_child] = {&parts.track, 0, 0};
    parts.placements.placements[indicator_child] = {&parts.indicator, 0, 0};
    parts.placements.detached_objects = {&parts.back_key.key, &parts.on_key.key};
    parts.container.placements_ptr = &parts.placements;

    parts.back_key.set_content(back_face);
    parts.on_key.set_content(on_face);
}

void lay_out_scroll(const Scroll_parts& parts, Dimension size, Dimension track, Dimension indicator, Point bar)
{
    resize(parts.container, size);
    resize(parts.track, track);
    resize(parts.indicator, indicator);

    const auto put = [&parts](Scroll_child i, Point place) {
        Child_placement& child = parts.placements.placements[i];
        child.x = place.x;
        child.y = place.y;
    };
    put(content_child, {0, 0});
    put(track_child, bar);
    put(indicator_child, bar);
    parts.placements.deref();
}

void show_scroll_keys(const Scroll_parts& parts, bool overflows)
{
    parts.back_pointer.set_target(overflows ? &parts.back_key.key : nullptr);
    parts.on_pointer.set_target(overflows ? &parts.on_key.key : nullptr);
}

void hide_scroll_bar(const Scroll_parts& parts)
{
    resize(parts.indicator, {0, 0});
    parts.track.height = std::uint16_t{0};
}

} // namespace VT::Comp
