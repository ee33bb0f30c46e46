#include "tests/comp/Parts.h"
#include "vtui/comp/objects/Rectangle_obj.h"
#include "vtui/comp/widgets/Label_content_widget.h"

#include <type_traits>

using namespace parts;
using VT::Comp::Dimension;
using VT::Comp::Label_content_item;
using VT::Comp::Label_content_widget;
using VT::Comp::Rectangle_obj;

namespace {

/// A label of 20 × 10 beside its content, and another pair.
class LabelContentWidget : public ::testing::Test
{
  protected:
    LabelContentWidget()
    {
        resize(label, {20, 10});
        resize(other_label, {40, 6});
    }

    void take_all()
    {
        Iso::Object_id id = background_id;
        for (VT::VT_obj* const object : {&background, &label, &content, &other_label, &other_content})
            pool.take(*object, id++);
        take_parent(pool, widget.container, container_id);
    }

    void go_live()
    {
        take_all();
        pool.live = true;
    }

    void expect_children(Label_content_item item, Point label_place, Point content_place)
    {
        expect_child(widget.placements, 0, background, {0, 0});
        expect_child(widget.placements, 1, *item.label_obj, label_place);
        expect_child(widget.placements, 2, *item.content_obj, content_place);
        for (const std::size_t i : {0U, 1U, 2U}) {
            EXPECT_EQ(written(widget.placements, i), placed(widget.placements, i)) << i;
            EXPECT_EQ(widget.placements.attributes[i].object_id, widget.placements.placements[i].ref->get_id()) << i;
        }
    }

    void expect_layout(Dimension box, Point label_place, Point content_place)
    {
        SCOPED_TRACE(::testing::PrintToString(box));
        widget.set_size(box);
        widget.refresh_layout();
        EXPECT_EQ(size_of(widget.container), box);
        expect_children({&label, &content}, label_place, content_place);
    }

    void expect_room(Dimension box, Dimension for_label, Dimension for_content)
    {
        widget.set_size(box);
        EXPECT_EQ(widget.get_label_size(), for_label) << box;
        EXPECT_EQ(widget.get_content_size(), for_content) << box;
    }

    static constexpr Iso::Object_id container_id = 0x1001;
    static constexpr Iso::Object_id background_id = 0x2001; ///< label, content and the other pair follow

