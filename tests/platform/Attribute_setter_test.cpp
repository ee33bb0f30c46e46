#include "tests/Fake_pool.h"
#include "tests/Record_text.h"
#include "tests/platform/Objects.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace {

using std::string_literals::operator""s;

/// What a pool whose object has the id 9 hears when a specification is applied to that object.
template <typename Object>
std::vector<std::string> refusals(Object&& object, const Fake_specification& specification)
{
    Fake_pool pool;
    pool.take(object, 9);
    const bool done = Fake_pool::specify(object, specification);
    EXPECT_EQ(done, pool.reported.empty());
    EXPECT_TRUE(pool.sent.empty());
    return pool.reported;
}

const std::vector<std::string> nothing;

TEST(Specification, SetsAttributesOfEveryTypeByTheirNames)
{
    auto object = objects::input_number();
    EXPECT_EQ(refusals(object, {{"width", 300.0},
                                {"background_colour", 200.0},
                                {"font_attributes", 65534.0},
                                {"max_value", 4294967295.0},
                                {"offset", -2147483648.0},
                                {"scale", 0.1},
                                {"options_2", 3.0}}),
              nothing);
    EXPECT_EQ(object.width, 300);
    EXPECT_EQ(object.background_colour, 200);
    EXPECT_EQ(object.font_attributes, 65534);
    EXPECT_EQ(object.max_value, 4294967295U);
    EXPECT_EQ(object.offset, std::numeric_limits<std::int32_t>::min());
    EXPECT_EQ(object.scale, 0.1F);
    EXPECT_EQ(object.options_2, 3);
}

TEST(Specification, LeavesAloneWhatItDoesNotName)
{
    auto object = objects::input_number();
    const auto before = Record_text::of(object);
    EXPECT_EQ(refusals(object, {{"no such attribute", 1.0}}), nothing);
    EXPECT_EQ(Record_text::of(object), before);
}

TEST(Specification, SetsAttributesThatChangeAttributeCannotCarry)
{
    auto object = objects::container();
    EXPECT_EQ(refusals(object, {{"hidden", 1.0}}), nothing);
    EXPECT_EQ(object.hidden, 1);
}

TEST(Specification, RefusesANumberBeyondTheTypeOfAnAttribute)
{
    const std::vector<std::string> refused{"9 width cannot hold that value"};
    EXPECT_EQ(refusals(objects::container(), {{"width", -1.0}}), refused);
    EXPECT_EQ(refusals(objects::container(), {{"width", 65536.0}}), refused);
    EXPECT_EQ(refusals(objects::container(), {{"width", 65535.0}}), nothing);
    EXPECT_EQ(refusals(objects::container(), {{"width", 0.0}}), nothing);
    EXPECT_EQ(refusals(objects::output_number(), {{"offset", 2147483648.0}}),
              (std::vector<std::string>{"9 offset cannot hold that value"}));
    EXPECT_EQ(refusals(objects::output_number(), {{"offset", 2147483647.0}}), nothing);
    EXPECT_EQ(refusals(objects::output_number(), {{"value", 4294967296.0}}),
              (std::vector<std::string>{"9 value cannot hold that value"}));
}

TEST(Specification, RefusesAFractionWhereOnlyWholeNumbersFit)
{
    auto object = objects::container();
    EXPECT_EQ(refusals(object, {{"width", 1.5}}), (std::vector<std::string>{"9 width cannot hold that value"}));
    EXPECT_EQ(object.width, 240);
    EXPECT_FALSE(object.width.changed());
}

TEST(Specification, RefusesWhatIsNoNumber)
{
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const double infinity = std::numeric_limits<double>::infinity();
    EXPECT_EQ(refusals(objects::container(), {{"width", nan}}).size(), 1U);
    EXPECT_EQ(refusals(objects::container(), {{"width", infinity}}).size(), 1U);
    EXPECT_EQ(refusals(objects::output_number(), {{"scale", nan}}),
              (std::vector<std::string>{"9 scale cannot hold that value"}));
    EXPECT_EQ(refusals(objects::output_number(), {{"scale", -infinity}}).size(), 1U);
}

TEST(Specification, RefusesANumberThatIsInfiniteAsAScale)
{
    auto object = objects::output_number();
    EXPECT_EQ(refusals(object, {{"scale", 1e300}}), (std::vector<std::string>{"9 scale cannot hold that value"}));
    EXPECT_EQ(object.scale, 0.5F);
}

TEST(Specification, RefusesANumberBeyondTheRangeOfAnAttribute)
{
    const auto refused = [](const char* name) {
        return std::vector<std::string>{"9 "s + name + " cannot hold that value"};
    };
    const auto check = [&](auto make, const char* name, double highest) {
        SCOPED_TRACE(name);
        EXPECT_EQ(refusals(make(), {{name, highest}}), nothing);
        EXPECT_EQ(refusals(make(), {{name, 0.0}}), nothing);
        EXPECT_EQ(refusals(make(), {{name, highest + 1}}), refused(name));
    };
    check([] { return objects::container(); }, "hidden", 1);
    check([] { return objects::button(); }, "options", 63);
    check([] { return objects::output_number(); }, "options", 15);
    check([] { return objects::input_number(); }, "options", 15);
    check([] { return objects::input_number(); }, "options_2", 3);
    check([] { return objects::output_string(); }, "options", 7);
    check([] { return objects::output_number(); }, "format", 1);
    check([] { return objects::output_number(); }, "number_of_decimals", 7);
    check([] { return objects::input_number(); }, "number_of_decimals", 7);
    check([] { return objects::output_string(); }, "justification", 10);
    check([] { return objects::rectangle(); }, "line_suppression", 15);
    check([] { return objects::line(); }, "line_direction", 1);
    check([] { return objects::polygon(); }, "polygon_type", 3);
    check([] { return objects::picture(); }, "format", 2);
    check([] { return objects::picture(); }, "options", 7);
    check([] { return objects::fill(); }, "fill_type", 3);
    check([] { return objects::font(); }, "font_size", 14);
    check([] { return objects::font(); }, "font_style", 15);
    check([] { return objects::font(); }, "font_colour", 255);
    check([] { return VT::Alarm_mask_obj(); }, "priority", 2);
    check([] { return VT::Alarm_mask_obj(); }, "acoustic_signal", 3);
    check([] { return VT::Working_set_obj(); }, "selectable", 1);
}

