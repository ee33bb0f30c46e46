#include "tests/pool/Fake_terminal.h"
#include "tests/pool/Screen.h"
#include "vtui/comp/objects/Container_obj.h"
#include "vtui/comp/objects/Font_attributes_obj.h"
#include "vtui/comp/objects/Polygon_obj.h"
#include "vtui/comp/objects/Rectangle_obj.h"

#include <gtest/gtest.h>

#include <memory>
#include <utility>
#include <vector>

namespace {

/// A screen laid out for 240 pixels, before a terminal with `width` x `height` pixels.
struct Scaled : Screen
{
    explicit Scaled(int width = 480, int height = 120)
    {
        terminal.answers[0xC7] = frame(0xC7, 0xFF, 2, 3, w(width), w(height));
        pool.set_designed_size(240);
    }

    Fake_terminal terminal;
};

/// A component's polygon, scaled to one half across and one third down.
struct Scaled_polygon
{
    using Point = std::pair<short, short>;
    using Points = std::vector<std::pair<int, int>>;

    Scaled_polygon(Point first, Point second, Point third)
    {
        vertices.points[0] = first;
        vertices.points[1] = second;
        vertices.points[2] = third;
        polygon.vertices_ptr = &vertices;
        screen.pool.add(polygon);
        EXPECT_TRUE(screen.pool.load(screen.terminal));
    }

    /// As the record has them.
    Points points() const
    {
        Points all;
        for (std::size_t i = 0; i < polygon.num_points; ++i)
            all.emplace_back(polygon.points[i].x, polygon.points[i].y);
        return all;
    }

    C::Polygon_obj polygon;
    C::Vertex_array<Array_array_3> vertices;
    Scaled screen{120, 80};
};

} // namespace

TEST(PoolScaling, StretchesSizesAndPositionsEachItsWay)
{
    C::Rectangle_obj child;
    child.width = 11;
    child.height = 21;
    With_child<C::Container_obj> parent(&child, -3, 7);
    C::Font_attributes_obj font;
    font.size = 3; // 12 x 16, then at most 24 x 8
    Scaled screen;
    screen.mask.add(parent.parent, 100, 50);
    screen.pool.add(font);
    ASSERT_TRUE(screen.pool.ask_hardware(screen.terminal));
    ASSERT_TRUE(screen.pool.prepare());
    EXPECT_EQ(child.width, 22);
    EXPECT_EQ(child.height, 10);
    EXPECT_EQ(parent.parent.width, 480);
    EXPECT_EQ(parent.parent.height, 120);
    EXPECT_EQ(parent.parent.objects[0].x, -6);
    EXPECT_EQ(parent.parent.objects[0].y, 3);
    EXPECT_EQ(screen.mask.objects[0].x, 200);
    EXPECT_EQ(screen.mask.objects[0].y, 25);
    EXPECT_EQ(font.size, 1); // 8 x 8
}

TEST(PoolScaling, StretchesOneWayWhereTheOtherFits)
{
    for (const auto& [width, height] : {std::pair{240, 480}, {480, 240}}) {
        C::Container_obj container;
        Scaled screen(width, height);
        screen.pool.add(container);
        ASSERT_TRUE(screen.pool.load(screen.terminal));
        EXPECT_EQ(container.width, width);
        EXPECT_EQ(container.height, height);
    }
}

TEST(PoolScaling, KeepsTheComponentsPlacementsInStep)
{
    C::Rectangle_obj child;
    With_child<C::Container_obj> parent(&child, -3, 7);
    Scaled screen;
    screen.mask.add(parent.parent, 0, 0);
    ASSERT_TRUE(screen.pool.ask_hardware(screen.terminal));
    ASSERT_TRUE(screen.pool.prepare());
    parent.children.deref();
    EXPECT_EQ(parent.parent.objects[0].x, -6);
    EXPECT_EQ(parent.parent.objects[0].y, 3);
}

TEST(PoolScaling, ScalesPolygonsWithTheirPoints)
{
    C::Polygon_obj polygon;
    polygon.width = 30;
    C::Vertex_array<Array_array_3> vertices;
    vertices.points[1] = {10, 7};
    polygon.vertices_ptr = &vertices;
    Scaled screen;
    screen.pool.add(polygon);
    ASSERT_TRUE(screen.pool.ask_hardware(screen.terminal));
    ASSERT_TRUE(screen.pool.prepare());
    EXPECT_EQ(polygon.width, 60);
    EXPECT_EQ(polygon.points[1].x, 20);
    EXPECT_EQ(polygon.points[1].y, 3);
}

