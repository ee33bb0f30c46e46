#include "terminal/draw/Pictures.h"
#include "terminal/draw/Shapes.h"
#include "terminal/draw/Text.h"
#include "tests/terminal/draw/Ascii.h"

#include <gtest/gtest.h>

#include <functional>
#include <iterator>
#include <vector>

namespace terminal {
namespace {

constexpr int width = 60;
constexpr int height = 44;

struct Drawing
{
    const char* name;
    std::function<void(const View&)> draw;
};

const Paint filled{2, nullptr};
const std::vector<std::uint8_t> bytes{0x12, 0x34, 0x56, 0x78, 0x9A, 0xBC, 0xDE, 0xF1, 0x21, 0x43, 0x65, 0x87};
const Picture picture{bytes.data(), bytes.size(), 5, 4, 4, false, 7};
const std::vector<std::uint8_t> pairs{2, 1, 3, 2, 0, 9, 1, 3, 7, 4, 5, 5, 11, 6};
const Picture packed{pairs.data(), pairs.size(), 6, 4, 8, true, 4};
const Position star[] = {{30, 0}, {45, 43}, {3, 17}, {57, 14}, {12, 41}};

std::vector<Drawing> drawings()
{
    std::vector<Drawing> all;
    for (const int line : {1, 2, 5}) {
        for (const std::uint16_t art : {std::uint16_t{0xFFFF}, std::uint16_t{0xC9A5}}) {
            const Pen pen{{1, nullptr}, line, art};
            all.push_back({"falling line", [=](const View& view) { draw_line(view, width, height, false, pen); }});
            all.push_back({"rising line", [=](const View& view) { draw_line(view, 31, height, true, pen); }});
            all.push_back({"flat line", [=](const View& view) { draw_line(view, width, line, true, pen); }});
            all.push_back({"backward line", [=](const View& view) { stroke(view, pen, {55, 40}, {2, 9}); }});
            all.push_back({"upward line", [=](const View& view) { stroke(view, pen, {40, 39}, {22, 1}); }});
            all.push_back(
                {"rectangle", [=](const View& view) { draw_rectangle(view, width, height, 0, pen, &filled); }});
            for (const Polygon_type type : {Polygon_type::complex, Polygon_type::open}) {
                all.push_back({"polygon", [=](const View& view) {
                                   draw_polygon(view, width, height, star, std::size(star), type, pen, &filled);
                               }});
            }
            for (const Ellipse_type type :
                 {Ellipse_type::closed, Ellipse_type::open, Ellipse_type::segment, Ellipse_type::section}) {
                all.push_back({"ellipse", [=](const View& view) {
                                   draw_ellipse(view, width, height, {type, 20, 155}, pen, &filled);
                               }});
                all.push_back({"other part of the ellipse", [=](const View& view) {
                                   draw_ellipse(view, width, height, {type, 155, 20}, pen, &filled);
                               }});
            }
        }
    }
    for (const int wide : {3, 5, 17, 55}) {
        all.push_back({"picture", [=](const View& view) { draw_picture(view, picture, wide); }});
        all.push_back({"packed picture", [=](const View& view) { draw_picture(view, packed, wide); }});
    }
    all.push_back({"pattern", [](const View& view) { tile_picture(view, picture); }});
    all.push_back({"packed pattern", [](const View& view) { tile_picture(view, packed); }});
    for (std::uint8_t size = 0; size < 6; ++size) {
        all.push_back({"text", [=](const View& view) {
                           static Glyphs glyphs;
                           draw_text(view, glyphs, "Some wrapped text", {1, size, underlined | crossed_out | italic},
                                     width, height, 5, {true, false});
                       }});
    }
    return all;
}

/// What does not depend on where a view ends: the pixels that are left of a drawing when it is cut.
TEST(Cut, LeavesTheOtherPixelsAsTheyAre)
{
    for (const Drawing& drawing : drawings()) {
        Canvas whole(width, height);
        whole.view().fill(whole.area(), 0);
        drawing.draw(whole.view().inside(whole.area()));
        for (const Area& window : {Area{7, 0, 30, 20}, Area{0, 9, 60, 10}, Area{20, 5, 21, 44}, Area{41, 30, 60, 44},
                                   Area{13, 27, 33, 40}, Area{-9, -4, 70, 50}}) {
            Canvas canvas(window.width(), window.height());
            canvas.view().fill(canvas.area(), 0);
            drawing.draw(canvas.view().inside(whole.area().moved(-window.left, -window.top)));
            for (int y = window.top; y < window.bottom; ++y) {
                for (int x = window.left; x < window.right; ++x) {
                    const int expected = whole.area().contains({x, y}) ? whole.row(y)[x] : 0;
                    ASSERT_EQ(canvas.row(y - window.top)[x - window.left], expected)
                        << drawing.name << " at " << x << " " << y << ", cut from " << window.left << " " << window.top;
                }
            }
        }
    }
}

} // namespace
} // namespace terminal
