#include "tests/comp/Number_field.h"

using namespace number_field;
using VT::Comp::Dimension;
using VT::Comp::Point;

namespace {

constexpr auto metric = Units_man::metric;
constexpr auto imperial = Units_man::imperial;
constexpr auto us = Units_man::us;

/// A field that shows a quantity of its own in each system.
class NumberWidgetUnits : public Field
{
  protected:
    static Specification of(Units_man::units_type type) { return bounded(0, 100, 1, 0, type); }

    /// Chooses for speed, mass and area, which are shown in the systems 0, 1 and 2.
    static Units_man chosen(Units_man::units_systems speed, Units_man::units_systems mass,
                            Units_man::units_systems area)
    {
        Units_man units;
        units.set_system_type(Units_man::speed, speed);
        units.set_system_type(Units_man::mass, mass);
        units.set_system_type(Units_man::area, area);
        return units;
    }

    /// The system that such a choice leads to, from `before`.
    Units_man::units_systems system_after(Units_man units, Units_man::units_systems before = us)
    {
        field.set_system(before);
        field.handle_event(units);
        return field.system;
    }

    Listener field{style(), of(Units_man::speed), of(Units_man::mass), of(Units_man::area), nullptr};
};

TEST_F(NumberWidgetUnits, ComeFromTheUnitsManagerForEachSystem)
{
    field.init(&pool, nullptr);
    EXPECT_EQ(field.units_variables[0], Units_man::get_units_string(&pool, Units_man::speed));
    EXPECT_EQ(field.units_variables[1], Units_man::get_units_string(&pool, Units_man::mass));
    EXPECT_EQ(field.units_variables[2], Units_man::get_units_string(&pool, Units_man::area));
    for (const VT::String_variable_obj* const variable : field.units_variables)
        EXPECT_NE(variable, nullptr);
    EXPECT_EQ(pool.texts.size(), 3U);
    EXPECT_EQ(field.units_variable, field.units_variables[0]);
}

TEST_F(NumberWidgetUnits, OfAPlainNumberOrWithoutAPoolAreNone)
{
    Number_widget plain(style(), of(Units_man::none), nullptr);
    plain.init(&pool, nullptr);
    EXPECT_TRUE(pool.texts.empty());
    EXPECT_EQ(plain.units_variable, nullptr);
    field.init(nullptr, nullptr);
    for (const VT::String_variable_obj* const variable : field.units_variables)
        EXPECT_EQ(variable, nullptr);
    EXPECT_EQ(field.units_variable, nullptr);
}

TEST_F(NumberWidgetUnits, GivenToTheConstructorAreKept)
{
    Number_widget given(style(), of(Units_man::speed), &mph.variable);
    given.init(&pool, nullptr);
    for (const VT::String_variable_obj* const variable : given.units_variables)
        EXPECT_EQ(variable, &mph.variable);
    EXPECT_EQ(given.units_variable, &mph.variable);
    EXPECT_TRUE(pool.texts.empty());
}

TEST_F(NumberWidgetUnits, GivenToInitReplaceThoseOfTheConstructor)
{
    Number_widget given(style(), of(Units_man::speed), &mph.variable);
    given.init(&pool, &kmh.variable);
    for (const VT::String_variable_obj* const variable : given.units_variables)
        EXPECT_EQ(variable, &kmh.variable);
    EXPECT_EQ(given.units_variable, &kmh.variable);
    EXPECT_TRUE(pool.texts.empty());
    given.init(&pool, nullptr);
    EXPECT_EQ(given.units_variable, &kmh.variable) << "and are kept in their turn";
}

TEST_F(NumberWidgetUnits, AreCompletedWhereTheyAreMissing)
{
    field.units_variables[1] = &mph.variable;
    field.init(&pool, nullptr);
    EXPECT_EQ(field.units_variables[0], Units_man::get_units_string(&pool, Units_man::speed));
    EXPECT_EQ(field.units_variables[1], &mph.variable);
    EXPECT_EQ(field.units_variables[2], Units_man::get_units_string(&pool, Units_man::area));
}

TEST_F(NumberWidgetUnits, StartWithSystem0)
{
    field.set_system(us);
    field.init(&pool, nullptr);
    EXPECT_EQ(field.system, metric);
    EXPECT_EQ(field.units_variable, field.units_variables[0]);
    EXPECT_EQ(field.input_number.max_value, 100U);
    EXPECT_TRUE(field.heard.empty());
}

TEST_F(NumberWidgetUnits, AreThoseOfTheSystemShown)
{
    field.init(&pool, nullptr);
    for (const auto system : {us, imperial, metric}) {
        field.set_system(system);
        EXPECT_EQ(field.system, system);
        EXPECT_EQ(field.units_variable, field.units_variables[system]);
        EXPECT_EQ(field.units.variable, field.units_variables[system]) << "the link that the pool follows";
        EXPECT_EQ(field.units.variable_reference, VT::VT_obj::NULL_ID) << "an id comes with the pool";
    }
}

TEST_F(NumberWidgetUnits, ThatOneSystemIsChosenForShowIt)
{
    EXPECT_EQ(system_after(chosen(metric, metric, metric)), metric);
    EXPECT_EQ(system_after(chosen(us, imperial, metric)), imperial);
    EXPECT_EQ(system_after(chosen(us, us, us), metric), us);
}

TEST_F(NumberWidgetUnits, ThatSeveralSystemsAreChosenForShowTheLastOne)
{
    EXPECT_EQ(system_after(chosen(metric, imperial, metric)), imperial);
    EXPECT_EQ(system_after(chosen(metric, metric, us), imperial), us);
    EXPECT_EQ(system_after(chosen(us, imperial, us), metric), us);
    EXPECT_EQ(system_after(chosen(metric, imperial, us), metric), us);
}

TEST_F(NumberWidgetUnits, ThatNoSystemIsChosenForStayAsTheyAre)
{
    EXPECT_EQ(system_after(chosen(us, metric, metric), us), us);
    EXPECT_EQ(system_after(chosen(imperial, us, imperial), imperial), imperial);
}

TEST_F(NumberWidgetUnits, CutTheValueByTheLimitsOfEachSystemOnTheWay)
{
    field.specifications[metric].max = 10;
    field.set_system(us);
    field.set_value(50);
    Units_man units = chosen(metric, metric, us);
    field.handle_event(units);
    EXPECT_EQ(field.system, us);
    EXPECT_EQ(field.get_value(), 10) << "system 0 was shown before system 2";
}

TEST_F(NumberWidgetUnits, OfOneQuantityFollowTheChoiceForIt)
{
    Number_widget speed(style(), bounded(0, 50, 0.1, 1, Units_man::speed), bounded(0, 30, 0.1, 1, Units_man::speed),
                        nullptr);
    speed.init(&pool, nullptr);
    speed.set_value(16.09344);
    EXPECT_EQ(speed.output_number.value, 161U);
    Units_man units;
    for (const auto system : {imperial, us}) {
        units.set_system_type(Units_man::speed, system);
        speed.handle_event(units);
        EXPECT_EQ(speed.system, system);
        EXPECT_EQ(speed.output_number.value, 100U) << "10 mph";
        EXPECT_EQ(speed.get_value(), 16.09344);
    }
}

TEST_F(NumberWidgetUnits, AreLaidOutAgainInTheSameBox)
{
    Number_widget other(style(0, true), bounded(0, 10), bounded(0, 1000, 1, 1, Units_man::mass), nullptr);
    other.units_variables[0] = &kmh.variable;
    other.units_variables[1] = &mph.variable;
    other.init(nullptr, nullptr);
    other.set_size({200, 60}, {100, 40}, {7, 9});
    const VT::Attribute_object_placement* const written = other.placements.get();
    EXPECT_EQ(Point(written[2].x, written[2].y), Point(100 - 32 - 32 + 7, 8 + 9));

    Units_man units;
    units.set_system_type(imperial);
    other.handle_event(units);
    EXPECT_EQ(size_of(other.container), Dimension(200, 60));
    EXPECT_EQ(other.layout_size, Dimension(100, 40));
    EXPECT_EQ(other.layout_origin, Point(7, 9));
    EXPECT_EQ(size_of(other.output_number), Dimension(6 * 16, 24)) << "1 + 2 and log10(1000)";
    EXPECT_EQ(size_of(other.input_number), Dimension(200, 60));
    EXPECT_EQ(size_of(other.units), Dimension(3 * 8, 12));
    EXPECT_EQ(Point(written[2].x, written[2].y), Point(100 - 24 - 96 + 7, 8 + 9));
    EXPECT_EQ(Point(written[3].x, written[3].y), Point(100 - 24 + 7, 20 + 9));
}

TEST_F(NumberWidgetUnits, AreLaidOutAgainEvenIfNoSystemIsChosen)
{
    field.set_system(us);
    field.set_size({100, 40});
    field.units_variables[us] = &mph.variable;
    Units_man units = chosen(us, us, metric);
    field.handle_event(units);
    EXPECT_EQ(size_of(field.units), Dimension(3 * 8, 12));
}

} // namespace
