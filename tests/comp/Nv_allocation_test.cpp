#include "nv_store/Store.h"
#include "nv_store/waiter_descriptor.h"
#include "tests/Allocations.h"
#include "vtui/comp/widgets/Nv_number_widget.h"

#include <gtest/gtest.h>

#include <optional>

namespace {

using Number = NV_store::NV_number<double, Data_item::float64>;
using VT::Comp::Number_widget;
using VT::Comp::Nv_number_widget;

TEST(NvAllocation, NeitherFieldsNorChangesNeedAny)
{
    NV_store::Store store(NV_store::Store::in_memory);
    Number number(store, "number");
    Number other(store, "other");
    waiter_descriptor waiter;
    const std::size_t before = allocations();
    std::optional<Nv_number_widget<Number>> fields[3];
    for (auto& field : fields) {
        field.emplace(number, Number_widget::Style(), nullptr);
        field->start(&waiter);
    }
    for (int i = 1; i < 10; ++i) {
        number.set(i);
        EXPECT_EQ(waiter.deliver(), 3U);
        store.set({number.to(i + 0.25), other.to(i)});
        fields[1]->value = i + 0.5; // as handle_input() leaves it
        fields[1]->handle_input_value(i + 0.5);
        EXPECT_EQ(waiter.deliver(), 2U) << "the others";
        EXPECT_EQ(fields[2]->get_value(), i + 0.5);
    }
    fields[0].reset();
    fields[1]->stop(&waiter);
    EXPECT_EQ(allocations(), before);
}

} // namespace
