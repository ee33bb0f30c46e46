#include "vtui/comp/Connection_elements.h"
#include "vtui/comp/widgets/Placement_widget.h"

#include <benchmark/benchmark.h>

#include <memory>

namespace {

using namespace VT::Comp;

void construct_connection_elements(benchmark::State& state)
{
    const auto storage = std::make_unique<std::byte[]>(sizeof(Connection_elements) + alignof(Connection_elements));
    void* place = storage.get();
    std::size_t room = sizeof(Connection_elements) + alignof(Connection_elements);
    std::align(alignof(Connection_elements), sizeof(Connection_elements), place, room);
    for (auto _ : state) {
        auto* const style = new (place) Connection_elements;
        benchmark::DoNotOptimize(style);
        style->~Connection_elements();
    }
    state.counters["bytes"] = sizeof(Connection_elements);
}
BENCHMARK(construct_connection_elements)->Unit(benchmark::kMicrosecond);

void size_connection_elements(benchmark::State& state)
{
    const auto style = std::make_unique<Connection_elements>();
    for (auto _ : state) {
        style->set_sizes(480);
        benchmark::ClobberMemory();
    }
}
BENCHMARK(size_connection_elements);

void size_placement_widget(benchmark::State& state)
{
    Rectangle_obj content;
    Placement_widget widget(Placement_widget::Justification::centre);
    widget.set_content(&content);
    for (auto _ : state) {
        widget.set_size({100, 50});
        benchmark::ClobberMemory();
    }
    state.counters["bytes"] = sizeof widget;
}
BENCHMARK(size_placement_widget);

} // namespace
