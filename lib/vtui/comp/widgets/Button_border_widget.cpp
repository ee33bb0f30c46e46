#include "vtui/comp/widgets/Button_border_widget.h"

namespace VT::Comp {

Button_border_widget::Button_border_widget(Connection_elements& elements) : Shadow_edge(elements.line_111_b) {}

} // namespace VT::Comp
