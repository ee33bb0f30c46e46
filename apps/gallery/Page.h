#ifndef GALLERY_PAGE_H
#define GALLERY_PAGE_H

#include "apps/gallery/Caption.h"

#include "vt/Mask_obj.h"
#include "vtui/comp/Connection_elements.h"
#include "vtui/comp/objects/Dimension.h"
#include "vtui/comp/objects/Rectangle_obj.h"

#include <deque>

namespace gallery {

/// What each screen of the gallery is made with: a data mask, measures that fit its size, and captions. All lengths
/// handed to it are quarters of the 24th part of the mask: 2.5 pixels on a mask of 240, 5 on 480.
class Page
{
  public:
    VT::Data_mask_obj& root() { return mask; }

  protected:
    /// `side` is that of the data mask in pixels; `elements` has been given the same size.
    Page(const char* name, std::uint8_t background, VT::Comp::Connection_elements& elements, std::uint16_t side)
        : style(elements), mask_size(side), mask(name, background)
    {}
    ~Page() = default;

    std::int16_t at(int quarters) const { return static_cast<std::int16_t>(quarters * mask_size / 96); }
    std::uint16_t span(int quarters) const { return static_cast<std::uint16_t>(quarters * mask_size / 96); }
    VT::Comp::Dimension area(int width, int height) const { return {span(width), span(height)}; }

    /// One line of text in the first font of the style set, unless another is given.
    void add_caption(const char* words, int x, int y, int width,
                     VT::Field_obj::Horizontal justification = VT::Field_obj::left,
                     VT::Comp::Font_attributes_obj* font = nullptr);

    /// Gives a rectangle its looks and its size.
    static void draw(VT::Comp::Rectangle_obj& rectangle, VT::Comp::Dimension size, VT::Comp::Fill_attributes_obj& fill,
                     VT::Comp::Line_attributes_obj& line);

    VT::Comp::Connection_elements& style;
    const std::uint16_t mask_size;
    VT::Data_mask_obj mask;
    std::deque<Caption> captions;
};

} // namespace gallery

#endif
