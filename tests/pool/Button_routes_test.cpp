// Buttons, keys, borders and covers in a live pool: the bytes that come in and what goes out.

#include "tests/pool/Fake_terminal.h"
#include "tests/pool/Screen.h"
#include "vtui/comp/Connection_elements.h"
#include "vtui/comp/widgets/Border_widget.h"
#include "vtui/comp/widgets/Check_box_widget.h"
#include "vtui/comp/widgets/Disable_widget.h"
#include "vtui/comp/widgets/Function_key.h"
#include "vtui/comp/widgets/Icon_text_button_widget.h"
#include "vtui/comp/widgets/Key_button_combo_widget.h"

#include <functional>
#include <gtest/gtest.h>
#include <vector>

using Messages = std::vector<Bytes>;

namespace {

constexpr int released = 0;
constexpr int pressed = 1;
constexpr int held = 2;
constexpr int aborted = 3;

/// Two keys beside a mask with two buttons with texts and two check boxes: all of them routed, live, and at rest.
class ButtonRoutes : public ::testing::Test, protected Screen
{
  protected:
    void SetUp() override
    {
        C::resize(checked, {20, 20});
        C::resize(unchecked, {20, 20});
        for (C::Function_key& key : keys) {
            key.set_content(&checked);
            keys_beside.add(key.root());
            key.set_size({60, 32});
            key.action = [this, &key] { ++key_runs[&key - keys]; };
            pool.route(key);
        }
        for (C::Icon_text_button_widget& button : buttons) {
            mask.add(button.root(), 0, 0);
            button.set_size({120, 100});
            button.action = [this, &button] { ++button_runs[&button - buttons]; };
            pool.route(button);
        }
        for (C::Check_box_widget& box : boxes) {
            mask.add(box.root(), 0, 100);
            box.set_size({40, 40});
            pool.route(box);
        }
        mask.set_soft_key_mask(&keys_beside);
        const VT::Result result = pool.load(terminal);
        ASSERT_TRUE(result) << result.text();
        terminal.take_sent();
    }

    void say_of_key(const C::Function_key& key, int activation)
    {
        say(pool, frame(0x00, activation, w(key.key.get_id()), w(keys_beside.get_id()), 1));
    }
    void say_of_button(const C::Button_obj& button, int activation)
    {
        say(pool, frame(0x01, activation, w(button.get_id()), w(mask.get_id()), 1));
    }

    /// What the second of each pair has done; the first ones have done nothing.
    int runs_of_key() const
    {
        EXPECT_EQ(key_runs[0], 0);
        return key_runs[1];
    }
    int runs_of_button() const
    {
        EXPECT_EQ(button_runs[0], 0);
        return button_runs[1];
    }
    bool is_checked() const
    {
        EXPECT_FALSE(boxes[0].is_checked());
        return boxes[1].is_checked();
    }

