// What a terminal holds of a number field.

#include "tests/pool/At_terminal.h"
#include "tests/pool/Number_screen.h"

#include <gtest/gtest.h>
#include <string>

using terminal::Field;
using terminal::Object;

namespace {

terminal::Hardware hardware(bool touch)
{
    terminal::Hardware hardware;
    hardware.touch = touch;
    return hardware;
}

/// A field on a terminal with or without a touch screen.
struct Shown : Number_screen
{
    template <class... Specifications>
    explicit Shown(bool touch, const Specifications&... specifications)
        : Number_screen(specifications...), link(hardware(touch))
    {
        load(link);
        deliver(link, pool);
    }

    Object object(const VT::VT_obj& ours) const
    {
        const Object found = link.terminal.pool().find(ours.get_id());
        EXPECT_TRUE(found);
        return found;
    }
    Object output() const { return object(field.output_number); }
    Object input() const { return object(field.input_number); }
    Object units_text() const { return object(*field.units_variable); }

    terminal::Child placement(std::size_t slot) { return object(field.root()).children()[slot]; }

    /// True if terminal and application agree on every byte, and the terminal has refused nothing.
    void expect_agreement()
    {
        deliver(link, pool);
        for (const VT::Problem& problem : pool.take_problems())
            ADD_FAILURE() << problem.text;
        Bytes ours;
        ASSERT_TRUE(pool.serialise(ours));
        EXPECT_EQ(records_in(link.terminal), ours);
    }

    apps::Loopback_link link;
};

/// What is shown of a raw value.
double displayed(Object number)
{
    const double raw = static_cast<std::int32_t>(number.u32(Field::value) + number.u32(Field::offset));
    return raw * static_cast<double>(number.f32(Field::scale));
}

/// A field in one system of units, showing 80 litres a hectare.
struct View
{
    Units_man::units_systems system;
    const char* text;
    std::uint32_t value;
    std::int32_t offset;
    float scale;
    std::uint8_t decimals;
    std::uint32_t maximum;
    double shown;
    std::uint16_t width;       ///< of the number
    std::uint16_t units_width; ///< both are right-aligned in 300 pixels
};

constexpr View views[] = {
    {Units_man::metric, " L/ha", 160, 0, 0.5F, 1, 2000, 80, 96, 40},
    {Units_man::imperial, " gal/ac", 68, -40, 0.25F, 2, 840, 7, 112, 56},
    {Units_man::us, " gal/ac", 28, 40, 0.125F, 3, 79952, 8.5, 144, 56},
};

} // namespace

TEST(NumberFieldAtTheTerminal, IsInEachSystemOfUnitsWhatTheWidgetSays)
{
    for (const bool touch : {true, false}) {
        Shown screen(touch);
        screen.field.set_value(80);
        for (const int step : {0, 1, 2, 0, 2, 1, 0}) {
            const View& view = views[step];
            SCOPED_TRACE(std::string(touch ? "touch " : "keys ") + std::to_string(step));
            screen.choose(view.system);
            screen.expect_agreement();
            for (const Object number : {screen.output(), screen.input()}) {
                EXPECT_EQ(number.u32(Field::value), view.value);
                EXPECT_EQ(number.s32(Field::offset), view.offset);
                EXPECT_EQ(number.f32(Field::scale), view.scale);
                EXPECT_EQ(number.u8(Field::decimals), view.decimals);
                EXPECT_EQ(displayed(number), view.shown);
            }
            EXPECT_EQ(screen.input().u32(Field::minimum), 0U);
            EXPECT_EQ(screen.input().u32(Field::maximum), view.maximum);
            EXPECT_EQ(screen.input().u8(Field::options_2), 1);
            EXPECT_EQ(screen.units_text().text().substr(0, std::string(view.text).size()), view.text);
            EXPECT_EQ(screen.object(screen.field.units).u16(Field::width), view.units_width);
            EXPECT_EQ(screen.object(screen.field.units).reference(Field::variable), screen.units_text().id());

            EXPECT_EQ(screen.output().u16(Field::width), view.width);
            EXPECT_EQ(screen.input().u16(Field::width), touch ? 300 : view.width);
            EXPECT_EQ(screen.input().u16(Field::height), touch ? 40 : 16);
            const Object& number = touch ? screen.output() : screen.input();
            const Object& covered = touch ? screen.input() : screen.output();
            EXPECT_EQ(screen.placement(0).id, covered.id());
            EXPECT_EQ(screen.placement(0).x, 0);
            EXPECT_EQ(screen.placement(2).id, number.id());
            EXPECT_EQ(screen.placement(2).x, 300 - view.units_width - view.width);
            EXPECT_EQ(screen.placement(2).y, 12);
            EXPECT_EQ(screen.placement(3).x, 300 - view.units_width);
            EXPECT_EQ(screen.placement(3).y, 16);
        }
    }
}

TEST(NumberFieldAtTheTerminal, TakesEntriesWithinItsLimits)
{
    for (const bool touch : {true, false}) {
        Shown screen(touch);
        screen.choose(Units_man::imperial);
        const Iso::Object_id input = screen.field.input_number.get_id();
        EXPECT_FALSE(screen.link.terminal.enter_number(input, 841));
        ASSERT_TRUE(screen.link.terminal.enter_number(input, 840));
        screen.expect_agreement();
        EXPECT_EQ(screen.field.take_entered().size(), 1u);
        EXPECT_EQ(screen.output().u32(Field::value), 840U);
        EXPECT_EQ(screen.input().u32(Field::value), 840U);
        EXPECT_EQ(displayed(screen.output()), 200);
    }
}

