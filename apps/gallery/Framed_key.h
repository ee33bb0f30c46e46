#ifndef GALLERY_FRAMED_KEY_H
#define GALLERY_FRAMED_KEY_H

#include "apps/gallery/Caption.h"
#include "apps/gallery/Page_style.h"

#include "vtui/comp/objects/Container_obj.h"
#include "vtui/comp/objects/Has_child_placements.h"
#include "vtui/comp/widgets/Function_key.h"

#include <functional>

namespace gallery {

/// One line of text, as wide as a soft key.
struct Key_caption : Caption
{
    Key_caption(const char* text, Page_style& shared) : Caption(text, shared.key_font)
    {
        set_size({key_size.width, shared.key_font.get_font_height()});
        set_justification(VT::Field_obj::middle);
    }
};

/// What a soft key shows, as large as itself: an object in the middle of a frame.
class Key_face
{
  public:
    /// The content stays the caller's, and has its size.
    Key_face(Page_style& shared, VT::VT_obj& content);

    VT::VT_obj& root() { return container; }

  private:
    VT::Comp::Container_obj container;
    VT::Comp::Child_placements_array<Array_array_2> children;
};

/// Gives a key that has its content the size of a cell and the colour of all keys.
void dress(VT::Comp::Key_widget& key);

/// A soft key with a frame around what is in its middle.
class Framed_key
{
  public:
    /// The content stays the caller's, and has its size.
    Framed_key(Page_style& shared, VT::VT_obj& content, std::function<void()> action);

    VT::VT_obj& root() { return key.root(); }

  private:
    Key_face face;
    VT::Comp::Function_key key;
};

} // namespace gallery

#endif
