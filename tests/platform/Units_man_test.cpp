#include "tests/Bytes.h"
#include "tests/Fake_pool.h"
#include "units/Units_man.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <stdexcept>

namespace {

constexpr auto metric = Units_man::metric;
constexpr auto imperial = Units_man::imperial;
constexpr auto us = Units_man::us;
constexpr Units_man::units_systems systems[] = {metric, imperial, us};

constexpr auto no_type = static_cast<Units_man::units_type>(Units_man::number_of_types);
constexpr auto no_system = static_cast<Units_man::units_systems>(3);

// Other ways to the same units than those of the manager, in more digits than a double has.

constexpr long double metres_per_mile = 1609.344L;
constexpr long double metres_per_yard = 0.9144L;
constexpr long double metres_per_chain = 22 * metres_per_yard;
constexpr long double hectares_per_acre = 10 * metres_per_chain * metres_per_chain / 10000; // a furlong by a chain
constexpr long double litres_per_imperial_pint = 0.56826125L;
constexpr long double litres_per_imperial_gallon = 8 * litres_per_imperial_pint;
constexpr long double litres_per_us_gallon = 231 * 2.54L * 2.54L * 2.54L / 1000; // cubic inches
constexpr long double grams_per_pound = 7000 * 0.06479891L;                      // grains
constexpr long double bar_per_psi = 0.45359237L * 9.80665L / (0.0254L * 0.0254L) / 100000;

struct Shown
{
    Units_man::units_type type;
    const char* name;
    const char* metric_text;
    const char* other_text;
    long double imperial_factor;
    long double us_factor;
};

constexpr Shown the_same(Units_man::units_type type, const char* name, const char* text)
{
    return {type, name, text, text, 1, 1};
}

constexpr Shown both(Units_man::units_type type, const char* name, const char* metric_text, const char* other_text,
                     long double factor)
{
    return {type, name, metric_text, other_text, factor, factor};
}

/// What is expected of every quantity, in the order of their numbers.
constexpr Shown expected[] = {
    the_same(Units_man::none, "no units", ""),
    both(Units_man::speed, "units of speed", "km/h", "mph", 1000 / metres_per_mile),
    both(Units_man::distance_long, "units of long distance", "km", "mi", 1000 / metres_per_mile),
    both(Units_man::distance_short, "units of short distance", "m", "ft", 3 / metres_per_yard),
    both(Units_man::area, "units of area", "ha", "ac", 1 / hectares_per_acre),
    both(Units_man::area_rate, "units of area rate", "ha/h", "ac/h", 1 / hectares_per_acre),
    {Units_man::volume, "units of volume", "L", "gal", 1 / litres_per_imperial_gallon, 1 / litres_per_us_gallon},
    {Units_man::volume_flow, "units of volume flow", "L/min", "gal/min", 1 / litres_per_imperial_gallon,
     1 / litres_per_us_gallon},
    {Units_man::volume_per_area, "units of volume per area", "L/ha", "gal/ac",
     hectares_per_acre / litres_per_imperial_gallon, hectares_per_acre / litres_per_us_gallon},
    both(Units_man::mass, "units of mass", "kg", "lb", 1000 / grams_per_pound),
    both(Units_man::mass_flow, "units of mass flow", "kg/min", "lb/min", 1000 / grams_per_pound),
    both(Units_man::mass_per_area, "units of mass per area", "kg/ha", "lb/ac",
         hectares_per_acre * 1000 / grams_per_pound),
    both(Units_man::count_per_area, "units of count per area", "1/ha", "1/ac", hectares_per_acre),
    both(Units_man::pressure, "units of pressure", "bar", "psi", 1 / bar_per_psi),
    both(Units_man::temperature_difference, "units of temperature difference", "K",
         "\xB0"
         "F",
         9.0L / 5),
    the_same(Units_man::rotational_speed, "units of rotational speed", "rpm"),
    the_same(Units_man::percent, "units of percentage", "%"),
    the_same(Units_man::voltage, "units of voltage", "V"),
    the_same(Units_man::current, "units of current", "A"),
    the_same(Units_man::time, "units of time", "s"),
};
static_assert(std::size(expected) == Units_man::number_of_types);

void expect_factor(Units_man::units_systems system, Units_man::units_type type, long double factor)
{
    const long double error = std::fabs(Units_man::get(system, type) / factor - 1);
    EXPECT_LE(error, 1e-15L) << "of quantity " << type << " in system " << system;
}

TEST(UnitsMan, NumbersSystemsAndQuantities)
{
    EXPECT_EQ(metric, 0U);
    EXPECT_EQ(imperial, 1U);
    EXPECT_EQ(us, 2U);
    EXPECT_EQ(Units_man::none, 0U);
    for (std::size_t i = 0; i < Units_man::number_of_types; ++i)
        EXPECT_EQ(expected[i].type, i);
    EXPECT_EQ(sizeof(Units_man::units_type), 4U);
    EXPECT_EQ(sizeof(Units_man::units_systems), 4U);
}

TEST(UnitsMan, ShowsMetricUnitsAsTheyAre)
{
    for (const Shown& quantity : expected)
        EXPECT_EQ(Units_man::get(metric, quantity.type), 1.0) << quantity.type;
}

TEST(UnitsMan, ShowsOtherUnitsByTheirDefinitions)
{
    for (const Shown& quantity : expected) {
        expect_factor(imperial, quantity.type, quantity.imperial_factor);
        expect_factor(us, quantity.type, quantity.us_factor);
    }
}

TEST(UnitsMan, ShowsExactlyOneWhereThereIsOnlyOneUnit)
{
    for (const auto type : {Units_man::none, Units_man::rotational_speed, Units_man::percent, Units_man::voltage,
                            Units_man::current, Units_man::time})
        for (const auto system : systems)
            EXPECT_EQ(Units_man::get(system, type), 1.0) << type;
}

TEST(UnitsMan, KeepsTheGallonsApart)
{
    for (const auto type : {Units_man::volume, Units_man::volume_flow, Units_man::volume_per_area}) {
        EXPECT_STREQ(Units_man::get_text(imperial, type), Units_man::get_text(us, type));
        EXPECT_NEAR(Units_man::get(us, type) / Units_man::get(imperial, type), 1.20095, 1e-5);
    }
}

TEST(UnitsMan, ShowsRoundNumbersRound)
{
    EXPECT_NEAR(100 * Units_man::get(us, Units_man::speed), 62.137, 1e-3);
    EXPECT_NEAR(100 * Units_man::get(us, Units_man::area), 247.105, 1e-3);
    EXPECT_NEAR(100 * Units_man::get(us, Units_man::volume), 26.417, 1e-3);
    EXPECT_NEAR(100 * Units_man::get(imperial, Units_man::volume), 21.997, 1e-3);
    EXPECT_NEAR(100 * Units_man::get(us, Units_man::volume_per_area), 10.691, 1e-3);
    EXPECT_NEAR(100 * Units_man::get(us, Units_man::mass_per_area), 89.218, 1e-3);
    EXPECT_NEAR(10 * Units_man::get(us, Units_man::pressure), 145.038, 1e-3);
}

TEST(UnitsMan, SaysTheTextOfTheUnits)
{
    for (const Shown& quantity : expected) {
        EXPECT_STREQ(Units_man::get_text(metric, quantity.type), quantity.metric_text);
        EXPECT_STREQ(Units_man::get_text(imperial, quantity.type), quantity.other_text);
        EXPECT_STREQ(Units_man::get_text(us, quantity.type), quantity.other_text);
    }
}

TEST(UnitsMan, GivesTheSameFactorAtTheSamePlace)
{
    EXPECT_EQ(&Units_man::get(us, Units_man::mass), &Units_man::get(us, Units_man::mass));
}

TEST(UnitsMan, IsMetricAtFirst)
{
    const Units_man units;
    for (const Shown& quantity : expected)
        EXPECT_EQ(units.get_system_type(quantity.type), metric);
}

TEST(UnitsMan, ChoosesASystemForOneQuantity)
{
    Units_man units;
    units.set_system_type(Units_man::speed, us);
    units.set_system_type(Units_man::time, imperial);
    for (const Shown& quantity : expected) {
        const bool is_speed = quantity.type == Units_man::speed;
        const bool is_time = quantity.type == Units_man::time;
        EXPECT_EQ(units.get_system_type(quantity.type), is_speed ? us : is_time ? imperial : metric);
    }
    units.set_system_type(Units_man::speed, metric);
    EXPECT_EQ(units.get_system_type(Units_man::speed), metric);
}

TEST(UnitsMan, ChoosesASystemForAllQuantities)
{
    Units_man units;
    units.set_system_type(Units_man::speed, us);
    units.set_system_type(imperial);
    for (const Shown& quantity : expected)
        EXPECT_EQ(units.get_system_type(quantity.type), imperial);
}

TEST(UnitsMan, ThrowsOnWhatThereIsNot)
{
    Units_man units;
    EXPECT_THROW(Units_man::get(no_system, Units_man::speed), std::out_of_range);
    EXPECT_THROW(Units_man::get(metric, no_type), std::out_of_range);
    EXPECT_THROW(Units_man::get_text(no_system, Units_man::speed), std::out_of_range);
    EXPECT_THROW(Units_man::get_text(metric, no_type), std::out_of_range);
    EXPECT_THROW(units.get_system_type(no_type), std::out_of_range);
    EXPECT_THROW(units.set_system_type(no_type, us), std::out_of_range);
    EXPECT_THROW(units.set_system_type(Units_man::speed, no_system), std::out_of_range);
    EXPECT_THROW(units.set_system_type(no_system), std::out_of_range);
    for (const Shown& quantity : expected)
        EXPECT_EQ(units.get_system_type(quantity.type), metric) << "nothing was chosen";
    Fake_pool pool;
    EXPECT_THROW(Units_man::get_units_string(&pool, no_type), std::out_of_range);
    EXPECT_TRUE(pool.texts.empty());
}

std::string text_of(const VT::String_variable_obj& variable) { return {variable.value.text(), variable.num_chars()}; }

TEST(UnitsString, IsMetricWithRoomForTheLongestText)
{
    Fake_pool pool;
    for (const Shown& quantity : expected) {
        VT::String_variable_obj* const string = Units_man::get_units_string(&pool, quantity.type);
        if (quantity.type == Units_man::none) {
            EXPECT_EQ(string, nullptr);
            continue;
        }
        ASSERT_NE(string, nullptr);
        EXPECT_EQ(text_of(*string), std::string(" ") + quantity.metric_text) << "with a space to part it from a number";
        EXPECT_EQ(string->get_length(),
                  1 + std::max(std::strlen(quantity.metric_text), std::strlen(quantity.other_text)));
        EXPECT_STREQ(string->get_name(), quantity.name);
        EXPECT_EQ(pool.find_text(quantity.name), string);
    }
    EXPECT_EQ(pool.texts.size(), Units_man::number_of_types - 1);
}

TEST(UnitsString, IsMadeOncePerQuantityAndPool)
{
    Fake_pool pool;
    VT::String_variable_obj* const speed = Units_man::get_units_string(&pool, Units_man::speed);
    VT::String_variable_obj* const mass = Units_man::get_units_string(&pool, Units_man::mass);
    EXPECT_NE(speed, mass);
    EXPECT_EQ(Units_man::get_units_string(&pool, Units_man::speed), speed);
    EXPECT_EQ(Units_man::get_units_string(&pool, Units_man::mass), mass);
    EXPECT_EQ(pool.texts.size(), 2U);
    Fake_pool other;
    EXPECT_NE(Units_man::get_units_string(&other, Units_man::speed), speed);
}

TEST(UnitsString, KeepsTheTextItHas)
{
    Fake_pool pool;
    VT::String_variable_obj* const speed = Units_man::get_units_string(&pool, Units_man::speed);
    Units_man units;
    units.set_system_type(us);
    units.write_texts(pool);
    EXPECT_EQ(Units_man::get_units_string(&pool, Units_man::speed), speed);
    EXPECT_EQ(text_of(*speed), " mph");
}

TEST(UnitsString, IsNoneWithoutAPool) { EXPECT_EQ(Units_man::get_units_string(nullptr, Units_man::speed), nullptr); }

/// A pool with the units texts of speed and volume, under ids.
class UnitsTexts : public ::testing::Test
{
  protected:
    UnitsTexts()
        : speed(*Units_man::get_units_string(&pool, Units_man::speed)),
          volume(*Units_man::get_units_string(&pool, Units_man::volume))
    {
        pool.take(speed, 0x0102);
        pool.take(volume, 0x0304);
    }

