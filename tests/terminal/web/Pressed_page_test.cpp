#include "tests/terminal/web/Web_page_fixture.h"

#include <chrono>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace terminal {
namespace {

using namespace std::chrono_literals;
using Messages = std::vector<Bytes>;

class PressedPage : public WebPage
{
  protected:
    static constexpr bool goes_on = true, has_ended = false;

    Messages button_says(int code) const { return {message(0x01, code, w(button), w(red), 1)}; }
    Messages key_says(int code) const { return {message(0x00, code, w(soft_key), w(red), 1)}; }
    std::string by_id(Pool_builder::Id id) const { return "/press/" + std::to_string(id); }

    Messages sent_since()
    {
        const auto locked = page.lock();
        return std::exchange(session.sent, {});
    }
};

TEST_F(PressedPage, PressesThePixelThatTheViewerPressesUntilItIsReleased)
{
    EXPECT_EQ(told("/press/219/239", goes_on), button_says(1));
    EXPECT_EQ(told("/hold", goes_on), button_says(2));
    EXPECT_EQ(told("/move/200/230", goes_on), Messages());
    EXPECT_EQ(told("/release", has_ended), button_says(0));
    EXPECT_EQ(told("/hold", has_ended), Messages());
    EXPECT_EQ(told("/release", has_ended), Messages());
    EXPECT_EQ(told("/press/299/59", goes_on), key_says(1));
    EXPECT_EQ(told("/release", has_ended), key_says(0));
    for (const char* nowhere : {"/press/220/239", "/press/0/0", "/press/99999/99999"})
        EXPECT_EQ(told(nowhere, has_ended), Messages()) << nowhere;
}

TEST_F(PressedPage, AbortsWhatThePointerLeavesAndWhatIsTakenBack)
{
    told("/press/219/239", goes_on);
    EXPECT_EQ(told("/move/220/239", has_ended), button_says(3));
    EXPECT_EQ(told("/move/219/239", has_ended), Messages());
    EXPECT_EQ(told("/release", has_ended), Messages());
    told("/press/219/239", goes_on);
    EXPECT_EQ(told("/abort", has_ended), button_says(3));
    EXPECT_EQ(told("/abort", has_ended), Messages());
}

TEST_F(PressedPage, PressesByTheKeyboard)
{
    EXPECT_EQ(told(by_id(button), goes_on), button_says(1));
    EXPECT_EQ(told("/move/0/0", goes_on), Messages());
    EXPECT_EQ(told("/release", has_ended), button_says(0));
    EXPECT_EQ(told(by_id(soft_key), goes_on), key_says(1));
    EXPECT_EQ(told("/hold", goes_on), key_says(2));
    EXPECT_EQ(told("/abort", has_ended), key_says(3));
    for (const int nothing : {int{red}, int{blue}, 999, 65535, 65536 + button, 99999})
        EXPECT_EQ(told("/press/" + std::to_string(nothing), has_ended), Messages()) << nothing;
}

TEST_F(PressedPage, OpensANumberOnRelease)
{
    EXPECT_EQ(told(by_id(number), goes_on), Messages());
    EXPECT_EQ(told("/hold", goes_on), Messages());
    EXPECT_EQ(text("/entry"), "null");
    EXPECT_EQ(told("/release", has_ended), Messages{message(0x03, w(number), 1, 1)});
    EXPECT_NE(text("/entry"), "null");
    EXPECT_EQ(told(by_id(button), has_ended), Messages());
}

TEST_F(PressedPage, LeavesAPressToTheBrowserThatBeganIt)
{
    told("/press/219/239", goes_on);
    EXPECT_EQ(told("/press/299/59", has_ended), Messages()) << "so that this browser neither holds nor releases it";
    EXPECT_EQ(told("/hold", goes_on), button_says(2));
    EXPECT_EQ(told("/release", has_ended), button_says(0));
}

TEST_F(PressedPage, SaysThatTheApplicationHasEndedThePress)
{
    told("/press/219/239", goes_on);
    {
        const auto locked = page.lock();
        session.sent.clear();
        show(1);
    }
    const Messages sent = sent_since();
    ASSERT_EQ(sent.size(), 2u);
    EXPECT_EQ(sent[1], button_says(3)[0]);
    EXPECT_EQ(told("/hold", has_ended), Messages());
    EXPECT_EQ(told("/release", has_ended), Messages());
}

TEST_F(PressedPage, ShowsWhatIsPressed)
{
    const std::string before = text("/revision");
    const QImage up = sent();
    told("/press/219/239", goes_on);
    EXPECT_NE(text("/revision"), before);
    EXPECT_NE(sent(), up);
    EXPECT_EQ(sent(), drawn());
    told("/release", has_ended);
    EXPECT_EQ(sent(), up);
}

TEST_F(PressedPage, KnowsNoOtherPresses)
{
    for (const char* path : {"/touch/1/1", "/press", "/press/", "/press/1/", "/press/-1/1", "/press/1/1/1",
                             "/press/a/b", "/press/x", "/press/-1", "/press/100000", "/press/100000/1", "/press/1.5/1",
                             "/move/1", "/move", "/move/-1/1", "/hold/1", "/release/1", "/abort/1"})
        EXPECT_EQ(told(path, 404), Messages()) << path;
    for (const char* path : {"/press/1/1", "/move/1/1", "/hold", "/release", "/abort"})
        EXPECT_EQ(client.get(path).status, 404) << path;
}

TEST_F(PressedPage, TellsTheViewerWhatTheApplicationSaysToAPress)
{
    objection = "the pool refused it";
    for (const char* path : {"/press/219/239", "/hold", "/release", "/press/219/239", "/abort"}) {
        const auto answer = client.post(path);
        ASSERT_EQ(answer.status, 500) << path;
        EXPECT_EQ(answer.body, objection);
    }
}

TEST_F(PressedPage, ListsTheControlsAndSoftKeysForTheKeyboard)
{
    const auto entry = [](const char* kind, Pool_builder::Id id, const char* place) {
        return "{\"kind\":\"" + std::string(kind) + "\",\"id\":" + std::to_string(id) + "," + place + "}";
    };
    EXPECT_EQ(text("/controls"), "[" + entry("number", number, R"("left":100,"top":100,"width":20,"height":10)") + "," +
                                     entry("button", button, R"("left":200,"top":230,"width":20,"height":10)") + "," +
                                     entry("soft key", soft_key, R"("left":240,"top":0,"width":60,"height":60)") + "]");
    EXPECT_EQ(client.get("/controls").header("Content-Type"), "application/json");
    choose(blue_name);
    EXPECT_EQ(text("/controls"), "[]");
}

TEST_F(PressedPage, AbortsWhatALostBrowserHasPressed)
{
    told("/press/219/239", goes_on);
    const auto told_so_far = [this] {
        const auto locked = page.lock();
        return times_told;
    };
    const int told_of_the_press = told_so_far();
    sent_since();
    clock.advance(999ms);
    clock.wait_for_a_look(); // nobody asks for anything
    EXPECT_EQ(sent_since(), Messages());
    clock.advance(1ms);
    clock.wait_for_a_look();
    EXPECT_EQ(sent_since(), button_says(3));
    EXPECT_EQ(told_so_far(), told_of_the_press + 1);
    const auto locked = page.lock();
    EXPECT_EQ(session.terminal.pressed(), Pool_builder::none);
}

TEST_F(PressedPage, AbortsWhatALostBrowserHasPressedBeforeAnybodyElseIsAnswered)
{
    Web_settings settings = clock.settings();
    settings.between_looks = 1h;
    const Web_page other(session.terminal, renderer, {}, nullptr, 0, settings);
    const Http_client viewer(other.port());
    EXPECT_EQ(viewer.post("/press/219/239").body, "true");
    session.sent.clear();
    clock.advance(999ms);
    EXPECT_EQ(viewer.get("/revision").status, 200);
    EXPECT_EQ(session.sent, Messages());
    clock.advance(1ms);
    EXPECT_EQ(viewer.get("/revision").status, 200);
    EXPECT_EQ(session.sent, button_says(3));
}

TEST_F(PressedPage, SurvivesThatTheApplicationObjectsToTheEndOfALostPress)
{
    told("/press/219/239", goes_on);
    sent_since();
    {
        const auto locked = page.lock();
        objection = "the pool refused it";
    }
    clock.advance(1s);
    clock.wait_for_a_look();
    EXPECT_EQ(sent_since(), button_says(3));
    EXPECT_EQ(client.get("/revision").status, 200);
}

TEST_F(PressedPage, KeepsAPressForAsLongAsItsBrowserSaysSo)
{
    told("/press/219/239", goes_on);
    for (int i = 0; i < 5; ++i) {
        clock.advance(999ms);
        EXPECT_EQ(told("/hold", goes_on), button_says(2));
    }
    EXPECT_EQ(told("/release", has_ended), button_says(0));
}

TEST_F(PressedPage, LeavesAPressToWhoeverElseBeganIt)
{
    told("/press/219/239", goes_on);
    told("/release", has_ended);
    {
        const auto locked = page.lock();
        ASSERT_TRUE(session.terminal.press(button));
    }
    clock.advance(1h);
    clock.wait_for_a_look();
    const auto locked = page.lock();
    EXPECT_EQ(session.terminal.pressed(), button);
}

TEST_F(PressedPage, AbortsWhatIsPressedWhenItEnds)
{
    auto other = std::make_unique<Web_page>(session.terminal, renderer, Screen_choice(), nullptr, 0);
    EXPECT_EQ(Http_client(other->port()).post("/press/219/239").status, 200);
    session.sent.clear();
    other.reset();
    EXPECT_EQ(sent_since(), button_says(3));
    EXPECT_EQ(told("/release", has_ended), Messages());
}

} // namespace
} // namespace terminal
