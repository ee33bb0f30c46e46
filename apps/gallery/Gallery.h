#ifndef GALLERY_GALLERY_H
#define GALLERY_GALLERY_H

#include "apps/gallery/Buttons_page.h"
#include "apps/gallery/Covers_page.h"
#include "apps/gallery/Elements_page.h"
#include "apps/gallery/Fields_page.h"
#include "apps/gallery/Layouts_page.h"
#include "apps/gallery/Limits_page.h"
#include "apps/gallery/List_page.h"
#include "apps/gallery/Machine_page.h"
#include "apps/gallery/Scroll_page.h"
#include "apps/gallery/Settings_page.h"
#include "apps/gallery/Trail_page.h"

#include "pool/Pool.h"
#include "vt/Working_set_obj.h"

#include <array>
#include <functional>
#include <string>
#include <vector>

namespace gallery {

/// A page as a picture shows it.
struct Picture
{
    std::string name;
    std::function<void()> show; ///< while the gallery lives
};

/// The screens of the gallery for one size of data mask: an application as an implement's maker would write it.
class Gallery
{
  public:
    /// The settings are kept in that file, ":memory:" for none. Throws what NV_store::Store throws.
    explicit Gallery(std::uint16_t mask_size, const std::string& settings_file = ":memory:");

    VT::Pool& pool() { return objects; }
    /// The screens in the order in which they are shown.
    const std::vector<VT::Mask_obj*>& pages() const { return working_set.get_masks(); }
    void show(VT::Mask_obj& page);

    /// Works only after its start(). What it does is shown by deliver().
    Machine& machine() { return sprayer; }
    Settings& stored() { return settings; }
    /// Readable when there is something for deliver().
    std::array<int, 2> descriptors() const { return {sprayer.store.descriptor(), settings_page.waiter.descriptor()}; }
    /// Shows what the machine has done and what has been set.
    void deliver();

    /// The screens under their own names, and what they look like when they have been operated: in other systems of
    /// units, disabled, gone deeper, scrolled.
    std::vector<Picture> pictures();

  private:
    VT::Pool objects; ///< first: the fields are laid out with its units texts
    Page_style style;
    Machine sprayer;
    Settings settings;
    Elements_page elements;
    Layouts_page layouts;
    Fields_page fields;
    Limits_page limits;
    Buttons_page buttons;
    Covers_page covers;
    Trail_page trail;
    Scroll_page scroll;
    List_page list;
    Machine_page machine_page;
    Settings_page settings_page;
    VT::Working_set_obj working_set;
};

} // namespace gallery

#endif
