#include "terminal/draw/Pictures.h"
#include "terminal/draw/Renderer.h"
#include "tests/terminal/Session.h"
#include "tests/terminal/draw/Ascii.h"
#include "tests/terminal/draw/Rich_screen.h"

#include "iso11783/Font_size.h"

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
    EXPECT_EQ(work_of([](const View& view) { view.fill({-50, 0, 50, 200}, 1); }), 50 * 100 + 2 * 100 + 4);
    EXPECT_EQ(work_of([](const View& view) { view.fill({-50, 0, 0, 200}, 1); }), 4);
}

TEST(Work, OfAnEllipseIsThatOfItsRowsAndItsPenHoweverSmallItIs)
{
    const Paint paint{2};
    const auto ellipse = [&](int width, int height, const Pen& pen, const Paint* fill) {
        return work_of([&](const View& view) { draw_ellipse(view, width, height, {}, pen, fill); });
    };
    constexpr int itself = 64;
    constexpr int row = 8;    // to find where it begins and ends
    constexpr int dot = 7;    // a fill of one pixel
    constexpr int no_dot = 4; // of none
    EXPECT_EQ(ellipse(1, 1, {}, nullptr), itself + row);
    EXPECT_EQ(ellipse(1, 1, {}, &paint), itself + row + dot);
    EXPECT_EQ(ellipse(1, 9, {}, &paint), itself + 9 * (row + dot));
    EXPECT_EQ(ellipse(1, 900, {}, &paint), itself + 100 * (row + dot)) << "what is visible of it";
    EXPECT_EQ(ellipse(1, 1, {{1}, 1}, nullptr), itself + 8 + 2 * row + dot + no_dot);
    EXPECT_EQ(ellipse(1, 1, {{1}, 255}, nullptr), itself + 8 * 255 + 256 * row + dot + no_dot);
    constexpr int along = 4096; // how long its line is, where that is to be known
    EXPECT_EQ(ellipse(1, 1, {{1}, 1, 0}, nullptr), itself + 8 + 2 * row + along + 1 + 8 + 3 * no_dot);
    EXPECT_EQ(work_of([](const View& view) { draw_ellipse(view, 0, 9, {}, {{1}, 1}, nullptr); }), 0);
}

TEST(Work, OfAGlyphIsThatOfMakingItOnce)
{
    Glyphs glyphs;
    EXPECT_EQ(glyphs.work(), 0);
    const auto work_of_next = [&](std::uint8_t size, std::uint8_t character) {
        glyphs.forget_work();
        glyphs.glyph(size, false, false, character);
        return glyphs.work();
    };
    EXPECT_EQ(work_of_next(0, 'a'), 512);
    EXPECT_EQ(work_of_next(0, 'a'), 0);
    EXPECT_EQ(work_of_next(2, 'a'), 4096 + 8 * 12 / 2);
    EXPECT_EQ(work_of_next(2, 'b'), 4096 + 8 * 12 / 2);
    EXPECT_EQ(work_of_next(2, 'a'), 0);
    EXPECT_EQ(work_of_next(2, ' '), 0) << "there is nothing to make";
    EXPECT_EQ(work_of_next(14, 'a'), 4096 + 128 * 192 / 2);
}

TEST(Work, OfATextIsThatOfItsCharactersAndOfTheirVisiblePieces)
{
    Glyphs glyphs;
    const auto text = [&](std::string_view characters, int width) {
        return work_of([&](const View& view) {
            draw_text(view, glyphs, characters, {1, 0, 0}, width, 8, 0, {true, true});
        });
    };
    constexpr int bar = 8 * 7; // eight rows of one pixel
    EXPECT_EQ(text("|", 6), 20 + bar);
    EXPECT_EQ(text("||", 12), 2 * (20 + bar));
    EXPECT_EQ(text("||", 6), 2 * 20 + bar) << "the other one is in the line below";
    EXPECT_EQ(text("  ", 6), 2 * 20);
}

TEST(Work, OfAPictureIsThatOfItsRowsAndPixels)
{
    const Bytes bytes(10, 2);
    const Picture picture{bytes.data(), bytes.size(), 2, 5, 8, false, -1};
    const auto drawn = [&](int width) {
        return work_of([&](const View& view) { draw_picture(view, picture, width); });
    };
    EXPECT_EQ(drawn(2), 5 * (4 + 2) + 2 * 5);
    EXPECT_EQ(drawn(4), 5 * (4 + 4) + 4 * 10) << "a row is unpacked once";
    EXPECT_EQ(work_of([&](const View& view) { tile_picture(view, picture); }), 5 * (4 + 100) + 100 * 100);
}

