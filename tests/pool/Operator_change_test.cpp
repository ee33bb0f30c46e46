// What the operator changes at the terminal stays as it is when records are sent again.

#include "tests/Allocations.h"
#include "tests/pool/At_terminal.h"
#include "tests/pool/Fake_terminal.h"
#include "tests/pool/Screen.h"
#include "vtui/comp/objects/Button_obj.h"
#include "vtui/comp/objects/Container_obj.h"
#include "vtui/comp/objects/Input_number_obj.h"
#include "vtui/comp/objects/Output_number_obj.h"
#include "vtui/comp/objects/String_variable_obj.h"

#include <gtest/gtest.h>
#include <string>

using Type = Iso::Object_type;

namespace {

/// Objects of an application's own, with as much of their records as matters here.
template <class Value>
class Input final : public VT::VT_obj
{
  public:
    explicit Input(Type type) : VT_obj(NULL_ID, nullptr, type) {}

    VT::Attribute_object_id_spec variable;
    Value value;

    void visit(VT::Attribute_visitor& visitor) override
    {
        visitor.attribute({"variable_reference"}, variable);
        visitor.attribute({"value"}, value);
    }
};

class Number_variable final : public VT::VT_obj
{
  public:
    Number_variable() : VT_obj(NULL_ID, nullptr, Type::number_variable) {}
    VT::Attribute_uint32 value{9};
    void visit(VT::Attribute_visitor& visitor) override { visitor.attribute({"value"}, value); }
};

class Input_string final : public VT::VT_obj
{
  public:
    Input_string() : VT_obj(NULL_ID, nullptr, Type::input_string) {}

    VT::Attribute_object_id_spec variable;
    char buffer[5] = {'m', 'i', 's', 't', '|'};
    VT::Attribute_string value{buffer, 4};

    void visit(VT::Attribute_visitor& visitor) override
    {
        visitor.attribute({"variable_reference"}, variable);
        visitor.attribute({"value"}, value);
    }
};

struct Entries : Screen
{
    Entries()
    {
        for (VT::VT_obj* object :
             std::initializer_list<VT::VT_obj*>{&number, &boolean, &list, &variable, &text, &string, &button, &shown})
            pool.add(*object);
        EXPECT_TRUE(pool.load(terminal));
        terminal.take_sent();
    }

    void enter(const VT::VT_obj& object, std::int64_t value)
    {
        say(pool, frame(0x05, w(object.get_id()), 0xFF, d(value)));
    }
    void enter(const VT::VT_obj& object, const std::string& characters)
    {
        say(pool, frame(0x08, w(object.get_id()), static_cast<int>(characters.size()), characters));
    }
    void activate(const VT::VT_obj& object, int code) { say(pool, frame(0x01, code, w(object.get_id()), w(1), 7)); }

    std::string string_in(VT::Attribute_string& value) { return {value.text(), value.num_chars()}; }

    C::Input_number_obj number;
    Input<VT::Attribute_uint8> boolean{Type::input_boolean};
    Input<VT::Attribute_uint8> list{Type::input_list};
    Number_variable variable;
    Input_string text;
    C::String_variable_obj<4> string;
    C::Button_obj button;
    C::Output_number_obj shown;
    Fake_terminal terminal;
};

} // namespace

TEST(PoolEntry, IsNotedInTheInputAsTold)
{
    Entries screen;
    screen.enter(screen.number, 0xFFFFFFF0);
    screen.enter(screen.boolean, 1);
    screen.enter(screen.list, 255);
    screen.text.value.set_changed(); // the terminal is told another way
    screen.enter(screen.text, "fog");
    EXPECT_EQ(screen.number.value, 0xFFFFFFF0);
    EXPECT_EQ(screen.boolean.value, 1);
    EXPECT_EQ(screen.list.value, 255);
    EXPECT_EQ(screen.string_in(screen.text.value), "fog");
    screen.enter(screen.list, 256);
    EXPECT_EQ(screen.list.value, 255) << "there is no such choice";
    for (VT::VT_obj* object :
         std::initializer_list<VT::VT_obj*>{&screen.number, &screen.boolean, &screen.list, &screen.text})
        EXPECT_FALSE(object->is_changed());
}

TEST(PoolEntry, TakesTheTextThatTheObjectHasRoomFor)
{
    Entries screen;
    for (const auto& [entered, noted] :
         {std::pair<const char*, const char*>{"fogs", "fogs"}, {"", ""}, {"foggy", "fogg"}}) {
        screen.enter(screen.text, entered);
        EXPECT_EQ(screen.string_in(screen.text.value), noted);
        EXPECT_EQ(screen.text.buffer[4], '|') << "it lies behind the text";
    }
    screen.text.value.buffer = nullptr;
    screen.enter(screen.text, "rain");
    EXPECT_EQ(screen.string_in(screen.text.value), "");
}

