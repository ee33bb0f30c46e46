#include "terminal/draw/Pictures.h"
#include "terminal/draw/Renderer.h"
#include "tests/terminal/Session.h"
#include "tests/terminal/draw/Ascii.h"
#include "tests/terminal/draw/Rich_screen.h"

namespace terminal {
namespace {

using Id = Pool_builder::Id;

constexpr Id none = Pool_builder::none;

/// A picture of two pixels in runs, with as many empty runs between them.
Bytes padded_pair(std::size_t empty_runs)
{
    Bytes runs{1, 2};
    for (std::size_t i = 0; i < empty_runs; ++i)
        runs.insert(runs.end(), {0, 9});
    runs.insert(runs.end(), {1, 3});
    return runs;
}

/// What `draw(view)` costs on a canvas of 100 x 100 pixels.
template <typename Draw>
std::int64_t work_of(Draw draw)
{
    Canvas canvas(100, 100);
    canvas.view().fill(canvas.area(), 0);
    canvas.forget_work();
    draw(canvas.view());
    return canvas.work();
}

TEST(Work, IsThePixelsOfAFillAndLittleMore)
{
    EXPECT_GE(work_of([](const View& view) { view.fill({-50, 0, 50, 200}, 1); }), 50 * 100);
    EXPECT_LE(work_of([](const View& view) { view.fill({-50, 0, 50, 200}, 1); }), 50 * 100 + 10);
    EXPECT_LE(work_of([](const View& view) { view.fill({-50, 0, 0, 200}, 1); }), 10);
}

TEST(Work, IncludesWhatLeavesNoPixel)
{
    const Pen invisible{{1}, 1, 0};
    const Pen thick{{1}, 255};
    const Paint paint{2};
    const Position below[] = {{0, 900}, {0, 999}, {99, 999}, {99, 900}};
    Glyphs glyphs;
    EXPECT_GE(work_of([&](const View& view) { draw_line(view, 100, 50, false, invisible); }), 100);
    EXPECT_GE(
        work_of([&](const View& view) { draw_polygon(view, 100, 1000, below, 4, Polygon_type::complex, {}, &paint); }),
        4 * 100);
    EXPECT_GE(work_of([&](const View& view) {
                  draw_ellipse(view.inside({0, -300, 100, 100}), 65535, 65535, {}, thick, nullptr);
              }),
              100 * 2 * 255);
    EXPECT_GE(work_of([&](const View& view) {
                  draw_text(view, glyphs, std::string(5000, ' '), {1, 0, 0}, 100, 100, 0, {});
              }),
              5000);
}

TEST(Work, OfRunsIsThatOfPassingThemOnceHoweverOftenTheyAreShown)
{
    constexpr int empty = 20000;
    const Bytes runs = padded_pair(empty);
    const Picture picture{runs.data(), runs.size(), 2, 1, 8, true, -1};
    constexpr int three_times_painted = 3 * 100 * 100;
    const auto tiled = [&](const View& view) { tile_picture(view, picture); };
    const auto enlarged = [&](const View& view) { draw_picture(view, picture, 100); };
    EXPECT_GE(work_of(tiled), empty);
    EXPECT_LE(work_of(tiled), empty + three_times_painted);
    EXPECT_LE(work_of(enlarged), empty + three_times_painted);
    // From the second pixel on, the row is gone through once more.
    const auto from_second = [&](const View& view) { tile_picture(view.inside({-1, 0, 100, 100}), picture); };
    EXPECT_LE(work_of(from_second), 2 * empty + three_times_painted);
    EXPECT_EQ(drawn(6, 2, from_second), "\n323232\n323232\n");
}

TEST(Work, OfRunsEndsWithTheLastVisiblePixel)
{
    Bytes runs{1, 2, 1, 3};
    runs.resize(40000);
    const Picture picture{runs.data(), runs.size(), 2, 1, 8, true, -1};
    EXPECT_LE(work_of([&](const View& view) { tile_picture(view.inside({0, 0, 2, 1}), picture); }), 10);
}

TEST(Work, OfAHugePictureIsThatOfWhatIsVisible)
{
    const Bytes one_run{255, 7};
    for (const bool runs : {false, true}) {
        const Picture huge{one_run.data(), one_run.size(), 65535, 65535, 8, runs, -1};
        EXPECT_LE(work_of([&](const View& view) { draw_picture(view, huge, 65535); }), 2 * 100 * 100 + 10);
        EXPECT_LE(work_of([&](const View& view) { tile_picture(view, huge); }), 2 * 100 * 100 + 10);
    }
}

class ScreenWork : public testing::Test
{
  protected:
    /// Loads a pool of its own and draws it.
    template <typename Add_mask>
    QImage screen(Add_mask add_mask)
    {
        Pool_builder builder;
        builder.working_set(add_mask(builder));
        Session session;
        EXPECT_EQ(session.load(builder.bytes()), accepted);
        return renderer.draw(session.terminal);
    }