    Messages write()
    {
        pool.sent.clear();
        units.write_texts(pool);
        return pool.sent;
    }

    Fake_pool pool;
    Units_man units;
    VT::String_variable_obj& speed;
    VT::String_variable_obj& volume;
};

TEST_F(UnitsTexts, AreSentWhereTheyDiffer)
{
    pool.live = true;
    EXPECT_EQ(write(), Messages()) << "they say the metric units";
    units.set_system_type(Units_man::volume, us);
    units.set_system_type(Units_man::mass, us); // no text asked for
    EXPECT_EQ(write(), (Messages{frame(0xB3, w(0x0304), w(4), " gal")}));
    EXPECT_EQ(write(), Messages()) << "said already";
    units.set_system_type(Units_man::volume, imperial);
    EXPECT_EQ(write(), Messages()) << "the same text";
    units.set_system_type(imperial);
    EXPECT_EQ(write(), (Messages{frame(0xB3, w(0x0102), w(4), " mph")}));
    units.set_system_type(metric);
    EXPECT_EQ(write(), (Messages{frame(0xB3, w(0x0102), w(5), " km/h"), //
                                 frame(0xB3, w(0x0304), w(2), " L")}));
    EXPECT_EQ(text_of(speed), " km/h");
    EXPECT_EQ(text_of(volume), " L");
    EXPECT_EQ(pool.texts.size(), 2U) << "none was made";
}

TEST_F(UnitsTexts, AreWrittenWithoutATerminal)
{
    units.set_system_type(us);
    EXPECT_EQ(write(), Messages());
    EXPECT_EQ(text_of(speed), " mph");
    EXPECT_EQ(text_of(volume), " gal");
    EXPECT_TRUE(speed.is_changed()) << "the next load tells";
}

TEST_F(UnitsTexts, AreComparedCharacterByCharacter)
{
    pool.live = true;
    speed.set_string(0, " km/x", 5);
    volume.set_string(0, " La", 3);                                     // begins with the text it should have
    EXPECT_EQ(write(), (Messages{frame(0xB3, w(0x0102), w(5), " km/h"), //
                                 frame(0xB3, w(0x0304), w(2), " L")}));
}

TEST_F(UnitsTexts, HaveADegreeSignOfOneByte)
{
    VT::String_variable_obj& warmth = *Units_man::get_units_string(&pool, Units_man::temperature_difference);
    pool.take(warmth, 0x0506);
    EXPECT_EQ(text_of(warmth), " K");
    EXPECT_EQ(warmth.get_length(), 3);
    pool.live = true;
    units.set_system_type(Units_man::temperature_difference, us);
    EXPECT_EQ(write(), (Messages{{0xB3, 0x06, 0x05, 3, 0, ' ', 0xB0, 'F'}}));
}

} // namespace
