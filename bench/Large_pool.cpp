#include "bench/Large_pool.h"

namespace bench {

using namespace VT::Comp;

Large_pool::Row::Row(Connection_elements& style)
{
    for (Rectangle_obj* rectangle : {&background, &off, &on}) {
        rectangle->width = 20;
        rectangle->height = 20;
        rectangle->set_line(&style.line_black);
    }
    background.set_fill(&style.fill_white);
    off.set_fill(&style.fill_red);
    on.set_fill(&style.fill_green);
    number.set_font(&style.font_2);
    units_text.format("km/h");
    units.set_font(&style.font_1);
    units.set_variable(&units_text);
    caption.set_font(&style.font_1);
    caption.set_variable(&style.number_strings[7]);

    placements.placements[0] = {&background, 0, 0};
    placements.placements[1] = {&number, 0, 0};
    placements.placements[2] = {&units, 60, 0};
    placements.placements[3] = {&lamp, 100, 0};
    container.placements_ptr = &placements;
    face.placements[0] = {&caption, 2, 2};
    button.placements_ptr = &face;
}

Large_pool::Large_pool(std::size_t objects)
{
    for (std::size_t i = 0; i < objects / objects_per_row; ++i) {
        if (i % rows_per_mask == 0)
            working_set.add_mask(masks.emplace_back());
        Row& row = rows.emplace_back(style);
        const auto y = static_cast<std::int16_t>(i % rows_per_mask * 4);
        masks.back().add(row.container, 0, y);
        masks.back().add(row.button, 200, y);
    }
    working_set.set_active_mask(masks.front());
}

} // namespace bench
