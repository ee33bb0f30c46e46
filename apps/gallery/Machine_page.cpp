#include "apps/gallery/Machine_page.h"

namespace gallery {

using namespace VT::Comp;

namespace {

using Specification = Number_widget::Specification;

constexpr Specification km_per_hour{Units_man::speed, 0, 40, 0.1, 1};
constexpr Specification bar{Units_man::pressure, 0, 250, 0.1, 1};
constexpr Specification litres{Units_man::volume, 0, 9000, 1, 0};
constexpr Specification hectares{Units_man::area, 0, 20000, 0.01, 2};
constexpr Specification litres_per_hectare{Units_man::volume_per_area, 0, 600, 1, 0};

constexpr int left = 2, right = 50, top = 8, row_height = 21;
constexpr int width = 44, height = 12, caption_height = 6;

} // namespace

Machine_page::Machine_page(Page_style& page_style, Machine& machine)
    : Number_page("machine", "Machine", page_style),
      speed(machine.store, machine.data.speed, look(Number_widget::right_aligned, style.rect_white), km_per_hour,
            nullptr),
      pressure(machine.store, machine.data.pressure, look(Number_widget::right_aligned, style.rect_white), bar,
               nullptr),
      tank(machine.store, machine.data.tank, look(Number_widget::right_aligned, style.rect_white), litres, nullptr),
      area_done(machine.store, machine.data.area, look(Number_widget::right_aligned, style.rect_white), hectares,
                nullptr),
      target_speed(machine.store, machine.data.target_speed, input_look(style.rect_white), km_per_hour, nullptr),
      rate(machine.store, machine.data.rate, input_look(style.rect_white), litres_per_hectare, nullptr)
{
    set_looks(frame, area(width, height), style.fill_white, style.line_black);
    add("Speed", speed, left, top);
    add("Pressure", pressure, left, top + row_height);
    add("Tank", tank, left, top + 2 * row_height);
    add("Area done", area_done, left, top + 3 * row_height);
    add("Set speed", target_speed, right, top);
    add("Set rate", rate, right, top + row_height);
    set_step([this](int direction) { target_speed.increment(direction); }, right + width - 8, top + 1);
}

void Machine_page::add(const char* name, Number_widget& field, int x, int y)
{
    constexpr int padding = 1;
    add_caption(name, x, y, width, VT::Field_obj::left, &style.font_2);
    field.init(&pool, nullptr);
    field.set_size(area(width - 2 * padding, height - 2 * padding));
    mask.add(frame, at(x), at(y + caption_height));
    mask.add(field.root(), at(x + padding), at(y + caption_height + padding));
    pool.route(field);
}

} // namespace gallery
