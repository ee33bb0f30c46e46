#include "vtui/comp/widgets/Border_widget.h"

namespace VT::Comp {

Border_widget::Border_widget(Connection_elements& elements) : Shadow_edge(elements.line_black_c) {}

} // namespace VT::Comp
