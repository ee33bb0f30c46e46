// Which component an event reaches.

#include "tests/pool/Listener.h"

#include <algorithm>
#include <deque>
#include <gtest/gtest.h>
#include <iterator>
#include <new>
#include <string>
#include <utility>
#include <vector>

using Lines = Listener::Lines;

namespace {

const Lines nothing;

/// A component as the first member of another: both have one address.
struct Around_listener
{
    void handle_event(const VT::Button_activation_event& event) { outer.handle_event(event); }

    Button_listener inner;
    Control button;
    Listener outer;
};

struct Takes_numbers
{
    void handle_event(const VT::VT_change_numeric_value_event&) { ++heard; }
    int heard{0};
};

/// Adds nothing to the size of what it contains.
struct Skin
{
    void handle_event(const VT::Button_activation_event&) { ++inner.count; }

    struct Counter
    {
        void handle_event(const VT::Button_activation_event&) { count += 100; }
        Control button;
        int count{0};
    } inner;
};

} // namespace

TEST(PoolRoutes, LeadToTheOneInWhoseMemoryTheObjectLies)
{
    struct Tight // begins with its control, and its neighbour's begins where it ends
    {
        void handle_event(const VT::Button_activation_event&) { ++heard; }
        Control button;
        int heard{0};
    } row[3];
    Screen screen;
    prepare(screen, row[0].button, row[1].button, row[2].button);
    screen.pool.route(row[1]);
    for (const Tight& tight : row)
        release(screen.pool, tight.button);
    EXPECT_EQ(row[0].heard, 0);
    EXPECT_EQ(row[1].heard, 1);
    EXPECT_EQ(row[2].heard, 0);

    struct Ends_with_it : Listener
    {
        std::uint64_t something_else[4]{};
        Control button;
    } last;
    Screen another;
    prepare(another, last.button);
    another.pool.route(last);
    release(another.pool, last.button);
    EXPECT_EQ(last.take_heard(), Lines{released(last.button)});
}

TEST(PoolRoutes, LeadFromControlsInMemoryThatTheComponentKeepsElsewhere)
{
    struct List : Listener
    {
        std::pair<const void*, std::size_t> outlying_controls() const
        {
            return {controls.data(), controls.size() * sizeof(Control)};
        }
        Control own;
        std::vector<Control> controls{3};
    };
    struct Page : Listener
    {
        List list;
    } page;
    std::vector<Control>& controls = page.list.controls;
    Screen screen;
    prepare(screen, page.list.own, controls[0], controls[1], controls[2]);
    screen.pool.route(page);
    release(screen.pool, controls[1]);
    EXPECT_EQ(page.take_heard(), nothing) << "the list has not been routed";
    screen.pool.route(page.list);
    for (const Control& control : controls) {
        release(screen.pool, control);
        EXPECT_EQ(page.list.take_heard(), Lines{released(control)});
    }
    release(screen.pool, page.list.own);
    EXPECT_EQ(page.list.take_heard(), Lines{released(page.list.own)});
    Units_man units;
    screen.pool.announce(units);
    EXPECT_EQ(page.list.take_heard(), Lines{"units"}) << "once, although it has two pieces of memory";
    EXPECT_TRUE(screen.pool.unroute(page.list));
    release(screen.pool, controls[1]);
    EXPECT_EQ(page.list.take_heard(), nothing);
}

TEST(PoolRoutes, LeadToTheSmallerOfTwoThatNameTheSameMemoryElsewhere)
{
    struct List : Listener
    {
        std::pair<const void*, std::size_t> outlying_controls()
        {
            return {controls.data(), controls.size() * sizeof(Control)};
        }
        std::vector<Control> controls{2};
    };
    struct Page : Listener
    {
        auto outlying_controls() { return list.outlying_controls(); }
        List list;
    };
    for (const bool page_first : {false, true}) {
        Page page;
        std::vector<Control>& controls = page.list.controls;
        Screen screen;
        prepare(screen, controls[0], controls[1]);
        if (page_first)
            screen.pool.route(page);
        screen.pool.route(page.list);
        if (!page_first)
            screen.pool.route(page);
        release(screen.pool, controls[1]);
        EXPECT_EQ(page.list.take_heard(), Lines{released(controls[1])});
        EXPECT_EQ(page.take_heard(), nothing);
    }
}

