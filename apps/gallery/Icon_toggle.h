#ifndef GALLERY_ICON_TOGGLE_H
#define GALLERY_ICON_TOGGLE_H

#include "apps/gallery/Page_style.h"

#include "vtui/comp/widgets/Placement_widget.h"
#include "vtui/comp/widgets/Toggle_button_widget.h"

namespace gallery {

/// The looks of a toggle button, as large as itself. A base, so that they exist before the button that is made of them.
struct Toggle_looks
{
    using Look = VT::Comp::Placement_widget;

    Look off{Look::Justification::centre}, on{Look::Justification::centre};
};

/// A light toggle button with one of two icons in its middle.
class Icon_toggle : private Toggle_looks, public VT::Comp::Toggle_button_widget
{
  public:
    Icon_toggle(Icons& icons, Icon off_icon, Icon on_icon) : Toggle_button_widget(off.root(), on.root())
    {
        off.set_content(&icons[off_icon]);
        on.set_content(&icons[on_icon]);
        lighten(button);
    }

    /// Pixels.
    void set_size(VT::Comp::Dimension size)
    {
        off.set_size(size);
        on.set_size(size);
        Toggle_button_widget::set_size(size);
    }
};

} // namespace gallery

#endif
