#include "tests/Allocations.h"
#include "tests/pool/Fake_terminal.h"
#include "tests/pool/Screen.h"
#include "vtui/comp/objects/Button_obj.h"
#include "vtui/comp/objects/Container_obj.h"
#include "vtui/comp/objects/Input_number_obj.h"
#include "vtui/comp/objects/Key_obj.h"
#include "vtui/comp/objects/N_state_pointer_obj.h"
#include "vtui/comp/objects/Output_number_obj.h"
#include "vtui/comp/objects/Output_string_obj.h"
#include "vtui/comp/objects/Picture_graphic_obj.h"
#include "vtui/comp/objects/Rectangle_obj.h"
#include "vtui/comp/objects/String_variable_obj.h"

#include <functional>
#include <gtest/gtest.h>
#include <iterator>
#include <string>
#include <utility>
#include <vector>

using VT::Error;

namespace {

/// One of everything that has a change command, with ids in the order of the members.
struct Panel : Screen
{
    Panel()
    {
        twice.placements[0] = {&rectangle, 1, 2};
        twice.placements[1] = {&rectangle, 3, 4};
        doubled.placements_ptr = &twice;
        parent.placements_ptr = &child;
        child.placements[0] = {&rectangle, 5, 6};
        working_set.add_mask(alarm);
        for (VT::VT_obj* object :
             std::initializer_list<VT::VT_obj*>{&rectangle, &parent, &doubled, &button, &key, &input, &number, &string,
                                                &variable, &toggle, &font, &keys})
            pool.add(*object);
        string.set_font(&font);
        input.set_font(&font);
        number.set_font(&font);
    }

    void load()
    {
        ASSERT_TRUE(pool.load(terminal));
        terminal.take_sent();
    }

    VT::Alarm_mask_obj alarm;                                // 2
    C::Rectangle_obj rectangle;                              // 3
    C::Container_obj parent;                                 // 4
    C::Container_obj doubled;                                // 5
    C::Button_obj button;                                    // 6
    C::Key_obj key;                                          // 7
    C::Input_number_obj input;                               // 8
    C::Font_attributes_obj font;                             // 9, found through the input
    C::Output_number_obj number;                             // 10
    C::Output_string_obj string;                             // 11
    C::String_variable_obj<4> variable;                      // 12
    C::N_state_pointer_obj<2> toggle{{&rectangle, &parent}}; // 13
    VT::Soft_key_mask_obj keys;                              // 14
    C::Child_placements_array<Array_array_1> child;
    C::Child_placements_array<Array_array_2> twice;
    Fake_terminal terminal;
};

struct Change
{
    const char* what;
    std::function<void(Panel&)> make;
    std::vector<Bytes> messages;
};

const std::vector<Change>& changes()
{
    static const std::vector<Change> all{
        {"hide", [](Panel& p) { p.parent.set_hidden(true); }, {frame(0xA0, w(4), 0)}},
        {"show", [](Panel& p) { p.parent.set_hidden(false); }, {frame(0xA0, w(4), 1)}},
        {"disable a button", [](Panel& p) { p.button.set_enabled(false); }, {frame(0xA1, w(6), 0)}},
        {"enable an input", [](Panel& p) { p.input.set_enabled(true); }, {frame(0xA1, w(8), 1)}},
        {"size", [](Panel& p) { p.rectangle.change_size(300, 20); }, {frame(0xA6, w(3), w(300), w(20))}},
        {"background of a mask", [](Panel& p) { p.mask.set_background_colour(9); }, {frame(0xA7, w(1), 9)}},
        {"background of a key", [](Panel& p) { p.key.set_background_colour(8); }, {frame(0xA7, w(7), 8)}},
        {"background of a button", [](Panel& p) { p.button.set_background_colour(7); }, {frame(0xA7, w(6), 7)}},
        {"background of a field", [](Panel& p) { p.number.set_background_colour(6); }, {frame(0xA7, w(10), 6)}},
        {"output number", [](Panel& p) { p.number.set_value(70000); }, {frame(0xA8, w(10), 0xFF, d(70000))}},
        {"input number", [](Panel& p) { p.input.set_value(5); }, {frame(0xA8, w(8), 0xFF, d(5))}},
        {"state", [](Panel& p) { p.toggle.set_state(1); }, {frame(0xA8, w(13), 0xFF, d(4))}},
        {"target", [](Panel& p) { p.toggle.set_target(nullptr); }, {frame(0xA8, w(13), 0xFF, d(0xFFFF))}},
        {"active mask", [](Panel& p) { p.working_set.set_active_mask(p.alarm); }, {frame(0xAD, w(0), w(2))}},
        {"keys of a data mask", [](Panel& p) { p.mask.set_soft_key_mask(&p.keys); }, {frame(0xAE, 1, w(1), w(14))}},
        {"keys of an alarm mask", [](Panel& p) { p.alarm.set_soft_key_mask(&p.keys); }, {frame(0xAE, 2, w(2), w(14))}},
        {"no keys", [](Panel& p) { p.mask.set_soft_key_mask(nullptr); }, {frame(0xAE, 1, w(1), w(0xFFFF))}},
        {"font", [](Panel& p) { p.string.set_font(nullptr); }, {frame(0xAF, w(11), 4, d(0xFFFF))}},
        {"variable", [](Panel& p) { p.string.set_variable(&p.variable); }, {frame(0xAF, w(11), 6, d(12))}},
        {"a real attribute",
         [](Panel& p) { p.number.change_attribute("scale", 0.5); },
         {frame(0xAF, w(10), 8, d(0x3F000000))}},
        {"an attribute beyond its range", [](Panel& p) { p.number.change_attribute("format", 2); }, {}},
        {"text", [](Panel& p) { p.variable.format("%d", 17); }, {frame(0xB3, w(12), w(2), "17")}},
        {"a text of its whole length",
         [](Panel& p) { p.variable.format("%d", 170000); },
         {join(0xB3, w(12), w(4), "1700")}},
        {"place", [](Panel& p) { p.parent.set_child_location(0, -7, 8); }, {join(0xB4, w(4), w(3), w(-7), w(8))}},
    };
    return all;
}

/// Takes everything and remembers nothing.
class Drain final : public Fake_terminal
{
  public:
    bool send(const std::uint8_t* message, std::size_t size) override
    {
        return quiet || Fake_terminal::send(message, size);
    }

