// What goes to the terminal when an object of a live pool is uploaded.

#include "tests/Allocations.h"
#include "tests/pool/Fake_terminal.h"
#include "tests/pool/Screen.h"
#include "vtui/comp/objects/Container_obj.h"
#include "vtui/comp/objects/N_state_pointer_obj.h"
#include "vtui/comp/objects/Output_number_obj.h"
#include "vtui/comp/objects/Output_string_obj.h"
#include "vtui/comp/objects/Rectangle_obj.h"
#include "vtui/comp/objects/String_variable_obj.h"

#include <algorithm>
#include <deque>
#include <gtest/gtest.h>
#include <initializer_list>
#include <iterator>
#include <string>
#include <vector>

namespace {

const Bytes end_of_pool = frame(0x12);

/// Which records were sent, by their ids, and where they were ended: "4 3 end".
std::string summary(const std::vector<Bytes>& messages)
{
    std::string text;
    for (const Bytes& message : messages) {
        if (!text.empty())
            text += ' ';
        if (message == end_of_pool)
            text += "end";
        else if (message.size() > 3 && message[0] == 0x11)
            text += std::to_string(Iso::read<std::uint16_t>(message.data() + 1));
        else
            text += "another message";
    }
    return text;
}

/// A field as a component has it, of three generations, beside objects that it does not show.
struct Field : Screen
{
    Field()
    {
        lists.placements[0] = {&panel, 1, 2};
        lists.placements[1] = {&toggle, 3, 4};
        root.placements_ptr = &lists;
        panel_lists.placements[0] = {&rectangle, 5, 6};
        panel_lists.placements[1] = {&string, 7, 8};
        panel.placements_ptr = &panel_lists;
        string.set_font(&font);
        string.set_variable(&variable);
        variable.format("l/ha");
        on.set_fill(&fill);
        mask.add(root, 9, 9);
        mask.add(beside, 0, 0);
        EXPECT_TRUE(pool.load(terminal));
        terminal.take_sent();
    }

    std::vector<VT::VT_obj*> all()
    {
        return {&root, &panel, &rectangle, &string, &font, &variable, &toggle, &off, &on, &fill, &beside, &mask};
    }

    C::Container_obj root;                         // 2
    C::Container_obj panel;                        // 3
    C::Rectangle_obj rectangle;                    // 4
    C::Output_string_obj string;                   // 5
    C::Font_attributes_obj font;                   // 6
    C::String_variable_obj<4> variable;            // 7
    C::Rectangle_obj off;                          // 9
    C::Rectangle_obj on;                           // 10
    C::N_state_pointer_obj<2> toggle{{&off, &on}}; // 8
    C::Fill_attributes_obj fill{1, 2};             // 11
    C::Container_obj beside;                       // 12
    C::Child_placements_array<Array_array_2> lists;
    C::Child_placements_array<Array_array_2> panel_lists;
    Fake_terminal terminal;
};

} // namespace

TEST(PoolUpload, SendsTheRecordAlone)
{
    Field field;
    field.root.upload(true);
    const Bytes record = join(w(2), 3, w(240), w(240), 0, 2, 0, w(3), w(1), w(2), w(8), w(3), w(4));
    EXPECT_EQ(field.terminal.take_sent(), (std::vector<Bytes>{join(0x11, record), end_of_pool}));
}

TEST(PoolUpload, SendsWhatHasChangedBelowAndThenTheObject)
{
    struct Step
    {
        const char* what;
        void (*change)(Field&);
        const char* sent;
    };
    const Step steps[] = {
        {"a child", [](Field& f) { f.panel.width = 7; }, "3 2 end"},
        {"a grandchild", [](Field& f) { f.rectangle.width = 7; }, "4 2 end"},
        {"its colour", [](Field& f) { f.string.background_colour = 7; }, "5 2 end"},
        {"a font", [](Field& f) { f.font.size = 7; }, "6 2 end"},
        {"a pointer", [](Field& f) { f.toggle.value = 10; }, "8 2 end"},
        {"what a pointer shows", [](Field& f) { f.off.width = 7; }, "9 2 end"},
        {"what a pointer can show", [](Field& f) { f.on.width = 7; }, "10 2 end"},
        {"something behind that", [](Field& f) { f.fill.colour = 7; }, "11 2 end"},
        {"the object", [](Field& f) { f.root.width = 7; }, "2 end"},
        {"something beside it", [](Field& f) { f.beside.width = 7; }, "2 end"},
        {"its parent", [](Field& f) { f.mask.background_colour = 7; }, "2 end"},
        {"the working set", [](Field& f) { f.working_set.selectable = 0; }, "2 end"},
        {"nothing in the end", [](Field& f) { f.panel.set_hidden(true); }, "another message 2 end"},
    };
    for (const Step& step : steps) {
        Field field;
        step.change(field);
        field.root.upload(true);
        EXPECT_EQ(summary(field.terminal.take_sent()), step.sent) << step.what;
    }
}

