#include "tests/comp/Parts.h"
#include "vtui/comp/objects/Rectangle_obj.h"
#include "vtui/comp/widgets/Toggle_button_widget.h"

#include <array>
#include <type_traits>

using namespace parts;
using VT::Comp::Button_widget;
using VT::Comp::Dimension;
using VT::Comp::Toggle_button_widget;

namespace {

/// A toggle between a look of 20 × 30 and one of 25 × 10.
class ToggleButtonWidget : public ::testing::Test
{
  protected:
    ToggleButtonWidget()
    {
        resize(off, {20, 30});
        resize(on, {25, 10});
    }

    void take_all()
    {
        pool.take(off, off_id);
        pool.take(on, on_id);
        pool.take(other, other_id);
        pool.take(widget.state_pointer, pointer_id);
        pool.take(widget.button, button_id);
        take_parent(pool, widget.container, container_id);
    }

    void go_live()
    {
        take_all();
        pool.live = true;
    }

    void expect_on(bool is_on)
    {
        EXPECT_EQ(widget.is_on(), is_on);
        EXPECT_EQ(widget.state_pointer.state, is_on ? 1U : 0U);
        EXPECT_EQ(widget.state_pointer.target, is_on ? &on : &off);
    }

    /// The children as the record has them.
    void expect_written(std::size_t i, Iso::Object_id id, Point place)
    {
        EXPECT_EQ(widget.placements.attributes[i].object_id, id) << "child " << i;
        EXPECT_EQ(written(widget.placements, i), place) << "child " << i;
    }

    static constexpr Iso::Object_id container_id = 0x1001;
    static constexpr Iso::Object_id button_id = 0x1002;
    static constexpr Iso::Object_id pointer_id = 0x1003;
    static constexpr Iso::Object_id off_id = 0x2001;
    static constexpr Iso::Object_id on_id = 0x2002;
    static constexpr Iso::Object_id other_id = 0x2003;

