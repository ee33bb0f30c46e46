#include "iso11783/Bytes.h"
#include "iso11783/Font_size.h"
#include "iso11783/Function.h"
#include "iso11783/Object_type.h"
#include "iso11783/Palette.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <utility>
#include <vector>

namespace {

using Bytes = std::vector<std::uint8_t>;

TEST(Palette, HasTheSixteenNamedColours)
{
    const std::uint32_t named[] = {0x000000, 0xFFFFFF, 0x009900, 0x009999, 0x990000, 0x990099, 0x999900, 0xCCCCCC,
                                   0x999999, 0x0000FF, 0x00FF00, 0x00FFFF, 0xFF0000, 0xFF00FF, 0xFFFF00, 0x000099};
    for (std::uint8_t colour = 0; colour < 16; ++colour)
        EXPECT_EQ(Iso::palette_rgb(colour), named[colour]) << int{colour};
}

TEST(Palette, SpansTheCubeFromBlackToWhite)
{
    EXPECT_EQ(Iso::palette_rgb(16), 0x000000U);
    EXPECT_EQ(Iso::palette_rgb(17), 0x000033U);
    EXPECT_EQ(Iso::palette_rgb(21), 0x0000FFU);
    EXPECT_EQ(Iso::palette_rgb(22), 0x003300U);
    EXPECT_EQ(Iso::palette_rgb(46), 0x00FF00U);
    EXPECT_EQ(Iso::palette_rgb(52), 0x330000U);
    EXPECT_EQ(Iso::palette_rgb(196), 0xFF0000U);
    EXPECT_EQ(Iso::palette_rgb(111), 0x6699FFU);
    EXPECT_EQ(Iso::palette_rgb(231), 0xFFFFFFU);
}

TEST(Palette, EndsWithGreysThatGrowLighter)
{
    for (unsigned colour = 232; colour < 256; ++colour) {
        const std::uint32_t rgb = Iso::palette_rgb(static_cast<std::uint8_t>(colour));
        EXPECT_EQ(rgb, (rgb & 0xFF) * 0x010101) << colour;
        if (colour > 232) {
            EXPECT_GT(rgb, Iso::palette_rgb(static_cast<std::uint8_t>(colour - 1))) << colour;
        }
    }
}

TEST(FontSize, HasTheFifteenSizesOfTheStandard)
{
    const std::pair<int, int> sizes[] = {{6, 8},   {8, 8},   {8, 12},   {12, 16},   {16, 16},
                                         {16, 24}, {24, 32}, {32, 32},  {32, 48},   {48, 64},
                                         {64, 64}, {64, 96}, {96, 128}, {128, 128}, {128, 192}};
    for (std::uint8_t code = 0; code < 15; ++code) {
        EXPECT_EQ(Iso::font_size(code).width, sizes[code].first) << int{code};
        EXPECT_EQ(Iso::font_size(code).height, sizes[code].second) << int{code};
    }
}

TEST(FontSize, OfACodeBeyondTheTableIsNothing)
{
    EXPECT_EQ(Iso::font_size(15).width, 0);
    EXPECT_EQ(Iso::font_size(15).height, 0);
    EXPECT_EQ(Iso::font_size(255).width, 0);
}

TEST(Bytes, AreWrittenWithTheLowByteFirst)
{
    Bytes bytes;
    Iso::Byte_writer out(bytes);
    out.u8(0x01);
    out.u16(0x0302);
    out.s16(-2);
    out.u32(0x07060504);
    out.s32(-3);
    out.f32(1.0F);
    EXPECT_EQ(bytes, (Bytes{1, 2, 3, 0xFE, 0xFF, 4, 5, 6, 7, 0xFD, 0xFF, 0xFF, 0xFF, 0, 0, 0x80, 0x3F}));
    EXPECT_EQ(out.size(), 17U);
}

TEST(Bytes, AreAppendedToWhatTheVectorHolds)
{
    Bytes bytes{9};
    Iso::Byte_writer out(bytes);
    out.bytes("ab", 2);
    out.fill(2, 0xFF);
    out.bytes(nullptr, 0);
    EXPECT_EQ(bytes, (Bytes{9, 'a', 'b', 0xFF, 0xFF}));
    EXPECT_EQ(out.size(), 5U);
}

TEST(Bytes, AreReadAtAnyAddress)
{
    const Bytes bytes{0, 0x34, 0x12, 0xFE, 0xFF, 0, 0, 0x20, 0x40};
    EXPECT_EQ(Iso::read<std::uint16_t>(&bytes[1]), 0x1234);
    EXPECT_EQ(Iso::read<std::int16_t>(&bytes[3]), -2);
    EXPECT_EQ(Iso::read<std::uint32_t>(&bytes[1]), 0xFFFE1234U);
    EXPECT_EQ(Iso::read<float>(&bytes[5]), 2.5F);
}

TEST(Bytes, AreOverwrittenInPlace)
{
    Bytes bytes{1, 2, 3, 4, 5};
    Iso::write(&bytes[1], std::uint16_t{0xBBAA});
    EXPECT_EQ(bytes, (Bytes{1, 0xAA, 0xBB, 4, 5}));
    Iso::write(&bytes[1], std::int32_t{-1});
    EXPECT_EQ(bytes, (Bytes{1, 0xFF, 0xFF, 0xFF, 0xFF}));
}

TEST(ObjectType, HasTheCodesOfTheStandard)
{
    using T = Iso::Object_type;
    const std::pair<T, int> codes[] = {
        {T::working_set, 0},      {T::data_mask, 1},
        {T::alarm_mask, 2},       {T::container, 3},
        {T::soft_key_mask, 4},    {T::key, 5},
        {T::button, 6},           {T::input_boolean, 7},
        {T::input_string, 8},     {T::input_number, 9},
        {T::input_list, 10},      {T::output_string, 11},
        {T::output_number, 12},   {T::line, 13},
        {T::rectangle, 14},       {T::ellipse, 15},
        {T::polygon, 16},         {T::picture_graphic, 20},
        {T::number_variable, 21}, {T::string_variable, 22},
        {T::font_attributes, 23}, {T::line_attributes, 24},
        {T::fill_attributes, 25}, {T::input_attributes, 26},
        {T::object_pointer, 27},  {T::macro, 28},
    };
    for (const auto& [type, code] : codes)
        EXPECT_EQ(static_cast<int>(type), code);
    EXPECT_EQ(Iso::null_id, 0xFFFF);
}

TEST(Function, HasTheCodesOfTheStandard)
{
    using F = Iso::Function;
    const std::pair<F, int> codes[] = {
        {F::soft_key_activation, 0x00},
        {F::button_activation, 0x01},
        {F::select_input_object, 0x03},
        {F::esc, 0x04},
        {F::input_numeric_value, 0x05},
        {F::input_string_value, 0x08},
        {F::object_pool_transfer, 0x11},
        {F::end_of_object_pool, 0x12},
        {F::hide_show, 0xA0},
        {F::enable_disable, 0xA1},
        {F::change_child_location, 0xA5},
        {F::change_size, 0xA6},
        {F::change_background_colour, 0xA7},
        {F::change_numeric_value, 0xA8},
        {F::change_active_mask, 0xAD},
        {F::change_soft_key_mask, 0xAE},
        {F::change_attribute, 0xAF},
        {F::change_string_value, 0xB3},
        {F::change_child_position, 0xB4},
        {F::get_memory, 0xC0},
        {F::get_number_of_soft_keys, 0xC2},
        {F::get_text_font_data, 0xC3},
        {F::get_hardware, 0xC7},
        {F::terminal_status, 0xFE},
        {F::working_set_maintenance, 0xFF},
    };
    for (const auto& [function, code] : codes)
        EXPECT_EQ(static_cast<int>(function), code);
}

TEST(Activation, HasTheCodesOfTheStandard)
{
    EXPECT_EQ(static_cast<int>(Iso::Activation::released), 0);
    EXPECT_EQ(static_cast<int>(Iso::Activation::pressed), 1);
    EXPECT_EQ(static_cast<int>(Iso::Activation::held), 2);
    EXPECT_EQ(static_cast<int>(Iso::Activation::aborted), 3);
}

} // namespace
