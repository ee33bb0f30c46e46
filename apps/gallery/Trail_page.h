#ifndef GALLERY_TRAIL_PAGE_H
#define GALLERY_TRAIL_PAGE_H

#include "apps/gallery/Framed_key.h"
#include "apps/gallery/Page.h"

#include "vtui/comp/widgets/Crumb_trail.h"
#include "vtui/comp/widgets/Label_content_widget.h"
#include "vtui/comp/widgets/Placement_widget.h"

#include <deque>

namespace gallery {

/// A way down into a sprayer and up again by two soft keys, and where the operator is: as a trail, in a wide row, and
/// in a tall one.
class Trail_page final : public Page
{
  public:
    explicit Trail_page(Page_style& page_style);

    void go_down();
    void go_up();

  private:
    /// A place to be: in the trail, and in the rows.
    struct Level
    {
        Level(const char* name, VT::VT_obj& icon, VT::Comp::Font_attributes_obj& font);

        VT::VT_obj& icon;
        VT::Comp::Placement_widget crumb{VT::Comp::Placement_widget::Justification::centre};
        Caption name;
    };

    void build_trail();
    void build_rows();
    void show_level();

    VT::Comp::Rectangle_obj background;
    VT::Comp::Crumb_trail trail;
    std::deque<Level> levels;
    VT::Comp::Label_content_widget wide, tall;
    std::deque<VT::Comp::Output_string_obj> depths; ///< how deep each level lies, as a number

    Key_caption down_caption, up_caption;
    Framed_key down_key, up_key;
    VT::Soft_key_mask_obj keys;
};

} // namespace gallery

#endif