TEST(PoolRoutes, LeadToAComponentThatIsAControlItself)
{
    struct Own_button : VT::VT_obj
    {
        Own_button() : VT_obj(NULL_ID, nullptr, Iso::Object_type::button) {}
        void visit(VT::Attribute_visitor&) override {}
        void handle_event(const VT::Button_activation_event& event) { listener.handle_event(event); }
        Listener listener;
    } button;
    Screen screen;
    prepare(screen, button);
    screen.pool.route(button);
    release(screen.pool, button);
    EXPECT_EQ(button.listener.take_heard(), Lines{released(button)});
}

TEST(PoolRoutes, LeadToTheInnermostOfThreeInWhateverOrderTheyCame)
{
    struct Outer : Listener
    {
        Control before;
        struct Middle : Listener
        {
            Control before;
            Button_listener inner;
            Control after;
        } middle;
        Control after;
    };
    enum { outer, middle, inner };
    int order[] = {outer, middle, inner};
    do {
        Outer o;
        Screen screen;
        prepare(screen, o.before, o.middle.before, o.middle.inner.button, o.middle.after, o.after);
        for (const int which : order) {
            if (which == outer)
                screen.pool.route(o);
            else if (which == middle)
                screen.pool.route(o.middle);
            else
                screen.pool.route(o.middle.inner);
        }
        for (const Control* control : {&o.before, &o.middle.before, &o.middle.inner.button, &o.middle.after, &o.after})
            release(screen.pool, *control);
        EXPECT_EQ(o.take_heard(), (Lines{released(o.before), released(o.after)}));
        EXPECT_EQ(o.middle.take_heard(), (Lines{released(o.middle.before), released(o.middle.after)}));
        EXPECT_EQ(o.middle.inner.take_heard(), Lines{released(o.middle.inner.button)});
    } while (std::next_permutation(std::begin(order), std::end(order)));
}

TEST(PoolRoutes, LeadToTheInnermostThatTakesSuchEvents)
{
    struct Outer : Listener
    {
        struct Middle
        {
            void handle_event(const VT::Esc_event&) { ++heard; }
            struct Inner
            {
                void handle_event(const VT::Button_activation_event&) { ++heard; }
                Control control;
                int heard{0};
            } inner;
            int heard{0};
        } middle;
    } outer;
    Screen screen;
    prepare(screen, outer.middle.inner.control);
    screen.pool.route(outer);
    screen.pool.route(outer.middle);
    screen.pool.route(outer.middle.inner);
    const auto say_all = [&] {
        const Bytes id = w(outer.middle.inner.control.get_id());
        for (const Bytes& message : {frame(0x01, 0, id, w(1), 7), frame(0x04, id, 16), frame(0x05, id, 0xFF, d(3))})
            say(screen.pool, message);
    };
    say_all();
    EXPECT_EQ(outer.middle.inner.heard, 1);
    EXPECT_EQ(outer.middle.heard, 1);
    EXPECT_EQ(outer.take_heard(), Lines{"number 2 3"});

    Takes_numbers elsewhere;
    screen.pool.route(elsewhere, outer.middle.inner.control);
    say_all();
    EXPECT_EQ(elsewhere.heard, 1);
    EXPECT_EQ(outer.middle.inner.heard, 2);
    EXPECT_EQ(outer.middle.heard, 2);
    EXPECT_EQ(outer.take_heard(), nothing);

    screen.pool.unroute(outer.middle);
    say_all();
    EXPECT_EQ(elsewhere.heard, 2);
    EXPECT_EQ(outer.middle.inner.heard, 3);
    EXPECT_EQ(outer.take_heard(), Lines{"esc 2 16"});
}

