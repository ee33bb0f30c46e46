#include "tests/comp/Scroll.h"
#include "vtui/comp/widgets/Scroll_horizontal_widget.h"

#include <csignal>
#include <initializer_list>
#include <type_traits>
#include <unistd.h>

using namespace scroll;

namespace {

/// A window of 100 × 80 with a bar of 20.
class ScrollHorizontalWidget : public Scroll
{
  protected:
    ScrollHorizontalWidget() { show(300); }

    /// A content of that width, looked at from the left.
    void show(std::uint16_t width)
    {
        resize(content, {width, 60});
        widget.set_size({100, 80}, 20);
        widget.update_content_size();
    }

    void go_live() { Scroll::go_live(parts); }

    void expect_offset(std::int16_t offset, std::int16_t indicator)
    {
        expect_places(parts, {offset, 0}, {0, 60}, {indicator, 60});
    }

    /// Shows a span from an offset; how often that has uploaded.
    std::size_t show_span(std::int16_t from, short x, unsigned short width, bool quiet)
    {
        widget.placements.placements[0].x = from;
        pool.uploaded.clear();
        widget.scroll_to_show(x, width, quiet);
        return pool.uploaded.size();
    }

    std::int16_t offset() { return widget.placements.placements[0].x; }

    static Messages committed() { return {transfer(container_id)}; }

