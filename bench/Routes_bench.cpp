#include "pool/Pool.h"
#include "vt/Working_set_obj.h"
#include "vtui/comp/objects/Button_obj.h"

#include <benchmark/benchmark.h>

#include <array>
#include <cstdint>
#include <deque>
#include <vector>

namespace {

/// A pool with routed components, each a button that counts how often it is pressed, and one button of nobody.
struct Routed_pool
{
    explicit Routed_pool(std::size_t n) : components(n)
    {
        working_set.set_active_mask(mask);
        pool.add(working_set);
        pool.add(of_nobody);
        for (Component& component : components) {
            pool.add(component.button);
            pool.route(component);
        }
    }

    static std::array<std::uint8_t, Iso::frame_size> activation(const VT::VT_obj& button)
    {
        const Iso::Object_id id = button.get_id();
        return {static_cast<std::uint8_t>(Iso::Function::button_activation),
                static_cast<std::uint8_t>(Iso::Activation::pressed),
                static_cast<std::uint8_t>(id),
                static_cast<std::uint8_t>(id >> 8),
                1,
                0,
                33,
                0xFF};
    }

    struct Component
    {
        void handle_event(const VT::Button_activation_event&) { ++presses; }

        VT::Comp::Button_obj button;
        std::uint64_t presses{0};
    };

    VT::Data_mask_obj mask;
    VT::Working_set_obj working_set;
    VT::Comp::Button_obj of_nobody;
    std::deque<Component> components;
    VT::Pool pool;
};

/// An event of an object that no component has: it costs the same however many components there are.
void unconcerned_event(benchmark::State& state)
{
    Routed_pool screen(static_cast<std::size_t>(state.range(0)));
    if (!screen.pool.prepare())
        state.SkipWithError("the pool was not prepared");
    const auto message = Routed_pool::activation(screen.of_nobody);
    for (auto _ : state)
        benchmark::DoNotOptimize(screen.pool.receive(message.data(), message.size()));
    for (const Routed_pool::Component& component : screen.components)
        if (component.presses != 0)
            state.SkipWithError("a component was reached");
}
BENCHMARK(unconcerned_event)->Arg(10)->Arg(1'000)->Arg(10'000);

/// Events that reach components, each time another one.
void concerned_event(benchmark::State& state)
{
    Routed_pool screen(static_cast<std::size_t>(state.range(0)));
    if (!screen.pool.prepare())
        state.SkipWithError("the pool was not prepared");
    std::vector<std::array<std::uint8_t, Iso::frame_size>> messages;
    for (const Routed_pool::Component& component : screen.components)
        messages.push_back(Routed_pool::activation(component.button));
    constexpr std::size_t stride = 617; // prime to all their numbers
    std::size_t i = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(screen.pool.receive(messages[i].data(), messages[i].size()));
        i = (i + stride) % messages.size();
    }
    std::uint64_t presses = 0;
    for (const Routed_pool::Component& component : screen.components)
        presses += component.presses;
    if (presses != static_cast<std::uint64_t>(state.iterations()))
        state.SkipWithError("not every event reached a component");
}
BENCHMARK(concerned_event)->Arg(10)->Arg(1'000)->Arg(10'000);

/// All components of a large pool are routed, and leave.
void route_and_unroute(benchmark::State& state)
{
    Routed_pool screen(0);
    std::deque<Routed_pool::Component> components(static_cast<std::size_t>(state.range(0)));
    for (auto _ : state) {
        for (Routed_pool::Component& component : components)
            screen.pool.route(component);
        for (Routed_pool::Component& component : components)
            if (!screen.pool.unroute(component))
                state.SkipWithError("a component was not routed");
    }
}
BENCHMARK(route_and_unroute)->Arg(1'000)->Arg(60'000)->Unit(benchmark::kMillisecond);

/// The same for one component that is led to the controls of a large pool.
void route_controls_and_unroute(benchmark::State& state)
{
    Routed_pool screen(0);
    std::deque<VT::Comp::Button_obj> controls(static_cast<std::size_t>(state.range(0)));
    Routed_pool::Component component;
    for (auto _ : state) {
        for (const VT::Comp::Button_obj& control : controls)
            screen.pool.route(component, control);
        if (!screen.pool.unroute(component))
            state.SkipWithError("the component was not routed");
    }
}
BENCHMARK(route_controls_and_unroute)->Arg(1'000)->Arg(60'000)->Unit(benchmark::kMillisecond);

} // namespace