TEST(PoolRoutes, LeadFromOneMemberPastAnother)
{
    struct Row
    {
        struct Outer : Listener
        {
            Control before;
            Button_listener first;
            Control between;
            struct Last : Takes_numbers
            {
                Control button;
            } last;
        } outer;
        Control alone;
    } row;
    Row::Outer& outer = row.outer;
    Screen screen;
    prepare(screen, outer.before, outer.first.button, outer.between, outer.last.button, row.alone);
    screen.pool.route(outer.last);
    screen.pool.route(outer);
    screen.pool.route(outer.first);
    for (const Control* control : {&outer.before, &outer.first.button, &outer.between, &outer.last.button, &row.alone})
        release(screen.pool, *control);
    EXPECT_EQ(outer.take_heard(),
              (Lines{released(outer.before), released(outer.between), released(outer.last.button)}));
    EXPECT_EQ(outer.first.take_heard(), Lines{released(outer.first.button)});
}

TEST(PoolRoutes, LeadNowhereFromAnObjectOfWhichTheyHaveNotHeard)
{
    Button_listener listener;
    VT::Routes routes;
    routes.add(listener);
    VT::Button_activation_event event;
    routes.deliver(7, &event);
    EXPECT_EQ(listener.take_heard(), nothing);
}

TEST(PoolRoutes, DoNotTakeOneMemberForAnotherBesideIt)
{
    struct Outer
    {
        Button_listener first;
        struct Second : Takes_numbers
        {
            Control button;
        } second;
    } both;
    Screen screen;
    prepare(screen, both.first.button, both.second.button);
    screen.pool.route(both.first);
    screen.pool.route(both.second);
    release(screen.pool, both.second.button); // takes no such events, and nothing is around it
    EXPECT_EQ(both.first.take_heard(), nothing);
}

TEST(PoolRoutes, ForgetTheMemoryOfComponentsThatAreGone)
{
    struct Large : Listener
    {
        Control controls[10];
    };
    alignas(Large) unsigned char memory[2 * sizeof(Large)];
    Large& gone = *new (memory + sizeof(Button_listener) / 2 / alignof(Large) * alignof(Large)) Large;
    Listener gone_too;
    Screen screen;
    prepare(screen);
    screen.pool.route(gone_too);
    screen.pool.route(gone);
    screen.pool.unroute(gone_too);
    screen.pool.unroute(gone);
    gone.~Large();
    Button_listener& front = *new (memory) Button_listener;
    Control& behind = *new (memory + sizeof(Large) / 2 / alignof(Large) * alignof(Large)) Control;
    prepare(screen, front.button, behind);
    screen.pool.route(front);
    release(screen.pool, front.button);
    release(screen.pool, behind);
    EXPECT_EQ(front.take_heard(), Lines{released(front.button)});
    behind.~Control();
    front.~Button_listener();
}

TEST(PoolRoutes, TellAComponentFromItsFirstMember)
{
    Around_listener component;
    ASSERT_EQ(static_cast<void*>(&component), &component.inner);
    for (const bool inner_first : {false, true}) {
        Screen screen;
        prepare(screen, component.inner.button, component.button);
        if (inner_first)
            screen.pool.route(component.inner);
        screen.pool.route(component);
        if (!inner_first)
            screen.pool.route(component.inner);
        release(screen.pool, component.inner.button);
        release(screen.pool, component.button);
        EXPECT_EQ(component.inner.take_heard(), Lines{released(component.inner.button)});
        EXPECT_EQ(component.outer.take_heard(), Lines{released(component.button)});
    }
}

TEST(PoolRoutes, LeadToTheLastOfTwoThatFillTheSameMemory)
{
    static_assert(sizeof(Skin) == sizeof(Skin::Counter)); // nothing tells them apart
    std::deque<Skin> skins(50);
    Screen screen;
    for (Skin& skin : skins) {
        screen.pool.add(skin.inner.button);
        screen.pool.route(skin);
    }
    prepare(screen);
    for (Skin& skin : skins)
        screen.pool.route(skin.inner);
    for (const Skin& skin : skins) {
        release(screen.pool, skin.inner.button);
        EXPECT_EQ(skin.inner.count, 100);
    }
    for (Skin& skin : skins)
        screen.pool.unroute(skin.inner);
    for (const Skin& skin : skins) {
        release(screen.pool, skin.inner.button);
        EXPECT_EQ(skin.inner.count, 101);
    }
}

