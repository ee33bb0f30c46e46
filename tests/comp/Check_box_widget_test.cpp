#include "tests/comp/Parts.h"
#include "vtui/comp/widgets/Check_box_widget.h"

#include <array>
#include <type_traits>

using namespace parts;
using Iso::Activation;
using VT::Comp::Check_box_widget;
using VT::Comp::Connection_elements;
using VT::Comp::Dimension;

namespace {

/// A box with a look of 20 × 30 when it is checked and one of 25 × 10 when it is not.
class CheckBoxWidget : public ::testing::Test
{
  protected:
    CheckBoxWidget()
    {
        resize(checked, {20, 30});
        resize(unchecked, {25, 10});
    }

    void take_all()
    {
        pool.take(checked, checked_id);
        pool.take(unchecked, unchecked_id);
        pool.take(style.rect_17_patterned, blank_id);
        pool.take(widget.state_pointer, pointer_id);
        pool.take(widget.button, button_id);
        take_parent(pool, widget.container, container_id);
    }

    void go_live()
    {
        take_all();
        pool.live = true;
    }

    void activate(Activation code, Iso::Object_id id) { widget.handle_event({code, id, 0x3001, 1}); }

    void expect_checked(bool is_checked)
    {
        EXPECT_EQ(widget.is_checked(), is_checked);
        EXPECT_EQ(widget.state_pointer.state, is_checked ? 1U : 0U);
        EXPECT_EQ(widget.state_pointer.target, is_checked ? &checked : &unchecked);
    }

    static constexpr Iso::Object_id container_id = 0x1001;
    static constexpr Iso::Object_id button_id = 0x1002;
    static constexpr Iso::Object_id pointer_id = 0x1003;
    static constexpr Iso::Object_id checked_id = 0x2001;
    static constexpr Iso::Object_id unchecked_id = 0x2002;
    static constexpr Iso::Object_id blank_id = 0x2003;

