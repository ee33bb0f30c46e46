#ifndef TESTS_COMP_NUMBER_FIELD_H
#define TESTS_COMP_NUMBER_FIELD_H

#include "tests/comp/Parts.h"
#include "vtui/comp/objects/Rectangle_obj.h"
#include "vtui/comp/widgets/Number_widget.h"

#include <gtest/gtest.h>

#include <utility>
#include <vector>

namespace number_field {

using parts::Journal;
using parts::Text;
using VT::Comp::Number_widget;
using Specification = Number_widget::Specification;
using Style = Number_widget::Style;

/// A field that writes down what its operator did.
class Listener : public Number_widget
{
  public:
    using Number_widget::Number_widget;
    void handle_input_value(double v) override { heard.push_back(v); }

    std::vector<double> heard;
};

constexpr Specification bounded(double min, double max, double scale = 1, std::uint8_t decimals = 0,
                                Units_man::units_type type = Units_man::none)
{
    return {type, min, max, scale, decimals};
}

/// What a field borrows, and a pool for it: digits of 16 × 24 pixels, letters of 8 × 12.
class Field : public ::testing::Test
{
  protected:
    Field()
    {
        number_font.size = std::uint8_t{5};
        units_font.size = std::uint8_t{2};
    }

    Style style(std::uint32_t layout = Number_widget::right_aligned, bool input = false)
    {
        return {&number_font, &units_font, &backdrop, layout, input};
    }

    /// Numbers what a field consists of and borrows; the terminal is told all of it.
    void take(Number_widget& field)
    {
        const std::pair<VT::VT_obj*, Iso::Object_id> objects[] = {
            {&field.container, container_id}, {&field.input_number, input_id}, {&field.output_number, output_id},
            {&field.units, units_id},         {&number_font, number_font_id},  {&units_font, units_font_id},
            {&backdrop, backdrop_id},         {&mph.variable, mph_id},         {&kmh.variable, kmh_id}};
        for (const auto& [object, id] : objects) {
            pool.take(*object, id);
            pool.upload(*object);
        }
        pool.sent.clear();
        pool.uploaded.clear();
    }

    static constexpr Iso::Object_id container_id = 0x1001;
    static constexpr Iso::Object_id input_id = 0x1002;
    static constexpr Iso::Object_id output_id = 0x1003;
    static constexpr Iso::Object_id units_id = 0x1004;
    static constexpr Iso::Object_id number_font_id = 0x2001;
    static constexpr Iso::Object_id units_font_id = 0x2002;
    static constexpr Iso::Object_id backdrop_id = 0x2003;
    static constexpr Iso::Object_id mph_id = 0x2004;
    static constexpr Iso::Object_id kmh_id = 0x2005;

    Journal pool; // outlives what is in it
    VT::Comp::Font_attributes_obj number_font;
    VT::Comp::Font_attributes_obj units_font;
    VT::Comp::Rectangle_obj backdrop;
    Text mph{"mph"};
    Text kmh{"km/h"};
};

} // namespace number_field

#endif
