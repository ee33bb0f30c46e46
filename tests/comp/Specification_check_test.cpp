#include "tests/Death.h"
#include "tests/Fake_pool.h"
#include "tests/Lock.h"
#include "vtui/comp/objects/Container_obj.h"
#include "vtui/comp/objects/Fill_attributes_obj.h"
#include "vtui/comp/objects/Key_obj.h"
#include "vtui/comp/objects/Output_string_obj.h"
#include "vtui/comp/objects/Picture_graphic_obj.h"
#include "vtui/comp/objects/String_variable_obj.h"

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <iostream>
#include <string>
#include <thread>
#include <unistd.h>

using namespace VT::Comp;
using std::string_literals::operator""s;

namespace {

/// The platform's own kind of string variable.
class Platform_string_variable : public VT::VT_obj
{
  public:
    Platform_string_variable() : VT_obj(NULL_ID, nullptr, static_cast<Iso::Object_type>(245)) {}
    void visit(VT::Attribute_visitor&) override {}
};

/// An output string "caption" with a font, in a pool that has things to refer to.
class OutputStringSpecification : public ::testing::Test
{
  protected:
    OutputStringSpecification()
    {
        string.set_name("caption");
        pool.take(string, 9);
        pool.take(variable, variable_id);
        pool.take(platform_variable, platform_variable_id);
        pool.take(container, container_id);
        string.set_font_attributes(5);
    }

    bool specify(const Fake_specification& specification = {}) { return Fake_pool::specify(string, specification); }

    std::string value() const { return {string.value.text(), string.value.item_count}; }

    /// A text that the string has before it is specified.
    void set_text(const std::string& text)
    {
        string.length = static_cast<std::uint16_t>(text.size());
        string.value.item_count = static_cast<std::uint16_t>(text.size());
        pool.set_string(string, text.c_str());
        pool.strings.clear();
    }

    static constexpr Iso::Object_id variable_id = 20;
    static constexpr Iso::Object_id platform_variable_id = 21;
    static constexpr Iso::Object_id container_id = 22;