TEST(NumberFieldAtTheTerminal, ComesBackAsItWasSetWhileTheLinkWasLost)
{
    Shown screen(true);
    screen.field.set_value(10);
    screen.link.set_down(true);
    screen.field.set_value(20); // the first that is lost
    EXPECT_FALSE(screen.pool.is_live());
    screen.choose(Units_man::us);
    screen.field.set_value(80);
    EXPECT_EQ(screen.pool.take_problems().size(), 1u);
    EXPECT_FALSE(screen.pool.load(screen.link));
    screen.pool.take_problems();
    screen.link.set_down(false);
    ASSERT_TRUE(screen.pool.load(screen.link));
    screen.expect_agreement();
    EXPECT_EQ(displayed(screen.output()), 8.5);
    EXPECT_EQ(screen.output().u16(Field::width), 144);
    EXPECT_EQ(screen.input().u32(Field::maximum), 79952U);
    EXPECT_EQ(screen.units_text().text(), " gal/ac");
    EXPECT_EQ(screen.placement(2).x, 300 - 56 - 144);

    ASSERT_TRUE(screen.link.terminal.enter_number(screen.field.input_number.get_id(), 8));
    deliver(screen.link, screen.pool);
    EXPECT_EQ(screen.field.take_entered().size(), 1u);
    EXPECT_EQ(displayed(screen.output()), 6);
}

TEST(NumberFieldAtTheTerminal, FollowsToATerminalWithoutATouchScreen)
{
    Shown screen(true);
    screen.field.set_value(80);
    apps::Loopback_link keys(hardware(false));
    ASSERT_TRUE(screen.pool.ask_hardware(keys));
    screen.field.set_size({300, 40});
    ASSERT_TRUE(screen.pool.load(keys));
    Bytes ours;
    ASSERT_TRUE(screen.pool.serialise(ours));
    EXPECT_EQ(records_in(keys.terminal), ours);
    const auto placements = keys.terminal.pool().find(screen.field.root().get_id()).children();
    EXPECT_EQ(placements[0].id, screen.field.output_number.get_id());
    EXPECT_EQ(placements[2].id, screen.field.input_number.get_id());
    const Object input = keys.terminal.pool().find(screen.field.input_number.get_id());
    EXPECT_EQ(input.u16(Field::width), 96);
    EXPECT_EQ(input.u32(Field::value), 160U);
}

TEST(NumberFieldAtTheTerminal, StaysAsItIsLaidOutWhenItIsLoadedIntoAnother)
{
    Shown screen(true);
    apps::Loopback_link keys(hardware(false));
    ASSERT_TRUE(screen.pool.load(keys)); // without asking first
    screen.choose(Units_man::imperial);
    EXPECT_EQ(keys.terminal.pool().find(screen.field.root().get_id()).children()[2].id,
              screen.field.output_number.get_id());
    EXPECT_EQ(keys.terminal.pool().find(screen.field.input_number.get_id()).u16(Field::width), 300);
}

TEST(NumberFieldAtTheTerminal, ShowsTheWholeRangeOf32Bits)
{
    for (const bool touch : {true, false}) {
        Shown screen(touch, Number_screen::Specification{});
        const Iso::Object_id input = screen.field.input_number.get_id();
        for (const double v : {0.0, 1.0, -1.0, 2147483647.0, -2147483648.0}) {
            screen.field.set_value(v);
            screen.expect_agreement();
            EXPECT_EQ(screen.output().s32(Field::offset), std::numeric_limits<std::int32_t>::min());
            EXPECT_EQ(displayed(screen.output()), v);
            EXPECT_EQ(displayed(screen.input()), v);
        }
        ASSERT_TRUE(screen.link.terminal.enter_number(input, 0xFFFFFFFF));
        screen.expect_agreement();
        EXPECT_EQ(screen.field.take_entered(), std::vector<double>{2147483647.0});
        EXPECT_EQ(displayed(screen.output()), 2147483647.0);
    }
}

TEST(NumberFieldAtTheTerminal, HasTheTextsOfTwoQuantitiesAndOnePerQuantity)
{
    Number_screen screen;
    const C::Number_widget::Style style{&screen.number_font, &screen.units_font, &screen.backdrop, 0, true};
    Entry_field same(style, Number_screen::litres, nullptr);
    Entry_field speed(style, Number_screen::Specification{Units_man::speed, 0, 50, 0.1, 1}, nullptr);
    for (Entry_field* field : {&same, &speed}) {
        field->init(&screen.pool, nullptr);
        field->set_size({200, 40});
        screen.mask.add(field->root(), 0, 0);
        screen.pool.route(*field);
    }
    apps::Loopback_link link;
    screen.load(link);
    EXPECT_EQ(same.units_variable, screen.field.units_variable);
    const auto text_of = [&](const Entry_field& field) {
        const Object string = link.terminal.pool().find(field.units.get_id());
        return std::string(link.terminal.pool().find(string.reference(Field::variable)).text());
    };
    EXPECT_EQ(text_of(speed), " km/h");
    screen.units.set_system_type(Units_man::speed, Units_man::us);
    screen.pool.announce(screen.units);
    EXPECT_EQ(text_of(speed), " mph ");
    EXPECT_EQ(text_of(same), " L/ha  ");
    EXPECT_EQ(speed.system, Units_man::us);
    EXPECT_EQ(same.system, Units_man::metric);
    EXPECT_EQ(link.terminal.pool().find(speed.units.get_id()).u16(Field::width), 32);
    screen.choose(Units_man::imperial);
    EXPECT_EQ(text_of(same), " gal/ac");
    EXPECT_EQ(text_of(screen.field), " gal/ac");
    EXPECT_EQ(link.terminal.pool().find(same.units.get_id()).u16(Field::width), 56);
    deliver(link, screen.pool);
    EXPECT_TRUE(screen.pool.take_problems().empty());
}
