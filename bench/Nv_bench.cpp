#include "nv_store/Access.h"
#include "nv_store/NV_number.h"
#include "nv_store/Store.h"
#include "nv_store/waiter_descriptor.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <cstdlib>
#include <deque>
#include <filesystem>
#include <poll.h>
#include <string>
#include <thread>
#include <vector>

namespace {

using Clock = std::chrono::steady_clock;
using Number = NV_store::NV_number<double, Data_item::float64>;

double seconds(Clock::duration time) { return std::chrono::duration<double>(time).count(); }

/// A file in the folder for temporary ones, as long as it lives.
class Temporary
{
  public:
    Temporary()
    {
        std::string pattern = (std::filesystem::temp_directory_path() / "nv_bench.XXXXXX").string();
        folder = mkdtemp(pattern.data()) ? pattern : ".";
    }
    ~Temporary() { std::filesystem::remove_all(folder); }
    Temporary(const Temporary&) = delete;
    Temporary& operator=(const Temporary&) = delete;

    std::string path() const { return folder + "/settings.db"; }

  private:
    std::string folder;
};

class Listener final : public NV_store::Access<Number, NV_store::Virt_access>
{
  public:
    using Access::Access;
    void handle_event() override { heard = read(); }

    double heard{0};
};

void nv_get(benchmark::State& state)
{
    NV_store::Store store(NV_store::Store::in_memory);
    const Number number(store, "number", 1);
    for (auto _ : state)
        benchmark::DoNotOptimize(number.get());
}
BENCHMARK(nv_get);

/// A new value each time, while the file is written every half second.
void nv_set(benchmark::State& state)
{
    const Temporary file;
    NV_store::Store store(file.path());
    Number number(store, "number");
    double value = 0;
    for (auto _ : state)
        number.set(++value);
}
BENCHMARK(nv_set);

/// What single calls take while another thread flushes without pause; the slowest contains what the machine does
/// besides.
void nv_set_while_flushing(benchmark::State& state)
{
    const Temporary file;
    NV_store::Store store(file.path());
    Number number(store, "number");
    std::atomic<bool> is_over{false};
    std::uint64_t flushes = 0;
    std::thread flusher([&] {
        for (; !is_over; ++flushes)
            store.flush();
    });
    std::vector<double> times;
    double value = 0;
    for (auto _ : state) {
        const auto begin = Clock::now();
        number.set(++value);
        times.push_back(1e9 * seconds(Clock::now() - begin));
    }
    is_over = true;
    flusher.join();
    std::sort(times.begin(), times.end());
    state.counters["median_ns"] = times[times.size() / 2];
    state.counters["p99.9_ns"] = times[times.size() * 999 / 1000];
    state.counters["slowest_ns"] = times.back();
    state.counters["flushes"] = static_cast<double>(flushes);
}
BENCHMARK(nv_set_while_flushing)->Iterations(2'000'000);

/// With so many accesses that are told each time, on one thread.
void nv_set_and_deliver(benchmark::State& state)
{
    NV_store::Store store(NV_store::Store::in_memory);
    Number number(store, "number");
    waiter_descriptor waiter;
    std::deque<Listener> listeners;
    for (int i = 0; i < state.range(0); ++i)
        listeners.emplace_back(number).autoreg(&waiter, true);
    double value = 0;
    for (auto _ : state) {
        number.set(++value);
        waiter.deliver();
    }
    if (listeners.back().heard != value)
        state.SkipWithError("a change was not delivered");
}
BENCHMARK(nv_set_and_deliver)->Arg(1)->Arg(10)->Arg(100);

/// From another thread's set() to handle_event() on a thread that waits in poll().
void nv_notify(benchmark::State& state)
{
    NV_store::Store store(NV_store::Store::in_memory);
    Number number(store, "number");
    waiter_descriptor waiter;
    Listener listener(number);
    listener.autoreg(&waiter, true);
    std::atomic<bool> is_over{false};
    std::atomic<bool> is_wanted{false};
    std::atomic<Clock::rep> begin{0};
    std::thread setter([&] {
        for (double value = 1; !is_over;) {
            std::this_thread::sleep_for(std::chrono::microseconds(50)); // the other one waits by now
            if (!is_wanted.exchange(false))
                continue;
            begin = Clock::now().time_since_epoch().count();
            number.set(value++);
        }
    });
    for (auto _ : state) {
        is_wanted = true;
        pollfd wanted{waiter.descriptor(), POLLIN, 0};
        poll(&wanted, 1, -1);
        waiter.deliver();
        state.SetIterationTime(seconds(Clock::now().time_since_epoch() - Clock::duration(begin)));
    }
    is_over = true;
    setter.join();
}
BENCHMARK(nv_notify)->UseManualTime()->Unit(benchmark::kMicrosecond);

/// So many changed numbers, until they are on the disk of the folder for temporary files.
void nv_flush(benchmark::State& state)
{
    const Temporary file;
    NV_store::Store store(file.path());
    std::deque<Number> numbers;
    for (int i = 0; i < state.range(0); ++i)
        numbers.emplace_back(store, "number " + std::to_string(i));
    double value = 0;
    for (auto _ : state) {
        ++value;
        for (Number& number : numbers)
            number.set(value);
        store.flush();
    }
}
BENCHMARK(nv_flush)->Arg(1)->Arg(100)->Arg(1'000)->UseRealTime()->Unit(benchmark::kMicrosecond);

/// A file with so many numbers, checked and read.
void nv_open(benchmark::State& state)
{
    const Temporary file;
    {
        NV_store::Store store(file.path());
        for (int i = 0; i < state.range(0); ++i)
            Number(store, "number " + std::to_string(i)).set(i);
    }
    for (auto _ : state)
        NV_store::Store store(file.path());
}
BENCHMARK(nv_open)->Arg(100)->Arg(1'000)->UseRealTime()->Unit(benchmark::kMicrosecond);

} // namespace
