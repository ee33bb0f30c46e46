// A number field in a live pool: the exact messages.

#include "tests/pool/Fake_terminal.h"
#include "tests/pool/Number_screen.h"

#include <cstring>
#include <gtest/gtest.h>
#include <limits>
#include <utility>
#include <vector>

using Messages = std::vector<Bytes>;
using Entries = std::vector<double>;

namespace {

constexpr int field = 2;
constexpr int units_text = 9;

/// On a terminal with a touch screen the input takes the whole field.
struct Touch : Number_screen
{
    static constexpr int input = 3;
    static constexpr int output = 6;

    template <class... Specifications>
    explicit Touch(const Specifications&... specifications) : Number_screen(specifications...)
    {
        load(terminal);
        terminal.take_sent();
    }

    Fake_terminal terminal;
};

/// Without one the input shows the number itself.
struct Keys : Number_screen
{
    static constexpr int output = 3;
    static constexpr int input = 6;

    Keys()
    {
        terminal.answers[0xC7] = frame(0xC7, 0xFF, 2, 0, w(480), w(480));
        load(terminal);
        terminal.take_sent();
    }

    Fake_terminal terminal;
};

Bytes value(int id, std::int64_t raw) { return frame(0xA8, w(id), 0xFF, d(raw)); }
Bytes attribute(int id, int number, const Bytes& content) { return frame(0xAF, w(id), number, content); }
Bytes text(const char* characters)
{
    return frame(0xB3, w(units_text), w(static_cast<int>(std::strlen(characters))), characters);
}
Bytes entry(int id, std::int64_t raw) { return frame(0x05, w(id), 0xFF, d(raw)); }
const Bytes end_of_pool = frame(0x12);

/// What follows id and type in the records of both numbers in gallons, with room for seven digits.
Bytes output_in_gallons(int raw)
{
    return join(w(112), w(16), 0, w(4), 1, w(0xFFFF), d(raw), d(-40), f(0.25F), 2, 0, 2, 0);
}
Bytes input_in_gallons(int raw)
{
    return join(w(112), w(16), 0, w(4), 1, w(0xFFFF), d(raw), d(0), d(840), d(-40), f(0.25F), 2, 0, 2, 1, 0);
}
/// The units with room for seven characters.
const Bytes units_record = join(0x11, w(7), 11, w(56), w(12), 1, w(8), 1, w(units_text), 0, w(0), 0);

Bytes field_record(int touched, int number, int number_x, int units_x)
{
    return join(0x11, w(field), 3, w(300), w(40), 0, 4, 0, //
                w(touched), w(0), w(0), w(5), w(0), w(0),  //
                w(number), w(number_x), w(12), w(7), w(units_x), w(16));
}

} // namespace

TEST(NumberFieldLive, IsNumberedInTheOrderInWhichItIsDrawn)
{
    Touch touch;
    C::Number_widget& n = touch.field;
    EXPECT_EQ(ids({&n.root(), &n.input_number, &touch.number_font, &touch.backdrop, &n.output_number, &n.units,
                   &touch.units_font, n.units_variable}),
              (std::vector<Iso::Object_id>{field, Touch::input, 4, 5, Touch::output, 7, 8, units_text}));
    Keys keys;
    C::Number_widget& k = keys.field;
    EXPECT_EQ(ids({&k.root(), &k.output_number, &keys.number_font, &keys.backdrop, &k.input_number, &k.units,
                   &keys.units_font, k.units_variable}),
              (std::vector<Iso::Object_id>{field, Keys::output, 4, 5, Keys::input, 7, 8, units_text}));
}

TEST(NumberFieldLive, ShowsAValueInBothNumbers)
{
    Touch touch;
    touch.field.set_value(80);
    EXPECT_EQ(touch.terminal.take_sent(), (Messages{value(Touch::output, 160), value(Touch::input, 160)}));
    touch.field.set_value(2000); // too much
    EXPECT_EQ(touch.terminal.take_sent(), (Messages{value(Touch::output, 2000), value(Touch::input, 2000)}));
    EXPECT_EQ(touch.field.take_entered(), Entries{});
}

