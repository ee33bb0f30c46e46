#include "vtui/comp/widgets/Disable_widget.h"

#include <algorithm>

namespace VT::Comp {

Cover_pointer::Cover_pointer(Connection_elements& style)
    : N_state_pointer_obj({&style.null_pointer, &style.cover_512}), largest(style.cover_512)
{}

Disable_widget::Disable_widget(Connection_elements& style) : elements(style), state_pointer(style) {}

void Disable_widget::set_size(Dimension size)
{
    const std::uint16_t side = std::max(size.width, size.height);
    if (side > elements.cover.side)
        // root_at_size() would name its own source: the two texts differ.
        no_larger_cover(elements.cover.depth, "../../../../lib/vtui/comp/widgets/Disable_cover_widget");
    state_pointer.states = {&elements.null_pointer, elements.cover.root_at_size(side)};
    state_pointer.set_state(state_pointer.state);
}

} // namespace VT::Comp