    C::Connection_elements style;
    C::Rectangle_obj checked;
    C::Rectangle_obj unchecked;
    VT::Soft_key_mask_obj keys_beside;
    C::Function_key keys[2];
    C::Icon_text_button_widget buttons[2]{C::Icon_text_button_widget{style}, C::Icon_text_button_widget{style}};
    C::Check_box_widget boxes[2]{C::Check_box_widget{style, &checked, &unchecked},
                                 C::Check_box_widget{style, &checked, &unchecked}};
    int key_runs[2]{};
    int button_runs[2]{};
    Fake_terminal terminal;
};

TEST_F(ButtonRoutes, LeadTheReleaseOfAKeyToItsAction)
{
    say_of_key(keys[1], released);
    EXPECT_EQ(runs_of_key(), 1);
    for (const int activation : {pressed, held, held, released})
        say_of_key(keys[1], activation);
    EXPECT_EQ(runs_of_key(), 2);
    EXPECT_TRUE(terminal.take_sent().empty());
}

TEST_F(ButtonRoutes, LeadTheReleaseOfAButtonToItsAction)
{
    say_of_button(buttons[1].button.button, released);
    EXPECT_EQ(runs_of_button(), 1);
    for (const int activation : {pressed, held, held, released})
        say_of_button(buttons[1].button.button, activation);
    EXPECT_EQ(runs_of_button(), 2);
    EXPECT_TRUE(terminal.take_sent().empty());
}

TEST_F(ButtonRoutes, LeadTheReleaseOfACheckBoxToItsOtherState)
{
    const int pointer = boxes[1].state_pointer.get_id();
    say_of_button(boxes[1].button, released);
    EXPECT_TRUE(is_checked());
    EXPECT_EQ(terminal.take_sent(), (Messages{frame(0xA8, w(pointer), 0xFF, d(checked.get_id()))}));
    for (const int activation : {pressed, held, held, released})
        say_of_button(boxes[1].button, activation);
    EXPECT_FALSE(is_checked());
    EXPECT_EQ(terminal.take_sent(), (Messages{frame(0xA8, w(pointer), 0xFF, d(unchecked.get_id()))}));
}

TEST_F(ButtonRoutes, DoNothingBeforeTheRelease)
{
    for (const int activation : {pressed, held, aborted}) {
        say_of_key(keys[1], activation);
        say_of_button(buttons[1].button.button, activation);
        say_of_button(boxes[1].button, activation);
    }
    EXPECT_EQ(runs_of_key(), 0);
    EXPECT_EQ(runs_of_button(), 0);
    EXPECT_FALSE(is_checked());
    EXPECT_TRUE(terminal.take_sent().empty());
}

TEST_F(ButtonRoutes, TellKeysFromButtons)
{
    say(pool, frame(0x01, released, w(keys[1].key.get_id()), w(keys_beside.get_id()), 1));
    say(pool, frame(0x00, released, w(buttons[1].button.button.get_id()), w(mask.get_id()), 1));
    say(pool, frame(0x00, released, w(boxes[1].button.get_id()), w(mask.get_id()), 1));
    EXPECT_EQ(runs_of_key(), 0);
    EXPECT_EQ(runs_of_button(), 0);
    EXPECT_FALSE(is_checked());
}

TEST_F(ButtonRoutes, DoNothingForTheOtherObjectsOfAButton)
{
    for (const Iso::Object_id id : ids({&buttons[1].root(), &buttons[1].inner, &buttons[1].caption, &boxes[1].container,
                                        &boxes[1].state_pointer}))
        say(pool, frame(0x01, released, w(id), w(mask.get_id()), 1));
    EXPECT_EQ(runs_of_button(), 0);
    EXPECT_FALSE(is_checked());
}

TEST_F(ButtonRoutes, LetThroughThatAKeyHasNoAction)
{
    keys[0].action = nullptr;
    EXPECT_NO_THROW(say_of_key(keys[0], pressed));
    EXPECT_THROW(say_of_key(keys[0], released), std::bad_function_call);
    EXPECT_TRUE(pool.is_live());

    say_of_key(keys[1], released);
    say_of_button(buttons[1].button.button, released);
    say_of_button(boxes[1].button, released);
    EXPECT_EQ(runs_of_key(), 1);
    EXPECT_EQ(runs_of_button(), 1);
    EXPECT_TRUE(is_checked());
    EXPECT_EQ(terminal.take_sent().size(), 1U) << "the check box's new look";

    EXPECT_THROW(say_of_key(keys[0], released), std::bad_function_call) << "every time";
    keys[0].action = [this] { ++key_runs[1]; };
    say_of_key(keys[0], released);
    EXPECT_EQ(runs_of_key(), 2);
}

TEST_F(ButtonRoutes, MayLeadToAButtonWithoutAnAction)
{
    buttons[0].action = nullptr;
    EXPECT_NO_THROW(say_of_button(buttons[0].button.button, released));
    say_of_button(buttons[1].button.button, released);
    EXPECT_EQ(runs_of_button(), 1);
}

TEST_F(ButtonRoutes, LetAnActionChangeWhatItsScreenShows)
{
    keys[1].action = [this] { boxes[1].set_checked(true); };
    say_of_key(keys[1], released);
    EXPECT_TRUE(is_checked());
    EXPECT_EQ(terminal.take_sent(),
              (Messages{frame(0xA8, w(boxes[1].state_pointer.get_id()), 0xFF, d(checked.get_id()))}));
}

/// A screen for one component, still without it.
class OneOnAScreen : public ::testing::Test, protected Screen
{
  protected:
    void go_live()
    {
        const VT::Result result = pool.load(terminal);
        ASSERT_TRUE(result) << result.text();
        terminal.take_sent();
    }

