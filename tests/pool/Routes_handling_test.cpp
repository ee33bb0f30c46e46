// What all components hear, and what they may do while they hear it.

#include "tests/pool/Listener.h"

#include <gtest/gtest.h>
#include <memory>
#include <stdexcept>
#include <vector>

using Lines = Listener::Lines;
using namespace std::chrono_literals;

namespace {

const Lines nothing;
const char* const terminal_of_480 = "terminal 255 2 3 480 480"; // what the fake terminal says of itself

} // namespace

TEST(PoolRoutesAll, HearWhatTheTerminalSaysOfItself)
{
    Live_listeners live;
    live.route_all();
    live.pool.route(live.first, live.second.button);
    ASSERT_TRUE(live.pool.ask_hardware(live.terminal));
    for (Busy* component : {&live.first, &live.second, &live.third})
        EXPECT_EQ(component->take_heard(), Lines{terminal_of_480});
    ASSERT_TRUE(live.pool.load(live.terminal)); // components are laid out by now
    for (Busy* component : {&live.first, &live.second, &live.third})
        EXPECT_EQ(component->take_heard(), nothing);
    say(live.pool, frame(0xC7, 7, 9, 2, w(320), w(300)));
    for (Busy* component : {&live.first, &live.second, &live.third})
        EXPECT_EQ(component->take_heard(), Lines{"terminal 7 9 2 320 300"});
}

TEST(PoolRoutesAll, FindTheTerminalsAnswerInThePool)
{
    Live_listeners live;
    std::vector<int> sizes;
    live.first.act = [&] { sizes.push_back(live.pool.information()->mask_width); };
    live.pool.route(live.first);
    live.terminal.answers[0xC7] = frame(0xC7, 0xFF, 2, 3, w(240), w(240));
    ASSERT_TRUE(live.pool.ask_hardware(live.terminal));
    say(live.pool, frame(0xC7, 0xFF, 2, 3, w(320), w(320)));
    say(live.pool, frame(0xC7, 0xFF, 2, 3, w(0), w(300)));
    say(live.pool, frame(0xC7, 0xFF, 2, 3, w(300), w(0)));
    EXPECT_EQ(sizes, (std::vector<int>{240, 320, 320, 320})) << "a screen without pixels is none";
}

TEST(PoolRoutesAll, HearNothingOfATerminalThatSaysNothingOfUse)
{
    Live_listeners live;
    live.route_all();
    live.terminal.answers[0xC7] = frame(0xC7, 0xFF, 2, 3, w(0), w(480));
    EXPECT_FALSE(live.pool.ask_hardware(live.terminal));
    live.terminal.answers.erase(0xC7);
    EXPECT_FALSE(live.pool.ask_hardware(live.terminal, 1ms));
    EXPECT_EQ(live.first.take_heard(), nothing);
}

TEST(PoolRoutesAll, HearOfAnnouncedUnits)
{
    for (const bool prepared : {false, true}) {
        Button_listener listener;
        Screen screen;
        screen.pool.route(listener);
        screen.pool.add(listener.button);
        if (prepared)
            prepare(screen);
        Units_man units;
        screen.pool.announce(units);
        EXPECT_EQ(listener.take_heard(), Lines{"units"});
    }
}

TEST(PoolRoutesAll, IncludeAComponentWhoseControlsLieElsewhere)
{
    Live_listeners live;
    Listener page;
    live.pool.route(page, live.first.button);
    live.pool.route(page, live.second.button);
    live.pool.announce(live.units);
    EXPECT_EQ(page.take_heard(), Lines{"units"});
}

TEST(PoolRoutesAll, HearOnceWhereAControlIsTheComponentsFirstMember)
{
    struct Page
    {
        void handle_event(const Units_man&) { ++heard; }
        Control first;
        int heard{0};
    };
    for (const bool whole_first : {true, false}) {
        Page page;
        Screen screen;
        if (whole_first)
            screen.pool.route(page);
        screen.pool.route(page, page.first);
        if (!whole_first)
            screen.pool.route(page);
        Units_man units;
        screen.pool.announce(units);
        EXPECT_EQ(page.heard, 1);
    }
}

TEST(PoolRoutesWhileHandling, MayBeAdded)
{
    Live_listeners live;
    std::vector<Button_listener> many(100); // more than fit where the routes lie
    live.first.act = [&] {
        for (Button_listener& one : many)
            live.pool.route(one);
        live.pool.route(live.second);
    };
    live.pool.route(live.first);
    release(live.pool, 2);
    release(live.pool, 3);
    EXPECT_EQ(live.first.take_heard(), Lines{released(2)});
    EXPECT_EQ(live.second.take_heard(), Lines{released(3)});

    live.first.act = [&] { live.pool.route(live.third); };
    live.pool.announce(live.units);
    release(live.pool, 4);
    EXPECT_EQ(live.first.take_heard(), Lines{"units"});
    EXPECT_EQ(many.back().take_heard(), Lines{"units"});
    EXPECT_EQ(live.third.take_heard().back(), released(4));
}