TEST(PoolScaling, KeepsTheComponentsPointsInStep)
{
    Scaled_polygon scaled({101, 51}, {0, 1}, {32767, 7});
    const Scaled_polygon::Points expected{{50, 17}, {0, 0}, {16383, 2}};
    EXPECT_EQ(scaled.points(), expected);
    scaled.vertices.deref();
    EXPECT_EQ(scaled.points(), expected);
}

TEST(PoolScaling, KeepsTheComponentsPointsInStepFrom0x8000OnToo)
{
    Scaled_polygon scaled({-1, -32768}, {0, 0}, {0, 0}); // 65535, 32768
    const Scaled_polygon::Points expected{{32767, 10922}, {0, 0}, {0, 0}};
    EXPECT_EQ(scaled.points(), expected);
    scaled.vertices.deref();
    EXPECT_EQ(scaled.points(), expected);
}

TEST(PoolScaling, AsksAComponentForNoMorePointsThanItHas)
{
    struct Strict final : C::Vertex_array<Array_array_3>
    {
        std::pair<short, short>& point(std::size_t index) override
        {
            EXPECT_LT(index, 3u);
            return C::Vertex_array<Array_array_3>::point(index % 3);
        }
    } vertices;
    C::Polygon_obj polygon;
    polygon.vertices_ptr = &vertices;
    Scaled screen;
    screen.pool.add(polygon);
    ASSERT_TRUE(screen.pool.load(screen.terminal));
}

TEST(PoolScaling, RefusesPolygonsWithPointsThatDoNotFit)
{
    C::Polygon_obj polygon;
    C::Vertex_array<Array_array_3> vertices;
    vertices.points[2] = {20000, 0};
    polygon.vertices_ptr = &vertices;
    Scaled screen(960, 240);
    screen.pool.add(polygon);
    const VT::Result result = screen.pool.load(screen.terminal);
    EXPECT_EQ(result.error(), VT::Error::does_not_fit);
    EXPECT_EQ(result.text(),
              "polygon 2 does not fit 16 bits when the pool is scaled from 240 x 240 to 960 x 240 pixels\n");
    EXPECT_EQ(vertices.points[2].first, 20000);
}

TEST(PoolScaling, TakesInChildrenOfAScaledMaskWithTheirPositions)
{
    C::Container_obj old;
    C::Container_obj late;
    Scaled screen;
    screen.mask.add(old, 10, 20);
    ASSERT_TRUE(screen.pool.load(screen.terminal));
    screen.mask.add(late, 100, -50);
    screen.mask.add(old, 7, 8);
    ASSERT_TRUE(screen.pool.load(screen.terminal));
    EXPECT_EQ(late.width, 480);
    EXPECT_EQ(late.height, 120);
    EXPECT_EQ(old.width, 480) << "not scaled again";
    ASSERT_EQ(screen.mask.num_objects, 3);
    const auto position = [&](std::size_t child) {
        return std::pair<int, int>(screen.mask.objects[child].x, screen.mask.objects[child].y);
    };
    EXPECT_EQ(position(0), std::make_pair(20, 10));
    EXPECT_EQ(position(1), std::make_pair(200, -25));
    EXPECT_EQ(position(2), std::make_pair(14, 4));
    ASSERT_TRUE(screen.pool.load(screen.terminal));
    EXPECT_EQ(position(1), std::make_pair(200, -25));
}

TEST(PoolScaling, StaysAsItIsForATerminalWithAnotherMask)
{
    C::Container_obj container;
    Scaled screen;
    screen.mask.add(container, 10, 20);
    ASSERT_TRUE(screen.pool.load(screen.terminal));
    Fake_terminal other; // 480 x 480
    const VT::Result result = screen.pool.load(other);
    ASSERT_TRUE(result) << result.text();
    ASSERT_EQ(result.warnings.size(), 1u);
    EXPECT_EQ(result.warnings[0].error, VT::Error::other_mask_size);
    EXPECT_EQ(result.warnings[0].text, "The pool was scaled to a data mask of 480 x 120 pixels and stays so; the "
                                       "terminal's has 480 x 480");
    EXPECT_EQ(container.width, 480);
    EXPECT_EQ(container.height, 120);
    EXPECT_EQ(screen.mask.objects[0].y, 10);
    EXPECT_TRUE(screen.pool.is_live());
    EXPECT_TRUE(screen.pool.load(screen.terminal).warnings.empty()) << "back at the first";
}