    C::Connection_elements style;
    Fake_terminal terminal;
};

using BorderRoute = OneOnAScreen;

TEST_F(BorderRoute, PutsTheEdgeBackWhenTheTerminalSpeaksUp)
{
    C::Border_widget border(style);
    border.set_size({100, 50});
    mask.add(border.root(), 20, 30);
    pool.route(border);
    go_live();
    say(pool, frame(0xC7, 0xFF, 2, 3, w(480), w(480)));
    EXPECT_EQ(terminal.take_sent(), (Messages{join(0xB4, w(border.container.get_id()), w(border.border.get_id()), //
                                                   0x03, 0x00, 0x03, 0x00)}));
}

/// A page of an application's, with a command that it offers twice.
struct Page
{
    explicit Page(C::Connection_elements& style) : command(style) {}

    void handle_event(VT::Button_activation_event& event) { count(event.object_id, event.activation_code); }
    void handle_event(VT::Soft_key_activation_event& event) { count(event.object_id, event.activation_code); }

    C::Key_button_combo_widget command;
    int given{0};

  private:
    void count(Iso::Object_id id, Iso::Activation activation)
    {
        if (command.is_button_or_key_id(id) && activation == Iso::Activation::released)
            ++given;
    }
};

using ComboRoute = OneOnAScreen;

TEST_F(ComboRoute, LeadsButtonAndSoftKeyToTheClassThatHoldsBoth)
{
    C::Rectangle_obj icon;
    VT::Soft_key_mask_obj keys_beside;
    Page page(style);
    page.command.set_icon(&icon, &icon);
    page.command.set_size({120, 60});
    mask.add(page.command.root(), 0, 0);
    keys_beside.add(page.command.get_soft_key());
    mask.set_soft_key_mask(&keys_beside);
    pool.route(page);
    go_live();

    const int button = page.command.button.button.get_id();
    const int key = page.command.get_soft_key().get_id();
    say(pool, frame(0x01, released, w(button), w(mask.get_id()), 1));
    EXPECT_EQ(page.given, 1);
    say(pool, frame(0x00, released, w(key), w(keys_beside.get_id()), 1));
    EXPECT_EQ(page.given, 2);
    for (const int activation : {pressed, held, aborted}) {
        say(pool, frame(0x01, activation, w(button), w(mask.get_id()), 1));
        say(pool, frame(0x00, activation, w(key), w(keys_beside.get_id()), 1));
    }
    EXPECT_EQ(page.given, 2);
    EXPECT_TRUE(terminal.take_sent().empty());
}

/// A disabled area of 32 × 10 that grows when the pool is live.
class DisabledArea : public OneOnAScreen
{
  protected:
    Messages shows(Iso::Object_id id) const { return {frame(0xA8, w(disable.state_pointer.get_id()), 0xFF, d(id))}; }

    C::Disable_widget disable{style};
};

TEST_F(DisabledArea, TakesEveryCoverInALivePool)
{
    disable.set_size({32, 10});
    disable.set_disabled(true);
    mask.add(disable.root(), 0, 0);
    go_live();
    EXPECT_EQ(disable.root().value, style.cover_tile.get_id());
    const std::pair<int, const VT::VT_obj&> covers[] = {
        {512, style.cover_512}, {256, style.cover_256}, {128, style.cover_128}, //
        {64, style.cover_64},   {32, style.cover_tile},
    };
    for (const auto& [side, cover] : covers) {
        ASSERT_NE(cover.get_id(), Iso::null_id) << side;
        disable.set_size({static_cast<std::uint16_t>(side), 10});
        EXPECT_EQ(terminal.take_sent(), shows(cover.get_id())) << side;
    }
    EXPECT_TRUE(pool.take_problems().empty());
}

TEST_F(DisabledArea, CostsFourContainersAndATile)
{
    Screen bare;
    ASSERT_TRUE(bare.pool.prepare());
    disable.set_size({32, 10});
    mask.add(disable.root(), 0, 0);
    ASSERT_TRUE(pool.prepare());
    // The pointer, the one that shows nothing, and the covers.
    EXPECT_EQ(pool.size(), bare.pool.size() + 2 + 5);
}

} // namespace