    Journal pool; // outlives what is in it
    VT::Comp::Rectangle_obj off;
    VT::Comp::Rectangle_obj on;
    VT::Comp::Rectangle_obj other;
    Toggle_button_widget widget{off, on};
};

TEST_F(ToggleButtonWidget, StartsOffWithItsFirstLook)
{
    expect_on(false);
    EXPECT_EQ(widget.state_pointer.states, (std::array<VT::VT_obj*, 2>{&off, &on}));
    EXPECT_EQ(widget.state_pointer.get_id(), VT::VT_obj::NULL_ID);
    EXPECT_STREQ(widget.state_pointer.get_name(), "");
    EXPECT_EQ(widget.state_pointer.value, VT::VT_obj::NULL_ID);
}

TEST_F(ToggleButtonWidget, IsAButtonWithItsPointerAsContent)
{
    expect_new(widget.container, widget.placements);
    EXPECT_EQ(size_of(widget.button), Dimension(200, 200));
    ASSERT_EQ(widget.placements.size(), 3U);
    expect_child(widget.placements, 0, widget.button, {0, 0});
    expect_child(widget.placements, 1, widget.state_pointer, {0, 0});
    expect_child(widget.placements, 2, widget.state_pointer, {0, 0});
    EXPECT_EQ(&widget.get_content(), &widget.placements.placements[2]);
    EXPECT_EQ(&widget.root(), &widget.container);
    EXPECT_EQ(widget.get_preferred_size(), Dimension(0, 0)) << "a button's, not the looks'";
    EXPECT_TRUE((std::is_convertible_v<Toggle_button_widget&, Button_widget&>));
    EXPECT_FALSE(std::is_polymorphic_v<Toggle_button_widget>);
}

TEST_F(ToggleButtonWidget, IsSwitchedByItsOwner)
{
    widget.set_on(true);
    expect_on(true);
    widget.set_on(true);
    expect_on(true);
    widget.set_on(false);
    expect_on(false);
}

TEST_F(ToggleButtonWidget, ReturnsAfterTwoToggles)
{
    widget.toggle();
    expect_on(true);
    widget.toggle();
    expect_on(false);
    EXPECT_EQ(widget.state_pointer.value, VT::VT_obj::NULL_ID) << "an id comes with the pool";
}

TEST_F(ToggleButtonWidget, IsNotOnInAnyStateButOne)
{
    widget.state_pointer.state = 2;
    EXPECT_FALSE(widget.is_on());
}

TEST_F(ToggleButtonWidget, SendsOneValueForEverySwitch)
{
    go_live();
    widget.toggle();
    expect_on(true);
    EXPECT_EQ(pool.news(), (Messages{numeric_value(pointer_id, on_id)}));
    widget.toggle();
    expect_on(false);
    EXPECT_EQ(pool.news(), (Messages{numeric_value(pointer_id, off_id)}));
    widget.set_on(true);
    widget.set_on(true);
    EXPECT_EQ(pool.news(), (Messages{numeric_value(pointer_id, on_id), numeric_value(pointer_id, on_id)}))
        << "the same again";
    EXPECT_EQ(widget.state_pointer.value, on_id);
    EXPECT_FALSE(widget.container.is_changed());
    EXPECT_TRUE(pool.uploaded.empty());
    EXPECT_TRUE(pool.reported.empty());
}

TEST_F(ToggleButtonWidget, SendsNothingBeforeThePoolIsLive)
{
    take_all();
    widget.toggle();
    EXPECT_TRUE(pool.news().empty());
    EXPECT_EQ(widget.state_pointer.value, on_id);
}

TEST_F(ToggleButtonWidget, SendsNothingWithoutAnId)
{
    pool.live = true;
    pool.take(off, off_id);
    pool.take(on, on_id);
    widget.toggle();
    widget.set_on(true);
    EXPECT_TRUE(pool.news().empty());
    EXPECT_EQ(widget.state_pointer.value, VT::VT_obj::NULL_ID);
}

TEST_F(ToggleButtonWidget, ShowsNothingInALookThatHasBeenTakenAway)
{
    go_live();
    widget.state_pointer.states[1] = nullptr;
    widget.toggle();
    EXPECT_TRUE(widget.is_on());
    EXPECT_EQ(widget.state_pointer.target, nullptr);
    EXPECT_EQ(pool.news(), (Messages{numeric_value(pointer_id, 0xFFFF)}));
}

TEST_F(ToggleButtonWidget, IsSizedAsAButtonIs)
{
    pool.take(widget.state_pointer, pointer_id);
    widget.set_size({100, 50});
    EXPECT_EQ(widget.get_size(), Dimension(100, 50));
    EXPECT_EQ(size_of(widget.button), Dimension(100, 50));
    EXPECT_EQ(widget.placements.attributes[2].object_id, pointer_id) << "written out at once";
    EXPECT_EQ(written(widget.placements, 2), Point(0, 0)) << "not in the middle";
    widget.toggle();
    EXPECT_EQ(size_of(widget.button), Dimension(100, 50));
    EXPECT_EQ(size_of(widget.state_pointer), Dimension(25, 10));
}

TEST_F(ToggleButtonWidget, ShowsItsPointerTwiceWhenItIsItsUpperContent)
{
    go_live();
    widget.set_content({&widget.state_pointer, 40, 10});
    EXPECT_EQ(pool.news(), (Messages{transfer(container_id)}));
    expect_written(1, pointer_id, {0, 0});
    expect_written(2, pointer_id, {40, 10});
}

TEST_F(ToggleButtonWidget, KeepsItsPointerUnderAnotherContent)
{
    go_live();
    widget.set_content({&other, 1, 2});
    EXPECT_EQ(pool.news(), (Messages{transfer(container_id)}));
    expect_written(1, pointer_id, {0, 0});
    expect_written(2, other_id, {1, 2});
    widget.toggle();
    EXPECT_EQ(pool.news(), (Messages{numeric_value(pointer_id, on_id)})) << "switched all the same";
}

TEST_F(ToggleButtonWidget, HidesAndKnowsItsButtonAsAButtonDoes)
{
    go_live();
    EXPECT_TRUE(widget.is_button_id(button_id));
    EXPECT_FALSE(widget.is_button_id(pointer_id));
    widget.set_hidden(true);
    EXPECT_TRUE(widget.is_hidden());
    EXPECT_EQ(pool.news(), (Messages{hide_show(container_id, false)}));
}

using ToggleButtonWidgetDeathTest = ToggleButtonWidget;

TEST_F(ToggleButtonWidgetDeathTest, AVectorCannotMoveIt)
{
    expect_no_second_in_a_vector<Toggle_button_widget>(off, on);
}

} // namespace
