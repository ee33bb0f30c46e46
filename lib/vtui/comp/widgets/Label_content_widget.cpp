#include "vtui/comp/widgets/Label_content_widget.h"

namespace VT::Comp {

Label_content_widget::Label_content_widget(VT::VT_obj& background, Label_content_item new_item) : item(new_item)
{
    placements.placements[0] = {&background, 0, 0};
    placements.placements[1] = {item.label_obj, 0, 0};
    placements.placements[2] = {item.content_obj, 0, 0};
    container.placements_ptr = &placements;
}

void Label_content_widget::set_size(Dimension size) { resize(container, size); }

void Label_content_widget::set_layout()
{
    const std::uint16_t square = shorter_side();
    Child_placement& background = placements.placements[0];
    background = {background.ref, 0, 0};

    Child_placement& label = placements.placements[1];
    label.ref = item.label_obj;
    centre(label, {square, square});

    const std::int16_t end = position(square);
    placements.placements[2] = is_tall() ? Child_placement(item.content_obj, 0, end) //
                                         : Child_placement(item.content_obj, end, 0);
    placements.deref();
}

void Label_content_widget::set(Label_content_item new_item)
{
    item = new_item;
    set_layout();
    if (container.get_id() != VT::VT_obj::NULL_ID)
        container.upload(true);
}

Dimension Label_content_widget::get_label_size() const
{
    const auto side = static_cast<std::uint16_t>(shorter_side() - 3); // wraps, as sizes do
    return {side, side};
}

Dimension Label_content_widget::get_content_size() const
{
    const std::uint16_t width = container.width;
    const std::uint16_t height = container.height;
    if (is_tall())
        return {width, static_cast<std::uint16_t>(height - width)};
    return {static_cast<std::uint16_t>(width - height), height};
}

} // namespace VT::Comp
