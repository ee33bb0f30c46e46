#include "Touch_fixture.h"

#include "terminal/Touch.h"

#include <chrono>

namespace {

using terminal::Target;

/// What usable_targets() lists, as numbers: id, left, top, right, bottom.
class Targets : public Touch_fixture
{
  protected:
    using List = std::vector<std::vector<int>>;

    List list(std::size_t first_key = 0) const
    {
        List result;
        for (const Target& target : terminal::usable_targets(session.terminal, first_key))
            result.push_back(
                {target.object.id(), target.area.left, target.area.top, target.area.right, target.area.bottom});
        return result;
    }
};

TEST_F(Targets, AreNoneWithoutAPool) { EXPECT_EQ(list(), List()); }

TEST_F(Targets, AreTheControlsInTheOrderOfDrawingAndThenTheSoftKeys)
{
    const Id key = builder.key(1, {});
    const Id other = builder.key(1, {});
    const Id first = add_button(20, 10);
    const Id number = add_number();
    const Id check_box = builder.input_boolean(12, 0, none, 0);
    const Id inner = add_button(5, 5, latchable);
    const Id box = builder.container(50, 50, {{inner, 1, 2}});
    const Id keys = builder.soft_key_mask(0, {key, builder.pointer(none), builder.pointer(other), key});
    load({{number, 30, 40}, {builder.pointer(box), 100, 200}, {check_box, 7, 8}, {first, 0, 0}}, keys);
    const List controls{
        {number, 30, 40, 50, 50}, {inner, 101, 202, 106, 207}, {check_box, 7, 8, 19, 20}, {first, 0, 0, 20, 10}};
    List all = controls;
    all.push_back({key, 480, 0, 540, 60});
    all.push_back({other, 480, 120, 540, 180});
    EXPECT_EQ(list(), all);
    all = controls;
    all.push_back({other, 480, 60, 540, 120});
    all.push_back({key, 480, 120, 540, 180});
    EXPECT_EQ(list(1), all);
    EXPECT_EQ(list(4), controls);
    EXPECT_EQ(list(~std::size_t{0}), controls);
}

TEST_F(Targets, AreCutByAllTheyLieInAndLeftOutWhereNothingIsLeft)
{
    const Id wide = add_button(1000, 1000);
    const Id outside = add_button(20, 10);
    const Id flat = add_button(0, 10);
    const Id corner = add_number();
    const Id inner = builder.container(30, 100, {{wide, -5, -5}, {outside, 30, 0}, {outside, 0, -10}, {flat, 1, 1}});
    const Id outer = builder.container(100, 20, {{inner, 80, 5}});
    load({{outer, 300, 100}, {outside, 480, 0}, {outside, -20, 0}, {outside, 0, 480}, {corner, 470, 475}});
    EXPECT_EQ(list(), (List{{wide, 380, 105, 400, 120}, {corner, 470, 475, 480, 480}}));
}

TEST_F(Targets, AreWithoutWhatIsHiddenOrDisabledOrNotOffered)
{
    const Id button_id = add_button();
    const Id number = add_number(false);
    const Id box = builder.container(20, 10, {{button_id}}, 1);
    load({{box},
          {number, 0, 20},
          {builder.input_string(field, "text"), 0, 40},
          {builder.input_list(20, 10, 0, {}), 0, 60},
          {builder.rectangle(20, 10, none), 0, 80}});
    EXPECT_EQ(list(), List());
    session.ask(message(0xA0, w(box), 1));
    EXPECT_EQ(list(), (List{{button_id, 0, 0, 20, 10}}));
    session.ask(message(0xA1, w(button_id), 0));
    session.ask(message(0xA1, w(number), 1));
    EXPECT_EQ(list(), (List{{number, 0, 20, 20, 30}}));
}

TEST_F(Targets, AreListedOnceWithTheFirstPlaceThatIsSeen)
{
    const Id id = add_button();
    load({{id, 1000, 0}, {id, 100, 7}, {id, 0, 0}});
    EXPECT_EQ(list(), (List{{id, 100, 7, 120, 17}}));
}

TEST_F(Targets, AreWithoutTheKeysOfCellsThatHaveNoPixels)
{
    terminal::Hardware flat;
    flat.soft_key_height = 0;
    Session other(flat);
    load({}, builder.soft_key_mask(0, {builder.key(1, {})}));
    ASSERT_EQ(other.load(builder.bytes()), accepted);
    EXPECT_TRUE(terminal::usable_targets(other.terminal).empty());
    EXPECT_EQ(list().size(), 1u);
}

TEST_F(Targets, CanAllBePressedByTheKeyboardWhenTheyAreListedAndNotWhenTheyAreHidden)
{
    const Id key = builder.key(1, {});
    const Id far_key = builder.key(1, {});
    const Id loose_key = builder.key(1, {});
    const Id button_id = add_button();
    const Id number = add_number();
    const Id box = builder.container(20, 30, {{button_id}, {number, 0, 10}});
    const Id keys = builder.soft_key_mask(0, {key, key, key, key, key, key, key, key, builder.pointer(far_key)});
    load({{box}}, keys);
    ASSERT_EQ(list().size(), 3u);
    const auto pressed = [&](Id id) { return session.terminal.press(id) && session.terminal.abort(); };
    for (const auto& target : list())
        EXPECT_TRUE(pressed(static_cast<Id>(target[0]))) << target[0];
    EXPECT_TRUE(pressed(far_key)) << "it has no cell now, but is in the soft key mask";
    EXPECT_FALSE(pressed(loose_key));
    session.ask(message(0xA0, w(box), 0));
    EXPECT_FALSE(pressed(button_id));
    EXPECT_FALSE(pressed(number));
    EXPECT_TRUE(pressed(key));
}

TEST_F(Targets, AreSoonFoundInAPoolOfAMillionObjects)
{
    const Id id = add_button(480, 480);
    const Id hundred = builder.container(480, 480, Pool_builder::Places(100, {id}));
    const Id ten_thousand = builder.container(480, 480, Pool_builder::Places(100, {hundred}));
    load(Pool_builder::Places(98, {ten_thousand}));
    const auto start = std::chrono::steady_clock::now();
    EXPECT_EQ(list(), (List{{id, 0, 0, 480, 480}}));
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(2));
}

} // namespace
