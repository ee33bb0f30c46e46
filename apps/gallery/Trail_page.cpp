#include "apps/gallery/Trail_page.h"

namespace gallery {

using namespace VT::Comp;

namespace {

constexpr int left = 2, trail_top = 7, trail_width = 92, trail_height = 24;
constexpr int rows_top = 36;

} // namespace

Trail_page::Level::Level(const char* words, VT::VT_obj& its_icon, Font_attributes_obj& font)
    : icon(its_icon), name(words, font)
{
    crumb.set_content(&icon);
}

Trail_page::Trail_page(Page_style& page_style)
    : Page("trail", silver, page_style), trail(style), wide(style.rect_17_patterned, {}),
      tall(style.rect_17_patterned, {}), down_caption("Deeper", shared), up_caption("Back", shared),
      down_key(shared, down_caption.root(), [this] { go_down(); }),
      up_key(shared, up_caption.root(), [this] { go_up(); })
{
    add_title_bar("Trail and rows");
    for (const auto& [name, icon] :
         {std::pair{"Tank", Icon::fill}, {"Boom", Icon::boom_down}, {"Nozzle", Icon::nozzle}, {"Drop", Icon::drop}})
        levels.emplace_back(name, shared.icons[icon], shared.large_font);
    build_trail();
    build_rows();
    trail.add_crumb(&levels.front().crumb.root());
    show_level();
    keys.add(down_key.root());
    keys.add(up_key.root());
    mask.set_soft_key_mask(&keys);
}

void Trail_page::build_trail()
{
    const Dimension size = area(trail_width, trail_height);
    set_looks(background, size, style.fill_17, style.line_none);
    for (Line_obj* line : {&trail.frame_vertical_line, &trail.frame_horizontal_line, &trail.select_line})
        line->set_line(&style.line_black_c);
    trail.set_size(size);
    for (Level& level : levels) {
        level.crumb.set_size({static_cast<std::uint16_t>(size.width / Crumb_trail::most_crumbs), size.height});
        pool.add(level.crumb.root());
    }
    mask.add(background, at(left), at(trail_top));
    mask.add(*trail.root(), at(left), at(trail_top));
}

void Trail_page::build_rows()
{
    wide.set_size(area(56, 20));
    tall.set_size(area(24, 56));
    for (Level& level : levels) {
        level.name.set_size(wide.get_content_size());
        level.name.set_justification(VT::Field_obj::left, Caption::centre);
        pool.add(level.name.root());
        Output_string_obj& depth = depths.emplace_back();
        depth.set_font(&shared.large_font);
        depth.set_variable(&style.number_strings[depths.size()]);
        depth.options = VT::Field_obj::transparent;
        depth.justification = VT::Field_obj::middle;
        resize(depth, tall.get_content_size());
        pool.add(depth);
    }
    mask.add(wide.root(), at(left), at(rows_top));
    mask.add(tall.root(), at(left + 62), at(rows_top));
}

void Trail_page::go_down()
{
    if (trail.num_crumbs() == levels.size())
        return;
    trail.add_crumb(&levels[trail.num_crumbs()].crumb.root());
    show_level();
}

/// The first crumb stays: the trail would leave its frame behind.
void Trail_page::go_up()
{
    if (trail.num_crumbs() == 1)
        return;
    trail.back_crumb();
    show_level();
}

void Trail_page::show_level()
{
    Level& level = levels[trail.num_crumbs() - 1];
    wide.set({&level.icon, &level.name.root()});
    tall.set({&level.icon, &depths[trail.num_crumbs() - 1]});
}

} // namespace gallery
