#include "vtui/comp/Connection_elements.h"

namespace VT::Comp {

namespace {

constexpr std::uint8_t all_edges = 15; // line suppression
constexpr std::uint8_t top_and_left = 1 | 8;
constexpr std::uint8_t right_and_bottom = 2 | 4;

/// A font's size code on a small and on a large mask.
struct Font_codes
{
    std::uint8_t small;
    std::uint8_t large;
};

constexpr std::uint16_t large_mask = 480;
constexpr Font_codes font_codes[] = {{0, 0}, {0, 2}, {2, 3}, {3, 5}, {5, 6}, {0, 2}, {2, 3}, {3, 5}, {5, 6}};

} // namespace

Connection_elements::Connection_elements()
{
    const auto draw = [](Rectangle_obj& rectangle, Fill_attributes_obj* fill, Line_attributes_obj* line,
                         std::uint8_t suppressed) {
        rectangle.line_suppression = suppressed;
        rectangle.set_fill(fill);
        rectangle.set_line(line);
    };
    draw(rect_red, &fill_red, &line_none, all_edges);
    draw(rect_green, &fill_green, &line_none, all_edges);
    draw(rect_white, &fill_white, &line_none, all_edges);
    draw(rect_195, &fill_195, &line_none, all_edges);
    draw(rect_81, &fill_81, &line_none, all_edges);
    draw(rect_39, &fill_39, &line_none, all_edges);
    draw(rect_188, &fill_188, &line_none, all_edges);
    draw(rect_17, &fill_17, &line_none, all_edges);
    draw(rect_17_patterned, &fill_17_patterned, &line_none, all_edges);
    fill_17_patterned.set_pattern(nullptr);
    draw(rect_bevel_dark, &fill_59, &line_black_b, top_and_left);
    draw(rect_bevel_light, nullptr, &line_white_b, right_and_bottom);

    for (unsigned i = 0; i < number_strings.size(); ++i)
        number_strings[i].format("%u", i);
    empty_string.format("%s", "");
    percent_string.format("%%");
}

void Connection_elements::set_sizes(unsigned short size)
{
    for (Line_attributes_obj* line :
         {&line_black, &line_black_c, &line_111_b, &line_111, &line_white, &line_white_b, &line_black_b})
        line->width = 1;

    for (Rectangle_obj* background : {&rect_red, &rect_green, &rect_white, &rect_195, &rect_188, &rect_17_patterned,
                                      &rect_bevel_dark, &rect_bevel_light})
        resize(*background, {size, size});

    cover.set_size({size, size});

    Font_attributes_obj* const fonts[] = {&font_0, &font_1, &font_2, &font_3, &font_4,
                                          &font_5, &font_6, &font_7, &font_8};
    for (std::size_t i = 0; i < std::size(fonts); ++i)
        fonts[i]->size = size < large_mask ? font_codes[i].small : font_codes[i].large;
}

} // namespace VT::Comp