TEST(PoolUpload, SendsAVariablesTextThatWasWrittenWithoutACommand)
{
    Field field;
    field.variable.value.buffer[0] = 'g';
    field.variable.value.set_changed();
    field.root.upload(true);
    EXPECT_EQ(field.terminal.take_sent(),
              (std::vector<Bytes>{join(0x11, w(7), 22, w(4), "g/ha"),
                                  join(0x11, w(2), 3, w(240), w(240), 0, 2, 0, w(3), w(1), w(2), w(8), w(3), w(4)),
                                  end_of_pool}));
}

TEST(PoolUpload, SendsChildrenBeforeParentsAndOneEnd)
{
    Field field;
    for (VT::Sized_obj* object :
         std::initializer_list<VT::Sized_obj*>{&field.panel, &field.rectangle, &field.string, &field.off, &field.on})
        object->width = 7;
    field.font.size = 7;
    field.variable.value.set_changed();
    field.toggle.value = 10;
    field.fill.colour = 7;
    field.root.upload(true);
    EXPECT_EQ(summary(field.terminal.take_sent()), "4 6 7 5 3 9 11 10 8 2 end");
}

TEST(PoolUpload, SendsEachRecordOnceInHoweverManyPlacesItHangs)
{
    C::Font_attributes_obj font;
    C::Output_string_obj string;
    C::Container_obj left;
    C::Container_obj right;
    C::Container_obj root;
    C::Child_placements_array<Array_array_2> twice;
    C::Child_placements_array<Array_array_1> once;
    C::Child_placements_array<Array_array_3> lists;
    string.set_font(&font);
    twice.placements[0] = {&string, 0, 0};
    twice.placements[1] = {&string, 0, 9};
    left.placements_ptr = &twice;
    once.placements[0] = {&string, 0, 0};
    right.placements_ptr = &once;
    lists.placements[0] = {&left, 0, 0};
    lists.placements[1] = {&right, 0, 0};
    lists.placements[2] = {&left, 0, 0};
    root.placements_ptr = &lists;
    Screen screen;
    screen.mask.add(root, 0, 0);
    Fake_terminal terminal;
    ASSERT_TRUE(screen.pool.load(terminal));
    terminal.take_sent();
    string.width = 7;
    font.size = 7;
    left.width = 7;
    right.width = 7;
    root.upload(true);
    EXPECT_EQ(ids({&root, &left, &string, &font, &right}), (std::vector<Iso::Object_id>{2, 3, 4, 5, 6}));
    EXPECT_EQ(summary(terminal.take_sent()), "5 4 3 6 2 end");
}

TEST(PoolUpload, LeavesNothingToTell)
{
    Field field;
    for (VT::VT_obj* object : field.all())
        EXPECT_FALSE(object->is_changed());
    for (VT::Sized_obj* object :
         std::initializer_list<VT::Sized_obj*>{&field.root, &field.panel, &field.rectangle, &field.string, &field.on})
        object->width = 7;
    field.fill.colour = 7;
    field.root.upload(false);
    EXPECT_EQ(summary(field.terminal.take_sent()), "4 5 3 11 10 2 end");
    for (VT::VT_obj* object : field.all()) {
        EXPECT_FALSE(object->is_changed());
        object->upload(false);
    }
    EXPECT_EQ(summary(field.terminal.take_sent()), "");
    field.root.upload(true);
    EXPECT_EQ(summary(field.terminal.take_sent()), "2 end");
}

TEST(PoolUpload, LeavesWhatItDoesNotReachToBeTold)
{
    Field field;
    field.beside.width = 7;
    field.mask.background_colour = 7;
    field.root.upload(true);
    field.terminal.take_sent();
    field.mask.upload(false);
    EXPECT_EQ(summary(field.terminal.take_sent()), "12 1 end");
}

TEST(PoolUpload, IsNotNeededForAnObjectInWhichNothingChanged)
{
    Field field;
    field.rectangle.width = 7;
    field.root.upload(false); // the record of the root is as it was
    EXPECT_EQ(summary(field.terminal.take_sent()), "");
    field.panel.upload(true);
    EXPECT_EQ(summary(field.terminal.take_sent()), "4 3 end");
}

TEST(PoolUpload, OfTheWorkingSetReachesAllMasks)
{
    VT::Data_mask_obj other;
    C::Container_obj child;
    other.add(child, 0, 0);
    Screen screen;
    screen.working_set.add_mask(other);
    Fake_terminal terminal;
    ASSERT_TRUE(screen.pool.load(terminal));
    terminal.take_sent();
    child.width = 7;
    screen.working_set.upload(true);
    EXPECT_EQ(summary(terminal.take_sent()), std::to_string(child.get_id()) + " 0 end");
}

