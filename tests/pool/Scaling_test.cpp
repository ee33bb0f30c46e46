#include "tests/pool/Fake_terminal.h"
#include "tests/pool/Screen.h"
#include "vtui/comp/objects/Container_obj.h"
#include "vtui/comp/objects/Font_attributes_obj.h"
#include "vtui/comp/objects/Polygon_obj.h"
#include "vtui/comp/objects/Rectangle_obj.h"

#include <gtest/gtest.h>

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
