#ifndef TESTS_TERMINAL_TOUCH_FIXTURE_H
#define TESTS_TERMINAL_TOUCH_FIXTURE_H

#include "Session.h"

#include "tests/terminal/draw/Pool_builder.h"

#include <utility>

using Id = Pool_builder::Id;
using Messages = std::vector<Bytes>;

constexpr Id none = Pool_builder::none;
constexpr int latchable = 1, latched = 2, disabled = 16; ///< among the options of a button
constexpr Pool_builder::Field field{20, 10, none};

/// Adds objects, loads them behind a mask, and touches.
class Touch_fixture : public testing::Test
{
  protected:
    void load(const Pool_builder::Places& places, Id soft_keys = none)
    {
        mask = builder.mask(0, places, soft_keys);
        builder.working_set(mask);
        ASSERT_EQ(session.load(builder.bytes()), accepted);
        session.sent.clear();
    }

    /// What the application is told of a touch.
    Messages touch(int x, int y, std::size_t first_key = 0)
    {
        session.sent.clear();
        const bool done = session.terminal.touch({x, y}, first_key);
        EXPECT_EQ(done, !session.sent.empty());
        return session.sent;
    }

    Messages key(Id id) { return {message(0x00, 1, w(id), w(mask), 1), message(0x00, 0, w(id), w(mask), 1)}; }
    Messages button(Id id) { return {message(0x01, 1, w(id), w(mask), 1), message(0x01, 0, w(id), w(mask), 1)}; }
    /// The number that a touch opens, which is closed again so that further touches are taken.
    Id opened_by(int x, int y)
    {
        const Messages told = touch(x, y);
        const Id id = session.terminal.open_number();
        EXPECT_EQ(told, Messages{message(0x03, w(id), 1, 1)});
        session.terminal.cancel();
        return id;
    }

    Id add_button(int width = 20, int height = 10, int options = 0)
    {
        return builder.button(width, height, 1, 2, options);
    }
    Id add_number(bool enabled = true)
    {
        Pool_builder::Number number;
        number.enabled = enabled;
        return builder.input_number(field, number);
    }

    const Messages nothing;
    Pool_builder builder;
    Session session;
    Id mask = none;
};

#endif