    bool quiet{false};
};

} // namespace

TEST(PoolLive, SendsEachChangeAsItsCommand)
{
    for (const Change& change : changes()) {
        Panel panel;
        panel.load();
        change.make(panel);
        EXPECT_EQ(panel.terminal.take_sent(), change.messages) << change.what;
        EXPECT_TRUE(panel.pool.is_live());
    }
}

TEST(PoolLive, SendsNothingBefore)
{
    for (const Change& change : changes()) {
        Panel panel;
        change.make(panel);
        ASSERT_TRUE(panel.pool.prepare());
        change.make(panel);
        panel.rectangle.upload(true);
        EXPECT_TRUE(panel.terminal.sent.empty()) << change.what;
    }
}

TEST(PoolLive, KeepsTheOrderOfChangesAndRecords)
{
    Panel panel;
    panel.load();
    panel.parent.set_hidden(true);
    panel.rectangle.upload(true);
    panel.parent.set_hidden(false);
    EXPECT_EQ(panel.terminal.take_sent(),
              (std::vector<Bytes>{frame(0xA0, w(4), 0), join(0x11, w(3), 14, w(0xFFFF), w(0), w(0), 0, w(0xFFFF), 0),
                                  frame(0x12), frame(0xA0, w(4), 1)}));
}

TEST(PoolLive, SendsTheRecordWhereTwoChildrenCannotBeToldApart)
{
    Panel panel;
    panel.load();
    panel.doubled.set_child_location(1, 9, 10);
    EXPECT_EQ(panel.terminal.take_sent(),
              (std::vector<Bytes>{join(0x11, w(5), 3, w(240), w(240), 0, 2, 0, w(3), w(1), w(2), w(3), w(9), w(10)),
                                  frame(0x12)}));
}

TEST(PoolLive, UploadsWhatHasChangedOnly)
{
    Panel panel;
    panel.load();
    panel.rectangle.upload(false);
    EXPECT_TRUE(panel.terminal.take_sent().empty());
    panel.rectangle.width = 4;
    panel.rectangle.upload(false);
    EXPECT_EQ(panel.terminal.take_sent().size(), 2u);
    panel.rectangle.upload(false);
    EXPECT_TRUE(panel.terminal.take_sent().empty());
}

