#include "tests/comp/Crumbs.h"

#include <cstdint>
#include <vector>

using namespace crumbs;

namespace {

class CrumbTrailLayout : public Crumbs
{
  protected:
    /// Where the children of `count` consecutive slots of the root lie.
    std::vector<Point> row(unsigned first, unsigned count)
    {
        std::vector<Point> points;
        for (unsigned i = first; i < first + count; ++i) {
            points.push_back(placed(trail.placements, i));
            EXPECT_EQ(written(trail.placements, i), points.back()) << i;
        }
        return points;
    }
    std::vector<Point> crumb_row() { return row(0, 4); }
    std::vector<Point> arrow_row() { return row(4, 3); }
    std::vector<Point> select_row() { return row(7, 4); }
    std::vector<Point> select_line_row() { return row(11, 4); }

    /// The frame has its lines and corners on all four sides.
    void expect_frame(Dimension size, std::int16_t line, std::int16_t corner)
    {
        EXPECT_EQ(size_of(trail.select_frame), size);
        const std::vector<Point> expected = {{0, 0},      {0, line},        {0, 0}, {line, 0},
                                             {corner, 0}, {corner, corner}, {0, 0}, {0, corner}};
        for (std::size_t i = 0; i < expected.size(); ++i) {
            EXPECT_EQ(placed(trail.select_frame_placements, i), expected[i]) << i;
            EXPECT_EQ(written(trail.select_frame_placements, i), expected[i]) << i;
        }
    }
};

TEST_F(CrumbTrailLayout, GivesEachCrumbAQuarter)
{
    trail.set_size({240, 60});
    EXPECT_EQ(size_of(trail.container), Dimension(240, 60));
    EXPECT_EQ(crumb_row(), (std::vector<Point>{{0, 0}, {60, 0}, {120, 0}, {180, 0}}));
    EXPECT_EQ(arrow_row(), (std::vector<Point>{{58, 27}, {118, 27}, {178, 27}}));
    EXPECT_EQ(select_row(), (std::vector<Point>{{9, 9}, {69, 9}, {129, 9}, {189, 9}}));
    EXPECT_EQ(select_line_row(), (std::vector<Point>{{30, 0}, {90, 0}, {150, 0}, {210, 0}}));
    expect_frame({42, 42}, 41, 34);
    EXPECT_EQ(size_of(trail.select_line), Dimension(1, 9));
    EXPECT_EQ(size_of(trail.arrow.polygon), Dimension(4, 6));
    EXPECT_EQ(trail.arrow.vertices.attributes[1].x, 3) << "it points right";
    EXPECT_EQ(trail.arrow.vertices.attributes[1].y, 3);
    EXPECT_EQ(trail.arrow.vertices.attributes[2].x, 0);
    EXPECT_EQ(shown(), none);
}

TEST_F(CrumbTrailLayout, CutsFractionsOff)
{
    trail.set_size({387, 64}); // cells of 96, a chevron of 6 × 7
    EXPECT_EQ(size_of(trail.arrow.polygon), Dimension(6, 7));
    EXPECT_EQ(arrow_row(), (std::vector<Point>{{93, 29}, {189, 29}, {285, 29}}));
    EXPECT_EQ(crumb_row()[3], Point(288, 0));
    trail.set_size({303, 62}); // 75, 5 × 6
    EXPECT_EQ(arrow_row(), (std::vector<Point>{{73, 28}, {148, 28}, {223, 28}}));
    EXPECT_EQ(select_line_row(), (std::vector<Point>{{37, 0}, {112, 0}, {187, 0}, {262, 0}}));
    expect_frame({57, 57}, 56, 49);
}

TEST_F(CrumbTrailLayout, WrapsTheFrameOfANarrowCell)
{
    trail.set_size({104, 60});
    expect_frame({8, 8}, 7, 0);
    trail.set_size({72, 60});
    expect_frame({0, 0}, -1, -8);
    trail.set_size({71, 60});
    expect_frame({65535, 65535}, -2, -9);
    trail.set_size({0, 0});
    expect_frame({65518, 65518}, -19, -26);
    EXPECT_EQ(size_of(trail.arrow.polygon), Dimension(0, 0));
    EXPECT_EQ(trail.arrow.vertices.attributes[1].x, 65535);
    EXPECT_EQ(crumb_row(), (std::vector<Point>(4)));
    EXPECT_EQ(arrow_row(), (std::vector<Point>(3)));
    EXPECT_EQ(select_row(), (std::vector<Point>(4, {9, 9})));
    EXPECT_EQ(select_line_row(), (std::vector<Point>(4)));
}

TEST_F(CrumbTrailLayout, WrapsItsPlacesAt16Bits)
{
    trail.set_size({65535, 65535}); // cells of 16383, a chevron of 1092 × 7281
    EXPECT_EQ(crumb_row(), (std::vector<Point>{{0, 0}, {16383, 0}, {32766, 0}, {-16387, 0}}));
    EXPECT_EQ(arrow_row(), (std::vector<Point>{{15837, 29127}, {32220, 29127}, {-16933, 29127}}));
    EXPECT_EQ(select_row(), (std::vector<Point>{{9, 9}, {16392, 9}, {32775 - 65536, 9}, {-16378, 9}}));
    EXPECT_EQ(select_line_row(), (std::vector<Point>{{8191, 0}, {24574, 0}, {40957 - 65536, 0}, {-8196, 0}}));
    expect_frame({16365, 16365}, 16364, 16357);
}

TEST_F(CrumbTrailLayout, GivesItsPartsTheirSizesBack)
{
    for (Line_obj* const line : {&trail.frame_horizontal_line, &trail.frame_vertical_line, &trail.select_line})
        resize(*line, {7, 7});
    Picture_graphic_obj* const corners[] = {&trail.corner_top_right, &trail.corner_bottom_right, &trail.corner_top_left,
                                            &trail.corner_bottom_left};
    for (Picture_graphic_obj* const corner : corners)
        corner->width = 16;
    trail.set_size({240, 60});
    EXPECT_EQ(size_of(trail.frame_horizontal_line), Dimension(2000, 1));
    EXPECT_EQ(size_of(trail.frame_vertical_line), Dimension(1, 2000));
    EXPECT_EQ(size_of(trail.select_line), Dimension(1, 9));
    for (const Picture_graphic_obj* const corner : corners)
        EXPECT_EQ(corner->width, 8);
}

TEST_F(CrumbTrailLayout, PutsBackWhatItPlacesExceptTheHeightOfCrumbs)
{
    trail.set_size({240, 60});
    for (std::size_t i = 0; i < 15; ++i)
        trail.placements.placements[i].x = trail.placements.placements[i].y = 5;
    trail.set_size({240, 60});
    EXPECT_EQ(crumb_row(), (std::vector<Point>{{0, 5}, {60, 5}, {120, 5}, {180, 5}}));
    EXPECT_EQ(arrow_row()[2], Point(178, 27));
    EXPECT_EQ(select_row()[0], Point(9, 9));
    EXPECT_EQ(select_line_row()[2], Point(150, 0));
}

TEST_F(CrumbTrailLayout, WritesItsChildrenOut)
{
    take_all();
    trail.set_size({240, 60});
    for (std::size_t i = 0; i < 15; ++i)
        EXPECT_EQ(trail.placements.attributes[i].object_id, first_pointer_id + i) << i;
    const int parts[] = {0, 0, 1, 1, 2, 3, 4, 5};
    for (std::size_t i = 0; i < 8; ++i)
        EXPECT_EQ(trail.select_frame_placements.attributes[i].object_id, frame_part_id + parts[i]) << i;
    EXPECT_TRUE(pool.news().empty()) << "not live yet";
}

TEST_F(CrumbTrailLayout, SendsOnlyItsChevronWhenItIsSized)
{
    go_live();
    trail.set_size({240, 60});
    EXPECT_EQ(pool.news(), (Messages{transfer(arrow_id)}));
    trail.set_size({240, 60});
    trail.set_size({242, 60});
    EXPECT_TRUE(pool.news().empty()) << "a chevron of the same size";
    EXPECT_TRUE(trail.container.is_changed());
    EXPECT_TRUE(trail.select_frame.is_changed());
}

using CrumbTrailLayoutDeathTest = CrumbTrailLayout;

TEST_F(CrumbTrailLayoutDeathTest, ALayoutWithAnEmptySlotEndsTheProcess)
{
    const death::Words words = no_child("VT::Comp::Crumb_trail::Array_array_N");
    for (const std::size_t slot : {0U, 4U, 7U, 14U}) {
        Crumb_trail broken(style);
        broken.placements.placements[slot].ref = nullptr;
        EXPECT_DEATH(broken.set_size({240, 60}), words) << slot;
    }
}

TEST_F(CrumbTrailLayoutDeathTest, ALayoutWithAnEmptySlotOfTheFrameEndsTheProcessFirst)
{
    trail.placements.placements[0].ref = nullptr;
    for (const std::size_t slot : {0U, 7U}) {
        VT::VT_obj*& child = trail.select_frame_placements.placements[slot].ref;
        VT::VT_obj* const kept = child;
        child = nullptr;
        EXPECT_DEATH(trail.set_size({240, 60}), no_child("Array_array_8")) << slot;
        child = kept;
    }
}

} // namespace
