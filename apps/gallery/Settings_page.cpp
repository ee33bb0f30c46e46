#include "apps/gallery/Settings_page.h"

namespace gallery {

using namespace VT::Comp;

namespace {

using Specification = Number_widget::Specification;

constexpr Specification metres{Units_man::distance_short, 0, 200, 0.1, 1};
constexpr Specification count{Units_man::none, 0, 96, 1, 0};
constexpr Specification impulses{Units_man::none, 0, 9999, 1, 0};
constexpr Specification yes_or_no{Units_man::none, 0, 1, 1, 0};

constexpr int left = 2, middle = 48, top = 10, row_height = 18, width = 46, height = 12, padding = 1;

} // namespace

Settings_page::Settings_page(Page_style& page_style, Settings& settings)
    : Number_page("settings", "Settings", page_style),
      boom_width(settings.boom_width, input_look(style.rect_white), metres, nullptr),
      sections(settings.sections, input_look(style.rect_white), count, &style.empty_string),
      wheel_impulses(settings.wheel_impulses, input_look(style.rect_white), impulses, &style.empty_string),
      automatic(settings.automatic, input_look(style.rect_white), yes_or_no, &style.empty_string)
{
    set_looks(frame, area(width, height), style.fill_white, style.line_black);
    add("Boom width", boom_width, 0);
    add("Sections", sections, 1);
    add("Impulses", wheel_impulses, 2);
    add("Auto (0 or 1)", automatic, 3);
    set_step([this](int direction) { boom_width.increment(direction * 0.5); }, middle + width - 8, top - 4);
}

template <typename T>
void Settings_page::add(const char* name, Field<T>& field, int row)
{
    const int y = top + row * row_height;
    add_caption(name, left, y + 4, middle - left, VT::Field_obj::left, &style.font_2);
    field.init(&pool);
    field.set_size(area(width - 2 * padding, height - 2 * padding));
    mask.add(frame, at(middle), at(y));
    mask.add(field.root(), at(middle + padding), at(y + padding));
    pool.route(field);
}

void Settings_page::set_visible(bool visible)
{
    if (visible == is_visible)
        return;
    is_visible = visible;
    const Visible_event event{visible, &waiter};
    boom_width.handle_event(event);
    sections.handle_event(event);
    wheel_impulses.handle_event(event);
    automatic.handle_event(event);
}

} // namespace gallery
