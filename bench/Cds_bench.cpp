#include "vtui/comp/widgets/Cds_number_widget.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <memory>
#include <poll.h>
#include <thread>
#include <vector>

namespace {

using VT::Comp::Cds_number_widget;
using VT::Comp::Cds_widget_mixin;
using VT::Comp::Number_widget;
using Clock = std::chrono::steady_clock;

/// A machine's data, all of it on screens: so many numbers, and as many fields that show them.
struct Store
{
    explicit Store(std::size_t count) : numbers(count), head(numbers.data(), count * sizeof(double))
    {
        for (double& number : numbers)
            fields.push_back(
                std::make_unique<Cds_number_widget<double>>(head, number, Number_widget::Style(), nullptr));
        head.deliver();
    }

    std::vector<double> numbers;
    CDS::Head head;
    std::vector<std::unique_ptr<Cds_number_widget<double>>> fields;
};

/// What a write costs the control loop's thread: so many numbers at once, of a store of so many. The screen's thread is
/// awake already, as it is when it has more to do than it can.
void write_numbers(benchmark::State& state)
{
    const auto count = static_cast<std::size_t>(state.range(0));
    Store store(static_cast<std::size_t>(state.range(1)));
    double value = 0;
    for (auto _ : state) {
        CDS::Write write(store.head);
        ++value;
        for (std::size_t i = 0; i < count; ++i)
            write.set(store.numbers[i], value);
    }
}
BENCHMARK(write_numbers)->ArgNames({"numbers", "of"})->Args({1, 10})->Args({1, 1000})->Args({20, 1000});

/// The same by a control loop that must not wait; the lock is free.
void try_write_number(benchmark::State& state)
{
    Store store(1000);
    double value = 0;
    for (auto _ : state) {
        ++value;
        CDS::try_write(store.head, [&](CDS::Write& write) { write.set(store.numbers[500], value); });
    }
}
BENCHMARK(try_write_number);

/// And while somebody else holds the lock.
void try_write_in_vain(benchmark::State& state)
{
    Store store(1000);
    const CDS::Read busy(store.head);
    for (auto _ : state)
        benchmark::DoNotOptimize(CDS::try_write(store.head, [](CDS::Write&) {}));
}
BENCHMARK(try_write_in_vain);

/// Nothing is told of what does not change.
void write_what_is_there(benchmark::State& state)
{
    Store store(1000);
    for (auto _ : state) {
        CDS::Write write(store.head);
        write.set(store.numbers[500], 0);
    }
}
BENCHMARK(write_what_is_there);

/// The same when the screen's thread has nothing to do, and is woken every time.
void write_and_wake(benchmark::State& state)
{
    Store store(1000);
    double value = 0;
    for (auto _ : state) {
        const auto begin = Clock::now();
        {
            CDS::Write write(store.head);
            write.set(store.numbers[500], ++value);
        }
        state.SetIterationTime(std::chrono::duration<double>(Clock::now() - begin).count());
        store.head.deliver();
    }
}
BENCHMARK(write_and_wake)->UseManualTime();

/// The operator's entry, on the screen's thread.
void write_of_a_widget(benchmark::State& state)
{
    Store store(1000);
    double value = 0;
    for (auto _ : state)
        store.fields[500]->handle_input_value(++value);
}
BENCHMARK(write_of_a_widget);

/// One notification: taken from the queue, read and shown in a pool that is not live.
void deliver_to_a_widget(benchmark::State& state)
{
    Store store(1000);
    double value = 0;
    for (auto _ : state) {
        state.PauseTiming();
        ++value;
        {
            CDS::Write write(store.head);
            for (double& number : store.numbers)
                write.set(number, value);
        }
        state.ResumeTiming();
        store.head.deliver();
    }
    state.SetItemsProcessed(1000 * static_cast<std::int64_t>(state.iterations()));
}
BENCHMARK(deliver_to_a_widget)->Unit(benchmark::kMicrosecond);

/// Writes down when it heard.
class Probe : public Cds_widget_mixin<double, Probe>
{
  public:
    using Cds_widget_mixin::Cds_widget_mixin;
    void handle_cds_value(double)
    {
        const Clock::time_point now = Clock::now();
        heard.store(now, std::memory_order_release);
    }

    std::atomic<Clock::time_point> heard{Clock::time_point()};
};

/// From before a write until handle_cds_value() of another thread that sleeps in poll().
void notify_across_threads(benchmark::State& state)
{
    double number = 0;
    CDS::Head head(number);
    Probe probe(head, number);
    head.deliver();
    std::atomic<bool> stop{false};
    std::thread screen([&] {
        pollfd news{head.descriptor(), POLLIN, 0};
        while (!stop)
            if (poll(&news, 1, 100) == 1)
                head.deliver();
    });
    double worst = 0;
    for (auto _ : state) {
        std::this_thread::sleep_for(std::chrono::microseconds(200)); // it sleeps again
        const auto begin = Clock::now();
        {
            CDS::Write write(head);
            write.set(number, number + 1);
        }
        Clock::time_point end;
        do
            std::this_thread::yield();
        while ((end = probe.heard.load(std::memory_order_acquire)) < begin);
        const double seconds = std::chrono::duration<double>(end - begin).count();
        state.SetIterationTime(seconds);
        worst = std::max(worst, seconds);
    }
    stop = true;
    screen.join();
    state.counters["worst_us"] = 1e6 * worst;
}
BENCHMARK(notify_across_threads)->UseManualTime()->Unit(benchmark::kMicrosecond)->Iterations(2000);

} // namespace
