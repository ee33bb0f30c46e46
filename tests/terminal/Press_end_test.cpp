#include "Touch_fixture.h"

#include <functional>
#include <utility>

namespace {

/// A button in two containers, the outer one behind a pointer, and a soft key behind a pointer; another mask with the
/// same button at the same place and the same soft keys; and other soft keys with the same key in the same cell.
class PressEnd : public Touch_fixture
{
  protected:
    void SetUp() override
    {
        button_id = add_button();
        cover = builder.container(20, 10, {{add_button()}}, 1);
        inner = builder.container(20, 10, {{button_id}});
        outer = builder.container(20, 10, {{inner}});
        pointer = builder.pointer(outer);
        check_box = builder.input_boolean(10, 0, none, 0);
        number = add_number();
        soft_key = builder.key(1, {});
        other_key = builder.key(1, {});
        key_pointer = builder.pointer(soft_key);
        keys = builder.soft_key_mask(0, {key_pointer, other_key});
        other_keys = builder.soft_key_mask(0, {key_pointer});
        const Pool_builder::Places places{{pointer}, {cover}, {check_box, 100, 0}, {number, 200, 0}};
        other_mask = builder.mask(0, places, keys);
        load(places, keys);
    }

    Id working_set() const { return session.terminal.working_set().id(); }

    /// What the application is told, beside the answer to its command.
    Messages upon(const Bytes& command)
    {
        session.sent.clear();
        session.terminal.receive(command.data(), command.size());
        EXPECT_FALSE(session.sent.empty());
        if (!session.sent.empty()) {
            EXPECT_EQ(session.sent[0][0], command[0]) << "the answer comes first";
            session.sent.erase(session.sent.begin());
        }
        return std::exchange(session.sent, {});
    }
    Messages uploaded(const Bytes& records)
    {
        const Bytes transfer = join(0x11, records);
        session.terminal.receive(transfer.data(), transfer.size());
        return upon(message(0x12));
    }
    bool press(int x, int y)
    {
        const bool done = session.terminal.press({x, y});
        session.sent.clear();
        return done;
    }
    bool press(Id id)
    {
        const bool done = session.terminal.press(id);
        session.sent.clear();
        return done;
    }

    Messages button_aborted() const { return {message(0x01, 3, w(button_id), w(mask), 1)}; }
    Messages key_aborted() const { return {message(0x00, 3, w(soft_key), w(mask), 1)}; }

    /// By finger and by keyboard: the command ends the press of the button, once, until it is undone.
    void expect_end(const Bytes& command, const Bytes& undo)
    {
        for (const bool by_finger : {true, false}) {
            ASSERT_TRUE(by_finger ? press(0, 0) : press(button_id));
            EXPECT_EQ(upon(command), button_aborted()) << by_finger;
            EXPECT_EQ(session.terminal.pressed(), none);
            EXPECT_FALSE(session.terminal.hold());
            EXPECT_EQ(upon(undo), nothing) << "it is not pressed again";
            EXPECT_FALSE(session.terminal.release());
            EXPECT_TRUE(session.sent.empty());
        }
    }

    Id button_id = none, cover = none, inner = none, outer = none, pointer = none, check_box = none, number = none,
       soft_key = none, other_key = none, key_pointer = none, keys = none, other_keys = none, other_mask = none;
};

} // namespace

TEST_F(PressEnd, ComesWhenTheButtonIsDisabled)
{
    expect_end(message(0xA1, w(button_id), 0), message(0xA1, w(button_id), 1));
    constexpr int options_attribute = 6;
    expect_end(message(0xAF, w(button_id), options_attribute, d(disabled)),
               message(0xAF, w(button_id), options_attribute, d(0)));
}

TEST_F(PressEnd, ComesWhenAContainerOfTheButtonIsHidden)
{
    expect_end(message(0xA0, w(inner), 0), message(0xA0, w(inner), 1));
    expect_end(message(0xA0, w(outer), 0), message(0xA0, w(outer), 1));
}

