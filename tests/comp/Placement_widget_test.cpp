#include "tests/Death.h"
#include "tests/Fake_pool.h"
#include "vtui/comp/objects/Object_pointer_obj.h"
#include "vtui/comp/widgets/Placement_widget.h"

#include <gtest/gtest.h>

#include <csignal>
#include <type_traits>
#include <unistd.h>

using VT::Comp::Dimension;
using VT::Comp::Placement_widget;
using Justification = Placement_widget::Justification;

namespace {

/// A container 40 wide and 20 high as content.
class PlacementWidget : public ::testing::Test
{
  protected:
    PlacementWidget() { set_content_size(40, 20); }

    void set_content_size(std::uint16_t width, std::uint16_t height)
    {
        content.width = width;
        content.height = height;
    }

    void lay_out(Justification justification, Dimension box)
    {
        widget.set_justification(justification);
        widget.set_content(&content);
        widget.set_size(box);
    }

    void expect_at(int x, int y)
    {
        EXPECT_EQ(widget.content.placements[0].x, x);
        EXPECT_EQ(widget.content.placements[0].y, y);
        EXPECT_EQ(widget.content.attributes[0].x, x) << "as written out";
        EXPECT_EQ(widget.content.attributes[0].y, y) << "as written out";
    }

    VT::Comp::Container_obj content;
    Placement_widget widget{Justification::centre};
};

TEST_F(PlacementWidget, StartsWithItsContainerAndNoContent)
{
    EXPECT_EQ(widget.get_width(), 240);
    EXPECT_EQ(widget.get_height(), 240);
    EXPECT_EQ(widget.content.placements[0].ref, nullptr);
    EXPECT_EQ(widget.container.placements_ptr, &widget.content);
    EXPECT_EQ(&widget.root(), &widget.container);
    EXPECT_EQ(widget.justification, Justification::centre);
    EXPECT_EQ(Placement_widget(Justification::top).justification, Justification::top);
}

TEST_F(PlacementWidget, NumbersItsJustifications)
{
    EXPECT_EQ(static_cast<int>(Justification::centre), 0);
    EXPECT_EQ(static_cast<int>(Justification::left), 1);
    EXPECT_EQ(static_cast<int>(Justification::top), 2);
    EXPECT_EQ(sizeof(Justification), 4U);
}

TEST_F(PlacementWidget, CentresItsContent)
{
    lay_out(Justification::centre, {100, 50});
    expect_at(30, 15);
}

TEST_F(PlacementWidget, PinsItsContentToTheLeft)
{
    lay_out(Justification::left, {100, 50});
    expect_at(0, 15);
}

TEST_F(PlacementWidget, PinsItsContentToTheTop)
{
    lay_out(Justification::top, {100, 50});
    expect_at(30, 0);
}

TEST_F(PlacementWidget, CutsHalfAPixelOff)
{
    set_content_size(41, 21);
    lay_out(Justification::centre, {100, 50});
    expect_at(29, 14);
}

TEST_F(PlacementWidget, ContentWiderThanTheBoxOverhangsBothSidesEvenly)
{
    set_content_size(120, 20);
    lay_out(Justification::centre, {100, 50});
    expect_at(-10, 15);
}

TEST_F(PlacementWidget, ContentHigherThanTheBoxOverhangsBothSidesEvenly)
{
    set_content_size(40, 75);
    lay_out(Justification::left, {100, 50});
    expect_at(0, -12);
}

TEST_F(PlacementWidget, GivesItsContainerTheSizeOfTheBox)
{
    lay_out(Justification::left, {100, 50});
    EXPECT_EQ(widget.container.width, 100);
    EXPECT_EQ(widget.container.height, 50);
    EXPECT_EQ(widget.get_width(), 100);
    EXPECT_EQ(widget.get_height(), 50);
    EXPECT_EQ(content.width, 40) << "the content keeps its own";
}

TEST_F(PlacementWidget, WritesTheIdOfItsContentOut)
{
    Fake_pool pool;
    pool.take(content, 17);
    lay_out(Justification::centre, {100, 50});
    EXPECT_EQ(widget.content.attributes[0].object_id, 17);
}

TEST_F(PlacementWidget, LaysOutTheSizeThatAPointerShows)
{
    VT::Comp::Object_pointer_obj pointer;
    pointer.set_target(&content);
    widget.set_content(&pointer);
    widget.set_size({100, 50});
    expect_at(30, 15);
}

TEST_F(PlacementWidget, ANewContentStartsAtTheOriginAndWaitsForTheNextLayout)
{
    lay_out(Justification::centre, {100, 50});
    VT::Comp::Container_obj other;
    widget.set_content(&other);
    EXPECT_EQ(widget.content.placements[0].ref, &other);
    EXPECT_EQ(widget.content.placements[0].x, 0);
    EXPECT_EQ(widget.content.placements[0].y, 0);
    EXPECT_EQ(widget.content.attributes[0].x, 30) << "not laid out yet";
    widget.set_size({100, 50});
    expect_at(-70, -95);
}

TEST_F(PlacementWidget, ANewJustificationWaitsForTheNextLayout)
{
    lay_out(Justification::centre, {100, 50});
    widget.set_justification(Justification::left);
    expect_at(30, 15);
    widget.set_size({100, 50});
    expect_at(0, 15);
}

TEST_F(PlacementWidget, AJustificationThatIsNoneLeavesThePositionAlone)
{
    lay_out(Justification::centre, {100, 50});
    widget.set_justification(static_cast<Justification>(3));
    widget.set_size({200, 80});
    expect_at(30, 15);
    EXPECT_EQ(widget.get_width(), 200);
}

TEST_F(PlacementWidget, FollowsContentThatHasChangedItsSize)
{
    lay_out(Justification::top, {100, 50});
    set_content_size(60, 20);
    widget.set_size({100, 50});
    expect_at(20, 0);
}

TEST_F(PlacementWidget, SendsNothingWhenItIsLaidOut)
{
    Fake_pool pool;
    pool.take(content, 17);
    pool.take(widget.container, 18);
    pool.live = true;
    lay_out(Justification::centre, {100, 50});
    EXPECT_TRUE(pool.sent.empty());
    EXPECT_TRUE(pool.uploaded.empty());
}

TEST_F(PlacementWidget, HasNothingVirtual) { EXPECT_FALSE(std::is_polymorphic_v<Placement_widget>); }

using PlacementWidgetDeathTest = PlacementWidget;

death::Words no_content()
{
    return death::assertion("__null != content.placements[0].ref", "../../../vtui/comp/widgets/Placement_widget", 26,
                            "void VT::Comp::Placement_widget::set_size(VT::Comp::Dimension)");
}

TEST_F(PlacementWidgetDeathTest, ALayoutWithoutContentEndsTheProcess)
{
    EXPECT_DEATH(widget.set_size({100, 50}), no_content());
    widget.set_content(&content);
    widget.set_content(nullptr);
    EXPECT_DEATH(widget.set_size({100, 50}), no_content());
}

Placement_widget* without_content;

/// Ends the aborting process with status 1 if the container has kept its size.
void judge_container(int)
{
    const bool kept = without_content->get_width() == 240 && without_content->get_height() == 240;
    _exit(kept ? 1 : 2);
}

TEST_F(PlacementWidgetDeathTest, TheContainerHasKeptItsSizeThen)
{
    without_content = &widget;
    EXPECT_EXIT(
        {
            std::signal(SIGABRT, judge_container);
            widget.set_size({100, 50});
        },
        ::testing::ExitedWithCode(1), no_content());
}

} // namespace
