#ifndef TESTS_POOL_LISTENER_H
#define TESTS_POOL_LISTENER_H

#include "pool/Terminal_message.h"
#include "tests/pool/Fake_terminal.h"
#include "tests/pool/Screen.h"
#include "units/Units_man.h"
#include "vt/VT_obj.h"

#include <cstdint>
#include <functional>
#include <gtest/gtest.h>
#include <string>
#include <utility>
#include <vector>

/// An object of any type, with an empty record.
class Control final : public VT::VT_obj
{
  public:
    explicit Control(Iso::Object_type type = Iso::Object_type::button) : VT_obj(NULL_ID, nullptr, type) {}
    void visit(VT::Attribute_visitor&) override {}
};

/// A component that writes down all it hears: "button 0 17 1 33" for an event with those fields in the order of its
/// message.
class Listener
{
  public:
    using Lines = std::vector<std::string>;

    void handle_event(const VT::Soft_key_activation_event& e) { hear_activation("key", e); }
    void handle_event(const VT::Button_activation_event& e) { hear_activation("button", e); }
    void handle_event(const VT::VT_change_numeric_value_event& e) { hear("number", {e.object_id, e.value}); }
    void handle_event(const VT::VT_change_string_value_event& e) { hear("text '" + e.value + "'", {e.object_id}); }
    void handle_event(const VT::Select_input_object_event& e)
    {
        hear("select", {e.object_id, e.selected, e.open_for_input});
    }
    void handle_event(const VT::Esc_event& e) { hear("esc", {e.object_id, e.error}); }
    void handle_event(const VT::VT_information& e)
    {
        hear("terminal", {e.boot_time, e.code, e.options, e.mask_width, e.mask_height});
    }
    void handle_event(const Units_man&) { hear("units", {}); }

    /// What was heard since the last call.
    Lines take_heard() { return std::exchange(heard, {}); }

  private:
    void hear(std::string line, const std::vector<std::int64_t>& fields)
    {
        for (const std::int64_t field : fields)
            line += ' ' + std::to_string(field);
        heard.push_back(line);
    }

    template <class Event>
    void hear_activation(const char* what, const Event& e)
    {
        hear(what, {static_cast<std::uint8_t>(e.activation_code), e.object_id, e.mask_id, e.key_code});
    }

    Lines heard;
};

/// A listener with one control inside.
struct Button_listener : Listener
{
    Control button;
};

/// A component that does something while it hears of an event.
struct Busy : Button_listener
{
    using Button_listener::handle_event;
    void handle_event(const VT::Button_activation_event& event)
    {
        Listener::handle_event(event);
        act();
    }
    void handle_event(const VT::VT_information& terminal)
    {
        Listener::handle_event(terminal);
        act();
    }
    void handle_event(const Units_man& units)
    {
        Listener::handle_event(units);
        act();
    }

    std::function<void()> act = [] {};
};

/// A live pool with the buttons of three components: 2, 3 and 4.
struct Live_listeners : Screen
{
    Live_listeners()
    {
        for (Busy* component : {&first, &second, &third})
            pool.add(component->button);
        EXPECT_TRUE(pool.load(terminal));
        terminal.take_sent();
    }

    void route_all()
    {
        for (Busy* component : {&first, &second, &third})
            pool.route(*component);
    }

    Busy first;
    Busy second;
    Busy third;
    Units_man units;
    Fake_terminal terminal;
};

/// The operator lets a button go. Keys and inputs will do: only the id decides.
inline void release(VT::Pool& pool, int id) { say(pool, frame(0x01, 0, w(id), w(1), 7)); }
inline void release(VT::Pool& pool, const VT::VT_obj& button) { release(pool, button.get_id()); }

/// What a listener writes down of that.
inline std::string released(int id) { return "button 0 " + std::to_string(id) + " 1 7"; }
inline std::string released(const VT::VT_obj& button) { return released(button.get_id()); }

template <class... Objects>
void prepare(Screen& screen, Objects&... objects)
{
    (screen.pool.add(objects), ...);
    const VT::Result result = screen.pool.prepare();
    ASSERT_TRUE(result) << result.text();
}

#endif