TEST(PoolUpload, EndsAtTheMessageThatTheLinkRefuses)
{
    const char* const texts[] = {
        "The link refused the record of rectangle 4", "The link refused the record of container 3",
        "The link refused the record of container 2", "The link refused the record of container 2"}; // its end
    for (std::size_t taken = 0; taken < std::size(texts); ++taken) {
        Field field;
        field.rectangle.width = 7;
        field.panel.width = 7;
        field.terminal.refuse_from = taken;
        field.root.upload(true);
        EXPECT_EQ(field.terminal.take_sent().size(), taken);
        EXPECT_FALSE(field.pool.is_live());
        const std::vector<VT::Problem> problems = field.pool.take_problems();
        ASSERT_EQ(problems.size(), 1u) << taken;
        EXPECT_EQ(problems[0].error, VT::Error::link_refused);
        EXPECT_EQ(problems[0].text, texts[taken]);

        field.terminal.refuse_from = 100;
        ASSERT_TRUE(field.pool.load(field.terminal));
        field.terminal.take_sent();
        field.root.upload(true);
        EXPECT_EQ(summary(field.terminal.take_sent()), "2 end");
    }
}

TEST(PoolUpload, EndsInALoop)
{
    C::Object_pointer_obj pointer;
    With_child<C::Container_obj> inner(&pointer);
    With_child<C::Container_obj> outer(&inner.parent);
    pointer.set_target(&outer.parent);
    Screen screen;
    screen.mask.add(outer.parent, 0, 0);
    Fake_terminal terminal;
    ASSERT_TRUE(screen.pool.load(terminal));
    EXPECT_EQ(ids({&outer.parent, &inner.parent, &pointer}), (std::vector<Iso::Object_id>{2, 3, 4}));
    terminal.take_sent();
    for (C::Container_obj* object : {&outer.parent, &inner.parent})
        object->width = 7;
    pointer.value.set_told();
    outer.parent.upload(true);
    EXPECT_EQ(summary(terminal.take_sent()), "3 2 end");
    outer.parent.width = 8;
    inner.parent.upload(true); // which shows the outer one
    EXPECT_EQ(summary(terminal.take_sent()), "2 3 end");
}

TEST(PoolUpload, LeavesOutWhatThePoolDoesNotHave)
{
    C::Rectangle_obj late;
    C::Rectangle_obj foreign;
    C::Container_obj beside;
    Screen other;
    for (VT::VT_obj* object : std::initializer_list<VT::VT_obj*>{&beside, &foreign})
        other.pool.add(*object);
    ASSERT_TRUE(other.pool.prepare());
    EXPECT_EQ(foreign.get_id(), 3); // as the field's panel
    Field field;
    field.lists.placements[0].ref = &late;
    field.lists.placements[1].ref = &foreign;
    foreign.width = 7;
    late.width = 7;
    field.panel.width = 7; // no longer shown
    field.root.upload(true);
    EXPECT_EQ(summary(field.terminal.take_sent()), "2 end");
    EXPECT_TRUE(foreign.is_changed());

    field.lists.placements[1].ref = nullptr;
    field.root.upload(true);
    EXPECT_EQ(summary(field.terminal.take_sent()), "2 end");
}

TEST(PoolUpload, AllocatesNothing)
{
    class Drain final : public Fake_terminal
    {
      public:
        bool send(const std::uint8_t* message, std::size_t size) override
        {
            ++count;
            return quiet || Fake_terminal::send(message, size);
        }
        bool quiet{false};
        std::size_t count{0};
    } terminal;
    Screen screen;
    std::deque<C::Rectangle_obj> rectangles(300);
    VT::Data_mask_obj other;
    for (std::size_t i = 0; i < rectangles.size(); ++i)
        (i < 150 ? screen.mask : other).add(rectangles[i], 0, 0);
    screen.working_set.add_mask(other);
    ASSERT_TRUE(screen.pool.load(terminal));
    terminal.quiet = true;
    terminal.count = 0;
    for (C::Rectangle_obj& rectangle : rectangles)
        rectangle.width = 7;
    const std::size_t before = allocations();
    screen.working_set.upload(true);
    for (C::Rectangle_obj& rectangle : rectangles)
        rectangle.width = 8;
    screen.mask.upload(true);
    EXPECT_EQ(allocations(), before);
    EXPECT_EQ(terminal.count, 300u + 2 + 150 + 2);
    EXPECT_TRUE(screen.pool.is_live());
}