TEST(Work, OfAPolygonIsThatOfItsEdgesInEachRow)
{
    const Paint paint{2};
    const Position triangle[] = {{0, 0}, {0, 50}, {50, 0}};
    const auto polygon = [&](Polygon_type type, const Paint* fill) {
        return work_of([&](const View& view) { draw_polygon(view, 60, 200, triangle, 3, type, {}, fill); });
    };
    EXPECT_EQ(polygon(Polygon_type::convex, nullptr), 0);
    EXPECT_EQ(polygon(Polygon_type::open, &paint), 0) << "it has no inside";
    const std::int64_t filled = polygon(Polygon_type::convex, &paint);
    constexpr int pixels = 51 * 50 / 2 + 3 * 51; // the inside, and the edges once more
    EXPECT_GE(filled, 8 * 3 * 100 + pixels);
    EXPECT_LE(filled, 8 * 3 * 100 + pixels + (50 + 51 + 51) * 6 + 3 * 51 + 10) << "and a call for each run and row";
}

TEST(Work, OfALineIsThatOfItsSteps)
{
    const auto line = [](int width, int height, const Pen& pen) {
        return work_of([&](const View& view) { draw_line(view, width, height, false, pen); });
    };
    EXPECT_EQ(line(60, 1, {{1}, 1}), 4 + 2 + 60) << "a fill";
    EXPECT_EQ(line(60, 1, {{1}, 1, 0}), 3 * 60);
    EXPECT_EQ(line(60, 9, {{1}, 0}), 0);
    EXPECT_EQ(line(60, 60, {{1}, 1}), 60 * (3 + 4 + 2 + 1));
    EXPECT_EQ(line(200, 200, {{1}, 1}), 100 * (3 + 4 + 2 + 1)) << "what is visible of it";
}

