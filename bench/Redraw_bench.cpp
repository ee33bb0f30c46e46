#include "apps/Loopback_link.h"
#include "apps/gallery/Gallery.h"

#include "terminal/draw/Renderer.h"

#include <benchmark/benchmark.h>

namespace {

/// The gallery's first page with its soft keys, on a mask of 480 pixels.
void redraw_first_page(benchmark::State& state)
{
    gallery::Gallery gallery(480);
    apps::Loopback_link link;
    if (!gallery.pool().load(link))
        state.SkipWithError("the pool was not loaded");
    terminal::Renderer renderer;
    for (auto _ : state)
        benchmark::DoNotOptimize(renderer.draw(link.terminal));
}
BENCHMARK(redraw_first_page)->Unit(benchmark::kMillisecond);

} // namespace