TEST(PoolEntry, IsNotedInTheVariable)
{
    Entries screen;
    for (VT::Attribute_object_id_spec* reference :
         {&screen.number.variable_reference, &screen.boolean.variable, &screen.list.variable})
        *reference = screen.variable.get_id();
    screen.text.variable = screen.string.get_id();
    std::int64_t entered = 70000;
    for (const VT::VT_obj* input : std::initializer_list<VT::VT_obj*>{&screen.number, &screen.boolean, &screen.list}) {
        screen.enter(*input, ++entered);
        EXPECT_EQ(screen.variable.value, entered);
        EXPECT_FALSE(screen.variable.is_changed());
    }
    screen.enter(screen.text, "fog");
    EXPECT_EQ(screen.string_in(screen.string.value), "fog");
    EXPECT_FALSE(screen.string.is_changed());
    EXPECT_EQ(screen.number.value, 0U);
    EXPECT_EQ(screen.boolean.value, 0);
    EXPECT_EQ(screen.string_in(screen.text.value), "mist");
}

TEST(PoolEntry, LeavesAloneWhatTheOperatorCannotHaveEntered)
{
    Entries screen;
    screen.shown.value = 3;
    screen.string.format("l/ha");
    for (const VT::VT_obj* object : std::initializer_list<VT::VT_obj*>{&screen.shown, &screen.variable, &screen.string,
                                                                       &screen.button, &screen.mask, &screen.text})
        screen.enter(*object, 5);
    for (const VT::VT_obj* object : std::initializer_list<VT::VT_obj*>{&screen.shown, &screen.variable, &screen.string,
                                                                       &screen.button, &screen.mask, &screen.number})
        screen.enter(*object, "fog");
    screen.number.variable_reference = screen.string.get_id(); // not of the right type
    screen.boolean.variable = 99;                              // nothing
    screen.enter(screen.number, 6);
    screen.enter(screen.boolean, 6);
    screen.text.variable = screen.variable.get_id();
    screen.enter(screen.text, "fog");
    EXPECT_EQ(screen.shown.value, 3U);
    EXPECT_EQ(screen.variable.value, 9U);
    EXPECT_EQ(screen.number.value, 0U);
    EXPECT_EQ(screen.boolean.value, 0);
    EXPECT_EQ(screen.string_in(screen.string.value), "l/ha");
    EXPECT_EQ(screen.string_in(screen.text.value), "mist");
}

TEST(PoolEntry, LatchesAndUnlatchesALatchableButton)
{
    struct Step
    {
        int before;
        int code;
        int after;
    };
    constexpr Step steps[] = {{1, 1, 3}, {3, 1, 3}, {3, 0, 1}, {1, 0, 1}, {3, 2, 3}, {1, 2, 1},   {3, 3, 3},
                              {1, 3, 1}, {0, 1, 0}, {0, 0, 0}, {2, 0, 2}, {8, 1, 8}, {61, 1, 63}, {63, 0, 61}};
    for (const Step& step : steps) {
        Entries screen;
        screen.button.options = static_cast<std::uint8_t>(step.before);
        screen.button.options.set_told();
        screen.activate(screen.button, step.code);
        EXPECT_EQ(screen.button.options, step.after) << step.before << ' ' << step.code;
        EXPECT_FALSE(screen.button.is_changed());
    }
}

TEST(PoolEntry, LatchesButtonsOnly)
{
    Entries screen;
    screen.shown.options = 1;
    screen.activate(screen.shown, 1);
    screen.activate(screen.mask, 1);
    EXPECT_EQ(screen.shown.options, 1);
}

TEST(PoolEntry, LeavesAnotherChangeOfTheButtonToBeTold)
{
    Entries screen;
    screen.button.options = 1 | 32;
    screen.activate(screen.button, 1);
    EXPECT_EQ(screen.button.options, 1 | 2 | 32);
    screen.button.upload(false);
    EXPECT_EQ(screen.terminal.take_sent().size(), 2u);
}

TEST(PoolEntry, AllocatesNothing)
{
    Entries screen;
    screen.button.options = 1;
    const Bytes latched = frame(0x01, 1, w(screen.button.get_id()), w(1), 7);
    const Bytes entered = frame(0x05, w(screen.number.get_id()), 0xFF, d(1));
    screen.pool.receive(latched.data(), latched.size());
    const std::size_t before = allocations();
    screen.pool.receive(latched.data(), latched.size());
    screen.pool.receive(entered.data(), entered.size());
    EXPECT_EQ(allocations(), before);
}

TEST(PoolEntryAtATerminal, KeepsAButtonLatchedWhenItsRecordIsSentAgain)
{
    C::Button_obj button;
    button.options = 1;
    With_child<C::Container_obj> page(&button);
    Screen screen;
    screen.mask.add(page.parent, 0, 0);
    apps::Loopback_link link;
    const auto options = [&] { return link.terminal.pool().find(button.get_id()).u8(terminal::Field::options); };
    ASSERT_TRUE(screen.pool.load(link));
    ASSERT_TRUE(link.terminal.press(button.get_id()));
    EXPECT_EQ(options(), 3);
    deliver(link, screen.pool);

    button.width = 100; // it is laid out again
    page.parent.upload(true);
    EXPECT_EQ(options(), 3);
    ASSERT_TRUE(screen.pool.load(link));
    EXPECT_EQ(options(), 3);

    ASSERT_TRUE(link.terminal.press(button.get_id()));
    deliver(link, screen.pool);
    button.upload(true);
    EXPECT_EQ(options(), 1);
}
