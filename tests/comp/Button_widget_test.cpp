#include "tests/comp/Parts.h"
#include "vtui/comp/objects/Output_string_obj.h"
#include "vtui/comp/objects/Rectangle_obj.h"
#include "vtui/comp/widgets/Button_widget.h"

#include <type_traits>

using namespace parts;
using VT::Comp::Button_widget;
using VT::Comp::Child_placement;
using VT::Comp::Dimension;

namespace {

/// A button with a rectangle of 30 × 20 over it, and a text to replace that.
class ButtonWidget : public ::testing::Test
{
  protected:
    ButtonWidget() { resize(icon, {30, 20}); }

    void take_all()
    {
        pool.take(icon, icon_id);
        pool.take(text, text_id);
        pool.take(widget.button, button_id);
        take_parent(pool, widget.container, container_id);
    }

    void go_live()
    {
        take_all();
        pool.live = true;
    }

    void expect_size(Dimension size)
    {
        EXPECT_EQ(size_of(widget.container), size);
        EXPECT_EQ(size_of(widget.button), size);
        EXPECT_EQ(widget.get_size(), size);
        EXPECT_EQ(widget.get_width(), size.width);
        EXPECT_EQ(widget.get_height(), size.height);
    }

    /// The children as the record has them.
    void expect_written(std::size_t i, Iso::Object_id id, Point place)
    {
        EXPECT_EQ(widget.placements.attributes[i].object_id, id) << "child " << i;
        EXPECT_EQ(written(widget.placements, i), place) << "child " << i;
    }

    static constexpr Iso::Object_id container_id = 0x1001;
    static constexpr Iso::Object_id button_id = 0x1002;
    static constexpr Iso::Object_id icon_id = 0x2001;
    static constexpr Iso::Object_id text_id = 0x2002;

