#include "tests/Fake_pool.h"
#include "tests/Lock.h"
#include "tests/Record_text.h"
#include "vtui/comp/objects/Container_obj.h"
#include "vtui/comp/objects/Fill_attributes_obj.h"
#include "vtui/comp/objects/Font_attributes_obj.h"
#include "vtui/comp/objects/Key_obj.h"
#include "vtui/comp/objects/Line_attributes_obj.h"
#include "vtui/comp/objects/Line_obj.h"
#include "vtui/comp/objects/N_state_pointer_obj.h"
#include "vtui/comp/objects/Picture_graphic_obj.h"
#include "vtui/comp/objects/Polygon_obj.h"
#include "vtui/comp/objects/Rectangle_obj.h"
#include "vtui/comp/objects/String_variable_obj.h"

#include <gtest/gtest.h>

#include <thread>

using namespace VT::Comp;

namespace {

TEST(Wrapper, HasItsOwnName)
{
    Container_obj object;
    object.set_name("speed");
    EXPECT_STREQ(object.get_name(), "speed");
}

TEST(Wrapper, WithoutAnAreaIsZeroWideAndHigh)
{
    const auto expect_none = [](const VT::VT_obj& object) {
        EXPECT_EQ(object.get_width(), 0);
        EXPECT_EQ(object.get_height(), 0);
    };
    expect_none(Font_attributes_obj());
    expect_none(Line_attributes_obj(0, 5, 0xFFFF));
    expect_none(Fill_attributes_obj(2, 1));
    expect_none(String_variable_obj<4>());
    expect_none(Key_obj());
}

TEST(PictureGraphic, KeepsItsAspectRatioAtAnotherWidth)
{
    Picture_graphic_obj picture(64, 32, 16, 2, 0, 0, 0, nullptr);
    EXPECT_EQ(picture.get_width(), 64);
    EXPECT_EQ(picture.get_height(), 32);
    picture.width = std::uint16_t{33};
    EXPECT_EQ(picture.get_height(), 16) << "33 * 16 / 32 is 16.5";
    picture.width = std::uint16_t{65535};
    EXPECT_EQ(picture.get_height(), 32767);
}

TEST(PictureGraphic, HasTheHeightOfTallPicturesToo)
{
    const Picture_graphic_obj picture(60000, 60000, 50000, 2, 0, 0, 0, nullptr);
    EXPECT_EQ(picture.get_height(), 50000) << "the product needs 32 bits";
}

TEST(PictureGraphic, KeepsTheLowSixteenBitsOfAHeightBeyondThem)
{
    Picture_graphic_obj picture(65535, 1, 2, 2, 0, 0, 0, nullptr);
    EXPECT_EQ(picture.get_height(), 65534) << "131070 - 65536";
    picture.width = std::uint16_t{32768};
    EXPECT_EQ(picture.get_height(), 0);
}

TEST(PictureGraphic, WithoutAWidthOfItsOwnHasNoHeight)
{
    const Picture_graphic_obj picture(64, 0, 16, 2, 0, 0, 0, nullptr);
    EXPECT_EQ(picture.get_height(), 0);
}

TEST(ObjectPointer, IsAsLargeAsItsTarget)
{
    Container_obj target;
    target.height = std::uint16_t{20};
    Object_pointer_obj pointer;
    EXPECT_EQ(pointer.get_width(), 0);
    EXPECT_EQ(pointer.get_height(), 0);
    pointer.set_target(&target);
    EXPECT_EQ(pointer.get_width(), 240);
    EXPECT_EQ(pointer.get_height(), 20);
    pointer.set_target(nullptr);
    EXPECT_EQ(pointer.get_width(), 0);
}

TEST(ObjectPointer, ToAPointerIsAsLargeAsWhatThatShows)
{
    Container_obj shown;
    N_state_pointer_obj<2> inner({nullptr, &shown});
    Object_pointer_obj outer;
    outer.set_target(&inner);
    EXPECT_EQ(outer.get_height(), 0);
    inner.set_state(1);
    EXPECT_EQ(outer.get_height(), 240);
}

/// A polygon with its points in the list that the pool writes.
struct Listed_polygon
{
    Listed_polygon()
    {
        polygon.points = points;
        polygon.num_points = 2;
        polygon.width = std::uint16_t{200};
        polygon.height = std::uint16_t{100};
    }

