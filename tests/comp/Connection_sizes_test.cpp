#include "tests/Death.h"
#include "tests/Fake_pool.h"
#include "vtui/comp/Connection_elements.h"

#include <gtest/gtest.h>

#include <array>
#include <csignal>
#include <unistd.h>
#include <vector>

using namespace VT::Comp;

namespace {

using Codes = std::array<int, 9>;

constexpr Codes small_fonts{0, 0, 2, 3, 5, 0, 2, 3, 5};
constexpr Codes large_fonts{0, 2, 3, 5, 6, 2, 3, 5, 6};

class ConnectionSizes : public ::testing::Test
{
  protected:
    Codes fonts() const
    {
        return {set.font_0.size, set.font_1.size, set.font_2.size, set.font_3.size, set.font_4.size,
                set.font_5.size, set.font_6.size, set.font_7.size, set.font_8.size};
    }

    void expect_backgrounds(int size) const
    {
        const Rectangle_obj* const backgrounds[] = {&set.rect_red,        &set.rect_green,      &set.rect_white,
                                                    &set.rect_195,        &set.rect_188,        &set.rect_17_patterned,
                                                    &set.rect_bevel_dark, &set.rect_bevel_light};
        for (std::size_t i = 0; i < std::size(backgrounds); ++i) {
            EXPECT_EQ(backgrounds[i]->width, size) << i;
            EXPECT_EQ(backgrounds[i]->height, size) << i;
        }
    }

    std::vector<Line_attributes_obj*> thin_lines()
    {
        return {&set.line_black, &set.line_black_c, &set.line_111_b,  &set.line_111,
                &set.line_white, &set.line_white_b, &set.line_black_b};
    }

