#include "apps/gallery/Fields_page.h"

namespace gallery {

using namespace VT::Comp;

namespace {

using Specification = Number_widget::Specification;

// A value is held within the limits before it is converted, an entry after that: the limits leave room for both.
constexpr Specification km_per_hour{Units_man::speed, 0, 50, 0.1, 1};
constexpr Specification litres_per_minute{Units_man::volume_flow, 0, 900, 1, 0};
constexpr Specification bar{Units_man::pressure, 0, 16, 0.1, 1};
constexpr Specification psi{Units_man::pressure, 0, 250, 1, 0};
constexpr Specification hectares_per_hour{Units_man::area_rate, 0, 100, 0.1, 1};
constexpr Specification hectares{Units_man::area, 0, 2000, 0.1, 1};
constexpr Specification litres_per_hectare{Units_man::volume_per_area, 0, 300, 1, 0};
constexpr Specification gallons_per_acre{Units_man::volume_per_area, 0, 300, 0.1, 1};
constexpr Specification metres{Units_man::distance_short, 0, 60, 0.1, 1};
constexpr Specification feet{Units_man::distance_short, 0, 200, 0.1, 1};
constexpr Specification litres{Units_man::volume, 0, 9000, 1, 0};
constexpr Specification hundredths{Units_man::distance_short, 0, 5, 0.01, 2}; // in metres, or as fine in feet

constexpr int left = 2, right = 47, top = 8, row_height = 17;
constexpr int setting_width = 47, setting_height = 14, padding = 1;

} // namespace

Fields_page::Fields_page(Page_style& page_style)
    : Number_page("fields", "Sprayer", page_style), speed(shown_look(), km_per_hour, nullptr),
      flow(shown_look(), litres_per_minute, nullptr), pressure(shown_look(), bar, psi, nullptr),
      work_rate(shown_look(), hectares_per_hour, nullptr), worked(shown_look(), hectares, nullptr),
      rate(&style.font_2, &words("Set rate"), input_look(style.rect_white), litres_per_hectare, gallons_per_acre,
           nullptr),
      boom_width(&style.font_2, &words("Boom width"), input_look(style.rect_white), metres, feet, nullptr),
      tank(&style.font_2, &words("Tank"), input_look(style.rect_white), litres, nullptr),
      lowest_pressure(&style.font_2, &words("Alarm below"), input_look(style.rect_white), bar, psi, nullptr),
      row_width(&style.font_2, &words("Row width"), input_look(style.rect_white), hundredths, nullptr)
{
    for (Shown* field : shown)
        field->init(&pool, nullptr);
    for (Setting* field : settings)
        field->input.init(&pool, nullptr);
    speed.set_value(12);
    pressure.set_value(3.2);
    worked.set_value(128.4);
    rate.input.set_value(200);
    boom_width.input.set_value(24);
    tank.input.set_value(2850);
    lowest_pressure.input.set_value(1.5);
    row_width.input.set_value(0.5);
    update();

    place();
    lay_out();
    pool.route(*this);
}

Bordered_number_widget::Style Fields_page::shown_look() const
{
    return {&style.line_black, nullptr, look(Number_widget::centred_pair, style.rect_white)};
}

void Fields_page::place()
{
    constexpr std::array<const char*, 5> words{"Speed", "Flow", "Pressure", "Work rate", "Area done"};
    set_looks(setting_frame, area(setting_width, setting_height), style.fill_white, style.line_black);
    int y = top;
    for (std::size_t i = 0; i < words.size(); ++i) {
        add_caption(words[i], left, y, right - left, VT::Field_obj::left, &style.font_2);
        mask.add(shown[i]->root(), at(left), at(y + 6));
        mask.add(setting_frame, at(right), at(y));
        mask.add(settings[i]->root(), at(right + padding), at(y + padding));
        y += row_height;
    }
    const auto step_rate = [this](int direction) {
        rate.input.increment(direction * 10);
        update();
    };
    set_step(step_rate, right + setting_width - 8, top + 1);
}

void Fields_page::lay_out()
{
    for (Shown* field : shown)
        field->set_preferred_size();
    const Dimension inside = area(setting_width - 2 * padding, setting_height - 2 * padding);
    for (Setting* field : settings) {
        const std::int16_t above = centred(inside.height, field->get_preferred_size().height);
        field->set_size(inside, {0, static_cast<std::uint16_t>(above)});
    }
}

void Fields_page::update()
{
    const double km_h = speed.get_value();
    const double metres_wide = boom_width.input.get_value();
    flow.set_value(rate.input.get_value() * km_h * metres_wide / 600);
    work_rate.set_value(km_h * metres_wide / 10);
}

template <class Event>
void Fields_page::tell_fields(Event& event)
{
    for (Shown* field : shown)
        field->number.handle_event(event);
    for (Setting* field : settings)
        field->input.handle_event(event);
}

void Fields_page::handle_event(VT::VT_change_numeric_value_event& event)
{
    tell_fields(event);
    update();
}

void Fields_page::handle_event(const VT::VT_information& terminal)
{
    tell_fields(terminal);
    lay_out();
}

void Fields_page::handle_event(Units_man& units_man)
{
    tell_fields(units_man);
    for (Shown* field : shown) { // the border follows the number
        field->set_preferred_size();
        field->root().upload(true);
    }
}

} // namespace gallery