    Journal pool; // outlives what is in it
    VT::Comp::Rectangle_obj icon;
    VT::Comp::Output_string_obj text;
    Button_widget widget{icon};
};

TEST_F(ButtonWidget, StartsAsAContainerWithAButtonThatIsSmaller)
{
    expect_new(widget.container, widget.placements);
    EXPECT_EQ(widget.get_size(), Dimension(240, 240));
    EXPECT_EQ(widget.get_width(), 240);
    EXPECT_EQ(widget.get_height(), 240);
    EXPECT_FALSE(widget.is_hidden());
    EXPECT_EQ(size_of(widget.button), Dimension(200, 200));
    EXPECT_EQ(&widget.root(), &widget.container);
}

TEST_F(ButtonWidget, HasAPlainButtonWithoutChildren) { expect_new_button(widget.button); }

TEST_F(ButtonWidget, PlacesItsContentTwiceOverTheButton)
{
    ASSERT_EQ(widget.placements.size(), 3U);
    expect_child(widget.placements, 0, widget.button, {0, 0});
    expect_child(widget.placements, 1, icon, {0, 0});
    expect_child(widget.placements, 2, icon, {0, 0});
    for (std::size_t i = 0; i < 3; ++i)
        EXPECT_FALSE(widget.placements.attributes[i].changed()) << "not written out yet";
}

TEST_F(ButtonWidget, IsAPlainClassThatAnyObjectMakes)
{
    EXPECT_FALSE(std::is_polymorphic_v<Button_widget>);
    EXPECT_TRUE((std::is_constructible_v<Button_widget, VT::VT_obj&>));
    EXPECT_FALSE((std::is_convertible_v<VT::VT_obj&, Button_widget>)) << "not by accident";
    EXPECT_FALSE(std::is_default_constructible_v<Button_widget>);
    EXPECT_TRUE((std::is_same_v<decltype(widget.get_content()), Child_placement&>));
}

TEST_F(ButtonWidget, HasNoSizeOfItsOwn)
{
    EXPECT_EQ(widget.get_preferred_size(), Dimension(0, 0));
    widget.set_size({100, 50});
    EXPECT_EQ(widget.get_preferred_size(), Dimension(0, 0));
}

TEST_F(ButtonWidget, SizesContainerAndButtonAlike)
{
    widget.set_size({100, 50});
    expect_size({100, 50});
    widget.set_width(70);
    expect_size({70, 50});
    widget.set_height(30);
    expect_size({70, 30});
    widget.set_size({0, 65535});
    expect_size({0, 65535});
}

TEST_F(ButtonWidget, SizesOneSideAtATime)
{
    widget.set_width(70);
    EXPECT_EQ(size_of(widget.container), Dimension(70, 240));
    EXPECT_EQ(size_of(widget.button), Dimension(70, 200));
    widget.set_height(30);
    expect_size({70, 30});
}

TEST_F(ButtonWidget, WritesNothingOutForOneSide)
{
    take_all();
    widget.get_content() = {&text, 5, 6};
    widget.set_width(70);
    widget.set_height(30);
    expect_written(2, icon_id, {0, 0});
}

TEST_F(ButtonWidget, WritesItsPlacementsOutWithItsSize)
{
    pool.take(widget.button, button_id);
    pool.take(icon, icon_id);
    widget.set_content({&icon, -7, 300});
    widget.set_size({100, 50});
    expect_written(0, button_id, {0, 0});
    expect_written(1, icon_id, {0, 0});
    expect_written(2, icon_id, {-7, 300});
}

TEST_F(ButtonWidget, LeavesItsContentWhereItIs)
{
    widget.set_content({&text, 12, -3});
    widget.set_size({100, 50});
    widget.set_size({20, 10});
    expect_child(widget.placements, 0, widget.button, {0, 0});
    expect_child(widget.placements, 1, icon, {0, 0});
    expect_child(widget.placements, 2, text, {12, -3});
    EXPECT_EQ(size_of(icon), Dimension(30, 20));
}

TEST_F(ButtonWidget, IgnoresWhereItsContentsWouldBeLaidOut)
{
    pool.take(text, text_id);
    widget.set_content({&text, 12, 3});
    widget.set_size({100, 50}, {80, 20}, {9, 8});
    expect_size({100, 50});
    expect_written(0, VT::VT_obj::NULL_ID, {0, 0});
    expect_written(2, text_id, {12, 3});
}

TEST_F(ButtonWidget, KeepsItsFirstContentUnderAnother)
{
    widget.set_content({&text, 4, 5});
    EXPECT_EQ(widget.get_content().ref, &text);
    EXPECT_EQ(widget.get_content().x, 4);
    EXPECT_EQ(widget.get_content().y, 5);
    expect_child(widget.placements, 0, widget.button, {0, 0});
    expect_child(widget.placements, 1, icon, {0, 0});
}

TEST_F(ButtonWidget, GivesItsContentToBeChanged)
{
    EXPECT_EQ(&widget.get_content(), &widget.placements.placements[2]);
    widget.get_content().x = 9;
    widget.set_size({100, 50});
    EXPECT_EQ(written(widget.placements, 1), Point(0, 0));
    EXPECT_EQ(written(widget.placements, 2), Point(9, 0));
}

TEST_F(ButtonWidget, OnlyRecordsItsContentUntilItHasAnId)
{
    pool.live = true;
    pool.take(widget.button, button_id);
    pool.take(text, text_id);
    widget.set_content({&text, 4, 5});
    EXPECT_TRUE(pool.news().empty());
    EXPECT_FALSE(widget.placements.attributes[0].changed());
    expect_written(2, VT::VT_obj::NULL_ID, {0, 0});
    widget.set_size({100, 50});
    expect_written(2, text_id, {4, 5});
}

TEST_F(ButtonWidget, UploadsItselfOnceForEveryContent)
{
    go_live();
    widget.set_content({&text, 4, 5});
    EXPECT_EQ(pool.news(), (Messages{transfer(container_id)}));
    expect_written(0, button_id, {0, 0});
    expect_written(1, icon_id, {0, 0});
    expect_written(2, text_id, {4, 5});
    widget.set_content({&text, 4, 5});
    EXPECT_EQ(pool.news(), (Messages{transfer(container_id)})) << "the same again";
    widget.set_content({&icon, 0, 0});
    EXPECT_EQ(pool.news(), (Messages{transfer(container_id)}));
    EXPECT_EQ(pool.uploaded, (std::vector<VT::VT_obj*>(3, &widget.container)));
}

TEST_F(ButtonWidget, WritesItsContentOutInAPoolThatIsNotLive)
{
    take_all();
    widget.set_content({&text, 4, 5});
    EXPECT_TRUE(pool.news().empty());
    expect_written(2, text_id, {4, 5});
}

TEST_F(ButtonWidget, SendsNoSize)
{
    go_live();
    widget.set_size({100, 50});
    widget.set_size({80, 40}, {80, 20}, {9, 8});
    widget.set_width(70);
    widget.set_height(30);
    EXPECT_TRUE(pool.news().empty());
    EXPECT_TRUE(pool.uploaded.empty());
    expect_size({70, 30});
    EXPECT_TRUE(widget.container.is_changed()) << "the next upload tells";
    EXPECT_TRUE(widget.button.is_changed());
}

TEST_F(ButtonWidget, IsHiddenWithAllThatLiesInIt)
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
}

TEST_F(ButtonWidget, IsHiddenByAnyValueButZero)
{
    widget.container.hidden = std::uint8_t{2};
    EXPECT_TRUE(widget.is_hidden());
}

TEST_F(ButtonWidget, KnowsTheIdOfItsButton)
{
    EXPECT_FALSE(widget.is_button_id(button_id));
    EXPECT_TRUE(widget.is_button_id(VT::VT_obj::NULL_ID)) << "the one that it has until the pool gives another";
    take_all();
    EXPECT_TRUE(widget.is_button_id(button_id));
    EXPECT_FALSE(widget.is_button_id(container_id));
    EXPECT_FALSE(widget.is_button_id(icon_id));
    EXPECT_FALSE(widget.is_button_id(VT::VT_obj::NULL_ID));
}

using ButtonWidgetDeathTest = ButtonWidget;

TEST_F(ButtonWidgetDeathTest, ALayoutWithoutContentEndsTheProcess)
{
    widget.set_content({nullptr, 0, 0});
    EXPECT_DEATH(widget.set_size({100, 50}), no_child("Array_array_3"));
    EXPECT_DEATH(widget.set_size({100, 50}, {}, {}), no_child("Array_array_3"));
}

TEST_F(ButtonWidgetDeathTest, NoContentAtAllEndsTheProcessOnceThereAreIds)
{
    go_live();
    EXPECT_DEATH(widget.set_content({nullptr, 0, 0}), no_child("Array_array_3"));
}

TEST_F(ButtonWidgetDeathTest, AVectorCannotMoveIt) { expect_no_second_in_a_vector<Button_widget>(icon); }

} // namespace
