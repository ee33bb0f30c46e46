#include "tests/comp/Parts.h"
#include "vtui/comp/widgets/Border_widget.h"
#include "vtui/comp/widgets/Button_border_widget.h"

#include <type_traits>

using namespace parts;
using VT::Comp::Border_widget;
using VT::Comp::Button_border_widget;
using VT::Comp::Connection_elements;
using VT::Comp::Dimension;

namespace {

/// Both kinds of border do the same.
template <class Border>
class Borders : public ::testing::Test
{
  protected:
    void take_all()
    {
        pool.take(widget.border, border_id);
        take_parent(pool, widget.container, container_id);
    }

    void go_live()
    {
        take_all();
        pool.live = true;
    }

    static constexpr Iso::Object_id container_id = 0x1001;
    static constexpr Iso::Object_id border_id = 0x1002;

    Journal pool; // outlives what is in it
    Connection_elements style;
    Border widget{style};
};

using Kinds = ::testing::Types<Border_widget, Button_border_widget>;
TYPED_TEST_SUITE(Borders, Kinds, );

TYPED_TEST(Borders, StartAsARectangleWithoutASizeThreePixelsIn)
{
    expect_new(this->widget.container, this->widget.placements);
    EXPECT_EQ(&this->widget.root(), &this->widget.container);
    ASSERT_EQ(this->widget.placements.size(), 1U);
    expect_child(this->widget.placements, 0, this->widget.border, {3, 3});
    EXPECT_EQ(written(this->widget.placements, 0), Point(0, 0)) << "not written out yet";
    EXPECT_EQ(this->widget.border.get_id(), VT::VT_obj::NULL_ID);
    EXPECT_STREQ(this->widget.border.get_name(), "");
    EXPECT_EQ(size_of(this->widget.border), Dimension(0, 0));
    EXPECT_FALSE(std::is_polymorphic_v<TypeParam>);
    EXPECT_FALSE((std::is_convertible_v<Connection_elements&, TypeParam>)) << "not by accident";
}

TYPED_TEST(Borders, DrawTheRightAndTheBottomEdgeOnly)
{
    EXPECT_EQ(this->widget.border.line_suppression, 9);
    EXPECT_EQ(this->widget.border.fill, nullptr);
    EXPECT_EQ(this->widget.border.fill_attributes, VT::VT_obj::NULL_ID);
    EXPECT_EQ(this->widget.border.line_attributes, VT::VT_obj::NULL_ID) << "an id comes with the pool";
}

TYPED_TEST(Borders, AreThreePixelsSmallerThanTheirArea)
{
    this->widget.set_size({100, 50});
    EXPECT_EQ(size_of(this->widget.container), Dimension(100, 50));
    EXPECT_EQ(size_of(this->widget.border), Dimension(97, 47));
    expect_child(this->widget.placements, 0, this->widget.border, {3, 3});
    this->widget.set_size({50, 20});
    EXPECT_EQ(size_of(this->widget.container), Dimension(50, 20));
    EXPECT_EQ(size_of(this->widget.border), Dimension(47, 17));
    expect_child(this->widget.placements, 0, this->widget.border, {3, 3});
}

TYPED_TEST(Borders, WrapAroundInAnAreaBelowThreePixels)
{
    this->widget.set_size({2, 3});
    EXPECT_EQ(size_of(this->widget.border), Dimension(65535, 0));
    this->widget.set_size({3, 2});
    EXPECT_EQ(size_of(this->widget.border), Dimension(0, 65535));
    this->widget.set_size({0, 1});
    EXPECT_EQ(size_of(this->widget.border), Dimension(65533, 65534));
    EXPECT_EQ(size_of(this->widget.container), Dimension(0, 1));
    this->widget.set_size({65535, 65535});
    EXPECT_EQ(size_of(this->widget.border), Dimension(65532, 65532));
}

TYPED_TEST(Borders, SendNoSize)
{
    this->go_live();
    this->widget.set_size({100, 50});
    EXPECT_TRUE(this->pool.news().empty());
    EXPECT_TRUE(this->pool.uploaded.empty());
    EXPECT_TRUE(this->widget.container.is_changed()) << "the next upload tells";
    EXPECT_TRUE(this->widget.border.is_changed());
}

TYPED_TEST(Borders, ReturnToTheirPlaceWhenTheTerminalSpeaksUp)
{
    VT::Comp::Child_placement& placed = this->widget.placements.placements[0];
    placed.x = -20;
    placed.y = 400;
    this->widget.handle_event(VT::VT_information{});
    expect_child(this->widget.placements, 0, this->widget.border, {3, 3});
}

TYPED_TEST(Borders, TellALiveTerminalWhereTheyLieEveryTime)
{
    VT::Comp::Child_placement& placed = this->widget.placements.placements[0];
    placed.x = 7;
    placed.y = 8;
    this->go_live();
    ASSERT_EQ(written(this->widget.placements, 0), Point(7, 8));
    const Bytes back = child_position(this->container_id, this->border_id, 3, 3);
    this->widget.handle_event(VT::VT_information{});
    EXPECT_EQ(this->pool.news(), (Messages{back}));
    EXPECT_EQ(written(this->widget.placements, 0), Point(3, 3));
    expect_child(this->widget.placements, 0, this->widget.border, {3, 3});
    this->widget.handle_event(VT::VT_information{1, 2, 3, 480, 480});
    EXPECT_EQ(this->pool.news(), (Messages{back})) << "whatever it says, moved or not";
    EXPECT_TRUE(this->pool.uploaded.empty());
}

TYPED_TEST(Borders, TellATerminalNothingBeforeThePoolIsLive)
{
    this->take_all();
    this->widget.placements.attributes[0].x = std::int16_t{7};
    this->widget.handle_event(VT::VT_information{});
    EXPECT_TRUE(this->pool.news().empty());
    EXPECT_EQ(written(this->widget.placements, 0), Point(3, 3));
}

TYPED_TEST(Borders, TellATerminalNothingWithoutAnId)
{
    this->pool.live = true;
    this->widget.set_size({100, 50});
    this->widget.handle_event(VT::VT_information{});
    EXPECT_TRUE(this->pool.news().empty());
    EXPECT_TRUE(this->pool.uploaded.empty());
}

/// Named so that GoogleTest runs it before the others.
template <class Border>
class BordersDeathTest : public Borders<Border>
{};
TYPED_TEST_SUITE(BordersDeathTest, Kinds, );

TYPED_TEST(BordersDeathTest, AVectorCannotMoveThem) { expect_no_second_in_a_vector<TypeParam>(this->style); }

/// One pixel wide and solid, in the colour of the kind.
void expect_line(const VT::Comp::Line_attributes_obj& line, int colour)
{
    EXPECT_EQ(line.colour, colour);
    EXPECT_EQ(line.width, 1);
    EXPECT_EQ(line.line_art, 0xFFFF);
}

TEST(BorderWidget, IsBlack)
{
    Connection_elements style;
    const Border_widget widget(style);
    ASSERT_EQ(widget.border.line, &style.line_black_c);
    expect_line(*widget.border.line, 0);
}

TEST(ButtonBorderWidget, HasTheColourOfButtons)
{
    Connection_elements style;
    const Button_border_widget widget(style);
    ASSERT_EQ(widget.border.line, &style.line_111_b);
    expect_line(*widget.border.line, 111);
}

} // namespace
