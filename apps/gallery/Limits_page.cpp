#include "apps/gallery/Limits_page.h"

namespace gallery {

using namespace VT::Comp;

namespace {

struct Row
{
    const char* caption;
    const char* limits;
    Number_widget::Specification specification;
    double value; ///< in the metric unit
};

constexpr double highest = 2147483647; // of 32 bits with a sign

constexpr Row rows[] = {
    {"Bounded", "0 to 100", {Units_man::percent, 0, 100, 1, 0}, 42},
    {"Negative", "-40.0 to 60.0", {Units_man::temperature_difference, -40, 60, 0.1, 1}, -12.5},
    {"Three decimals", "0.000 to 9.999", {Units_man::distance_short, 0, 9.999, 0.001, 3}, 1.234},
    // The terminal's raw number is 4,294,967,293: what it takes for negative without the offset of -2,147,483,647.
    {"Large offset", "\2612147483647", {Units_man::none, -highest, highest, 1, 0}, highest - 1},
    // As far as 32 bits reach: the raw number is 2,147,471,303.
    {"Unbounded", "no limits", {Units_man::none, 0, 0, 1, 0}, -12345},
};

constexpr int left = 2, right = 40, width = 54, height = 12, row_height = 14, top = 9, padding = 1;

} // namespace

void Limits_page::Field::handle_input_value(double v)
{
    const char* const metric_units = Units_man::get_text(Units_man::metric, specifications[system].units_type);
    last_entry.format("%s: %.10g %s", caption, v, metric_units);
}

Limits_page::Limits_page(Page_style& page_style) : Number_page("limits", "Limits", page_style)
{
    set_looks(box, area(width, height), style.fill_white, style.line_black);
    int y = top;
    for (const Row& row : rows) {
        add_caption(row.caption, left, y + 1, right - left);
        add_caption(row.limits, left, y + 6, right - left);
        Field& field = fields.emplace_back(row.caption, last_entry, input_look(box), row.specification);
        field.init(&pool, nullptr);
        field.set_value(row.value);
        mask.add(field.root(), at(right), at(y));
        pool.route(field);
        y += row_height;
    }
    set_step([this](int direction) { fields.front().increment(direction * 5); }, right + 1, top + 1);

    constexpr int log_top = 84;
    set_looks(log_box, area(right + width - left, 5), style.fill_195, style.line_none);
    add_caption("Last entry", left, log_top - 5, width);
    mask.add(log_box, at(left), at(log_top));
    add_text(last_entry, style.font_1, left + 1, log_top + 1, right + width - left - 2);
    last_entry.format("none yet");

    lay_out();
    pool.route(*this);
}

void Limits_page::lay_out()
{
    for (Field& field : fields) // the units keep off the frame
        field.set_size(area(width, height), area(width - 2 * padding, height), {at(padding), 0});
}

} // namespace gallery
