#ifndef VTUI_COMP_BORDER_WIDGET_H
#define VTUI_COMP_BORDER_WIDGET_H

#include "vtui/comp/Connection_elements.h"
#include "vtui/comp/widgets/Shadow_edge.h"

namespace VT::Comp {

/// The shadow edge of any area: black. The style outlives it.
class VTUI_EXPORT Border_widget : public Shadow_edge
{
  public:
    explicit Border_widget(Connection_elements& elements);
};

} // namespace VT::Comp

#endif
