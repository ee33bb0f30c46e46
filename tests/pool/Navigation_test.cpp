// Scroll widgets and a selection list in a live pool: the releases of their keys and buttons that come in and what goes
// out.

#include "tests/Allocations.h"
#include "tests/pool/Fake_terminal.h"
#include "tests/pool/Screen.h"
#include "vtui/comp/Connection_elements.h"
#include "vtui/comp/widgets/Custom_select_widget.h"
#include "vtui/comp/widgets/Scroll_horizontal_widget.h"
#include "vtui/comp/widgets/Scroll_widget.h"

#include <gtest/gtest.h>
#include <vector>

using Messages = std::vector<Bytes>;

namespace {

constexpr int released = 0;
constexpr int pressed = 1;
constexpr int held = 2;
constexpr int aborted = 3;

/// A list that scrolls up and down and a strip that scrolls to both sides, each with its keys beside the mask.
class ScrollRoutes : public ::testing::Test, protected Screen
{
  protected:
    ScrollRoutes()
    {
        C::resize(long_content, {180, 250});
        C::resize(wide_content, {300, 60});
        mask.add(*list.root(), 0, 0);
        mask.add(*strip.root(), 0, 120);
        for (C::Object_pointer_obj* const key :
             {list.get_up_key(), list.get_down_key(), strip.get_left_key(), strip.get_right_key()})
            keys_beside.add(*key);
        mask.set_soft_key_mask(&keys_beside);
        pool.route(list);
        pool.route(strip);
    }

    void go_live()
    {
        list.set_size({200, 100}, 20);
        list.update_content_size();
        strip.set_size({100, 80}, 20);
        strip.update_content_size();
        const VT::Result result = pool.load(terminal);
        ASSERT_TRUE(result) << result.text();
        EXPECT_TRUE(pool.take_problems().empty());
        terminal.take_sent();
    }

    void activate(const C::Key_widget& key, int activation)
    {
        say(pool, frame(0x00, activation, w(key.key.get_id()), w(keys_beside.get_id()), 1));
    }

    Bytes list_child(const VT::VT_obj& child, int x, int y) const
    {
        return join(0xB4, w(list.container.get_id()), w(child.get_id()), w(x), w(y));
    }
    Messages list_moved(int content, int indicator) const
    {
        return {list_child(long_content, 0, content), list_child(list.indicator, 180, indicator),
                list_child(list.indicator, 180, indicator)};
    }
    /// The record of the strip's container, and the end of the upload.
    Messages strip_uploaded(int content, int indicator) const
    {
        return {join(0x11, w(strip.container.get_id()), 3, w(100), w(80), 0, 3, 0, //
                     w(wide_content.get_id()), w(content), w(0),                   //
                     w(strip.track.get_id()), w(0), w(60),                         //
                     w(strip.indicator.get_id()), w(indicator), w(60)),
                frame(0x12)};
    }
    static Bytes points_at(const C::Object_pointer_obj& pointer, const VT::VT_obj& object)
    {
        return frame(0xA8, w(pointer.get_id()), 0xFF, d(object.get_id()));
    }
    static Bytes rectangle(const C::Rectangle_obj& r, int width, int height)
    {
        return join(0x11, w(r.get_id()), 14, w(r.line->get_id()), w(width), w(height), std::uint8_t{r.line_suppression},
                    w(r.fill->get_id()), 0);
    }

