#ifndef VTUI_COMP_BUTTON_BORDER_WIDGET_H
#define VTUI_COMP_BUTTON_BORDER_WIDGET_H

#include "vtui/comp/Connection_elements.h"
#include "vtui/comp/widgets/Shadow_edge.h"

namespace VT::Comp {

/// The shadow edge of a button: colour 111, a light blue. The style outlives it.
class VTUI_EXPORT Button_border_widget : public Shadow_edge
{
  public:
    explicit Button_border_widget(Connection_elements& elements);
};

} // namespace VT::Comp

#endif
