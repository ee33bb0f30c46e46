// How changes of the non-volatile store reach those who watch.

#include "tests/Virtual_slot.h"
#include "tests/platform/Nv_folder.h"

#include <atomic>
#include <chrono>
#include <cmath>
#include <fcntl.h>
#include <limits>
#include <memory>
#include <optional>
#include <sys/eventfd.h>
#include <thread>
#include <unistd.h>

using namespace nv;

namespace {

using Heard = std::vector<double>;

class NvWaiter : public ::testing::Test
{
  protected:
    Store store{Store::in_memory};
    Double rate{store, "rate", 200};
    Double depth{store, "depth", 5};
    waiter_descriptor waiter;
    Watcher<Double> watcher{rate};
};

TEST_F(NvWaiter, DeliversAChange)
{
    watcher.autoreg(&waiter, true);
    EXPECT_FALSE(is_ready(waiter));
    rate.set(180);
    EXPECT_TRUE(is_ready(waiter));
    EXPECT_TRUE(watcher.heard.empty()) << "not before its owner asks for it";
    EXPECT_EQ(waiter.deliver(), 1U);
    EXPECT_EQ(watcher.heard, Heard{180});
    EXPECT_FALSE(is_ready(waiter));
    EXPECT_EQ(waiter.deliver(), 0U);
}

TEST_F(NvWaiter, DeliversAChangeOfAnotherThread)
{
    watcher.autoreg(&waiter, true);
    std::thread([&] { rate.set(180); }).join();
    EXPECT_TRUE(is_ready(waiter, 5000));
    EXPECT_EQ(waiter.deliver(), 1U);
    EXPECT_EQ(watcher.heard, Heard{180});
}

TEST_F(NvWaiter, DeliversManyChangesAtOnce)
{
    watcher.autoreg(&waiter, true);
    for (int i = 0; i < 100; ++i)
        rate.set(i);
    EXPECT_EQ(waiter.deliver(), 1U);
    EXPECT_EQ(watcher.heard, Heard{99});
}

TEST_F(NvWaiter, DeliversInTheOrderOfTheChanges)
{
    Watcher<Double> other(depth);
    std::string order;
    watcher.then = [&] { order += "rate "; };
    other.then = [&] { order += "depth "; };
    watcher.autoreg(&waiter, true);
    other.autoreg(&waiter, true);
    depth.set(1);
    rate.set(1);
    depth.set(2);
    EXPECT_EQ(waiter.deliver(), 2U);
    EXPECT_EQ(order, "depth rate ");
}

TEST_F(NvWaiter, DeliversToEveryAccessOfTheItem)
{
    Watcher<Double> second(rate);
    waiter_descriptor other_waiter;
    Watcher<Double> elsewhere(rate);
    watcher.autoreg(&waiter, true);
    second.autoreg(&waiter, true);
    elsewhere.autoreg(&other_waiter, true);
    rate.set(1);
    EXPECT_EQ(waiter.deliver(), 2U);
    EXPECT_EQ(second.heard, Heard{1});
    EXPECT_TRUE(elsewhere.heard.empty());
    EXPECT_EQ(other_waiter.deliver(), 1U);
    EXPECT_EQ(elsewhere.heard, Heard{1});
}

TEST_F(NvWaiter, DeliversNothingOfOtherItems)
{
    watcher.autoreg(&waiter, true);
    depth.set(1);
    EXPECT_EQ(waiter.deliver(), 0U);
}

TEST_F(NvWaiter, DeliversNoChangeThatIsNone)
{
    watcher.autoreg(&waiter, true);
    rate.set(200);
    EXPECT_FALSE(is_ready(waiter));
    rate.set(NAN);
    EXPECT_EQ(waiter.deliver(), 1U);
    rate.set(-NAN);
    EXPECT_FALSE(is_ready(waiter)) << "all NaN are one";
    rate.set(0);
    EXPECT_EQ(waiter.deliver(), 1U);
    rate.set(-0.0);
    EXPECT_EQ(waiter.deliver(), 1U) << "another number";
}

TEST_F(NvWaiter, DeliversWhatIsSetTogether)
{
    Watcher<Double> other(depth);
    watcher.autoreg(&waiter, true);
    other.autoreg(&waiter, true);
    store.set({rate.to(1), depth.to(2)});
    EXPECT_EQ(waiter.deliver(), 2U);
    EXPECT_EQ(watcher.heard, Heard{1});
    EXPECT_EQ(other.heard, Heard{2});
}

TEST_F(NvWaiter, LeavesWhatChangesMeanwhileForAnotherTime)
{
    watcher.then = [&] { rate.set(rate.get() + 1); };
    watcher.autoreg(&waiter, true);
    rate.set(1);
    EXPECT_EQ(waiter.deliver(), 1U);
    EXPECT_TRUE(is_ready(waiter));
    EXPECT_EQ(waiter.deliver(), 1U);
    EXPECT_EQ(watcher.heard, (Heard{1, 2}));
}

TEST_F(NvWaiter, MissesNoChangeBetweenReadingAndRegistering)
{
    EXPECT_EQ(watcher.look(), 200);
    rate.set(180);
    watcher.autoreg(&waiter, true);
    EXPECT_TRUE(is_ready(waiter));
    EXPECT_EQ(waiter.deliver(), 1U);
    EXPECT_EQ(watcher.heard, Heard{180});
}

TEST_F(NvWaiter, CountsOnlyLaterChangesIfAskedTo)
{
    watcher.look();
    rate.set(180);
    watcher.autoreg(&waiter, false);
    EXPECT_FALSE(is_ready(waiter));
    rate.set(170);
    EXPECT_EQ(waiter.deliver(), 1U);
}

TEST_F(NvWaiter, ComparesWithTheValueAtConstructionIfNothingWasRead)
{
    watcher.autoreg(&waiter, true);
    EXPECT_FALSE(is_ready(waiter));
    Watcher<Double> late(rate);
    rate.set(1);
    late.autoreg(&waiter, true);
    EXPECT_EQ(waiter.deliver(), 2U);
}

TEST_F(NvWaiter, DeliversOnceToAnAccessThatRegisteredTwice)
{
    watcher.autoreg(&waiter, true);
    watcher.autoreg(&waiter, true);
    rate.set(1);
    EXPECT_EQ(waiter.deliver(), 1U);
    watcher.autounreg(&waiter);
    rate.set(2);
    EXPECT_EQ(waiter.deliver(), 0U);
    watcher.autounreg(&waiter);
}

TEST_F(NvWaiter, LetsAnAccessMoveToAnotherOne)
{
    waiter_descriptor other;
    watcher.autoreg(&waiter, true);
    rate.set(1);
    watcher.autoreg(&other, true);
    EXPECT_EQ(waiter.deliver(), 0U);
    EXPECT_EQ(other.deliver(), 1U) << "it has not read the change yet";
    watcher.autounreg(&waiter);
    rate.set(2);
    EXPECT_EQ(other.deliver(), 1U) << "it was not registered there";
}

TEST_F(NvWaiter, TakesNoRegistrationWithoutAWaiter)
{
    watcher.autoreg(nullptr, true);
    watcher.autounreg(nullptr);
    rate.set(1);
    watcher.autoreg(&waiter, false);
    watcher.autounreg(nullptr);
    rate.set(2);
    EXPECT_EQ(waiter.deliver(), 0U) << "without a waiter any registration ends";
}

TEST_F(NvWaiter, DropsWhatIsOnTheWayToAnAccessThatEndsItsRegistration)
{
    watcher.autoreg(&waiter, true);
    rate.set(1);
    watcher.autounreg(&waiter);
    EXPECT_EQ(waiter.deliver(), 0U);
    EXPECT_FALSE(is_ready(waiter));
}

TEST_F(NvWaiter, DropsWhatIsOnTheWayToAnAccessThatIsGone)
{
    auto gone = std::make_unique<Watcher<Double>>(rate);
    gone->autoreg(&waiter, true);
    watcher.autoreg(&waiter, true);
    rate.set(1);
    gone.reset();
    EXPECT_EQ(waiter.deliver(), 1U);
    EXPECT_EQ(watcher.heard, Heard{1});
    rate.set(2);
    EXPECT_EQ(waiter.deliver(), 1U);
}

TEST_F(NvWaiter, LetsANotificationDestroyAnotherAccess)
{
    auto other = std::make_unique<Watcher<Double>>(rate);
    watcher.then = [&] { other.reset(); };
    watcher.autoreg(&waiter, true);
    other->autoreg(&waiter, true);
    rate.set(1);
    EXPECT_EQ(waiter.deliver(), 1U);
    rate.set(2);
    EXPECT_EQ(waiter.deliver(), 1U);
}

/// Destroys itself when it hears of a change.
class Suicidal final : public NV_store::Access<Double, NV_store::Virt_access>
{
  public:
    using Access::Access;
    void handle_event() override { delete this; }
};

TEST_F(NvWaiter, LetsANotificationDestroyItsOwnAccess)
{
    (new Suicidal(rate))->autoreg(&waiter, true);
    watcher.autoreg(&waiter, true);
    rate.set(1);
    EXPECT_EQ(waiter.deliver(), 2U);
    rate.set(2);
    EXPECT_EQ(waiter.deliver(), 1U);
}

TEST_F(NvWaiter, LetsANotificationEndARegistration)
{
    Watcher<Double> other(rate);
    watcher.then = [&] {
        watcher.autounreg(&waiter);
        other.autounreg(&waiter);
    };
    watcher.autoreg(&waiter, true);
    other.autoreg(&waiter, true);
    rate.set(1);
    EXPECT_EQ(waiter.deliver(), 1U);
    EXPECT_TRUE(other.heard.empty());
    EXPECT_FALSE(is_ready(waiter));
}

TEST_F(NvWaiter, MayGoBeforeItsAccesses)
{
    std::optional<waiter_descriptor> gone(std::in_place);
    watcher.autoreg(&*gone, true);
    rate.set(1);
    gone.reset();
    rate.set(2);
    watcher.autoreg(&waiter, true);
    EXPECT_EQ(waiter.deliver(), 1U);
    EXPECT_EQ(watcher.heard, Heard{2});
}

TEST_F(NvWaiter, KeepsTheOthersWhenAnAccessThrows)
{
    Watcher<Double> other(rate);
    watcher.then = [] { throw std::runtime_error("no"); };
    watcher.autoreg(&waiter, true);
    other.autoreg(&waiter, true);
    rate.set(1);
    EXPECT_EQ(complaint([&] { waiter.deliver(); }), "no");
    EXPECT_TRUE(is_ready(waiter));
    EXPECT_EQ(waiter.deliver(), 1U);
    EXPECT_EQ(other.heard, Heard{1});
    EXPECT_FALSE(is_ready(waiter));
}

TEST_F(NvWaiter, DeliversToAnAccessThatAsks)
{
    watcher.ask();
    watcher.autoreg(&waiter, true);
    EXPECT_FALSE(is_ready(waiter)) << "it was not registered";
    watcher.ask();
    watcher.ask();
    EXPECT_EQ(waiter.deliver(), 1U);
    EXPECT_EQ(watcher.heard, Heard{200});
}

/// While it is full, whoever wakes the waiter stays where it is until there is room.
class Full
{
  public:
    explicit Full(const waiter_descriptor& waiter) : descriptor(waiter.descriptor())
    {
        fcntl(descriptor, F_SETFL, fcntl(descriptor, F_GETFL) & ~O_NONBLOCK);
        eventfd_write(descriptor, std::numeric_limits<eventfd_t>::max() - 1);
    }
    void let_go() const
    {
        eventfd_t count;
        eventfd_read(descriptor, &count);
    }

