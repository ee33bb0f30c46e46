#include "vtui/comp/objects/Rectangle_obj.h"
#include "vtui/comp/objects/String_variable_obj.h"
#include "vtui/comp/widgets/Number_widget.h"

#include <benchmark/benchmark.h>

#include <memory>

namespace {

using namespace VT::Comp;

/// What a field borrows.
struct Surroundings
{
    Surroundings()
    {
        units.format("km/h");
        style = {&font, &font, &backdrop, Number_widget::right_aligned, true};
    }

    Font_attributes_obj font;
    Rectangle_obj backdrop;
    String_variable_obj<4> units;
    Number_widget::Style style;
    Number_widget::Specification speed{Units_man::speed, 0, 50, 0.1, 1};
};

void construct_number_widget(benchmark::State& state)
{
    Surroundings around;
    const auto storage = std::make_unique<std::byte[]>(sizeof(Number_widget) + alignof(Number_widget));
    void* place = storage.get();
    std::size_t room = sizeof(Number_widget) + alignof(Number_widget);
    std::align(alignof(Number_widget), sizeof(Number_widget), place, room);
    for (auto _ : state) {
        auto* const field = new (place) Number_widget(around.style, around.speed, &around.units);
        benchmark::DoNotOptimize(field);
        field->~Number_widget();
    }
    state.counters["bytes"] = sizeof(Number_widget);
}
BENCHMARK(construct_number_widget);

void size_number_widget(benchmark::State& state)
{
    Surroundings around;
    Number_widget field(around.style, around.speed, &around.units);
    field.init(nullptr, nullptr);
    for (auto _ : state) {
        field.set_size({100, 50});
        benchmark::ClobberMemory();
    }
    state.counters["bytes"] = sizeof field;
}
BENCHMARK(size_number_widget);

/// As for a pool that is not live: the raw value is computed and kept.
void set_value_not_live(benchmark::State& state)
{
    Surroundings around;
    Number_widget field(around.style, around.speed, &around.units);
    field.init(nullptr, nullptr);
    double value = 0;
    for (auto _ : state) {
        value = value < 50 ? value + 0.1 : 0;
        field.set_value(value);
        benchmark::ClobberMemory();
    }
    state.counters["bytes"] = sizeof field;
}
BENCHMARK(set_value_not_live);

} // namespace