    VT::Attribute_point points[2];
    Polygon_obj polygon;
};

TEST(Polygon, ScalesItsPointsAndItsArea)
{
    Listed_polygon listed;
    listed.points[0].x = std::uint16_t{10};
    listed.points[0].y = std::uint16_t{7};
    listed.points[1].x = std::uint16_t{21};
    listed.points[1].y = std::uint16_t{20};
    listed.polygon.__set_scale(50, 30, 100, 100);
    EXPECT_EQ(listed.points[0].x, 5);
    EXPECT_EQ(listed.points[0].y, 2) << "7 * 30 / 100 is 2.1";
    EXPECT_EQ(listed.points[1].x, 10);
    EXPECT_EQ(listed.points[1].y, 6);
    EXPECT_EQ(listed.polygon.width, 100);
    EXPECT_EQ(listed.polygon.height, 30);
}

TEST(Polygon, ScalesEachAxisWithItsOwnNumbers)
{
    Listed_polygon listed;
    listed.points[0].x = std::uint16_t{100};
    listed.points[0].y = std::uint16_t{100};
    listed.polygon.__set_scale(1, 2, 4, 5);
    EXPECT_EQ(listed.points[0].x, 25);
    EXPECT_EQ(listed.points[0].y, 40);
}

TEST(Polygon, ScalesThroughProductsBeyondSixteenBits)
{
    Listed_polygon listed;
    listed.points[0].x = std::uint16_t{60000};
    listed.polygon.__set_scale(60000, 1, 60000, 1);
    EXPECT_EQ(listed.points[0].x, 60000);
}

TEST(Polygon, ScalesCoordinatesFrom0x8000OnAsPositiveNumbers)
{
    Listed_polygon listed;
    listed.points[0].x = std::uint16_t{60000};
    listed.points[0].y = std::uint16_t{32768};
    listed.polygon.__set_scale(1, 1, 2, 4);
    EXPECT_EQ(listed.points[0].x, 30000);
    EXPECT_EQ(listed.points[0].y, 8192);
}

TEST(ScaleCheck, OfAPolygonLooksAtItsPointsToo)
{
    Listed_polygon listed;
    listed.points[1].y = std::uint16_t{1000};
    EXPECT_TRUE(listed.polygon.check_scale_area(1, 65, 1, 1));
    EXPECT_FALSE(listed.polygon.check_scale_area(1, 66, 1, 1)) << "66000";
    EXPECT_EQ(listed.points[1].y, 1000) << "only checked";
}

TEST(ScaleCheck, OfALineWithoutWidthClearsItsArt)
{
    Line_attributes_obj none(0, 0, 0xFFFF);
    EXPECT_TRUE(none.check_scale_area(2, 2, 1, 1));
    EXPECT_EQ(none.line_art, 0);
    EXPECT_EQ(none.width, 0);
    Line_attributes_obj line(0, 1, 0xFFFF);
    EXPECT_TRUE(line.check_scale_area(2, 2, 1, 1));
    EXPECT_EQ(line.line_art, 0xFFFF);
}

/// A line with something to scale, which it shows with its lock held.
class Long_line final : public Line_attributes_obj
{
  public:
    Long_line() : Line_attributes_obj(0, 0, 0xFFFF) {}

    void visit(VT::Attribute_visitor& visitor) override
    {
        was_locked = is_locked(*this);
        art_when_checked = line_art;
        visitor.attribute({"length", 0, VT::Axis::x}, length);
    }

