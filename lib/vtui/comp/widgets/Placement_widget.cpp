#include "vtui/comp/widgets/Placement_widget.h"

#include "util/Fatal.h"

namespace VT::Comp {

Placement_widget::Placement_widget(Justification initial) : justification(initial)
{
    container.placements_ptr = &content;
}

void Placement_widget::set_content(VT::VT_obj* object) { content.placements[0] = {object, 0, 0}; }

void Placement_widget::set_justification(Justification new_justification) { justification = new_justification; }

void Placement_widget::set_size(Dimension box)
{
    Child_placement& placed = content.placements[0];
    if (!placed.ref)
        Fatal::assertion("__null != content.placements[0].ref", "../../../vtui/comp/widgets/Placement_widget", 26,
                         "void VT::Comp::Placement_widget::set_size(VT::Comp::Dimension)");

    resize(container, box);

    const Dimension size = size_of(*placed.ref);
    const std::int16_t middle_x = centred(box.width, size.width);
    const std::int16_t middle_y = centred(box.height, size.height);
    const auto place = [&](std::int16_t x, std::int16_t y) {
        placed.x = x;
        placed.y = y;
    };
    switch (justification) {
    case Justification::centre:
        place(middle_x, middle_y);
        break;
    case Justification::left:
        place(0, middle_y);
        break;
    case Justification::top:
        place(middle_x, 0);
        break;
    }
    content.deref();
}

} // namespace VT::Comp
