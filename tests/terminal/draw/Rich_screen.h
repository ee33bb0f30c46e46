#ifndef TESTS_TERMINAL_DRAW_RICH_SCREEN_H
#define TESTS_TERMINAL_DRAW_RICH_SCREEN_H

#include "tests/terminal/draw/Pool_builder.h"

/// A screen of 480 × 480 pixels with everything on it: some two hundred objects, and from `cover_top` down the cover
/// that makes widgets look disabled, 256 times the same stippled picture of 32 × 32 pixels in containers of four.
/// Returns the mask.
inline Pool_builder::Id add_rich_screen(Pool_builder& builder, int cover_top = 310)
{
    using Id = Pool_builder::Id;
    using Places = Pool_builder::Places;
    constexpr Id none = Pool_builder::none;

    const Id thin = builder.line_attributes(0, 1);
    const Id blue = builder.line_attributes(9, 2);
    const Id red = builder.line_attributes(12, 3);
    const Id dashed = builder.line_attributes(0, 1, 0xF0F0);
    const Id dotted = builder.line_attributes(4, 2, 0xAAAA);
    const Id none_line = builder.line_attributes(0, 0, 0);
    const Id yellow = builder.fill_attributes(2, 14);
    const Id face = builder.fill_attributes(2, 223);
    const Id hatch = builder.fill_attributes(3, 0, builder.picture(8, 8, 8, 2, 1, 255, [] {
        Bytes pixels;
        for (int i = 0; i < 64; ++i)
            pixels.push_back(i / 8 == i % 8 ? 13 : i / 8 == 7 - i % 8 ? 3 : 255);
        return pixels;
    }()));
    const Id small = builder.font(0, 0);
    const Id medium = builder.font(9, 2);
    const Id large = builder.font(0, 3, 1);
    const Id huge = builder.font(2, 6);
    const Id slanted = builder.font(4, 3, 8 | 4);

    Places places;
    const auto put = [&](Id id, int x, int y) { places.push_back({id, x, y}); };

    put(builder.rectangle(480, 30, none_line, builder.fill_attributes(2, 17), 15), 0, 0);
    put(builder.string({480, 30, builder.font(1, 3, 1), 0, 1, 1 | 4}, "Spr\xFC"
                                                                      "hger\xE4t 24 m"),
        0, 0);

    // A table of sixty cells, each a frame, a caption and a number.
    for (int i = 0; i < 60; ++i) {
        const int x = 4 + i % 10 * 47;
        const int y = 34 + i / 10 * 24;
        put(builder.rectangle(46, 23, thin, i % 3 == 0 ? yellow : face, i % 4 == 0 ? 9 : 0), x, y);
        put(builder.string({40, 8, small, 0, 1}, "Row " + std::to_string(i)), x + 2, y + 2);
        put(builder.number({42, 12, medium, 0, 1, 2}, {static_cast<std::uint32_t>(i * 37), -200, 0.1f, 1}), x + 2,
            y + 10);
    }

    put(builder.ellipse(60, 60, blue, yellow), 8, 190);
    put(builder.ellipse(60, 60, red, face, 3, 15, 120), 76, 190);
    put(builder.ellipse(60, 60, dotted, none, 1, 0, 135), 144, 190);
    put(builder.ellipse(60, 60, thin, hatch, 2, 10, 100), 212, 190);
    put(builder.ellipse(90, 40, dashed, hatch), 280, 200);
    put(builder.polygon(60, 60, blue, yellow, 2, {30, 2, 47, 55, 2, 21, 57, 21, 12, 55}), 380, 190);
    put(builder.polygon(20, 60, red, none, 3, {1, 1, 17, 29, 1, 57}), 448, 190);

    put(builder.string({200, 64, large, 1, 2, 1}, "This text is too long for one line and wraps at its spaces"), 8,
        260);
    put(builder.string({130, 20, slanted, 0, 1}, "Underlined"), 216, 260);
    put(builder.number({150, 36, huge, 0, 1, 2 | 4}, {123456, 0, 0.001f, 2}), 320, 256);
    put(builder.rectangle(100, 30, thin, hatch), 216, 290);
    put(builder.line(140, 20, blue), 326, 296);
    put(builder.line(140, 20, dotted, 1), 326, 296);
    put(builder.input_boolean(20, 1, small, 1), 456, 330);
    put(builder.input_list(
            100, 20, 1,
            {builder.string({100, 20, large}, "Choice 1"), builder.string({100, 20, large, 7, 0, 0}, "Choice 2")}),
        340, 330);

    const Id caption = builder.string({82, 16, large, 0, 1, 1}, "Button");
    put(builder.button(90, 50, 223, 0, 0, {{caption, 0, 13}}), 8, 335);
    put(builder.button(90, 50, 7, 12, 1 | 2, {{caption, 0, 13}}), 104, 335);
    put(builder.button(90, 50, 7, 0, 16, {{caption, 0, 13}}), 200, 335);

    Bytes stipple;
    for (int i = 0; i < 32 * 32; ++i)
        stipple.push_back((i / 32 + i) % 2 == 0 ? 188 : 13);
    Id cover = builder.picture(32, 32, 32, 2, 1, 13, stipple);
    for (int side = 64; side <= 512; side *= 2) {
        const int half = side / 2;
        cover = builder.container(side, side, {{cover, 0, 0}, {cover, 0, half}, {cover, half, 0}, {cover, half, half}});
    }
    put(cover, 0, cover_top);
    put(builder.string({480, 24, large, 1, 0, 1 | 4}, "On top of the cover"), 0, 420);

    Id soft_keys[6];
    for (int i = 0; i < 6; ++i) {
        const Id label = builder.string({60, 16, large, 0, 1, 1}, "F" + std::to_string(i + 1));
        const Id frame = builder.rectangle(60, 60, thin, none);
        soft_keys[i] = builder.key(i == 2 ? 14 : 7, {{frame, 0, 0}, {label, 0, 22}});
    }
    const Id soft_key_mask =
        builder.soft_key_mask(8, {soft_keys[0], soft_keys[1], soft_keys[2], builder.pointer(soft_keys[3]),
                                  builder.pointer(none), soft_keys[5]});
    return builder.mask(7, places, soft_key_mask);
}

#endif