    Journal pool; // outlives what is in it
    Rectangle_obj background;
    Rectangle_obj label;
    Rectangle_obj content;
    Rectangle_obj other_label;
    Rectangle_obj other_content;
    Label_content_widget widget{background, {&label, &content}};
};

TEST_F(LabelContentWidget, DrawsLabelAndContentOverTheBackground)
{
    expect_new(widget.container, widget.placements);
    ASSERT_EQ(widget.placements.size(), 3U);
    expect_child(widget.placements, 0, background, {0, 0});
    expect_child(widget.placements, 1, label, {0, 0});
    expect_child(widget.placements, 2, content, {0, 0});
    EXPECT_EQ(widget.item.label_obj, &label);
    EXPECT_EQ(widget.item.content_obj, &content);
    EXPECT_EQ(&widget.root(), &widget.container);
    EXPECT_FALSE(std::is_polymorphic_v<Label_content_widget>);
}

TEST_F(LabelContentWidget, PutsTheContentRightOfTheSquareOfAWideBox)
{
    expect_layout({100, 40}, {10, 15}, {40, 0});
    EXPECT_EQ(size_of(label), Dimension(20, 10)) << "the application's";
    EXPECT_EQ(size_of(content), Dimension(0, 0));
}

TEST_F(LabelContentWidget, PutsTheContentBelowTheSquareOfATallBox) { expect_layout({40, 100}, {10, 15}, {0, 40}); }

TEST_F(LabelContentWidget, PutsTheContentRightOfASquareBox)
{
    expect_layout({50, 50}, {15, 20}, {50, 0});
    expect_layout({50, 51}, {15, 20}, {0, 50});
    expect_layout({51, 50}, {15, 20}, {50, 0});
}

TEST_F(LabelContentWidget, CutsHalfAPixelOff)
{
    expect_layout({90, 41}, {10, 15}, {41, 0});
    expect_layout({7, 90}, {-6, -1}, {0, 7}); // -13 / 2, -3 / 2
}

TEST_F(LabelContentWidget, LetsALargerLabelOverhang)
{
    expect_layout({100, 8}, {-6, -1}, {8, 0});
    resize(label, {120, 60});
    expect_layout({100, 40}, {-40, -10}, {40, 0});
    expect_layout({0, 0}, {-60, -30}, {0, 0});
}

TEST_F(LabelContentWidget, WrapsAPlaceAt16Bits)
{
    expect_layout({65535, 65534}, {32757, 32762}, {-2, 0});
    expect_layout({40000, 65535}, {19990, 19995}, {0, -25536});
    resize(label, {65535, 0});
    expect_layout({0, 65535}, {-32767, 0}, {0, 0});
}

TEST_F(LabelContentWidget, MovesNothingUntilItIsLaidOut)
{
    widget.set_size({100, 40});
    EXPECT_EQ(size_of(widget.container), Dimension(100, 40));
    expect_child(widget.placements, 1, label, {0, 0});
    expect_child(widget.placements, 2, content, {0, 0});
    widget.set_layout();
    expect_children({&label, &content}, {10, 15}, {40, 0});
}

TEST_F(LabelContentWidget, WritesNothingOutUntilItIsLaidOut)
{
    widget.set_size({100, 40});
    widget.set_layout();
    widget.placements.placements[1].x = 3;
    widget.set_size({50, 60});
    EXPECT_EQ(placed(widget.placements, 1), Point(3, 15));
    EXPECT_EQ(written(widget.placements, 1), Point(10, 15));
    Label_content_widget empty(background, {nullptr, nullptr});
    empty.set_size({100, 40});
    EXPECT_EQ(size_of(empty.container), Dimension(100, 40)) << "an item may come later";
}

TEST_F(LabelContentWidget, LaysOutWhatIsInItsItem)
{
    widget.set_size({100, 40});
    widget.item = {&other_label, &other_content};
    widget.placements.placements[0].x = 5;
    widget.placements.placements[0].y = 6;
    widget.refresh_layout();
    expect_children({&other_label, &other_content}, {0, 17}, {40, 0});
}

TEST_F(LabelContentWidget, TellsTheRoomForLabelAndContent)
{
    expect_room({100, 40}, {37, 37}, {60, 40});
    expect_room({40, 100}, {37, 37}, {40, 60});
    expect_room({50, 50}, {47, 47}, {0, 50});
    expect_room({65535, 1000}, {997, 997}, {64535, 1000});
}

TEST_F(LabelContentWidget, WrapsTheRoomForALabelBelow3Pixels)
{
    expect_room({100, 3}, {0, 0}, {97, 3});
    expect_room({2, 100}, {65535, 65535}, {2, 98});
    expect_room({0, 0}, {65533, 65533}, {0, 0});
}

TEST_F(LabelContentWidget, ShowsAnotherItemInTheSameLayout)
{
    widget.set_size({100, 40});
    widget.set({&other_label, &other_content});
    EXPECT_EQ(widget.item.label_obj, &other_label);
    EXPECT_EQ(widget.item.content_obj, &other_content);
    expect_children({&other_label, &other_content}, {0, 17}, {40, 0});
}

TEST_F(LabelContentWidget, UploadsItsContainerOnceForAnotherItem)
{
    go_live();
    widget.set_size({100, 40});
    EXPECT_TRUE(pool.news().empty());
    widget.set({&other_label, &other_content});
    expect_children({&other_label, &other_content}, {0, 17}, {40, 0});
    EXPECT_EQ(pool.news(), (Messages{transfer(container_id)}));
    EXPECT_FALSE(widget.container.is_changed()) << "laid out before it was sent";
    widget.set({&other_label, &other_content});
    EXPECT_EQ(pool.news(), (Messages{transfer(container_id)})) << "the same again";
}

TEST_F(LabelContentWidget, SendsNothingWhenItIsLaidOut)
{
    go_live();
    expect_layout({100, 40}, {10, 15}, {40, 0});
    widget.set_layout();
    EXPECT_TRUE(pool.news().empty());
    EXPECT_TRUE(widget.container.is_changed());
}

TEST_F(LabelContentWidget, SendsNothingBeforeThePoolIsLiveOrWithoutAnId)
{
    take_all();
    widget.set({&other_label, &other_content});
    EXPECT_TRUE(pool.news().empty()) << "not live yet";
    pool.release(widget.container);
    pool.live = true;
    widget.set({&label, &content});
    EXPECT_TRUE(pool.news().empty()) << "without an id";
    EXPECT_EQ(widget.placements.placements[1].ref, &label);
}

using LabelContentWidgetDeathTest = LabelContentWidget;

TEST_F(LabelContentWidgetDeathTest, ANullLabelOrContentEndsTheProcess)
{
    const death::Words words = no_child("Array_array_3");
    EXPECT_DEATH(widget.set({nullptr, &content}), words);
    EXPECT_DEATH(widget.set({&label, nullptr}), words);
    widget.item.content_obj = nullptr;
    EXPECT_DEATH(widget.refresh_layout(), words);
    Label_content_widget empty(background, {nullptr, nullptr});
    EXPECT_DEATH(empty.set_layout(), words);
}

TEST_F(LabelContentWidgetDeathTest, ALayoutWithoutABackgroundEndsTheProcess)
{
    widget.placements.placements[0].ref = nullptr;
    EXPECT_DEATH(widget.set_layout(), no_child("Array_array_3"));
}

TEST_F(LabelContentWidgetDeathTest, AVectorCannotMoveIt)
{
    expect_no_second_in_a_vector<Label_content_widget>(background, Label_content_item{&label, &content});
}

} // namespace
