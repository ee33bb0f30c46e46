#ifndef VTUI_COMP_BUTTON_WIDGET_H
#define VTUI_COMP_BUTTON_WIDGET_H

#include "vtui/comp/objects/Button_obj.h"
#include "vtui/comp/objects/Container_obj.h"
#include "vtui/comp/objects/Dimension.h"
#include "vtui/comp/objects/Has_child_placements.h"

namespace VT::Comp {

/// A button with one object of the application's over it: an icon, a text. Whoever owns it sizes it and decides what
/// its activation means (is_button_id). 240 × 240 with a button of 200 × 200 until the first size is given.
class VTUI_EXPORT Button_widget
{
  public:
    /// `content` stays the caller's, and under whatever content comes later for the widget's whole life.
    explicit Button_widget(VT::VT_obj& content) { construct(content); }

    /// Sends Hide/Show if the pool is live.
    void set_hidden(bool hide) { container.set_hidden(hide); }
    bool is_hidden() const { return container.hidden != 0; }

    // Pixels. Nothing here is sent: in a live pool follow with root().upload(true).

    void set_height(unsigned short height);
    unsigned short get_height() const { return container.height; }
    void set_width(unsigned short width);
    unsigned short get_width() const { return container.width; }
    Dimension get_size() const { return size_of(container); }
    /// None: a button takes the size that its owner gives.
    Dimension get_preferred_size() const { return {}; }
    /// Makes container and button that large. The content stays where it is.
    void set_size(Dimension size);
    /// A button has no contents to lay out: box and origin are ignored.
    void set_size(Dimension size, Dimension, Point) { set_size(size); }

    /// Replaces the upper content and its place. An object of the pool, never null: that ends the process. If the
    /// widget has ids, the container is uploaded.
    void set_content(Child_placement content);
    /// What is changed there shows with the next set_size() and upload.
    Child_placement& get_content() { return placements.placements[2]; }

    bool is_button_id(unsigned short id) const { return button.get_id() == id; }

    Container_obj& root() { return container; }

    Container_obj container;
    Button_obj button;
    Child_placements_array<Array_array_3> placements;

  protected:
    /// For a component whose content is a member of its own: construct() follows when that exists.
    Button_widget() = default;

    void construct(VT::VT_obj& content);
};

} // namespace VT::Comp

#endif