    Scroll_horizontal_widget widget{style, &content, &back_face, &on_face};
    Scroll_parts parts{widget.container,         widget.placements, widget.left_key_pointer,
                       widget.right_key_pointer, widget.track,      widget.indicator,
                       widget.indicator_fill,    widget.left_key,   widget.right_key};
};

TEST_F(ScrollHorizontalWidget, IsBuiltOfTheStyle)
{
    style.line_black_c.colour = std::uint8_t{42};
    Scroll_horizontal_widget w(style, &content, &back_face, &on_face);
    expect_new_scroll({w.container, w.placements, w.left_key_pointer, w.right_key_pointer, w.track, w.indicator,
                       w.indicator_fill, w.left_key, w.right_key},
                      content);
    EXPECT_EQ(w.indicator_fill.colour, 42);
    EXPECT_EQ(w.root(), &w.container);
    EXPECT_EQ(w.get_left_key(), &w.left_key_pointer);
    EXPECT_EQ(w.get_right_key(), &w.right_key_pointer);
    EXPECT_FALSE(std::is_polymorphic_v<Scroll_horizontal_widget>);
}

TEST_F(ScrollHorizontalWidget, PutsItsBarAtTheBottomEdge)
{
    widget.set_size({100, 80}, 20);
    EXPECT_EQ(size_of(widget.container), Dimension(100, 80));
    EXPECT_EQ(size_of(widget.track), Dimension(100, 20));
    EXPECT_EQ(size_of(widget.indicator), Dimension(100, 18)) << "until update_content_size()";
    expect_offset(0, 0);
    EXPECT_EQ(size_of(content), Dimension(300, 60)) << "the application's";
}

TEST_F(ScrollHorizontalWidget, ScrollsToTheLeftEndWhenItIsLaidOut)
{
    widget.scroll_right();
    expect_offset(-50, 16);
    widget.set_size({200, 90}, 30);
    expect_places(parts, {0, 0}, {0, 60}, {0, 60});
    expect_keys(parts, true);
}

TEST_F(ScrollHorizontalWidget, WrapsItsBarAround)
{
    widget.set_size({100, 80}, 1);
    EXPECT_EQ(widget.indicator.height, 65535);
    widget.set_size({100, 10}, 20);
    EXPECT_EQ(placed(widget.placements, 1), Point(0, -10));
    EXPECT_EQ(placed(widget.placements, 2), Point(0, -10));
    widget.set_size({100, 65535}, 20);
    EXPECT_EQ(placed(widget.placements, 1), Point(0, -21));
}

TEST_F(ScrollHorizontalWidget, SendsNoSize)
{
    go_live();
    widget.set_size({50, 40}, 10);
    EXPECT_TRUE(pool.news().empty());
    EXPECT_TRUE(widget.container.is_changed()) << "the next upload tells";
}

TEST_F(ScrollHorizontalWidget, ShowsKeysAndBarForContentThatOverflows)
{
    show(101);
    expect_keys(parts, true);
    EXPECT_EQ(size_of(widget.track), Dimension(100, 20));
    EXPECT_EQ(size_of(widget.indicator), Dimension(99, 18));
    show(300);
    EXPECT_EQ(size_of(widget.indicator), Dimension(33, 18));
}

TEST_F(ScrollHorizontalWidget, HidesKeysAndBarForContentThatFits)
{
    for (const std::uint16_t width : std::initializer_list<std::uint16_t>{100, 99, 0}) {
        show(300);
        show(width);
        expect_keys(parts, false);
        expect_no_bar(parts, 100);
        expect_offset(0, 0);
    }
}

TEST_F(ScrollHorizontalWidget, NeedsALayoutToGetItsBarBack)
{
    show(80);
    resize(content, {300, 60});
    widget.update_content_size();
    expect_keys(parts, true);
    EXPECT_EQ(size_of(widget.track), Dimension(100, 0));
    EXPECT_EQ(size_of(widget.indicator), Dimension(33, 65534));
    show(300);
    EXPECT_EQ(size_of(widget.track), Dimension(100, 20));
    EXPECT_EQ(size_of(widget.indicator), Dimension(33, 18));
}

TEST_F(ScrollHorizontalWidget, PlacesItsIndicatorByWhatIsHidden)
{
    go_live();
    widget.set_indicator(250, 100, -50);
    EXPECT_EQ(size_of(widget.indicator), Dimension(40, 18));
    EXPECT_EQ(placed(widget.placements, 2), Point(20, 60));
    widget.set_indicator(300, 120, 40);
    EXPECT_EQ(size_of(widget.indicator), Dimension(48, 18));
    EXPECT_EQ(size_of(widget.track), Dimension(120, 20));
    EXPECT_EQ(placed(widget.placements, 2), Point(-16, 60));
    widget.set_indicator(65535, 65534, -32768);
    EXPECT_EQ(widget.indicator.width, 65536 - 4) << "the square wraps around";
    EXPECT_EQ(placed(widget.placements, 2), Point(32767, 60));
    EXPECT_EQ(written(widget.placements, 2), Point(0, 60)) << "with the next commit";
    widget.set_indicator(100, 100, 0);
    EXPECT_EQ(placed(widget.placements, 2), Point(32767, 60)) << "where it was";
    EXPECT_TRUE(pool.news().empty());
}

TEST_F(ScrollHorizontalWidget, MovesHalfAWindowAtATime)
{
    show(230);
    widget.scroll_right();
    expect_offset(-50, 21);
    widget.scroll_right();
    widget.scroll_right();
    expect_offset(-130, 56);
    widget.scroll_right();
    expect_offset(-130, 56);
    widget.scroll_left();
    expect_offset(-80, 34);
    widget.scroll_left();
    widget.scroll_left();
    widget.scroll_left();
    expect_offset(0, 0);
    expect_keys(parts, true);
}

TEST_F(ScrollHorizontalWidget, UploadsOnceForAPressInTheMiddle)
{
    go_live();
    show_span(-100, 100, 10, true);
    activate(widget, Activation::released, back_key_id);
    EXPECT_EQ(pool.news(), committed());
    expect_offset(-50, 16);
    activate(widget, Activation::released, on_key_id);
    EXPECT_EQ(pool.news(), committed());
    expect_offset(-100, 33);
    EXPECT_FALSE(widget.container.is_changed());
}

TEST_F(ScrollHorizontalWidget, UploadsAtBothEndsToo)
{
    go_live();
    activate(widget, Activation::released, back_key_id);
    EXPECT_EQ(pool.news(), committed());
    expect_offset(0, 0);
    show_span(-200, 200, 10, true);
    activate(widget, Activation::released, on_key_id);
    EXPECT_EQ(pool.news(), committed());
    expect_offset(-200, 66);
}

TEST_F(ScrollHorizontalWidget, UploadsWhereThereIsNoBar)
{
    show(100);
    go_live();
    widget.scroll_right();
    widget.scroll_left();
    EXPECT_EQ(pool.news(), committed() + committed());
    expect_offset(0, 0);
}

TEST_F(ScrollHorizontalWidget, IgnoresAllButTheReleaseOfAKeyOfItsOwn)
{
    go_live();
    show_span(-50, 50, 10, true);
    for (const Activation code :
         {Activation::pressed, Activation::held, Activation::aborted, Activation{4}, Activation{255}})
        for (const Iso::Object_id key : {back_key_id, on_key_id})
            activate(widget, code, key);
    for (const Iso::Object_id id : {container_id, back_pointer_id, on_pointer_id, content_id, VT::VT_obj::NULL_ID})
        activate(widget, Activation::released, id);
    EXPECT_EQ(offset(), -50);
    EXPECT_TRUE(pool.news().empty());
}

TEST_F(ScrollHorizontalWidget, WithoutIdsTakesTheNullIdForItsLeftKey)
{
    activate(widget, Activation::released, VT::VT_obj::NULL_ID);
    expect_offset(0, 0);
    show_span(-100, 100, 10, true);
    activate(widget, Activation::released, VT::VT_obj::NULL_ID);
    expect_offset(-50, 16);
}

TEST_F(ScrollHorizontalWidget, KeepsHowFarDownContentAndIndicatorLie)
{
    widget.placements.placements[0].y = 7;
    widget.placements.placements[2].y = 63;
    widget.scroll_right();
    expect_places(parts, {-50, 7}, {0, 60}, {16, 63});
    widget.update_content_size();
    expect_places(parts, {0, 7}, {0, 60}, {0, 63});
    widget.scroll_to_show(180, 30, true);
    expect_places(parts, {-150, 7}, {0, 60}, {50, 63});
    widget.scroll_left();
    expect_places(parts, {-100, 7}, {0, 60}, {33, 63});
}

TEST_F(ScrollHorizontalWidget, FollowsContentThatGrowsAndShrinksInALivePool)
{
    show(80);
    go_live();
    resize(content, {300, 60});
    widget.set_size({100, 80}, 20);
    widget.update_content_size();
    EXPECT_EQ(pool.news(), keys_shown() + committed());
    EXPECT_EQ(size_of(widget.indicator), Dimension(33, 18));

    widget.scroll_right();
    pool.news();
    widget.update_content_size();
    EXPECT_EQ(pool.news(), keys_shown() + committed());
    expect_offset(0, 0);
    widget.update_content_size();
    EXPECT_EQ(pool.news(), keys_shown() + committed()) << "also when nothing has changed";

    widget.scroll_right();
    pool.news();
    resize(content, {100, 60});
    widget.update_content_size();
    EXPECT_EQ(pool.news(), keys_gone() + committed());
    expect_no_bar(parts, 100);
    expect_offset(0, 16);
    EXPECT_TRUE(pool.reported.empty());
}

TEST_F(ScrollHorizontalWidget, SendsAValueForEachPointerThatHasAnId)
{
    go_live();
    pool.release(widget.right_key_pointer);
    widget.update_content_size();
    EXPECT_EQ(pool.news(), Messages({numeric_value(back_pointer_id, back_key_id)}) + committed());
    expect_keys(parts, true);
    EXPECT_EQ(widget.right_key_pointer.value, VT::VT_obj::NULL_ID);
}

TEST_F(ScrollHorizontalWidget, BringsASpanIntoViewInHalfWindows)
{
    go_live();
    EXPECT_EQ(show_span(0, 180, 30, true), 1U) << "one upload for all steps";
    EXPECT_EQ(pool.news(), committed());
    expect_offset(-150, 50);
    EXPECT_EQ(show_span(-200, 30, 20, true), 1U);
    expect_offset(0, 0);
    EXPECT_EQ(show_span(-200, 60, 20, false), 1U);
    expect_offset(-50, 16);
}

TEST_F(ScrollHorizontalWidget, UploadsForAVisibleSpanUnlessItIsToBeQuiet)
{
    go_live();
    EXPECT_EQ(show_span(-50, 50, 100, true), 0U) << "from the first pixel to the last";
    EXPECT_EQ(offset(), -50);
    EXPECT_EQ(written(widget.placements, 0), Point(0, 0));
    EXPECT_EQ(show_span(-50, 50, 100, false), 1U);
    expect_offset(-50, 0);
}

TEST_F(ScrollHorizontalWidget, MovesForTheFirstPixelThatIsHidden)
{
    go_live();
    EXPECT_EQ(show_span(-50, 49, 10, true), 1U);
    EXPECT_EQ(offset(), 0);
    EXPECT_EQ(show_span(-50, 50, 10, true), 0U);
    EXPECT_EQ(show_span(0, 91, 10, true), 1U);
    EXPECT_EQ(offset(), -50);
    EXPECT_EQ(show_span(0, 90, 10, true), 0U);
    EXPECT_EQ(show_span(0, 100, 0, true), 0U);
    EXPECT_EQ(show_span(0, 101, 0, true), 1U);
}

TEST_F(ScrollHorizontalWidget, AddsASpanUpIn32Bits)
{
    resize(content, {65535, 60});
    resize(widget.container, {65000, 80});
    EXPECT_EQ(show_span(0, 32767, 32233, true), 0U);
    EXPECT_EQ(offset(), 0);
    widget.scroll_to_show(32767, 32234, true);
    EXPECT_EQ(offset(), -535);
}

TEST_F(ScrollHorizontalWidget, ShowsEverySpanOfUpToHalfAWindow)
{
    for (int visible = 2; visible < 14; ++visible)
        for (int all = visible; all < 45; ++all) {
            resize(content, {static_cast<std::uint16_t>(all), 60});
            resize(widget.container, {static_cast<std::uint16_t>(visible), 80});
            for (int from = visible - all; from <= 0; ++from)
                for (int width = 0; width <= visible / 2; ++width)
                    for (int x = 0; x + width <= all; ++x) {
                        show_span(static_cast<std::int16_t>(from), static_cast<short>(x),
                                  static_cast<unsigned short>(width), true);
                        ASSERT_GE(x + offset(), 0);
                        ASSERT_LE(x + width + offset(), visible);
                        ASSERT_GE(offset(), visible - all);
                        ASSERT_LE(offset(), 0);
                    }
        }
}

TEST_F(ScrollHorizontalWidget, SendsNothingBeforeThePoolIsLive)
{
    take(parts);
    widget.scroll_right();
    expect_offset(-50, 16);
    widget.scroll_to_show(290, 10, false);
    expect_offset(-200, 66);
    widget.update_content_size();
    expect_offset(0, 0);
    EXPECT_EQ(widget.left_key_pointer.value, back_key_id);
    EXPECT_TRUE(pool.news().empty());
    EXPECT_TRUE(pool.uploaded.empty());
}

TEST_F(ScrollHorizontalWidget, ScrollsWithoutAnId)
{
    pool.live = true;
    widget.scroll_right();
    widget.scroll_to_show(290, 10, true);
    widget.scroll_left();
    expect_offset(-150, 50);
    EXPECT_TRUE(pool.news().empty());
}

using ScrollHorizontalWidgetDeathTest = ScrollHorizontalWidget;

TEST_F(ScrollHorizontalWidgetDeathTest, ALayoutWithAnEmptySlotEndsTheProcess)
{
    for (const std::size_t slot : {0U, 1U, 2U}) {
        Scroll_horizontal_widget broken(style, &content, &back_face, &on_face);
        broken.placements.placements[slot].ref = nullptr;
        EXPECT_DEATH(broken.set_size({100, 80}, 20), no_child("Array_array_3")) << slot;
    }
}

TEST_F(ScrollHorizontalWidgetDeathTest, ACommitWithoutContentEndsTheProcess)
{
    widget.placements.placements[0].ref = nullptr;
    EXPECT_DEATH(widget.update_content_size(), no_child("Array_array_3"));
    EXPECT_DEATH(widget.scroll_left(), no_child("Array_array_3"));
    EXPECT_DEATH(widget.scroll_right(), no_child("Array_array_3"));
    EXPECT_DEATH(widget.scroll_to_show(0, 0, false), no_child("Array_array_3"));
}

TEST_F(ScrollHorizontalWidgetDeathTest, ASpanThatNoStepShowsHasNoEnd)
{
    const auto never = [this](std::int16_t from, short x, unsigned short width) {
        EXPECT_EXIT(
            {
                ualarm(50'000, 0);
                show_span(from, x, width, true);
            },
            ::testing::KilledBySignal(SIGALRM), "")
            << x << ' ' << width;
    };
    never(0, 0, 101);    // wider than the window
    never(0, 295, 10);   // beyond the content
    never(0, -1, 10);    // before it
    never(-50, 10, 100); // between two steps
}

TEST_F(ScrollHorizontalWidgetDeathTest, AVectorCannotMoveIt)
{
    expect_no_second_in_a_vector<Scroll_horizontal_widget>(style, &content, &back_face, &on_face);
}

} // namespace
