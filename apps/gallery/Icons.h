#ifndef GALLERY_ICONS_H
#define GALLERY_ICONS_H

#include "apps/gallery/Icon.h"

#include "vtui/comp/objects/Picture_graphic_obj.h"

#include <cstddef>
#include <cstdint>
#include <deque>

namespace gallery {

/// The data of one picture: run-length encoded, four bits a pixel; size in bytes.
struct Bitmap
{
    const std::uint8_t* data;
    std::size_t size;
};

/// Squares of 12, 24 and 48 pixels.
extern const Bitmap icon_bitmaps[number_of_icons][3];

/// The icons, twice as large from a mask of 480 pixels on. The pool takes in those that are shown.
class Icons
{
  public:
    explicit Icons(std::uint16_t mask_size);

    /// 24 by 24 pixels, or 48 by 48.
    VT::Comp::Picture_graphic_obj& operator[](Icon icon) { return large[static_cast<std::size_t>(icon)]; }
    /// Half as wide and high.
    VT::Comp::Picture_graphic_obj& half(Icon icon) { return small[static_cast<std::size_t>(icon)]; }

  private:
    std::deque<VT::Comp::Picture_graphic_obj> small, large;
};

} // namespace gallery

#endif
