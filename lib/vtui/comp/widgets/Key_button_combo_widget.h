#ifndef VTUI_COMP_KEY_BUTTON_COMBO_WIDGET_H
#define VTUI_COMP_KEY_BUTTON_COMBO_WIDGET_H

#include "vtui/comp/Connection_elements.h"
#include "vtui/comp/widgets/Button_border_widget.h"
#include "vtui/comp/widgets/Button_widget.h"
#include "vtui/comp/widgets/Icon_text_widget.h"
#include "vtui/comp/widgets/Key_widget.h"

namespace VT::Comp {

/// One command twice: as a button with icon, caption and shadow edge in the mask, and as a soft key with an icon of its
/// own. The application puts root() in a mask and get_soft_key() in a soft key mask, and takes an activation of either
/// for the same (is_button_or_key_id). What the terminal says of itself is for `border`, if that is routed.
class VTUI_EXPORT Key_button_combo_widget
{
  public:
    /// The style outlives the widget.
    explicit Key_button_combo_widget(Connection_elements& elements);

    /// Pixels of the button. The container stays 240 × 240, so a larger button is cut: size root() yourself. The soft
    /// key stays as it is. Sends nothing: in a live pool follow with root().upload(true). Ends the process if the
    /// button's icon is null.
    void set_size(Dimension size);

    /// Both icons are needed before the pool is prepared and stay the application's. In a live pool follow with
    /// set_size() and root().upload(true), and for the key, which is no child of root(), with soft_key.set_size() and
    /// get_soft_key().upload(true).
    void set_icon(VT::VT_obj* button_icon, VT::VT_obj* key_icon);
    /// The caption of the button; sends Change Attribute if the pool is live. The soft key has no text.
    void set_text(VT::String_variable_obj* text) { icon_text.set_text(text); }

    bool is_button_or_key_id(unsigned short id) const { return button.is_button_id(id) || soft_key.is_key_id(id); }

    Container_obj& root() { return container; }
    Key_obj& get_soft_key() { return soft_key.key; }

    Child_placements_array<Array_array_3> placements; ///< drawn in this order: button, icon and text, border
    Container_obj container;
    Button_widget button;
    Button_border_widget border;
    Icon_text_widget icon_text;
    Key_widget soft_key;
};

} // namespace VT::Comp

#endif
