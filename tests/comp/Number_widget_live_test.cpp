#include "tests/comp/Number_field.h"

using namespace number_field;

namespace {

// The messages of a live pool, as bytes.

Bytes attribute(Iso::Object_id id, int number, const Bytes& value) { return frame(0xAF, w(id), number, value); }
Bytes numeric_value(Iso::Object_id id, std::int64_t value) { return frame(0xA8, w(id), 0xFF, d(value)); }
Bytes transfer(Iso::Object_id id) { return join(0x11, w(id)); }

/// A field whose pool is live, or is not.
class NumberWidgetLive : public Field
{
  protected:
    static constexpr Specification halves = bounded(0, 100, 0.5, 1);
    static constexpr Specification tenths = bounded(-10, 30, 0.1, 2, Units_man::mass);
    static constexpr Specification quarters = bounded(-100, 100, 0.25, 3, Units_man::area);

    /// Shown in system 0, laid out and told.
    void go_live(Number_widget& field)
    {
        field.init(nullptr, nullptr);
        field.set_size({100, 40});
        take(field);
        pool.live = true;
    }

    Number_widget input{style(0, true), halves, tenths, quarters, nullptr};
    Number_widget shown{style(0, false), halves, tenths, quarters, nullptr};
};

TEST_F(NumberWidgetLive, SendsTheValueOfTheOutputNumberAndThenOfAnInputNumber)
{
    go_live(input);
    input.set_value(18.5);
    EXPECT_EQ(pool.news(), (Messages{numeric_value(output_id, 37), numeric_value(input_id, 37)}));
    EXPECT_FALSE(input.output_number.value.changed());
    EXPECT_FALSE(input.input_number.value.changed());

    input.handle_event(VT::VT_information{});
    EXPECT_TRUE(pool.news().empty());
    input.set_value(19);
    EXPECT_EQ(pool.news(), (Messages{numeric_value(output_id, 38), numeric_value(input_id, 38)}));
}

TEST_F(NumberWidgetLive, SendsTheValueOfTheOutputNumberAloneWithoutInput)
{
    go_live(shown);
    shown.set_value(18.5);
    EXPECT_EQ(pool.news(), (Messages{numeric_value(output_id, 37)}));
}

TEST_F(NumberWidgetLive, SendsAValueThatTheTerminalHasAgain)
{
    go_live(shown);
    shown.set_value(1);
    shown.set_value(1);
    EXPECT_EQ(pool.news(), (Messages{numeric_value(output_id, 2), numeric_value(output_id, 2)}));
}

TEST_F(NumberWidgetLive, SendsAllBitsOfARawValue)
{
    Number_widget field(style(), nullptr);
    go_live(field);
    field.set_value(2147483647);
    field.set_value(0);
    EXPECT_EQ(pool.news(), (Messages{numeric_value(output_id, 0xFFFFFFFF), numeric_value(output_id, 0x80000000)}));
}

TEST_F(NumberWidgetLive, AnswersAnEntryWithTheOutputNumber)
{
    go_live(input);
    VT::VT_change_numeric_value_event event{input_id, 0x01020304};
    input.handle_event(event);
    EXPECT_EQ(pool.news(), (Messages{numeric_value(output_id, 0x01020304)}));
}

TEST_F(NumberWidgetLive, SendsTheStepsItTakes)
{
    go_live(input);
    input.increment(60);
    input.increment(60);
    input.decrement(0.5);
    EXPECT_EQ(pool.news(), (Messages{numeric_value(output_id, 120), numeric_value(input_id, 120), //
                                     numeric_value(output_id, 200), numeric_value(input_id, 200), //
                                     numeric_value(output_id, 199), numeric_value(input_id, 199)}));
}

TEST_F(NumberWidgetLive, SendsWhatAnotherSystemChangesAndThenTheValue)
{
    input.units_variables[1] = &mph.variable;
    go_live(input);
    input.set_value(1);
    pool.news();
    input.set_system(Units_man::imperial);
    // 1 kg is 2.2046 lb, that is 22 tenths and 100 more for the offset.
    EXPECT_EQ(pool.news(), (Messages{attribute(output_id, 8, f(0.1F)),  // scale
                                     attribute(input_id, 10, f(0.1F)),  //
                                     attribute(output_id, 9, d(2)),     // decimals
                                     attribute(input_id, 11, d(2)),     //
                                     attribute(output_id, 7, d(-100)),  // offset
                                     attribute(input_id, 9, d(-100)),   //
                                     attribute(input_id, 8, d(400)),    // maximum; the minimum is still 0
                                     attribute(units_id, 6, d(mph_id)), //
                                     numeric_value(output_id, 122), numeric_value(input_id, 122)}));
}

TEST_F(NumberWidgetLive, SendsTheMinimumIfTheTerminalHasAnother)
{
    input.init(nullptr, nullptr);
    input.input_number.min_value = std::uint32_t{5};
    take(input);
    pool.live = true;
    input.set_system(Units_man::metric);
    EXPECT_EQ(pool.news(),
              (Messages{attribute(input_id, 7, d(0)), numeric_value(output_id, 0), numeric_value(input_id, 0)}));
}

TEST_F(NumberWidgetLive, SendsTheLimitsOfAnUnboundedSystem)
{
    Number_widget field(style(), halves, Specification(), nullptr);
    go_live(field);
    field.set_system(Units_man::imperial);
    EXPECT_EQ(pool.news(), (Messages{attribute(output_id, 8, f(1)),           //
                                     attribute(input_id, 10, f(1)),           //
                                     attribute(output_id, 9, d(0)),           //
                                     attribute(input_id, 11, d(0)),           //
                                     attribute(output_id, 7, d(-2147483648)), //
                                     attribute(input_id, 9, d(-2147483648)),  //
                                     attribute(input_id, 8, d(4294967295)),   //
                                     numeric_value(output_id, 2147483648)}));
    field.set_system(Units_man::imperial);
    EXPECT_EQ(pool.news(), (Messages{numeric_value(output_id, 2147483648)})) << "the same limits, bounded now";
}

TEST_F(NumberWidgetLive, SendsTheValueOnlyForASystemThatTheTerminalShowsAlready)
{
    go_live(input);
    input.set_system(Units_man::metric);
    EXPECT_EQ(pool.news(), (Messages{numeric_value(output_id, 0), numeric_value(input_id, 0)}));
}

TEST_F(NumberWidgetLive, TakesTheUnitsTextAwayWhereASystemHasNone)
{
    shown.units_variables[0] = &kmh.variable;
    shown.init(nullptr, nullptr);
    take(shown);
    pool.live = true;
    shown.set_system(Units_man::metric);
    EXPECT_EQ(pool.news(), (Messages{attribute(units_id, 6, d(kmh_id)), numeric_value(output_id, 0)}));
    shown.set_system(Units_man::imperial);
    EXPECT_EQ(shown.units.variable_reference, VT::VT_obj::NULL_ID);
    const Messages news = pool.news();
    EXPECT_EQ(news[news.size() - 2], attribute(units_id, 6, d(0xFFFF)));
}

TEST_F(NumberWidgetLive, ShowsTheTextOfTheSystemBeforeItReturnsToSystem0)
{
    shown.units_variables[0] = &kmh.variable;
    shown.units_variables[1] = &mph.variable;
    go_live(shown);
    shown.set_system(Units_man::imperial);
    shown.units_variables[1] = &kmh.variable;
    shown.units_variables[0] = &mph.variable;
    pool.news();
    shown.init(nullptr, nullptr);
    const Messages news = pool.news();
    ASSERT_EQ(news.size(), 10U);
    EXPECT_EQ(news.front(), attribute(units_id, 6, d(kmh_id)));
    EXPECT_EQ(news[1], attribute(output_id, 8, f(0.5F)));
    EXPECT_EQ(news[8], attribute(units_id, 6, d(mph_id)));
    EXPECT_EQ(news[9], numeric_value(output_id, 0));
}

TEST_F(NumberWidgetLive, UploadsItselfLastWhenUnitsHaveChanged)
{
    Number_widget speed(style(0, false), bounded(0, 50, 0.5, 1, Units_man::speed), nullptr);
    go_live(speed);
    speed.set_value(16.09344);
    EXPECT_EQ(pool.news(), (Messages{numeric_value(output_id, 32)}));
    Units_man units;
    units.set_system_type(Units_man::us);
    speed.handle_event(units);
    EXPECT_EQ(pool.news(), (Messages{numeric_value(output_id, 20), transfer(container_id)})) << "10 mph";
    units.set_system_type(Units_man::metric);
    speed.handle_event(units);
    EXPECT_EQ(pool.news(), (Messages{numeric_value(output_id, 32), transfer(container_id)}));
    EXPECT_EQ(pool.uploaded, (std::vector<VT::VT_obj*>{&speed.container, &speed.container}));
}

TEST_F(NumberWidgetLive, UploadsItselfEvenIfNoSystemIsChosen)
{
    go_live(shown);
    shown.specifications[0].units_type = Units_man::speed;
    Units_man units;
    units.set_system_type(Units_man::speed, Units_man::us);
    shown.handle_event(units);
    EXPECT_EQ(pool.news(), (Messages{transfer(container_id)}));
}

TEST_F(NumberWidgetLive, UploadsNothingWithoutAnId)
{
    shown.init(nullptr, nullptr);
    pool.take(shown.container, VT::VT_obj::NULL_ID);
    pool.live = true;
    Units_man units;
    shown.handle_event(units);
    EXPECT_TRUE(pool.uploaded.empty());
}

TEST_F(NumberWidgetLive, SendsNothingWhenItIsLaidOut)
{
    go_live(input);
    input.set_size({200, 80});
    input.set_size({200, 80}, {100, 40}, {1, 2});
    input.set_layout({50, 20}, {3, 4});
    input.get_preferred_size();
    EXPECT_TRUE(pool.news().empty());
    EXPECT_TRUE(input.container.is_changed()) << "the next upload tells";
    EXPECT_TRUE(input.input_number.is_changed());
}

TEST_F(NumberWidgetLive, SendsNothingUnlessThePoolIsLive)
{
    input.units_variables[2] = &mph.variable;
    go_live(input);
    pool.live = false;
    input.set_system(Units_man::us);
    input.set_value(-50);
    Units_man units;
    units.set_system_type(Units_man::us);
    input.handle_event(units);
    EXPECT_TRUE(pool.news().empty());
    EXPECT_TRUE(pool.uploaded.empty());

    EXPECT_EQ(input.output_number.scale, 0.25F);
    EXPECT_EQ(input.input_number.scale, 0.25F);
    EXPECT_EQ(input.output_number.number_of_decimals, 3);
    EXPECT_EQ(input.output_number.offset, -400);
    EXPECT_EQ(input.input_number.max_value, 800U);
    EXPECT_EQ(input.units.variable_reference, mph_id);
    EXPECT_EQ(input.output_number.value, 4294967096U + 400U - 294U) << "-50 ha are -123.55 ac, that is -494 quarters";

    pool.live = true;
    input.set_value(0);
    EXPECT_EQ(pool.news(), (Messages{numeric_value(output_id, 400), numeric_value(input_id, 400)}));
}

TEST_F(NumberWidgetLive, SendsNothingWithoutAnId)
{
    pool.live = true;
    input.init(&pool, nullptr);
    input.set_system(Units_man::us);
    input.set_value(5);
    input.handle_input(5);
    input.increment(1);
    input.set_size({100, 40});
    EXPECT_TRUE(pool.news().empty());
    EXPECT_EQ(input.units.variable_reference, VT::VT_obj::NULL_ID);
}

} // namespace
