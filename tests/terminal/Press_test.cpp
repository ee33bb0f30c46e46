#include "Touch_fixture.h"

namespace {

/// A soft key, a button, a check box and an input number, each by finger and by keyboard.
class Press : public Touch_fixture
{
  protected:
    void SetUp() override
    {
        soft_key = builder.key(1, {});
        other_key = builder.key(2, {});
        button_id = add_button();
        lamp = add_button(20, 10, latchable);
        check_box = builder.input_boolean(10, 0, none, 0);
        number = add_number();
        string = builder.input_string(field, "text");
        broken = add_button(20, 10, disabled);
        const Id keys = builder.soft_key_mask(0, {soft_key, builder.pointer(other_key), builder.pointer(none)});
        load({{button_id, 0, 0},
              {lamp, 100, 0},
              {check_box, 200, 0},
              {number, 300, 0},
              {string, 0, 50},
              {broken, 100, 50}},
             keys);
    }

    Messages told_by(bool expected, bool done)
    {
        EXPECT_EQ(done, expected);
        return std::exchange(session.sent, {});
    }
    Messages press(int x, int y, bool done = true) { return told_by(done, session.terminal.press({x, y})); }
    Messages press(Id id, bool done = true) { return told_by(done, session.terminal.press(id)); }
    Messages hold(bool done = true) { return told_by(done, session.terminal.hold()); }
    Messages release(bool done = true) { return told_by(done, session.terminal.release()); }
    Messages move(int x, int y, bool done) { return told_by(done, session.terminal.move({x, y})); }
    Messages abort(bool done = true) { return told_by(done, session.terminal.abort()); }

    Bytes key_says(int code, Id id) const { return message(0x00, code, w(id), w(mask), 1); }
    Bytes button_says(int code) const { return message(0x01, code, w(button_id), w(mask), 1); }
    std::uint32_t value(Id id) const { return session.terminal.pool().find(id).u32(terminal::Field::value); }
    int options(Id id) const { return session.terminal.pool().find(id).u8(terminal::Field::options); }

    Id soft_key = none, other_key = none, button_id = none, lamp = none, check_box = none, number = none, string = none,
       broken = none;
};

} // namespace

TEST_F(Press, OfASoftKeyIsPressedHeldAndReleased)
{
    EXPECT_EQ(press(480, 0), Messages{key_says(1, soft_key)});
    EXPECT_EQ(session.terminal.pressed(), soft_key);
    EXPECT_EQ(hold(), Messages{key_says(2, soft_key)});
    EXPECT_EQ(hold(), Messages{key_says(2, soft_key)});
    EXPECT_EQ(release(), Messages{key_says(0, soft_key)});
    EXPECT_EQ(session.terminal.pressed(), none);
    EXPECT_EQ(hold(false), nothing);
    EXPECT_EQ(release(false), nothing);
    EXPECT_EQ(abort(false), nothing);
}

TEST_F(Press, OfAButtonIsPressedHeldAndReleased)
{
    EXPECT_EQ(press(0, 0), Messages{button_says(1)});
    EXPECT_EQ(session.terminal.pressed(), button_id);
    EXPECT_EQ(hold(), Messages{button_says(2)});
    EXPECT_EQ(release(), Messages{button_says(0)});
    EXPECT_EQ(release(false), nothing);
}

TEST_F(Press, MayMoveOnWhatItPressed)
{
    EXPECT_EQ(press(0, 0), Messages{button_says(1)});
    EXPECT_EQ(move(19, 9, false), nothing);
    EXPECT_EQ(release(), Messages{button_says(0)});
    EXPECT_EQ(press(480, 0), Messages{key_says(1, soft_key)});
    EXPECT_EQ(move(539, 59, false), nothing);
    EXPECT_EQ(release(), Messages{key_says(0, soft_key)});
    EXPECT_EQ(move(0, 0, false), nothing) << "nothing is pressed";
}

