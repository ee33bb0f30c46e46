#include "Session.h"

#include "tests/terminal/draw/Pool_builder.h"

namespace {

using terminal::Field;
using Id = Pool_builder::Id;
using Messages = std::vector<Bytes>;

constexpr Id none = Pool_builder::none;
constexpr Pool_builder::Field field{60, 20, none};

/// Two input numbers beside each other, the second one with a variable; and another mask.
class Entry : public testing::Test
{
  protected:
    Entry()
    {
        Pool_builder::Number tenths;
        tenths.value = 1123;
        tenths.offset = -1000;
        tenths.scale = 0.1f;
        tenths.decimals = 1;
        tenths.minimum = 950;
        tenths.maximum = 1200;
        number = builder.input_number(field, tenths);
        Pool_builder::Number plain;
        plain.value = 5;
        plain.variable = variable = builder.number_variable(77);
        other = builder.input_number(field, plain);
        button = builder.button(20, 20, 0, 0, 0);
        mask = builder.mask(0, {{number, 0, 0}, {other, 100, 0}, {button, 200, 0}});
        other_mask = builder.mask(0, {{other, 0, 0}});
        working_set = builder.working_set(mask);
        EXPECT_EQ(session.load(builder.bytes()), accepted);
        session.sent.clear();
    }

    void open(int x = 0)
    {
        ASSERT_TRUE(terminal.touch({x, 0}));
        session.sent.clear();
    }

    bool is_open() { return terminal.entry().has_value(); }

    /// What the terminal sends after a message from the application.
    Messages tell(const Bytes& message)
    {
        session.sent.clear();
        terminal.receive(message.data(), message.size());
        return session.sent;
    }

    /// The record of an object as the pool has it.
    Bytes record_of(Id id)
    {
        const terminal::Object object = terminal.pool().find(id);
        return Bytes(object.data(), object.data() + object.size());
    }

    static Bytes selected(Id id) { return message(0x03, w(id), 1, 1); }
    static Bytes closed(Id id) { return message(0x03, w(id), 0, 0); }
    static Bytes entered(Id id, std::uint32_t value) { return message(0x05, w(id), 0xFF, d(value)); }

    Pool_builder builder;
    Session session;
    terminal::Terminal& terminal = session.terminal;
    Id number, other, variable, button, mask, other_mask, working_set;
};

} // namespace

TEST_F(Entry, OpensByATouch)
{
    EXPECT_FALSE(is_open());
    EXPECT_EQ(terminal.open_number(), none);
    const std::uint32_t revision = terminal.revision();
    EXPECT_TRUE(terminal.touch({59, 19}));
    EXPECT_EQ(session.sent, Messages{selected(number)});
    EXPECT_NE(terminal.revision(), revision);
    EXPECT_EQ(terminal.open_number(), number);
    const auto entry = terminal.entry();
    ASSERT_TRUE(entry);
    EXPECT_EQ(entry->value(), "12.3");
    EXPECT_EQ(entry->lowest(), "-5.0");
    EXPECT_EQ(entry->highest(), "20.0");
    EXPECT_EQ(entry->decimals(), 1);
}

TEST_F(Entry, ShowsTheVariableOfTheNumber)
{
    open(100);
    EXPECT_EQ(terminal.entry()->value(), "77");
    EXPECT_EQ(terminal.enter("78"), "");
    EXPECT_EQ(session.sent, (Messages{entered(other, 78), closed(other)}));
    EXPECT_EQ(terminal.pool().find(variable).u32(Field::value), 78u);
    EXPECT_EQ(terminal.pool().find(other).u32(Field::value), 5u);
}

TEST_F(Entry, TakesANumberAndCloses)
{
    open();
    const std::uint32_t revision = terminal.revision();
    EXPECT_EQ(terminal.enter(" 7,25"), "");
    EXPECT_EQ(session.sent, (Messages{entered(number, 1073), closed(number)}));
    EXPECT_FALSE(is_open());
    EXPECT_EQ(terminal.open_number(), none);
    EXPECT_NE(terminal.revision(), revision);
    EXPECT_EQ(terminal.pool().find(number).u32(Field::value), 1073u);
    open();
    EXPECT_EQ(terminal.entry()->value(), "7.3");
}