    bool was_locked{false};
    std::uint16_t art_when_checked{1};

  private:
    VT::Attribute_uint16 length{40000};
};

TEST(ScaleCheck, OfALineIsStillTheOneOfEveryObject)
{
    Long_line line;
    EXPECT_FALSE(line.check_scale_area(2, 1, 1, 1));
    EXPECT_TRUE(line.was_locked);
    EXPECT_EQ(line.line_art, 0);
    EXPECT_EQ(line.art_when_checked, 0) << "cleared before the check";
    EXPECT_TRUE(line.check_scale_area(1, 1, 1, 1));
    EXPECT_FALSE(is_locked(line, std::chrono::seconds(10)));
}

TEST(ScaleCheck, RefusesAnAreaBeyondSixteenBits)
{
    Container_obj container;
    EXPECT_TRUE(container.check_scale_area(273, 273, 1, 1));
    EXPECT_FALSE(container.check_scale_area(274, 1, 1, 1));
    EXPECT_EQ(container.width, 240) << "only checked";
}

TEST(ScaleCheck, TakesAndReleasesTheLock)
{
    Container_obj container;
    container.check_scale_area(1, 1, 1, 1);
    container.check_scale_area(1, 1, 1, 1); // would wait for ever if the first had kept the lock
    container.lock();
    std::thread second([&container] {
        container.check_scale_area(274, 1, 1, 1);
        container.width = std::uint16_t{1};
    });
    container.width = std::uint16_t{2};
    container.unlock();
    second.join();
    EXPECT_EQ(container.width, 1) << "the check came behind the lock";
}

TEST(ScaleCheck, OfAFillDoesNothingAndDoesNotEvenWait)
{
    Fill_attributes_obj fill(2, 1);
    fill.lock();
    EXPECT_TRUE(fill.check_scale_area(65535, 65535, 1, 1));
    fill.unlock();
}

TEST(Rectangle, ReportsAMissingLineWhenItIsSpecified)
{
    Fake_pool pool;
    Rectangle_obj rectangle;
    pool.take(rectangle, 9);
    EXPECT_TRUE(Fake_pool::specify(rectangle, {{"width", 7.0}}));
    EXPECT_EQ(rectangle.width, 7);
    EXPECT_EQ(pool.reported, (std::vector<std::string>{"9 line_attributes is the null id"})) << "and no missing fill";
}

TEST(Rectangle, ReportsNothingAboutALineThatTheSpecificationGives)
{
    Fake_pool pool;
    Rectangle_obj rectangle;
    pool.take(rectangle, 9);
    EXPECT_TRUE(Fake_pool::specify(rectangle, {{"line_attributes", 5.0}}));
    EXPECT_TRUE(pool.reported.empty()) << "the check comes behind the specification";
}

TEST(Line, ReportsAMissingLineWhenItIsSpecified)
{
    Fake_pool pool;
    Line_obj line(1, 1, 0);
    pool.take(line, 9);
    EXPECT_TRUE(Fake_pool::specify(line));
    EXPECT_EQ(pool.reported, (std::vector<std::string>{"9 line_attributes is the null id"}));
    EXPECT_TRUE(Fake_pool::specify(line, {{"line_attributes", 5.0}}));
    EXPECT_EQ(pool.reported.size(), 1U);
}

TEST(Wrapper, SaysThatItRefusedAValue)
{
    const auto expect_refused = [](auto&& object, const char* attribute) {
        Fake_pool pool;
        pool.take(object, 9);
        EXPECT_FALSE(Fake_pool::specify(object, {{attribute, 1e9}})) << attribute;
    };
    Rectangle_obj rectangle;
    rectangle.line_attributes = std::uint16_t{5};
    expect_refused(rectangle, "width");
    expect_refused(Line_obj(1, 1, 0), "line_direction");
    expect_refused(Key_obj(), "key_code");
    expect_refused(Fill_attributes_obj(2, 1), "fill_colour");
}

} // namespace