  private:
    int descriptor;
};

template <class Condition>
bool comes_true(Condition condition)
{
    for (int i = 0; i < 5000 && !condition(); ++i)
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    return condition();
}

TEST_F(NvWaiter, WakesNobodyBeforeTheValueIsThere)
{
    watcher.autoreg(&waiter, true);
    const Full full(waiter);
    std::thread setter([&] { rate.set(180); });
    EXPECT_TRUE(comes_true([&] { return rate.get() == 180; })) << "it is still about to wake somebody";
    full.let_go();
    setter.join();
}

/// Whether a thread of this process sleeps.
bool is_asleep(pid_t thread)
{
    const std::string state = content("/proc/self/task/" + std::to_string(thread) + "/stat");
    return state.find(") S ") != std::string::npos;
}

TEST_F(NvWaiter, MissesNoChangeThatIsMadeWhileItRegisters)
{
    waiter_descriptor slow;
    Watcher<Double> first(depth);
    first.autoreg(&slow, true);
    const Full full(slow);
    watcher.look();
    // It has set the one, holds the store, and will set the other.
    std::thread setter([&] { store.set({depth.to(1), rate.to(180)}); });
    EXPECT_TRUE(comes_true([&] { return depth.get() == 1; }));
    std::atomic<pid_t> registering{0};
    std::thread owner([&] {
        registering = gettid();
        watcher.autoreg(&waiter, true);
    });
    EXPECT_TRUE(comes_true([&] { return registering != 0 && is_asleep(registering); }));
    EXPECT_EQ(rate.get(), 200);
    full.let_go();
    setter.join();
    owner.join();
    EXPECT_EQ(waiter.deliver(), 1U);
    EXPECT_EQ(watcher.heard, Heard{180});
}

TEST(NvAccess, HasItsVirtualOperationsInThisOrder)
{
    EXPECT_EQ(virtual_slot(&NV_store::Virt_access::handle_event), 0U);
    EXPECT_TRUE(std::has_virtual_destructor_v<NV_store::Virt_access>);
}

} // namespace