    Fake_pool pool;
    String_variable_obj<4> variable;
    Platform_string_variable platform_variable;
    Container_obj container;
    Output_string_obj string;
};

using OutputStringSpecificationDeathTest = OutputStringSpecification;

TEST_F(OutputStringSpecification, WithoutALengthLeavesTheTextAlone)
{
    set_text("ab");
    EXPECT_TRUE(specify());
    EXPECT_EQ(value(), "ab");
    EXPECT_TRUE(pool.strings.empty());
    EXPECT_TRUE(pool.reported.empty());
}

TEST_F(OutputStringSpecification, GrowsTheTextToALargerLength)
{
    set_text("ab");
    EXPECT_TRUE(specify({{"length", 5.0}}));
    EXPECT_EQ(pool.strings, (std::vector<std::string>{"9 ab"})) << "the pool gets the old text";
    EXPECT_EQ(string.length, 5);
    EXPECT_EQ(string.value.item_count, 5);
    EXPECT_EQ(value(), "ab   ");
}

TEST_F(OutputStringSpecification, GrowsAnEmptyTextToo)
{
    EXPECT_TRUE(specify({{"length", 3.0}}));
    EXPECT_EQ(pool.strings, (std::vector<std::string>{"9 "}));
    EXPECT_EQ(value(), "   ");
}

TEST_F(OutputStringSpecification, GrowsATextThatIsShorterThanItsLength)
{
    char buffer[] = "ab\0XY!";
    string.length = std::uint16_t{5};
    string.value.item_count = 5;
    string.value.buffer = buffer;
    EXPECT_TRUE(specify({{"length", 7.0}}));
    EXPECT_EQ(pool.strings, (std::vector<std::string>{"9 ab"})) << "what lies behind the end is no text";
    EXPECT_EQ(string.length, 7);
    EXPECT_EQ(value(), "ab     ");
    EXPECT_EQ(std::string(buffer, 6), "ab\0XY!"s);
}

TEST_F(OutputStringSpecification, GrowsATextThatEndsWithItsBuffer)
{
    char buffer[] = {'a', 'b', 'X'};
    string.length = std::uint16_t{2};
    string.value.item_count = 2;
    string.value.buffer = buffer;
    EXPECT_TRUE(specify({{"length", 3.0}}));
    EXPECT_EQ(pool.strings, (std::vector<std::string>{"9 ab"})) << "no NUL ends it";
    EXPECT_EQ(value(), "ab ");
}

TEST_F(OutputStringSpecification, DoesNotShrinkTheText)
{
    set_text("abc");
    EXPECT_TRUE(specify({{"length", 2.0}}));
    EXPECT_TRUE(specify({{"length", 3.0}}));
    EXPECT_TRUE(pool.strings.empty());
    EXPECT_EQ(string.length, 3);
    EXPECT_EQ(value(), "abc");
}

TEST_F(OutputStringSpecification, RefusesALengthThatIsNone)
{
    for (const Fake_specification::Value& length :
         {Fake_specification::Value(65536.0), Fake_specification::Value(-1.0), Fake_specification::Value(2.5),
          Fake_specification::Value("five"s)}) {
        pool.reported.clear();
        EXPECT_FALSE(specify({{"length", length}}));
        ASSERT_EQ(pool.reported.size(), 1U);
        EXPECT_EQ(pool.reported[0].substr(0, 9), "9 length ");
        EXPECT_EQ(string.length, 0);
    }
}

TEST_F(OutputStringSpecification, GrowsBehindASpecifiedText)
{
    EXPECT_TRUE(specify({{"value", "speed"s}, {"length", 7.0}}));
    EXPECT_EQ(value(), "speed  ");
    EXPECT_EQ(string.length, 7);
}

TEST_F(OutputStringSpecification, ReportsAMissingFont)
{
    string.set_font_attributes(VT::VT_obj::NULL_ID);
    EXPECT_TRUE(specify());
    EXPECT_EQ(pool.reported, (std::vector<std::string>{"9 font_attributes is the null id"}));
}

TEST_F(OutputStringSpecification, SaysThatItRefusedAValue)
{
    EXPECT_FALSE(specify({{"width", -1.0}}));
    EXPECT_EQ(pool.reported.size(), 1U);
}

TEST_F(OutputStringSpecification, AcceptsAStringVariableAndNoTextOfItsOwn)
{
    string.set_variable_reference(variable_id);
    EXPECT_TRUE(specify());
    string.set_variable_reference(platform_variable_id);
    EXPECT_TRUE(specify());
    EXPECT_TRUE(pool.reported.empty());
}

TEST_F(OutputStringSpecificationDeathTest, ATextBesideAVariableEndsTheProcess)
{
    const char* const message =
        "The Output_string 'caption' has a non-NULL variable reference but specifies a non-zero length.";
    string.set_variable_reference(variable_id);
    set_text("a");
    EXPECT_FATAL_ERROR(specify(), message);
    string.set_variable_reference(container_id);
    EXPECT_FATAL_ERROR(specify(), message) << "the length is looked at first";
}

TEST_F(OutputStringSpecificationDeathTest, ASpecifiedLengthBesideAVariableEndsTheProcess)
{
    string.set_variable_reference(variable_id);
    EXPECT_FATAL_ERROR(
        specify({{"length", 1.0}}),
        "The Output_string 'caption' has a non-NULL variable reference but specifies a non-zero length.");
}

TEST_F(OutputStringSpecificationDeathTest, AVariableThatIsNoStringVariableEndsTheProcess)
{
    const char* const message = "The variable referenced by 'caption' is not a String Variable.";
    string.set_variable_reference(container_id);
    EXPECT_FATAL_ERROR(specify(), message);
    string.set_variable_reference(1000);
    EXPECT_FATAL_ERROR(specify(), message) << "an id that the pool does not have";
}

TEST_F(OutputStringSpecificationDeathTest, AVariableFromTheSpecificationIsCheckedToo)
{
    EXPECT_FATAL_ERROR(specify({{"variable_reference", 22.0}}),
                       "The variable referenced by 'caption' is not a String Variable.");
}

/// Says at once what its objects report.
class Loud_pool final : public Fake_pool
{
  public:
    void report(const Iso::Iso_object_base&, const char* attribute, const char* what) override
    {
        std::cerr << attribute << ' ' << what << std::endl;
    }
};

TEST(OutputStringFontDeathTest, AMissingFontIsReportedBeforeAnythingEndsTheProcess)
{
    Loud_pool pool;
    Output_string_obj string;
    string.set_name("caption");
    string.variable_reference = std::uint16_t{1000};
    pool.take(string, 9);
    EXPECT_EXIT(Fake_pool::specify(string), ::testing::ExitedWithCode(255),
                ::testing::Eq("font_attributes is the null id\n"
                              "FATAL ERROR!  The variable referenced by 'caption' is not a String Variable.\n"));
}

TEST_F(OutputStringSpecificationDeathTest, WithoutANameSaysSo)
{
    string.set_name(nullptr);
    string.set_variable_reference(container_id);
    EXPECT_FATAL_ERROR(specify(), "The variable referenced by '' is not a String Variable.");
}

/// A fill "hatched" in a pool that has pictures of several widths.
class FillSpecification : public ::testing::Test
{
  protected:
    FillSpecification()
    {
        fill.set_name("hatched");
        pool.take(fill, 9);
        pool.take(picture, picture_id);
        pool.take(container, container_id);
    }

