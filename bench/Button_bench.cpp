#include "bench/Deaf_link.h"

#include "pool/Pool.h"
#include "vt/Working_set_obj.h"
#include "vtui/comp/widgets/Border_widget.h"
#include "vtui/comp/widgets/Button_background_widget.h"
#include "vtui/comp/widgets/Check_box_widget.h"
#include "vtui/comp/widgets/Disable_widget.h"
#include "vtui/comp/widgets/Function_key.h"
#include "vtui/comp/widgets/Icon_text_button_widget.h"
#include "vtui/comp/widgets/Key_button_combo_widget.h"
#include "vtui/comp/widgets/Labelled_input_widget.h"

#include <benchmark/benchmark.h>

#include <array>
#include <cstdint>
#include <deque>
#include <vector>

namespace {

using namespace VT::Comp;

/// What the components borrow.
struct Surroundings
{
    Surroundings() { style.set_sizes(480); }

    Connection_elements style;
    Rectangle_obj icon;
    Rectangle_obj other_icon;
};

Surroundings& around()
{
    static Surroundings surroundings;
    return surroundings;
}

/// Calls `resize` with a size, each time with another.
template <class Resize>
void alternate(benchmark::State& state, Resize resize)
{
    const Dimension sizes[] = {{120, 100}, {61, 47}};
    bool which = false;
    for (auto _ : state) {
        resize(sizes[which]);
        which = !which;
        benchmark::ClobberMemory();
    }
}

/// Sizes a component outside a pool.
template <class Component, class... Margin>
void resize_it(benchmark::State& state, Component& component, Margin... margin)
{
    alternate(state, [&](Dimension size) { component.set_size(size, margin...); });
}

/// A component that is constructed from the style.
template <class Component>
void size_styled(benchmark::State& state)
{
    Component component(around().style);
    resize_it(state, component);
}
BENCHMARK_TEMPLATE(size_styled, Button_background_widget);
BENCHMARK_TEMPLATE(size_styled, Border_widget);
BENCHMARK_TEMPLATE(size_styled, Disable_widget);
BENCHMARK_TEMPLATE(size_styled, Icon_text_button_widget);
BENCHMARK_TEMPLATE(size_styled, Key_button_combo_widget);

void size_key_widget(benchmark::State& state)
{
    Key_widget key;
    key.set_content(&around().icon);
    resize_it(state, key);
}
BENCHMARK(size_key_widget);

void size_button_widget(benchmark::State& state)
{
    Button_widget button(around().icon);
    resize_it(state, button);
}
BENCHMARK(size_button_widget);

void size_check_box_widget(benchmark::State& state)
{
    Check_box_widget box(around().style, &around().icon, &around().other_icon);
    resize_it(state, box);
}
BENCHMARK(size_check_box_widget);

void size_icon_text_widget(benchmark::State& state)
{
    Icon_text_widget icon_text(around().style, nullptr);
    resize_it(state, icon_text);
}
BENCHMARK(size_icon_text_widget);

void size_labelled_button(benchmark::State& state)
{
    Labelled_input_widget<Button_widget> field(&around().style.font_1, nullptr, around().icon);
    resize_it(state, field, Dimension(5, 3));
}
BENCHMARK(size_labelled_button);

/// A live screen with routed components, each with a control that the operator can activate.
struct Live_screen
{
    Live_screen()
    {
        working_set.set_active_mask(mask);
        mask.set_soft_key_mask(&keys_beside);
        pool.add(working_set);
    }

    template <class Component>
    void add(Component& component)
    {
        mask.add(component.root(), 0, 0);
        pool.route(component);
    }
    void add(Function_key& key)
    {
        key.set_content(&icon);
        keys_beside.add(key.root());
        pool.route(key);
    }

    bool go_live(benchmark::State& state)
    {
        link.deaf = bool(pool.load(link));
        if (!link.deaf)
            state.SkipWithError("the pool was not loaded");
        return link.deaf;
    }

