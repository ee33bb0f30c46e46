#include "tests/Virtual_slot.h"
#include "tests/comp/Number_field.h"
#include "tests/platform/Readable.h"
#include "vtui/comp/widgets/Cds_number_widget.h"

#include <algorithm>
#include <atomic>
#include <chrono>
#include <cmath>
#include <cstddef>
#include <initializer_list>
#include <limits>
#include <memory>
#include <optional>
#include <stdexcept>
#include <thread>
#include <type_traits>
#include <utility>

using namespace number_field;
using VT::Comp::Cds_number_widget;
using VT::Comp::Cds_widget_mixin;

namespace {

Bytes numeric_value(Iso::Object_id id, std::int64_t value) { return frame(0xA8, w(id), 0xFF, d(value)); }

struct Data
{
    double d{0};
    float f{0};
    unsigned char uc{0};
    signed char sc{0};
    unsigned short us{0};
    short s{0};
    int i{0};
    unsigned int u{0};
    long long ll{0};
    unsigned long long ull{0};
};

constexpr double nan = std::numeric_limits<double>::quiet_NaN();

/// A store and what fields borrow.
class CdsNumberWidget : public Field
{
  protected:
    static constexpr Specification tens = bounded(-1000, 1000, 0.1, 1);
    static constexpr Specification kilometres = bounded(0, 100, 1, 0, Units_man::distance_long);
    static constexpr Specification miles = bounded(0, 62, 1, 0, Units_man::distance_long);

    static Units_man shown_in(Units_man::units_systems system)
    {
        Units_man units;
        units.set_system_type(system);
        return units;
    }

    /// 60 miles entered for a variable of type T are 60 miles on the screen after a delivery.
    template <class T>
    void expect_an_entry_of_60_miles_to_stay(T& variable)
    {
        Cds_number_widget<T> input(head, variable, style(0, true), kilometres, miles, nullptr);
        go_live(input);
        Units_man imperial = shown_in(Units_man::imperial);
        input.handle_event(imperial);
        pool.news();

        enter(input, 60);
        EXPECT_NEAR(static_cast<double>(variable), 96.56, 0.5);
        EXPECT_EQ(head.deliver(), 0U) << "told, it would be held within 62, as if those were kilometres";
        EXPECT_EQ(input.output_number.value, 60U);
        EXPECT_EQ(pool.news(), Messages{numeric_value(output_id, 60)});
        pool.live = false;
    }

    /// Initialised and laid out, its start delivered and the terminal told of all.
    void go_live(Number_widget& field)
    {
        field.init(nullptr, nullptr);
        field.set_size({100, 40});
        head.deliver();
        take(field);
        pool.live = true;
    }

    template <class T>
    void write(T& variable, T value)
    {
        CDS::Write writing(head);
        writing.set(variable, value);
    }

    static void enter(Number_widget& field, std::uint32_t raw)
    {
        VT::VT_change_numeric_value_event event{input_id, raw};
        field.handle_event(event);
    }

    /// What the variable is after the value was entered.
    template <class T>
    void expect_stored(T& variable, std::initializer_list<std::pair<double, T>> cases)
    {
        Cds_number_widget<T> field(head, variable, style(0, true), nullptr);
        for (const auto& [entered, stored] : cases) {
            variable = 1;
            field.handle_input_value(entered);
            EXPECT_EQ(variable, stored) << entered;
        }
    }