TEST_F(Entry, StaysOpenWhenItRefuses)
{
    open();
    EXPECT_EQ(terminal.enter("abc"), "the entry is not a number");
    EXPECT_EQ(terminal.enter("-5.1"), "the entry is below the lowest number, -5.0");
    EXPECT_EQ(terminal.enter("20.1"), "the entry is above the highest number, 20.0");
    EXPECT_TRUE(session.sent.empty());
    EXPECT_TRUE(is_open());
    EXPECT_EQ(terminal.pool().find(number).u32(Field::value), 1123u);
    EXPECT_EQ(terminal.enter("20"), "");
    EXPECT_EQ(session.sent, (Messages{entered(number, 1200), closed(number)}));
}

TEST_F(Entry, IsLeftWithoutANumber)
{
    open();
    EXPECT_TRUE(terminal.cancel());
    EXPECT_EQ(session.sent, (Messages{message(0x04, w(number), 0), closed(number)}));
    EXPECT_FALSE(is_open());
    EXPECT_EQ(terminal.pool().find(number).u32(Field::value), 1123u);
}

TEST_F(Entry, DoesNothingWhenThereIsNone)
{
    EXPECT_NE(terminal.enter("5"), "");
    EXPECT_FALSE(terminal.cancel());
    open();
    EXPECT_TRUE(terminal.cancel());
    session.sent.clear();
    EXPECT_NE(terminal.enter("5"), "");
    EXPECT_FALSE(terminal.cancel());
    EXPECT_TRUE(session.sent.empty());
}

TEST_F(Entry, CoversTheScreen)
{
    open();
    for (const int x : {0, 100, 200})
        EXPECT_FALSE(terminal.touch({x, 0})) << x;
    EXPECT_TRUE(session.sent.empty());
    EXPECT_EQ(terminal.open_number(), number);
}

TEST_F(Entry, OpensAndClosesBySelectingAndEscaping)
{
    EXPECT_TRUE(terminal.select_input(number, true, false));
    EXPECT_FALSE(is_open()) << "it is selected only";
    EXPECT_TRUE(terminal.select_input(number, true, true));
    EXPECT_EQ(terminal.open_number(), number);
    EXPECT_TRUE(terminal.select_input(other, true, false));
    EXPECT_EQ(terminal.open_number(), number);
    EXPECT_TRUE(terminal.escape(other));
    EXPECT_EQ(terminal.open_number(), number);
    EXPECT_TRUE(terminal.escape(number));
    EXPECT_FALSE(is_open());

    EXPECT_TRUE(terminal.select_input(number, true, true));
    session.sent.clear();
    EXPECT_TRUE(terminal.select_input(other, true, true));
    EXPECT_EQ(session.sent, (Messages{closed(number), selected(other)})) << "one at a time";
    EXPECT_EQ(terminal.open_number(), other);
    session.sent.clear();
    EXPECT_TRUE(terminal.select_input(other, true, true));
    EXPECT_EQ(session.sent, Messages{selected(other)}) << "it stays open";
    EXPECT_TRUE(terminal.select_input(other, false, false));
    EXPECT_FALSE(is_open());
}

TEST_F(Entry, FollowsWhatTheApplicationChanges)
{
    open();
    tell(message(0xA8, w(number), 0xFF, d(1050)));
    tell(message(0xAF, w(number), 8, d(1500)));
    EXPECT_EQ(terminal.entry()->value(), "5.0");
    EXPECT_EQ(terminal.entry()->highest(), "50.0");
    EXPECT_EQ(terminal.enter("50"), "");
}

TEST_F(Entry, ClosesWhenTheUnitsChange)
{
    const Bytes changes[] = {message(0xAF, w(number), 9, d(0)), message(0xAF, w(number), 10, d(0x3F800000)),
                             message(0xAF, w(number), 11, d(2))};
    for (const Bytes& change : changes) {
        open();
        const Messages answers = tell(change);
        ASSERT_EQ(answers.size(), 2u) << int{change[3]};
        EXPECT_EQ(answers[1], closed(number));
        EXPECT_FALSE(is_open());
    }
}

