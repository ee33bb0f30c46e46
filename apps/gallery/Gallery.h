#ifndef GALLERY_GALLERY_H
#define GALLERY_GALLERY_H

#include "apps/gallery/Elements_page.h"
#include "apps/gallery/Fields_page.h"
#include "apps/gallery/Layouts_page.h"
#include "apps/gallery/Limits_page.h"

#include "pool/Pool.h"
#include "vt/Working_set_obj.h"
#include "vtui/comp/Connection_elements.h"

#include <string>
#include <vector>

namespace gallery {

/// A page as a picture shows it.
struct Picture
{
    std::string name;
    VT::Mask_obj* page;
    Units_man::units_systems units;
};

/// The screens of the gallery for one size of data mask: an application as an implement's maker would write it.
class Gallery
{
  public:
    explicit Gallery(std::uint16_t mask_size);

    VT::Pool& pool() { return objects; }
    /// The screens in the order in which they are shown.
    const std::vector<VT::Mask_obj*>& pages() const { return working_set.get_masks(); }
    void show(VT::Mask_obj& page) { working_set.set_active_mask(page); }

    /// The screens under their own names and, as far as they have units, in the other systems of units.
    std::vector<Picture> pictures() const;
    void show(const Picture& picture);

  private:
    VT::Pool objects; ///< first: the fields are laid out with its units texts
    VT::Comp::Connection_elements style;
    Number_style numbers;
    Elements_page elements;
    Layouts_page layouts;
    Fields_page fields;
    Limits_page limits;
    VT::Working_set_obj working_set;
};

} // namespace gallery

#endif
