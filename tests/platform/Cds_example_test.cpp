// What docs/central-data-store.md shows, line by line.

#include "vtui/comp/widgets/Cds_number_widget.h"

#include <gtest/gtest.h>

#include <poll.h>

namespace {

struct Machine
{
    double speed;  // m/s
    unsigned area; // m²
};

Machine machine{};
CDS::Head store(machine);

void step(double measured) // of a control loop, on a thread of its own that may wait
{
    CDS::Write write(store);
    write.set(machine.speed, measured);
    write.set(machine.area, machine.area + 24);
}

unsigned area = 0; // the control loop's own

void step_in_time(double measured)
{
    area += 24;
    CDS::try_write(store, [&](CDS::Write& write) {
        write.set(machine.speed, measured);
        write.set(machine.area, area);
    });
}

class Speed_alarm : public CDS::Access<double, CDS::Virt_access>
{
  public:
    using Access::Access;
    void handle_change() override { too_fast = CDS::read(store, machine.speed) > 5; }

    bool too_fast{false};
};

TEST(CdsExample, DeliversWhatTheControlLoopWrites)
{
    const VT::Comp::Number_widget::Style style;
    const VT::Comp::Number_widget::Specification limits{Units_man::none, 0, 30, 0.1, 1};

    VT::Comp::Cds_number_widget<double> speed(store, machine.speed, style, limits, nullptr);
    Speed_alarm alarm(store, machine.speed);

    step(7.5);
    pollfd news{store.descriptor(), POLLIN, 0};
    ASSERT_EQ(poll(&news, 1, 1000), 1);
    store.deliver();
    EXPECT_EQ(speed.get_value(), 7.5);
    EXPECT_TRUE(alarm.too_fast);

    step(2);
    store.deliver();
    EXPECT_FALSE(alarm.too_fast);
    const Machine now = CDS::read(store, machine);
    EXPECT_EQ(now.speed, 2);
    EXPECT_EQ(now.area, 48U);
}

TEST(CdsExample, CatchesUpWithWhatItCouldNotWriteInTime)
{
    machine = {};
    {
        const CDS::Read busy(store);
        step_in_time(1);
    }
    EXPECT_EQ(machine.area, 0U);
    step_in_time(2);
    EXPECT_EQ(machine.speed, 2);
    EXPECT_EQ(machine.area, 48U);
}

} // namespace
