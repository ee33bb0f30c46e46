#ifndef GALLERY_GALLERY_H
#define GALLERY_GALLERY_H

#include "apps/gallery/Elements_page.h"

#include "pool/Pool.h"
#include "vt/Working_set_obj.h"
#include "vtui/comp/Connection_elements.h"

namespace gallery {

/// The screens of the gallery for one size of data mask: an application as an implement's maker would write it.
class Gallery
{
  public:
    explicit Gallery(std::uint16_t mask_size);

    VT::Pool& pool() { return objects; }
    /// The screens in the order in which they are shown; their names are those of the pictures.
    const std::vector<VT::Mask_obj*>& pages() const { return working_set.get_masks(); }
    void show(VT::Mask_obj& page) { working_set.set_active_mask(page); }

  private:
    VT::Comp::Connection_elements style;
    Elements_page elements;
    VT::Working_set_obj working_set;
    VT::Pool objects;
};

} // namespace gallery

#endif
