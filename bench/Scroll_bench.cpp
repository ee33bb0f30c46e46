#include "bench/Deaf_link.h"
#include "pool/Pool.h"
#include "vt/Working_set_obj.h"
#include "vtui/comp/widgets/Scroll_horizontal_widget.h"
#include "vtui/comp/widgets/Scroll_widget.h"

#include <benchmark/benchmark.h>

#include <cstdint>

namespace {

using namespace VT::Comp;

/// A live screen with a list and a strip.
struct Live_screen
{
    Live_screen()
    {
        style.set_sizes(480);
        resize(long_content, {180, 1000});
        resize(wide_content, {1000, 60});
        list.set_size({200, 100}, 20);
        strip.set_size({100, 80}, 20);
        list.update_content_size();
        strip.update_content_size();
        mask.add(*list.root(), 0, 0);
        mask.add(*strip.root(), 0, 120);
        for (Object_pointer_obj* const key :
             {list.get_up_key(), list.get_down_key(), strip.get_left_key(), strip.get_right_key()})
            keys_beside.add(*key);
        mask.set_soft_key_mask(&keys_beside);
        working_set.set_active_mask(mask);
        pool.add(working_set);
        link.deaf = bool(pool.load(link));
    }

    /// Times `operation`, of which each has to send that many messages.
    template <class Operation>
    void time(benchmark::State& state, std::uint64_t messages, Operation operation)
    {
        if (!link.deaf)
            return state.SkipWithError("the pool was not loaded");
        const std::uint64_t before = link.sent;
        for (auto _ : state)
            operation();
        if (link.sent - before != messages * static_cast<std::uint64_t>(state.iterations()))
            state.SkipWithError("not every operation was told to the terminal");
    }

    /// The operator releases one key, then the other: every press moves the content.
    template <class Widget>
    void press(benchmark::State& state, std::uint64_t messages, Widget& widget, const Key_widget& on,
               const Key_widget& back)
    {
        bool which = false;
        time(state, messages, [&] {
            VT::Soft_key_activation_event release{Iso::Activation::released, (which ? back : on).key.get_id(),
                                                  keys_beside.get_id(), 1};
            widget.handle_event(release);
            which = !which;
        });
    }

    Connection_elements style;
    Container_obj long_content;
    Container_obj wide_content;
    Container_obj face;
    VT::Soft_key_mask_obj keys_beside;
    VT::Data_mask_obj mask;
    VT::Working_set_obj working_set;
    Scroll_widget list{style, &long_content, &face, &face};
    Scroll_horizontal_widget strip{style, &wide_content, &face, &face};
    Deaf_link link;
    VT::Pool pool;
};

/// Three positions.
void press_scroll_widget(benchmark::State& state)
{
    Live_screen screen;
    screen.press(state, 3, screen.list, screen.list.down_key, screen.list.up_key);
}
BENCHMARK(press_scroll_widget);

/// The container's record and the end of the upload.
void press_scroll_horizontal_widget(benchmark::State& state)
{
    Live_screen screen;
    screen.press(state, 2, screen.strip, screen.strip.right_key, screen.strip.left_key);
}
BENCHMARK(press_scroll_horizontal_widget);

/// Keys and positions.
void update_scroll_widget(benchmark::State& state)
{
    Live_screen screen;
    screen.time(state, 4, [&] { screen.list.update_content_size(); });
}
BENCHMARK(update_scroll_widget);

/// Keys and upload.
void update_scroll_horizontal_widget(benchmark::State& state)
{
    Live_screen screen;
    screen.time(state, 4, [&] { screen.strip.update_content_size(); });
}
BENCHMARK(update_scroll_horizontal_widget);

/// From one end to the other and back: nine steps and one upload each.
void show_span_of_scroll_horizontal_widget(benchmark::State& state)
{
    Live_screen screen;
    bool which = false;
    screen.time(state, 2, [&] {
        which = !which;
        screen.strip.scroll_to_show(which ? 980 : 0, 20, true);
    });
}
BENCHMARK(show_span_of_scroll_horizontal_widget);

} // namespace
