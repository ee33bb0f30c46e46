#include "tests/pool/Screen.h"
#include "vtui/comp/objects/Container_obj.h"
#include "vtui/comp/objects/Key_obj.h"
#include "vtui/comp/objects/Output_number_obj.h"
#include "vtui/comp/objects/Output_string_obj.h"
#include "vtui/comp/objects/String_variable_obj.h"

#include <gtest/gtest.h>

using VT::Error;

TEST(PoolSpecification, SetsNumbersOfAllObjectsOfAName)
{
    C::Output_number_obj first;
    C::Output_number_obj second;
    C::Output_number_obj other;
    first.set_name("rate");
    second.set_name("rate");
    other.set_name("area");
    Screen screen;
    for (C::Output_number_obj* number : {&first, &second, &other})
        screen.pool.add(*number);
    screen.pool.specify("rate", "width", 120);
    screen.pool.specify("rate", "offset", -5);
    screen.pool.specify("rate", "scale", 0.25);
    screen.pool.specify("rate", "background_colour", 9);
    const VT::Result result = screen.pool.prepare();
    ASSERT_TRUE(result) << result.text();
    EXPECT_EQ(first.width, 120);
    EXPECT_EQ(second.width, 120);
    EXPECT_EQ(first.offset, -5);
    EXPECT_EQ(first.scale, 0.25F);
    EXPECT_EQ(first.background_colour, 9);
    EXPECT_EQ(other.width, 0);
}

TEST(PoolSpecification, TakesTextsForColoursAndStrings)
{
    C::String_variable_obj<4> variable;
    C::Container_obj face;
    variable.set_name("unit");
    Screen screen;
    screen.mask.set_name("home");
    screen.pool.add(variable);
    screen.pool.specify("unit", "value", "kg");
    screen.pool.specify("home", "background_colour", "navy");
    const VT::Result result = screen.pool.prepare();
    ASSERT_TRUE(result) << result.text();
    EXPECT_EQ(screen.mask.background_colour, 15);
    EXPECT_EQ(std::string(variable.value.text()), "kg");
}

TEST(PoolSpecification, GrowsAnOutputString)
{
    C::Output_string_obj by_length;
    C::Output_string_obj by_value;
    by_length.set_name("name");
    by_value.set_name("title");
    Screen screen;
    screen.pool.add(by_length);
    screen.pool.add(by_value);
    screen.pool.specify("name", "length", 6);
    screen.pool.specify("title", "value", "Sprayer");
    EXPECT_EQ(screen.records(), join(w(2), 11, w(0), w(0), 1, w(0xFFFF), 0, w(0xFFFF), 0, w(6), "      ", 0, //
                                     w(3), 11, w(0), w(0), 1, w(0xFFFF), 0, w(0xFFFF), 0, w(7), "Sprayer", 0));
}

TEST(PoolSpecification, RefusesWhatAnAttributeCannotHold)
{
    C::Output_number_obj number;
    number.set_name("rate");
    C::String_variable_obj<2> variable;
    variable.set_name("unit");
    C::Output_string_obj string;
    string.set_name("text");
    Screen screen;
    for (VT::VT_obj* object : std::initializer_list<VT::VT_obj*>{&number, &variable, &string})
        screen.pool.add(*object);
    screen.pool.specify("rate", "width", 65536);
    screen.pool.specify("rate", "justification", "left");
    screen.pool.specify("rate", "options", 16);
    screen.pool.specify("unit", "value", "l/min");
    screen.pool.specify("text", "length", 70000);
    const VT::Result result = screen.pool.prepare();
    EXPECT_EQ(result.text(), "output number 'rate' (2): width cannot hold that value\n"
                             "output number 'rate' (2): options cannot hold that value\n"
                             "output number 'rate' (2): justification takes a number\n"
                             "string variable 'unit' (3): value is too short for that text\n"
                             "output string 'text' (4): length cannot hold that value\n");
    ASSERT_EQ(result.errors.size(), 5u);
    EXPECT_EQ(result.errors[0].error, Error::refused_value);
    EXPECT_EQ(result.errors[0].object, "rate");
    EXPECT_EQ(result.errors[0].id, 2);
    ASSERT_EQ(result.warnings.size(), 1u);
    EXPECT_EQ(result.warnings[0].text, "output string 'text' (4): font_attributes is the null id");
    EXPECT_EQ(number.width, 0);
    EXPECT_EQ(number.get_pool(), nullptr);
}

