#include "tests/comp/Scroll.h"
#include "vtui/comp/widgets/Scroll_widget.h"

#include <initializer_list>
#include <type_traits>

using namespace scroll;

namespace {

/// A window of 200 × 100 with a bar of 20.
class ScrollWidget : public Scroll
{
  protected:
    ScrollWidget()
    {
        show(250);
        resize(other, {180, 400});
    }

    /// A content of that height, looked at from the top.
    void show(std::uint16_t height)
    {
        resize(content, {180, height});
        widget.set_size({200, 100}, 20);
        widget.update_content_size();
    }

    void go_live()
    {
        Scroll::go_live(parts);
        pool.news();
    }

    /// The content is scrolled there, and nothing has been said of it.
    void put(std::int16_t offset)
    {
        widget.placements.placements[0].y = offset;
        widget.container.objects[0].y = offset;
    }

    void expect_offset(std::int16_t offset, std::int16_t indicator)
    {
        EXPECT_EQ(placed(widget.placements, 0), Point(0, offset));
        EXPECT_EQ(placed(widget.placements, 1), Point(180, 0));
        EXPECT_EQ(placed(widget.placements, 2), Point(180, indicator));
    }

    static Bytes content_at(int y) { return child_position(container_id, content_id, 0, y); }
    static Bytes indicator_at(int y) { return child_position(container_id, indicator_id, 180, y); }
    static Messages press(int content_y, int indicator_y)
    {
        return {content_at(content_y), indicator_at(indicator_y), indicator_at(indicator_y)};
    }

