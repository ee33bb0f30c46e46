#include "vtui/comp/widgets/Button_background_widget.h"

namespace VT::Comp {

Button_background_widget::Button_background_widget(Connection_elements& elements)
{
    placements.placements[0] = {&elements.rect_bevel_dark, 0, 0};
    placements.placements[1] = {&elements.rect_bevel_light, 0, 0};
    container.placements_ptr = &placements;
}

void Button_background_widget::set_size(Dimension size)
{
    resize(container, size);
    Child_placement& dark = placements.placements[0];
    const Dimension bevel = size_of(dark);
    dark.x = position(size.width - bevel.width);
    dark.y = position(size.height - bevel.height);
    placements.deref();
}

} // namespace VT::Comp
