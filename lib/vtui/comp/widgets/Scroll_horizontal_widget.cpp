#include "vtui/comp/widgets/Scroll_horizontal_widget.h"

#include "vtui/comp/widgets/Scroll_parts.h"

#include <atomic>

namespace VT::Comp {

namespace {

Scroll_parts parts_of(Scroll_horizontal_widget& w)
{
    return {w.container, w.placements,     w.left_key_pointer, w.right_key_pointer, w.track,
            w.indicator, w.indicator_fill, w.left_key,         w.right_key};
}

} // namespace

Scroll_horizontal_widget::Scroll_horizontal_widget(Connection_elements& elements, VT::VT_obj* content,
                                                   VT::VT_obj* left_face, VT::VT_obj* right_face)
{
    construct_scroll(parts_of(*this), elements, content, left_face, right_face);
}

void Scroll_horizontal_widget::set_size(Dimension size, unsigned short bar_height)
{
    lay_out_scroll(parts_of(*this), size, {size.width, bar_height}, {size.width, inside_track(bar_height)},
                   {0, position(size.height - bar_height)});
}

void Scroll_horizontal_widget::update_content_size()
{
    show_scroll_keys(parts_of(*this), content_width() > container.width);
    move_to(0);
    commit();
}

void Scroll_horizontal_widget::handle_event(Soft_key_activation_event& event)
{
    if (event.activation_code != Iso::Activation::released)
        return;
    if (left_key.is_key_id(event.object_id))
        scroll_left();
    else if (right_key.is_key_id(event.object_id))
        scroll_right();
}

void Scroll_horizontal_widget::scroll_left()
{
    move_to(new_location_left(container.width, content_width(), placements.placements[content_child].x));
    commit();
}

void Scroll_horizontal_widget::scroll_right()
{
    move_to(new_location_right(container.width, content_width(), placements.placements[content_child].x));
    commit();
}

short Scroll_horizontal_widget::new_location_left(unsigned short visible, unsigned short content, short current)
{
    return scrolled_back(visible, content, current);
}

short Scroll_horizontal_widget::new_location_right(unsigned short visible, unsigned short content, short current)
{
    return scrolled_on(visible, content, current);
}

void Scroll_horizontal_widget::set_indicator(unsigned short content, unsigned short visible, short offset)
{
    if (visible >= content)
        return hide_scroll_bar(parts_of(*this));
    const Scroll_thumb thumb = scroll_thumb(content, visible, offset);
    resize(indicator, {thumb.length, inside_track(track.height)});
    track.width = visible;
    placements.placements[indicator_child].x = thumb.start;
}

void Scroll_horizontal_widget::scroll_to_show(short x, unsigned short width, bool quiet)
{
    const unsigned short visible = container.width;
    const unsigned short content = content_width();
    const std::int16_t& offset = placements.placements[content_child].x;
    while (x + offset < 0 || x + width + offset > visible) {
        std::atomic_signal_fence(std::memory_order_acq_rel); // no compiler may take for granted that this ends
        move_to(x + offset < 0 ? new_location_left(visible, content, offset)
                               : new_location_right(visible, content, offset));
        quiet = false;
    }
    if (!quiet)
        commit();
}

unsigned short Scroll_horizontal_widget::content_width() { return size_of(placements.placements[content_child]).width; }

void Scroll_horizontal_widget::move_to(short offset)
{
    placements.placements[content_child].x = offset;
    set_indicator(content_width(), container.width, offset);
}

void Scroll_horizontal_widget::commit()
{
    placements.deref();
    container.upload(true);
}

} // namespace VT::Comp
