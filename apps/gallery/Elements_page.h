#ifndef GALLERY_ELEMENTS_PAGE_H
#define GALLERY_ELEMENTS_PAGE_H

#include "apps/gallery/Caption.h"

#include "vt/Mask_obj.h"
#include "vtui/comp/Connection_elements.h"
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
class Elements_page
{
  public:
    /// `mask_size` is the side of the data mask in pixels; `style` has been given the same size.
    Elements_page(VT::Comp::Connection_elements& style, std::uint16_t mask_size);

    VT::Data_mask_obj& root() { return mask; }

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

    std::int16_t at(int quarters) const { return static_cast<std::int16_t>(quarters * mask_size / 96); }
    std::uint16_t span(int quarters) const { return static_cast<std::uint16_t>(quarters * mask_size / 96); }

    void show_placements();
    void show_backgrounds();
    void show_bevel();
    void show_numbers();
    void show_covers();
    void add_caption(const char* words, int x, int y, int width, std::uint8_t justification = 0);

    VT::Comp::Connection_elements& style;
    const std::uint16_t mask_size;
    VT::Data_mask_obj mask;

    std::deque<Caption> captions;
    std::deque<Placed> placed;
    std::deque<Swatch> swatches;
    VT::Comp::Container_obj bevel;
    VT::Comp::Child_placements_array<Array_array_2> bevel_children;
    std::array<VT::Comp::Output_string_obj, 17> numbers;
    std::deque<Covered> covered;
};

} // namespace gallery

#endif