TEST_F(Press, IsAbortedWhereTheFingerLeavesTheButton)
{
    for (const auto& [x, y] : {std::pair{20, 0}, {0, 10}, {-1, 0}, {0, -1}, {480, 0}, {1 << 30, 1 << 30}}) {
        EXPECT_EQ(press(0, 0), Messages{button_says(1)});
        EXPECT_EQ(move(x, y, true), Messages{button_says(3)}) << x << " " << y;
        EXPECT_EQ(move(0, 0, false), nothing) << "to come back does not press again";
        EXPECT_EQ(hold(false), nothing);
        EXPECT_EQ(release(false), nothing);
    }
}

TEST_F(Press, IsAbortedWhereTheFingerLeavesTheCellOfASoftKey)
{
    for (const auto& [x, y] : {std::pair{479, 0}, {540, 0}, {480, 60}, {480, 130}, {480, -1}}) {
        EXPECT_EQ(press(480, 0), Messages{key_says(1, soft_key)});
        EXPECT_EQ(move(x, y, true), Messages{key_says(3, soft_key)}) << x << " " << y;
        EXPECT_EQ(release(false), nothing);
    }
}

TEST_F(Press, IsAbortedByTheKeyboardOrThePointersEnd)
{
    press(0, 0);
    EXPECT_EQ(abort(), Messages{button_says(3)});
    EXPECT_EQ(release(false), nothing);
    press(480, 0);
    hold();
    EXPECT_EQ(abort(), Messages{key_says(3, soft_key)});
    EXPECT_EQ(abort(false), nothing);
}

TEST_F(Press, IsOneAtATime)
{
    press(0, 0);
    EXPECT_EQ(press(480, 0, false), nothing);
    EXPECT_EQ(press(0, 0, false), nothing);
    EXPECT_EQ(press(lamp, false), nothing);
    EXPECT_EQ(options(lamp), latchable);
    EXPECT_EQ(touch(105, 5), nothing);
    EXPECT_EQ(session.terminal.pressed(), button_id);
    EXPECT_EQ(release(), Messages{button_says(0)});
}

TEST_F(Press, DoesNothingWhereThereIsNothingToUse)
{
    for (const auto& [x, y] : {std::pair{50, 50}, {5, 55}, {105, 55}, {480, 130}, {480, 200}, {-1, -1}})
        EXPECT_EQ(press(x, y, false), nothing) << x << " " << y;
    for (const Id id : {string, broken, mask, none, Id{1000}})
        EXPECT_EQ(press(id, false), nothing) << id;
    EXPECT_EQ(session.terminal.pressed(), none);
}

TEST_F(Press, DoesNothingWhileANumberIsOpen)
{
    EXPECT_EQ(opened_by(300, 0), number);
    ASSERT_TRUE(session.terminal.select_input(number, true, true));
    session.sent.clear();
    EXPECT_EQ(press(0, 0, false), nothing);
    EXPECT_EQ(press(soft_key, false), nothing);
    EXPECT_EQ(press(lamp, false), nothing);
}

TEST_F(Press, LatchesALatchableButtonAtOnceAndSaysNoMore)
{
    const auto lamp_says = [&](int code) { return Messages{message(0x01, code, w(lamp), w(mask), 1)}; };
    EXPECT_EQ(press(100, 0), lamp_says(1));
    EXPECT_EQ(options(lamp), latchable | latched);
    EXPECT_EQ(session.terminal.pressed(), none);
    EXPECT_EQ(hold(false), nothing);
    EXPECT_EQ(move(0, 400, false), nothing);
    EXPECT_EQ(release(false), nothing);
    EXPECT_EQ(abort(false), nothing);
    EXPECT_EQ(options(lamp), latchable | latched);
    EXPECT_EQ(press(lamp), lamp_says(0)) << "by the keyboard";
    EXPECT_EQ(options(lamp), latchable);
    EXPECT_EQ(release(false), nothing);
}