TEST(PoolLive, StillUploadsAChangeThatWasOnlyWrittenToAFile)
{
    Panel panel;
    panel.load();
    panel.rectangle.width = 4;
    Bytes records;
    ASSERT_TRUE(panel.pool.serialise(records));
    panel.rectangle.upload(false);
    EXPECT_EQ(panel.terminal.take_sent().size(), 2u);
}

TEST(PoolLive, UploadsAMaskAsItWasLoadedWhileNewChildrenWait)
{
    Panel panel;
    panel.mask.add(panel.rectangle, 1, 2);
    panel.load();
    for (int i = 0; i < 20; ++i)
        panel.mask.add(panel.parent, 3, 4); // takes part from the next prepare() on
    panel.mask.upload(true);
    EXPECT_EQ(panel.terminal.take_sent(),
              (std::vector<Bytes>{join(0x11, w(1), 1, 0, w(0xFFFF), 1, 0, w(2), w(1), w(2)), frame(0x12)}));
}

TEST(PoolLive, SendsALongRecordInOneMessage)
{
    Bytes pixels(3000, 0x55);
    C::Picture_graphic_obj picture(1, 1, 1, 2, 0, 0, 3000, pixels.data());
    Screen screen;
    screen.pool.add(picture);
    Fake_terminal terminal;
    terminal.longest = 1 + 17 + 3000;
    ASSERT_TRUE(screen.pool.load(terminal));
    terminal.take_sent();
    picture.upload(true);
    EXPECT_EQ(terminal.take_sent(),
              (std::vector<Bytes>{join(0x11, w(2), 20, w(1), w(1), w(1), 2, 0, 0, d(3000), 0, pixels), frame(0x12)}));
}

TEST(PoolLive, EndsWithARecordThatHasBecomeTooLongForTheLink)
{
    Panel panel;
    panel.load();
    panel.terminal.longest = 1 + 12;
    panel.rectangle.upload(true); // 13 bytes
    EXPECT_EQ(panel.terminal.take_sent(), std::vector<Bytes>());
    EXPECT_FALSE(panel.pool.is_live());
    const std::vector<VT::Problem> problems = panel.pool.take_problems();
    ASSERT_EQ(problems.size(), 1u);
    EXPECT_EQ(problems[0].error, Error::too_long_record);
    EXPECT_EQ(problems[0].text, "rectangle 3 has a record of 13 bytes; the link's longest message has room for 12");

    panel.terminal.longest = 1785;
    panel.load();
    panel.terminal.longest = 1 + 13;
    panel.rectangle.upload(true);
    EXPECT_EQ(panel.terminal.take_sent().size(), 2u);
}

TEST(PoolLive, EndsWhenTheLinkRefusesAMessage)
{
    const std::pair<std::size_t, const char*> steps[] = {{0, "The link refused the record of rectangle 3"},
                                                         {1, "The link refused the record of rectangle 3"},
                                                         {2, "The link refused Change Size"}};
    for (const auto& [messages, text] : steps) {
        Panel panel;
        panel.load();
        panel.terminal.refuse_from = messages;
        panel.rectangle.upload(true);
        panel.rectangle.change_size(1, 2);
        panel.rectangle.change_size(3, 4);
        EXPECT_FALSE(panel.pool.is_live());
        const std::vector<VT::Problem> problems = panel.pool.take_problems();
        ASSERT_EQ(problems.size(), 1u);
        EXPECT_EQ(problems[0].error, Error::link_refused);
        EXPECT_EQ(problems[0].text, text);
        EXPECT_EQ(panel.rectangle.width, 3);
        EXPECT_TRUE(panel.pool.take_problems().empty());
    }
}

TEST(PoolLive, EndsWhenTheApplicationSaysSo)
{
    Panel panel;
    panel.load();
    panel.pool.disconnect();
    EXPECT_FALSE(panel.pool.is_live());
    panel.parent.set_hidden(true);
    EXPECT_TRUE(panel.terminal.sent.empty());
    EXPECT_FALSE(panel.pool.maintain());
}

