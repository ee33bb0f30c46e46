// The members that lie in an object in the order in which they are described.

#include "vtui/comp/objects/Has_vertices.h"
#include "vtui/comp/objects/N_state_pointer_obj.h"
#include "vtui/comp/objects/Rectangle_obj.h"
#include "vtui/comp/widgets/Placement_widget.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <initializer_list>

using namespace VT::Comp;

namespace {

/// True if every address lies behind the one before it.
bool ascend(std::initializer_list<const void*> members)
{
    return std::adjacent_find(members.begin(), members.end(), std::greater_equal<const void*>()) == members.end();
}

TEST(MemberOrder, OfPlacementsIsWhatIsComputedThenWhatIsWritten)
{
    const Child_placements_array<Array_array_4> children;
    EXPECT_TRUE(ascend({&children, &children.placements, &children.attributes}));
}

TEST(MemberOrder, OfVerticesIsWhatIsComputedThenWhatIsWritten)
{
    const Vertex_array<Array_array_3> vertices;
    EXPECT_TRUE(ascend({&vertices, &vertices.points, &vertices.attributes}));
}

TEST(MemberOrder, OfAPlacementWidget)
{
    const Placement_widget widget(Placement_widget::Justification::centre);
    EXPECT_TRUE(ascend({&widget.container, &widget.content, &widget.justification}));
    EXPECT_EQ(static_cast<const void*>(&widget.container), &widget);
}

TEST(MemberOrder, OfARectangle)
{
    const Rectangle_obj rectangle;
    EXPECT_TRUE(ascend({&rectangle, &rectangle.fill, &rectangle.line}));
}

TEST(MemberOrder, OfAStatePointer)
{
    const N_state_pointer_obj<2> pointer({nullptr, nullptr});
    EXPECT_TRUE(ascend({&pointer, &pointer.target, &pointer.state, &pointer.states}));
}

} // namespace
