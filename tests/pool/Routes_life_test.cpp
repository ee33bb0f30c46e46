// From when on and until when a component hears of events.

#include "tests/Allocations.h"
#include "tests/pool/Listener.h"

#include <functional>
#include <gtest/gtest.h>
#include <memory>

using Lines = Listener::Lines;

namespace {

const Lines nothing;

} // namespace

TEST(PoolRoutesLife, BeginsBeforeThePoolIsPreparedOrAfterwards)
{
    enum When { before_prepare, after_prepare, after_load };
    for (const When when : {before_prepare, after_prepare, after_load}) {
        Button_listener component;
        Screen screen;
        Fake_terminal terminal;
        screen.pool.add(component.button);
        if (when == before_prepare)
            screen.pool.route(component);
        ASSERT_TRUE(screen.pool.prepare());
        if (when == after_prepare)
            screen.pool.route(component);
        ASSERT_TRUE(screen.pool.load(terminal));
        if (when == after_load)
            screen.pool.route(component);
        component.take_heard();
        release(screen.pool, 2);
        EXPECT_EQ(component.take_heard(), Lines{released(2)}) << when;
    }
}

TEST(PoolRoutesLife, TakesInWhatComesLate)
{
    Live_listeners live;
    live.pool.route(live.first);
    Button_listener late;
    Control late_and_elsewhere;
    live.pool.route(late);
    live.pool.route(late, late_and_elsewhere);
    release(live.pool, 2); // while they have no ids
    EXPECT_EQ(live.first.take_heard(), Lines{released(2)});
    live.pool.add(late.button);
    live.pool.add(late_and_elsewhere);
    ASSERT_TRUE(live.pool.load(live.terminal));
    EXPECT_EQ(late_and_elsewhere.get_id(), 6);
    late.take_heard();
    release(live.pool, 5);
    release(live.pool, 6);
    EXPECT_EQ(late.take_heard(), (Lines{released(5), released(6)}));
    live.first.take_heard();
    release(live.pool, 2);
    EXPECT_EQ(live.first.take_heard(), Lines{released(2)});
}

TEST(PoolRoutesLife, SurvivesAPreparationThatFails)
{
    Live_listeners live;
    live.pool.route(live.first);
    Button_listener late;
    live.pool.route(late);
    live.pool.add(late.button);
    live.pool.specify("nobody", "width", 1);
    EXPECT_FALSE(live.pool.prepare());
    for (const int id : {2, 3, 5})
        release(live.pool, id);
    EXPECT_EQ(live.first.take_heard(), Lines{released(2)});
    EXPECT_EQ(late.take_heard(), nothing);
}

TEST(PoolRoutesLife, SurvivesALostLink)
{
    Live_listeners live;
    live.pool.route(live.first);
    live.pool.disconnect();
    release(live.pool, 2); // it was under way
    EXPECT_EQ(live.first.take_heard(), Lines{released(2)});
    ASSERT_TRUE(live.pool.load(live.terminal));
    live.first.take_heard();
    release(live.pool, 2);
    EXPECT_EQ(live.first.take_heard(), Lines{released(2)});
}

TEST(PoolRoutesLife, EndsWithUnroute)
{
    Live_listeners live;
    Control& elsewhere = live.third.button;
    live.pool.route(live.first);
    live.pool.route(live.first, elsewhere);
    live.pool.route(live.second);
    EXPECT_TRUE(live.pool.unroute(live.first));
    EXPECT_FALSE(live.pool.unroute(live.first)); // no longer
    EXPECT_FALSE(live.pool.unroute(live.third));
    EXPECT_FALSE(live.pool.unroute<Button_listener>(live.second)); // is routed as a Busy
    live.pool.announce(live.units);
    for (const int id : {2, 3, 4})
        release(live.pool, id);
    EXPECT_EQ(live.first.take_heard(), nothing);
    EXPECT_EQ(live.second.take_heard(), (Lines{"units", released(3)}));

    live.pool.route(live.first);
    release(live.pool, 2);
    EXPECT_EQ(live.first.take_heard(), Lines{released(2)});
}

TEST(PoolRoutesLife, BeginsAndEndsAgainAndAgain)
{
    Live_listeners live;
    for (int i = 0; i < 3; ++i) {
        for (Busy* component : {&live.first, &live.second, &live.third})
            live.pool.route(*component, live.mask);
        live.pool.announce(live.units);
        for (Busy* component : {&live.second, &live.third, &live.first}) {
            EXPECT_EQ(component->take_heard(), Lines{"units"});
            EXPECT_TRUE(live.pool.unroute(*component));
            EXPECT_FALSE(live.pool.unroute(*component));
        }
    }
}

