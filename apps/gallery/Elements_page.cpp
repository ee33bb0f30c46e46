#include "apps/gallery/Elements_page.h"

#include <algorithm>
#include <string>

namespace gallery {

using namespace VT::Comp;
using Justification = Placement_widget::Justification;

Elements_page::Elements_page(Page_style& page_style) : Page("elements", grey, page_style)
{
    show_placements();
    show_backgrounds();
    show_bevel();
    show_numbers();
    show_covers();
}

void Elements_page::show_placements()
{
    constexpr int width = 14, height = 11, left = 3, step = 15, top = 6;
    const Dimension fitting = area(8, 4);
    const Dimension overhanging = area(18, 4);
    constexpr std::pair<Justification, const char*> ways[] = {
        {Justification::centre, "centre"}, {Justification::left, "left"}, {Justification::top, "top"}};

    add_caption("Placement: fitting", left, 1, 45);
    add_caption("overhanging", left + 3 * step, 1, 44);
    int x = left;
    for (const Dimension size : {fitting, overhanging}) {
        for (const auto& [way, words] : ways) {
            Placed& shown = placed.emplace_back(way);
            set_looks(shown.content, size, style.fill_39, style.line_black);
            shown.widget.set_content(&shown.content);
            shown.widget.set_size(area(width, height));
            set_looks(shown.box, area(width, height), style.fill_white, style.line_none);
            mask.add(shown.box, at(x), at(top));
            mask.add(shown.widget.root(), at(x), at(top));
            add_caption(words, x, top + height, step, VT::Field_obj::middle);
            x += step;
        }
    }
}

void Elements_page::show_backgrounds()
{
    constexpr int left = 2, top = 27, width = 6, height = 8, step = 7;
    add_caption("Backgrounds", left, 22, 60);
    for (Rectangle_obj* own_size : {&style.rect_81, &style.rect_39, &style.rect_17}) {
        resize(*own_size, area(width, height));
    }
    int x = left;
    for (Rectangle_obj* background :
         {&style.rect_red, &style.rect_green, &style.rect_white, &style.rect_195, &style.rect_81, &style.rect_39,
          &style.rect_188, &style.rect_17, &style.rect_17_patterned}) {
        Swatch& swatch = swatches.emplace_back();
        swatch.children.placements[0].ref = background;
        swatch.frame.placements_ptr = &swatch.children;
        resize(swatch.frame, area(width, height));
        mask.add(swatch.frame, at(x), at(top));
        x += step;
    }
}

void Elements_page::show_bevel()
{
    constexpr int left = 70, top = 27, width = 24, height = 8;
    add_caption("Bevel", left, 22, width);
    resize(bevel, area(width, height));
    // The dark half is pinned to the bottom right corner, the light one to the top left one.
    bevel_children.placements[0] = {&style.rect_bevel_dark,
                                    static_cast<std::int16_t>(bevel.width - style.rect_bevel_dark.width),
                                    static_cast<std::int16_t>(bevel.height - style.rect_bevel_dark.height)};
    bevel_children.placements[1] = {&style.rect_bevel_light, 0, 0};
    bevel.placements_ptr = &bevel_children;
    mask.add(bevel, at(left), at(top));
}

void Elements_page::show_numbers()
{
    constexpr int left = 2, top = 42, width = 10, height = 4, columns = 9;
    add_caption("Numbers", left, 37, 60);
    for (std::size_t i = 0; i < numbers.size(); ++i) {
        Output_string_obj& number = numbers[i];
        number.set_font(&style.font_1);
        number.options = VT::Field_obj::transparent;
        number.justification = VT::Field_obj::right;
        resize(number, area(width, height));
        if (i + 1 < numbers.size())
            number.set_variable(&style.number_strings[i * 17]);
        else
            number.set_variable(&style.percent_string);
        const int row = static_cast<int>(i) / columns, column = static_cast<int>(i) % columns;
        mask.add(number, at(left + column * width), at(top + row * (height + 1)));
    }
}

void Elements_page::show_covers()
{
    constexpr int left = 2, top = 58, height = 36, gap = 2;
    add_caption("Covers 32, 64, 128, 256, 512", left, 53, 92);
    int x = at(left);
    int room = mask_size - 2 * x;
    int covers = 5;
    for (const int side : {32, 64, 128, 256, 512}) {
        // What small covers leave of their share goes to the large ones, which are cut at the frame.
        const int share = (room - (covers - 1) * at(gap)) / covers;
        const int width = std::min(side, share);
        Caption& label = captions.emplace_back(std::to_string(side).c_str(), style.font_3);
        label.set_size({static_cast<std::uint16_t>(width), span(8)});
        label.set_justification(VT::Field_obj::middle);
        Covered& part = covered.emplace_back();
        part.children.placements[0].ref = &style.rect_green;
        part.children.placements[1] = {&label.root(), 0, at(4)};
        part.children.placements[2].ref = style.cover.root_at_size(static_cast<std::uint16_t>(side));
        part.frame.placements_ptr = &part.children;
        resize(part.frame, {static_cast<std::uint16_t>(width), span(height)});
        mask.add(part.frame, static_cast<std::int16_t>(x), at(top));
        x += width + at(gap);
        room -= width + at(gap);
        --covers;
    }
}

} // namespace gallery
