#ifndef VTUI_COMP_KEY_WIDGET_H
#define VTUI_COMP_KEY_WIDGET_H

#include "vtui/comp/objects/Dimension.h"
#include "vtui/comp/objects/Has_child_placements.h"
#include "vtui/comp/objects/Key_obj.h"

namespace VT::Comp {

/// A soft key with one object of the application's in its middle. The application puts `key` into a soft key mask.
class VTUI_EXPORT Key_widget
{
  public:
    Key_widget() { key.placements_ptr = &placements; }

    /// An object of the pool, at the top left corner until the next set_size(). Shows with the pool or, in a live one,
    /// with the next set_size() and key.upload(true). A key without content ends the process when the pool is prepared.
    void set_content(VT::VT_obj* content) { placements.placements[0] = {content, 0, 0}; }

    /// Sends Change Background Colour if the pool is live.
    void set_background_colour(unsigned char colour) { key.set_background_colour(colour); }
    unsigned char get_background_colour() const { return key.background_colour; }

    /// Puts the content in the middle of a key of `size` pixels, which is the terminal's to know. Sends nothing. Ends
    /// the process if there is no content.
    void set_size(Dimension size);

    bool is_key_id(unsigned short id) const { return key.get_id() == id; }

    Key_obj key; ///< its key_code is 1 in every key and must not be 0
    Child_placements_array<Array_array_1> placements;
};

} // namespace VT::Comp

#endif