TEST(PoolLive, AllocatesNothing)
{
    Bytes pixels(2000);
    C::Picture_graphic_obj picture(1, 1, 1, 2, 0, 0, 2000, pixels.data());
    std::string text(3000, 'x');
    VT::String_variable_obj long_text(Iso::null_id, nullptr, 3000, text.data());
    Panel panel;
    panel.pool.add(picture);
    panel.pool.add(long_text);
    Drain terminal;
    ASSERT_TRUE(panel.pool.load(terminal));
    terminal.quiet = true;
    const std::size_t before = allocations();
    for (int i = 0; i < 10; ++i) {
        panel.parent.set_hidden(i % 2);
        panel.doubled.set_child_location(1, 9, static_cast<std::int16_t>(i));
        panel.number.set_value(7);
        panel.variable.format("%d", i);
        panel.toggle.set_state(1);
        picture.upload(true);
        long_text.set_string(0, text.data(), 3000);
        panel.string.set_font(&panel.font);
        panel.pool.maintain();
    }
    EXPECT_EQ(allocations(), before);
    EXPECT_TRUE(panel.pool.is_live());
}

TEST(PoolLive, HasRoomForItsLargestRecordWhereverThatStands)
{
    Bytes pixels(2000);
    C::Picture_graphic_obj picture(1, 1, 1, 2, 0, 0, 2000, pixels.data());
    for (const bool first : {true, false}) {
        Screen screen;
        C::Rectangle_obj rectangle;
        VT::VT_obj* objects[] = {&picture, &rectangle};
        if (!first)
            std::swap(objects[0], objects[1]);
        for (VT::VT_obj* const object : objects)
            screen.pool.add(*object);
        Drain terminal;
        ASSERT_TRUE(screen.pool.load(terminal));
        terminal.quiet = true;
        const std::size_t before = allocations();
        picture.upload(true);
        EXPECT_EQ(allocations(), before);
        EXPECT_TRUE(screen.pool.is_live());
    }
}

TEST(PoolReceiving, NotesWhatTheOperatorEntered)
{
    Panel panel;
    panel.load();
    const Bytes entered = frame(0x05, w(8), 0xFF, d(0xFFFFFFF0));
    const VT::Terminal_message message = panel.pool.receive(entered.data(), entered.size());
    ASSERT_TRUE(std::holds_alternative<VT::VT_change_numeric_value_event>(message));
    EXPECT_EQ(panel.input.value, 0xFFFFFFF0);
    panel.input.upload(false); // the terminal shows it already
    EXPECT_TRUE(panel.terminal.take_sent().empty());

    const Bytes elsewhere = frame(0x05, w(3), 0xFF, d(1));
    EXPECT_TRUE(std::holds_alternative<VT::VT_change_numeric_value_event>(
        panel.pool.receive(elsewhere.data(), elsewhere.size())));
}

TEST(PoolReceiving, LeavesAnInputThatShowsAVariableAlone)
{
    Panel panel;
    panel.input.value = 4;
    panel.input.variable_reference = 12;
    panel.load();
    const Bytes entered = frame(0x05, w(8), 0xFF, d(5)); // is the variable's now
    panel.pool.receive(entered.data(), entered.size());
    EXPECT_EQ(panel.input.value, 4U);
}

TEST(PoolReceiving, KeepsRefusedCommandsWithTheirObjects)
{
    Panel panel;
    panel.number.set_name("rate");
    panel.load();
    const Bytes responses[] = {
        frame(0xA8, w(10), 2, d(5)),             // of rate
        frame(0xA8, w(10), 0, d(5)),             // carried out
        frame(0xB3, w(0xFFFF), w(12), 4),        // of the variable
        frame(0xA6, w(99), 1),                   // of nothing
        frame(0x12, 1, w(4), w(3), 1),           // a record
        frame(0x12, 0, w(0xFFFF), w(0xFFFF), 0), // accepted
    };
    for (const Bytes& response : responses)
        panel.pool.receive(response.data(), response.size());
    const std::vector<VT::Problem> problems = panel.pool.take_problems();
    ASSERT_EQ(problems.size(), 4u);
    EXPECT_EQ(problems[0].error, Error::rejected_command);
    EXPECT_EQ(problems[0].object, "rate");
    EXPECT_EQ(problems[0].id, 10);
    EXPECT_EQ(problems[0].text,
              "The terminal refused Change Numeric Value of output number 'rate' (10) with error bits 2");
    EXPECT_EQ(problems[1].text, "The terminal refused Change String Value of string variable 12 with error bits 4");
    EXPECT_EQ(problems[2].text, "The terminal refused Change Size of object 99 (not in the pool) with error bits 1");
    EXPECT_EQ(problems[3].error, Error::rejected_pool);
    EXPECT_EQ(problems[3].text, "The terminal rejected the pool with error code 1: rectangle 3 in container 4");
    EXPECT_TRUE(panel.pool.is_live());
}

