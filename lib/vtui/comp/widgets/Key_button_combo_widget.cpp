#include "vtui/comp/widgets/Key_button_combo_widget.h"

namespace VT::Comp {

Key_button_combo_widget::Key_button_combo_widget(Connection_elements& elements)
    : button(elements.rect_17_patterned), border(elements), icon_text(elements, &elements.font_2)
{
    placements.placements[0] = {&button.root(), 0, 0};
    placements.placements[1] = {&icon_text.root(), 0, 0};
    placements.placements[2] = {&border.root(), 0, 0};
    container.placements_ptr = &placements;
}

void Key_button_combo_widget::set_size(Dimension size)
{
    button.set_size(size);
    border.set_size(size);
    const auto face = [](std::uint16_t side) { return static_cast<std::uint16_t>(side * 5 / 6); };
    icon_text.set_size({face(size.width), face(size.height)});
    centre(placements.placements[1], size);
    placements.deref();
}

void Key_button_combo_widget::set_icon(VT::VT_obj* button_icon, VT::VT_obj* key_icon)
{
    icon_text.set_icon(button_icon);
    soft_key.set_content(key_icon);
}

} // namespace VT::Comp
