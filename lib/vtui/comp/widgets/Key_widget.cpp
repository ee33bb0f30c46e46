#include "vtui/comp/widgets/Key_widget.h"

namespace VT::Comp {

void Key_widget::set_size(Dimension size)
{
    centre(placements.placements[0], size);
    placements.deref();
}

} // namespace VT::Comp