TEST(PoolSpecification, KnowsItsObjectsAndTheirAttributes)
{
    C::Output_number_obj number;
    number.set_name("rate");
    Screen screen;
    screen.pool.add(number);
    screen.pool.specify("rate", "colour", 1);
    screen.pool.specify("speed", "width", 1);
    const VT::Result result = screen.pool.prepare();
    EXPECT_EQ(result.text(), "A value is specified for 'colour' of 'rate', which has no such attribute or was prepared "
                             "before\n"
                             "A value is specified for 'speed', but the pool has no such object\n");
    ASSERT_EQ(result.errors.size(), 2u);
    EXPECT_EQ(result.errors[0].error, Error::unknown_attribute);
    EXPECT_EQ(result.errors[0].object, "rate");
    EXPECT_EQ(result.errors[1].error, Error::unknown_object);
    EXPECT_EQ(result.errors[1].object, "speed");
}

TEST(PoolSpecification, IsReportedUntilItIsTakenBack)
{
    C::Output_number_obj number;
    number.set_name("rate");
    Screen screen;
    screen.pool.add(number);
    screen.pool.specify("rate", "width", 65536);
    screen.pool.specify("rate", "colour", 1);
    screen.pool.specify("rate", "height", 20);
    screen.pool.specify("speed", "width", 1);
    EXPECT_EQ(screen.pool.prepare().errors.size(), 3u);
    EXPECT_EQ(screen.pool.prepare().errors.size(), 3u);
    screen.pool.unspecify("rate", "width");
    screen.pool.unspecify("rate", "colour");
    EXPECT_EQ(screen.pool.prepare().error(), Error::unknown_object);
    screen.pool.unspecify("speed", "width");
    screen.pool.unspecify("speed", "width"); // nothing is specified
    screen.pool.unspecify("rate", "length");
    const VT::Result result = screen.pool.prepare();
    ASSERT_TRUE(result) << result.text();
    EXPECT_EQ(number.width, 0);
    EXPECT_EQ(number.height, 20);
}

TEST(PoolSpecification, IsAppliedOnce)
{
    C::Container_obj first;
    first.set_name("frame");
    Screen screen;
    screen.pool.add(first);
    screen.pool.specify("frame", "width", 50);
    ASSERT_TRUE(screen.pool.prepare());
    first.width = 60;
    C::Container_obj second;
    second.set_name("frame");
    screen.pool.add(second);
    ASSERT_TRUE(screen.pool.prepare());
    EXPECT_EQ(first.width, 60);
    EXPECT_EQ(second.width, 50);
}

TEST(PoolSpecification, IsForNoObjectWithoutAName)
{
    C::Container_obj nameless;
    Screen screen;
    screen.pool.add(nameless);
    screen.pool.specify("", "width", 60);
    EXPECT_EQ(screen.pool.prepare().error(), VT::Error::unknown_object);
    EXPECT_EQ(nameless.width, 240);
}

TEST(PoolSpecification, IsNotToBlameForWhatObjectsReportLater)
{
    C::Container_obj container;
    container.set_name("frame");
    Screen screen;
    screen.pool.add(container);
    screen.pool.specify("frame", "width", 60);
    ASSERT_TRUE(screen.pool.prepare());
    screen.pool.report(container, "width", "is odd");
    const std::vector<VT::Problem> problems = screen.pool.take_problems();
    ASSERT_EQ(problems.size(), 1u);
    EXPECT_EQ(problems[0].error, VT::Error::suspicious_value);
    EXPECT_EQ(problems[0].text, "container 'frame' (2): width is odd");
}