TEST(NumberFieldLive, TakesWhatTheOperatorEntersAndShowsItBesideTheInput)
{
    Touch touch;
    say(touch.pool, entry(Touch::input, 37));
    EXPECT_EQ(touch.field.take_entered(), Entries{18.5});
    EXPECT_EQ(touch.field.get_value(), 18.5);
    EXPECT_EQ(touch.terminal.take_sent(), Messages{value(Touch::output, 37)});
    for (VT::VT_obj* number :
         {static_cast<VT::VT_obj*>(&touch.field.input_number), static_cast<VT::VT_obj*>(&touch.field.output_number)})
        number->upload(false);
    EXPECT_EQ(touch.terminal.take_sent(), Messages{}); // the terminal knows it already
    EXPECT_EQ(touch.field.input_number.value, 37U);
}

TEST(NumberFieldLive, TakesAnEntryInItsUnits)
{
    Touch touch;
    touch.choose(Units_man::imperial);
    touch.terminal.take_sent();
    say(touch.pool, entry(Touch::input, 240)); // 50 gallons an acre
    EXPECT_EQ(touch.terminal.take_sent(), Messages{value(Touch::output, 240)});
    const Entries entered = touch.field.take_entered();
    ASSERT_EQ(entered.size(), 1u);
    EXPECT_NEAR(entered[0], 50 * 4.54609 / 0.40468564224, 1e-9);
}

TEST(NumberFieldLive, StepsItsValueAndReportsIt)
{
    Touch touch;
    touch.field.increment(1.5);
    EXPECT_EQ(touch.terminal.take_sent(), (Messages{value(Touch::output, 3), value(Touch::input, 3)}));
    touch.field.decrement(7);
    EXPECT_EQ(touch.terminal.take_sent(), (Messages{value(Touch::output, 0), value(Touch::input, 0)}));
    EXPECT_EQ(touch.field.take_entered(), (Entries{1.5, 0}));
}

TEST(NumberFieldLive, LeavesTheEntriesOfOthersAlone)
{
    Number_screen screen;
    Entry_field other({&screen.number_font, &screen.units_font, &screen.backdrop, 0, true}, Number_screen::litres,
                      nullptr);
    other.init(&screen.pool, nullptr);
    other.set_size({100, 40});
    screen.mask.add(other.root(), 0, 0);
    Fake_terminal terminal;
    screen.load(terminal);
    terminal.take_sent();
    say(screen.pool, entry(other.input_number.get_id(), 37)); // not routed
    for (const int id : {0, field, Touch::output, 7, units_text, 1000, 0xFFFF})
        say(screen.pool, entry(id, 37));
    EXPECT_EQ(terminal.take_sent(), Messages{});
    EXPECT_EQ(screen.field.take_entered(), Entries{});
    EXPECT_EQ(other.take_entered(), Entries{});
    EXPECT_EQ(other.input_number.value, 37U); // noted all the same

    screen.pool.route(other);
    say(screen.pool, entry(other.input_number.get_id(), 38));
    EXPECT_EQ(other.take_entered(), Entries{19});
    EXPECT_EQ(screen.field.take_entered(), Entries{});
    EXPECT_EQ(screen.field.get_value(), 0);
    EXPECT_EQ(terminal.take_sent(), Messages{value(other.output_number.get_id(), 38)});
}

TEST(NumberFieldLive, ChangesItsUnitsInThisOrder)
{
    Touch touch;
    touch.field.set_value(80);
    touch.terminal.take_sent();
    touch.choose(Units_man::imperial);
    EXPECT_EQ(touch.terminal.take_sent(),
              (Messages{text(" gal/ac"),                       //
                        attribute(Touch::output, 8, f(0.25F)), // scale
                        attribute(Touch::input, 10, f(0.25F)), //
                        attribute(Touch::output, 9, d(2)),     // decimals
                        attribute(Touch::input, 11, d(2)),     //
                        attribute(Touch::output, 7, d(-40)),   // offset
                        attribute(Touch::input, 9, d(-40)),    //
                        attribute(Touch::input, 8, d(840)),    // maximum
                        value(Touch::output, 68),              // 7.12 gallons an acre
                        value(Touch::input, 68),               //
                        join(0x11, w(Touch::output), 12, output_in_gallons(68)), units_record,
                        field_record(Touch::input, Touch::output, 132, 244), end_of_pool}));
    EXPECT_TRUE(touch.pool.is_live());
}