TEST(PoolRoutesWhileHandling, MayBeRemovedByTheirOwnComponent)
{
    Live_listeners live;
    live.route_all();
    live.first.act = [&] { live.pool.unroute(live.first); };
    for (const int id : {2, 2, 3, 4})
        release(live.pool, id);
    EXPECT_EQ(live.first.take_heard(), Lines{released(2)});
    EXPECT_EQ(live.second.take_heard(), Lines{released(3)});
    EXPECT_EQ(live.third.take_heard(), Lines{released(4)});
}

TEST(PoolRoutesWhileHandling, MayBeRemovedByTheirOwnComponentWhenAllHear)
{
    Live_listeners live;
    live.route_all();
    for (Busy* component : {&live.first, &live.second, &live.third})
        component->act = [&live, component] { live.pool.unroute(*component); };
    live.pool.announce(live.units);
    for (Busy* component : {&live.first, &live.second, &live.third})
        EXPECT_EQ(component->take_heard(), Lines{"units"});
    live.pool.announce(live.units);
    for (Busy* component : {&live.first, &live.second, &live.third})
        EXPECT_EQ(component->take_heard(), nothing);
}

TEST(PoolRoutesWhileHandling, MayBeRemovedForOthersWhenAllHear)
{
    Live_listeners live;
    auto later = std::make_unique<Button_listener>();
    live.route_all();
    live.pool.route(*later);
    live.second.act = [&] {
        live.pool.unroute(live.first); // has heard
        live.pool.unroute(*later);     // has not
        later.reset();
    };
    live.pool.announce(live.units);
    for (Busy* component : {&live.first, &live.second, &live.third})
        EXPECT_EQ(component->take_heard(), Lines{"units"});
}

TEST(PoolRoutesWhileHandling, MayBeRemovedBeforeAMessageIsTakenInBetween)
{
    Live_listeners live;
    live.route_all();
    release(live.pool, 3);
    live.second.take_heard();
    live.first.act = [&] {
        live.pool.unroute(live.first);
        release(live.pool, 2);
        release(live.pool, 4);
    };
    live.pool.announce(live.units);
    for (const int id : {2, 3, 4})
        release(live.pool, id);
    EXPECT_EQ(live.first.take_heard(), Lines{"units"});
    EXPECT_EQ(live.second.take_heard(), (Lines{"units", released(3)}));
    EXPECT_EQ(live.third.take_heard(), (Lines{released(4), "units", released(4)}));
}

TEST(PoolRoutesWhileHandling, MayBeRemovedBeforeAllHearOfSomethingElse)
{
    Live_listeners live;
    live.route_all();
    live.first.act = [&] {
        live.pool.unroute(live.first);
        say(live.pool, frame(0xC7, 1, 2, 3, w(4), w(5)));
    };
    live.pool.announce(live.units);
    EXPECT_EQ(live.first.take_heard(), Lines{"units"});
    for (Busy* component : {&live.second, &live.third})
        EXPECT_EQ(component->take_heard(), (Lines{"terminal 1 2 3 4 5", "units"}));
}

TEST(PoolRoutesWhileHandling, MayLeadToAnotherMessage)
{
    Live_listeners live;
    live.route_all();
    live.first.act = [&] {
        live.pool.unroute(live.first);
        release(live.pool, 3);
    };
    release(live.pool, 2);
    EXPECT_EQ(live.first.take_heard(), Lines{released(2)});
    EXPECT_EQ(live.second.take_heard(), Lines{released(3)});
}

TEST(PoolRoutesWhileHandling, LetThroughWhatAComponentThrows)
{
    Live_listeners live;
    live.route_all();
    live.second.act = [] { throw std::runtime_error("the valve is stuck"); };
    try {
        release(live.pool, 3);
        FAIL() << "nothing came out";
    } catch (const std::runtime_error& error) {
        EXPECT_STREQ(error.what(), "the valve is stuck");
    }
    EXPECT_TRUE(live.pool.is_live());
    EXPECT_THROW(live.pool.announce(live.units), std::runtime_error);
    EXPECT_THROW(live.pool.ask_hardware(live.terminal), std::runtime_error);
    EXPECT_FALSE(live.pool.is_live());
    live.second.act = [] {};
    ASSERT_TRUE(live.pool.load(live.terminal));
    for (Busy* component : {&live.first, &live.second, &live.third})
        component->take_heard();
    release(live.pool, 3);
    release(live.pool, 4);
    EXPECT_EQ(live.second.take_heard(), Lines{released(3)});
    EXPECT_EQ(live.third.take_heard(), Lines{released(4)});
}