TEST_F(PressEnd, ComesWhenThePointerToTheButtonShowsSomethingElse)
{
    expect_end(message(0xA8, w(pointer), 0xFF, d(none)), message(0xA8, w(pointer), 0xFF, d(outer)));
    expect_end(message(0xA8, w(pointer), 0xFF, d(check_box)), message(0xA8, w(pointer), 0xFF, d(outer)));
}

TEST_F(PressEnd, ComesWhenTheButtonIsMovedOutOfItsContainerOrMadeInvisible)
{
    expect_end(message(0xB4, w(inner), w(button_id), w(20), w(0)), message(0xB4, w(inner), w(button_id), w(0), w(0)));
    expect_end(message(0xA6, w(inner), w(0), w(10)), message(0xA6, w(inner), w(20), w(10)));
}

TEST_F(PressEnd, ComesWhenTheButtonMovesAwayFromUnderTheFingerButNotFromTheKeyboard)
{
    const Bytes away = message(0xB4, w(inner), w(button_id), w(5), w(0));
    const Bytes back = message(0xB4, w(inner), w(button_id), w(0), w(0));
    ASSERT_TRUE(press(0, 0));
    EXPECT_EQ(upon(away), button_aborted());
    upon(back);
    ASSERT_TRUE(press(5, 0));
    EXPECT_EQ(upon(away), nothing) << "the finger is on it still";
    EXPECT_TRUE(session.terminal.release());
    upon(back);
    ASSERT_TRUE(press(button_id));
    EXPECT_EQ(upon(away), nothing);
    EXPECT_TRUE(session.terminal.release());
}

TEST_F(PressEnd, ComesWhenAnotherControlCoversTheButtonUnderTheFinger)
{
    ASSERT_TRUE(press(0, 0));
    EXPECT_EQ(upon(message(0xA0, w(cover), 1)), button_aborted());
    ASSERT_TRUE(press(button_id));
    EXPECT_EQ(upon(message(0xA0, w(cover), 0)), nothing);
    EXPECT_EQ(upon(message(0xA0, w(cover), 1)), nothing) << "the keyboard does not reach through it";
}

TEST_F(PressEnd, ComesWithAnotherMaskThatHasTheSameButtonAndNamesTheOldOne)
{
    expect_end(message(0xAD, w(working_set()), w(other_mask)), message(0xAD, w(working_set()), w(mask)));
}

TEST_F(PressEnd, OfASoftKeyComesWithAnotherMaskAndWithOtherSoftKeys)
{
    const std::pair<Bytes, Bytes> changes[] = {
        {message(0xAD, w(working_set()), w(other_mask)), message(0xAD, w(working_set()), w(mask))},
        {message(0xAE, 1, w(mask), w(other_keys)), message(0xAE, 1, w(mask), w(keys))},
        {message(0xAE, 1, w(mask), w(none)), message(0xAE, 1, w(mask), w(keys))},
        {message(0xA8, w(key_pointer), 0xFF, d(none)), message(0xA8, w(key_pointer), 0xFF, d(soft_key))}};
    for (const auto& [change, back] : changes) {
        for (const bool by_finger : {true, false}) {
            ASSERT_TRUE(by_finger ? press(480, 0) : press(soft_key));
            EXPECT_EQ(upon(change), key_aborted()) << by_finger;
            EXPECT_EQ(upon(back), nothing);
            EXPECT_FALSE(session.terminal.release());
        }
    }
}

TEST_F(PressEnd, OfASoftKeyComesWhenItsCellShowsAnotherKey)
{
    ASSERT_TRUE(press(480, 0));
    EXPECT_EQ(upon(message(0xA8, w(key_pointer), 0xFF, d(other_key))), key_aborted());
}

