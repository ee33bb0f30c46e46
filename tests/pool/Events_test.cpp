// What a component is told, and how.

#include "tests/pool/Listener.h"

#include <deque>
#include <gtest/gtest.h>
#include <string>
#include <utility>
#include <vector>

using Lines = Listener::Lines;
using Type = Iso::Object_type;

namespace {

/// Takes one kind of event, as a `Parameter`.
template <class Parameter>
struct Takes
{
    void handle_event(Parameter event) { heard.push_back(event.key_code); }
    Control button;
    std::vector<int> heard;
};

} // namespace

TEST(PoolEvents, ReachTheComponentOfTheirObjectWithAllTheirFields)
{
    struct Panel : Listener
    {
        Control key{Type::key};               // 2
        Control button{Type::button};         // 3
        Control boolean{Type::input_boolean}; // 4
        Control string{Type::input_string};   // 5
        Control number{Type::input_number};   // 6
        Control list{Type::input_list};       // 7
    } panel, other;
    Screen screen;
    prepare(screen, panel.key, panel.button, panel.boolean, panel.string, panel.number, panel.list, other.key,
            other.button, other.boolean, other.string, other.number, other.list);
    screen.pool.route(panel);
    screen.pool.route(other);

    const std::pair<Bytes, const char*> events[] = {
        {frame(0x00, 2, w(2), w(400), 5), "key 2 2 400 5"},
        {frame(0x01, 3, w(3), w(401), 6), "button 3 3 401 6"},
        {frame(0x05, w(4), 0xFF, d(1)), "number 4 1"},
        {frame(0x05, w(6), 0xFF, d(0x89ABCDEF)), "number 6 2309737967"},
        {frame(0x05, w(7), 0xFF, d(17)), "number 7 17"},
        {frame(0x08, w(5), 3, "abc"), "text 'abc' 5"},
        {join(0x08, w(5), 12, "a longer one"), "text 'a longer one' 5"},
        {frame(0x03, w(6), 1, 1), "select 6 1 1"},
        {frame(0x03, w(5), 1, 0), "select 5 1 0"},
        {frame(0x03, w(6), 0, 0), "select 6 0 0"},
        {frame(0x04, w(6), 16), "esc 6 16"},
    };
    for (const auto& [message, heard] : events) {
        say(screen.pool, message);
        EXPECT_EQ(panel.take_heard(), Lines{heard});
        EXPECT_EQ(other.take_heard(), Lines{}) << heard;
    }
}

TEST(PoolEvents, ComeFromWhatTheOperatorCanUseOnly)
{
    struct Panel : Listener
    {
        std::deque<Control> objects;
    } panel;
    Screen screen;
    std::vector<Type> usable;
    for (std::uint8_t type = 2; type <= static_cast<std::uint8_t>(Type::macro); ++type) {
        Control& object = panel.objects.emplace_back(static_cast<Type>(type));
        screen.pool.add(object);
    }
    prepare(screen);
    for (const Control& object : panel.objects)
        screen.pool.route(panel, object);
    for (const Control& object : panel.objects) {
        release(screen.pool, object);
        if (!panel.take_heard().empty())
            usable.push_back(object.get_type());
    }
    EXPECT_EQ(usable, (std::vector<Type>{Type::key, Type::button, Type::input_boolean, Type::input_string,
                                         Type::input_number, Type::input_list}));
}

TEST(PoolEvents, AreHandedOverAsTheComponentTakesThem)
{
    Takes<VT::Button_activation_event> value;
    Takes<VT::Button_activation_event&> reference;
    Takes<const VT::Button_activation_event&> constant;
    Screen screen;
    prepare(screen, value.button, reference.button, constant.button);
    screen.pool.route(value);
    screen.pool.route(reference);
    screen.pool.route(constant);
    for (const Control* button : {&value.button, &reference.button, &constant.button})
        release(screen.pool, *button);
    for (const std::vector<int>& heard : {value.heard, reference.heard, constant.heard})
        EXPECT_EQ(heard, std::vector<int>{7});
}

TEST(PoolEvents, AreReturnedAsTheComponentLeftThem)
{
    struct Changes
    {
        void handle_event(VT::Button_activation_event& event) { event.key_code = 99; }
        Control button;
    } component;
    Screen screen;
    prepare(screen, component.button);
    screen.pool.route(component);
    const Bytes message = frame(0x01, 0, w(component.button.get_id()), w(1), 7);
    const VT::Terminal_message event = screen.pool.receive(message.data(), message.size());
    ASSERT_TRUE(std::holds_alternative<VT::Button_activation_event>(event));
    EXPECT_EQ(std::get<VT::Button_activation_event>(event).key_code, 99);
}

TEST(PoolEvents, AreKeptFromAComponentThatHasNoOperationForThem)
{
    struct Two_kinds
    {
        void handle_event(const VT::Esc_event& event) { heard.push_back(event.error); }
        void handle_event(VT::Soft_key_activation_event event) { heard.push_back(event.key_code); }
        void handle_event(std::string text) { heard.push_back(static_cast<int>(text.size())); } // none of ours
        Control control;
        std::vector<int> heard;
    } component;
    Screen screen;
    prepare(screen, component.control);
    screen.pool.route(component);
    const Bytes id = w(component.control.get_id());
    for (const Bytes& message :
         {frame(0x00, 0, id, w(1), 1), frame(0x01, 0, id, w(1), 2), frame(0x05, id, 0xFF, d(3)),
          frame(0x08, id, 3, "abc"), frame(0x03, id, 1, 0), frame(0x04, id, 4), frame(0xC7, 1, 1, 1, w(9), w(9))})
        say(screen.pool, message);
    EXPECT_EQ(component.heard, (std::vector<int>{1, 4}));
}

TEST(PoolEvents, AreNotMadeOfOtherMessages)
{
    Button_listener component;
    Screen screen;
    prepare(screen, component.button);
    screen.pool.route(component);
    const Bytes id = w(component.button.get_id());
    Bytes too_short = frame(0x01, 0, id, w(1), 7);
    too_short.pop_back();
    for (const Bytes& message : {too_short, Bytes(), Bytes{0x01}, frame(0x02, 0, id, w(1), 7), frame(0x77, id),
                                 frame(0x08, id, 5, "abcd"),      // a text of which a character is missing
                                 frame(0xFE, 0x26, id, id, 0, 0), // what the terminal shows
                                 frame(0xA1, id, 1, 0),           // answers
                                 frame(0xC0, 4, 0), frame(0x12, 0, id, id, 0), frame(0xFD, 0xA0)})
        say(screen.pool, message);
    EXPECT_EQ(component.take_heard(), Lines{});
}