TEST(PoolRoutes, LeadFromAControlThatLiesElsewhere)
{
    Control near;
    Control far;
    Listener listener;
    Screen screen;
    prepare(screen, near, far);
    screen.pool.route(listener, far);
    release(screen.pool, near);
    EXPECT_EQ(listener.take_heard(), Lines{});
    release(screen.pool, far);
    EXPECT_EQ(listener.take_heard(), Lines{released(far)});
}

TEST(PoolRoutes, LeadFromAControlToTheOneItWasGivenToRatherThanWhereItLies)
{
    for (const bool given_first : {false, true}) {
        Button_listener owner;
        Listener page;
        Screen screen;
        prepare(screen, owner.button);
        if (given_first)
            screen.pool.route(page, owner.button);
        screen.pool.route(owner);
        if (!given_first)
            screen.pool.route(page, owner.button);
        release(screen.pool, owner.button);
        EXPECT_EQ(page.take_heard(), Lines{released(owner.button)});
        EXPECT_EQ(owner.take_heard(), Lines{});
    }
}

TEST(PoolRoutes, LeadFromAComponentsFirstControlAndFromItsOthers)
{
    struct Page
    {
        void handle_event(const VT::Button_activation_event& event) { heard.push_back(event.object_id); }
        Control first;
        Control second;
        std::vector<int> heard;
    };
    for (const bool whole_first : {true, false}) {
        Page page;
        Screen screen;
        prepare(screen, page.first, page.second);
        if (whole_first)
            screen.pool.route(page);
        screen.pool.route(page, page.first);
        if (!whole_first)
            screen.pool.route(page);
        release(screen.pool, page.first);
        release(screen.pool, page.second);
        EXPECT_EQ(page.heard, (std::vector<int>{2, 3})) << whole_first;
    }
}

TEST(PoolRoutes, LeadFromAControlAtTheAddressOfAllToTheOneItWasGivenTo)
{
    Skin skin;
    ASSERT_EQ(static_cast<void*>(&skin), &skin.inner.button);
    Screen screen;
    prepare(screen, skin.inner.button);
    screen.pool.route(skin);
    screen.pool.route(skin.inner);
    screen.pool.route(skin, skin.inner.button);
    release(screen.pool, skin.inner.button);
    EXPECT_EQ(skin.inner.count, 1);
}

TEST(PoolRoutes, LeadNowhereFromIdsThatNobodyHas)
{
    Button_listener component;
    Control of_nobody;
    Screen screen;
    screen.pool.route(component);
    say(screen.pool, frame(0x01, 0, w(0), w(1), 7));      // there are no objects at all yet
    say(screen.pool, frame(0x01, 0, w(0xFFFF), w(1), 7)); // the id that the button has as yet
    prepare(screen, component.button, of_nobody);
    for (const int id : {0, 1, 3, 4, 5, 1000, 0xFFFE, 0xFFFF})
        say(screen.pool, frame(0x01, 0, w(id), w(1), 7));
    EXPECT_EQ(component.take_heard(), Lines{});
    release(screen.pool, component.button);
    EXPECT_EQ(component.take_heard(), Lines{released(component.button)});
}

TEST(PoolRoutes, ReachEachOfAThousandComponents)
{
    struct Panel : Listener
    {
        Control controls[3];
    };
    std::deque<Panel> panels(1000);
    Screen screen;
    for (Panel& panel : panels) {
        screen.pool.route(panel);
        for (Control& control : panel.controls)
            screen.pool.add(control);
    }
    prepare(screen);
    for (const Panel& panel : panels)
        for (const Control& control : panel.controls)
            release(screen.pool, control);
    for (Panel& panel : panels)
        ASSERT_EQ(panel.take_heard(),
                  (Lines{released(panel.controls[0]), released(panel.controls[1]), released(panel.controls[2])}));
}