    C::Connection_elements style;
    C::Container_obj long_content;
    C::Container_obj wide_content;
    C::Container_obj faces[4];
    VT::Soft_key_mask_obj keys_beside;
    C::Scroll_widget list{style, &long_content, &faces[0], &faces[1]};
    C::Scroll_horizontal_widget strip{style, &wide_content, &faces[2], &faces[3]};
    /// Keeps nothing of what is sent while it is quiet.
    struct : Fake_terminal
    {
        bool send(const std::uint8_t* message, std::size_t size) override
        {
            return quiet ? ++count : Fake_terminal::send(message, size);
        }
        bool quiet{false};
        std::size_t count{0};
    } terminal;
};

TEST_F(ScrollRoutes, LeadTheReleaseOfAKeyToItsList)
{
    go_live();
    activate(list.down_key, released);
    EXPECT_EQ(terminal.take_sent(), list_moved(-50, 20));
    activate(list.down_key, released);
    EXPECT_EQ(terminal.take_sent(), list_moved(-100, 40));
    activate(list.up_key, released);
    EXPECT_EQ(terminal.take_sent(), list_moved(-50, 20));
    EXPECT_EQ(strip.placements.placements[0].x, 0);
}

TEST_F(ScrollRoutes, LeadTheReleaseOfAKeyToItsStrip)
{
    go_live();
    activate(strip.right_key, released);
    EXPECT_EQ(terminal.take_sent(), strip_uploaded(-50, 16));
    activate(strip.right_key, released);
    EXPECT_EQ(terminal.take_sent(), strip_uploaded(-100, 33));
    activate(strip.left_key, released);
    EXPECT_EQ(terminal.take_sent(), strip_uploaded(-50, 16));
    EXPECT_EQ(list.placements.placements[0].y, 0);
}

TEST_F(ScrollRoutes, DoNothingBeforeTheRelease)
{
    go_live();
    for (const C::Key_widget* const key : {&list.up_key, &list.down_key, &strip.left_key, &strip.right_key})
        for (const int activation : {pressed, held, aborted})
            activate(*key, activation);
    EXPECT_TRUE(terminal.take_sent().empty());
}

TEST_F(ScrollRoutes, AllocateNothing)
{
    go_live();
    VT::Soft_key_activation_event down{Iso::Activation::released, list.down_key.key.get_id(), keys_beside.get_id(), 1};
    terminal.quiet = true;
    const std::size_t before = allocations();
    list.set_content(&wide_content);
    list.set_content(&long_content);
    list.handle_event(down);
    strip.update_content_size();
    strip.scroll_to_show(200, 20, false);
    EXPECT_EQ(allocations(), before);
    EXPECT_EQ(terminal.count, 5U + 8U + 3U + 4U + 2U) << "the second upload takes the bar along";
    EXPECT_TRUE(pool.is_live());
}

TEST_F(ScrollRoutes, ShowTheKeysThroughTheirPointers)
{
    go_live();
    EXPECT_EQ(list.up_key_pointer.value, list.up_key.key.get_id());
    EXPECT_EQ(list.down_key_pointer.value, list.down_key.key.get_id());
    EXPECT_EQ(strip.left_key_pointer.value, strip.left_key.key.get_id());
    EXPECT_EQ(strip.right_key_pointer.value, strip.right_key.key.get_id());
}

TEST_F(ScrollRoutes, KnowKeysThatNothingPointedAtWhenThePoolWasLoaded)
{
    C::resize(long_content, {180, 100});
    C::resize(wide_content, {100, 60});
    go_live();
    for (const Iso::Object_id id : ids({&list.up_key.key, &list.down_key.key, &strip.left_key.key, &strip.right_key.key,
                                        &faces[0], &faces[1], &faces[2], &faces[3]}))
        EXPECT_NE(id, Iso::null_id);
    EXPECT_EQ(list.up_key_pointer.value, Iso::null_id);
    EXPECT_EQ(strip.left_key_pointer.value, Iso::null_id);

    C::resize(long_content, {180, 250});
    list.update_content_size();
    EXPECT_EQ(terminal.take_sent(), (Messages{points_at(list.up_key_pointer, list.up_key.key), //
                                              points_at(list.down_key_pointer, list.down_key.key),
                                              list_child(list.indicator, 180, 0), list_child(long_content, 0, 0)}));
    activate(list.down_key, released);
    EXPECT_EQ(terminal.take_sent(), list_moved(-50, 20));
    EXPECT_TRUE(pool.take_problems().empty());
}

TEST_F(ScrollRoutes, ShowABarThatHasGrownWithAnUpload)
{
    C::resize(long_content, {180, 100});
    go_live();
    C::resize(long_content, {180, 250});
    list.update_content_size();
    activate(list.down_key, released);
    terminal.take_sent();
    list.root()->upload(true);
    const Messages sent = terminal.take_sent();
    ASSERT_EQ(sent.size(), 5U);
    EXPECT_EQ(sent[0][0], 0x11) << "the content, which has changed, too";
    EXPECT_EQ(sent[1], rectangle(list.track, 20, 100));
    EXPECT_EQ(sent[2], rectangle(list.indicator, 18, 40));
    EXPECT_EQ(sent[3], join(0x11, w(list.container.get_id()), 3, w(200), w(100), 0, 3, 0, //
                            w(long_content.get_id()), w(0), w(-50),                       //
                            w(list.track.get_id()), w(180), w(0),                         //
                            w(list.indicator.get_id()), w(180), w(20)));
    EXPECT_EQ(sent[4], frame(0x12));
}

TEST_F(ScrollRoutes, FollowAStripThatGrowsWithTheSameUpload)
{
    C::resize(wide_content, {100, 60});
    go_live();
    C::resize(wide_content, {300, 60});
    strip.set_size({100, 80}, 20);
    strip.update_content_size();
    Messages sent = terminal.take_sent();
    ASSERT_EQ(sent.size(), 7U);
    EXPECT_EQ(sent[0], points_at(strip.left_key_pointer, strip.left_key.key));
    EXPECT_EQ(sent[1], points_at(strip.right_key_pointer, strip.right_key.key));
    EXPECT_EQ(sent[3], rectangle(strip.track, 100, 20));
    EXPECT_EQ(sent[4], rectangle(strip.indicator, 33, 18));
    sent.erase(sent.begin(), sent.begin() + 5);
    EXPECT_EQ(sent, strip_uploaded(0, 0));
}

TEST_F(ScrollRoutes, ScrollAContentThatWasAddedForLater)
{
    C::Container_obj later;
    C::resize(later, {180, 400});
    pool.add(later);
    go_live();
    activate(list.down_key, released);
    terminal.take_sent();
    list.set_content(&later);
    Messages sent = terminal.take_sent();
    ASSERT_EQ(sent.size(), 6U);
    EXPECT_EQ(sent[0], join(0x11, w(list.container.get_id()), 3, w(200), w(100), 0, 3, 0, //
                            w(later.get_id()), w(0), w(-50),                              //
                            w(list.track.get_id()), w(180), w(0),                         //
                            w(list.indicator.get_id()), w(180), w(20)))
        << "where the one before lay";
    sent.erase(sent.begin());
    EXPECT_EQ(sent, (Messages{frame(0x12), points_at(list.up_key_pointer, list.up_key.key),
                              points_at(list.down_key_pointer, list.down_key.key), list_child(list.indicator, 180, 0),
                              list_child(later, 0, 0)}));
    activate(list.down_key, released);
    EXPECT_EQ(terminal.take_sent().front(), list_child(later, 0, -50));
    EXPECT_TRUE(pool.take_problems().empty());
}

TEST_F(ScrollRoutes, ReportAContentThatThePoolDoesNotHave)
{
    C::Container_obj stranger;
    go_live();
    list.set_content(&stranger);
    const std::vector<VT::Problem> problems = pool.take_problems();
    ASSERT_EQ(problems.size(), 1U);
    EXPECT_EQ(problems[0].error, VT::Error::suspicious_value);
    EXPECT_EQ(problems[0].id, list.container.get_id());
}

/// Windows, contents and placements shrink alike.
TEST_F(ScrollRoutes, ScrollInAPoolThatWasScaled)
{
    pool.set_designed_size(960);
    go_live();
    activate(list.down_key, released);
    EXPECT_EQ(terminal.take_sent(), (Messages{list_child(long_content, 0, -25), list_child(list.indicator, 90, 10),
                                              list_child(list.indicator, 90, 10)}));
}

TEST(SelectRoute, LeadsTheReleaseOfAButtonToItsList)
{
    Screen screen;
    C::Connection_elements style;
    C::Custom_select_widget<50, 2> list(style);
    screen.mask.add(*list.root(), 0, 0);
    screen.pool.route(list);
    list.set_size(200, 30);
    list.container.height = std::uint16_t{50 * 35};
    Fake_terminal terminal;
    const VT::Result result = screen.pool.load(terminal);
    ASSERT_TRUE(result) << result.text();
    terminal.take_sent();

    say(screen.pool, frame(0x01, released, w(list.items[7].button.get_id()), w(screen.mask.get_id()), 1));
    const auto value = [](const C::Toggle_button_widget& item, const VT::VT_obj& look) {
        return frame(0xA8, w(item.state_pointer.get_id()), 0xFF, d(look.get_id()));
    };
    Messages values{value(list.items[7], style.rect_bevel_dark)};
    for (const C::Toggle_button_widget& item : list.items)
        if (&item != &list.items[7])
            values.push_back(value(item, style.rect_17_patterned));
    EXPECT_EQ(terminal.take_sent(), values);
    EXPECT_EQ(list.get_selected_item(), 7);
    EXPECT_TRUE(list.was_last_button());

    for (const int activation : {pressed, held, aborted})
        say(screen.pool, frame(0x01, activation, w(list.items[3].button.get_id()), w(screen.mask.get_id()), 1));
    EXPECT_TRUE(terminal.take_sent().empty());
    EXPECT_TRUE(screen.pool.take_problems().empty());
}

} // namespace