TEST(NumberFieldLive, ChangesItsUnitsWithoutATouchScreen)
{
    Keys keys;
    keys.field.set_value(80);
    keys.terminal.take_sent();
    keys.choose(Units_man::imperial);
    EXPECT_EQ(keys.terminal.take_sent(),
              (Messages{text(" gal/ac"),                      //
                        attribute(Keys::output, 8, f(0.25F)), //
                        attribute(Keys::input, 10, f(0.25F)), //
                        attribute(Keys::output, 9, d(2)),     //
                        attribute(Keys::input, 11, d(2)),     //
                        attribute(Keys::output, 7, d(-40)),   //
                        attribute(Keys::input, 9, d(-40)),    //
                        attribute(Keys::input, 8, d(840)),    //
                        value(Keys::output, 68), value(Keys::input, 68),
                        join(0x11, w(Keys::output), 12, output_in_gallons(68)), // the same size, out of sight
                        join(0x11, w(Keys::input), 9, input_in_gallons(68)), units_record,
                        field_record(Keys::output, Keys::input, 132, 244), end_of_pool}));
}

TEST(NumberFieldLive, SendsOnlyWhatDiffersBetweenTwoSystems)
{
    constexpr Number_screen::Specification lower{Units_man::volume_per_area, 0, 500, 0.5, 1};
    Touch touch(Number_screen::litres, lower, lower);
    touch.field.set_value(80);
    touch.terminal.take_sent();
    touch.choose(Units_man::imperial);
    EXPECT_EQ(touch.terminal.take_sent(),
              (Messages{text(" gal/ac"), attribute(Touch::input, 8, d(1000)), value(Touch::output, 14),
                        value(Touch::input, 14), units_record,
                        field_record(Touch::input, Touch::output, 300 - 56 - 96, 300 - 56), end_of_pool}));
    touch.choose(Units_man::us); // says gal/ac, too
    EXPECT_EQ(touch.terminal.take_sent(),
              (Messages{value(Touch::output, 17), value(Touch::input, 17),
                        field_record(Touch::input, Touch::output, 300 - 56 - 96, 300 - 56), end_of_pool}));
}

TEST(NumberFieldLive, SendsValueAndFieldWhenUnitsAreAnnouncedAgain)
{
    Touch touch;
    touch.field.set_value(80);
    touch.choose(Units_man::imperial);
    touch.terminal.take_sent();
    touch.pool.announce(touch.units);
    EXPECT_EQ(touch.terminal.take_sent(), (Messages{value(Touch::output, 68), value(Touch::input, 68),
                                                    field_record(Touch::input, Touch::output, 132, 244), end_of_pool}));
    Keys keys;
    keys.field.set_value(80);
    keys.choose(Units_man::imperial);
    keys.terminal.take_sent();
    keys.pool.announce(keys.units);
    EXPECT_EQ(keys.terminal.take_sent(), (Messages{value(Keys::output, 68), value(Keys::input, 68),
                                                   field_record(Keys::output, Keys::input, 132, 244), end_of_pool}));
}

TEST(NumberFieldLive, SendsNothingOfUnitsBeforeItIsLoaded)
{
    Number_screen screen;
    Fake_terminal terminal;
    screen.field.init(&screen.pool, nullptr);
    screen.field.set_size({300, 40});
    ASSERT_TRUE(screen.pool.prepare());
    screen.choose(Units_man::us);
    EXPECT_EQ(terminal.sent, Messages{});
    EXPECT_EQ(screen.field.system, Units_man::us);
    ASSERT_TRUE(screen.pool.load(terminal));
    screen.field.set_value(80);
    EXPECT_EQ(terminal.sent.back(), value(Touch::input, 28));
}

