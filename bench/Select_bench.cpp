#include "bench/Deaf_link.h"
#include "pool/Pool.h"
#include "vt/Working_set_obj.h"
#include "vtui/comp/widgets/Custom_select_widget.h"

#include <benchmark/benchmark.h>

#include <array>
#include <cstdint>
#include <vector>

namespace {

using Select = VT::Comp::Custom_select_widget<50, 2>;

void construct_select_widget(benchmark::State& state)
{
    VT::Comp::Connection_elements style;
    for (auto _ : state) {
        Select list(style);
        benchmark::DoNotOptimize(list);
    }
}
BENCHMARK(construct_select_widget);

/// Outside a pool. Every item moves.
void size_select_widget_changed(benchmark::State& state)
{
    VT::Comp::Connection_elements style;
    Select list(style);
    bool which = false;
    for (auto _ : state) {
        list.set_size(200, which ? 30 : 31);
        which = !which;
        benchmark::ClobberMemory();
    }
}
BENCHMARK(size_select_widget_changed);

/// Outside a pool, to the size it has.
void size_select_widget_same(benchmark::State& state)
{
    VT::Comp::Connection_elements style;
    Select list(style);
    for (auto _ : state) {
        list.set_size(200, 30);
        benchmark::ClobberMemory();
    }
}
BENCHMARK(size_select_widget_same);

/// A live screen with one list.
struct Live_list
{
    explicit Live_list(benchmark::State& state)
    {
        style.set_sizes(480);
        list.set_size(200, 30);
        mask.add(*list.root(), 0, 0);
        working_set.set_active_mask(mask);
        pool.add(working_set);
        pool.route(list);
        link.deaf = bool(pool.load(link));
        if (!link.deaf)
            state.SkipWithError("the pool was not loaded");
        link.sent = 0;
    }

    /// That many messages in all, and the link is still there.
    void expect_sent(benchmark::State& state, std::uint64_t each)
    {
        if (link.sent != each * static_cast<std::uint64_t>(state.iterations()) || !pool.is_live())
            state.SkipWithError("not all messages were sent");
        state.counters["messages"] = static_cast<double>(each);
    }

    VT::Comp::Connection_elements style;
    VT::Data_mask_obj mask;
    VT::Working_set_obj working_set;
    Deaf_link link;
    VT::Pool pool;
    Select list{style};
};

void set_selected(benchmark::State& state)
{
    Live_list screen(state);
    unsigned char item = 0;
    for (auto _ : state) {
        item = static_cast<unsigned char>((item + 7) % 50);
        screen.list.set_selected(item);
    }
    screen.expect_sent(state, 50);
}
BENCHMARK(set_selected);

/// From the terminal's message to the last of the list's.
void release_select_button(benchmark::State& state)
{
    Live_list screen(state);
    std::vector<std::array<std::uint8_t, Iso::frame_size>> messages;
    for (const VT::Comp::Toggle_button_widget& item : screen.list.items) {
        const Iso::Object_id id = item.button.get_id();
        messages.push_back({static_cast<std::uint8_t>(Iso::Function::button_activation),
                            static_cast<std::uint8_t>(Iso::Activation::released), static_cast<std::uint8_t>(id),
                            static_cast<std::uint8_t>(id >> 8), 1, 0, 1, 0xFF});
    }
    std::size_t i = 0;
    for (auto _ : state) {
        i = (i + 7) % messages.size();
        benchmark::DoNotOptimize(screen.pool.receive(messages[i].data(), messages[i].size()));
    }
    screen.expect_sent(state, 50);
}
BENCHMARK(release_select_button);

/// With the upload of the list and of all that has changed inside it.
void size_live_select_widget(benchmark::State& state)
{
    Live_list screen(state);
    bool which = false;
    for (auto _ : state) {
        screen.list.set_size(200, which ? 30 : 31);
        which = !which;
    }
    if (!screen.pool.is_live())
        state.SkipWithError("the pool is no longer live");
}
BENCHMARK(size_live_select_widget);

} // namespace