    Data data;
    CDS::Head head{data};
};

TEST_F(CdsNumberWidget, TakesTheConstructorsOfANumberWidget)
{
    const Specification a = bounded(0, 1);
    const Specification b = bounded(0, 2);
    const Specification c = bounded(0, 3);
    const auto limits = [](const Number_widget& field) {
        return std::vector<double>{field.specifications[0].max, field.specifications[1].max,
                                   field.specifications[2].max};
    };
    const Cds_number_widget<int> three(head, data.i, style(2, true), a, b, c, &mph.variable);
    EXPECT_EQ(limits(three), (std::vector<double>{1, 2, 3}));
    EXPECT_EQ(three.layout, 2U);
    EXPECT_EQ(three.units_variables[2], &mph.variable);
    const Cds_number_widget<int> two(head, data.i, style(), a, b, nullptr);
    EXPECT_EQ(limits(two), (std::vector<double>{1, 2, 2}));
    const Cds_number_widget<int> one(head, data.i, style(), a, nullptr);
    EXPECT_EQ(limits(one), (std::vector<double>{1, 1, 1}));
    const Cds_number_widget<int> none(head, data.i, style(), nullptr);
    EXPECT_EQ(limits(none), (std::vector<double>{0, 0, 0}));
}

TEST_F(CdsNumberWidget, IsBoundByTheOffsetOfItsVariable)
{
    const Cds_number_widget<long long> field(head, data.ll, style(), nullptr);
    EXPECT_EQ(field.access.head(), &head);
    EXPECT_EQ(field.access.offset(), offsetof(Data, ll));
    EXPECT_EQ(field.access.extent(), 1U);
    EXPECT_EQ(field.variable, &data.ll);
}

TEST_F(CdsNumberWidget, RefusesAVariableThatTheStoreDoesNotHave)
{
    double elsewhere = 0;
    EXPECT_THROW(Cds_number_widget<double>(head, elsewhere, style(), nullptr), std::out_of_range);
    EXPECT_EQ(head.deliver(), 0U);
}

TEST_F(CdsNumberWidget, DoesNotReadTheStoreWhenItIsInitialised)
{
    data.d = 7;
    Cds_number_widget<double> field(head, data.d, style(), tens, nullptr);
    field.init(nullptr, nullptr);
    EXPECT_EQ(field.get_value(), 0);
}

TEST_F(CdsNumberWidget, ShowsWhatTheStoreHoldsFromTheFirstDeliveryOn)
{
    data.d = 7;
    Cds_number_widget<double> field(head, data.d, style(), tens, nullptr);
    head.deliver();
    EXPECT_EQ(field.get_value(), 7);
    field.init(nullptr, nullptr);
    EXPECT_EQ(field.get_value(), 7);
    EXPECT_EQ(field.output_number.value, 10070U);
}

TEST_F(CdsNumberWidget, ShowsAChangeInTheStore)
{
    Cds_number_widget<int> field(head, data.i, style(), tens, nullptr);
    field.init(nullptr, nullptr);
    head.deliver();
    write(data.i, 7);
    EXPECT_EQ(field.get_value(), 0);
    head.deliver();
    EXPECT_EQ(field.get_value(), 7);
    EXPECT_EQ(field.output_number.value, 10070U);
}

TEST_F(CdsNumberWidget, HoldsWhatItShowsWithinItsLimitsAndLeavesTheStoreAlone)
{
    Cds_number_widget<int> field(head, data.i, style(0, true), bounded(0, 5), nullptr);
    field.init(nullptr, nullptr);
    write(data.i, 7);
    head.deliver();
    EXPECT_EQ(field.get_value(), 5);
    EXPECT_EQ(data.i, 7);
}

TEST_F(CdsNumberWidget, SendsAChangeInTheStoreOnceItIsDelivered)
{
    Cds_number_widget<int> input(head, data.i, style(0, true), tens, nullptr);
    go_live(input);
    write(data.i, 6);
    write(data.i, 7);
    EXPECT_TRUE(pool.news().empty());
    head.deliver();
    EXPECT_EQ(pool.news(), (Messages{numeric_value(output_id, 10070), numeric_value(input_id, 10070)}));
    head.deliver();
    EXPECT_TRUE(pool.news().empty());
}

TEST_F(CdsNumberWidget, SendsAChangeInTheStoreToAnOutputAlone)
{
    Cds_number_widget<int> shown(head, data.i, style(0, false), tens, nullptr);
    go_live(shown);
    write(data.i, -7);
    head.deliver();
    EXPECT_EQ(pool.news(), Messages{numeric_value(output_id, 9930)});
}

TEST_F(CdsNumberWidget, WritesWhatTheOperatorEntersAndThenShowsWhatIsStored)
{
    Cds_number_widget<int> input(head, data.i, style(0, true), tens, nullptr);
    go_live(input);
    enter(input, 10124); // 12.4
    EXPECT_EQ(data.i, 12);
    EXPECT_EQ(pool.news(), Messages{numeric_value(output_id, 10124)});
    EXPECT_TRUE(is_readable(head.descriptor()));
    head.deliver();
    EXPECT_EQ(pool.news(), (Messages{numeric_value(output_id, 10120), numeric_value(input_id, 10120)}));
    EXPECT_EQ(data.i, 12);
    EXPECT_FALSE(is_readable(head.descriptor()));
}

TEST_F(CdsNumberWidget, LeavesAnEntryOnTheScreenAsItWasEntered)
{
    // Beyond the limits as they are in the store's units: shown anew it would be held within them.
    Cds_number_widget<double> input(head, data.d, style(0, true), bounded(-1000, 30, 0.1, 1), nullptr);
    go_live(input);
    enter(input, 10370);
    EXPECT_DOUBLE_EQ(data.d, 37);
    EXPECT_EQ(pool.news(), Messages{numeric_value(output_id, 10370)});
    EXPECT_EQ(head.deliver(), 0U);
    EXPECT_TRUE(pool.news().empty());
    write(data.d, 38.0);
    EXPECT_EQ(head.deliver(), 1U) << "that is another's";
    EXPECT_EQ(input.get_value(), 30);
}

TEST_F(CdsNumberWidget, LeavesAnEntryThatTheTypeRoundsOnTheScreenIfItLooksTheSame)
{
    expect_an_entry_of_60_miles_to_stay(data.d);
    expect_an_entry_of_60_miles_to_stay(data.f);
    expect_an_entry_of_60_miles_to_stay(data.uc);
    expect_an_entry_of_60_miles_to_stay(data.sc);
    expect_an_entry_of_60_miles_to_stay(data.us);
    expect_an_entry_of_60_miles_to_stay(data.s);
    expect_an_entry_of_60_miles_to_stay(data.i);
    expect_an_entry_of_60_miles_to_stay(data.u);
    expect_an_entry_of_60_miles_to_stay(data.ll);
    expect_an_entry_of_60_miles_to_stay(data.ull);
}

TEST_F(CdsNumberWidget, ShowsWhatATypeMakesOfAnEntryThatWrapsAround)
{
    Cds_number_widget<unsigned> input(head, data.u, style(0, true), bounded(-1000, 1000), nullptr);
    go_live(input);
    enter(input, 0); // -1000, as a raw number the same as what is stored
    EXPECT_EQ(data.u, 4294966296U);
    EXPECT_EQ(head.deliver(), 1U);
    EXPECT_EQ(input.get_value(), 1000) << "held within the limits";
}

TEST_F(CdsNumberWidget, ShowsAnEntryThatWasNotOnTheScreen)
{
    Cds_number_widget<double> field(head, data.d, style(0, true), bounded(0, 10), nullptr);
    go_live(field);
    write(data.d, 3.0);
    head.deliver();
    pool.news();
    field.handle_input_value(7); // handed over by the application
    EXPECT_EQ(data.d, 7);
    EXPECT_EQ(head.deliver(), 1U);
    EXPECT_EQ(field.get_value(), 7);
    EXPECT_EQ(pool.news(), (Messages{numeric_value(output_id, 7), numeric_value(input_id, 7)}));
}

TEST_F(CdsNumberWidget, ShowsWhatTheStoreHoldsAgainWhenUnitsSwitch)
{
    data.d = 90;
    Cds_number_widget<double> field(head, data.d, style(), kilometres, miles, nullptr);
    go_live(field);
    Units_man imperial = shown_in(Units_man::imperial);
    field.handle_event(imperial);
    EXPECT_EQ(field.get_value(), 62) << "held within the limits of the system shown";
    EXPECT_EQ(field.output_number.value, 39U);
    EXPECT_EQ(data.d, 90);
    pool.news();

    Units_man metric = shown_in(Units_man::metric);
    field.handle_event(metric);
    EXPECT_EQ(field.get_value(), 90);
    const Messages sent = pool.news();
    ASSERT_GE(sent.size(), 1U);
    EXPECT_EQ(std::count(sent.begin(), sent.end(), numeric_value(output_id, 90)), 1);
    EXPECT_EQ(std::count(sent.begin(), sent.end(), numeric_value(output_id, 62)), 0) << "not for a moment";
}

TEST_F(CdsNumberWidget, KeepsAValueThatTheStoreDoesNotHaveWhenUnitsSwitch)
{
    data.d = 10;
    Cds_number_widget<double> field(head, data.d, style(), kilometres, miles, nullptr);
    go_live(field);
    field.set_value(50);
    Units_man imperial = shown_in(Units_man::imperial);
    field.handle_event(imperial);
    EXPECT_EQ(field.get_value(), 50);
    write(data.d, 20.0); // not delivered yet
    Units_man metric = shown_in(Units_man::metric);
    field.handle_event(metric);
    EXPECT_EQ(field.get_value(), 50);
}

TEST_F(CdsNumberWidget, FollowsTheUnitsWithoutAStore)
{
    std::optional<CDS::Head> store(data);
    Cds_number_widget<double> field(*store, data.d, style(), kilometres, miles, nullptr);
    field.init(nullptr, nullptr);
    field.set_size({100, 40});
    store.reset();
    Units_man imperial = shown_in(Units_man::imperial);
    field.handle_event(imperial);
    EXPECT_EQ(field.system, Units_man::imperial);
}

TEST_F(CdsNumberWidget, KeepsItsValueWhereNoSystemOfItsQuantityIsChosen)
{
    Cds_number_widget<double> field(head, data.d, style(), bounded(0, 100, 1, 0, Units_man::speed),
                                    bounded(0, 100, 1, 0, Units_man::mass), bounded(0, 100, 1, 0, Units_man::area),
                                    nullptr);
    go_live(field);
    write(data.d, 190.0);
    head.deliver();
    EXPECT_EQ(field.get_value(), 100) << "held within the limits";
    Units_man units;
    units.set_system_type(Units_man::speed, Units_man::us);
    field.handle_event(units);
    EXPECT_EQ(field.get_value(), 100) << "as the terminal shows it";
    EXPECT_EQ(field.output_number.value, 100U);
}

TEST_F(CdsNumberWidget, ShowsWhatATypeMakesOfAnEntryEachTime)
{
    Cds_number_widget<int> input(head, data.i, style(0, true), tens, nullptr);
    go_live(input);
    for (int i = 0; i < 2; ++i) {
        enter(input, 10124); // 12.4
        EXPECT_EQ(head.deliver(), 1U);
        EXPECT_EQ(input.get_value(), 12);
    }
}

TEST_F(CdsNumberWidget, StoresAnEntryBeyondItsLimits)
{
    Cds_number_widget<double> input(head, data.d, style(0, true), bounded(0, 5), nullptr);
    input.handle_input_value(7);
    EXPECT_EQ(data.d, 7);
}

TEST_F(CdsNumberWidget, WritesNothingForAnEntryElsewhere)
{
    Cds_number_widget<int> input(head, data.i, style(0, true), tens, nullptr);
    go_live(input);
    VT::VT_change_numeric_value_event event{output_id, 10124};
    input.handle_event(event);
    EXPECT_EQ(data.i, 0);
    EXPECT_FALSE(is_readable(head.descriptor()));
}

TEST_F(CdsNumberWidget, WritesAnEntryBeforeItHasItsIds)
{
    Cds_number_widget<double> input(head, data.d, style(0, true), tens, nullptr);
    input.init(nullptr, nullptr);
    input.handle_input(10125);
    EXPECT_DOUBLE_EQ(data.d, 12.5);
}

TEST_F(CdsNumberWidget, WritesItsSteps)
{
    Cds_number_widget<double> field(head, data.d, style(0, true), bounded(0, 10), nullptr);
    field.init(nullptr, nullptr);
    field.increment(4);
    EXPECT_EQ(data.d, 4);
    field.decrement(1);
    EXPECT_EQ(data.d, 3);
    field.increment(100);
    EXPECT_EQ(data.d, 10) << "held within the limits first";
}

TEST_F(CdsNumberWidget, DoesNotWriteWhatIsOnlyShown)
{
    Cds_number_widget<double> field(head, data.d, style(0, true), tens, nullptr);
    field.init(nullptr, nullptr);
    head.deliver();
    field.set_value(4);
    field.set_system(Units_man::us);
    field.handle_cds_value(5);
    EXPECT_EQ(field.get_value(), 5);
    EXPECT_EQ(data.d, 0);
    EXPECT_FALSE(is_readable(head.descriptor()));
}

TEST_F(CdsNumberWidget, TellsTheOthersThatShowTheVariable)
{
    Cds_number_widget<int> input(head, data.i, style(0, true), tens, nullptr);
    Cds_number_widget<int> other(head, data.i, style(), tens, nullptr);
    Cds_number_widget<unsigned> stranger(head, data.u, style(), tens, nullptr);
    head.deliver();
    input.handle_input(10090); // 9
    stranger.set_value(1);
    EXPECT_EQ(head.deliver(), 1U);
    EXPECT_EQ(other.get_value(), 9);
    EXPECT_EQ(stranger.get_value(), 1);
}

TEST_F(CdsNumberWidget, StoresDoublesAsTheyAre)
{
    expect_stored(data.d, {{0.1, 0.1}, {-1e300, -1e300}, {HUGE_VAL, HUGE_VAL}});
    Cds_number_widget<double> field(head, data.d, style(0, true), nullptr);
    field.handle_input_value(nan);
    EXPECT_TRUE(std::isnan(data.d));
}

TEST_F(CdsNumberWidget, StoresFloatsRoundedToTheNearest)
{
    expect_stored(
        data.f,
        {{0.1, 0.1F}, {16777217, 16777216.F}, {16777219, 16777220.F}, {1e300, HUGE_VALF}, {-1e300, -HUGE_VALF}});
}

TEST_F(CdsNumberWidget, StoresTheLow8Bits)
{
    expect_stored<unsigned char>(data.uc,
                                 {{300.4, 44}, {-1, 255}, {2.5, 2}, {3.5, 4}, {255.5, 0}, {1e10, 0}, {nan, 0}});
    expect_stored<signed char>(data.sc, {{300.4, 44}, {-1, -1}, {127.5, -128}, {-129, 127}, {1e10, 0}, {nan, 0}});
}

TEST_F(CdsNumberWidget, StoresTheLow16Bits)
{
    expect_stored<unsigned short>(data.us, {{65536.2, 0}, {-1, 65535}, {2.5, 2}, {3.5, 4}, {1e10, 0}, {nan, 0}});
    expect_stored<short>(data.s, {{2.5, 2}, {-2.5, -2}, {32767.5, -32768}, {65537, 1}, {1e10, 0}, {nan, 0}});
}

TEST_F(CdsNumberWidget, StoresIntegersOf32Bits)
{
    constexpr int lowest = std::numeric_limits<int>::min();
    expect_stored<int>(data.i,
                       {{2.5, 2}, {3.5, 4}, {-0.5, 0}, {2147483647.4, 2147483647}, {0x1p31, lowest}, {nan, lowest}});
    expect_stored<unsigned int>(data.u, {{2.5, 2}, {3e9, 3000000000}, {-1, 0xFFFFFFFF}, {0x1p32, 0}, {nan, 0}});
}

TEST_F(CdsNumberWidget, StoresIntegersOf64Bits)
{
    constexpr long long lowest = std::numeric_limits<long long>::min();
    expect_stored<long long>(data.ll, {{2.5, 2}, {-3.5, -4}, {0x1p62, 1LL << 62}, {0x1p63, lowest}, {nan, lowest}});
    expect_stored<unsigned long long>(data.ull, {{2.5, 2}, {0x1p63, 1ULL << 63}, {-1, ~0ULL}, {0x1p64, 0}});
}

template <class T>
void expect_shown(CDS::Head& head, T& variable, T stored, double shown)
{
    // Without limits, as far as 32 raw bits reach.
    Cds_number_widget<T> field(head, variable, Style(), nullptr);
    variable = stored;
    head.deliver();
    EXPECT_EQ(field.get_value(), shown);
}

TEST_F(CdsNumberWidget, ShowsEveryType)
{
    expect_shown(head, data.d, 0.1, 0.1);
    expect_shown(head, data.f, 0.1F, static_cast<double>(0.1F));
    expect_shown<unsigned char>(head, data.uc, 255, 255);
    expect_shown<signed char>(head, data.sc, -128, -128);
    expect_shown<unsigned short>(head, data.us, 65535, 65535);
    expect_shown<short>(head, data.s, -32768, -32768);
    expect_shown(head, data.i, std::numeric_limits<int>::min(), -2147483648.0);
    expect_shown(head, data.u, 4294967295U, 4294967295.0);
    expect_shown(head, data.ll, -0x4000000000000000LL, -0x1p62);
    expect_shown(head, data.ull, ~0ULL, 0x1p64);
}

TEST_F(CdsNumberWidget, WaitsForTheLockToWriteAndToRead)
{
    Cds_number_widget<int> field(head, data.i, style(0, true), nullptr);
    for (const bool writing : {true, false}) {
        head.hold();
        std::atomic<bool> done{false};
        std::thread waiting([&] {
            if (writing)
                field.handle_input_value(3);
            else
                field.read();
            done = true;
        });
        std::this_thread::sleep_for(std::chrono::milliseconds(50));
        EXPECT_FALSE(done);
        EXPECT_EQ(data.i, writing ? 0 : 3);
        head.release();
        waiting.join();
        EXPECT_EQ(data.i, 3);
    }
}

TEST_F(CdsNumberWidget, DestroyedWhileANotificationIsOnItsWayIsNotCalled)
{
    auto field = std::make_unique<Cds_number_widget<int>>(head, data.i, style(), tens, nullptr);
    go_live(*field);
    write(data.i, 5);
    field.reset();
    EXPECT_EQ(head.deliver(), 0U);
    EXPECT_TRUE(pool.news().empty());
}

/// Clears a screen when its variable changes.
class Screen_switch : public CDS::Access<int, CDS::Virt_access>
{
  public:
    Screen_switch(CDS::Head& head, int& bound, std::unique_ptr<Number_widget>& screen)
        : Access(head, bound), old(screen)
    {}
    void handle_change() override
    {
        if (CDS::read(*access.head(), *variable) != 0)
            old.reset();
    }