TEST(NumberFieldLive, EndsInTheMiddleOfAChangeOfUnitsWhenTheLinkDoes)
{
    for (std::size_t taken = 0; taken < 14; ++taken) {
        Touch touch;
        touch.field.set_value(80);
        touch.terminal.take_sent();
        touch.terminal.refuse_from = taken;
        touch.choose(Units_man::imperial);
        EXPECT_EQ(touch.terminal.take_sent().size(), taken);
        EXPECT_FALSE(touch.pool.is_live());
        EXPECT_EQ(touch.pool.take_problems().size(), 1u);

        touch.terminal.refuse_from = 1000;
        ASSERT_TRUE(touch.pool.load(touch.terminal));
        touch.terminal.take_sent();
        touch.pool.announce(touch.units); // all of it was in the records
        EXPECT_EQ(touch.terminal.take_sent().size(), 4u);
    }
}

TEST(NumberFieldLive, UsesAll32BitsOfAFieldWithoutLimits)
{
    Touch touch(Number_screen::Specification{});
    EXPECT_EQ(touch.field.output_number.offset, std::numeric_limits<std::int32_t>::min());
    EXPECT_EQ(touch.field.input_number.offset, std::numeric_limits<std::int32_t>::min());
    EXPECT_EQ(touch.field.input_number.max_value, 0xFFFFFFFF);
    const std::pair<double, std::int64_t> values[] = {
        {0, 0x80000000},    {1, 0x80000001},   {-1, 0x7FFFFFFF}, {2147483647, 0xFFFFFFFF},
        {-2147483648.0, 0}, {3e9, 0xFFFFFFFF}, {-3e9, 0},        {-2147483647, 1}};
    for (const auto& [shown, raw] : values) {
        touch.field.set_value(shown);
        EXPECT_EQ(touch.terminal.take_sent(), (Messages{value(Touch::output, raw), value(Touch::input, raw)})) << shown;
    }
    for (const auto& [entered, raw] : {std::pair<double, std::int64_t>{2147483647, 0xFFFFFFFF}, {-2147483648.0, 0}}) {
        say(touch.pool, entry(Touch::input, raw));
        EXPECT_EQ(touch.field.take_entered(), Entries{entered});
        EXPECT_EQ(touch.terminal.take_sent(), Messages{value(Touch::output, raw)});
    }
}

TEST(NumberFieldLive, UsesRawValuesAbove2ToThe31st)
{
    Touch touch(Number_screen::Specification{Units_man::none, 0, 4294967295.0, 1, 0});
    EXPECT_EQ(touch.field.input_number.max_value, 0xFFFFFFFF);
    touch.field.set_value(3e9);
    EXPECT_EQ(touch.terminal.take_sent(),
              (Messages{value(Touch::output, 3000000000), value(Touch::input, 3000000000)}));
    say(touch.pool, entry(Touch::input, 0xFFFFFFFF));
    EXPECT_EQ(touch.field.take_entered(), Entries{4294967295.0});
    EXPECT_EQ(touch.terminal.take_sent(), Messages{value(Touch::output, 0xFFFFFFFF)});
}

TEST(NumberFieldLive, LooksAtTheTouchScreenAndAtTheKindOfTerminal)
{
    struct Kind
    {
        int code;
        int options;
        bool input_is_shown;
    };
    for (const Kind kind : {Kind{2, 0, true},
                            {2, 2, true},
                            {0, 0, true},
                            {8, 0, true},
                            {2, 1, false},
                            {2, 3, false},
                            {9, 0, false},
                            {9, 1, false},
                            {9, 2, false}}) {
        Number_screen screen;
        Fake_terminal terminal;
        terminal.answers[0xC7] = frame(0xC7, 0xFF, kind.code, kind.options, w(480), w(480));
        screen.load(terminal);
        const auto first = screen.field.root().objects[0].object_id;
        const auto shown = screen.field.root().objects[2].object_id;
        const VT::VT_obj& input = screen.field.input_number;
        EXPECT_EQ(shown == input.get_id(), kind.input_is_shown) << kind.code << ' ' << kind.options;
        EXPECT_EQ(first == input.get_id(), !kind.input_is_shown);
        EXPECT_EQ(input.get_width(), kind.input_is_shown ? 96 : 300);
    }
}