TEST_F(PressEnd, DoesNotComeToAButtonWithOtherSoftKeys)
{
    ASSERT_TRUE(press(0, 0));
    EXPECT_EQ(upon(message(0xAE, 1, w(mask), w(other_keys))), nothing);
    EXPECT_TRUE(session.terminal.release());
    EXPECT_EQ(session.sent, (Messages{message(0x01, 0, w(button_id), w(mask), 1)}));
}

TEST_F(PressEnd, DoesNotComeWithWhatIsOfNoConcern)
{
    const Bytes commands[] = {message(0xA1, w(check_box), 0), message(0xA7, w(button_id), 5),
                              message(0xA0, w(cover), 0), message(0xA8, w(check_box), 0xFF, d(1)),
                              message(0xAD, w(working_set()), w(mask))};
    for (const auto& [x, y] : {std::pair{0, 0}, {480, 0}}) {
        ASSERT_TRUE(press(x, y));
        for (const Bytes& command : commands)
            EXPECT_EQ(upon(command), nothing);
        EXPECT_EQ(uploaded(records::text(900, "new")), nothing);
        EXPECT_TRUE(session.terminal.hold());
        EXPECT_TRUE(session.terminal.release());
    }
}

TEST_F(PressEnd, ComesWhenThePoolOrTheButtonIsReplaced)
{
    ASSERT_TRUE(press(0, 0));
    EXPECT_EQ(uploaded(builder.bytes()), button_aborted());
    ASSERT_TRUE(press(0, 0));
    const Bytes other_button = records::record(button_id, Iso::Object_type::button, w(20), w(10), 0, 0, 99, 0, 0, 0);
    EXPECT_EQ(uploaded(other_button), button_aborted()) << "with the key code of before";
    ASSERT_TRUE(press(480, 0));
    EXPECT_EQ(uploaded(records::record(soft_key, Iso::Object_type::key, 0, 98, 0, 0)), key_aborted());
    ASSERT_TRUE(press(480, 0));
    EXPECT_EQ(uploaded(records::record(keys, Iso::Object_type::soft_key_mask, 0, 0, 0)),
              (Messages{message(0x00, 3, w(soft_key), w(mask), 98)}))
        << "there are no soft keys any longer";
}

TEST_F(PressEnd, DoesNotComeWithAnUploadThatIsRefused)
{
    ASSERT_TRUE(press(0, 0));
    EXPECT_EQ(uploaded(records::record(button_id, Iso::Object_type::button, w(20))), nothing);
    EXPECT_EQ(session.terminal.pressed(), button_id);
}

TEST_F(PressEnd, IsSilentWhenTheApplicationGoesAway)
{
    ASSERT_TRUE(press(0, 0));
    session.terminal.disconnect();
    EXPECT_EQ(session.terminal.pressed(), none);
    EXPECT_FALSE(session.terminal.hold());
    EXPECT_FALSE(session.terminal.move({100, 100}));
    EXPECT_FALSE(session.terminal.abort());
    EXPECT_FALSE(session.terminal.release());
    EXPECT_TRUE(session.sent.empty());

    ASSERT_EQ(session.load(builder.bytes()), accepted);
    ASSERT_TRUE(press(soft_key));
    EXPECT_TRUE(session.ask(message(0xFF, 1, 3)).empty()) << "it starts anew";
    EXPECT_EQ(session.terminal.pressed(), none);
}

TEST_F(PressEnd, OfAnInputIsSilent)
{
    const std::uint32_t before = session.terminal.pool().find(check_box).u32(terminal::Field::value);
    ASSERT_TRUE(press(100, 0));
    EXPECT_EQ(upon(message(0xA1, w(check_box), 0)), nothing);
    EXPECT_EQ(session.terminal.pressed(), none);
    upon(message(0xA1, w(check_box), 1));
    EXPECT_FALSE(session.terminal.release());
    EXPECT_EQ(session.terminal.pool().find(check_box).u32(terminal::Field::value), before);

    ASSERT_TRUE(press(number));
    EXPECT_EQ(upon(message(0xAD, w(working_set()), w(other_mask))), nothing);
    EXPECT_FALSE(session.terminal.release());
    EXPECT_EQ(session.terminal.open_number(), none);
}

