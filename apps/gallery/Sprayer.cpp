#include "apps/gallery/Sprayer.h"

#include <algorithm>

namespace gallery {

using namespace VT::Comp;

namespace {

constexpr int margin = 4; // pixels
/// In drawing order.
enum Part : std::uint8_t { sky_part, tank_part, air_part, text_part, boom_part, lamp_part };

std::uint16_t length(int pixels) { return static_cast<std::uint16_t>(pixels); }

} // namespace

Sprayer::Sprayer(Page_style& shared, Dimension size)
    : lamp({&shared.icons[Icon::lamp_off], &shared.icons[Icon::lamp_on]})
{
    Connection_elements& style = shared.elements;
    for (Rectangle_obj* rectangle : {&sky, &tank, &air, &bar}) {
        rectangle->set_fill(&style.fill_white);
        rectangle->set_line(&style.line_black);
    }
    tank.set_fill(&liquid);
    bar.set_fill(&style.fill_17);
    level_text.set_font(&style.font_1);
    level_text.set_variable(&level_words);
    level_text.options = VT::Field_obj::transparent;

    boom_parts.placements[0].ref = &bar;
    for (std::size_t i = 0; i < sections.size(); ++i) {
        Section& section = sections[i];
        for (std::size_t k = 0; k < section.children.size(); ++k)
            section.children.placements[k].ref = &shared.icons.half(Icon::drop);
        section.drops.placements_ptr = &section.children;
        boom_parts.placements[i + 1].ref = &section.drops;
    }
    boom.placements_ptr = &boom_parts;

    VT::VT_obj* const in_drawing_order[] = {&sky, &tank, &air, &level_text, &boom, &lamp};
    for (std::size_t i = 0; i < parts.size(); ++i)
        parts.placements[i].ref = in_drawing_order[i];
    container.placements_ptr = &parts;
    resize(container, size);
    lay_out();
    set_level(level);
    set_spraying(false, false);
}

void Sprayer::lay_out()
{
    const Dimension size = size_of(container);
    resize(sky, size);
    resize(tank, {length(size.width / 6), length(size.height - 2 * margin)});
    resize(air, {tank.width, height_of_air()});
    resize(level_text, text_size(level_words.get_length(), level_text.font));

    const Dimension drop = size_of(sections.front().children.placements[0]);
    resize(bar, {length(size.width / 2), length(drop.height / 2)});
    resize(boom, {bar.width, length(bar.height + drop.height)});
    const int n_drops = static_cast<int>(sections.front().children.size());
    const int width = bar.width / 2;
    for (int i = 0; i < 2; ++i) {
        Section& section = sections[static_cast<std::size_t>(i)];
        resize(section.drops, {length(width), drop.height});
        for (int k = 0; k < n_drops; ++k)
            section.children.placements[static_cast<std::size_t>(k)].x =
                position((2 * k + 1) * width / (2 * n_drops) - drop.width / 2);
        Child_placement& placed = boom_parts.placements[static_cast<std::size_t>(i) + 1];
        placed.x = position(i * width);
        placed.y = position(bar.height);
    }

    const int middle = (size.height - level_text.height) / 2;
    const auto place = [this](Part part, Point at) {
        parts.placements[part].x = at.x;
        parts.placements[part].y = at.y;
    };
    place(tank_part, {margin, margin});
    place(air_part, {margin, margin});
    place(text_part, {position(2 * margin + tank.width), position(middle)});
    place(boom_part, boom_place());
    place(lamp_part, {position(size.width - margin - lamp.get_width()), centred(size.height, lamp.get_height())});
}

Point Sprayer::boom_place() const
{
    const int room = container.height - 2 * margin - boom.height;
    return {position(container.width / 3), position(margin + (highest - boom_height) * room / highest)};
}

std::uint16_t Sprayer::height_of_air() const { return length(tank.height * (full - level) / full); }

void Sprayer::set_boom(int height)
{
    if (height < 0 || height > highest)
        return;
    boom_height = height;
    const Point place = boom_place();
    parts.placements[boom_part] = {&boom, place.x, place.y};
    container.set_child_location(boom_part, place.x, place.y);
}

void Sprayer::set_level(int new_level)
{
    level = std::clamp(new_level, 0, full);
    level_words.format("%d %%", level);
    air.change_size(air.width, height_of_air());
}

void Sprayer::set_spraying(bool left, bool right)
{
    sections[0].drops.set_hidden(!left);
    sections[1].drops.set_hidden(!right);
}

} // namespace gallery