TEST(PoolReceiving, KeepsFunctionsThatTheTerminalDoesNotKnow)
{
    const std::pair<int, const char*> functions[] = {
        {0x11, "Object Pool Transfer"},
        {0x12, "End of Object Pool"},
        {0xA0, "Hide/Show"},
        {0xA1, "Enable/Disable"},
        {0xA5, "Change Child Location"},
        {0xA6, "Change Size"},
        {0xA7, "Change Background Colour"},
        {0xA8, "Change Numeric Value"},
        {0xAD, "Change Active Mask"},
        {0xAE, "Change Soft Key Mask"},
        {0xAF, "Change Attribute"},
        {0xB3, "Change String Value"},
        {0xB4, "Change Child Position"},
        {0xC0, "Get Memory"},
        {0xC7, "Get Hardware"},
        {0xFF, "Working Set Maintenance"},
        {0x77, "function 119"},
    };
    Panel panel;
    panel.load();
    for (const auto& [function, name] : functions) {
        say(panel.pool, frame(0xFD, function));
        const std::vector<VT::Problem> problems = panel.pool.take_problems();
        ASSERT_EQ(problems.size(), 1u);
        EXPECT_EQ(problems[0].error, Error::rejected_command);
        EXPECT_EQ(problems[0].id, Iso::null_id);
        EXPECT_EQ(problems[0].text, std::string("The terminal does not know ") + name);
    }
    EXPECT_TRUE(panel.pool.is_live());
}

TEST(PoolReceiving, CallsAnObjectWithoutANameByItsClass)
{
    const char* const names[] = {
        "working set",
        "data mask",
        "alarm mask",
        "container",
        "soft key mask",
        "key",
        "button",
        "input boolean",
        "input string",
        "input number",
        "input list",
        "output string",
        "output number",
        "line",
        "rectangle",
        "ellipse",
        "polygon",
        "object",
        "object",
        "object",
        "picture graphic",
        "number variable",
        "string variable",
        "font attributes",
        "line attributes",
        "fill attributes",
        "input attributes",
        "object pointer",
        "macro",
        "object",
    };
    class Anything final : public VT::VT_obj
    {
      public:
        explicit Anything(std::size_t type) : VT_obj(NULL_ID, nullptr, static_cast<Iso::Object_type>(type)) {}
        void visit(VT::Attribute_visitor&) override {}
    };
    for (std::size_t type = 1; type < std::size(names); ++type) {
        Anything object(type);
        Screen screen;
        screen.pool.add(object);
        ASSERT_TRUE(screen.pool.prepare());
        say(screen.pool, frame(0xA6, w(2), 1));
        const std::vector<VT::Problem> problems = screen.pool.take_problems();
        ASSERT_EQ(problems.size(), 1u);
        EXPECT_EQ(problems[0].text,
                  std::string("The terminal refused Change Size of ") + names[type] + " 2 with error bits 1");
    }
}

TEST(PoolReceiving, KeepsTheFirstProblemsOfAnApplicationThatNeverAsks)
{
    Panel panel;
    panel.load();
    for (std::uint8_t i = 0; i < 200; ++i) {
        const Bytes refused = frame(0xA8, w(10), i == 0 ? 2 : 4, d(5));
        panel.pool.receive(refused.data(), refused.size());
    }
    const std::vector<VT::Problem> problems = panel.pool.take_problems();
    ASSERT_EQ(problems.size(), VT::Pool::most_problems);
    EXPECT_EQ(problems.front().text.back(), '2');
    EXPECT_EQ(problems.back().text.back(), '4');
}
