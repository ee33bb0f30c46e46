#include "tests/comp/Parts.h"
#include "vtui/comp/widgets/Arrow_widget.h"

#include <type_traits>
#include <utility>
#include <vector>

using namespace parts;
using VT::Comp::Arrow_widget;
using VT::Comp::Dimension;

namespace {

using Lines = Record_text::Lines;
using Points = std::vector<std::pair<int, int>>; ///< as the record has them: unsigned

class ArrowWidget : public ::testing::Test
{
  protected:
    Points points()
    {
        Points written;
        for (std::size_t i = 0; i < arrow.vertices.size(); ++i)
            written.emplace_back(arrow.vertices.attributes[i].x, arrow.vertices.attributes[i].y);
        return written;
    }

    Points pointing_left(Dimension size)
    {
        arrow.set_size_left(size);
        EXPECT_EQ(size_of(arrow.polygon), size);
        return points();
    }
    Points pointing_right(Dimension size)
    {
        arrow.set_size_right(size);
        EXPECT_EQ(size_of(arrow.polygon), size);
        return points();
    }

    void go_live()
    {
        arrow.polygon.points = arrow.vertices.get();
        arrow.polygon.num_points = 3;
        pool.take(line, line_id);
        pool.take(arrow.polygon, polygon_id);
        pool.upload(arrow.polygon);
        pool.news();
        pool.live = true;
    }

    static constexpr Iso::Object_id polygon_id = 0x1001;
    static constexpr Iso::Object_id line_id = 0x1002;

    Journal pool; // outlives what is in it
    VT::Comp::Line_attributes_obj line{0, 1, 0xFFFF};
    Arrow_widget arrow{line};
};

TEST_F(ArrowWidget, IsAnOpenLineWithoutASizeAtFirst)
{
    EXPECT_EQ(arrow.root(), &arrow.polygon);
    EXPECT_EQ(arrow.polygon.get_id(), VT::VT_obj::NULL_ID);
    EXPECT_STREQ(arrow.polygon.get_name(), "");
    EXPECT_EQ(Record_text::values_of(arrow.polygon),
              (Lines{"u16 width 0", "u16 height 0", "id line_attributes null", "id fill_attributes null",
                     "u8 polygon_type 3", "count u8 0", "count u8 0"}));
    EXPECT_EQ(arrow.polygon.line, &line) << "the link that the pool follows";
    EXPECT_EQ(arrow.polygon.fill, nullptr);
    EXPECT_EQ(arrow.polygon.vertices_ptr, &arrow.vertices);
    EXPECT_EQ(points(), (Points{{0, 0}, {0, 0}, {0, 0}}));
    EXPECT_FALSE(std::is_polymorphic_v<Arrow_widget>);
    EXPECT_FALSE((std::is_convertible_v<VT::Comp::Line_attributes_obj&, Arrow_widget>)) << "not by accident";
}

TEST_F(ArrowWidget, RecordsALineThatHasAnIdWhileItHasNone)
{
    pool.take(line, line_id);
    pool.live = true;
    const Arrow_widget other(line);
    EXPECT_EQ(other.polygon.line, &line);
    EXPECT_EQ(other.polygon.line_attributes, VT::VT_obj::NULL_ID);
    EXPECT_TRUE(pool.news().empty());
}

TEST_F(ArrowWidget, PointsToEitherSide)
{
    EXPECT_EQ(pointing_right({4, 6}), (Points{{0, 0}, {3, 3}, {0, 5}}));
    EXPECT_EQ(pointing_left({4, 6}), (Points{{3, 0}, {0, 3}, {3, 5}}));
}

TEST_F(ArrowWidget, PointsRightUnlessToldOtherwise)
{
    pointing_left({20, 10});
    arrow.set_size({4, 6});
    EXPECT_EQ(size_of(arrow.polygon), Dimension(4, 6));
    EXPECT_EQ(points(), (Points{{0, 0}, {3, 3}, {0, 5}}));
}

TEST_F(ArrowWidget, CutsHalfAPixelOff)
{
    EXPECT_EQ(pointing_right({5, 7}), (Points{{0, 0}, {4, 3}, {0, 6}}));
    EXPECT_EQ(pointing_left({5, 7}), (Points{{4, 0}, {0, 3}, {4, 6}}));
}

TEST_F(ArrowWidget, IsAPointIfItIsOnePixelLarge)
{
    EXPECT_EQ(pointing_right({1, 1}), (Points{{0, 0}, {0, 0}, {0, 0}}));
    EXPECT_EQ(pointing_left({1, 1}), (Points{{0, 0}, {0, 0}, {0, 0}}));
}

TEST_F(ArrowWidget, WrapsWithoutWidthOrHeight)
{
    EXPECT_EQ(pointing_right({0, 6}), (Points{{0, 0}, {65535, 3}, {0, 5}}));
    EXPECT_EQ(pointing_left({0, 6}), (Points{{65535, 0}, {0, 3}, {65535, 5}}));
    EXPECT_EQ(pointing_right({4, 0}), (Points{{0, 0}, {3, 0}, {0, 65535}}));
    EXPECT_EQ(pointing_left({0, 0}), (Points{{65535, 0}, {0, 0}, {65535, 65535}}));
}

TEST_F(ArrowWidget, HasUnsignedPointsOf16Bits)
{
    EXPECT_EQ(pointing_right({40000, 65535}), (Points{{0, 0}, {39999, 32767}, {0, 65534}}));
    EXPECT_EQ(pointing_left({65535, 32769}), (Points{{65534, 0}, {0, 16384}, {65534, 32768}}));
}

TEST_F(ArrowWidget, SendsItsNewShapeAtOnce)
{
    go_live();
    arrow.set_size({4, 6});
    EXPECT_EQ(pool.news(), (Messages{transfer(polygon_id)}));
    EXPECT_EQ(Record_text::values_of(arrow.polygon),
              (Lines{"u16 width 4", "u16 height 6", "id line_attributes null", "id fill_attributes null",
                     "u8 polygon_type 3", "count u8 3", "count u8 0", "point 0,0", "point 3,3", "point 0,5"}));
    arrow.set_size_right({4, 6});
    EXPECT_TRUE(pool.news().empty()) << "the same again";
    arrow.set_size_left({4, 6});
    EXPECT_EQ(pool.news(), (Messages{transfer(polygon_id)})) << "the points alone have changed";
    arrow.set_size_left({4, 6});
    EXPECT_TRUE(pool.news().empty());
}

TEST_F(ArrowWidget, SendsNothingBeforeThePoolIsLive)
{
    go_live();
    pool.live = false;
    EXPECT_EQ(pointing_left({4, 6}), (Points{{3, 0}, {0, 3}, {3, 5}}));
    EXPECT_TRUE(pool.news().empty());
    pool.release(arrow.polygon);
    pool.live = true;
    EXPECT_EQ(pointing_right({4, 6}), (Points{{0, 0}, {3, 3}, {0, 5}}));
    EXPECT_TRUE(pool.news().empty()) << "not of this pool";
}

using ArrowWidgetDeathTest = ArrowWidget;

TEST_F(ArrowWidgetDeathTest, AVectorCannotMoveIt) { expect_no_second_in_a_vector<Arrow_widget>(line); }

} // namespace
