#ifndef GALLERY_ELEMENTS_PAGE_H
#define GALLERY_ELEMENTS_PAGE_H

#include "apps/gallery/Page.h"

#include "vtui/comp/objects/Container_obj.h"
#include "vtui/comp/objects/Has_child_placements.h"
#include "vtui/comp/objects/Output_string_obj.h"
#include "vtui/comp/objects/Rectangle_obj.h"
#include "vtui/comp/widgets/Placement_widget.h"

#include <array>
#include <deque>

namespace gallery {

/// The first page: content placed three ways, fitting and overhanging; the backgrounds and the bevel; numbers from the
/// ready-made strings; the covers of all five sizes over something that is to look disabled.
class Elements_page final : public Page
{
  public:
    explicit Elements_page(Page_style& page_style);

  private:
    struct Placed
    {
        explicit Placed(VT::Comp::Placement_widget::Justification justification) : widget(justification) {}

        VT::Comp::Placement_widget widget;
        VT::Comp::Rectangle_obj box; ///< shows where the widget's edges are
        VT::Comp::Rectangle_obj content;
    };

    struct Swatch
    {
        VT::Comp::Container_obj frame; ///< cuts the background, which is as large as the mask
        VT::Comp::Child_placements_array<Array_array_1> children;
    };

    struct Covered
    {
        VT::Comp::Container_obj frame;
        VT::Comp::Child_placements_array<Array_array_3> children;
    };

    void show_placements();
    void show_backgrounds();
    void show_bevel();
    void show_numbers();
    void show_covers();

    std::deque<Placed> placed;
    std::deque<Swatch> swatches;
    VT::Comp::Container_obj bevel;
    VT::Comp::Child_placements_array<Array_array_2> bevel_children;
    std::array<VT::Comp::Output_string_obj, 17> numbers;
    std::deque<Covered> covered;
};

} // namespace gallery

#endif
