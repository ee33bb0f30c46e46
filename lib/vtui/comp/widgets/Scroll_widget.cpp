#include "vtui/comp/widgets/Scroll_widget.h"

#include "vtui/comp/widgets/Scroll_parts.h"

namespace VT::Comp {

namespace {

Scroll_parts parts_of(Scroll_widget& w)
{
    return {w.container, w.placements,     w.up_key_pointer, w.down_key_pointer, w.track,
            w.indicator, w.indicator_fill, w.up_key,         w.down_key};
}

} // namespace

Scroll_widget::Scroll_widget(Connection_elements& elements, VT::VT_obj* content, VT::VT_obj* up_face,
                             VT::VT_obj* down_face)
{
    construct_scroll(parts_of(*this), elements, content, up_face, down_face);
}

Scroll_widget::Scroll_widget(Connection_elements& elements, VT::VT_obj* up_face, VT::VT_obj* down_face)
    : Scroll_widget(elements, &elements.rect_17_patterned, up_face, down_face)
{}

void Scroll_widget::set_size(Dimension size, unsigned short bar_width)
{
    lay_out_scroll(parts_of(*this), size, {bar_width, size.height}, {inside_track(bar_width), size.height},
                   {position(size.width - bar_width), 0});
}

void Scroll_widget::set_content(VT::VT_obj* content)
{
    Child_placement& shown = placements.placements[content_child];
    shown.ref = content;
    if (container.get_id() != VT::VT_obj::NULL_ID)
        container.set_child_location(content_child, container.id_of(content), shown.x, shown.y, false);
    update_content_size();
}

void Scroll_widget::update_content_size()
{
    const unsigned short content = content_height();
    const unsigned short visible = container.height;
    show_scroll_keys(parts_of(*this), content > visible);
    placements.placements[content_child].y = 0;
    set_indicator(content, visible, 0);
    if (container.get_id() != VT::VT_obj::NULL_ID)
        send_position(content_child);
}

void Scroll_widget::handle_event(Soft_key_activation_event& event)
{
    if (event.activation_code != Iso::Activation::released)
        return;
    if (up_key.is_key_id(event.object_id))
        scroll_up();
    else if (down_key.is_key_id(event.object_id))
        scroll_down();
}

void Scroll_widget::scroll_up()
{
    scroll_to(new_location_up(container.height, content_height(), placements.placements[content_child].y));
}

void Scroll_widget::scroll_down()
{
    scroll_to(new_location_down(container.height, content_height(), placements.placements[content_child].y));
}

short Scroll_widget::new_location_up(unsigned short visible, unsigned short content, short current)
{
    return scrolled_back(visible, content, current);
}

short Scroll_widget::new_location_down(unsigned short visible, unsigned short content, short current)
{
    return scrolled_on(visible, content, current);
}

void Scroll_widget::set_indicator(unsigned short content, unsigned short visible, short offset)
{
    if (visible >= content)
        return hide_scroll_bar(parts_of(*this));
    const Scroll_thumb thumb = scroll_thumb(content, visible, offset);
    resize(indicator, {inside_track(track.width), thumb.length});
    track.height = visible;
    placements.placements[indicator_child].y = thumb.start;
    send_position(indicator_child);
}

unsigned short Scroll_widget::content_height() { return size_of(placements.placements[content_child]).height; }

void Scroll_widget::scroll_to(short offset)
{
    placements.placements[content_child].y = offset;
    send_position(content_child);
    set_indicator(content_height(), container.height, offset);
    send_position(indicator_child); // once more: the second time is wanted, and without a bar it is the only one
}

void Scroll_widget::send_position(std::uint8_t child)
{
    container.set_child_location(child, placements.placements[child].x, placements.placements[child].y);
}

} // namespace VT::Comp
