#include "apps/gallery/Gallery.h"

#include <utility>

namespace gallery {

Gallery::Gallery(std::uint16_t mask_size, const std::string& settings_file)
    : style(objects, mask_size), settings(settings_file), elements(style), layouts(style), fields(style), limits(style),
      buttons(style), covers(style), trail(style), scroll(style), list(style), machine_page(style, sprayer),
      settings_page(style, settings), working_set("gallery")
{
    working_set.set_active_mask(elements.root());
    for (VT::Mask_obj* page :
         {&layouts.root(), &fields.root(), &limits.root(), &buttons.root(), &covers.root(), &trail.root(),
          &scroll.root(), &list.root(), &machine_page.root(), &settings_page.root()})
        working_set.add_mask(*page);
    working_set.add_language("en");
    objects.add(working_set);
}

void Gallery::show(VT::Mask_obj& page)
{
    working_set.set_active_mask(page);
    settings_page.set_visible(&page == &settings_page.root());
}

void Gallery::deliver()
{
    sprayer.store.deliver();
    settings_page.waiter.deliver();
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
    for (Number_page* page :
         std::initializer_list<Number_page*>{&layouts, &fields, &limits, &machine_page, &settings_page})
        for (const auto& [variant, system] : systems)
            add(*page, variant, [this, system = system] {
                style.units.choose(system);
                deliver();
            });
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