    /// Lets the operator release one control after the other.
    void release(benchmark::State& state, Iso::Function function, const std::vector<const VT::VT_obj*>& controls)
    {
        if (!go_live(state))
            return;
        std::vector<std::array<std::uint8_t, Iso::frame_size>> messages;
        for (const VT::VT_obj* const control : controls) {
            const Iso::Object_id id = control->get_id();
            messages.push_back({static_cast<std::uint8_t>(function),
                                static_cast<std::uint8_t>(Iso::Activation::released), static_cast<std::uint8_t>(id),
                                static_cast<std::uint8_t>(id >> 8), 1, 0, 1, 0xFF});
        }
        std::size_t i = 0;
        for (auto _ : state) {
            benchmark::DoNotOptimize(pool.receive(messages[i].data(), messages[i].size()));
            i = (i + 1) % messages.size();
        }
    }

    static constexpr std::size_t size = 20; ///< components

    Connection_elements style;
    Rectangle_obj icon;
    Rectangle_obj other_icon;
    VT::Soft_key_mask_obj keys_beside;
    VT::Data_mask_obj mask;
    VT::Working_set_obj working_set;
    Deaf_link link;
    VT::Pool pool;
};

void expect_one_each(benchmark::State& state, std::uint64_t reactions)
{
    if (reactions != static_cast<std::uint64_t>(state.iterations()))
        state.SkipWithError("not every release had one effect");
}

void release_function_key(benchmark::State& state)
{
    Live_screen screen;
    std::uint64_t runs = 0;
    std::deque<Function_key> keys(Live_screen::size);
    std::vector<const VT::VT_obj*> controls;
    for (Function_key& key : keys) {
        key.action = [&runs] { ++runs; };
        screen.add(key);
        controls.push_back(&key.key);
    }
    screen.release(state, Iso::Function::soft_key_activation, controls);
    expect_one_each(state, runs);
}
BENCHMARK(release_function_key);

void release_icon_text_button(benchmark::State& state)
{
    Live_screen screen;
    std::uint64_t runs = 0;
    std::deque<Icon_text_button_widget> buttons;
    std::vector<const VT::VT_obj*> controls;
    for (std::size_t i = 0; i < Live_screen::size; ++i) {
        Icon_text_button_widget& button = buttons.emplace_back(screen.style);
        button.action = [&runs] { ++runs; };
        screen.add(button);
        controls.push_back(&button.button.button);
    }
    screen.release(state, Iso::Function::button_activation, controls);
    expect_one_each(state, runs);
}
BENCHMARK(release_icon_text_button);

/// Its reaction is a message to the terminal.
void release_check_box(benchmark::State& state)
{
    Live_screen screen;
    std::deque<Check_box_widget> boxes;
    std::vector<const VT::VT_obj*> controls;
    for (std::size_t i = 0; i < Live_screen::size; ++i) {
        Check_box_widget& box = boxes.emplace_back(screen.style, &screen.icon, &screen.other_icon);
        screen.add(box);
        controls.push_back(&box.button);
    }
    screen.release(state, Iso::Function::button_activation, controls);
    const auto releases = static_cast<std::size_t>(state.iterations());
    for (std::size_t i = 0; i < boxes.size(); ++i)
        if (boxes[i].is_checked() != ((releases + boxes.size() - 1 - i) / boxes.size() % 2 != 0))
            state.SkipWithError("not every release had one effect");
}
BENCHMARK(release_check_box);

/// With all that has changed inside it, as the terminal is to be told.
void resize_icon_text_button(benchmark::State& state)
{
    Live_screen screen;
    Icon_text_button_widget button(screen.style);
    screen.add(button);
    if (!screen.go_live(state))
        return;
    alternate(state, [&](Dimension size) {
        button.set_size(size);
        button.root().upload(true);
    });
    if (!screen.pool.is_live())
        state.SkipWithError("the pool is no longer live");
}
BENCHMARK(resize_icon_text_button);

} // namespace
