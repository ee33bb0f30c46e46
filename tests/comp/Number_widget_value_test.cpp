#include "tests/comp/Number_field.h"

#include <cmath>
#include <limits>

using namespace number_field;

namespace {

using NumberWidgetValue = Field;

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double nan = std::numeric_limits<double>::quiet_NaN();

/// What a field shows of a value, in raw units, and what it keeps of it.
void expect_shown(Number_widget& field, double given, double kept, std::uint32_t raw)
{
    field.set_value(given);
    EXPECT_EQ(field.get_value(), kept) << given;
    EXPECT_EQ(field.value, kept) << given;
    EXPECT_EQ(field.output_number.value, raw) << given;
}

/// A field that has been given its pool.
struct Ready : Number_widget
{
    Ready(const Style& style, const Specification& specification) : Number_widget(style, specification, nullptr)
    {
        init(nullptr, nullptr);
    }
};

TEST_F(NumberWidgetValue, IsShownInStepsFromTheMinimum)
{
    Ready half(style(), bounded(0, 100, 0.5));
    expect_shown(half, 0, 0, 0);
    expect_shown(half, 50, 50, 100);
    expect_shown(half, 100, 100, 200);
    Ready tenth(style(), bounded(-10, 10, 0.1));
    expect_shown(tenth, -10, -10, 0);
    expect_shown(tenth, 0, 0, 100);
    expect_shown(tenth, 10, 10, 200);
    expect_shown(tenth, 3.7, 3.7, 137);
}

TEST_F(NumberWidgetValue, IsKeptWithinItsLimits)
{
    Ready field(style(), bounded(-10, 100, 0.5));
    expect_shown(field, 150, 100, 220);
    expect_shown(field, std::nextafter(100, 101), 100, 220);
    expect_shown(field, -11, -10, 0);
    expect_shown(field, std::nextafter(-10, -11), -10, 0);
    expect_shown(field, infinity, 100, 220);
    expect_shown(field, -infinity, -10, 0);
    expect_shown(field, nan, -10, 0);
}

TEST_F(NumberWidgetValue, IsKeptWithinALimitOfZeroIfTheOtherIsNot)
{
    Ready positive(style(), bounded(0, 5));
    expect_shown(positive, -1, 0, 0);
    Ready negative(style(), bounded(-5, 0));
    expect_shown(negative, 1, 0, 5);
}

TEST_F(NumberWidgetValue, IsUnboundedUntilAnUnboundedSystemIsShown)
{
    Number_widget field(style(), nullptr);
    expect_shown(field, 5, 5, 5);
    expect_shown(field, -1, -1, 4294967295U);
    expect_shown(field, 5000000000.0, 5000000000.0, 705032704U); // less 2^32
    expect_shown(field, infinity, infinity, 0);
    expect_shown(field, -infinity, -infinity, 0);
    field.set_value(nan);
    EXPECT_TRUE(std::isnan(field.get_value()));
    EXPECT_EQ(field.output_number.value, 0U);
}

TEST_F(NumberWidgetValue, OfAnUnboundedFieldReachesAsFarAs32Bits)
{
    Ready field(style(), Specification());
    expect_shown(field, 0, 0, 2147483648U);
    expect_shown(field, -2147483648.0, -2147483648.0, 0);
    expect_shown(field, 2147483647, 2147483647, 4294967295U);
    expect_shown(field, 1e10, 2147483647, 4294967295U);
    expect_shown(field, -1e10, -2147483648.0, 0);
    expect_shown(field, nan, -2147483648.0, 0);
}

TEST_F(NumberWidgetValue, MayNeedAllBitsOfARawNumber)
{
    Ready field(style(), bounded(0, 4000000000.0));
    expect_shown(field, 2147483648.0, 2147483648.0, 2147483648U);
    expect_shown(field, 4000000000.0, 4000000000.0, 4000000000U);
}

TEST_F(NumberWidgetValue, IsRoundedToTheEvenStep)
{
    Ready field(style(), bounded(-10, 10));
    expect_shown(field, 2.5, 2.5, 12);
    expect_shown(field, 3.5, 3.5, 14);
    expect_shown(field, -2.5, -2.5, 8);
    expect_shown(field, -3.5, -3.5, 6);
    expect_shown(field, std::nextafter(2.5, 3), std::nextafter(2.5, 3), 13);
}

TEST_F(NumberWidgetValue, IsRoundedBeforeTheOffsetIsTakenAway)
{
    Ready field(style(), bounded(1, 10)); // 2.5 would become 1.5 and that 2
    expect_shown(field, 2.5, 2.5, 1);
}

TEST_F(NumberWidgetValue, IsDividedByTheScaleThatTheTerminalHas)
{
    Ready field(style(), bounded(0, 100000000, 0.1));
    // The float nearest to 0.1 is 0.100000001490116.
    expect_shown(field, 100000000, 100000000, 999999985U);
}

TEST_F(NumberWidgetValue, TakesTheInputNumbersScaleAndTheOutputNumbersOffset)
{
    Ready field(style(), bounded(0, 100));
    field.input_number.scale = 2.0F;
    field.output_number.scale = 4.0F;
    field.input_number.offset = -100;
    field.output_number.offset = -7;
    expect_shown(field, 10, 10, 12);
}

TEST_F(NumberWidgetValue, IsShownInDisplayUnits)
{
    Ready field(style(), bounded(0, 100, 0.1, 1, Units_man::temperature_difference));
    expect_shown(field, 10, 10, 100);
    field.set_system(Units_man::imperial); // 1.8 degrees Fahrenheit each
    EXPECT_EQ(field.get_value(), 10);
    EXPECT_EQ(field.output_number.value, 180U);
    expect_shown(field, 20, 20, 360);
}

TEST_F(NumberWidgetValue, IsKeptWithinLimitsOfDisplayUnitsBeforeTheFactor)
{
    Ready high(style(), bounded(0, 100, 1, 0, Units_man::temperature_difference));
    high.set_system(Units_man::us);
    expect_shown(high, 80, 80, 144);
    expect_shown(high, 101, 100, 180);
    Ready low(style(), bounded(50, 100, 1, 0, Units_man::speed));
    low.set_system(Units_man::us);
    expect_shown(low, 60, 60, 4294967283U); // 37 mph, thirteen below the minimum
}

TEST_F(NumberWidgetValue, GoesToTheInputNumberIfThatIsAChild)
{
    Ready shown(style(), bounded(0, 100));
    shown.set_value(7);
    EXPECT_EQ(shown.output_number.value, 7U);
    EXPECT_EQ(shown.input_number.value, 0U) << "nobody sees it";

    Ready input(style(0, true), bounded(0, 100));
    input.set_value(7);
    EXPECT_EQ(input.output_number.value, 7U);
    EXPECT_EQ(input.input_number.value, 7U);

    input.handle_event(VT::VT_information{}); // it is in the number's place
    input.set_value(8);
    EXPECT_EQ(input.output_number.value, 8U);
    EXPECT_EQ(input.input_number.value, 8U);
}

TEST_F(NumberWidgetValue, OfAScaleOfZeroIsShownAsZero)
{
    Ready field(style(), bounded(0, 0.5, 0));
    expect_shown(field, 0.25, 0.25, 0);
    expect_shown(field, 0, 0, 0);
}

TEST_F(NumberWidgetValue, OfANegativeScaleCountsDown)
{
    Ready field(style(), bounded(0, 100, -0.5));
    expect_shown(field, 50, 50, 4294967196U); // -100
    field.handle_input(10);
    EXPECT_EQ(field.get_value(), -5);
}

TEST_F(NumberWidgetValue, IsShownAgainInAnotherSystem)
{
    Number_widget field(style(), bounded(0, 100, 0.5), bounded(-100, 100, 0.25), bounded(0, 20), nullptr);
    field.init(nullptr, nullptr);
    field.set_value(30);
    EXPECT_EQ(field.output_number.value, 60U);
    field.set_system(Units_man::imperial);
    EXPECT_EQ(field.get_value(), 30);
    EXPECT_EQ(field.output_number.value, 520U);
    field.set_system(Units_man::us);
    EXPECT_EQ(field.get_value(), 20) << "cut by the limits of this system";
    field.set_system(Units_man::metric);
    EXPECT_EQ(field.get_value(), 20);
    EXPECT_EQ(field.output_number.value, 40U);
}

TEST_F(NumberWidgetValue, GivenBeforeTheFieldIsReadyIsShownThen)
{
    Number_widget field(style(), bounded(-10, 10, 0.5), nullptr);
    field.set_value(4);
    field.init(nullptr, nullptr);
    EXPECT_EQ(field.get_value(), 4);
    EXPECT_EQ(field.output_number.value, 28U);
}

} // namespace
