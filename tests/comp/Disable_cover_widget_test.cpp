#include "tests/Death.h"
#include "tests/Fake_pool.h"
#include "tests/Record_text.h"
#include "vtui/comp/widgets/Disable_cover_widget.h"

#include <gtest/gtest.h>

#include <csignal>
#include <type_traits>
#include <unistd.h>

using VT::Comp::Dimension;
template <unsigned DEPTH>
using Cover = VT::Comp::Disable_cover_widget_impl<DEPTH>;

namespace {

death::Words no_larger_cover(const std::string& depth)
{
    return death::assertion("false", "../../../vtui/comp/widgets/Disable_cover_widget", 100,
                            "VT::VT_obj* VT::Comp::Disable_cover_widget_impl<DEPTH>::root_at_size(uint16_t) [with "
                            "unsigned int DEPTH = " +
                                depth + "u; uint16_t = short unsigned int]");
}

TEST(DisableCoverTile, IsATransparentPictureOf32Pixels)
{
    Cover<1> cover;
    EXPECT_EQ(&cover.root(), &cover.tile);
    EXPECT_EQ(cover.tile.get_id(), VT::VT_obj::NULL_ID);
    EXPECT_STREQ(cover.tile.get_name(), "");
    EXPECT_EQ(cover.tile.width, 32);
    EXPECT_EQ(cover.tile.actual_width, 32);
    EXPECT_EQ(cover.tile.actual_height, 32);
    EXPECT_EQ(cover.tile.get_height(), 32);
    EXPECT_EQ(cover.tile.format, 2);
    EXPECT_EQ(cover.tile.options, 1);
    EXPECT_EQ(cover.tile.transparency_colour, 13);
    EXPECT_EQ(cover.tile.raw_data_size, 1024U);
    EXPECT_EQ(cover.tile.raw_data, Cover<1>::get_pic_buf());
    EXPECT_EQ(cover.tile.num_macros, 0);
}

TEST(DisableCoverTile, IsAChequerboardThatStartsWithItsColour)
{
    const std::uint8_t* const pixels = Cover<1>::get_pic_buf();
    for (unsigned y = 0; y < 32; ++y)
        for (unsigned x = 0; x < 32; ++x)
            ASSERT_EQ(pixels[32 * y + x], (x + y) % 2 == 0 ? 188 : 13) << x << "," << y;
    EXPECT_EQ(pixels[0], 188);
    EXPECT_EQ(pixels[1], 13);
    EXPECT_EQ(pixels[32], 13);
    EXPECT_EQ(pixels[1023], 188);
}

TEST(DisableCoverTile, SharesItsPixelsWithAllOthers)
{
    const Cover<1> first;
    const Cover<2> second;
    EXPECT_EQ(first.tile.raw_data, second.inner.tile.raw_data);
}

/// One level: a container with the next smaller level in its four quarters.
template <unsigned DEPTH>
void expect_quarters(Cover<DEPTH>& cover, std::int16_t side)
{
    SCOPED_TRACE(side);
    EXPECT_EQ(&cover.root(), &cover.container);
    EXPECT_EQ(cover.container.width, side);
    EXPECT_EQ(cover.container.height, side);
    EXPECT_EQ(cover.container.hidden, 0);
    EXPECT_EQ(cover.container.get_id(), VT::VT_obj::NULL_ID);
    EXPECT_STREQ(cover.container.get_name(), "");
    EXPECT_EQ(cover.container.placements_ptr, &cover.placements);
    ASSERT_EQ(cover.placements.size(), 4U);

    const int half = side / 2;
    const int corners[4][2] = {{0, 0}, {0, half}, {half, 0}, {half, half}};
    for (std::size_t i = 0; i < 4; ++i) {
        EXPECT_EQ(cover.placements.placements[i].ref, &cover.inner.root()) << i;
        EXPECT_EQ(cover.placements.placements[i].x, corners[i][0]) << i;
        EXPECT_EQ(cover.placements.placements[i].y, corners[i][1]) << i;
        EXPECT_EQ(cover.placements.attributes[i].object_id, VT::VT_obj::NULL_ID) << "not written out yet";
        EXPECT_EQ(cover.placements.attributes[i].x, 0) << "not written out yet";
    }
    if constexpr (DEPTH > 2)
        expect_quarters(cover.inner, static_cast<std::int16_t>(half));
}

TEST(DisableCover, IsMadeOfFourOfTheNextSmallerOneAtEveryLevel)
{
    Cover<5> cover;
    expect_quarters(cover, 512);
    Cover<4> smaller;
    expect_quarters(smaller, 256);
    Cover<3> third;
    expect_quarters(third, 128);
    Cover<2> smallest;
    expect_quarters(smallest, 64);
}

TEST(DisableCover, HoldsContainerThenPlacementsThenTheInnerLevel)
{
    const Cover<5> cover;
    EXPECT_LT(static_cast<const void*>(&cover.container), static_cast<const void*>(&cover.placements));
    EXPECT_LT(static_cast<const void*>(&cover.placements), static_cast<const void*>(&cover.inner));
    EXPECT_FALSE(std::is_polymorphic_v<Cover<5>>);
}

TEST(DisableCover, OfDepth5IsTheSmallestThatIsLargeEnough)
{
    Cover<5> cover;
    const std::pair<std::uint16_t, VT::VT_obj*> roots[] = {
        {0, &cover.inner.inner.inner.inner.tile},
        {1, &cover.inner.inner.inner.inner.tile},
        {32, &cover.inner.inner.inner.inner.tile},
        {33, &cover.inner.inner.inner.container},
        {64, &cover.inner.inner.inner.container},
        {65, &cover.inner.inner.container},
        {128, &cover.inner.inner.container},
        {129, &cover.inner.container},
        {256, &cover.inner.container},
        {257, &cover.container},
        {512, &cover.container},
    };
    for (const auto& [size, root] : roots)
        EXPECT_EQ(cover.root_at_size(size), root) << size;
}

TEST(DisableCover, OfDepth2IsItsOwnContainerOrTheTile)
{
    Cover<2> cover;
    EXPECT_EQ(cover.root_at_size(std::uint16_t{64}), &cover.container);
    EXPECT_EQ(cover.root_at_size(std::uint16_t{33}), &cover.container);
    EXPECT_EQ(cover.root_at_size(std::uint16_t{32}), &cover.inner.tile);
    EXPECT_EQ(cover.root_at_size(std::uint16_t{0}), &cover.inner.tile);
}

TEST(DisableCover, IsChosenByTheLargerSide)
{
    Cover<5> cover;
    EXPECT_EQ(cover.root_at_size(Dimension(300, 20)), &cover.container);
    EXPECT_EQ(cover.root_at_size(Dimension(20, 300)), &cover.container);
    EXPECT_EQ(cover.root_at_size(Dimension(33, 32)), &cover.inner.inner.inner.container);
    EXPECT_EQ(cover.root_at_size(Dimension(0, 0)), &cover.inner.inner.inner.inner.tile);
}

/// A cover whose levels have the ids 10 (the tile) to 14.
class DisableCoverInAPool : public ::testing::Test
{
  protected:
    DisableCoverInAPool()
    {
        pool.take(cover.container, 14);
        pool.take(cover.inner.container, 13);
        pool.take(cover.inner.inner.container, 12);
        pool.take(cover.inner.inner.inner.container, 11);
        pool.take(cover.inner.inner.inner.inner.tile, 10);
    }

