#ifndef GALLERY_NUMBER_PAGE_H
#define GALLERY_NUMBER_PAGE_H

#include "apps/gallery/Arrow.h"
#include "apps/gallery/Framed_key.h"
#include "apps/gallery/Page.h"

#include "vt/Event.h"
#include "vtui/comp/widgets/Number_widget.h"

#include <functional>

namespace gallery {

/// A page of number fields: a title bar that says which units are chosen, a soft key that chooses the next ones, and
/// two that step one field up and down, which arrows beside it mark. The page that derives from it routes its fields.
class Number_page : public Page
{
  protected:
    Number_page(const char* name, const char* title, Page_style& page_style);
    ~Number_page() = default;

    /// How a field looks on a page of numbers.
    VT::Comp::Number_widget::Style look(std::uint32_t layout, VT::VT_obj& backdrop) const;
    /// How an input does.
    VT::Comp::Number_widget::Style input_look(VT::VT_obj& backdrop) const;

    /// What the soft keys for a step up (1) and down (-1) do. Puts the arrows that mark the field, 4 by 4 each, at x,
    /// y.
    void set_step(std::function<void(int direction)> step, int x, int y);

  private:
    /// The word "Units" and the name of those that are chosen.
    struct Units_face
    {
        explicit Units_face(Page_style& shared);

        VT::Comp::Container_obj container;
        Key_caption caption;
        VT::Comp::Output_string_obj name;
        VT::Comp::Child_placements_array<Array_array_2> children;
    };

    std::function<void(int direction)> step;
    Units_face units_face;
    Arrow up_arrow, down_arrow;
    Framed_key units_key, up_key, down_key;
    VT::Soft_key_mask_obj keys;
    Arrow up_mark, down_mark;
};

} // namespace gallery

#endif
