#ifndef VTUI_COMP_BUTTON_BACKGROUND_WIDGET_H
#define VTUI_COMP_BUTTON_BACKGROUND_WIDGET_H

#include "vtui/comp/Connection_elements.h"
#include "vtui/comp/objects/Container_obj.h"
#include "vtui/comp/objects/Dimension.h"
#include "vtui/comp/objects/Has_child_placements.h"

namespace VT::Comp {

/// A raised bevel, up to the mask's size, to lie behind a button: the style's dark half is pinned to the bottom right
/// corner, its light half to the top left one, and the container cuts both. The style outlives it.
class VTUI_EXPORT Button_background_widget
{
  public:
    explicit Button_background_widget(Connection_elements& elements);

    /// Sends Hide/Show if the pool is live.
    void set_hidden(bool hide) { container.set_hidden(hide); }
    bool is_hidden() const { return container.hidden != 0; }

    Dimension get_size() const { return size_of(container); }
    /// Pixels, by the size that the style has now. Sends nothing: in a live pool follow with root().upload(true).
    void set_size(Dimension size);

    Container_obj& root() { return container; }

    Container_obj container;
    Child_placements_array<Array_array_2> placements;
};

} // namespace VT::Comp

#endif