TEST_F(PressEnd, ChangesTheRevision)
{
    ASSERT_TRUE(press(0, 0));
    const std::uint32_t before = session.terminal.revision();
    session.terminal.disconnect();
    EXPECT_EQ(session.terminal.revision(), before + 2) << "of the pool, and of the press";
}

/// An application that acts at once, within the message that it is told.
class QuickApplication : public PressEnd
{
  protected:
    /// What a press and its release tell, if the application answers the first message of that activation code with
    /// `act`.
    Messages told(int code, std::function<void(terminal::Terminal&)> act)
    {
        Messages sent;
        terminal::Terminal* self = nullptr;
        terminal::Terminal quick({}, [&](const std::uint8_t* bytes, std::size_t count) {
            sent.emplace_back(bytes, bytes + count);
            if (bytes[0] == 0x01 && bytes[1] == code)
                std::exchange(act, [](terminal::Terminal&) {})(*self);
        });
        self = &quick;
        receive(quick, join(0x11, builder.bytes()));
        receive(quick, message(0x12));
        sent.clear();
        EXPECT_TRUE(quick.press({0, 0}));
        quick.hold();
        quick.release();
        EXPECT_EQ(quick.pressed(), none);
        EXPECT_FALSE(quick.abort());
        return sent;
    }
    static void receive(terminal::Terminal& quick, const Bytes& bytes) { quick.receive(bytes.data(), bytes.size()); }

    Bytes button_says(int code) const { return message(0x01, code, w(button_id), w(mask), 1); }
};

TEST_F(QuickApplication, IsToldNoMoreWhenItGoesAwayUponThePress)
{
    EXPECT_EQ(told(1, [](auto& quick) { quick.disconnect(); }), Messages{button_says(1)});
    EXPECT_EQ(told(2, [](auto& quick) { quick.disconnect(); }), (Messages{button_says(1), button_says(2)}));
    EXPECT_EQ(told(0, [](auto& quick) { quick.disconnect(); }),
              (Messages{button_says(1), button_says(2), button_says(0)}));
}

TEST_F(QuickApplication, IsToldOfTheEndOnceThatItCausesUponThePress)
{
    const auto change_mask = [&](auto& quick) { receive(quick, message(0xAD, w(working_set()), w(other_mask))); };
    const Bytes changed = message(0xAD, w(other_mask), 0);
    EXPECT_EQ(told(1, change_mask), (Messages{button_says(1), changed, button_says(3)}));
    EXPECT_EQ(told(2, change_mask), (Messages{button_says(1), button_says(2), changed, button_says(3)}));
    EXPECT_EQ(told(0, change_mask), (Messages{button_says(1), button_says(2), button_says(0), changed}));
    const auto disable = [&](auto& quick) { receive(quick, message(0xA1, w(button_id), 0)); };
    EXPECT_EQ(told(1, disable), (Messages{button_says(1), message(0xA1, w(button_id), 0, 0), button_says(3)}));
}

TEST_F(QuickApplication, MayGoAwayUponTheAbort)
{
    const auto disable = [&](auto& quick) { receive(quick, message(0xA1, w(button_id), 0)); };
    Messages sent;
    terminal::Terminal* self = nullptr;
    terminal::Terminal quick({}, [&](const std::uint8_t* bytes, std::size_t count) {
        sent.emplace_back(bytes, bytes + count);
        if (bytes[0] == 0x01 && bytes[1] == 3)
            self->disconnect();
    });
    self = &quick;
    receive(quick, join(0x11, builder.bytes()));
    receive(quick, message(0x12));
    ASSERT_TRUE(quick.press({0, 0}));
    sent.clear();
    disable(quick);
    EXPECT_EQ(sent, (Messages{message(0xA1, w(button_id), 0, 0), button_says(3)}));
    EXPECT_TRUE(quick.pool().empty());
}
