#include "vtui/comp/widgets/Icon_text_button_widget.h"

#include "vtui/comp/widgets/Caption.h"

namespace VT::Comp {

Icon_text_button_widget::Icon_text_button_widget(Connection_elements& elements) : button(elements.rect_17_patterned)
{
    button.set_content({&inner, 0, 0});
    construct_icon_and_caption(inner, placements, caption, elements, elements.font_1);
}

void Icon_text_button_widget::set_size(Dimension size)
{
    const Dimension margin{static_cast<std::uint16_t>(size.width / 10), static_cast<std::uint16_t>(size.height / 10)};
    button.set_content({&inner, position(margin.width), position(margin.height)});
    button.set_size(size);

    const Dimension room{static_cast<std::uint16_t>(size.width - 2 * margin.width),
                         static_cast<std::uint16_t>(size.height - 2 * margin.height)};
    resize(inner, room);
    size_caption(caption, room.width);

    Child_placement& icon = placements.placements[0];
    Child_placement& text = placements.placements[1];
    const Dimension picture = size_of(icon);
    icon.x = centred(room.width, picture.width);
    text.x = 0; // as wide as its parent
    text.y = position(room.height - caption.height);
    icon.y = position((room.height - caption.height - picture.height) / 2);
    placements.deref();
}

void Icon_text_button_widget::handle_event(Button_activation_event& event)
{
    if (button.is_button_id(event.object_id) && event.activation_code == Iso::Activation::released && action)
        action();
}

} // namespace VT::Comp