  private:
    std::unique_ptr<Number_widget>& old;
};

TEST_F(CdsNumberWidget, DestroyedByTheNotificationOfAnotherIsNotCalled)
{
    std::unique_ptr<Number_widget> field;
    Screen_switch screen_switch(head, data.i, field);
    field = std::make_unique<Cds_number_widget<double>>(head, data.d, style(), tens, nullptr);
    go_live(*field);
    {
        CDS::Write writing(head);
        writing.set(data.i, 1);
        writing.set(data.d, 2);
    }
    EXPECT_EQ(head.deliver(), 1U);
    EXPECT_EQ(field, nullptr);
    EXPECT_TRUE(pool.news().empty());
}

TEST_F(CdsNumberWidget, LeavesTheStoreWithItsBase)
{
    {
        const std::unique_ptr<Number_widget> field =
            std::make_unique<Cds_number_widget<int>>(head, data.i, style(), tens, nullptr);
        const std::unique_ptr<CDS::Virt_access> access =
            std::make_unique<Cds_number_widget<int>>(head, data.i, style(), tens, nullptr);
    }
    write(data.i, 1);
    EXPECT_EQ(head.deliver(), 0U);
}

/// A component of the application's that is no number field.
class Lamp : public Cds_widget_mixin<unsigned char, Lamp>
{
  public:
    using Cds_widget_mixin::Cds_widget_mixin;
    void handle_cds_value(unsigned char v) { on = v != 0; }

