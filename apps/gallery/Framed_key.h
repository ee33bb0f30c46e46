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

/// A soft key with a frame around what is in its middle.
class Framed_key
{
  public:
    /// The content stays the caller's, and has its size.
    Framed_key(Page_style& shared, VT::VT_obj& content, std::function<void()> action);

    VT::VT_obj& root() { return key.root(); }

  private:
    VT::Comp::Function_key key;
    VT::Comp::Container_obj face;
    VT::Comp::Child_placements_array<Array_array_2> children;
};

} // namespace gallery

#endif
