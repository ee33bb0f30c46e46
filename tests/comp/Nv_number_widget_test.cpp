#include "vtui/comp/widgets/Nv_number_widget.h"

#include "nv_store/Store.h"
#include "nv_store/waiter_descriptor.h"
#include "tests/Virtual_slot.h"
#include "tests/comp/Number_field.h"

#include <cmath>
#include <limits>
#include <memory>
#include <string>
#include <type_traits>

using namespace number_field;

namespace {

using NV_store::NV_number;
using VT::Comp::Nv_number_widget;
using VT::Comp::Visible_event;

using Double = NV_number<double, Data_item::float64>;
using Byte = NV_number<unsigned char, Data_item::uint8>;
using Int = NV_number<int, Data_item::int32>;

Bytes numeric_value(Iso::Object_id id, std::int64_t value) { return frame(0xA8, w(id), 0xFF, d(value)); }

constexpr Specification wide = bounded(-1e6, 1e6);

class NvNumberWidget : public Field
{
  protected:
    static constexpr Specification kilometres = bounded(0, 100, 1, 0, Units_man::distance_long);
    static constexpr Specification miles = bounded(0, 62, 1, 0, Units_man::distance_long);

    NvNumberWidget() { imperial.set_system_type(Units_man::imperial); }

    Units_man metric;
    Units_man imperial;
    NV_store::Store store{NV_store::Store::in_memory};
    waiter_descriptor waiter;
    Double number{store, "number", 12};
    Nv_number_widget<Double> field{number, style(0, true), wide, nullptr};
};

/// What a number of that type holds after an operator entered v.
template <typename T, Data_item::item_type_t code>
T entered(double v)
{
    NV_store::Store store(NV_store::Store::in_memory);
    NV_number<T, code> number(store, "number", 1);
    Nv_number_widget<NV_number<T, code>> field(number, Style(), nullptr);
    field.handle_input_value(v);
    return number.get();
}

constexpr double nan = std::numeric_limits<double>::quiet_NaN();

TEST_F(NvNumberWidget, ShowsWhatIsStoredWhenItStarts)
{
    field.init(nullptr);
    EXPECT_EQ(field.get_value(), 0);
    field.start(&waiter);
    EXPECT_EQ(field.get_value(), 12);
    EXPECT_EQ(waiter.deliver(), 0U) << "at once, not by a notification";
}

TEST_F(NvNumberWidget, ShowsChangesUntilItStops)
{
    field.start(&waiter);
    number.set(13);
    EXPECT_EQ(field.get_value(), 12) << "not before the waiter delivers";
    waiter.deliver();
    EXPECT_EQ(field.get_value(), 13);

    field.stop(&waiter);
    number.set(14);
    EXPECT_EQ(waiter.deliver(), 0U);
    EXPECT_EQ(field.get_value(), 13) << "it keeps what it showed last";
}

TEST_F(NvNumberWidget, DropsTheChangeOnTheWayWhenItStops)
{
    field.start(&waiter);
    number.set(13);
    field.stop(&waiter);
    EXPECT_EQ(waiter.deliver(), 0U);
    EXPECT_EQ(field.get_value(), 12);
}

TEST_F(NvNumberWidget, ShowsNothingNewWhileItIsHidden)
{
    field.handle_event(Visible_event{true, &waiter});
    EXPECT_EQ(field.get_value(), 12);
    field.handle_event(Visible_event{false, &waiter});
    number.set(13);
    waiter.deliver();
    EXPECT_EQ(field.get_value(), 12);
    field.handle_event(Visible_event{true, &waiter});
    EXPECT_EQ(field.get_value(), 13);
    number.set(14);
    waiter.deliver();
    EXPECT_EQ(field.get_value(), 14);
}

TEST_F(NvNumberWidget, MayStartAndStopTwice)
{
    field.start(&waiter);
    field.start(&waiter);
    number.set(13);
    EXPECT_EQ(waiter.deliver(), 1U);
    field.stop(&waiter);
    field.stop(&waiter);
    number.set(14);
    EXPECT_EQ(waiter.deliver(), 0U);
}

TEST_F(NvNumberWidget, IsUpToDateWhenItRegistersAgain)
{
    field.start(&waiter);
    field.stop(&waiter);
    number.set(13);
    field.start(&waiter);
    EXPECT_EQ(field.get_value(), 13);
    EXPECT_EQ(waiter.deliver(), 0U) << "shown before it is registered, so there is nothing left to tell";
}

TEST_F(NvNumberWidget, ShowsBeforeItRegisters)
{
    // A field whose pool changes the number while it is shown: what it registers for is already old.
    struct Changing final : Fake_pool
    {
        void send(const std::uint8_t*, std::size_t, const void*, std::size_t) override
        {
            if (number)
                std::exchange(number, nullptr)->set(13);
        }
        Double* number{nullptr};
    };
    Changing changing;
    changing.take(field.output_number, output_id);
    changing.live = true;
    field.init(nullptr);
    changing.number = &number;
    field.start(&waiter);
    EXPECT_EQ(field.get_value(), 12);
    EXPECT_EQ(waiter.deliver(), 1U) << "the change in between is not missed";
    EXPECT_EQ(field.get_value(), 13);
}

TEST_F(NvNumberWidget, HoldsWhatItShowsWithinItsLimits)
{
    Nv_number_widget<Double> limited(number, style(), bounded(0, 10), nullptr);
    limited.start(&waiter);
    EXPECT_EQ(limited.get_value(), 10);
    EXPECT_EQ(number.get(), 12) << "and leaves the store as it is";
}

TEST_F(NvNumberWidget, StoresWhatIsEntered)
{
    take(field);
    field.init(nullptr);
    VT::VT_change_numeric_value_event event{input_id, 1'000'037};
    field.handle_event(event);
    EXPECT_EQ(number.get(), 37) << "hidden as it is";
    EXPECT_EQ(field.get_value(), 37);
    field.increment(2.5);
    EXPECT_EQ(number.get(), 39.5);
    field.decrement(1);
    EXPECT_EQ(number.get(), 38.5);
    field.set_value(3);
    EXPECT_EQ(number.get(), 38.5) << "nobody entered it";
}

TEST_F(NvNumberWidget, LeavesAnEntryOnTheScreenAsItWasEntered)
{
    // Beyond the limits as they are in the store's units: shown anew it would be held within them.
    Nv_number_widget<Double> limited(number, style(), bounded(0, 30), nullptr);
    limited.start(&waiter);
    limited.value = 37;
    limited.handle_input_value(37);
    EXPECT_EQ(waiter.deliver(), 0U);
    EXPECT_EQ(limited.get_value(), 37);
    EXPECT_EQ(number.get(), 37);
    number.set(38);
    EXPECT_EQ(waiter.deliver(), 1U) << "that is another's";
    EXPECT_EQ(limited.get_value(), 30);
}

TEST_F(NvNumberWidget, StoresAnEntryBeyondItsLimits)
{
    Nv_number_widget<Double> limited(number, style(), bounded(0, 5), nullptr);
    limited.handle_input_value(7);
    EXPECT_EQ(number.get(), 7);
}

TEST_F(NvNumberWidget, IsHiddenWithoutAWaiterToo)
{
    field.handle_event(Visible_event{true, &waiter});
    field.handle_event(Visible_event{false, nullptr});
    number.set(13);
    EXPECT_EQ(waiter.deliver(), 0U);
    EXPECT_EQ(field.get_value(), 12);
}

TEST_F(NvNumberWidget, ShowsWhatIsStoredAfterAnEntryThatTheTypeRounds)
{
    Int whole(store, "whole", 2);
    Nv_number_widget<Int> rounded(whole, style(), bounded(-1000, 1000, 0.1, 1), nullptr);
    rounded.init(nullptr);
    rounded.start(&waiter);
    for (const auto& [entry, stored] : {std::pair(3.4, 3.0), {3.4, 3.0}, {2.6, 3.0}, {7.0, 7.0}}) {
        rounded.value = entry; // as handle_input() leaves it
        rounded.handle_input_value(entry);
        waiter.deliver();
        EXPECT_EQ(rounded.get_value(), stored) << entry;
    }
    rounded.handle_input_value(7);
    EXPECT_EQ(waiter.deliver(), 0U) << "this is what it shows already";
}

TEST_F(NvNumberWidget, LeavesAnEntryThatTheTypeRoundsOnTheScreenIfItLooksTheSame)
{
    NV_number<float, Data_item::float32> distance(store, "distance");
    Nv_number_widget<NV_number<float, Data_item::float32>> input(distance, style(0, true), kilometres, miles, nullptr);
    input.init(nullptr);
    input.start(&waiter);
    input.handle_event(imperial);
    input.handle_input(60);
    EXPECT_NEAR(static_cast<double>(distance.get()), 96.56064, 1e-4);
    EXPECT_EQ(waiter.deliver(), 0U) << "told, it would be held within 62, as if those were kilometres";
    EXPECT_EQ(input.output_number.value, 60U);
}

TEST_F(NvNumberWidget, ShowsAnEntryThatWasNotOnTheScreen)
{
    field.start(&waiter);
    field.handle_input_value(7); // handed over by the application
    EXPECT_EQ(number.get(), 7);
    EXPECT_EQ(waiter.deliver(), 1U);
    EXPECT_EQ(field.get_value(), 7);
}

TEST_F(NvNumberWidget, ShowsWhatIsStoredAgainWhenUnitsSwitch)
{
    number.set(90);
    Nv_number_widget<Double> distance(number, style(), kilometres, miles, nullptr);
    distance.init(nullptr);
    distance.start(&waiter);
    distance.handle_event(imperial);
    EXPECT_EQ(distance.get_value(), 62) << "held within the limits of the system shown";
    EXPECT_EQ(distance.output_number.value, 39U);
    distance.handle_event(metric);
    EXPECT_EQ(distance.get_value(), 90);
    EXPECT_EQ(distance.output_number.value, 90U);
}

TEST_F(NvNumberWidget, KeepsItsOwnValueWhenUnitsSwitch)
{
    field.start(&waiter);
    field.stop(&waiter);
    number.set(90);
    field.handle_event(imperial);
    EXPECT_EQ(field.get_value(), 12);
}

TEST_F(NvNumberWidget, SharesANumberWithOthers)
{
    Nv_number_widget<Double> other(number, style(), wide, nullptr);
    field.start(&waiter);
    other.start(&waiter);
    field.handle_input(1'000'037);
    EXPECT_EQ(waiter.deliver(), 1U);
    EXPECT_EQ(other.get_value(), 37);
}

TEST_F(NvNumberWidget, MayGoWithAChangeOnTheWay)
{
    auto other = std::make_unique<Nv_number_widget<Double>>(number, style(), wide, nullptr);
    other->start(&waiter);
    field.start(&waiter);
    number.set(13);
    other.reset();
    EXPECT_EQ(waiter.deliver(), 1U);
    EXPECT_EQ(field.get_value(), 13);
}

TEST_F(NvNumberWidget, SendsWhatItShows)
{
    field.init(nullptr);
    field.set_size({100, 40});
    take(field);
    pool.live = true;

    field.handle_event(Visible_event{true, &waiter});
    EXPECT_EQ(pool.news(), (Messages{numeric_value(output_id, 1'000'012), numeric_value(input_id, 1'000'012)}));
    number.set(13);
    number.set(14);
    EXPECT_TRUE(pool.news().empty());
    waiter.deliver();
    EXPECT_EQ(pool.news(), (Messages{numeric_value(output_id, 1'000'014), numeric_value(input_id, 1'000'014)}));
    number.set(14);
    waiter.deliver();
    EXPECT_TRUE(pool.news().empty()) << "no change";

    field.handle_event(Visible_event{false, &waiter});
    number.set(15);
    waiter.deliver();
    EXPECT_TRUE(pool.news().empty());
    VT::VT_change_numeric_value_event event{input_id, 1'000'037};
    field.handle_event(event);
    EXPECT_EQ(pool.news(), (Messages{numeric_value(output_id, 1'000'037)}));
    EXPECT_EQ(number.get(), 37);
}

TEST_F(NvNumberWidget, SendsNothingBeforeItHasIds)
{
    pool.live = true;
    field.start(&waiter);
    number.set(13);
    waiter.deliver();
    EXPECT_TRUE(pool.news().empty());
    EXPECT_EQ(field.output_number.value, 13U) << "system 0 is not shown before init(): no offset";
}

TEST_F(NvNumberWidget, HasTheUnitsOfTheManagerOrOfItsConstructor)
{
    const Specification speed = bounded(0, 50, 1, 0, Units_man::speed);
    Nv_number_widget<Double> manager(number, style(), speed, nullptr);
    manager.init(&pool);
    EXPECT_EQ(manager.units_variable, Units_man::get_units_string(&pool, Units_man::speed));
    EXPECT_NE(manager.units_variable, nullptr);
    Nv_number_widget<Double> own(number, style(), speed, &mph.variable);
    own.init(&pool);
    EXPECT_EQ(own.units_variable, &mph.variable);
}

TEST_F(NvNumberWidget, TakesTheSpecificationsOfANumberWidget)
{
    const auto maxima = [](const Number_widget& widget) {
        return std::vector<double>{widget.specifications[0].max, widget.specifications[1].max,
                                   widget.specifications[2].max};
    };
    const Specification s0 = bounded(0, 10);
    const Specification s1 = bounded(0, 11);
    const Specification s2 = bounded(0, 12);
    using Widget = Nv_number_widget<Double>;
    EXPECT_EQ(maxima(Widget(number, style(), s0, s1, s2, nullptr)), (std::vector<double>{10, 11, 12}));
    EXPECT_EQ(maxima(Widget(number, style(), s0, s1, nullptr)), (std::vector<double>{10, 11, 11}));
    EXPECT_EQ(maxima(Widget(number, style(), s0, nullptr)), (std::vector<double>{10, 10, 10}));
    EXPECT_EQ(maxima(Widget(number, style(), nullptr)), (std::vector<double>{0, 0, 0}));
}

TEST_F(NvNumberWidget, TakesTheEventsOfANumberWidget)
{
    Units_man units;
    units.set_system_type(Units_man::us);
    field.set_size({100, 40});
    field.handle_event(units);
    EXPECT_EQ(field.system, Units_man::us);
    field.handle_event(VT::VT_information{});
    EXPECT_EQ(field.placements.placements[0].ref, &field.output_number);
}

TEST(NvNumberWidgetEntry, OfABoolIsWhetherItRoundsToOtherThan0)
{
    constexpr auto enter = entered<bool, Data_item::boolean>;
    EXPECT_FALSE(enter(0.4));
    EXPECT_TRUE(enter(0.6));
    EXPECT_TRUE(enter(-0.6));
    EXPECT_FALSE(enter(-0.5));
    EXPECT_TRUE(enter(1.5));
    EXPECT_TRUE(enter(nan));
}

TEST(NvNumberWidgetEntry, OfASmallIntegerKeepsTheLowBits)
{
    EXPECT_EQ((entered<unsigned char, Data_item::uint8>(300.4)), 44);
    EXPECT_EQ((entered<unsigned char, Data_item::uint8>(-1)), 255);
    EXPECT_EQ((entered<unsigned short, Data_item::uint16>(65536.2)), 0);
    EXPECT_EQ((entered<unsigned short, Data_item::uint16>(-1)), 65535);
    EXPECT_EQ((entered<signed char, Data_item::int8>(200)), -56);
    EXPECT_EQ((entered<short, Data_item::int16>(2.5)), 2);
    EXPECT_EQ((entered<short, Data_item::int16>(40000)), -25536);
    EXPECT_EQ((entered<short, Data_item::int16>(1e10)), 0) << "the low bits of -2^31";
    EXPECT_EQ((entered<unsigned char, Data_item::uint8>(nan)), 0);
}

TEST(NvNumberWidgetEntry, OfALargeIntegerRoundsToTheEvenOne)
{
    EXPECT_EQ((entered<int, Data_item::int32>(2.5)), 2);
    EXPECT_EQ((entered<int, Data_item::int32>(3.5)), 4);
    EXPECT_EQ((entered<int, Data_item::int32>(2147483648.0)), std::numeric_limits<int>::min());
    EXPECT_EQ((entered<int, Data_item::int32>(nan)), std::numeric_limits<int>::min());
    EXPECT_EQ((entered<unsigned int, Data_item::uint32>(3e9)), 3000000000U);
    EXPECT_EQ((entered<unsigned int, Data_item::uint32>(-1)), 4294967295U);
    EXPECT_EQ((entered<long long, Data_item::int64>(-2.5)), -2);
    EXPECT_EQ((entered<long long, Data_item::int64>(0x1p63)), std::numeric_limits<long long>::min());
    EXPECT_EQ((entered<unsigned long long, Data_item::uint64>(0x1p63)), 1ULL << 63);
    EXPECT_EQ((entered<unsigned long long, Data_item::uint64>(0x1p64)), 0U);
}

TEST(NvNumberWidgetEntry, OfAFloatingNumberStaysWhatItIs)
{
    EXPECT_EQ((entered<float, Data_item::float32>(0.1)), 0.1F);
    EXPECT_EQ((entered<float, Data_item::float32>(1e300)), HUGE_VALF);
    EXPECT_EQ((entered<float, Data_item::float32>(-1e300)), -HUGE_VALF);
    EXPECT_EQ((entered<double, Data_item::float64>(0.1)), 0.1);
    EXPECT_TRUE(std::isnan(entered<double, Data_item::float64>(nan)));
}

/// A field of each type shows what is stored.
template <typename T, int code>
void expect_shown(T stored, double shown)
{
    SCOPED_TRACE(code);
    using N = NV_number<T, static_cast<Data_item::item_type_t>(code)>;
    NV_store::Store store(NV_store::Store::in_memory);
    waiter_descriptor waiter;
    N number(store, "number", T(0));
    Nv_number_widget<N> field(number, Style(), bounded(-1e30, 1e30), nullptr);
    field.start(&waiter);
    number.set(stored);
    waiter.deliver();
    EXPECT_EQ(field.get_value(), shown);
}

TEST(NvNumberWidgetOfEachType, ShowsWhatIsStored)
{
    expect_shown<bool, 2>(true, 1);
    expect_shown<unsigned char, 4>(200, 200);
    expect_shown<unsigned short, 5>(60000, 60000);
    expect_shown<unsigned int, 6>(4000000000, 4e9);
    expect_shown<signed char, 7>(-100, -100);
    expect_shown<short, 8>(-30000, -30000);
    expect_shown<int, 9>(-2000000000, -2e9);
    expect_shown<float, 10>(0.1F, static_cast<double>(0.1F));
    expect_shown<double, 11>(0.1, 0.1);
    expect_shown<unsigned long long, 15>(1ULL << 63, 0x1p63);
    expect_shown<long long, 16>(-(1LL << 62), -0x1p62);
}

TEST(NvNumberWidgetShape, IsANumberWidgetFirst)
{
    using Widget = Nv_number_widget<Byte>;
    static_assert(std::is_base_of_v<NV_store::Access<Byte, NV_store::Virt_access>, Widget>);
    NV_store::Store store(NV_store::Store::in_memory);
    Byte number(store, "number");
    Widget field(number, Style(), nullptr);
    EXPECT_EQ(static_cast<void*>(static_cast<Number_widget*>(&field)), &field);
    // The destructor takes slots 1 and 2.
    EXPECT_EQ(virtual_slot(&Widget::handle_input_value), 0U);
    EXPECT_EQ(virtual_slot(static_cast<void (Widget::*)()>(&Widget::handle_event)), 3U);
}

} // namespace
