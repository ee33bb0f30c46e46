#include "tests/Virtual_slot.h"
#include "vtui/comp/objects/Has_vertices.h"
#include "vtui/comp/objects/Polygon_obj.h"

#include <gtest/gtest.h>

#include <type_traits>

using VT::Comp::Vertex_array;
using VT::Comp::Vertices;

namespace {

TEST(Vertices, HaveTheCapacityOfTheirArrayAndConsecutiveAttributes)
{
    Vertex_array<Array_array_3> vertices;
    EXPECT_EQ(vertices.size(), 3U);
    EXPECT_EQ(vertices.get(), &vertices.attributes[0]);
    EXPECT_EQ(vertices.get() + 2, &vertices.attributes[2]);
    EXPECT_TRUE((std::is_same_v<decltype(vertices.points), Array_array_3<std::pair<short, short>>>));
}

TEST(Vertices, AreWrittenOutInOrder)
{
    Vertex_array<Array_array_3> vertices;
    vertices.points[0] = {1, 2};
    vertices.points[1] = {3, 4};
    vertices.points[2] = {5, 6};
    EXPECT_EQ(vertices.attributes[2].x, 0) << "not before they are written out";
    vertices.deref();
    for (unsigned i = 0; i < 3; ++i) {
        EXPECT_EQ(vertices.attributes[i].x, 2 * i + 1) << i;
        EXPECT_EQ(vertices.attributes[i].y, 2 * i + 2) << i;
    }
    EXPECT_TRUE(vertices.attributes[0].changed());
}

TEST(Vertices, AreWrittenOutWithoutACheckAndNegativeOnesWrap)
{
    Vertex_array<Array_array_1> vertices;
    vertices.points[0] = {-1, -32768};
    vertices.deref();
    EXPECT_EQ(vertices.attributes[0].x, 65535);
    EXPECT_EQ(vertices.attributes[0].y, 32768);
}

TEST(Vertices, HaveTheirVirtualOperationsInThisOrder)
{
    EXPECT_EQ(virtual_slot(&Vertices::get), 0U);
    EXPECT_EQ(virtual_slot(&Vertices::size), 1U);
    EXPECT_EQ(virtual_slot(&Vertices::deref), 2U);
    EXPECT_EQ(virtual_slot(&Vertices::point), 5U) << "behind the two destructors";
    EXPECT_TRUE(std::has_virtual_destructor_v<Vertices>);
    EXPECT_TRUE(std::is_abstract_v<Vertices>);
}

TEST(HasVertices, IsReachedFromAVtObjectAndPointsAtNoneAtFirst)
{
    VT::Comp::Polygon_obj polygon;
    VT::VT_obj* const object = &polygon;
    auto* const vertices = dynamic_cast<VT::Comp::Has_vertices*>(object);
    ASSERT_NE(vertices, nullptr);
    EXPECT_EQ(vertices->vertices_ptr, nullptr);
}

} // namespace