    Connection_elements set;
};

TEST_F(ConnectionSizes, MakeTheBackgroundsAsLargeAsTheMask)
{
    set.set_sizes(200);
    expect_backgrounds(200);
    set.set_sizes(65535);
    expect_backgrounds(65535);
}

TEST_F(ConnectionSizes, LeaveTheOtherBackgroundsAlone)
{
    set.rect_39.width = std::uint16_t{7};
    set.set_sizes(480);
    EXPECT_EQ(set.rect_81.width, 0);
    EXPECT_EQ(set.rect_81.height, 0);
    EXPECT_EQ(set.rect_39.width, 7);
    EXPECT_EQ(set.rect_39.height, 0);
    EXPECT_EQ(set.rect_17.width, 0);
    EXPECT_EQ(set.rect_17.height, 0);
}

TEST_F(ConnectionSizes, AreSmallFontsBelow480Pixels)
{
    set.set_sizes(479);
    EXPECT_EQ(fonts(), small_fonts);
    set.set_sizes(200);
    EXPECT_EQ(fonts(), small_fonts);
}

TEST_F(ConnectionSizes, AreLargeFontsFrom480PixelsOn)
{
    set.set_sizes(480);
    EXPECT_EQ(fonts(), large_fonts);
    set.set_sizes(65535);
    EXPECT_EQ(fonts(), large_fonts);
}

TEST_F(ConnectionSizes, OfNoMaskAreZeroWithSmallFonts)
{
    set.set_sizes(0);
    expect_backgrounds(0);
    EXPECT_EQ(fonts(), small_fonts);
}

TEST_F(ConnectionSizes, SetASecondTimeAreTheSecondOnes)
{
    set.set_sizes(600);
    set.set_sizes(240);
    expect_backgrounds(240);
    EXPECT_EQ(fonts(), small_fonts);
    set.set_sizes(600);
    expect_backgrounds(600);
    EXPECT_EQ(fonts(), large_fonts);
    for (const Line_attributes_obj* line : thin_lines())
        EXPECT_EQ(line->width, 1);
}

TEST_F(ConnectionSizes, RestoreTheThinLines)
{
    for (Line_attributes_obj* line : thin_lines())
        line->width = std::uint8_t{5};
    set.set_sizes(200);
    for (std::size_t i = 0; i < thin_lines().size(); ++i)
        EXPECT_EQ(thin_lines()[i]->width, 1) << i;
}

TEST_F(ConnectionSizes, LeaveTheOtherLinesAlone)
{
    set.set_sizes(200);
    EXPECT_EQ(set.line_none.width, 0);
    EXPECT_EQ(set.line_grey_2.width, 2);
    set.line_none.width = std::uint8_t{3};
    set.line_grey_2.width = std::uint8_t{4};
    set.set_sizes(200);
    EXPECT_EQ(set.line_none.width, 3);
    EXPECT_EQ(set.line_grey_2.width, 4);
}

TEST_F(ConnectionSizes, KeepColoursLinksAndStyles)
{
    set.font_4.colour = std::uint8_t{9};
    set.font_4.style = std::uint8_t{1};
    set.set_sizes(480);
    EXPECT_EQ(set.font_4.colour, 9);
    EXPECT_EQ(set.font_4.style, 1);
    EXPECT_EQ(set.rect_red.fill, &set.fill_red);
    EXPECT_EQ(set.rect_bevel_dark.line_suppression, 9);
}

TEST_F(ConnectionSizes, WriteTheCoverOutWhateverTheMask)
{
    Fake_pool pool;
    pool.take(set.cover_512, 14);
    pool.take(set.cover_256, 13);
    pool.take(set.cover_128, 12);
    pool.take(set.cover_64, 11);
    pool.take(set.cover_tile, 10);
    set.set_sizes(100);
    Iso::Object_id quarter = 13;
    int half = 256;
    for (Container_obj* cover : {&set.cover_512, &set.cover_256, &set.cover_128, &set.cover_64}) {
        const VT::Attribute_object_placement* const attributes = cover->placements_ptr->get();
        const int corners[4][2] = {{0, 0}, {0, half}, {half, 0}, {half, half}};
        for (std::size_t i = 0; i < 4; ++i) {
            EXPECT_EQ(attributes[i].object_id, quarter) << i;
            EXPECT_EQ(attributes[i].x, corners[i][0]) << i;
            EXPECT_EQ(attributes[i].y, corners[i][1]) << i;
        }
        EXPECT_EQ(cover->width, 2 * half);
        --quarter;
        half /= 2;
    }
}

TEST_F(ConnectionSizes, AreNotSent)
{
    Fake_pool pool;
    pool.take(set.rect_red, 5);
    pool.take(set.font_1, 6);
    pool.take(set.cover_64, 7);
    pool.live = true;
    set.set_sizes(480);
    EXPECT_TRUE(pool.sent.empty());
    EXPECT_TRUE(pool.uploaded.empty());
}

Connection_elements* half_sized;

/// Ends the aborting process with status 1 if the lines and backgrounds have been sized and the fonts have not.
void judge_half_sized(int)
{
    const bool before = half_sized->line_black_b.width == 1 && half_sized->rect_bevel_light.height == 600;
    const bool behind = half_sized->font_0.size != 1;
    _exit(before && !behind ? 1 : 2);
}

using ConnectionSizesDeathTest = ConnectionSizes;

TEST_F(ConnectionSizesDeathTest, StopAtACoverWithoutAQuarterBeforeTheFonts)
{
    set.line_black_b.width = std::uint8_t{5};
    set.cover.inner.placements.placements[2].ref = nullptr;
    half_sized = &set;
    EXPECT_EXIT(
        {
            std::signal(SIGABRT, judge_half_sized);
            set.set_sizes(600);
        },
        ::testing::ExitedWithCode(1),
        death::assertion(
            "false", "../../../../lib/vtui/comp/objects/Has_child_placements", 213,
            "void VT::Comp::Child_placements_array<Array_type>::deref() [with Array_type = Array_array_4]"));
}

} // namespace
