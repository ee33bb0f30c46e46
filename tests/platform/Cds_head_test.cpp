#include "cds/Access.h"
#include "tests/platform/Readable.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <functional>
#include <limits>
#include <memory>
#include <new>
#include <stdexcept>
#include <string>
#include <sys/mman.h>
#include <thread>
#include <unistd.h>

namespace {

struct Position
{
    double north;
    double east;
};

/// An application's data.
struct Machine
{
    double speed;
    float pressure;
    std::uint8_t section;
    std::uint8_t boom;
    std::int16_t tilt;
    Position position;
    std::array<int, 40> counters;
    long long area;
};

/// Counts what it hears, and does what a test wants it to do then.
template <class T>
class Listener : public CDS::Access<T, CDS::Virt_access>
{
  public:
    using CDS::Access<T, CDS::Virt_access>::Access;

    void handle_change() override
    {
        ++heard;
        seen = CDS::read(*this->access.head(), *this->variable);
        if (answer)
            answer();
    }

    int heard{0};
    T seen{};
    std::function<void()> answer;
};

/// A store that has delivered what was to be said at the start.
class CdsHead : public testing::Test
{
  protected:
    template <class T>
    void write(T& variable, const std::common_type_t<T>& value)
    {
        CDS::Write writing(head);
        writing.set(variable, value);
    }

    /// Something changes at a place.
    static void signal(CDS::Head& store, unsigned offset, unsigned extent)
    {
        const CDS::Read lock(store);
        store.event_signal(nullptr, nullptr, offset, extent, nullptr);
    }