    Scroll_widget widget{style, &content, &back_face, &on_face};
    Scroll_parts parts{widget.container,        widget.placements, widget.up_key_pointer,
                       widget.down_key_pointer, widget.track,      widget.indicator,
                       widget.indicator_fill,   widget.up_key,     widget.down_key};
};

TEST_F(ScrollWidget, IsBuiltOfTheStyle)
{
    style.line_black_c.colour = std::uint8_t{42};
    Scroll_widget w(style, &content, &back_face, &on_face);
    expect_new_scroll({w.container, w.placements, w.up_key_pointer, w.down_key_pointer, w.track, w.indicator,
                       w.indicator_fill, w.up_key, w.down_key},
                      content);
    EXPECT_EQ(w.indicator_fill.colour, 42);
    style.line_black_c.colour = std::uint8_t{43};
    EXPECT_EQ(w.indicator_fill.colour, 42) << "the colour at construction";
    EXPECT_EQ(w.root(), &w.container);
    EXPECT_EQ(w.get_up_key(), &w.up_key_pointer);
    EXPECT_EQ(w.get_down_key(), &w.down_key_pointer);
    EXPECT_FALSE(std::is_polymorphic_v<Scroll_widget>);
}

TEST_F(ScrollWidget, ShowsABlankUntilItHasAContent)
{
    Scroll_widget w(style, &back_face, &on_face);
    expect_new_scroll({w.container, w.placements, w.up_key_pointer, w.down_key_pointer, w.track, w.indicator,
                       w.indicator_fill, w.up_key, w.down_key},
                      style.rect_17_patterned);
    EXPECT_EQ(w.indicator_fill.colour, 0);
}

TEST_F(ScrollWidget, PutsItsBarAtTheRightEdge)
{
    widget.set_size({200, 100}, 20);
    EXPECT_EQ(size_of(widget.container), Dimension(200, 100));
    EXPECT_EQ(size_of(widget.track), Dimension(20, 100));
    EXPECT_EQ(size_of(widget.indicator), Dimension(18, 100)) << "until update_content_size()";
    expect_places(parts, {0, 0}, {180, 0}, {180, 0});
    EXPECT_EQ(size_of(content), Dimension(180, 250)) << "the application's";
}

TEST_F(ScrollWidget, ScrollsToTheTopWhenItIsLaidOut)
{
    widget.scroll_down();
    expect_offset(-50, 20);
    widget.set_size({300, 80}, 30);
    expect_places(parts, {0, 0}, {270, 0}, {270, 0});
}

TEST_F(ScrollWidget, LeavesItsKeysWhenItIsLaidOut)
{
    expect_keys(parts, true);
    widget.set_size({200, 1000}, 20);
    expect_keys(parts, true);
    resize(content, {180, 10});
    widget.update_content_size();
    widget.set_size({200, 5}, 20);
    expect_keys(parts, false);
}

TEST_F(ScrollWidget, WrapsItsBarAround)
{
    widget.set_size({200, 100}, 1);
    EXPECT_EQ(widget.indicator.width, 65535);
    widget.set_size({200, 100}, 0);
    EXPECT_EQ(widget.indicator.width, 65534);
    EXPECT_EQ(placed(widget.placements, 1), Point(200, 0));
    widget.set_size({10, 100}, 20);
    EXPECT_EQ(placed(widget.placements, 1), Point(-10, 0));
    EXPECT_EQ(placed(widget.placements, 2), Point(-10, 0));
    widget.set_size({65535, 100}, 20);
    EXPECT_EQ(placed(widget.placements, 1), Point(-21, 0));
}

TEST_F(ScrollWidget, SendsNoSize)
{
    go_live();
    widget.set_size({100, 50}, 10);
    EXPECT_TRUE(pool.news().empty());
    EXPECT_TRUE(widget.container.is_changed()) << "the next upload tells";
}

TEST_F(ScrollWidget, ShowsKeysAndBarForContentThatOverflows)
{
    show(101);
    expect_keys(parts, true);
    EXPECT_EQ(size_of(widget.track), Dimension(20, 100));
    EXPECT_EQ(size_of(widget.indicator), Dimension(18, 99));
    show(250);
    EXPECT_EQ(size_of(widget.indicator), Dimension(18, 40));
    expect_offset(0, 0);
}

TEST_F(ScrollWidget, HidesKeysAndBarForContentThatFits)
{
    for (const std::uint16_t height : std::initializer_list<std::uint16_t>{100, 99, 0}) {
        show(250);
        show(height);
        expect_keys(parts, false);
        expect_no_bar(parts, 20);
        expect_offset(0, 0);
    }
}

TEST_F(ScrollWidget, TakesNoContentForAnEmptyOne)
{
    widget.set_content(nullptr);
    expect_keys(parts, false);
    expect_no_bar(parts, 20);
}

TEST_F(ScrollWidget, LeavesTheIndicatorWhereItWasWhenTheBarVanishes)
{
    widget.scroll_down();
    resize(content, {180, 100});
    widget.update_content_size();
    expect_no_bar(parts, 20);
    expect_offset(0, 20);
}

TEST_F(ScrollWidget, PlacesItsIndicatorByWhatIsHidden)
{
    widget.set_indicator(250, 100, -50);
    EXPECT_EQ(size_of(widget.indicator), Dimension(18, 40));
    EXPECT_EQ(placed(widget.placements, 2), Point(180, 20));
    widget.set_indicator(300, 100, -200);
    EXPECT_EQ(size_of(widget.indicator), Dimension(18, 33));
    EXPECT_EQ(placed(widget.placements, 2), Point(180, 66)) << "200 × 100 / 300";
    widget.set_indicator(300, 100, 40); // above the top
    EXPECT_EQ(placed(widget.placements, 2), Point(180, -13)) << "towards 0";
}

TEST_F(ScrollWidget, FitsItsIndicatorIntoTheTrackAsItIs)
{
    widget.track.width = std::uint16_t{11};
    widget.set_indicator(250, 120, 0);
    EXPECT_EQ(size_of(widget.track), Dimension(11, 120));
    EXPECT_EQ(size_of(widget.indicator), Dimension(9, 57));
    widget.track.width = std::uint16_t{1};
    widget.set_indicator(250, 120, 0);
    EXPECT_EQ(widget.indicator.width, 65535);
}

TEST_F(ScrollWidget, ComputesItsIndicatorIn32Bits)
{
    widget.set_indicator(65535, 46340, 0); // 46340² = 2147395600
    EXPECT_EQ(widget.indicator.height, 32767);
    widget.set_indicator(65535, 46341, 0); // 46341² - 2^32 = -2147479015
    EXPECT_EQ(widget.indicator.height, 65536 - 32768);
    widget.set_indicator(65535, 65534, 0); // 65534² - 2^32 = -262140
    EXPECT_EQ(widget.indicator.height, 65536 - 4);
    widget.set_indicator(65535, 65534, -32768);
    EXPECT_EQ(placed(widget.placements, 2), Point(180, 32767));
    widget.set_indicator(65535, 65534, 32767);
    EXPECT_EQ(placed(widget.placements, 2), Point(180, -32766));
    widget.set_indicator(1, 0, -1);
    EXPECT_EQ(size_of(widget.indicator), Dimension(18, 0));
    EXPECT_EQ(placed(widget.placements, 2), Point(180, 0));
}

TEST_F(ScrollWidget, MovesHalfAWindowAtATime)
{
    show(230);
    widget.scroll_down();
    expect_offset(-50, 21);
    widget.scroll_down();
    expect_offset(-100, 43);
    widget.scroll_down();
    expect_offset(-130, 56);
    widget.scroll_down();
    expect_offset(-130, 56);
    widget.scroll_up();
    expect_offset(-80, 34);
    widget.scroll_up();
    widget.scroll_up();
    expect_offset(0, 0);
    widget.scroll_up();
    expect_offset(0, 0);
    expect_keys(parts, true);
}

TEST_F(ScrollWidget, MovesByTheSizesOfTheMoment)
{
    widget.scroll_down();
    resize(content, {180, 400});
    widget.container.height = std::uint16_t{200};
    widget.scroll_down();
    expect_offset(-150, 75);
    EXPECT_EQ(size_of(widget.track), Dimension(20, 200));
    EXPECT_EQ(size_of(widget.indicator), Dimension(18, 100));
}

TEST_F(ScrollWidget, PutsContentThatHasShrunkAtTheTop)
{
    widget.scroll_down();
    resize(content, {180, 60});
    widget.scroll_down();
    EXPECT_EQ(placed(widget.placements, 0), Point(0, 0));
    expect_no_bar(parts, 20);
}

TEST_F(ScrollWidget, SendsThreePositionsForAPressInTheMiddle)
{
    go_live();
    put(-100);
    activate(widget, Activation::released, back_key_id);
    EXPECT_EQ(pool.news(), press(-50, 20));
    activate(widget, Activation::released, on_key_id);
    EXPECT_EQ(pool.news(), press(-100, 40));
    EXPECT_TRUE(pool.uploaded.empty());
    expect_places(parts, {0, -100}, {180, 0}, {180, 40});
    EXPECT_FALSE(widget.container.is_changed());
}

TEST_F(ScrollWidget, SendsTheBytesOfChangeChildPosition)
{
    go_live();
    widget.scroll_down();
    EXPECT_EQ(pool.news(), (Messages{{0xB4, 0x01, 0x10, 0x01, 0x20, 0x00, 0x00, 0xCE, 0xFF},
                                     {0xB4, 0x01, 0x10, 0x03, 0x10, 0xB4, 0x00, 0x14, 0x00},
                                     {0xB4, 0x01, 0x10, 0x03, 0x10, 0xB4, 0x00, 0x14, 0x00}}));
}

TEST_F(ScrollWidget, SendsThemAtBothEndsToo)
{
    go_live();
    activate(widget, Activation::released, back_key_id);
    EXPECT_EQ(pool.news(), press(0, 0));
    put(-150);
    activate(widget, Activation::released, on_key_id);
    EXPECT_EQ(pool.news(), press(-150, 60));
    expect_keys(parts, true);
}

TEST_F(ScrollWidget, SendsTheIndicatorOnceWhereThereIsNoBar)
{
    show(100);
    go_live();
    widget.scroll_down();
    EXPECT_EQ(pool.news(), (Messages{content_at(0), indicator_at(0)}));
    widget.scroll_up();
    EXPECT_EQ(pool.news(), (Messages{content_at(0), indicator_at(0)}));
}

TEST_F(ScrollWidget, KeepsTheAcrossOfContentAndIndicator)
{
    go_live();
    widget.placements.placements[0].x = 7;
    widget.placements.placements[2].x = 190;
    widget.scroll_down();
    const Bytes indicator_down = child_position(container_id, indicator_id, 190, 20);
    EXPECT_EQ(pool.news(),
              (Messages{child_position(container_id, content_id, 7, -50), indicator_down, indicator_down}));
    widget.update_content_size();
    EXPECT_EQ(pool.news(), keys_shown() + Messages({child_position(container_id, indicator_id, 190, 0),
                                                    child_position(container_id, content_id, 7, 0)}));
}

TEST_F(ScrollWidget, PutsAnotherContentAcrossWhereTheOneBeforeLay)
{
    go_live();
    widget.placements.placements[0].x = 7;
    widget.set_content(&other);
    EXPECT_EQ(placed(widget.placements, 0), Point(7, 0));
    EXPECT_EQ(written(widget.placements, 0), Point(7, 0));
    EXPECT_EQ(pool.uploaded.size(), 1U);
    widget.set_content(&other);
    EXPECT_EQ(pool.uploaded.size(), 1U) << "it lies there already";
}

TEST_F(ScrollWidget, IgnoresAllButTheReleaseOfAKeyOfItsOwn)
{
    go_live();
    put(-50);
    for (const Activation code :
         {Activation::pressed, Activation::held, Activation::aborted, Activation{4}, Activation{255}})
        for (const Iso::Object_id key : {back_key_id, on_key_id})
            activate(widget, code, key);
    for (const Iso::Object_id id : {container_id, back_pointer_id, on_pointer_id, content_id, VT::VT_obj::NULL_ID})
        activate(widget, Activation::released, id);
    expect_offset(-50, 0);
    EXPECT_TRUE(pool.news().empty());
}

TEST_F(ScrollWidget, WithoutIdsTakesTheNullIdForItsUpKey)
{
    activate(widget, Activation::released, VT::VT_obj::NULL_ID);
    expect_offset(0, 0);
    widget.placements.placements[0].y = -100;
    activate(widget, Activation::released, VT::VT_obj::NULL_ID);
    expect_offset(-50, 20);
}

TEST_F(ScrollWidget, FollowsContentThatGrowsAndShrinksInALivePool)
{
    show(80);
    go_live();
    resize(content, {180, 250});
    widget.update_content_size();
    EXPECT_EQ(pool.news(), keys_shown() + Messages({indicator_at(0), content_at(0)}));
    EXPECT_EQ(size_of(widget.indicator), Dimension(18, 40));
    EXPECT_EQ(size_of(widget.track), Dimension(20, 100)) << "as wide as before";
    EXPECT_TRUE(widget.indicator.is_changed()) << "sizes wait for an upload";
    EXPECT_TRUE(widget.track.is_changed());

    widget.scroll_down();
    EXPECT_EQ(pool.news(), press(-50, 20));
    resize(content, {180, 300});
    widget.update_content_size();
    EXPECT_EQ(pool.news(), keys_shown() + Messages({indicator_at(0), content_at(0)})) << "also where they show";

    widget.scroll_down();
    pool.news();
    resize(content, {180, 100});
    widget.update_content_size();
    EXPECT_EQ(pool.news(), keys_gone() + Messages({content_at(0)}));
    expect_no_bar(parts, 20);
    EXPECT_TRUE(pool.uploaded.empty());
    EXPECT_TRUE(pool.reported.empty());
}

TEST_F(ScrollWidget, ExchangesItsContentInALivePool)
{
    go_live();
    widget.scroll_down();
    pool.news();
    widget.set_content(&other);
    const Bytes other_at_the_top = child_position(container_id, other_id, 0, 0);
    EXPECT_EQ(pool.news(),
              Messages({transfer(container_id)}) + keys_shown() + Messages({indicator_at(0), other_at_the_top}));
    EXPECT_EQ(widget.placements.placements[0].ref, &other);
    EXPECT_EQ(size_of(widget.indicator), Dimension(18, 25));
    expect_places(parts, {0, 0}, {180, 0}, {180, 0});

    widget.scroll_down();
    EXPECT_EQ(pool.news().front(), child_position(container_id, other_id, 0, -50));
    widget.set_content(&other);
    EXPECT_EQ(pool.news(), keys_shown() + Messages({indicator_at(0), other_at_the_top})) << "no upload: it is the same";

    resize(content, {180, 30});
    widget.set_content(&content);
    EXPECT_EQ(pool.news(), Messages({transfer(container_id)}) + keys_gone() + Messages({content_at(0)}));
    EXPECT_TRUE(pool.reported.empty());
}

TEST_F(ScrollWidget, ReportsAContentThatThePoolDoesNotHave)
{
    Rectangle_obj stranger;
    go_live();
    widget.set_content(&stranger);
    EXPECT_EQ(pool.reported.size(), 1U);
    EXPECT_EQ(widget.placements.attributes[0].object_id, VT::VT_obj::NULL_ID);
}

TEST_F(ScrollWidget, SendsAValueForEachPointerThatHasAnId)
{
    go_live();
    pool.release(widget.up_key_pointer);
    widget.update_content_size();
    EXPECT_EQ(pool.news(), (Messages{numeric_value(on_pointer_id, on_key_id), indicator_at(0), content_at(0)}));
    expect_keys(parts, true);
    EXPECT_EQ(widget.up_key_pointer.value, VT::VT_obj::NULL_ID);
}

TEST_F(ScrollWidget, MovesOnlyItsIndicatorInAListWithoutAnIdUntilItScrolls)
{
    list_children(widget.container);
    VT::Attribute_object_placement* const records = widget.container.objects;
    records[0].y = std::int16_t{5};
    records[2].y = std::int16_t{9};
    widget.update_content_size();
    EXPECT_EQ(written(widget.placements, 0), Point(0, 5));
    EXPECT_EQ(written(widget.placements, 2), Point(180, 0));
    widget.set_content(&other);
    EXPECT_EQ(written(widget.placements, 0), Point(0, 5));
    widget.scroll_down();
    EXPECT_EQ(written(widget.placements, 0), Point(0, -50));
    EXPECT_EQ(written(widget.placements, 2), Point(180, 12));

    resize(other, {180, 100});
    records[2].y = std::int16_t{9};
    widget.update_content_size();
    EXPECT_EQ(written(widget.placements, 2), Point(180, 9)) << "without a bar";
    widget.scroll_down();
    EXPECT_EQ(written(widget.placements, 2), Point(180, 12)) << "where it was";
}

TEST_F(ScrollWidget, SendsNothingBeforeThePoolIsLive)
{
    widget.set_content(&other);
    widget.scroll_down();
    expect_offset(-50, 12);
    take(parts);
    widget.scroll_down();
    expect_places(parts, {0, -100}, {180, 0}, {180, 25});
    widget.set_content(&content);
    widget.update_content_size();
    expect_places(parts, {0, 0}, {180, 0}, {180, 0});
    EXPECT_EQ(widget.up_key_pointer.value, back_key_id);
    EXPECT_TRUE(pool.news().empty());
    EXPECT_TRUE(pool.uploaded.empty());
}

TEST_F(ScrollWidget, ScrollsWithoutAnId)
{
    pool.live = true;
    widget.set_content(&other);
    widget.scroll_down();
    widget.scroll_down();
    expect_offset(-100, 25);
    widget.scroll_up();
    expect_offset(-50, 12);
    expect_keys(parts, true);
    EXPECT_EQ(widget.up_key_pointer.value, VT::VT_obj::NULL_ID);
    EXPECT_TRUE(pool.news().empty());
}

using ScrollWidgetDeathTest = ScrollWidget;

TEST_F(ScrollWidgetDeathTest, ALayoutWithAnEmptySlotEndsTheProcess)
{
    for (const std::size_t slot : {0U, 1U, 2U}) {
        Scroll_widget broken(style, &content, &back_face, &on_face);
        broken.placements.placements[slot].ref = nullptr;
        EXPECT_DEATH(broken.set_size({200, 100}, 20), no_child("Array_array_3")) << slot;
    }
}

TEST_F(ScrollWidgetDeathTest, AVectorCannotMoveIt)
{
    expect_no_second_in_a_vector<Scroll_widget>(style, &content, &back_face, &on_face);
}

} // namespace