TEST_F(Entry, KeepsAValueThatIsShownRounded)
{
    tell(message(0xAF, w(number), 11, d(0)));
    open();
    EXPECT_EQ(terminal.entry()->value(), "12");
    EXPECT_EQ(terminal.enter("12"), "");
    EXPECT_EQ(session.sent, (Messages{entered(number, 1123), closed(number)}));
    open();
    EXPECT_EQ(terminal.enter("12.0"), "");
    EXPECT_EQ(session.sent, (Messages{entered(number, 1120), closed(number)}));
}

TEST_F(Entry, ClosesWhenTheMaskChanges)
{
    open();
    EXPECT_EQ(tell(message(0xAD, w(working_set), w(mask))).size(), 1u);
    EXPECT_TRUE(is_open()) << "it is the same mask";
    EXPECT_EQ(tell(message(0xAD, w(working_set), w(other_mask))),
              (Messages{message(0xAD, w(other_mask), 0), closed(number)}));
    EXPECT_FALSE(is_open());
}

TEST_F(Entry, ClosesWhenTheInputIsDisabled)
{
    open();
    EXPECT_EQ(tell(message(0xA1, w(other), 0)).size(), 1u);
    EXPECT_TRUE(is_open()) << "it is another one";
    EXPECT_EQ(tell(message(0xA1, w(number), 0)), (Messages{message(0xA1, w(number), 0, 0), closed(number)}));
    EXPECT_FALSE(is_open());
    EXPECT_FALSE(terminal.touch({0, 0}));

    tell(message(0xA1, w(other), 1));
    open(100);
    tell(message(0xAF, w(other), 15, d(0)));
    EXPECT_FALSE(is_open()) << "disabled by its attribute";
}

TEST_F(Entry, ClosesWhenTheInputIsReplaced)
{
    const Bytes same = record_of(number);
    open();
    EXPECT_EQ(session.load(record_of(other)), accepted);
    EXPECT_TRUE(is_open()) << "another object was replaced";
    tell(join(0x11, same));
    EXPECT_TRUE(is_open()) << "the upload has not ended";
    EXPECT_EQ(tell(message(0x12)), (Messages{accepted, closed(number)}));
    EXPECT_FALSE(is_open());
    open();
    EXPECT_EQ(tell(message(0x12)), Messages{accepted}) << "of which nothing is left for the next one";
    EXPECT_TRUE(is_open());
}

TEST_F(Entry, StaysWhenTheReplacementIsRefused)
{
    EXPECT_EQ(session.load(record_of(number)), accepted);
    open();
    EXPECT_NE(session.load(join(record_of(number), records::pointer_to(500, 501))), accepted);
    EXPECT_TRUE(is_open());
}

TEST_F(Entry, ClosesWhenTheInputBecomesSomethingElse)
{
    open();
    tell(join(0x11, records::text(number, "text")));
    EXPECT_EQ(tell(message(0x12)), Messages{accepted}) << "there is no input that could be left";
    EXPECT_FALSE(is_open());
    EXPECT_EQ(terminal.open_number(), none);
}

TEST_F(Entry, ClosesWhenThePoolGoesAway)
{
    open();
    const std::uint32_t revision = terminal.revision();
    EXPECT_TRUE(tell(message(0xFF, 1, 4)).empty());
    EXPECT_FALSE(is_open());
    EXPECT_EQ(terminal.open_number(), none);
    EXPECT_NE(terminal.revision(), revision);

    EXPECT_EQ(session.load(builder.bytes()), accepted);
    EXPECT_FALSE(is_open());
    open();
    terminal.disconnect();
    EXPECT_EQ(terminal.open_number(), none);
    EXPECT_EQ(session.load(builder.bytes()), accepted);
    EXPECT_FALSE(is_open());
}
