#include "tests/Fake_pool.h"
#include "tests/platform/Objects.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using std::string_literals::operator""s;

std::string value_of(const VT::Output_string_obj& object) { return {object.value.text(), object.value.item_count}; }

TEST(OutputString, GrowsAndKeepsItsText)
{
    Fake_pool pool;
    char text[] = "ab";
    auto object = objects::output_string(text, 2);
    pool.take(object, 9);
    object.grow(5);
    EXPECT_EQ(pool.strings, (std::vector<std::string>{"9 ab"}));
    EXPECT_EQ(object.length, 5);
    EXPECT_EQ(value_of(object), "ab   ");
    EXPECT_TRUE(object.value.changed());
    EXPECT_STREQ(text, "ab") << "the application's buffer is left alone";
}

TEST(OutputString, GrowsASecondTimeFromThePoolsBuffer)
{
    Fake_pool pool;
    auto object = objects::output_string();
    pool.take(object, 9);
    object.grow(1);
    object.value.buffer[0] = 'x';
    object.grow(3);
    EXPECT_EQ(value_of(object), "x  ");
}

TEST(OutputString, TakesASpecifiedTextThatIsLongerThanItsOwn)
{
    Fake_pool pool;
    char text[] = "ab";
    auto object = objects::output_string(text, 2);
    pool.take(object, 9);
    EXPECT_TRUE(Fake_pool::specify(object, {{"value", "speed"s}}));
    EXPECT_EQ(object.length, 5);
    EXPECT_EQ(value_of(object), "speed");
    EXPECT_TRUE(pool.reported.empty());
}

TEST(OutputString, TakesASpecifiedTextThatFitsWithoutGrowing)
{
    Fake_pool pool;
    char text[] = "abcd";
    auto object = objects::output_string(text, 4);
    pool.take(object, 9);
    EXPECT_TRUE(Fake_pool::specify(object, {{"value", "wxyz"s}}));
    EXPECT_STREQ(text, "wxyz");
    EXPECT_TRUE(Fake_pool::specify(object, {{"value", "xy"s}}));
    EXPECT_TRUE(pool.strings.empty());
    EXPECT_EQ(object.length, 4);
    EXPECT_EQ(object.value.num_chars(), 2);
    EXPECT_STREQ(text, "xy");
}

TEST(OutputString, TakesTheLongestTextThatARecordCanHold)
{
    Fake_pool pool;
    auto object = objects::output_string();
    pool.take(object, 9);
    EXPECT_TRUE(Fake_pool::specify(object, {{"value", std::string(65535, 'x')}}));
    EXPECT_EQ(object.length, 65535);
}

TEST(OutputString, RefusesATextLongerThanARecordCanHold)
{
    Fake_pool pool;
    auto object = objects::output_string();
    pool.take(object, 9);
    EXPECT_FALSE(Fake_pool::specify(object, {{"value", std::string(65536, 'x')}}));
    EXPECT_EQ(pool.reported, (std::vector<std::string>{"9 value is too short for that text"}));
    EXPECT_EQ(object.length, 0);
}

TEST(OutputString, RefusesATextThatFitsItsLengthWhileItHasNoBuffer)
{
    Fake_pool pool;
    auto object = objects::output_string(nullptr, 4);
    pool.take(object, 9);
    EXPECT_FALSE(Fake_pool::specify(object, {{"value", "ab"s}}));
    EXPECT_EQ(pool.reported, (std::vector<std::string>{"9 value is too short for that text"}));
}

TEST(OutputString, RefusesANumberAsItsText)
{
    Fake_pool pool;
    auto object = objects::output_string();
    pool.take(object, 9);
    EXPECT_FALSE(Fake_pool::specify(object, {{"value", 5.0}}));
    EXPECT_EQ(pool.reported, (std::vector<std::string>{"9 value takes a text"}));
}

} // namespace
