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

Gallery::Gallery(std::uint16_t mask_size)
    : numbers(sized(style, mask_size), mask_size, objects), elements(style, mask_size), layouts(numbers),
      fields(numbers), limits(numbers), working_set("gallery")
{
    working_set.set_active_mask(elements.root());
    for (VT::Mask_obj* page : {&layouts.root(), &fields.root(), &limits.root()})
        working_set.add_mask(*page);
    working_set.add_language("en");
    objects.add(working_set);
}

std::vector<Picture> Gallery::pictures() const
{
    std::vector<Picture> all;
    for (VT::Mask_obj* page : pages()) {
        const std::string name = page->get_name();
        all.push_back({name, page, Units_man::metric});
        if (page != pages().front()) {
            all.push_back({name + "-imperial", page, Units_man::imperial});
            all.push_back({name + "-us", page, Units_man::us});
        }
    }
    return all;
}

void Gallery::show(const Picture& picture)
{
    numbers.units.choose(picture.units);
    show(*picture.page);
}

} // namespace gallery
