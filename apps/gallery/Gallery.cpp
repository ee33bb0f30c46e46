#include "apps/gallery/Gallery.h"

namespace gallery {

namespace {

/// The style has to know the mask before the pages are laid out with it.
VT::Comp::Connection_elements& sized(VT::Comp::Connection_elements& style, std::uint16_t mask_size)
{
    style.set_sizes(mask_size);
    return style;
}

} // namespace

Gallery::Gallery(std::uint16_t mask_size) : elements(sized(style, mask_size), mask_size), working_set("gallery")
{
    working_set.set_active_mask(elements.root());
    working_set.add_language("en");
    objects.add(working_set);
}

} // namespace gallery
