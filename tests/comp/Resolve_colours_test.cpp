#include "vt/Resolve_colour.h"
#include "vtui/comp/objects/Font_attributes_obj.h"

#include <gtest/gtest.h>

using VT::Resolve_colour::Attribute_node;
using Unresolved = VT::Resolve_colour::List<Attribute_node>;

namespace {

Attribute_node* asked = nullptr;

unsigned char answer(Attribute_node& node)
{
    asked = &node;
    return 0xFE;
}

TEST(ResolveColours, ServesTheColoursOfWrappers)
{
    VT::Comp::Font_attributes_obj font;
    font.colour.set_symbol("text");
    EXPECT_FALSE(Unresolved::resolve_colours(nullptr));
    EXPECT_TRUE(font.colour.is_queued());

    EXPECT_TRUE(Unresolved::resolve_colours(answer));
    ASSERT_EQ(asked, &font.colour);
    EXPECT_EQ(asked->get_object(), &font);
    EXPECT_EQ(font.colour, 0xFE);
    EXPECT_EQ(font.colour.get_name(), nullptr);
}

TEST(ResolveColours, OfNoneAsksNobody)
{
    asked = nullptr;
    EXPECT_TRUE(Unresolved::resolve_colours(answer));
    EXPECT_EQ(asked, nullptr);
    EXPECT_FALSE(Unresolved::resolve_colours(nullptr));
}

} // namespace
