#ifndef VTUI_COMP_SCROLL_HORIZONTAL_WIDGET_H
#define VTUI_COMP_SCROLL_HORIZONTAL_WIDGET_H

#include "vt/Event.h"
#include "vtui/comp/Connection_elements.h"
#include "vtui/comp/objects/Container_obj.h"
#include "vtui/comp/objects/Dimension.h"
#include "vtui/comp/objects/Fill_attributes_obj.h"
#include "vtui/comp/objects/Has_child_placements.h"
#include "vtui/comp/objects/Object_pointer_obj.h"
#include "vtui/comp/objects/Rectangle_obj.h"
#include "vtui/comp/widgets/Key_widget.h"

namespace VT::Comp {

/// A window on a content that may be wider, with a scroll bar that covers the content's bottom edge, and two soft keys
/// that move the content by half the window. The application calls set_size() and then update_content_size(), puts
/// root() in a mask and get_left_key() and get_right_key() in its soft key mask, and routes the widget. Both keys show
/// while the content overflows, wherever it is scrolled to. Content and faces stay the application's.
///
/// It sends no positions: scrolling and updating write out the placements and, in a live pool, upload the container,
/// and with it the bar's sizes.
class VTUI_EXPORT Scroll_horizontal_widget
{
  public:
    /// The style outlives the widget. The indicator is filled with the colour that line_black_c has now: set it first,
    /// as a palette index. The content must not be null, nor a face when the pool is prepared.
    Scroll_horizontal_widget(Connection_elements& elements, VT::VT_obj* content, VT::VT_obj* left_face,
                             VT::VT_obj* right_face);

    Container_obj* root() { return &container; }
    /// They point at the keys or at nothing.
    Object_pointer_obj* get_left_key() { return &left_key_pointer; }
    Object_pointer_obj* get_right_key() { return &right_key_pointer; }

    /// Pixels of the window, and of the bar inside it, at least 2. Scrolls to the left end, but leaves keys and
    /// indicator to update_content_size(), which follows. Sends nothing. Ends the process if the content is null.
    void set_size(Dimension size, unsigned short bar_height);

    /// To be called when the width of the content, or of the window, has changed: shows or hides keys and bar and
    /// scrolls to the left end. Sends a value for each key, then uploads. Where content that has fitted comes to
    /// overflow call set_size() first: it alone gives the bar its height back.
    void update_content_size();

    using Handled_events = Event_list<Soft_key_activation_event>;

    /// Scrolls when one of the keys is released.
    void handle_event(Soft_key_activation_event& event);

    /// Half the window, as far as there is content; uploads, also when nothing has moved.
    void scroll_left();
    void scroll_right();

    /// Where a step leads from the offset `current`: 0 at the left end, visible - content at the right one, in pixels.
    /// Content smaller than the window is at 0. Above 32768 pixels it scrolls astray: offsets have 16 bits.
    static short new_location_left(unsigned short visible, unsigned short content, short current);
    static short new_location_right(unsigned short visible, unsigned short content, short current);

    /// Fits the indicator to widths and offset; the track becomes `visible` pixels wide, the content stays where it is.
    /// Sends nothing. Content that does not overflow has no bar: the track loses its height.
    void set_indicator(unsigned short content, unsigned short visible, short offset);

    /// Scrolls in half windows until the `width` pixels of the content from `x` on are visible, and uploads once; if
    /// they are visible already only when not `quiet`.
    ///
    /// It does not return if no step shows all of them. A span inside the content of up to half a window, which is
    /// at least 2 pixels wide, is always shown; a wider one may fall between two steps; one wider than the window, or
    /// one that begins or ends outside of a content that overflows, is never shown.
    void scroll_to_show(short x, unsigned short width, bool quiet);

    Container_obj container;
    Child_placements_and_detached<Array_array_3, 2> placements; ///< content, track, indicator; the keys beside them
    Object_pointer_obj left_key_pointer;
    Object_pointer_obj right_key_pointer;
    Rectangle_obj track;
    Rectangle_obj indicator;
    Fill_attributes_obj indicator_fill{Connection_elements::with_fill_colour, 1};
    // In the pool with the container. The application gives them size and colour; until then faces lie at the top left.
    Key_widget left_key;
    Key_widget right_key;

  private:
    unsigned short content_width();
    void move_to(short offset);
    void commit();
};

} // namespace VT::Comp

#endif