    Machine data{};
    CDS::Head head{data};
};

TEST_F(CdsHead, KnowsWhereTheDataLie)
{
    EXPECT_EQ(head.base(), &data);
    EXPECT_EQ(head.size(), sizeof data);
    EXPECT_EQ(head.offset_of(data.speed), 0U);
    EXPECT_EQ(head.offset_of(data.position.east), offsetof(Machine, position) + sizeof(double));
    EXPECT_EQ(head.offset_of(data), 0U);
}

TEST_F(CdsHead, WatchesANumberByItsFirstByteAndAStructureByAll)
{
    const Listener<double> east(head, data.position.east);
    EXPECT_EQ(east.access.head(), &head);
    EXPECT_EQ(east.access.offset(), offsetof(Machine, position) + sizeof(double));
    EXPECT_EQ(east.access.extent(), 1U);
    EXPECT_EQ(east.variable, &data.position.east);
    const Listener<Position> position(head, data.position);
    EXPECT_EQ(position.access.offset(), offsetof(Machine, position));
    EXPECT_EQ(position.access.extent(), sizeof(Position));
    const CDS::Access_base nowhere;
    EXPECT_EQ(nowhere.head(), nullptr);
    EXPECT_EQ(nowhere.offset(), 0U);
    EXPECT_EQ(nowhere.extent(), 0U);
}

TEST_F(CdsHead, TellsAnAccessOnceForAStart)
{
    data.speed = 7;
    Listener<double> speed(head, data.speed);
    EXPECT_TRUE(is_readable(head.descriptor()));
    EXPECT_EQ(speed.heard, 0);
    EXPECT_EQ(head.deliver(), 1U);
    EXPECT_EQ(speed.heard, 1);
    EXPECT_EQ(speed.seen, 7);
    EXPECT_FALSE(is_readable(head.descriptor()));
    EXPECT_EQ(head.deliver(), 0U);
    EXPECT_EQ(speed.heard, 1);
}

TEST_F(CdsHead, HasNothingToDeliverAtFirst)
{
    EXPECT_FALSE(is_readable(head.descriptor()));
    EXPECT_EQ(head.deliver(), 0U);
}

TEST_F(CdsHead, DeliversAChangeWhenItIsAskedToAndNotBefore)
{
    Listener<double> speed(head, data.speed);
    head.deliver();
    write(data.speed, 3.5);
    EXPECT_EQ(data.speed, 3.5);
    EXPECT_EQ(speed.heard, 1);
    EXPECT_TRUE(is_readable(head.descriptor()));
    EXPECT_EQ(head.deliver(), 1U);
    EXPECT_EQ(speed.heard, 2);
    EXPECT_EQ(speed.seen, 3.5);
    EXPECT_FALSE(is_readable(head.descriptor()));
}

TEST_F(CdsHead, DeliversOnceHoweverOftenAVariableChanged)
{
    Listener<double> speed(head, data.speed);
    head.deliver();
    for (int i = 1; i <= 100; ++i)
        write(data.speed, i);
    EXPECT_EQ(head.deliver(), 1U);
    EXPECT_EQ(speed.heard, 2);
    EXPECT_EQ(speed.seen, 100);
}

TEST_F(CdsHead, TellsAllAccessesToAVariableAndNoOther)
{
    Listener<std::uint8_t> section(head, data.section);
    Listener<std::uint8_t> section_again(head, data.section);
    Listener<std::uint8_t> boom(head, data.boom);
    Listener<std::int16_t> tilt(head, data.tilt);
    Listener<float> pressure(head, data.pressure);
    EXPECT_EQ(head.deliver(), 5U);
    write(data.section, 9);
    EXPECT_EQ(head.deliver(), 2U);
    EXPECT_EQ(section.seen, 9);
    EXPECT_EQ(section_again.seen, 9);
    EXPECT_EQ(boom.heard, 1);
    EXPECT_EQ(tilt.heard, 1);
    EXPECT_EQ(pressure.heard, 1);
}

TEST_F(CdsHead, TellsAStructureOfItsMembers)
{
    Listener<Position> position(head, data.position);
    Listener<double> east(head, data.position.east);
    Listener<Machine> machine(head, data);
    head.deliver();
    write(data.position.east, 2);
    EXPECT_EQ(head.deliver(), 3U);
    EXPECT_EQ(position.seen.east, 2);
    EXPECT_EQ(machine.seen.position.east, 2);
    write(data.position.north, 1);
    EXPECT_EQ(head.deliver(), 2U);
    EXPECT_EQ(east.heard, 2);
    write(data.area, 5);
    EXPECT_EQ(head.deliver(), 1U);
    EXPECT_EQ(machine.seen.area, 5);
}

TEST_F(CdsHead, TellsMembersOfTheirStructure)
{
    Listener<double> north(head, data.position.north);
    Listener<double> east(head, data.position.east);
    Listener<double> speed(head, data.speed);
    Listener<int> first(head, data.counters.front());
    head.deliver();
    write(data.position, {3, 4});
    EXPECT_EQ(head.deliver(), 2U);
    EXPECT_EQ(north.seen, 3);
    EXPECT_EQ(east.seen, 4);
    write(data.counters, {1});
    EXPECT_EQ(head.deliver(), 1U);
    EXPECT_EQ(first.seen, 1);
}

TEST_F(CdsHead, FindsEveryPlaceByEveryPlaceThatOverlapsIt)
{
    struct Watch final : CDS::Virt_access
    {
        void handle_change() override { ++heard; }
        int heard{0};
    };
    constexpr unsigned size = 70;
    char bytes[size] = {};
    CDS::Head store(bytes);
    constexpr unsigned extents[] = {1, 2, 15, 16, 17, 40};
    for (const unsigned watched : extents)
        for (unsigned at = 0; at + watched <= size; ++at) {
            Watch watch;
            CDS::Access_base access(watch);
            access.init(CDS::Access_base(&store, at, watched));
            store.deliver();
            for (const unsigned changed : extents)
                for (unsigned from = 0; from + changed <= size; ++from) {
                    signal(store, from, changed);
                    const bool concerned = from < at + watched && at < from + changed;
                    ASSERT_EQ(store.deliver(), concerned ? 1U : 0U) << at << ' ' << watched << ' ' << from;
                }
        }
}

TEST_F(CdsHead, LooksAtNobodyWhoWatchesElsewhere)
{
    struct Watch final : CDS::Virt_access
    {
        void handle_change() override {}
    };
    struct Elsewhere
    {
        Watch watch;
        CDS::Access_base before{watch};
        CDS::Access_base just_before{watch};
        CDS::Access_base empty{watch};
        CDS::Access_base behind{watch};
    };
    char bytes[48] = {};
    CDS::Head store(bytes);
    const std::size_t page = static_cast<std::size_t>(getpagesize());
    void* const memory = mmap(nullptr, page, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    ASSERT_NE(memory, MAP_FAILED);
    auto* const elsewhere = new (memory) Elsewhere;
    Watch watch;
    CDS::Access_base moved(watch);
    moved.init(CDS::Access_base(&store, 0, 16));
    elsewhere->before.init(CDS::Access_base(&store, 0, 16));
    elsewhere->just_before.init(CDS::Access_base(&store, 15, 1));
    elsewhere->empty.init(CDS::Access_base(&store, 15, 0));
    elsewhere->behind.init(CDS::Access_base(&store, 32, 16));
    moved.init(CDS::Access_base(&store, 24, 8)); // it leaves behind whom it stood before
    EXPECT_EQ(store.deliver(), 5U);
    const auto change_between = [&] {
        mprotect(memory, page, PROT_NONE); // who looks at them now does not survive it
        signal(store, 16, 8);
        std::_Exit(is_readable(store.descriptor()) ? 1 : 0);
    };
    EXPECT_EXIT(change_between(), testing::ExitedWithCode(0), "");
    elsewhere->~Elsewhere();
    munmap(memory, page);
}

TEST_F(CdsHead, TakesSignalsOfPlacesThatItDoesNotHave)
{
    Listener<long long> area(head, data.area);
    head.deliver();
    signal(head, 1000000, 1);
    signal(head, std::numeric_limits<unsigned>::max(), 1);
    EXPECT_EQ(head.deliver(), 0U);
    signal(head, 8, std::numeric_limits<unsigned>::max());
    EXPECT_EQ(head.deliver(), 1U);
    signal(head, head.offset_of(data.area), 0);
    EXPECT_EQ(head.deliver(), 1U) << "as if it had one byte";
}

TEST_F(CdsHead, WakesAtTheSignalAndCallsNobodyThere)
{
    Listener<double> speed(head, data.speed);
    head.deliver();
    head.hold();
    const double value = 5;
    head.event_signal(&data.speed, &value, 0, 1, nullptr);
    EXPECT_TRUE(is_readable(head.descriptor()));
    EXPECT_EQ(speed.heard, 1);
    data.speed = value;
    head.release();
    head.deliver();
    EXPECT_EQ(speed.seen, 5);
}

TEST_F(CdsHead, WakesAtTheEndOfAWrite)
{
    Listener<double> speed(head, data.speed);
    head.deliver();
    {
        CDS::Write writing(head);
        writing.set(data.speed, 1);
        writing.set(data.pressure, 2);
        EXPECT_FALSE(is_readable(head.descriptor()));
        EXPECT_EQ(speed.heard, 1);
    }
    EXPECT_TRUE(is_readable(head.descriptor()));
}

TEST_F(CdsHead, WakesAtASignalOfWhatIsNotedAlready)
{
    Listener<double> speed(head, data.speed);
    head.deliver();
    CDS::Write writing(head);
    writing.set(data.speed, 1); // whoever noted it may not get to wake anybody for a long time
    EXPECT_FALSE(is_readable(head.descriptor()));
    const double value = 2;
    head.event_signal(&data.speed, &value, head.offset_of(data.speed), 1, nullptr);
    EXPECT_TRUE(is_readable(head.descriptor()));
}

TEST_F(CdsHead, WakesNobodyForWhatNobodyWatches)
{
    Listener<double> speed(head, data.speed);
    head.deliver();
    write(data.area, 7);
    EXPECT_EQ(data.area, 7);
    EXPECT_FALSE(is_readable(head.descriptor()));
}

TEST_F(CdsHead, TellsNobodyOfAValueThatWasThere)
{
    const double nan = std::numeric_limits<double>::quiet_NaN();
    Listener<double> speed(head, data.speed);
    write(data.speed, 4);
    head.deliver();
    write(data.speed, 4);
    EXPECT_FALSE(is_readable(head.descriptor()));
    write(data.speed, nan);
    EXPECT_EQ(head.deliver(), 1U);
    write(data.speed, nan);
    EXPECT_EQ(head.deliver(), 0U) << "the same bits";
    write(data.speed, 0.0);
    EXPECT_EQ(head.deliver(), 1U);
    write(data.speed, -0.0);
    EXPECT_EQ(head.deliver(), 1U) << "other bits";
    EXPECT_TRUE(std::signbit(data.speed));
}

TEST_F(CdsHead, TellsOfAValueThatCameBackMeanwhile)
{
    Listener<double> speed(head, data.speed);
    head.deliver();
    write(data.speed, 1);
    write(data.speed, 0);
    EXPECT_EQ(head.deliver(), 1U);
    EXPECT_EQ(speed.seen, 0);
}

TEST_F(CdsHead, DeliversWithoutTheLock)
{
    Listener<double> speed(head, data.speed);
    bool held = true;
    speed.answer = [&] { held = head.is_held_by_this_thread(); };
    head.deliver();
    EXPECT_FALSE(held);
}

TEST_F(CdsHead, DeliversInTheOrderOfTheChanges)
{
    Listener<double> speed(head, data.speed);
    Listener<float> pressure(head, data.pressure);
    Listener<long long> area(head, data.area);
    head.deliver();
    std::string order;
    speed.answer = [&] { order += 's'; };
    pressure.answer = [&] { order += 'p'; };
    area.answer = [&] { order += 'a'; };
    write(data.area, 1);
    write(data.speed, 1);
    write(data.area, 2);
    write(data.pressure, 1);
    head.deliver();
    EXPECT_EQ(order, "asp");
    write(data.speed, 2);
    head.deliver();
    EXPECT_EQ(order, "asps");
}

TEST_F(CdsHead, DeliversAChangeInTheOrderInWhichAccessesRegistered)
{
    std::string order;
    std::unique_ptr<Listener<double>> speeds[4];
    for (std::size_t i = 0; i < 4; ++i)
        speeds[i] = std::make_unique<Listener<double>>(head, data.speed);
    head.deliver();
    for (std::size_t i = 0; i < 4; ++i)
        speeds[i]->answer = [&order, i] { order += std::to_string(i); };
    speeds[1].reset();
    write(data.speed, 1);
    head.deliver();
    EXPECT_EQ(order, "023");
}

TEST_F(CdsHead, LeavesWhatChangesWhileItDeliversForTheNextCall)
{
    Listener<double> speed(head, data.speed);
    speed.answer = [&] { write(data.speed, data.speed + 1); };
    for (int i = 1; i <= 5; ++i) {
        EXPECT_EQ(head.deliver(), 1U);
        EXPECT_EQ(speed.heard, i);
        EXPECT_EQ(data.speed, i);
        EXPECT_TRUE(is_readable(head.descriptor()));
    }
}

TEST_F(CdsHead, DeliversToAnAccessThatWaitsWhatChangesWhileItDelivers)
{
    Listener<double> speed(head, data.speed);
    Listener<float> pressure(head, data.pressure);
    speed.answer = [&] { write(data.pressure, 8); };
    EXPECT_EQ(head.deliver(), 2U);
    EXPECT_EQ(pressure.heard, 1);
    EXPECT_EQ(pressure.seen, 8);
    EXPECT_EQ(head.deliver(), 0U) << "it may have been woken in vain";
    EXPECT_FALSE(is_readable(head.descriptor()));
}

TEST_F(CdsHead, MayBeAskedToDeliverFromWithinANotification)
{
    Listener<double> speed(head, data.speed);
    Listener<float> pressure(head, data.pressure);
    std::size_t inner = 0;
    speed.answer = [&] { inner = head.deliver(); };
    EXPECT_EQ(head.deliver(), 1U);
    EXPECT_EQ(inner, 1U);
    EXPECT_EQ(pressure.heard, 1);
}

TEST_F(CdsHead, KeepsTheOthersWhenAListenerThrows)
{
    Listener<double> speed(head, data.speed);
    Listener<float> pressure(head, data.pressure);
    speed.answer = [] { throw std::runtime_error("no"); };
    EXPECT_THROW(head.deliver(), std::runtime_error);
    EXPECT_EQ(pressure.heard, 0);
    EXPECT_TRUE(is_readable(head.descriptor()));
    EXPECT_EQ(head.deliver(), 1U);
    EXPECT_EQ(speed.heard, 1);
    EXPECT_EQ(pressure.heard, 1);
}

TEST_F(CdsHead, DoesNotCallAnAccessThatWasDestroyedOnTheWay)
{
    Listener<float> pressure(head, data.pressure);
    {
        Listener<double> speed(head, data.speed);
        Listener<Machine> machine(head, data);
    }
    EXPECT_EQ(head.deliver(), 1U);
    auto speed = std::make_unique<Listener<double>>(head, data.speed);
    head.deliver();
    write(data.speed, 1);
    write(data.pressure, 1);
    speed.reset();
    EXPECT_EQ(head.deliver(), 1U);
    EXPECT_EQ(pressure.heard, 2);
    write(data.speed, 2);
    EXPECT_EQ(head.deliver(), 0U);
}

TEST_F(CdsHead, CallsTheOthersWhenOneIsDestroyedThatHasNothingToHear)
{
    Listener<float> pressure(head, data.pressure);
    auto speed = std::make_unique<Listener<double>>(head, data.speed);
    head.deliver();
    write(data.pressure, 1);
    speed.reset();
    EXPECT_EQ(head.deliver(), 1U);
    EXPECT_EQ(pressure.heard, 2);
}

TEST_F(CdsHead, DoesNotCallAnAccessThatAnothersNotificationDestroys)
{
    // Each position in the queue: alone behind it, in the middle, at the end.
    for (std::size_t victim = 0; victim < 3; ++victim) {
        std::unique_ptr<Listener<double>> others[3];
        Listener<float> killer(head, data.pressure);
        killer.answer = [&] { others[victim].reset(); };
        for (auto& other : others)
            other = std::make_unique<Listener<double>>(head, data.speed);
        EXPECT_EQ(head.deliver(), 3U);
        for (std::size_t i = 0; i < 3; ++i)
            EXPECT_EQ(others[i] ? others[i]->heard : -1, i == victim ? -1 : 1);
    }
}

TEST_F(CdsHead, LetsAnAccessDestroyItselfInItsNotification)
{
    struct Mayfly final : CDS::Access<double, CDS::Virt_access>
    {
        Mayfly(CDS::Head& store, double& bound, std::unique_ptr<Mayfly>& owner) : Access(store, bound), self(owner) {}
        void handle_change() override { self.reset(); }
        std::unique_ptr<Mayfly>& self;
    };
    std::unique_ptr<Mayfly> mayfly;
    mayfly = std::make_unique<Mayfly>(head, data.speed, mayfly);
    Listener<double> other(head, data.speed);
    EXPECT_EQ(head.deliver(), 2U);
    EXPECT_EQ(mayfly, nullptr);
    EXPECT_EQ(other.heard, 1);
    write(data.speed, 1);
    EXPECT_EQ(head.deliver(), 1U);
}

TEST_F(CdsHead, DeliversLaterToAnAccessThatANotificationMakes)
{
    std::unique_ptr<Listener<float>> made;
    Listener<double> speed(head, data.speed);
    speed.answer = [&] {
        if (!made)
            made = std::make_unique<Listener<float>>(head, data.pressure);
    };
    EXPECT_EQ(head.deliver(), 1U);
    EXPECT_EQ(made->heard, 0);
    EXPECT_TRUE(is_readable(head.descriptor()));
    EXPECT_EQ(head.deliver(), 1U);
    EXPECT_EQ(made->heard, 1);
}

TEST_F(CdsHead, RefusesAnAccessOutsideOfTheDataAndSaysWhere)
{
    struct
    {
        double before;
        double data[2];
        double behind;
    } all{};
    CDS::Head store(all.data);
    const auto refused = [&](auto& variable) -> std::string {
        try {
            Listener<std::remove_reference_t<decltype(variable)>> listener(store, variable);
        } catch (const std::out_of_range& error) {
            return error.what();
        }
        return "taken";
    };
    EXPECT_EQ(refused(all.before), "CDS: an access to 8 bytes at offset -8 leaves the data of 16 bytes");
    EXPECT_EQ(refused(all.behind), "CDS: an access to 8 bytes at offset 16 leaves the data of 16 bytes");
    EXPECT_EQ(refused(all), "CDS: an access to 32 bytes at offset -8 leaves the data of 16 bytes");
    EXPECT_EQ(refused(all.data[1]), "taken");
    EXPECT_EQ(store.deliver(), 0U);
}

TEST_F(CdsHead, RefusesAPlaceOutsideOfTheDataAndKeepsTheOneBefore)
{
    Listener<double> speed(head, data.speed);
    head.deliver();
    const auto size = static_cast<unsigned>(sizeof data);
    EXPECT_THROW(speed.access.init(CDS::Access_base(&head, size, 1)), std::out_of_range);
    EXPECT_THROW(speed.access.init(CDS::Access_base(&head, size - 1, 2)), std::out_of_range);
    EXPECT_THROW(speed.access.init(CDS::Access_base(&head, 1, std::numeric_limits<unsigned>::max())),
                 std::out_of_range);
    EXPECT_THROW(speed.access.init(CDS::Access_base(&head, std::numeric_limits<unsigned>::max(), 1)),
                 std::out_of_range);
    write(data.speed, 1);
    EXPECT_EQ(head.deliver(), 1U);
}

TEST_F(CdsHead, TakesAnEmptyPlaceAsOneByte)
{
    Listener<double> speed(head, data.speed);
    speed.access.init(CDS::Access_base(&head, head.offset_of(data.boom), 0));
    head.deliver();
    write(data.boom, 1);
    EXPECT_EQ(head.deliver(), 1U);
    write(data.section, 1);
    EXPECT_EQ(head.deliver(), 0U);
    EXPECT_NO_THROW(speed.access.init(CDS::Access_base(&head, sizeof data, 0))) << "behind the last byte";
}

TEST_F(CdsHead, RefusesToWriteOutsideOfTheDataAndIsFreeThen)
{
    double elsewhere = 1;
    EXPECT_THROW(write(elsewhere, 2), std::out_of_range);
    EXPECT_EQ(elsewhere, 1);
    EXPECT_TRUE(head.tryLock());
    head.unlock();
}

TEST_F(CdsHead, ReadsOneVariableOrAllOfThem)
{
    write(data.speed, 2);
    write(data.position, {3, 4});
    EXPECT_EQ(CDS::read(head, data.speed), 2);
    const Machine copy = CDS::read(head, data);
    EXPECT_EQ(copy.speed, 2);
    EXPECT_EQ(copy.position.east, 4);
    EXPECT_FALSE(head.is_held_by_this_thread());
}

TEST_F(CdsHead, MovesAnAccessToAnotherPlace)
{
    Listener<double> speed(head, data.speed);
    head.deliver();
    speed.access.init(CDS::Access_base(&head, head.offset_of(data.area), 1));
    speed.variable = &data.position.north;
    EXPECT_EQ(head.deliver(), 1U) << "for a start";
    write(data.speed, 1);
    EXPECT_EQ(head.deliver(), 0U);
    write(data.area, 1);
    EXPECT_EQ(head.deliver(), 1U);
}

TEST_F(CdsHead, LetsAccessesComeAndGoOnAThreadThatHoldsTheLock)
{
    const CDS::Write writing(head);
    {
        Listener<double> speed(head, data.speed);
    }
    EXPECT_TRUE(head.is_held_by_this_thread());
}

TEST_F(CdsHead, DoesNotDeliverWhatIsSettled)
{
    Listener<double> speed(head, data.speed);
    Listener<float> pressure(head, data.pressure);
    Listener<long long> area(head, data.area);
    pressure.access.settle();
    EXPECT_EQ(head.deliver(), 2U);
    EXPECT_EQ(pressure.heard, 0);
    pressure.access.settle();
    EXPECT_EQ(head.deliver(), 0U) << "it was settled already";
    write(data.pressure, 1);
    write(data.area, 1);
    speed.access.settle();
    EXPECT_EQ(head.deliver(), 2U) << "and the others wait in their places";
    CDS::Access_base nowhere;
    nowhere.settle();
}

TEST_F(CdsHead, LetsAnAccessGoThatIsGivenNoPlace)
{
    Listener<double> speed(head, data.speed);
    speed.access.init(CDS::Access_base());
    EXPECT_EQ(speed.access.head(), nullptr);
    write(data.speed, 1);
    EXPECT_EQ(head.deliver(), 0U);
}

TEST_F(CdsHead, KeepsAPlaceWithoutAListenerToItself)
{
    CDS::Access_base place;
    place.init(CDS::Access_base(&head, 0, 1));
    EXPECT_EQ(place.head(), &head);
    EXPECT_EQ(place.offset(), 0U);
    EXPECT_EQ(place.extent(), 1U);
    write(data.speed, 1);
    EXPECT_EQ(head.deliver(), 0U);
}

TEST_F(CdsHead, LeavesAccessesWithoutAStoreWhenItGoesFirst)
{
    auto store = std::make_unique<CDS::Head>(data);
    Listener<double> one(*store, data.speed);
    Listener<double> two(*store, data.speed);
    Listener<Machine> across(*store, data);
    store.reset();
    EXPECT_EQ(one.access.head(), nullptr);
    EXPECT_EQ(two.access.head(), nullptr);
    EXPECT_EQ(across.access.head(), nullptr);
}

TEST_F(CdsHead, TakesDataOfNoMoreThan4GiB)
{
    if constexpr (sizeof(std::size_t) > 4) {
        try {
            CDS::Head(&data, std::size_t{0xFFFFFFFF} + 1);
            FAIL() << "taken";
        } catch (const std::length_error& error) {
            EXPECT_STREQ(error.what(), "CDS: data of 4294967296 bytes are too large for one store");
        }
    }
}

TEST_F(CdsHead, DeliversWhatAnotherThreadWrote)
{
    Listener<double> speed(head, data.speed);
    head.deliver();
    std::thread other([&] { write(data.speed, 6); });
    ASSERT_TRUE(is_readable(head.descriptor(), std::chrono::seconds(10)));
    head.deliver();
    other.join();
    EXPECT_EQ(speed.seen, 6);
}

} // namespace