TEST(PoolRoutesLife, EndsForOneOfTwoAtTheSameAddress)
{
    struct Around
    {
        void handle_event(const VT::Button_activation_event& event) { outer.handle_event(event); }
        void handle_event(const Units_man& units) { outer.handle_event(units); }
        Button_listener inner;
        Listener outer;
    };
    for (const bool inner_goes : {false, true}) {
        Around component;
        Screen screen;
        screen.pool.add(component.inner.button);
        ASSERT_TRUE(screen.pool.prepare());
        screen.pool.route(component);
        screen.pool.route(component.inner);
        if (inner_goes)
            screen.pool.unroute(component.inner);
        else
            screen.pool.unroute(component);
        release(screen.pool, 2);
        Units_man units;
        screen.pool.announce(units);
        const Lines all{released(2), "units"};
        EXPECT_EQ(component.inner.take_heard(), inner_goes ? nothing : all);
        EXPECT_EQ(component.outer.take_heard(), inner_goes ? all : nothing);
    }
}

TEST(PoolRoutesLife, IsTheSameForAComponentThatIsRoutedTwice)
{
    Live_listeners live;
    for (int i = 0; i < 2; ++i) {
        live.pool.route(live.first);
        live.pool.route(live.first, live.second.button);
    }
    live.pool.announce(live.units);
    release(live.pool, 2);
    release(live.pool, 3);
    EXPECT_EQ(live.first.take_heard(), (Lines{"units", released(2), released(3)}));
    live.pool.unroute(live.first);
    release(live.pool, 2);
    release(live.pool, 3);
    EXPECT_EQ(live.first.take_heard(), nothing);
}

TEST(PoolRoutesLife, EndsForAnObjectThatIsDestroyed)
{
    Live_listeners live;
    auto destroyed = std::make_unique<Control>();
    live.pool.add(*destroyed);
    live.pool.route(live.first, *destroyed);
    ASSERT_TRUE(live.pool.load(live.terminal));
    live.first.take_heard();
    release(live.pool, 5);
    EXPECT_EQ(live.first.take_heard(), Lines{released(5)});
    destroyed.reset();
    release(live.pool, 5); // was under way
    EXPECT_EQ(live.first.take_heard(), nothing);
    live.pool.route(live.second); // so that the controls are looked for again
    release(live.pool, 5);
    release(live.pool, 3);
    EXPECT_EQ(live.first.take_heard(), nothing);
    EXPECT_EQ(live.second.take_heard(), Lines{released(3)});
}

TEST(PoolRoutesLife, OutlivesADestroyedComponent)
{
    Live_listeners live;
    auto destroyed = std::make_unique<Button_listener>();
    live.pool.add(destroyed->button);
    live.pool.route(*destroyed);
    live.pool.route(live.first);
    ASSERT_TRUE(live.pool.load(live.terminal));
    live.first.take_heard();
    live.pool.unroute(*destroyed);
    destroyed.reset();
    release(live.pool, 5);
    release(live.pool, 2);
    say(live.pool, frame(0xC7, 1, 2, 3, w(4), w(5)));
    EXPECT_EQ(live.first.take_heard(), (Lines{released(2), "terminal 1 2 3 4 5"}));
}

TEST(PoolRoutesLife, NeedsNoMoreMemoryTheNextTimes)
{
    struct Guest
    {
        void handle_event(const Units_man&) { pool.unroute(*this); }
        void handle_event(const VT::Button_activation_event&) { ++heard; }
        VT::Pool& pool;
        int heard{0};
    };
    Screen screen;
    Control button;
    prepare(screen, button);
    Units_man units;
    Guest guest{screen.pool};
    const std::function<void()> habits[] = {
        [&] { // routed again and again
            screen.pool.route(guest);
            screen.pool.route(guest, button);
        },
        [&] { // is sent away
            screen.pool.route(guest, button);
            screen.pool.unroute(guest);
        },
        [&] { // leaves by itself
            screen.pool.route(guest, button);
            screen.pool.announce(units);
        },
    };
    for (const std::function<void()>& habit : habits) {
        habit();
        const std::size_t before = allocations();
        for (int i = 0; i < 100; ++i)
            habit();
        EXPECT_EQ(allocations(), before);
    }

    screen.pool.route(guest, button);
    release(screen.pool, button); // looks for the controls
    const Bytes message = frame(0x01, 0, w(button.get_id()), w(1), 7);
    const std::size_t once_found = allocations();
    for (int i = 0; i < 100; ++i)
        screen.pool.receive(message.data(), message.size());
    EXPECT_EQ(allocations(), once_found);
    EXPECT_EQ(guest.heard, 101);
}
