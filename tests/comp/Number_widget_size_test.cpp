#include "tests/comp/Number_field.h"

#include <limits>

using namespace number_field;
using VT::Comp::Dimension;
using VT::Comp::Point;

namespace {

using NumberWidgetSize = Field;

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double nan = std::numeric_limits<double>::quiet_NaN();

TEST_F(NumberWidgetSize, OfTheNumberCountsItsCharacters)
{
    struct Case
    {
        double min;
        double max;
        std::uint8_t decimals;
        int characters;
        const char* why;
    };
    const Case cases[] = {
        {0, 0, 0, 2, "unbounded: a digit and the sign"},
        {-0.0, 0.0, 0, 2, "unbounded too"},
        {0, 0, 2, 5, "unbounded with a point and two decimals"},
        {0, 1, 0, 1, "no digit but the leading one"},
        {0, 1, 1, 3, "a point and a decimal"},
        {0, 1, 7, 9, "a point and seven decimals"},
        {0, 1, 255, 257, "more decimals than a terminal shows"},
        {0, 3, 0, 1, "log10(3) is 0.48"},
        {0, 4, 0, 2, "log10(4) is 0.60"},
        {0, 30, 0, 2, "log10(30) is 1.48"},
        {0, 31, 0, 2, "log10(31) is 1.49"},
        {0, 32, 0, 3, "log10(32) is 1.51"},
        {0, 100, 0, 3, "log10(100) is 2"},
        {0, 999, 0, 4, "log10(999) is 3.00"},
        {0, 31.99, 0, 2, "fractions are cut off"},
        {0, 0.9, 0, 1, "nothing is left but 0, which has no logarithm"},
        {-0.5, 0.5, 0, 2, "a sign, and the same"},
        {-5, 100, 1, 6, "1 + 2, the sign, 2"},
        {-1000, 10, 0, 5, "the minimum has more digits"},
        {-31.99, 1, 0, 3, "1, the sign, 1"},
        {5, 1000, 0, 4, "no sign above zero"},
        {-5, 0, 0, 3, "1, the sign, 1"},
        {0, 2147483647, 0, 10, "log10 is 9.33"},
        {-2147483647, 0, 0, 11, "and the sign"},
        {-2147483648.0, 2147483647, 0, 11, "the lowest number has no positive counterpart"},
        {-2147483648.0, 5, 0, 3, "so that of 5 counts"},
        {0, 2147483648.0, 0, 1, "beyond 32 bits there are no digits"},
        {0, 1e20, 2, 4, "none, that is"},
        {50, 1e20, 0, 3, "but those of the other limit"},
        {-1e20, 1e20, 0, 2, "and of two such limits only the sign is left"},
        {-infinity, infinity, 0, 2, "likewise"},
        {0, infinity, 0, 1, "likewise"},
        {nan, nan, 0, 1, "bounded by what is no number: neither sign nor digits"},
        {0, nan, 1, 3, "likewise"},
    };
    for (const auto& [min, max, decimals, characters, why] : cases) {
        const Number_widget field(style(), bounded(min, max, 1, decimals), nullptr);
        EXPECT_EQ(field.get_preferred_number_size(), Dimension(static_cast<std::uint16_t>(characters * 16), 24))
            << min << " to " << max << ", " << +decimals << " decimals: " << why;
    }
}

TEST_F(NumberWidgetSize, OfTheNumberIsThatOfTheSystemShown)
{
    Number_widget field(style(), bounded(0, 10), bounded(0, 100), bounded(-1000, 1000, 1, 2), nullptr);
    EXPECT_EQ(field.get_preferred_number_size(), Dimension(2 * 16, 24));
    field.set_system(Units_man::imperial);
    EXPECT_EQ(field.get_preferred_number_size(), Dimension(3 * 16, 24));
    field.set_system(Units_man::us);
    EXPECT_EQ(field.get_preferred_number_size(), Dimension(8 * 16, 24));
}

TEST_F(NumberWidgetSize, OfAnUnboundedNumberGrowsWithItsFirstSystem)
{
    Number_widget field(style(), nullptr);
    EXPECT_EQ(field.get_preferred_number_size(), Dimension(2 * 16, 24));
    field.init(nullptr, nullptr);
    EXPECT_EQ(field.get_preferred_number_size(), Dimension(11 * 16, 24)) << "1, the sign, log10(2147483647)";
}

TEST_F(NumberWidgetSize, OfNumberAndUnitsFollowsTheFontsOfTheField)
{
    VT::Comp::Font_attributes_obj other;
    other.size = std::uint8_t{14};
    Number_widget field(style(), bounded(0, 100), &mph.variable);
    field.output_font = &other;
    EXPECT_EQ(field.get_preferred_number_size(), Dimension(3 * 128, 192));
    EXPECT_EQ(field.get_preferred_units_size(), Dimension(3 * 8, 12));
    field.units_font = &other;
    EXPECT_EQ(field.get_preferred_units_size(), Dimension(3 * 128, 192));
}

TEST_F(NumberWidgetSize, OfTheUnitsIsThatOfTheirText)
{
    const auto size_of_units = [&](std::string characters) {
        Text text(std::move(characters));
        return Number_widget(style(), &text.variable).get_preferred_units_size();
    };
    EXPECT_EQ(size_of_units("mph"), Dimension(3 * 8, 12));
    EXPECT_EQ(size_of_units("km/h"), Dimension(4 * 8, 12));
    EXPECT_EQ(size_of_units(" "), Dimension(8, 12)) << "a space is a character";
    EXPECT_EQ(size_of_units(std::string("ha\0xx", 5)), Dimension(2 * 8, 12)) << "the text ends earlier";
    EXPECT_EQ(size_of_units(std::string(5, '\0')), Dimension(0, 0)) << "no text in five characters";
    EXPECT_EQ(size_of_units(""), Dimension(0, 0));
    EXPECT_EQ(Number_widget(style(), nullptr).get_preferred_units_size(), Dimension(0, 0));
}

TEST_F(NumberWidgetSize, OfTheUnitsWrapsAt16Bits)
{
    Text longest(std::string(8200, 'x'));
    EXPECT_EQ(Number_widget(style(), &longest.variable).get_preferred_units_size(), Dimension(64, 12))
        << "65600 - 65536";
}

TEST_F(NumberWidgetSize, OfTheUnitsIsThatOfTheSystemShown)
{
    Number_widget field(style(), nullptr);
    field.units_variables[1] = &mph.variable;
    EXPECT_EQ(field.get_preferred_units_size(), Dimension(0, 0));
    field.set_system(Units_man::imperial);
    EXPECT_EQ(field.get_preferred_units_size(), Dimension(3 * 8, 12));
}

TEST_F(NumberWidgetSize, WithoutFontsIsNothing)
{
    Style plain = style();
    plain.number_font = nullptr;
    plain.units_font = nullptr;
    Number_widget field(plain, bounded(0, 100), &mph.variable);
    EXPECT_EQ(field.get_preferred_number_size(), Dimension(0, 0));
    EXPECT_EQ(field.get_preferred_units_size(), Dimension(0, 0));
    field.set_size({100, 40});
    EXPECT_EQ(size_of(field.output_number), Dimension(0, 0));
    EXPECT_EQ(Point(field.placements.attributes[2].x, field.placements.attributes[2].y), Point(100, 20));
}

TEST_F(NumberWidgetSize, OfTheFieldAddsWidthsUnlessItIsStacked)
{
    for (const std::uint32_t layout : {0U, 1U, 2U})
        EXPECT_EQ(Number_widget(style(layout), bounded(0, 100), &mph.variable).get_preferred_size(), Dimension(72, 24))
            << layout;
    for (const std::uint32_t layout : {3U, 4U, 0xFFFFFFFFU})
        EXPECT_EQ(Number_widget(style(layout), bounded(0, 100), &mph.variable).get_preferred_size(), Dimension(48, 36))
            << layout;
}

TEST_F(NumberWidgetSize, OfTheFieldTakesTheLargerOfTheUnitsToo)
{
    units_font.size = std::uint8_t{8}; // 32 × 48
    EXPECT_EQ(Number_widget(style(0), bounded(0, 100), &mph.variable).get_preferred_size(), Dimension(48 + 96, 48));
    EXPECT_EQ(Number_widget(style(3), bounded(0, 100), &mph.variable).get_preferred_size(), Dimension(96, 24 + 48));
}

TEST_F(NumberWidgetSize, OfTheFieldWrapsAt16Bits)
{
    Text long_text(std::string(8190, 'x')); // 65520 wide
    EXPECT_EQ(Number_widget(style(0), bounded(0, 100), &long_text.variable).get_preferred_size(), Dimension(32, 24));
}

TEST_F(NumberWidgetSize, OfTheFieldMayNeedMoreThan8Bits)
{
    number_font.size = std::uint8_t{14}; // 128 × 192
    units_font.size = std::uint8_t{14};
    EXPECT_EQ(Number_widget(style(0), bounded(0, 100), &mph.variable).get_preferred_size(), Dimension(768, 192));
    EXPECT_EQ(Number_widget(style(3), bounded(0, 100), &kmh.variable).get_preferred_size(), Dimension(512, 384));
}

TEST_F(NumberWidgetSize, WithoutUnitsIsThatOfTheNumber)
{
    EXPECT_EQ(Number_widget(style(0), bounded(0, 100), nullptr).get_preferred_size(), Dimension(48, 24));
    EXPECT_EQ(Number_widget(style(3), bounded(0, 100), nullptr).get_preferred_size(), Dimension(48, 24));
}

TEST_F(NumberWidgetSize, GoesToAllParts)
{
    for (const bool input : {false, true}) {
        Number_widget field(style(0, input), bounded(0, 100), &mph.variable);
        field.set_size({200, 60}, {100, 40}, {7, 9});
        EXPECT_EQ(size_of(field.container), Dimension(200, 60));
        EXPECT_EQ(size_of(field.input_number), Dimension(200, 60)) << "a touch anywhere means it";
        EXPECT_EQ(size_of(field.output_number), Dimension(48, 24));
        EXPECT_EQ(size_of(field.units), Dimension(24, 12));
    }
}

TEST_F(NumberWidgetSize, LaysOutInABoxOfItsOwnAndRemembersIt)
{
    Number_widget field(style(0, true), bounded(0, 100), &mph.variable);
    field.set_size({200, 60}, {100, 40}, {7, 9});
    EXPECT_EQ(field.layout_size, Dimension(100, 40));
    EXPECT_EQ(field.layout_origin, Point(7, 9));
    const VT::Attribute_object_placement* const written = field.placements.get();
    EXPECT_EQ(Point(written[0].x, written[0].y), Point(0, 0));
    EXPECT_EQ(Point(written[1].x, written[1].y), Point(0, 0));
    EXPECT_EQ(Point(written[2].x, written[2].y), Point(100 - 24 - 48 + 7, 8 + 9));
    EXPECT_EQ(Point(written[3].x, written[3].y), Point(100 - 24 + 7, 20 + 9));
}

TEST_F(NumberWidgetSize, AloneIsThatOfTheBoxToo)
{
    Number_widget field(style(2), bounded(0, 100), &mph.variable);
    field.set_size({200, 60}, {100, 40}, {7, 9});
    field.set_size({90, 30});
    EXPECT_EQ(size_of(field.container), Dimension(90, 30));
    EXPECT_EQ(field.layout_size, Dimension(90, 30));
    EXPECT_EQ(field.layout_origin, Point(0, 0));
    const VT::Attribute_object_placement* const written = field.placements.get();
    EXPECT_EQ(Point(written[2].x, written[2].y), Point(0, 3));
    EXPECT_EQ(Point(written[3].x, written[3].y), Point(48, 9));
}

TEST_F(NumberWidgetSize, OfAnInputNumberInTheNumbersPlaceIsThatOfTheNumber)
{
    Number_widget field(style(0, true), bounded(0, 100), &mph.variable);
    field.set_size({200, 60});
    field.handle_event(VT::VT_information{});
    EXPECT_EQ(size_of(field.input_number), Dimension(200, 60)) << "until the next set_size()";
    field.set_size({200, 60});
    EXPECT_EQ(size_of(field.input_number), Dimension(48, 24));
    EXPECT_EQ(size_of(field.output_number), Dimension(48, 24));
    EXPECT_EQ(Point(field.placements.attributes[2].x, field.placements.attributes[2].y), Point(128, 18));
}

} // namespace