    Journal pool; // outlives what is in it
    Connection_elements style;
    VT::Comp::Rectangle_obj checked;
    VT::Comp::Rectangle_obj unchecked;
    Check_box_widget widget{style, &checked, &unchecked};
};

TEST_F(CheckBoxWidget, StartsUncheckedWithItsSecondLook)
{
    expect_checked(false);
    EXPECT_EQ(widget.state_pointer.states, (std::array<VT::VT_obj*, 2>{&unchecked, &checked}));
    EXPECT_EQ(widget.state_pointer.get_id(), VT::VT_obj::NULL_ID);
    EXPECT_STREQ(widget.state_pointer.get_name(), "");
    EXPECT_EQ(widget.state_pointer.value, VT::VT_obj::NULL_ID);
}

TEST_F(CheckBoxWidget, PlacesABlankBetweenItsButtonAndItsLook)
{
    expect_new(widget.container, widget.placements);
    EXPECT_EQ(&widget.root(), &widget.container);
    ASSERT_EQ(widget.placements.size(), 3U);
    expect_child(widget.placements, 0, widget.button, {0, 0});
    expect_child(widget.placements, 1, style.rect_17_patterned, {0, 0});
    expect_child(widget.placements, 2, widget.state_pointer, {0, 0});
    EXPECT_FALSE(std::is_polymorphic_v<Check_box_widget>);
}

TEST_F(CheckBoxWidget, HasAPlainButtonWithoutChildren) { expect_new_button(widget.button); }

TEST_F(CheckBoxWidget, IsCheckedByItsOwner)
{
    widget.set_checked(true);
    expect_checked(true);
    widget.set_checked(true);
    expect_checked(true);
    widget.set_checked(false);
    expect_checked(false);
}

TEST_F(CheckBoxWidget, IsCheckedInAnyStateButZero)
{
    widget.state_pointer.state = 2;
    EXPECT_TRUE(widget.is_checked());
}

TEST_F(CheckBoxWidget, PrefersRoomForBothLooks)
{
    EXPECT_EQ(widget.get_preferred_size(), Dimension(25, 30));
    widget.set_checked(true);
    widget.set_size({100, 100});
    EXPECT_EQ(widget.get_preferred_size(), Dimension(25, 30)) << "whatever it shows";
    resize(checked, {25, 10});
    EXPECT_EQ(widget.get_preferred_size(), Dimension(25, 10)) << "equal looks";
    resize(unchecked, {20, 40});
    EXPECT_EQ(widget.get_preferred_size(), Dimension(25, 40));
    resize(checked, {60000, 65535});
    EXPECT_EQ(widget.get_preferred_size(), Dimension(60000, 65535));
}

TEST_F(CheckBoxWidget, PrefersTheRoomOfItsOnlyLook)
{
    const Check_box_widget checked_only(style, &checked, nullptr);
    EXPECT_EQ(checked_only.get_preferred_size(), Dimension(20, 30));
    const Check_box_widget unchecked_only(style, nullptr, &unchecked);
    EXPECT_EQ(unchecked_only.get_preferred_size(), Dimension(25, 10));
    const Check_box_widget blank(style, nullptr, nullptr);
    EXPECT_EQ(blank.get_preferred_size(), Dimension(0, 0));
}

TEST_F(CheckBoxWidget, SizesContainerAndButtonAlike)
{
    widget.set_size({100, 50});
    EXPECT_EQ(size_of(widget.container), Dimension(100, 50));
    EXPECT_EQ(size_of(widget.button), Dimension(100, 50));
    EXPECT_EQ(size_of(style.rect_17_patterned), Dimension(0, 0)) << "the style's own";
}

TEST_F(CheckBoxWidget, CentresTheLookItShows)
{
    resize(unchecked, {20, 20});
    widget.set_size({41, 41});
    EXPECT_EQ(placed(widget.placements, 2), Point(10, 10));
    widget.set_checked(true);
    EXPECT_EQ(placed(widget.placements, 2), Point(10, 10)) << "a switch moves nothing";
    widget.set_size({41, 61});
    EXPECT_EQ(placed(widget.placements, 2), Point(10, 15));
    EXPECT_EQ(placed(widget.placements, 0), Point(0, 0));
    EXPECT_EQ(placed(widget.placements, 1), Point(0, 0));
}

TEST_F(CheckBoxWidget, CentresNothingAsAPoint)
{
    Check_box_widget blank(style, &checked, nullptr);
    blank.set_size({41, 41});
    EXPECT_EQ(placed(blank.placements, 2), Point(20, 20));
}

TEST_F(CheckBoxWidget, OverhangsEvenlyWithALookThatIsTooLarge)
{
    widget.set_size({20, 7}); // -5 / 2 and -3 / 2
    EXPECT_EQ(placed(widget.placements, 2), Point(-2, -1));
    widget.set_size({65535, 65535});
    EXPECT_EQ(placed(widget.placements, 2), Point(32755, 32762));
    resize(unchecked, {65535, 65535});
    widget.set_size({0, 0});
    EXPECT_EQ(placed(widget.placements, 2), Point(-32767, -32767));
}

TEST_F(CheckBoxWidget, LeavesTheWriteOutOfItsSizeToThePool)
{
    widget.set_size({100, 50});
    for (std::size_t i = 0; i < 3; ++i)
        EXPECT_FALSE(widget.placements.attributes[i].changed()) << "child " << i;
    take_all();
    EXPECT_EQ(written(widget.placements, 2), Point(37, 20));
    widget.set_size({80, 40});
    EXPECT_EQ(placed(widget.placements, 2), Point(27, 15));
    EXPECT_EQ(written(widget.placements, 2), Point(37, 20)) << "as the pool wrote it";
}

TEST_F(CheckBoxWidget, SendsNoSize)
{
    go_live();
    widget.set_size({100, 50});
    EXPECT_TRUE(pool.news().empty());
    EXPECT_TRUE(pool.uploaded.empty());
    EXPECT_EQ(written(widget.placements, 2), Point(0, 0));
    EXPECT_TRUE(widget.container.is_changed()) << "the next upload tells";
    EXPECT_TRUE(widget.button.is_changed());
}

TEST_F(CheckBoxWidget, FlipsOncePerReleaseOfItsButton)
{
    go_live();
    activate(Activation::released, button_id);
    expect_checked(true);
    EXPECT_EQ(pool.news(), (Messages{numeric_value(pointer_id, checked_id)}));
    activate(Activation::released, button_id);
    expect_checked(false);
    EXPECT_EQ(pool.news(), (Messages{numeric_value(pointer_id, unchecked_id)}));
    EXPECT_TRUE(pool.uploaded.empty());
}

TEST_F(CheckBoxWidget, FlipsFromWhereItsOwnerHasSetIt)
{
    go_live();
    widget.set_checked(true);
    activate(Activation::released, button_id);
    expect_checked(false);
    EXPECT_EQ(pool.news(), (Messages{numeric_value(pointer_id, checked_id), numeric_value(pointer_id, unchecked_id)}));
}

TEST_F(CheckBoxWidget, IgnoresAllButAReleaseInBothStates)
{
    go_live();
    for (const bool state : {false, true}) {
        widget.set_checked(state);
        pool.news();
        for (const Activation code :
             {Activation::pressed, Activation::held, Activation::aborted, Activation{4}, Activation{255}}) {
            activate(code, button_id);
            expect_checked(state);
        }
        EXPECT_TRUE(pool.news().empty());
    }
}

TEST_F(CheckBoxWidget, IgnoresOtherButtons)
{
    go_live();
    for (const Iso::Object_id id : {container_id, pointer_id, checked_id, Iso::Object_id{0x3001}, VT::VT_obj::NULL_ID})
        activate(Activation::released, id);
    expect_checked(false);
    EXPECT_TRUE(pool.news().empty());
}

TEST_F(CheckBoxWidget, LooksAtTheIdOfTheButtonOnly)
{
    go_live();
    widget.handle_event({Activation::released, button_id, VT::VT_obj::NULL_ID, 200});
    expect_checked(true);
}

TEST_F(CheckBoxWidget, SendsOneValueForEverySetting)
{
    go_live();
    widget.set_checked(true);
    widget.set_checked(true);
    widget.set_checked(false);
    EXPECT_EQ(pool.news(), (Messages{numeric_value(pointer_id, checked_id), //
                                     numeric_value(pointer_id, checked_id), //
                                     numeric_value(pointer_id, unchecked_id)}));
    EXPECT_EQ(widget.state_pointer.value, unchecked_id);
    EXPECT_FALSE(widget.container.is_changed());
    EXPECT_TRUE(pool.uploaded.empty());
    EXPECT_TRUE(pool.reported.empty());
}

TEST_F(CheckBoxWidget, ShowsNothingWhereItHasNoLook)
{
    Check_box_widget blinking(style, &checked, nullptr);
    EXPECT_EQ(blinking.state_pointer.target, nullptr);
    pool.take(checked, checked_id);
    pool.take(blinking.button, button_id);
    pool.take(blinking.state_pointer, pointer_id);
    pool.live = true;
    blinking.handle_event({Activation::released, button_id, 0x3001, 1});
    blinking.handle_event({Activation::released, button_id, 0x3001, 1});
    EXPECT_EQ(pool.news(), (Messages{numeric_value(pointer_id, checked_id), numeric_value(pointer_id, 0xFFFF)}));
    EXPECT_FALSE(blinking.is_checked());
}

TEST_F(CheckBoxWidget, SendsNothingBeforeThePoolIsLive)
{
    take_all();
    activate(Activation::released, button_id);
    expect_checked(true);
    EXPECT_TRUE(pool.news().empty());
    EXPECT_EQ(widget.state_pointer.value, checked_id);
}

TEST_F(CheckBoxWidget, SendsNothingWithoutAnId)
{
    pool.live = true;
    pool.take(checked, checked_id);
    pool.take(unchecked, unchecked_id);
    pool.take(widget.button, button_id);
    widget.set_checked(true);
    activate(Activation::released, button_id);
    expect_checked(false);
    widget.set_checked(true);
    EXPECT_TRUE(pool.news().empty());
    EXPECT_EQ(widget.state_pointer.value, VT::VT_obj::NULL_ID);
}

using CheckBoxWidgetDeathTest = CheckBoxWidget;

TEST_F(CheckBoxWidgetDeathTest, AVectorCannotMoveIt)
{
    expect_no_second_in_a_vector<Check_box_widget>(style, &checked, &unchecked);
}

} // namespace