TEST(PoolColours, ReportsASymbolThatNobodyKnows)
{
    C::Key_obj key;
    key.set_name("stop");
    key.background_colour = 6;
    key.background_colour.set_symbol("crimson");
    Screen screen;
    screen.mask.background_colour.set_symbol("Black");
    screen.pool.add(key);
    const VT::Result result = screen.pool.prepare();
    EXPECT_EQ(result.text(), "key 'stop' (2): nobody knows the colour 'crimson'\n"
                             "data mask 1: nobody knows the colour 'Black'\n");
    ASSERT_EQ(result.errors.size(), 2u);
    EXPECT_EQ(result.errors[0].error, Error::unknown_colour);
    EXPECT_EQ(result.errors[0].object, "stop");
    EXPECT_EQ(result.errors[0].id, 2);
    EXPECT_EQ(key.background_colour, 6);

    // The colours wait for somebody who knows them.
    screen.pool.set_colour_resolver([](VT::Resolve_colour::Attribute_node& node) -> unsigned char {
        return std::string(node.get_name()) == "crimson" ? 124 : 0;
    });
    ASSERT_TRUE(screen.pool.prepare());
    EXPECT_EQ(key.background_colour, 124);
}

TEST(PoolColours, ForgetsASpecifiedSymbolThatNobodyKnows)
{
    C::Key_obj key;
    key.set_name("stop");
    {
        Screen screen;
        screen.pool.add(key);
        screen.pool.specify("stop", "background_colour", "crimson");
        EXPECT_EQ(screen.pool.prepare().text(), "key 'stop' (2): nobody knows the colour 'crimson'\n");
        EXPECT_FALSE(key.background_colour.is_queued()); // the name dies with the pool
        screen.pool.set_colour_resolver([](VT::Resolve_colour::Attribute_node&) -> unsigned char { return 124; });
        EXPECT_TRUE(screen.pool.prepare());
    }
    EXPECT_EQ(key.background_colour, 124);
}

TEST(PoolColours, AreResolvedBeforeTheSpecificationIsApplied)
{
    static std::vector<std::string> asked;
    asked.clear();
    Screen screen;
    screen.mask.set_name("home");
    screen.mask.background_colour.set_symbol("warm");
    screen.working_set.background_colour.set_symbol("cold");
    screen.pool.specify("home", "background_colour", 9);
    screen.pool.set_colour_resolver([](VT::Resolve_colour::Attribute_node& node) -> unsigned char {
        asked.emplace_back(node.get_name());
        return 50;
    });
    ASSERT_TRUE(screen.pool.prepare());
    EXPECT_EQ(asked, (std::vector<std::string>{"warm", "cold"}));
    EXPECT_EQ(screen.mask.background_colour, 9);
    EXPECT_EQ(screen.working_set.background_colour, 50);
}

TEST(PoolColours, KnowsTheSixteenStandardNames)
{
    constexpr const char* names[] = {"black", "white", "green", "teal", "maroon", "purple",  "olive",  "silver",
                                     "grey",  "blue",  "lime",  "cyan", "red",    "magenta", "yellow", "navy"};
    for (std::uint8_t index = 0; index < 16; ++index) {
        Screen screen;
        screen.mask.background_colour = 100;
        screen.mask.background_colour.set_symbol(names[index]);
        ASSERT_TRUE(screen.pool.prepare()) << names[index];
        EXPECT_EQ(screen.mask.background_colour, index);
    }
}

TEST(PoolColours, LeavesTheColoursOfOtherPoolsAlone)
{
    Screen other;
    other.mask.background_colour.set_symbol("crimson");
    Screen screen;
    EXPECT_TRUE(screen.pool.prepare());
    EXPECT_TRUE(other.mask.background_colour.is_queued());
    EXPECT_EQ(other.pool.prepare().error(), Error::unknown_colour);
}

TEST(PoolString, GetsABufferOfItsItemCount)
{
    C::Output_string_obj string;
    string.value.item_count = 5;
    Screen screen;
    screen.pool.set_string(string, "abc");
    EXPECT_EQ(std::string(string.value.buffer, 5), "abc  ");
    screen.pool.set_string(string, "abcdefg");
    EXPECT_EQ(std::string(string.value.buffer, 5), "abcde");
}