TEST(Specification, RefusesATextWhereANumberBelongs)
{
    auto object = objects::container();
    EXPECT_EQ(refusals(object, {{"width", "wide"s}}), (std::vector<std::string>{"9 width takes a number"}));
    EXPECT_EQ(object.width, 240);
}

TEST(Specification, RefusesANumberWhereATextBelongs)
{
    char text[] = "ab";
    EXPECT_EQ(refusals(objects::string_variable(text, 2), {{"value", 1.0}}),
              (std::vector<std::string>{"9 value takes a text"}));
    EXPECT_STREQ(text, "ab");
}

TEST(Specification, RefusesATextLongerThanItsVariable)
{
    char text[] = "ab";
    EXPECT_EQ(refusals(objects::string_variable(text, 2), {{"value", "abc"s}}),
              (std::vector<std::string>{"9 value is too short for that text"}));
    EXPECT_STREQ(text, "ab");
}

TEST(Specification, RefusesATextForAVariableWithoutABuffer)
{
    auto object = objects::string_variable(nullptr, 2);
    EXPECT_EQ(refusals(object, {{"value", "a"s}}), (std::vector<std::string>{"9 value is too short for that text"}));
    EXPECT_EQ(refusals(object, {{"value", ""s}}), nothing) << "there is room for no text";
}

TEST(Specification, FillsATextVariableToTheBrim)
{
    char text[] = "ab!";
    auto object = objects::string_variable(text, 2);
    EXPECT_EQ(refusals(object, {{"value", "xy"s}}), nothing);
    EXPECT_STREQ(text, "xy!");
    EXPECT_TRUE(object.value.changed());
}

TEST(Specification, SetsATextAndClearsTheRestOfItsVariable)
{
    char text[] = "abcd!";
    auto object = objects::string_variable(text, 4);
    EXPECT_EQ(refusals(object, {{"value", "xy"s}}), nothing);
    EXPECT_EQ(object.num_chars(), 2);
    EXPECT_EQ(std::string(text, 5), "xy\0\0!"s);
    EXPECT_TRUE(object.value.changed());
}

TEST(Specification, ReportsEveryRefusalAndSetsTheRest)
{
    auto object = objects::container();
    EXPECT_EQ(refusals(object, {{"width", 70000.0}, {"height", 33.0}, {"hidden", "yes"s}}),
              (std::vector<std::string>{"9 width cannot hold that value", "9 hidden takes a number"}));
    EXPECT_EQ(object.height, 33);
}

TEST(Specification, MayNameAColour)
{
    const Fake_specification specification{{"font_colour", "warning"s}};
    auto object = objects::font();
    EXPECT_EQ(refusals(object, specification), nothing);
    EXPECT_TRUE(object.colour.is_queued());
    EXPECT_STREQ(object.colour.get_name(), "warning");
    EXPECT_EQ(object.colour, 9) << "until the pool resolves it";
    EXPECT_EQ(object.colour.get_object(), &object);
}

TEST(Specification, RefusesAColourBeyondThePalette)
{
    auto object = objects::font();
    EXPECT_EQ(refusals(object, {{"font_colour", 256.0}}),
              (std::vector<std::string>{"9 font_colour cannot hold that value"}));
    EXPECT_EQ(refusals(object, {{"font_colour", -1.0}}).size(), 1U);
    EXPECT_EQ(object.colour, 9);
}

TEST(ChangeAttribute, SetsTheValueWithoutAPoolToo)
{
    auto object = objects::font();
    EXPECT_TRUE(object.change_attribute("font_size", 14));
    EXPECT_EQ(object.size, 14);
    EXPECT_FALSE(object.change_attribute("font_size", 15));
    EXPECT_EQ(object.size, 14);
}

TEST(ChangeAttribute, SettlesASymbolicColour)
{
    auto object = objects::font();
    object.colour.set_symbol("warning");
    EXPECT_TRUE(object.change_attribute("font_colour", 3));
    EXPECT_FALSE(object.colour.is_queued());
    EXPECT_EQ(object.colour, 3);
}

TEST(ChangeAttribute, RefusesAScaleThatIsNoNumber)
{
    auto object = objects::output_number();
    EXPECT_FALSE(object.change_attribute("scale", std::numeric_limits<double>::quiet_NaN()));
    EXPECT_EQ(object.scale, 0.5F);
}

TEST(ChangeAttribute, CannotCarryTheNumberThatHasACommandOfItsOwn)
{
    auto object = objects::output_number();
    EXPECT_FALSE(object.change_attribute("value", 5));
    EXPECT_EQ(object.value, 1234U);
}

} // namespace
