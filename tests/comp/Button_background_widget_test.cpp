#include "tests/comp/Parts.h"
#include "vtui/comp/widgets/Button_background_widget.h"

#include <type_traits>

using namespace parts;
using VT::Comp::Button_background_widget;
using VT::Comp::Connection_elements;
using VT::Comp::Dimension;

namespace {

/// A bevel of a style whose halves are 6 × 6.
class ButtonBackgroundWidget : public ::testing::Test
{
  protected:
    ButtonBackgroundWidget() { style.set_sizes(6); }

    void go_live()
    {
        pool.take(style.rect_bevel_dark, dark_id);
        pool.take(style.rect_bevel_light, light_id);
        take_parent(pool, widget.container, container_id);
        pool.live = true;
    }

    /// The dark half where it says, as placed and as written out; the light one at the top left.
    void expect_dark_at(Point place)
    {
        expect_child(widget.placements, 0, style.rect_bevel_dark, place);
        expect_child(widget.placements, 1, style.rect_bevel_light, {0, 0});
        EXPECT_EQ(written(widget.placements, 0), place);
        EXPECT_EQ(written(widget.placements, 1), Point(0, 0));
    }

    static constexpr Iso::Object_id container_id = 0x1001;
    static constexpr Iso::Object_id dark_id = 0x2001;
    static constexpr Iso::Object_id light_id = 0x2002;

    Journal pool; // outlives what is in it
    Connection_elements style;
    Button_background_widget widget{style};
};

TEST_F(ButtonBackgroundWidget, StartsWithBothHalvesOfTheStyleAtTheTopLeft)
{
    expect_new(widget.container, widget.placements);
    EXPECT_EQ(widget.get_size(), Dimension(240, 240));
    EXPECT_FALSE(widget.is_hidden());
    EXPECT_EQ(&widget.root(), &widget.container);
    ASSERT_EQ(widget.placements.size(), 2U);
    expect_dark_at({0, 0});
    EXPECT_FALSE(std::is_polymorphic_v<Button_background_widget>);
    EXPECT_FALSE((std::is_convertible_v<Connection_elements&, Button_background_widget>)) << "not by accident";
}

TEST_F(ButtonBackgroundWidget, PinsTheDarkHalfToTheBottomRight)
{
    widget.set_size({40, 30});
    expect_dark_at({34, 24});
    EXPECT_EQ(widget.get_size(), Dimension(40, 30));
    EXPECT_EQ(size_of(widget.container), Dimension(40, 30));
}

TEST_F(ButtonBackgroundWidget, MovesBothWays)
{
    widget.set_size({40, 30});
    widget.set_size({10, 100});
    expect_dark_at({4, 94});
    widget.set_size({6, 6});
    expect_dark_at({0, 0});
}

TEST_F(ButtonBackgroundWidget, LooksAtEachSideOfTheDarkHalf)
{
    resize(style.rect_bevel_dark, {7, 11});
    resize(style.rect_bevel_light, {100, 100});
    widget.set_size({40, 30});
    expect_dark_at({33, 19});
}

TEST_F(ButtonBackgroundWidget, CutsAStyleThatIsLarger)
{
    style.set_sizes(200);
    widget.set_size({40, 30});
    expect_dark_at({-160, -170});
    EXPECT_EQ(size_of(style.rect_bevel_dark), Dimension(200, 200)) << "the style's own";
    EXPECT_EQ(size_of(style.rect_bevel_light), Dimension(200, 200));
}

TEST_F(ButtonBackgroundWidget, FollowsAStyleThatHasChangedAtItsNextSize)
{
    widget.set_size({40, 30});
    style.set_sizes(10);
    expect_dark_at({34, 24});
    widget.set_size({40, 30});
    expect_dark_at({30, 20});
}

TEST_F(ButtonBackgroundWidget, WrapsAt16Bits)
{
    widget.set_size({65535, 40000});
    expect_dark_at({-7, 39994 - 65536});
    resize(style.rect_bevel_dark, {65535, 40000});
    widget.set_size({0, 1});
    expect_dark_at({1, 25537});
}

TEST_F(ButtonBackgroundWidget, WritesTheIdsOfTheStyleOut)
{
    pool.take(style.rect_bevel_dark, dark_id);
    pool.take(style.rect_bevel_light, light_id);
    EXPECT_EQ(widget.placements.attributes[0].object_id, VT::VT_obj::NULL_ID);
    widget.set_size({40, 30});
    EXPECT_EQ(widget.placements.attributes[0].object_id, dark_id);
    EXPECT_EQ(widget.placements.attributes[1].object_id, light_id);
}

TEST_F(ButtonBackgroundWidget, SendsNoSize)
{
    go_live();
    widget.set_size({40, 30});
    EXPECT_TRUE(pool.news().empty());
    EXPECT_TRUE(pool.uploaded.empty());
    EXPECT_TRUE(widget.container.is_changed()) << "the next upload tells";
    expect_dark_at({34, 24});
}

TEST_F(ButtonBackgroundWidget, IsHiddenWithAllThatLiesInIt)
{
    widget.set_hidden(true);
    EXPECT_TRUE(widget.is_hidden());
    EXPECT_EQ(widget.container.hidden, 1);
    go_live();
    widget.set_hidden(false);
    EXPECT_FALSE(widget.is_hidden());
    widget.set_hidden(true);
    EXPECT_TRUE(widget.is_hidden());
    EXPECT_EQ(pool.news(), (Messages{hide_show(container_id, true), hide_show(container_id, false)}));
    widget.container.hidden = std::uint8_t{2};
    EXPECT_TRUE(widget.is_hidden());
}

using ButtonBackgroundWidgetDeathTest = ButtonBackgroundWidget;

TEST_F(ButtonBackgroundWidgetDeathTest, ALayoutWithoutAHalfEndsTheProcess)
{
    widget.placements.placements[1].ref = nullptr;
    EXPECT_DEATH(widget.set_size({40, 30}), no_child("Array_array_2"));
    widget.placements.placements[0].ref = nullptr;
    EXPECT_DEATH(widget.set_size({40, 30}), no_child("Array_array_2"));
}

TEST_F(ButtonBackgroundWidgetDeathTest, AVectorCannotMoveIt)
{
    expect_no_second_in_a_vector<Button_background_widget>(style);
}

} // namespace
