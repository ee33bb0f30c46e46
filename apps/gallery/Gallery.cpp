#include "apps/gallery/Gallery.h"

#include <utility>

namespace gallery {

Gallery::Gallery(std::uint16_t mask_size)
    : style(objects, mask_size), elements(style), layouts(style), fields(style), limits(style), buttons(style),
      covers(style), trail(style), scroll(style), list(style), working_set("gallery")
{
    working_set.set_active_mask(elements.root());
    for (VT::Mask_obj* page : {&layouts.root(), &fields.root(), &limits.root(), &buttons.root(), &covers.root(),
                               &trail.root(), &scroll.root(), &list.root()})
        working_set.add_mask(*page);
    working_set.add_language("en");
    objects.add(working_set);
}

std::vector<Picture> Gallery::pictures()
{
    std::vector<Picture> all;
    const auto add = [&](Page& page, const std::string& variant, std::function<void()> prepare) {
        VT::Mask_obj& mask = page.root();
        all.push_back({mask.get_name() + variant, [this, &mask, prepare = std::move(prepare)] {
                           prepare();
                           show(mask);
                       }});
    };
    add(elements, "", [] {});
    constexpr std::pair<const char*, Units_man::units_systems> systems[] = {
        {"", Units_man::metric}, {"-imperial", Units_man::imperial}, {"-us", Units_man::us}};
    for (Page* page : {static_cast<Page*>(&layouts), static_cast<Page*>(&fields), static_cast<Page*>(&limits)})
        for (const auto& [variant, system] : systems)
            add(*page, variant, [this, system = system] { style.units.choose(system); });
    add(buttons, "", [] {});
    add(covers, "", [this] { covers.set_all_disabled(false); });
    add(covers, "-disabled", [this] { covers.set_all_disabled(true); });
    add(trail, "", [] {});
    add(trail, "-deeper", [this] {
        trail.go_down();
        trail.go_down();
    });
    add(scroll, "", [] {});
    add(scroll, "-jumped", [this] { scroll.jump(); });
    add(list, "", [] {});
    return all;
}

} // namespace gallery