    static constexpr std::int64_t pixels = 480 * 480;
    Renderer renderer;
};

TEST_F(ScreenWork, IsFarFromTheLimitForARichScreen)
{
    screen([](Pool_builder& builder) { return add_rich_screen(builder); });
    EXPECT_GT(renderer.work(), pixels);
    EXPECT_LT(renderer.work() * 20, renderer.most_work());
}

TEST_F(ScreenWork, IsTheSameForTheSamePictureAgain)
{
    const auto rich = [](Pool_builder& builder) { return add_rich_screen(builder); };
    screen(rich);
    const std::int64_t once = renderer.work();
    screen(rich);
    EXPECT_EQ(renderer.work(), once);
}

TEST_F(ScreenWork, IsSmallForAPatternPaddedWithEmptyRuns)
{
    const auto patterned = [](std::size_t empty_runs) {
        return [empty_runs](Pool_builder& builder) {
            const Id pattern = builder.picture(2, 2, 1, 2, 4, 0, padded_pair(empty_runs));
            return builder.mask(0, {{builder.rectangle(480, 480, none, builder.fill_attributes(3, 0, pattern))}});
        };
    };
    const QImage padded = screen(patterned(20000));
    EXPECT_LT(renderer.work(), 10 * pixels);
    EXPECT_EQ(padded, screen(patterned(0))) << "and nothing is missing";
}

TEST_F(ScreenWork, EndsInTheMiddleOfAMillionPatterns)
{
    const auto million = [](Pool_builder& builder) {
        const Id tile = builder.picture(2, 2, 1, 2, 0, 0, {2, 3});
        const Id patterned = builder.rectangle(480, 480, none, builder.fill_attributes(3, 0, tile));
        const Id hundred = builder.container(480, 480, Pool_builder::Places(100, {patterned}));
        const Id ten_thousand = builder.container(480, 480, Pool_builder::Places(100, {hundred}));
        Pool_builder::Places all(98, {ten_thousand});
        all.push_back({builder.rectangle(480, 480, none, builder.fill_attributes(2, 5))});
        return builder.mask(0, all);
    };
    const QImage image = screen(million);
    EXPECT_GE(renderer.work(), renderer.most_work());
    EXPECT_LT(renderer.work(), renderer.most_work() + 10 * pixels) << "the object that goes beyond is the last one";
    EXPECT_EQ(image.pixelIndex(0, 0), 2);
    EXPECT_EQ(image.pixelIndex(1, 479), 3);

    const auto one = [](Pool_builder& builder) {
        return builder.mask(0, {{builder.rectangle(480, 480, none, builder.fill_attributes(2, 5))}});
    };
    EXPECT_EQ(screen(one).pixelIndex(479, 479), 5) << "the next picture has work of its own";
}

TEST_F(ScreenWork, EndsWhateverTheMillionObjectsAre)
{
    const auto million = [](Id object, Pool_builder& builder) {
        const Id hundred = builder.container(480, 480, Pool_builder::Places(100, {object}));
        const Id ten_thousand = builder.container(480, 480, Pool_builder::Places(100, {hundred}));
        return builder.mask(0, Pool_builder::Places(98, {ten_thousand}));
    };
    const auto expect_end = [&](const char* what, auto add) {
        screen([&](Pool_builder& builder) { return million(add(builder), builder); });
        EXPECT_GE(renderer.work(), renderer.most_work()) << what;
        EXPECT_LT(renderer.work(), renderer.most_work() + 10 * pixels) << what;
    };
    expect_end("empty texts", [](Pool_builder& builder) { return builder.string({1, 1, builder.font(1, 0)}, ""); });
    expect_end("numbers", [](Pool_builder& builder) { return builder.number({60, 8, builder.font(1, 0)}, {7}); });
    expect_end("invisible lines", [](Pool_builder& b) { return b.line(480, 99, b.line_attributes(1, 1, 0)); });
    expect_end("dotted ellipses", [](Pool_builder& b) { return b.ellipse(1, 1, b.line_attributes(1, 1, 0x5555)); });
    expect_end("long texts", [](Pool_builder& builder) {
        return builder.string({6, 480, builder.font(1, 0), 0, 2}, std::string(60000, 'a'));
    });
}

} // namespace
} // namespace terminal
