#include "tests/Allocations.h"
#include "vtui/comp/widgets/Cds_number_widget.h"

#include <gtest/gtest.h>

#include <optional>

namespace {

using VT::Comp::Cds_number_widget;
using VT::Comp::Number_widget;

TEST(CdsAllocation, AStoreTakesAPointerForEvery16BytesOfDataAndOneMore)
{
    char data[40] = {};
    for (const std::size_t size : {1U, 15U, 16U, 32U, 40U}) {
        const std::size_t before = allocated_bytes();
        const CDS::Head head(data, size);
        EXPECT_EQ(allocated_bytes() - before, (size / 16 + 1) * sizeof(void*)) << size;
    }
}

TEST(CdsAllocation, WidgetsComeAndGoWithoutAny)
{
    double data[10] = {};
    CDS::Head head(data);
    const std::size_t before = allocations();
    std::optional<Cds_number_widget<double>> widgets[10];
    for (std::size_t i = 0; i < 10; ++i)
        widgets[i].emplace(head, data[i], Number_widget::Style(), nullptr);
    head.deliver();
    widgets[3].reset();
    EXPECT_EQ(allocations(), before);
}

TEST(CdsAllocation, NeitherWritesNorReadsNorDeliveriesNeedAny)
{
    double data[10] = {};
    CDS::Head head(data);
    Cds_number_widget<double> widget(head, data[4], Number_widget::Style(), nullptr);
    const std::size_t before = allocations();
    for (int i = 1; i < 10; ++i) {
        {
            CDS::Write write(head);
            for (double& number : data)
                write.set(number, i);
        }
        EXPECT_EQ(head.deliver(), 1U);
        EXPECT_EQ(CDS::read(head, data[9]), i);
        EXPECT_TRUE(CDS::try_write(head, [&](CDS::Write& write) { write.set(data[4], -i); }));
        {
            const CDS::Read busy(head);
            EXPECT_FALSE(CDS::try_write(head, [&](CDS::Write& write) { write.set(data[4], i); }));
        }
        EXPECT_EQ(head.deliver(), 1U);
        widget.handle_input_value(i + 0.5);
        EXPECT_EQ(data[4], i + 0.5);
    }
    EXPECT_EQ(allocations(), before);
}

} // namespace
