#include "tests/Fake_pool.h"
#include "tests/Record_text.h"
#include "vtui/comp/Connection_elements.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

using namespace VT::Comp;
using Lines = Record_text::Lines;

namespace {

class ConnectionElements : public ::testing::Test
{
  protected:
    static void expect_new(const VT::VT_obj& object)
    {
        EXPECT_EQ(object.get_id(), VT::VT_obj::NULL_ID);
        EXPECT_STREQ(object.get_name(), "");
        EXPECT_EQ(object.get_pool(), nullptr);
    }

    static void expect_line(Line_attributes_obj& line, int colour, int width, int art)
    {
        expect_new(line);
        EXPECT_EQ(Record_text::values_of(line),
                  (Lines{"colour line_colour " + std::to_string(colour), "u8 line_width " + std::to_string(width),
                         "u16 line_art " + std::to_string(art), "count u8 0"}));
    }

    static void expect_fill(Fill_attributes_obj& fill, int colour)
    {
        expect_new(fill);
        EXPECT_EQ(Record_text::values_of(fill), (Lines{"u8 fill_type 2", "colour fill_colour " + std::to_string(colour),
                                                       "id fill_pattern null", "count u8 0"}));
        EXPECT_EQ(fill.pattern, nullptr);
    }

    /// The links are pointers: without ids nothing of them stands in the record.
    static void expect_rectangle(Rectangle_obj& rectangle, const Fill_attributes_obj* fill,
                                 const Line_attributes_obj* line, int suppression)
    {
        expect_new(rectangle);
        EXPECT_EQ(rectangle.fill, fill);
        EXPECT_EQ(rectangle.line, line);
        EXPECT_EQ(Record_text::values_of(rectangle), (Lines{"id line_attributes null", "u16 width 0", "u16 height 0",
                                                            "u8 line_suppression " + std::to_string(suppression),
                                                            "id fill_attributes null", "count u8 0"}));
    }

    void expect_background(Rectangle_obj& rectangle, Fill_attributes_obj& fill, int colour)
    {
        SCOPED_TRACE(colour);
        expect_fill(fill, colour);
        expect_rectangle(rectangle, &fill, &set.line_none, 15);
    }

    /// A level of the cover: its side, and its four children.
    static void expect_cover(Container_obj& cover, std::int16_t side, VT::VT_obj& quarter)
    {
        SCOPED_TRACE(side);
        expect_new(cover);
        EXPECT_EQ(cover.width, side);
        EXPECT_EQ(cover.height, side);
        ASSERT_NE(cover.placements_ptr, nullptr);
        ASSERT_EQ(cover.placements_ptr->size(), 4U);
        const int half = side / 2;
        const int corners[4][2] = {{0, 0}, {0, half}, {half, 0}, {half, half}};
        for (std::size_t i = 0; i < 4; ++i) {
            const Child_placement& placement = cover.placements_ptr->placement(i);
            EXPECT_EQ(placement.ref, &quarter) << i;
            EXPECT_EQ(placement.x, corners[i][0]) << i;
            EXPECT_EQ(placement.y, corners[i][1]) << i;
        }
    }