TEST(PoolScaling, TakesInNewObjectsAsThePoolIsScaledWhateverTheTerminal)
{
    C::Container_obj old;
    C::Container_obj late;
    Scaled screen;
    screen.mask.add(old, 10, 20);
    ASSERT_TRUE(screen.pool.load(screen.terminal));
    screen.mask.add(late, 100, 50);
    Fake_terminal other; // 480 x 480
    ASSERT_TRUE(screen.pool.load(other));
    const auto expect_scaled = [&] {
        EXPECT_EQ(late.width, 480);
        EXPECT_EQ(late.height, 120);
        EXPECT_EQ(screen.mask.objects[1].x, 200);
        EXPECT_EQ(screen.mask.objects[1].y, 25);
    };
    expect_scaled();
    ASSERT_TRUE(screen.pool.load(screen.terminal));
    expect_scaled();
}

TEST(PoolScaling, WaitsForTheTerminalAndHappensOnce)
{
    C::Container_obj container;
    Scaled screen(480, 480);
    screen.pool.add(container);
    ASSERT_TRUE(screen.pool.prepare());
    EXPECT_EQ(container.width, 240);
    ASSERT_TRUE(screen.pool.load(screen.terminal));
    EXPECT_EQ(container.width, 480);
    C::Container_obj late;
    screen.pool.add(late);
    ASSERT_TRUE(screen.pool.load(screen.terminal));
    EXPECT_EQ(container.width, 480);
    EXPECT_EQ(late.width, 480);
}

TEST(PoolScaling, PassesOverAnObjectThatIsDestroyed)
{
    auto destroyed = std::make_unique<C::Container_obj>();
    C::Container_obj behind;
    Scaled screen(480, 480);
    screen.pool.add(*destroyed);
    screen.pool.add(behind);
    ASSERT_TRUE(screen.pool.prepare());
    destroyed.reset();
    ASSERT_TRUE(screen.pool.load(screen.terminal));
    EXPECT_EQ(behind.width, 480);
}

TEST(PoolScaling, DoesNothingWhereTheMaskIsTheDesignedOne)
{
    C::Line_attributes_obj line(0, 0, 0xAAAA); // a line without width loses its art where it is scaled
    Scaled screen(240, 240);
    screen.pool.add(line);
    ASSERT_TRUE(screen.pool.load(screen.terminal));
    EXPECT_EQ(line.line_art, 0xAAAA);

    C::Container_obj container;
    Scaled unscaled;
    unscaled.pool.set_designed_size(0);
    unscaled.pool.add(container);
    ASSERT_TRUE(unscaled.pool.load(unscaled.terminal));
    EXPECT_EQ(container.width, 240);
}

TEST(PoolScaling, ScalesNothingWhenAnObjectDoesNotFit)
{
    C::Container_obj fits;
    C::Container_obj large;
    large.set_name("field");
    large.width = 40000;
    Scaled screen;
    screen.pool.add(fits);
    screen.pool.add(large);
    ASSERT_TRUE(screen.pool.ask_hardware(screen.terminal));
    const VT::Result result = screen.pool.prepare();
    ASSERT_EQ(result.errors.size(), 1u);
    EXPECT_EQ(result.errors[0].error, VT::Error::does_not_fit);
    EXPECT_EQ(result.errors[0].object, "field");
    EXPECT_EQ(result.errors[0].id, 3);
    EXPECT_EQ(result.errors[0].text, "container 'field' (3) does not fit 16 bits when the pool is scaled from 240 x "
                                     "240 to 480 x 120 pixels");
    EXPECT_EQ(fits.width, 240);
    EXPECT_EQ(fits.get_id(), Iso::null_id);
    large.width = 30000;
    EXPECT_TRUE(screen.pool.prepare());
    EXPECT_EQ(large.width, 60000);
}
