#ifndef TESTS_POOL_NUMBER_SCREEN_H
#define TESTS_POOL_NUMBER_SCREEN_H

#include "tests/pool/Screen.h"
#include "vtui/comp/objects/Rectangle_obj.h"
#include "vtui/comp/widgets/Number_widget.h"

#include <gtest/gtest.h>
#include <utility>
#include <vector>

/// A number field that remembers what was entered.
class Entry_field final : public C::Number_widget
{
  public:
    using Number_widget::Number_widget;
    void handle_input_value(double v) override { entered.push_back(v); }
    std::vector<double> take_entered() { return std::exchange(entered, {}); }

  private:
    std::vector<double> entered;
};

/// A routed number field of 300 × 40 pixels at 10, 20, its digits 16 × 16 and its units 8 × 12.
struct Number_screen : Screen
{
    using Specification = C::Number_widget::Specification;

    /// Litres and gallons, different in everything.
    static constexpr Specification litres{Units_man::volume_per_area, 0, 1000, 0.5, 1};
    static constexpr Specification imperial_gallons{Units_man::volume_per_area, -10, 200, 0.25, 2};
    static constexpr Specification us_gallons{Units_man::volume_per_area, 5, 9999, 0.125, 3};

    template <class... Specifications>
    explicit Number_screen(const Specifications&... specifications)
        : field({&number_font, &units_font, &backdrop, C::Number_widget::right_aligned, true}, specifications...,
                nullptr)
    {
        number_font.size = 4;
        units_font.size = 2;
        mask.add(field.root(), 10, 20);
        pool.route(field);
    }
    Number_screen() : Number_screen(litres, imperial_gallons, us_gallons) {}

    /// What an application does: the terminal's answer first, then the layout, then the load.
    void load(VT::Client::Terminal_link& link)
    {
        ASSERT_TRUE(pool.ask_hardware(link));
        field.init(&pool, nullptr);
        field.set_size({300, 40});
        const VT::Result result = pool.load(link);
        ASSERT_TRUE(result) << result.text();
    }

    void choose(Units_man::units_systems system)
    {
        units.set_system_type(system);
        pool.announce(units);
    }

    Units_man units;
    C::Font_attributes_obj number_font;
    C::Font_attributes_obj units_font;
    C::Rectangle_obj backdrop;
    Entry_field field;
};

#endif
