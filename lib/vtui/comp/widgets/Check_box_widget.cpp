#include "vtui/comp/widgets/Check_box_widget.h"

#include <algorithm>

namespace VT::Comp {

Check_box_widget::Check_box_widget(Connection_elements& elements, VT::VT_obj* checked, VT::VT_obj* unchecked)
    : state_pointer({unchecked, checked})
{
    placements.placements[0] = {&button, 0, 0};
    placements.placements[1] = {&elements.rect_17_patterned, 0, 0};
    placements.placements[2] = {&state_pointer, 0, 0};
    container.placements_ptr = &placements;
}

Dimension Check_box_widget::get_preferred_size() const
{
    Dimension room;
    for (const VT::VT_obj* const look : state_pointer.states)
        if (look)
            room = {std::max(room.width, look->get_width()), std::max(room.height, look->get_height())};
    return room;
}

void Check_box_widget::set_size(Dimension size)
{
    resize(container, size);
    resize(button, size);
    centre(placements.placements[2], size);
}

void Check_box_widget::handle_event(Button_activation_event event)
{
    if (event.activation_code == Iso::Activation::released && event.object_id == button.get_id())
        state_pointer.set_state((state_pointer.state + 1) & 1);
}

} // namespace VT::Comp