TEST_F(Press, ChangesACheckBoxOverOnReleaseOnly)
{
    EXPECT_EQ(press(200, 0), nothing);
    EXPECT_EQ(session.terminal.pressed(), check_box);
    EXPECT_EQ(hold(false), nothing);
    EXPECT_EQ(move(209, 9, false), nothing);
    EXPECT_EQ(value(check_box), 0u);
    EXPECT_EQ(release(), (Messages{message(0x05, w(check_box), 0xFF, d(1))}));
    EXPECT_EQ(value(check_box), 1u);
    press(check_box);
    EXPECT_EQ(release(), (Messages{message(0x05, w(check_box), 0xFF, d(0))}));
}

TEST_F(Press, OpensANumberOnReleaseOnly)
{
    EXPECT_EQ(press(300, 0), nothing);
    EXPECT_EQ(session.terminal.pressed(), number);
    EXPECT_EQ(hold(false), nothing);
    EXPECT_EQ(session.terminal.open_number(), none);
    EXPECT_EQ(release(), (Messages{message(0x03, w(number), 1, 1)}));
    EXPECT_EQ(session.terminal.open_number(), number);
    session.terminal.cancel();
    session.sent.clear();
    EXPECT_EQ(press(number), nothing);
    EXPECT_EQ(release(), (Messages{message(0x03, w(number), 1, 1)}));
}

TEST_F(Press, OfAnInputIsTakenBackByASlip)
{
    press(200, 0);
    EXPECT_EQ(move(210, 0, true), nothing);
    EXPECT_EQ(move(200, 0, false), nothing);
    EXPECT_EQ(release(false), nothing);
    EXPECT_EQ(value(check_box), 0u);
    press(300, 0);
    EXPECT_EQ(move(0, 0, true), nothing) << "it does not go over to the button";
    EXPECT_EQ(release(false), nothing);
    EXPECT_EQ(session.terminal.open_number(), none);
    press(number);
    EXPECT_EQ(abort(), nothing);
    EXPECT_EQ(release(false), nothing);
    EXPECT_EQ(session.terminal.open_number(), none);
}

TEST_F(Press, ByTheKeyboardIsLikeThatOfAFingerAndDoesNotMove)
{
    EXPECT_EQ(press(soft_key), Messages{key_says(1, soft_key)});
    EXPECT_EQ(move(0, 0, false), nothing);
    EXPECT_EQ(hold(), Messages{key_says(2, soft_key)});
    EXPECT_EQ(release(), Messages{key_says(0, soft_key)});
    EXPECT_EQ(press(other_key), Messages{key_says(1, other_key)}) << "behind a pointer";
    EXPECT_EQ(abort(), Messages{key_says(3, other_key)});
    EXPECT_EQ(press(button_id), Messages{button_says(1)});
    EXPECT_EQ(move(100, 100, false), nothing);
    EXPECT_EQ(release(), Messages{button_says(0)});
}

TEST_F(Press, ChangesTheRevisionWhenItBeginsAndWhenItEnds)
{
    std::uint32_t before = session.terminal.revision();
    const auto changed = [&] { return std::exchange(before, session.terminal.revision()) != before; };
    const auto check = [&](auto end) {
        press(0, 0);
        EXPECT_TRUE(changed());
        hold();
        move(1, 1, false);
        press(480, 0, false);
        EXPECT_FALSE(changed());
        end();
        EXPECT_TRUE(changed());
        release(false);
        EXPECT_FALSE(changed());
    };
    check([&] { release(); });
    check([&] { abort(); });
    check([&] { move(100, 100, true); });
}

TEST_F(Press, OfATouchIsReleasedAtOnce)
{
    EXPECT_EQ(touch(0, 0), (Messages{button_says(1), button_says(0)}));
    EXPECT_EQ(session.terminal.pressed(), none);
    EXPECT_EQ(touch(50, 50), nothing);
}

TEST_F(Press, KeepsToTheKeysThatTheCellsBeganWith)
{
    ASSERT_TRUE(session.terminal.press({480, 0}, 1));
    EXPECT_EQ(session.terminal.pressed(), other_key);
    EXPECT_EQ(told_by(true, true), Messages{key_says(1, other_key)});
    EXPECT_EQ(move(500, 30, false), nothing);
    EXPECT_EQ(move(500, 70, true), Messages{key_says(3, other_key)});
}
