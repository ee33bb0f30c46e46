#include "bench/Large_pool.h"

#include "pool/Pool.h"
#include "terminal/Terminal.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdint>
#include <memory>
#include <vector>

namespace {

/// Collecting, numbering, writing out and serialising a pool that has never been prepared.
void prepare_pool(benchmark::State& state)
{
    bench::Large_pool screens(static_cast<std::size_t>(state.range(0)));
    std::vector<std::uint8_t> records;
    std::size_t objects = 0;
    for (auto _ : state) {
        state.PauseTiming();
        auto pool = std::make_unique<VT::Pool>();
        state.ResumeTiming();
        pool->add(screens.working_set);
        if (!pool->serialise(records))
            state.SkipWithError("the pool was not prepared");
        objects = pool->size();
        state.PauseTiming();
        pool.reset();
        state.ResumeTiming();
    }
    state.counters["objects"] = static_cast<double>(objects);
    state.counters["bytes"] = static_cast<double>(records.size());
}
BENCHMARK(prepare_pool)->Arg(10'000)->Arg(30'000)->Arg(60'000)->Unit(benchmark::kMillisecond);

/// Parsing and checking in the terminal, all references included.
void parse_pool(benchmark::State& state)
{
    bench::Large_pool screens(static_cast<std::size_t>(state.range(0)));
    VT::Pool pool;
    pool.add(screens.working_set);
    std::vector<std::uint8_t> transfer;
    if (!pool.serialise(transfer))
        state.SkipWithError("the pool was not prepared");
    transfer.insert(transfer.begin(), static_cast<std::uint8_t>(Iso::Function::object_pool_transfer));
    const std::uint8_t end[Iso::frame_size] = {static_cast<std::uint8_t>(Iso::Function::end_of_object_pool)};
    bool accepted = false;
    for (auto _ : state) {
        state.PauseTiming();
        auto terminal = std::make_unique<terminal::Terminal>(
            terminal::Hardware{}, [&](const std::uint8_t* answer, std::size_t) { accepted = answer[1] == 0; });
        terminal->receive(transfer.data(), transfer.size());
        accepted = false;
        state.ResumeTiming();
        terminal->receive(end, sizeof end);
        state.PauseTiming();
        terminal.reset();
        if (!accepted)
            state.SkipWithError("the terminal rejected the pool");
        state.ResumeTiming();
    }
    state.counters["objects"] = static_cast<double>(pool.size());
}
BENCHMARK(parse_pool)->Arg(10'000)->Arg(30'000)->Arg(60'000)->Unit(benchmark::kMillisecond);

} // namespace
