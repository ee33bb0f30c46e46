#include "tests/Virtual_slot.h"
#include "tests/comp/Number_field.h"

#include <type_traits>

using namespace number_field;
using VT::Comp::Dimension;
using VT::Comp::Point;

namespace {

using NumberWidgetConstruction = Field;

void expect_same(const Specification& actual, const Specification& expected)
{
    EXPECT_EQ(actual.units_type, expected.units_type);
    EXPECT_EQ(actual.min, expected.min);
    EXPECT_EQ(actual.max, expected.max);
    EXPECT_EQ(actual.scale, expected.scale);
    EXPECT_EQ(actual.decimals, expected.decimals);
}

void expect_specifications(const Number_widget& field, const Specification& s0, const Specification& s1,
                           const Specification& s2)
{
    expect_same(field.specifications[0], s0);
    expect_same(field.specifications[1], s1);
    expect_same(field.specifications[2], s2);
}

void expect_texts(const Number_widget& field, const VT::String_variable_obj* text)
{
    for (const VT::String_variable_obj* const variable : field.units_variables)
        EXPECT_EQ(variable, text);
}

constexpr Specification metric_speed = bounded(1, 50, 0.1, 1, Units_man::speed);
constexpr Specification imperial_speed = bounded(-2, 30, 0.25, 2, Units_man::speed);
constexpr Specification us_area = bounded(3, 70, 0.5, 3, Units_man::area);

TEST_F(NumberWidgetConstruction, TakesASpecificationForEachSystem)
{
    const Number_widget field(style(), metric_speed, imperial_speed, us_area, &kmh.variable);
    expect_specifications(field, metric_speed, imperial_speed, us_area);
    expect_texts(field, &kmh.variable);
}

TEST_F(NumberWidgetConstruction, OfTwoSpecificationsTakesTheSecondForBothOthers)
{
    const Number_widget field(style(), metric_speed, us_area, &kmh.variable);
    expect_specifications(field, metric_speed, us_area, us_area);
    expect_texts(field, &kmh.variable);
}

TEST_F(NumberWidgetConstruction, TakesOneSpecificationForAllSystems)
{
    const Number_widget field(style(), us_area, &kmh.variable);
    expect_specifications(field, us_area, us_area, us_area);
    expect_texts(field, &kmh.variable);
}

TEST_F(NumberWidgetConstruction, WithoutASpecificationIsOfAnUnboundedWholeNumberWithoutUnits)
{
    const Number_widget field(style(), &kmh.variable);
    const Specification plain{Units_man::units_type{0}, 0.0, 0.0, 1.0, 0};
    expect_specifications(field, plain, plain, plain);
    expect_same(Specification(), plain);
    expect_texts(field, &kmh.variable);
}

TEST_F(NumberWidgetConstruction, TakesNoTextToo)
{
    expect_texts(Number_widget(style(), metric_speed, imperial_speed, us_area, nullptr), nullptr);
    expect_texts(Number_widget(style(), metric_speed, us_area, nullptr), nullptr);
    expect_texts(Number_widget(style(), us_area, nullptr), nullptr);
    expect_texts(Number_widget(style(), nullptr), nullptr);
}

TEST_F(NumberWidgetConstruction, IsSharedWithTheTextBeforeTheLastSpecification)
{
    static_assert(std::is_same_v<decltype(&Number_widget::construct),
                                 void (Number_widget::*)(const Style&, const Specification&, const Specification&,
                                                         VT::String_variable_obj*, const Specification&)>);
    Number_widget field(style(), nullptr);
    field.construct(style(Number_widget::stacked, true), metric_speed, imperial_speed, &mph.variable, us_area);
    expect_specifications(field, metric_speed, imperial_speed, us_area);
    expect_texts(field, &mph.variable);
    EXPECT_EQ(field.placements.placements[0].ref, &field.input_number);
    EXPECT_EQ(field.units.justification, 1);
}

TEST_F(NumberWidgetConstruction, GivesNothingAnIdOrAName)
{
    const Number_widget field(style(), us_area, &kmh.variable);
    for (const VT::VT_obj* const object :
         {static_cast<const VT::VT_obj*>(&field.units), static_cast<const VT::VT_obj*>(&field.input_number),
          static_cast<const VT::VT_obj*>(&field.container), static_cast<const VT::VT_obj*>(&field.output_number)}) {
        EXPECT_EQ(object->get_id(), VT::VT_obj::NULL_ID);
        EXPECT_STREQ(object->get_name(), "");
    }
}

TEST_F(NumberWidgetConstruction, StartsAtZeroInSystemZeroWithoutALayout)
{
    const Number_widget field(style(), us_area, &kmh.variable);
    EXPECT_EQ(field.system, Units_man::units_systems{0});
    EXPECT_EQ(field.value, 0.0);
    EXPECT_EQ(field.get_value(), 0.0);
    EXPECT_EQ(field.layout_size, Dimension(0, 0));
    EXPECT_EQ(field.layout_origin, Point(0, 0));
    EXPECT_EQ(size_of(field.container), Dimension(240, 240));
    EXPECT_EQ(field.units_variable, nullptr) << "shown from init() on";
    EXPECT_EQ(field.output_number.scale, 1.0F);
    EXPECT_EQ(field.input_number.scale, 1.0F);
    EXPECT_EQ(field.output_number.value, 0U);
    EXPECT_EQ(field.input_number.max_value, 0U);
}

TEST_F(NumberWidgetConstruction, ReturnsToSystemZero)
{
    Number_widget field(style(), us_area, &kmh.variable);
    field.set_system(Units_man::us);
    field.construct(style(), us_area, us_area, nullptr, us_area);
    EXPECT_EQ(field.system, Units_man::units_systems{0});
}

TEST_F(NumberWidgetConstruction, KeepsTheFontsOfItsStyle)
{
    const Number_widget field(style(), us_area, nullptr);
    EXPECT_EQ(field.input_font, &number_font);
    EXPECT_EQ(field.output_font, &number_font);
    EXPECT_EQ(field.units_font, &units_font);
    EXPECT_EQ(field.input_number.font, &number_font) << "the link that the pool follows";
    EXPECT_EQ(field.output_number.font, &number_font);
    EXPECT_EQ(field.units.font, &units_font);
    EXPECT_EQ(field.input_number.font_attributes, VT::VT_obj::NULL_ID) << "an id comes with the pool";
    EXPECT_EQ(field.output_number.font_attributes, VT::VT_obj::NULL_ID);
    EXPECT_EQ(field.units.font_attributes, VT::VT_obj::NULL_ID);
}

TEST_F(NumberWidgetConstruction, AgainWritesTheFontsIdsOnceThereAreIds)
{
    Number_widget field(style(), us_area, nullptr);
    take(field);
    field.construct(style(), us_area, us_area, nullptr, us_area);
    EXPECT_EQ(field.input_number.font_attributes, number_font_id);
    EXPECT_EQ(field.output_number.font_attributes, number_font_id);
    EXPECT_EQ(field.units.font_attributes, units_font_id);
    field.construct(Style(), us_area, us_area, nullptr, us_area);
    EXPECT_EQ(field.input_number.font_attributes, VT::VT_obj::NULL_ID);
    EXPECT_EQ(field.output_number.font_attributes, VT::VT_obj::NULL_ID);
    EXPECT_EQ(field.units.font_attributes, VT::VT_obj::NULL_ID);
}

TEST_F(NumberWidgetConstruction, CopiesTheStyle)
{
    Style changing = style(Number_widget::left_aligned, true);
    Number_widget field(changing, us_area, nullptr);
    changing = Style();
    EXPECT_EQ(field.layout, 2U);
    EXPECT_EQ(field.output_font, &number_font);
    EXPECT_EQ(field.placements.placements[1].ref, &backdrop);
    EXPECT_EQ(field.input_number.options_2, 1);
}

TEST_F(NumberWidgetConstruction, MakesEverythingTransparent)
{
    const Number_widget field(style(), us_area, nullptr);
    EXPECT_EQ(field.input_number.options, 1);
    EXPECT_EQ(field.output_number.options, 1);
    EXPECT_EQ(field.units.options, 1);
}

TEST_F(NumberWidgetConstruction, EnablesTheInputNumberOfAnInput)
{
    EXPECT_EQ(Number_widget(style(0, true), us_area, nullptr).input_number.options_2, 1);
    EXPECT_EQ(Number_widget(style(0, false), us_area, nullptr).input_number.options_2, 0);
}

TEST_F(NumberWidgetConstruction, KeepsTheOtherBitsOfTheSecondOptions)
{
    Number_widget field(style(), us_area, nullptr);
    field.input_number.options_2 = std::uint8_t{0xFE};
    field.construct(style(0, true), us_area, us_area, nullptr, us_area);
    EXPECT_EQ(field.input_number.options_2, 0xFF);
    field.construct(style(0, false), us_area, us_area, nullptr, us_area);
    EXPECT_EQ(field.input_number.options_2, 0xFE);
}

TEST_F(NumberWidgetConstruction, PutsNumbersRightAndUnitsLeftUnlessTheyAreStacked)
{
    for (const std::uint32_t layout : {0U, 1U, 2U}) {
        const Number_widget field(style(layout), us_area, nullptr);
        EXPECT_EQ(field.layout, layout);
        EXPECT_EQ(field.input_number.justification, 2) << layout;
        EXPECT_EQ(field.output_number.justification, 2) << layout;
        EXPECT_EQ(field.units.justification, 0) << layout;
    }
    for (const std::uint32_t layout : {3U, 7U, 0xFFFFFFFFU}) {
        const Number_widget field(style(layout), us_area, nullptr);
        EXPECT_EQ(field.layout, layout);
        EXPECT_EQ(field.input_number.justification, 1) << layout;
        EXPECT_EQ(field.output_number.justification, 1) << layout;
        EXPECT_EQ(field.units.justification, 1) << layout;
    }
}

void expect_children(Number_widget& field, const std::vector<const VT::VT_obj*>& children)
{
    ASSERT_EQ(field.placements.size(), children.size());
    for (std::size_t i = 0; i < children.size(); ++i) {
        EXPECT_EQ(field.placements.placements[i].ref, children[i]) << "slot " << i;
        EXPECT_EQ(field.placements.placements[i].x, 0) << "slot " << i;
        EXPECT_EQ(field.placements.placements[i].y, 0) << "slot " << i;
        EXPECT_EQ(field.placements.attributes[i].object_id, VT::VT_obj::NULL_ID) << "slot " << i;
        EXPECT_FALSE(field.placements.attributes[i].changed()) << "slot " << i;
    }
    EXPECT_EQ(field.container.placements_ptr, &field.placements);
    EXPECT_EQ(&field.root(), &field.container);
}

TEST_F(NumberWidgetConstruction, OfAnInputPlacesTheInputNumberBelowAllOthers)
{
    Number_widget field(style(0, true), us_area, nullptr);
    expect_children(field, {&field.input_number, &backdrop, &field.output_number, &field.units});
}

TEST_F(NumberWidgetConstruction, WithoutInputPlacesTheBackdropTwice)
{
    Number_widget field(style(0, false), us_area, nullptr);
    expect_children(field, {&backdrop, &backdrop, &field.output_number, &field.units});
}

TEST_F(NumberWidgetConstruction, FillsTheSlotsAgain)
{
    Number_widget field(style(0, true), us_area, nullptr);
    field.handle_event(VT::VT_information{});
    for (std::size_t i = 0; i < 4; ++i)
        field.placements.placements[i].x = field.placements.placements[i].y = 9;
    field.construct(style(0, true), us_area, us_area, nullptr, us_area);
    expect_children(field, {&field.input_number, &backdrop, &field.output_number, &field.units});
}

TEST_F(NumberWidgetConstruction, NeedsNeitherFontsNorBackdrop)
{
    Number_widget field(Style(), us_area, nullptr);
    EXPECT_EQ(field.input_font, nullptr);
    EXPECT_EQ(field.output_font, nullptr);
    EXPECT_EQ(field.units_font, nullptr);
    expect_children(field, {nullptr, nullptr, &field.output_number, &field.units});
    field.init(nullptr, nullptr);
    field.set_value(5);
    EXPECT_EQ(field.output_number.value, 4U) << "(5 - 3) / 0.5: only a layout needs the backdrop";
}

TEST_F(NumberWidgetConstruction, MakesAPolymorphicComponent)
{
    EXPECT_TRUE((std::is_base_of_v<VT::Comp::Widget, Number_widget>));
    EXPECT_TRUE(std::has_virtual_destructor_v<Number_widget>);
    EXPECT_EQ(virtual_slot(&Number_widget::handle_input_value), 0U) << "before the destructors";
}

} // namespace