    template <unsigned DEPTH>
    static void expect_written_out(Cover<DEPTH>& level, Iso::Object_id child)
    {
        const int half = level.side / 2;
        const int corners[4][2] = {{0, 0}, {0, half}, {half, 0}, {half, half}};
        for (std::size_t i = 0; i < 4; ++i) {
            EXPECT_EQ(level.placements.attributes[i].object_id, child) << i;
            EXPECT_EQ(level.placements.attributes[i].x, corners[i][0]) << i;
            EXPECT_EQ(level.placements.attributes[i].y, corners[i][1]) << i;
        }
    }

    Fake_pool pool;
    Cover<5> cover;
};

TEST_F(DisableCoverInAPool, WritesThePlacementsOfEveryLevelOutAndKeepsItsSize)
{
    cover.set_size({7, 9});
    expect_written_out(cover, 13);
    expect_written_out(cover.inner, 12);
    expect_written_out(cover.inner.inner, 11);
    expect_written_out(cover.inner.inner.inner, 10);
    EXPECT_EQ(cover.container.width, 512);
    EXPECT_EQ(cover.container.height, 512);
    EXPECT_EQ(cover.inner.inner.inner.inner.tile.width, 32);
}

TEST_F(DisableCoverInAPool, WritesOnlyItsOwnLevelsOut)
{
    cover.inner.inner.set_size({});
    expect_written_out(cover.inner.inner, 11);
    expect_written_out(cover.inner.inner.inner, 10);
    EXPECT_FALSE(cover.placements.attributes[0].changed());
    EXPECT_FALSE(cover.inner.placements.attributes[0].changed());
}

TEST_F(DisableCoverInAPool, UploadsNothing)
{
    pool.live = true;
    cover.set_size({});
    EXPECT_TRUE(pool.uploaded.empty());
    EXPECT_TRUE(pool.sent.empty());
}

death::Words missing_child()
{
    return death::assertion(
        "false", "../../../../lib/vtui/comp/objects/Has_child_placements", 213,
        "void VT::Comp::Child_placements_array<Array_type>::deref() [with Array_type = Array_array_4]");
}

Cover<5>* half_written;

/// Ends the aborting process with status 1 if the two outer levels have been written and the innermost has not.
void judge_half_written(int)
{
    const auto written = [](auto& level) { return level.placements.attributes[3].object_id != VT::VT_obj::NULL_ID; };
    const bool outer = written(*half_written) && written(half_written->inner);
    const bool innermost = written(half_written->inner.inner.inner);
    _exit(outer && !innermost ? 1 : 2);
}

using DisableCoverDeathTest = DisableCoverInAPool;

TEST_F(DisableCoverDeathTest, WritesTheOuterLevelsOutFirst)
{
    cover.inner.inner.placements.placements[3].ref = nullptr;
    half_written = &cover;
    EXPECT_EXIT(
        {
            std::signal(SIGABRT, judge_half_written);
            cover.set_size({});
        },
        ::testing::ExitedWithCode(1), missing_child());
}

TEST_F(DisableCoverDeathTest, ThereIsNoLargerCover)
{
    EXPECT_DEATH(cover.root_at_size(std::uint16_t{513}), no_larger_cover("5"));
    EXPECT_DEATH(cover.root_at_size(std::uint16_t{65535}), no_larger_cover("5"));
    EXPECT_DEATH(cover.root_at_size(Dimension(1, 513)), no_larger_cover("5"));
    EXPECT_DEATH(cover.inner.root_at_size(std::uint16_t{257}), no_larger_cover("4"));
    EXPECT_DEATH(cover.inner.inner.root_at_size(std::uint16_t{129}), no_larger_cover("3"));
    EXPECT_DEATH(cover.inner.inner.inner.root_at_size(std::uint16_t{65}), no_larger_cover("2"));
}

} // namespace
