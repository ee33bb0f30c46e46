#include "apps/gallery/Layouts_page.h"

namespace gallery {

using namespace VT::Comp;

namespace {

struct Row
{
    const char* caption;
    Number_widget::Layout layout;
    Number_widget::Specification metric;
    Number_widget::Specification other;
    double value; ///< in the metric unit
};

constexpr Row rows[] = {
    {"right-aligned",
     Number_widget::right_aligned,
     {Units_man::speed, 0, 50, 0.1, 1},
     {Units_man::speed, 0, 50, 0.1, 1},
     12.5},
    {"centred pair",
     Number_widget::centred_pair,
     {Units_man::volume_flow, 0, 500, 1, 0},
     {Units_man::volume_flow, 0, 500, 0.1, 1},
     96},
    {"left-aligned",
     Number_widget::left_aligned,
     {Units_man::volume_per_area, 0, 500, 1, 0},
     {Units_man::volume_per_area, 0, 500, 0.1, 1},
     187},
    {"stacked", Number_widget::stacked, {Units_man::area, 0, 900, 0.1, 1}, {Units_man::area, 0, 900, 0.1, 1}, 34.7},
};

constexpr int left = 3, right = 63, width = 55, narrow_width = 30;
constexpr int top = 12, row_height = 20, caption_height = 4, height = 14;

} // namespace

Layouts_page::Layouts_page(Page_style& page_style) : Number_page("layouts", "Number layouts", page_style)
{
    int y = top;
    for (const Row& row : rows) {
        add_caption(row.caption, left, y, width);
        y += row_height;
    }
    add_caption("no units", right, top, narrow_width);
    add_column(with_units, left, width, nullptr);
    add_column(without_units, right, narrow_width, &style.empty_string);
    set_step([this](int direction) { with_units.fields.front().increment(direction * 0.5); }, left + width - 8, top);
}

void Layouts_page::add_column(Column& column, int x, int fields_width, VT::String_variable_obj* units_text)
{
    constexpr int line = 1; // pixels
    const auto pixel = [](int coordinate) { return static_cast<std::int16_t>(coordinate); };
    const auto around = [](int length) { return static_cast<std::uint16_t>(length + 2 * line); };

    const Dimension size = area(fields_width, height);
    set_looks(column.frame, {around(size.width), around(size.height)}, style.fill_white, style.line_black);
    int y = top + caption_height;
    for (const Row& row : rows) {
        Number_widget& field =
            column.fields.emplace_back(look(row.layout, style.rect_white), row.metric, row.other, units_text);
        field.init(&pool, nullptr);
        field.set_value(row.value);
        field.set_size(size);
        mask.add(column.frame, pixel(at(x) - line), pixel(at(y) - line));
        mask.add(field.root(), at(x), at(y));
        pool.route(field);
        y += row_height;
    }
}

} // namespace gallery