    bool specify(std::uint8_t type, Iso::Object_id pattern)
    {
        fill.type = type;
        fill.set_fill_pattern(pattern);
        return Fake_pool::specify(fill);
    }

    void set_picture_width(std::uint16_t width) { picture.actual_width = width; }

    static constexpr Iso::Object_id none = VT::VT_obj::NULL_ID;
    static constexpr Iso::Object_id picture_id = 20;
    static constexpr Iso::Object_id container_id = 21;

    Fake_pool pool;
    // Drawn 12 wide: the pattern's own width counts.
    Picture_graphic_obj picture{12, 16, 16, 0, 0, 0, 0, nullptr};
    Container_obj container;
    Fill_attributes_obj fill{0, 1};
};

using FillSpecificationDeathTest = FillSpecification;

TEST_F(FillSpecification, AcceptsPlainFillsWithoutAPattern)
{
    EXPECT_TRUE(specify(0, none));
    EXPECT_TRUE(specify(1, none));
    EXPECT_TRUE(specify(2, none));
}

TEST_F(FillSpecification, AcceptsAPatternWhoseWidthIsAMultipleOfEight)
{
    EXPECT_TRUE(specify(3, picture_id));
    set_picture_width(8);
    EXPECT_TRUE(specify(3, picture_id));
    set_picture_width(65528);
    EXPECT_TRUE(specify(3, picture_id));
}

TEST_F(FillSpecification, HoldsItsLockAgainAfterItHasLookedAtThePattern)
{
    fill.type = std::uint8_t{3};
    fill.set_fill_pattern(picture_id);
    fill.lock();
    EXPECT_TRUE(fill.__set_by_spec(Fake_specification()));
    EXPECT_TRUE(is_locked(fill));
}

/// While the fill asks for its picture, somebody takes the picture's lock and then waits for the fill.
TEST_F(FillSpecification, LetsGoOfItsLockWhileItLooksAtThePattern)
{
    fill.type = std::uint8_t{3};
    fill.set_fill_pattern(picture_id);
    fill.lock();
    std::atomic<bool> entered{false};
    std::thread second([&] {
        fill.lock();
        entered = true;
        fill.unlock();
    });
    // The gap is short, so it is offered until the other thread has passed through it.
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(20);
    while (!entered && std::chrono::steady_clock::now() < end)
        EXPECT_TRUE(fill.__set_by_spec(Fake_specification()));
    EXPECT_TRUE(entered);
    fill.unlock();
    second.join();
}

/// Holds the picture until the fill waits for it with its own lock released, makes it 12 wide, lets it go for a while
/// and makes it 28 wide before the fill gets its own lock back.
[[noreturn]] void change_the_width_around_the_check(Fill_attributes_obj& fill, Picture_graphic_obj& picture)
{
    fill.lock();
    picture.lock();
    std::thread second([&fill] { fill.__set_by_spec(Fake_specification()); });
    if (is_locked(fill, std::chrono::seconds(10)))
        _exit(1);
    fill.lock();
    picture.actual_width = std::uint16_t{12};
    picture.unlock();
    std::this_thread::sleep_for(std::chrono::milliseconds(300));
    picture.lock();
    picture.actual_width = std::uint16_t{28};
    picture.unlock();
    fill.unlock();
    second.join(); // ends the process
    _exit(2);
}

TEST_F(FillSpecificationDeathTest, TheWidthIsThatOfTheLockedPictureWhileTheFillIsUnlocked)
{
    set_picture_width(20);
    fill.type = std::uint8_t{3};
    fill.set_fill_pattern(picture_id);
    EXPECT_FATAL_ERROR(change_the_width_around_the_check(fill, picture),
                       "The width of the fill pattern for Fill_attribute 'hatched' is 12 which is not divisible by "
                       "8.\n\tThis is necessary for some VTs");
}

TEST_F(FillSpecificationDeathTest, APatternOfAnotherWidthEndsTheProcess)
{
    const auto message = [](const std::string& width) {
        return "The width of the fill pattern for Fill_attribute 'hatched' is " + width +
               " which is not divisible by 8.\n\tThis is necessary for some VTs";
    };
    set_picture_width(12);
    EXPECT_FATAL_ERROR(specify(3, picture_id), message("12"));
    set_picture_width(65535);
    EXPECT_FATAL_ERROR(specify(3, picture_id), message("65535"));
}

TEST_F(FillSpecificationDeathTest, APatternThatIsNoPictureEndsTheProcess)
{
    const char* const message = "Fill_attribute 'hatched' has a fill pattern which is not a picture";
    EXPECT_FATAL_ERROR(specify(3, container_id), message);
    EXPECT_FATAL_ERROR(specify(3, 1000), message) << "an id that the pool does not have";
}

TEST_F(FillSpecificationDeathTest, APatternAndATypeThatDoNotBelongTogetherEndTheProcess)
{
    const char* const message = "Fill_attribute 'hatched' can only have fill type of '3' with a valid fill pattern";
    EXPECT_FATAL_ERROR(specify(3, none), message);
    EXPECT_FATAL_ERROR(specify(0, picture_id), message);
    EXPECT_FATAL_ERROR(specify(1, picture_id), message);
    EXPECT_FATAL_ERROR(specify(2, picture_id), message);
    EXPECT_FATAL_ERROR(specify(2, container_id), message);
}

TEST_F(FillSpecificationDeathTest, AFillTypeFromTheSpecificationIsCheckedToo)
{
    EXPECT_FATAL_ERROR(Fake_pool::specify(fill, {{"fill_type", 3.0}}),
                       "Fill_attribute 'hatched' can only have fill type of '3' with a valid fill pattern");
}

TEST(KeySpecification, AcceptsEveryCodeButZero)
{
    Fake_pool pool;
    Key_obj key;
    pool.take(key, 9);
    EXPECT_TRUE(Fake_pool::specify(key));
    EXPECT_TRUE(Fake_pool::specify(key, {{"key_code", 255.0}}));
    EXPECT_EQ(key.key_code, 255);
}

TEST(KeySpecificationDeathTest, AKeyCodeOfZeroEndsTheProcess)
{
    Fake_pool pool;
    Key_obj key;
    key.set_name("start");
    pool.take(key, 9);
    EXPECT_FATAL_ERROR(Fake_pool::specify(key, {{"key_code", 0.0}}), "Key 'start' has a key code of 0");
    key.key_code = std::uint8_t{0};
    EXPECT_FATAL_ERROR(Fake_pool::specify(key), "Key 'start' has a key code of 0");
}

} // namespace