    Connection_elements set;
};

TEST_F(ConnectionElements, HasNinePlainFonts)
{
    for (Font_attributes_obj* font : {&set.font_0, &set.font_1, &set.font_2, &set.font_3, &set.font_4, &set.font_5,
                                      &set.font_6, &set.font_7, &set.font_8}) {
        expect_new(*font);
        EXPECT_EQ(Record_text::values_of(*font),
                  (Lines{"colour font_colour 0", "u8 font_size 1", "u8 font_type 0", "u8 font_style 0", "count u8 0"}));
    }
}

TEST_F(ConnectionElements, HasALineThatDrawsNothing) { expect_line(set.line_none, 0, 0, 0); }
TEST_F(ConnectionElements, HasABlackLine) { expect_line(set.line_black, 0, 1, 0xFFFF); }
TEST_F(ConnectionElements, HasALineOfColour111) { expect_line(set.line_111, 111, 1, 0xFFFF); }
TEST_F(ConnectionElements, HasAWhiteLine) { expect_line(set.line_white, 1, 1, 0xFFFF); }
TEST_F(ConnectionElements, HasAGreyLineOfTwoPixels) { expect_line(set.line_grey_2, 8, 2, 0xFFFF); }
TEST_F(ConnectionElements, HasTheWhiteLineOfTheBevel) { expect_line(set.line_white_b, 1, 1, 0xFFFF); }
TEST_F(ConnectionElements, HasTheBlackLineOfTheBevel) { expect_line(set.line_black_b, 0, 1, 0xFFFF); }
TEST_F(ConnectionElements, HasTheBlackLineOfBorders) { expect_line(set.line_black_c, 0, 1, 0xFFFF); }
TEST_F(ConnectionElements, HasTheLineOfButtonBorders) { expect_line(set.line_111_b, 111, 1, 0xFFFF); }

TEST_F(ConnectionElements, HasBackgroundsOfOneColourWithoutABorder)
{
    expect_background(set.rect_red, set.fill_red, 12);
    expect_background(set.rect_green, set.fill_green, 2);
    expect_background(set.rect_white, set.fill_white, 1);
    expect_background(set.rect_195, set.fill_195, 195);
    expect_background(set.rect_81, set.fill_81, 81);
    expect_background(set.rect_39, set.fill_39, 39);
    expect_background(set.rect_188, set.fill_188, 188);
    expect_background(set.rect_17, set.fill_17, 17);
    expect_background(set.rect_17_patterned, set.fill_17_patterned, 17);
}

TEST_F(ConnectionElements, HasTheDarkHalfOfTheBevelWithRightAndBottomEdge)
{
    expect_fill(set.fill_59, 59);
    expect_rectangle(set.rect_bevel_dark, &set.fill_59, &set.line_black_b, 1 | 8);
}

TEST_F(ConnectionElements, HasTheLightHalfOfTheBevelWithTopAndLeftEdgeOnly)
{
    expect_rectangle(set.rect_bevel_light, nullptr, &set.line_white_b, 2 | 4);
}

TEST_F(ConnectionElements, HasAPointerAtNothing)
{
    expect_new(set.null_pointer);
    EXPECT_EQ(set.null_pointer.target, nullptr);
    EXPECT_EQ(set.null_pointer.value, VT::VT_obj::NULL_ID);
    EXPECT_EQ(set.null_pointer_ptr, &set.null_pointer);
}

TEST_F(ConnectionElements, HasTheNumbersTo255AsTexts)
{
    ASSERT_EQ(set.number_strings.size(), 256U);
    for (std::size_t i = 0; i < 256; ++i) {
        String_variable_obj<4>& number = set.number_strings[i];
        EXPECT_EQ(Record_text::values_of(number), (Lines{"text value 4 '" + std::to_string(i) + "'"}));
        EXPECT_EQ(number.get_id(), VT::VT_obj::NULL_ID);
    }
    EXPECT_STREQ(set.number_strings[0].value.text(), "0");
    EXPECT_STREQ(set.number_strings[255].value.text(), "255");
}

TEST_F(ConnectionElements, HasAnEmptyTextAndAPercentSign)
{
    expect_new(set.empty_string);
    EXPECT_EQ(Record_text::values_of(set.empty_string), (Lines{"text value 1 ''"}));
    EXPECT_EQ(set.empty_string.num_chars(), 0);
    expect_new(set.percent_string);
    EXPECT_EQ(Record_text::values_of(set.percent_string), (Lines{"text value 2 '%'"}));
    EXPECT_EQ(set.percent_string.num_chars(), 1);
}

TEST_F(ConnectionElements, HasCoversOfFourOfTheNextSmallerOne)
{
    expect_cover(set.cover_512, 512, set.cover_256);
    expect_cover(set.cover_256, 256, set.cover_128);
    expect_cover(set.cover_128, 128, set.cover_64);
    expect_cover(set.cover_64, 64, set.cover_tile);
}

TEST_F(ConnectionElements, HasTheLevelsOfOneCoverByTheirNames)
{
    EXPECT_EQ(set.cover.root_at_size(std::uint16_t{512}), &set.cover_512);
    EXPECT_EQ(set.cover.root_at_size(std::uint16_t{256}), &set.cover_256);
    EXPECT_EQ(set.cover.root_at_size(std::uint16_t{128}), &set.cover_128);
    EXPECT_EQ(set.cover.root_at_size(std::uint16_t{64}), &set.cover_64);
    EXPECT_EQ(set.cover.root_at_size(std::uint16_t{32}), &set.cover_tile);
}

TEST_F(ConnectionElements, HasTheSharedStippleAsItsTile)
{
    expect_new(set.cover_tile);
    EXPECT_EQ(set.cover_tile.raw_data, Disable_cover_widget_impl<1>::get_pic_buf());
    Lines values = Record_text::values_of(set.cover_tile);
    ASSERT_EQ(values.size(), 9U);
    values.pop_back(); // the pixels
    EXPECT_EQ(values, (Lines{"u16 width 32", "u16 actual_width 32", "u16 actual_height 32", "u8 format 2",
                             "u8 options 1", "colour transparency_colour 13", "count u32 1024", "count u8 0"}));
}

TEST_F(ConnectionElements, HasItsMembersInTheOrderInWhichTheyAreBuilt)
{
    const std::vector<const void*> members{
        &set.font_0,
        &set.font_1,
        &set.font_2,
        &set.font_3,
        &set.font_4,
        &set.font_5,
        &set.font_6,
        &set.font_7,
        &set.font_8,
        &set.line_none,
        &set.line_black,
        &set.line_111,
        &set.line_white,
        &set.line_grey_2,
        &set.fill_red,
        &set.rect_red,
        &set.fill_green,
        &set.rect_green,
        &set.fill_white,
        &set.rect_white,
        &set.fill_195,
        &set.rect_195,
        &set.fill_81,
        &set.rect_81,
        &set.fill_39,
        &set.rect_39,
        &set.fill_188,
        &set.rect_188,
        &set.fill_17,
        &set.rect_17,
        &set.rect_17_patterned,
        &set.fill_17_patterned,
        &set.rect_bevel_dark,
        &set.rect_bevel_light,
        &set.fill_59,
        &set.line_white_b,
        &set.line_black_b,
        &set.line_black_c,
        &set.line_111_b,
        &set.null_pointer,
        &set.null_pointer_ptr,
        &set.number_strings,
        &set.empty_string,
        &set.percent_string,
        &set.cover_512,
        &set.cover_256,
        &set.cover_128,
        &set.cover_64,
        &set.cover_tile,
    };
    EXPECT_TRUE(std::is_sorted(members.begin(), members.end()));
    EXPECT_EQ(std::adjacent_find(members.begin(), members.end()), members.end());
    EXPECT_EQ(static_cast<const void*>(&set.cover), &set.cover_512);
}

TEST_F(ConnectionElements, HasPointersToItsOwnMembersInEverySet)
{
    const auto other = std::make_unique<Connection_elements>();
    EXPECT_EQ(other->rect_red.fill, &other->fill_red);
    EXPECT_EQ(other->null_pointer_ptr, &other->null_pointer);
    EXPECT_EQ(&other->cover_64, &other->cover.inner.inner.inner.container);
    EXPECT_EQ(other->cover_tile.raw_data, set.cover_tile.raw_data);
}

TEST_F(ConnectionElements, LinksWithIdsOnceItIsInAPool)
{
    Fake_pool pool;
    pool.take(set.line_black, 5);
    pool.take(set.rect_bevel_light, 6);
    set.rect_bevel_light.set_line(&set.line_black);
    EXPECT_EQ(set.rect_bevel_light.line_attributes, 5);
}

} // namespace