TEST(Work, OfAStrokeIsThatOfItsVisibleStepsInEveryDirection)
{
    constexpr Pen invisible{{1}, 3, 0};
    const auto steps = [&](Position from, Position to) {
        return work_of([&](const View& view) { stroke(view, invisible, from, to); }) / 3;
    };
    EXPECT_EQ(steps({-50, 10}, {150, 20}), 100);
    EXPECT_EQ(steps({150, 10}, {-50, 20}), 100);
    EXPECT_EQ(steps({10, -50}, {20, 150}), 100);
    EXPECT_EQ(steps({10, 150}, {20, -50}), 100);
    EXPECT_EQ(steps({10, 10}, {19, 15}), 10 + 2) << "with its spot";
    EXPECT_EQ(steps({19, 10}, {10, 15}), 10 + 2);
    EXPECT_EQ(steps({90, 10}, {150, 15}), 10);
    EXPECT_EQ(steps({-50, 10}, {9, 15}), 12);
    EXPECT_EQ(steps({9, 10}, {-50, 15}), 12);
    EXPECT_EQ(steps({150, 10}, {90, 15}), 10);
    EXPECT_EQ(steps({99, 10}, {99, 10}), 1) << "a dot at the edge";
    EXPECT_EQ(steps({-2, 10}, {-2, 10}), 1);
    EXPECT_EQ(steps({200, 10}, {300, 20}), 0);
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

TEST(Work, OfARowOfRunsThatStartsOverIsThatOfTheRowAndNotOfThoseAboveIt)
{
    constexpr int rows = 100;
    constexpr int empty_in_row = 100;
    Bytes runs;
    for (int row = 0; row < rows; ++row) {
        const Bytes pair = padded_pair(empty_in_row);
        runs.insert(runs.end(), pair.begin(), pair.end());
    }
    const Picture picture{runs.data(), runs.size(), 2, rows, 8, true, -1};
    constexpr int three_times_painted = 3 * 100 * 100;
    EXPECT_LE(work_of([&](const View& view) {
                  tile_picture(view.inside({-1, 0, 100, 100}), picture);
              }),
              2 * rows * empty_in_row + three_times_painted);
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
        EXPECT_LE(work_of([&](const View& view) { draw_picture(view, huge, 65535); }), (2 * 100 + 4) * 100 + 10);
        EXPECT_LE(work_of([&](const View& view) { tile_picture(view, huge); }), (2 * 100 + 4) * 100 + 10);
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

TEST_F(ScreenWork, IsTheSameForTheSamePictureAgainButForItsGlyphs)
{
    const auto rich = [](Pool_builder& builder) { return add_rich_screen(builder); };
    const QImage picture = screen(rich);
    const std::int64_t first = renderer.work();
    EXPECT_EQ(screen(rich), picture);
    const std::int64_t second = renderer.work();
    EXPECT_LT(second, first - 50 * 4096) << "more than fifty glyphs are there already";
    screen(rich);
    EXPECT_EQ(renderer.work(), second);
}

TEST_F(ScreenWork, OfManyGlyphsGoesOnWithTheNextPicture)
{
    std::string characters;
    for (int c = 33; c < 256; ++c) {
        if (c < 127 || c > 160)
            characters += static_cast<char>(c);
    }
    // Every glyph in every size and style, of most of them only the topmost row, which is as much work to make.
    const auto all_glyphs = [&](Pool_builder& builder) {
        Pool_builder::Places kinds;
        for (std::uint8_t size = 0; size < 15; ++size) {
            const std::size_t columns = 480u / Iso::font_size(size).width;
            for (const int style : {0, 1, 8, 9}) {
                const Id font = builder.font(1, size, style);
                Pool_builder::Places texts;
                for (std::size_t i = 0; i < characters.size(); i += columns)
                    texts.push_back({builder.string({480, 1, font, 0, 1}, characters.substr(i, columns))});
                kinds.push_back({builder.container(480, 1, texts)});
            }
        }
        kinds.push_back({builder.rectangle(480, 480, none, builder.fill_attributes(2, 5))});
        return builder.mask(0, kinds);
    };
    int pictures = 1;
    while (screen(all_glyphs).pixelIndex(479, 479) != 5) {
        ++pictures;
        ASSERT_LT(pictures, 10);
        EXPECT_GE(renderer.work(), renderer.most_work());
        EXPECT_LT(renderer.work(), renderer.most_work() + 10 * pixels) << "the text that goes beyond is the last one";
    }
    EXPECT_GT(pictures, 1);
    screen(all_glyphs);
    EXPECT_LT(renderer.work(), 20 * pixels) << "all are there now";
}

TEST_F(ScreenWork, CountsWhatIsOutOfSightOrNotThere)
{
    const auto with = [](int x, bool there) {
        return [x, there](Pool_builder& builder) {
            const Id dot = there ? builder.rectangle(1, 1, none) : builder.pointer(none);
            return builder.mask(0, Pool_builder::Places(200, {dot, x, 0}));
        };
    };
    screen([](Pool_builder& builder) { return builder.mask(0, {}); });
    const std::int64_t nothing = renderer.work();
    const auto work_of_each = [&](int x, bool there) {
        screen(with(x, there));
        return (renderer.work() - nothing) / 200;
    };
    EXPECT_EQ(work_of_each(480, true), 4);
    EXPECT_EQ(work_of_each(0, true), 4 + 40);
    EXPECT_EQ(work_of_each(0, false), 4 + 40);
}

TEST_F(ScreenWork, CountsTheMakingOfNumbersAndTheShadingOfButtons)
{
    const auto work_of_each = [&](auto add) {
        screen([&](Pool_builder& builder) { return builder.mask(0, Pool_builder::Places(100, {add(builder)})); });
        const std::int64_t hundred = renderer.work();
        screen([&](Pool_builder& builder) { return builder.mask(0, Pool_builder::Places(200, {add(builder)})); });
        return (renderer.work() - hundred) / 100;
    };
    constexpr int object = 4 + 40;
    constexpr int transparent = 1;
    EXPECT_EQ(work_of_each([](Pool_builder& b) { return b.number({6, 8, none, 0, transparent}, {7}); }), object + 256);
    EXPECT_EQ(work_of_each([](Pool_builder& b) { return b.button(10, 9, 0, 0, 16 | 8 | 32); }), object + 10 * 9);
}

TEST_F(ScreenWork, IsBoundedByTheScreensSizeButNotBelowTheUsualOne)
{
    Object_pool empty;
    renderer.draw_mask(empty, Object(), 10);
    EXPECT_EQ(renderer.most_work(), 150 * pixels);
    renderer.draw_mask(empty, Object(), 1000);
    EXPECT_EQ(renderer.most_work(), 150 * 1000 * 1000);
    renderer.draw_key(empty, Object(), 1000, 600);
    EXPECT_EQ(renderer.most_work(), 150 * 1000 * 600);
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
    expect_end("small ellipses", [](Pool_builder& b) { return b.ellipse(1, 1, b.line_attributes(1, 1)); });
    expect_end("narrow ellipses", [](Pool_builder& b) { return b.ellipse(1, 480, none, b.fill_attributes(2, 3)); });
    expect_end("long texts", [](Pool_builder& builder) {
        return builder.string({6, 480, builder.font(1, 0), 0, 2}, std::string(60000, 'a'));
    });
}

} // namespace
} // namespace terminal
