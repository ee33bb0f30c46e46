#ifndef VTUI_COMP_SCROLL_WIDGET_H
#define VTUI_COMP_SCROLL_WIDGET_H

#include "vt/Event.h"
#include "vtui/comp/Connection_elements.h"
#include "vtui/comp/objects/Container_obj.h"
#include "vtui/comp/objects/Dimension.h"
#include "vtui/comp/objects/Fill_attributes_obj.h"
#include "vtui/comp/objects/Has_child_placements.h"
#include "vtui/comp/objects/Object_pointer_obj.h"
#include "vtui/comp/objects/Rectangle_obj.h"
#include "vtui/comp/widgets/Key_widget.h"

#include <cstdint>

namespace VT::Comp {

/// A window on a content that may be taller, with a scroll bar that covers the content's right edge, and two soft keys
/// that move the content by half the window. The application calls set_size() and then update_content_size(), puts
/// root() in a mask and get_up_key() and get_down_key() in its soft key mask, and routes the widget. Both keys show
/// while the content overflows, wherever it is scrolled to. Content and faces stay the application's.
///
/// It moves the children of the live pool by commands. The sizes of window and bar are not sent by themselves: in a
/// live pool follow set_size(), update_content_size() and set_content() with root()->upload(true).
class VTUI_EXPORT Scroll_widget
{
  public:
    /// The style outlives the widget. The indicator is filled with the colour that line_black_c has now: set it first,
    /// as a palette index. The content must not be null, nor a face when the pool is prepared.
    Scroll_widget(Connection_elements& elements, VT::VT_obj* content, VT::VT_obj* up_face, VT::VT_obj* down_face);
    /// Shows a background of the style's until set_content(); that is as large as the mask, so it overflows.
    Scroll_widget(Connection_elements& elements, VT::VT_obj* up_face, VT::VT_obj* down_face);

    Container_obj* root() { return &container; }
    /// They point at the keys or at nothing.
    Object_pointer_obj* get_up_key() { return &up_key_pointer; }
    Object_pointer_obj* get_down_key() { return &down_key_pointer; }

    /// Pixels of the window, and of the bar inside it, at least 2. Scrolls to the top, but leaves keys and indicator to
    /// update_content_size(), which follows. Sends nothing. Ends the process if the content is null.
    void set_size(Dimension size, unsigned short bar_width);

    /// Exchanges the content and does as update_content_size(). In a live pool the container is uploaded before that if
    /// its record has changed, as by another content. What is shown only later has to be added to the pool. Never null.
    void set_content(VT::VT_obj* content);

    /// To be called when the height of the content, or of the window, has changed: shows or hides keys and bar and
    /// scrolls to the top. Sends a value for each key, and the positions of the indicator, if it shows, and the
    /// content.
    void update_content_size();

    using Handled_events = Event_list<Soft_key_activation_event>;

    /// Scrolls when one of the keys is released.
    void handle_event(Soft_key_activation_event& event);

    /// Half the window, as far as there is content. Each sends the position of the content, of the indicator if it
    /// shows, and of the indicator, also when nothing has moved.
    void scroll_up();
    void scroll_down();

    /// Where a step leads from the offset `current`: 0 at the top, visible - content at the bottom, in pixels. Content
    /// smaller than the window is at 0. Above 32768 pixels it scrolls astray: offsets have 16 bits.
    static short new_location_up(unsigned short visible, unsigned short content, short current);
    static short new_location_down(unsigned short visible, unsigned short content, short current);

    /// Fits the indicator to heights and offset and sends its position; the track becomes `visible` pixels high, the
    /// content stays where it is. Content that does not overflow has no bar and sends nothing.
    void set_indicator(unsigned short content, unsigned short visible, short offset);

    Container_obj container;
    Child_placements_and_detached<Array_array_3, 2> placements; ///< content, track, indicator; the keys beside them
    Object_pointer_obj up_key_pointer;
    Object_pointer_obj down_key_pointer;
    Rectangle_obj track;
    Rectangle_obj indicator;
    Fill_attributes_obj indicator_fill{Connection_elements::with_fill_colour, 1};
    // In the pool with the container. The application gives them size and colour; until then faces lie at the top left.
    Key_widget up_key;
    Key_widget down_key;

  private:
    unsigned short content_height();
    void scroll_to(short offset);
    void send_position(std::uint8_t child);
};

} // namespace VT::Comp

#endif
