#ifndef VTUI_COMP_LABEL_CONTENT_WIDGET_H
#define VTUI_COMP_LABEL_CONTENT_WIDGET_H

#include "vtui/comp/objects/Container_obj.h"
#include "vtui/comp/objects/Dimension.h"
#include "vtui/comp/objects/Has_child_placements.h"

namespace VT::Comp {

/// What a Label_content_widget shows. Both objects stay the application's.
struct Label_content_item
{
    VT::VT_obj* label_obj{nullptr};   ///< in the middle of the square
    VT::VT_obj* content_obj{nullptr}; ///< in the strip beside or below it
};

/// A label, as an icon, in a square of the box's shorter side, and its content in the strip that remains: to the right
/// of the square in a wide box, below it in a tall one. The application asks how much room there is, sizes the objects
/// itself, and places root() in a mask.
class VTUI_EXPORT Label_content_widget
{
  public:
    /// The background starts in the box's top left corner and is drawn below the item; it stays the application's. Not
    /// laid out yet: until then label and content may be null.
    Label_content_widget(VT::VT_obj& background, Label_content_item new_item);

    /// Pixels. Moves nothing: refresh_layout() does. Sends nothing.
    void set_size(Dimension size);
    /// Lays out again, after the box or an object in it has been sized. Sends nothing: in a live pool follow with
    /// root().upload(true).
    void refresh_layout() { set_layout(); }
    /// Puts the label in the middle of the square, where a larger one overhangs on all sides, and the content at the
    /// start of the strip. A null label or content ends the process.
    void set_layout();
    /// Shows another label and content and lays out. If the widget has an id the container is uploaded. An object that
    /// comes when the pool is live must be in the pool by then: `pool.add()`.
    void set(Label_content_item new_item);

    /// Pixels: the square, 3 less each way. A box with a side below 3 wraps around.
    Dimension get_label_size() const;
    /// Pixels: the strip.
    Dimension get_content_size() const;

    Container_obj& root() { return container; }

    Container_obj container;
    Label_content_item item;
    Child_placements_array<Array_array_3> placements; ///< drawn in this order: background, label, content

  private:
    bool is_tall() const { return container.width < container.height; }
    std::uint16_t shorter_side() const { return is_tall() ? container.width : container.height; }
};

} // namespace VT::Comp

#endif
