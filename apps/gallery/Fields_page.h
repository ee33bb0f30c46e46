#ifndef GALLERY_FIELDS_PAGE_H
#define GALLERY_FIELDS_PAGE_H

#include "apps/gallery/Number_page.h"

#include "vtui/comp/widgets/Bordered_number_widget.h"
#include "vtui/comp/widgets/Labelled_input_widget.h"

#include <array>

namespace gallery {

/// A sprayer at work: at the left, in borders, what it does; at the right, under labels, what the operator sets. The
/// page is routed in the place of its fields, because what is set changes what is done.
class Fields_page final : public Number_page
{
  public:
    explicit Fields_page(Page_style& page_style);

    void handle_event(VT::VT_change_numeric_value_event& event);
    void handle_event(const VT::VT_information& terminal);
    void handle_event(Units_man& units_man);

  private:
    using Shown = VT::Comp::Bordered_number_widget;
    using Setting = VT::Comp::Labelled_input_widget<VT::Comp::Number_widget>;

    Shown::Style shown_look() const;
    void place();
    void lay_out();
    /// What the sprayer does with these settings.
    void update();
    template <class Event>
    void tell_fields(Event& event);

    VT::Comp::Rectangle_obj setting_frame;

    Shown speed, flow, pressure, work_rate, worked;
    Setting rate, boom_width, tank, lowest_pressure, row_width;
    const std::array<Shown*, 5> shown{&speed, &flow, &pressure, &work_rate, &worked};
    const std::array<Setting*, 5> settings{&rate, &boom_width, &tank, &lowest_pressure, &row_width};
};

} // namespace gallery

#endif