    bool on{false};
};

TEST_F(CdsNumberWidget, SharesItsBindingWithComponentsOfTheApplication)
{
    Lamp lamp(head, data.uc);
    lamp.write(1);
    EXPECT_EQ(data.uc, 1);
    EXPECT_FALSE(lamp.on);
    head.deliver();
    EXPECT_TRUE(lamp.on);
}

TEST_F(CdsNumberWidget, HasItsVirtualOperationsInThisOrder)
{
    using Field_of_int = Cds_number_widget<int>;
    EXPECT_EQ(virtual_slot(static_cast<void (Number_widget::*)(double)>(&Number_widget::handle_input_value)), 0U);
    EXPECT_EQ(virtual_slot(&CDS::Virt_access::handle_change), 0U);
    EXPECT_TRUE(std::has_virtual_destructor_v<CDS::Virt_access>);
    EXPECT_TRUE((std::is_base_of_v<Number_widget, Field_of_int>));
    EXPECT_TRUE((std::is_base_of_v<Cds_widget_mixin<int, Field_of_int>, Field_of_int>));
    EXPECT_TRUE((std::is_base_of_v<CDS::Access<int, CDS::Virt_access>, Cds_widget_mixin<int, Field_of_int>>));
}

death::Words no_init()
{
    return ::testing::Eq(
        "BUG: CDS: Tried to set with no init\r\n" +
        death::assertion_text("false", "../../../../util/Bugger", 42, "static void Bugger::report_bug(const char*)"));
}

class CdsNumberWidgetDeathTest : public CdsNumberWidget
{
  protected:
    template <class Operation>
    static void run(Operation operation)
    {
        death::join_output_and_error();
        operation();
    }

    void expect_no_init(Cds_number_widget<int>& field)
    {
        EXPECT_DEATH(run([&] { field.handle_input_value(1); }), no_init());
        EXPECT_DEATH(run([&] { field.handle_change(); }), no_init());
    }
};

TEST_F(CdsNumberWidgetDeathTest, WithoutAVariableEndsTheProcess)
{
    Cds_number_widget<int> field(head, data.i, style(), nullptr);
    field.variable = nullptr;
    expect_no_init(field);
}

TEST_F(CdsNumberWidgetDeathTest, WithoutAStoreEndsTheProcess)
{
    Cds_number_widget<int> field(head, data.i, style(), nullptr);
    field.access.init(CDS::Access_base());
    expect_no_init(field);
}

TEST_F(CdsNumberWidgetDeathTest, WithAStoreThatIsGoneEndsTheProcess)
{
    auto store = std::make_unique<CDS::Head>(data);
    Cds_number_widget<int> field(*store, data.i, style(), nullptr);
    store.reset();
    expect_no_init(field);
}

} // namespace
