// What a system of units makes of its specification: scale, decimals, offset and the limits of an entry.

#include "tests/comp/Number_field.h"

#include <cmath>

using namespace number_field;

namespace {

using NumberWidgetLimits = Field;

constexpr std::int32_t lowest = -2147483647 - 1;

/// What both number objects and the input number carry once a specification is shown.
void expect_limits(const Specification& specification, std::int32_t offset, std::uint32_t highest)
{
    Number_widget field(Style(), specification, nullptr);
    field.input_number.min_value = std::uint32_t{7};
    field.set_system(Units_man::metric);
    EXPECT_EQ(field.output_number.offset, offset);
    EXPECT_EQ(field.input_number.offset, offset);
    EXPECT_EQ(field.input_number.min_value, 0U);
    EXPECT_EQ(field.input_number.max_value, highest);
}

TEST_F(NumberWidgetLimits, AreThoseOfTheSystem)
{
    Number_widget field(style(), bounded(0, 100, 0.5, 1), bounded(-10, 10, 0.1, 2), bounded(8, 16, 0.25, 3), nullptr);
    field.init(nullptr, nullptr);
    const auto expect_shown = [&](Units_man::units_systems system, float scale, int decimals) {
        EXPECT_EQ(field.system, system);
        for (const VT::Number_field_obj* const number :
             {static_cast<const VT::Number_field_obj*>(&field.output_number),
              static_cast<const VT::Number_field_obj*>(&field.input_number)}) {
            EXPECT_EQ(number->scale, scale);
            EXPECT_EQ(number->number_of_decimals, decimals);
        }
    };
    expect_shown(Units_man::metric, 0.5F, 1);
    field.set_system(Units_man::imperial);
    expect_shown(Units_man::imperial, 0.1F, 2);
    field.set_system(Units_man::us);
    expect_shown(Units_man::us, 0.25F, 3);
}

TEST_F(NumberWidgetLimits, AreRawStepsFromTheMinimum)
{
    expect_limits(bounded(0, 100, 0.5), 0, 200);
    expect_limits(bounded(-10, 10, 0.1), -100, 200);
    expect_limits(bounded(8, 16, 0.25), 32, 32);
    expect_limits(bounded(-5, 0), -5, 5);
    expect_limits(bounded(0, 0.75, 0.25), 0, 3);
    expect_limits(bounded(-100, -50, 10), -10, 5);
}

TEST_F(NumberWidgetLimits, AreRoundedToTheEvenNeighbour)
{
    expect_limits(bounded(2.5, 5), 2, 2);
    expect_limits(bounded(3.5, 7), 4, 4);
    expect_limits(bounded(-2.5, 0), -2, 2);
    expect_limits(bounded(-3.5, 0), -4, 4);
    expect_limits(bounded(2.75, 5.5), 3, 3);
    expect_limits(bounded(-2.75, 0), -3, 3);
}

TEST_F(NumberWidgetLimits, OfAnUnboundedFieldAreAllThat32BitsHold)
{
    expect_limits(bounded(0, 0), lowest, 4294967295U);
    expect_limits(bounded(-0.0, 0, 0.5), lowest, 4294967295U);
}

TEST_F(NumberWidgetLimits, OfAnUnboundedFieldAreWrittenBackOnce)
{
    Number_widget field(style(), bounded(0, 0, 0.5), bounded(0, 0, 0.25), bounded(0, 0, 2), nullptr);
    field.set_system(Units_man::imperial);
    EXPECT_EQ(field.specifications[1].min, -2147483648.0 * 0.25);
    EXPECT_EQ(field.specifications[1].max, 2147483647.0 * 0.25);
    EXPECT_EQ(field.specifications[0].max, 0) << "a system that was never shown";
    EXPECT_EQ(field.specifications[2].max, 0);

    field.set_system(Units_man::imperial); // bounded now, by the same limits
    EXPECT_EQ(field.specifications[1].min, -536870912.0);
    EXPECT_EQ(field.specifications[1].max, 536870911.75);
    EXPECT_EQ(field.output_number.offset, lowest);
    EXPECT_EQ(field.input_number.offset, lowest);
    EXPECT_EQ(field.input_number.max_value, 4294967295U);

    field.specifications[1].max = 100; // so these limits count
    field.set_system(Units_man::imperial);
    EXPECT_EQ(field.specifications[1].max, 100);
    EXPECT_EQ(field.input_number.max_value, 2147484048U) << "(536870912 + 100) / 0.25";
}

TEST_F(NumberWidgetLimits, MayBeAFullRangeApart)
{
    expect_limits(bounded(0, 858993459, 0.2), 0, 4294967295U);
    expect_limits(bounded(0, 2147483647, 0.5), 0, 4294967294U);
    expect_limits(bounded(0, 4000000000.0), 0, 4000000000U);
    expect_limits(bounded(-2147483648.0, 2147483647), lowest, 4294967295U);
}

TEST_F(NumberWidgetLimits, MayBeAFractionFurtherApart)
{
    // Only whole display units are checked: 858993459.75 / 0.2 is 4294967298.75.
    expect_limits(bounded(0, 858993459.75, 0.2), 0, 3);
}

TEST_F(NumberWidgetLimits, Beyond32BitsAreNotChecked)
{
    expect_limits(bounded(0, 1e10), 0, 1410065408U);                    // 10^10 - 2 * 2^32
    expect_limits(bounded(-1e10, 0), lowest, 1410065408U);              // the offset's mark
    expect_limits(bounded(3000000000.0, 3000000100.0), lowest, 100U);   // likewise
    expect_limits(bounded(-1e300, 1e300), lowest, 0);                   // more than 64 bits
    expect_limits(bounded(-HUGE_VAL, HUGE_VAL), lowest, 0);             // likewise
    expect_limits(bounded(0, 2147483648.0, 0.25), 0, 0);                // 2^33
    expect_limits(bounded(0, 2147483648.0 + 16, 0.25), 0, 64);          // 2^33 + 64
    expect_limits(bounded(-2147483649.0, 0, 1), lowest, 2147483649U);   // below the lowest offset
    expect_limits(bounded(-2147483648.5, 1, 1), lowest, 2147483650U);   // 2147483649.5 to the even neighbour
    expect_limits(bounded(2147483646.5, 2147483650.0), 2147483646, 4U); // 3.5 steps
}

TEST_F(NumberWidgetLimits, OfAScaleOfZeroFollowTheFloatingPointRules)
{
    expect_limits(bounded(0, 0.5, 0), lowest, 0);          // 0 / 0 is no number, 0.5 / 0 infinite
    expect_limits(bounded(0.25, 0.5, 0), lowest, 0);       // both infinite
    expect_limits(bounded(0, 2147483648.0, 0), lowest, 0); // -2147483648 / 0 is not above the limit
    expect_limits(bounded(0, 0, 0), lowest, 4294967295U);  // unbounded
    expect_limits(bounded(0, 100, -0.0), lowest, 0);       // minus infinity steps
}

TEST_F(NumberWidgetLimits, OfAScaleOfZeroStayUnbounded)
{
    Number_widget field(style(), bounded(0, 0, 0), nullptr);
    field.set_system(Units_man::metric);
    EXPECT_EQ(field.specifications[0].min, 0);
    EXPECT_EQ(field.specifications[0].max, 0);
    EXPECT_EQ(field.get_preferred_number_size().width, 2 * 16);
    field.set_value(5);
    EXPECT_EQ(field.get_value(), 5);
    EXPECT_EQ(field.output_number.value, 0U) << "infinitely many steps";
}

TEST_F(NumberWidgetLimits, OfANegativeScaleFollowTheFloatingPointRules)
{
    expect_limits(bounded(0, 100, -0.5), 0, 4294967096U);        // -200
    expect_limits(bounded(10, 100, -0.5), -20, 4294967116U);     // -180
    expect_limits(bounded(0, 2147483648.0, -1), 0, 2147483648U); // -2147483648 / -1 is within the limit
    expect_limits(bounded(0, 0, -1), lowest, 4294967295U);       // unbounded
    Number_widget field(style(), bounded(0, 0, -1), nullptr);
    field.set_system(Units_man::metric);
    EXPECT_EQ(field.specifications[0].min, 2147483648.0);
    EXPECT_EQ(field.specifications[0].max, -2147483647.0);
    EXPECT_EQ(field.get_value(), -2147483647.0) << "0 is not above the minimum, and that not below the maximum";
    EXPECT_EQ(field.output_number.value, 4294967295U);
}

TEST_F(NumberWidgetLimits, AreNotCheckedBeforeASystemIsShown)
{
    Number_widget field(style(), bounded(0, 10), bounded(5, 5), nullptr);
    field.init(nullptr, nullptr);
    EXPECT_EQ(field.input_number.max_value, 10U);
}

} // namespace
