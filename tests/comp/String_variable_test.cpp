#include "tests/Fake_pool.h"
#include "vtui/comp/objects/String_variable_obj.h"

#include <gtest/gtest.h>

#include <string>

using std::string_literals::operator""s;
using VT::Comp::String_variable_obj;

namespace {

/// The characters of a variable up to its capacity, with the NUL that ends a shorter text.
template <std::size_t N>
std::string buffer_of(const String_variable_obj<N>& variable)
{
    return {variable.value.buffer, variable.value.item_count};
}

template <std::size_t N>
std::string text_of(const String_variable_obj<N>& variable)
{
    return {variable.value.text(), variable.num_chars()};
}

TEST(StringVariable, HoldsSpacesAndANulAtFirst)
{
    const String_variable_obj<4> variable;
    EXPECT_EQ(buffer_of(variable), "    ");
    EXPECT_EQ(variable.value.buffer[4], '\0');
    EXPECT_EQ(variable.value.item_count, 4);
    EXPECT_FALSE(variable.value.changed());
}

TEST(StringVariable, KeepsItsTextInItself)
{
    const String_variable_obj<4> variable;
    const auto* const self = reinterpret_cast<const char*>(&variable);
    EXPECT_GE(variable.value.buffer, self);
    EXPECT_LE(variable.value.buffer + 5, self + sizeof variable);
}

TEST(StringVariable, FormatsIntoItsBufferWhileItHasNoId)
{
    String_variable_obj<4> variable;
    variable.format("%u%c", 12U, 'x');
    EXPECT_EQ(text_of(variable), "12x");
    EXPECT_STREQ(variable.value.buffer, "12x");
    EXPECT_TRUE(variable.value.changed());
}

TEST(StringVariable, CutsATextOffAtItsCapacity)
{
    String_variable_obj<4> four;
    four.format("%s", "abcdefgh");
    EXPECT_EQ(text_of(four), "abcd");
    String_variable_obj<1> one;
    one.format("%d", 42);
    EXPECT_EQ(text_of(one), "4");
    String_variable_obj<2> two;
    two.format("%d", 42);
    EXPECT_EQ(text_of(two), "42");
}

TEST(StringVariable, CanBeEmpty)
{
    String_variable_obj<2> variable;
    variable.format("%s", "");
    EXPECT_EQ(variable.num_chars(), 0);
    EXPECT_EQ(buffer_of(variable)[0], '\0');
}

TEST(StringVariable, SendsNothingWithAnIdInAPoolThatIsNotLive)
{
    Fake_pool pool;
    String_variable_obj<4> variable;
    pool.take(variable, 9);
    variable.format("%s", "abc");
    EXPECT_EQ(text_of(variable), "abc");
    EXPECT_TRUE(variable.value.changed());
    EXPECT_TRUE(pool.sent.empty());
}

TEST(StringVariable, SendsItsTextWhenThePoolIsLive)
{
    Fake_pool pool;
    String_variable_obj<4> variable;
    pool.take(variable, 0x0102);
    pool.live = true;
    variable.format("%d", -7);
    EXPECT_EQ(pool.sent, (Messages{{0xB3, 0x02, 0x01, 2, 0, '-', '7', 0xFF}}));
    EXPECT_EQ(text_of(variable), "-7");
    EXPECT_EQ(buffer_of(variable), "-7\0 "s) << "no more is written than the text and its end";
    EXPECT_FALSE(variable.value.changed());
}

TEST(StringVariable, SendsNoMoreThanItsCapacityOfALongerText)
{
    Fake_pool pool;
    String_variable_obj<4> four;
    String_variable_obj<1> one;
    pool.take(four, 0x0102);
    pool.take(one, 0x0304);
    pool.live = true;
    four.format("%s", "abcdefgh"); // eight characters asked for, four written
    one.format("%u", 4000000000U);
    EXPECT_EQ(pool.sent, (Messages{{0xB3, 0x02, 0x01, 4, 0, 'a', 'b', 'c', 'd'}, //
                                   {0xB3, 0x04, 0x03, 1, 0, '4', 0xFF, 0xFF}}));
    EXPECT_EQ(text_of(four), "abcd");
    EXPECT_EQ(text_of(one), "4");
}

TEST(StringVariable, SendsAnEmptyText)
{
    Fake_pool pool;
    String_variable_obj<2> variable;
    pool.take(variable, 0x0102);
    pool.live = true;
    variable.format("%s", "");
    EXPECT_EQ(pool.sent, (Messages{{0xB3, 0x02, 0x01, 0, 0, 0xFF, 0xFF, 0xFF}}));
}

TEST(StringVariable, MayFormatItsOwnTextOnceItHasAnId)
{
    Fake_pool pool;
    String_variable_obj<4> variable;
    variable.format("%s", "ab");
    pool.take(variable, 0x0102);
    variable.format("x%s", variable.value.buffer);
    EXPECT_EQ(text_of(variable), "xab");
}

} // namespace
