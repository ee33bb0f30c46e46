#include "tests/comp/Custom_select.h"

#include <algorithm>
#include <array>

using namespace custom_select;

namespace {

using CustomSelectSelection = Custom_select;

TEST_F(CustomSelectSelection, SelectsTheButtonThatIsReleased)
{
    go_live();
    release(7);
    expect_selected(7);
    EXPECT_TRUE(list.was_last_button());
    Messages expected = looks(7);
    const auto seventh = expected.begin() + 7;
    std::rotate(expected.begin(), seventh, seventh + 1); // it goes first
    EXPECT_EQ(pool.news(), expected);
    EXPECT_TRUE(pool.uploaded.empty());
    EXPECT_TRUE(pool.reported.empty());
}

TEST_F(CustomSelectSelection, SelectsFromTheFirstButtonToTheLast)
{
    go_live();
    for (const std::size_t i : {49U, 0U, 0U, 25U}) {
        release(i);
        expect_selected(i);
        EXPECT_TRUE(list.was_last_button());
        const Messages news = pool.news();
        ASSERT_EQ(news.size(), buttons);
        EXPECT_EQ(news.front(), look(i, true));
    }
}

TEST_F(CustomSelectSelection, HearsOfOtherButtonsOnlyThatTheyWereTheLast)
{
    go_live();
    release(7);
    pool.news();
    for (const Iso::Object_id id : {container_id, separator_id, root_id(3), pointer_id(3), background_id,
                                    Iso::Object_id{0x3001}, VT::VT_obj::NULL_ID}) {
        list.last_was_ours = true;
        activate(Activation::released, id);
        EXPECT_FALSE(list.was_last_button()) << id;
    }
    expect_selected(7);
    EXPECT_TRUE(pool.news().empty());
}

TEST_F(CustomSelectSelection, IgnoresAllButAReleaseAltogether)
{
    go_live();
    release(7);
    pool.news();
    for (const bool ours : {true, false}) {
        list.last_was_ours = ours;
        for (const Activation code :
             {Activation::pressed, Activation::held, Activation::aborted, Activation{4}, Activation{255}}) {
            activate(code, button_id(3));
            activate(code, 0x3001);
            EXPECT_EQ(list.was_last_button(), ours) << "as it was";
        }
    }
    expect_selected(7);
    EXPECT_TRUE(pool.news().empty());
}

TEST_F(CustomSelectSelection, KeepsWhoseTheLastButtonWasWhenTheApplicationSelects)
{
    go_live();
    release(7);
    for (const bool ours : {true, false}) {
        list.last_was_ours = ours;
        list.set_selected(7);
        EXPECT_EQ(list.was_last_button(), ours) << "selected already";
        list.set_selected(3);
        EXPECT_EQ(list.was_last_button(), ours);
        list.select_up();
        EXPECT_EQ(list.was_last_button(), ours);
        list.select_down();
        EXPECT_EQ(list.was_last_button(), ours);
        list.set_size(200, ours ? 30 : 31);
        EXPECT_EQ(list.was_last_button(), ours);
    }
}

TEST_F(CustomSelectSelection, SelectsAHiddenButtonThatIsReleased)
{
    go_live();
    list.items[7].set_hidden(true);
    release(7);
    expect_selected(7);
}

TEST_F(CustomSelectSelection, WithoutIdsTakesTheNullIdForEveryButton)
{
    activate(Activation::released, VT::VT_obj::NULL_ID);
    EXPECT_EQ(list.get_selected_item(), 49) << "the last that matches";
    for (const Toggle_button_widget& item : list.items)
        EXPECT_TRUE(item.is_on());
}

TEST_F(CustomSelectSelection, RecordsWhatIsSelectedBeforeThePoolIsLive)
{
    list.set_selected(4);
    expect_selected(4);
    number(pool);
    release(7);
    expect_selected(7);
    list.select_down();
    expect_selected(8);
    EXPECT_TRUE(pool.news().empty());
    EXPECT_EQ(list.items[8].state_pointer.value, raised_id);
    EXPECT_EQ(list.items[7].state_pointer.value, background_id);
}

TEST_F(CustomSelectSelection, OnlySwitchesOnWhatIsSelectedAlready)
{
    go_live();
    list.items[3].set_on(true);
    pool.news();
    list.set_selected(0);
    EXPECT_EQ(pool.news(), (Messages{look(0, true)}));
    EXPECT_TRUE(list.items[0].is_on());
    EXPECT_TRUE(list.items[3].is_on()) << "left as it was";
    EXPECT_EQ(list.get_selected_item(), 0);
}

TEST_F(CustomSelectSelection, SwitchesEveryButtonForAnotherSelection)
{
    go_live();
    list.items[3].set_on(true);
    pool.news();
    for (const std::uint8_t i : std::array<std::uint8_t, 4>{49, 1, 0, 20}) {
        list.set_selected(i);
        expect_selected(i);
        EXPECT_EQ(pool.news(), looks(i)) << "from the first to the last";
    }
    EXPECT_TRUE(pool.uploaded.empty());
    EXPECT_FALSE(list.was_last_button());
}

TEST_F(CustomSelectSelection, SwitchesAllOffForAnIndexBeyondTheLast)
{
    go_live();
    for (const std::uint8_t index : std::array<std::uint8_t, 3>{50, 51, 255}) {
        list.set_selected(20);
        pool.news();
        list.set_selected(index);
        EXPECT_EQ(pool.news(), looks(none));
        expect_on(none);
        EXPECT_EQ(list.get_selected_item(), 20) << "still";
    }
    list.set_selected(20);
    EXPECT_EQ(pool.news(), (Messages{look(20, true)})) << "it is the selected one all along";
}

TEST_F(CustomSelectSelection, MovesTheSelectionUp)
{
    go_live();
    list.set_selected(2);
    pool.news();
    list.select_up();
    expect_selected(1);
    EXPECT_EQ(pool.news(), looks(1));
    list.select_up();
    expect_selected(0);
    EXPECT_EQ(pool.news(), looks(0));
    list.select_up();
    expect_selected(0);
    EXPECT_TRUE(pool.news().empty()) << "at the top";
}

TEST_F(CustomSelectSelection, MovesTheSelectionDown)
{
    go_live();
    list.select_down();
    expect_selected(1);
    EXPECT_EQ(pool.news(), looks(1));
    list.set_selected(48);
    pool.news();
    list.select_down();
    expect_selected(49);
    EXPECT_EQ(pool.news(), looks(49));
    list.select_down();
    expect_selected(49);
    EXPECT_TRUE(pool.news().empty()) << "at the bottom";
}

TEST_F(CustomSelectSelection, StopsAboveTheFirstHiddenButton)
{
    go_live();
    list.set_selected(4);
    for (std::size_t i = 5; i < buttons; ++i)
        list.items[i].set_hidden(true);
    pool.news();
    list.select_down();
    expect_selected(4);
    EXPECT_TRUE(pool.news().empty());
    list.items[6].set_hidden(false);
    list.select_down();
    expect_selected(4);
    list.items[5].set_hidden(false);
    list.select_down();
    expect_selected(5);
}

TEST_F(CustomSelectSelection, MovesDownFromAHiddenButtonAsFromAnyOther)
{
    list.set_selected(4);
    list.items[4].set_hidden(true);
    list.items[5].set_hidden(true);
    list.select_down();
    expect_selected(4);
    list.items[5].set_hidden(false);
    list.select_down();
    expect_selected(5);
}

TEST_F(CustomSelectSelection, MovesUpOntoAHiddenButton)
{
    list.set_selected(4);
    list.items[3].set_hidden(true);
    list.select_up();
    expect_selected(3);
}

using CustomSelectFiller = Custom_select;

TEST_F(CustomSelectFiller, FillsOneButtonAfterTheOther)
{
    resize(content, {20, 10});
    list.set_size(200, 31);
    Select::Filler filler(list.items);
    EXPECT_EQ(filler.index, 0U);
    EXPECT_EQ(filler.items, &list.items);
    EXPECT_EQ(filler.size, Dimension(200, 31));
    EXPECT_TRUE(filler.add(content));
    EXPECT_TRUE(filler.add(style.number_strings[0]));
    EXPECT_EQ(filler.index, 2U);
    expect_child(list.items[0].placements, 2, content, {90, 10});
    expect_child(list.items[1].placements, 2, style.number_strings[0], {100, 15});
    expect_child(list.items[2].placements, 2, style.null_pointer, {0, 0});
    expect_child(list.items[0].placements, 1, list.items[0].state_pointer, {0, 0});
}

TEST_F(CustomSelectFiller, HidesTheButtonsThatAreNotFilled)
{
    Select::Filler first(list.items);
    first.add(content);
    first.add(content);
    first.hide_rest();
    EXPECT_EQ(first.index, buttons);
    for (std::size_t i = 0; i < buttons; ++i)
        EXPECT_EQ(list.items[i].is_hidden(), i >= 2) << "button " << i;

    Select::Filler second(list.items);
    for (std::size_t i = 0; i < 3; ++i)
        second.add(content);
    second.hide_rest();
    for (std::size_t i = 0; i < buttons; ++i)
        EXPECT_EQ(list.items[i].is_hidden(), i >= 3) << "button " << i;
}

TEST_F(CustomSelectFiller, FillsNoMoreButtonsThanItHas)
{
    Select::Filler filler(list.items);
    for (std::size_t i = 0; i < buttons; ++i)
        EXPECT_TRUE(filler.add(content)) << i;
    EXPECT_FALSE(filler.add(style.rect_red));
    EXPECT_EQ(list.items[49].get_content().ref, &content);
    filler.hide_rest();
    EXPECT_FALSE(list.items[49].is_hidden());
}

TEST_F(CustomSelectFiller, TellsOfAFillingWhatHasChanged)
{
    go_live();
    for (std::size_t i = 1; i < buttons - 1; ++i)
        list.items[i].set_hidden(true);
    pool.news();
    Select::Filler filler(list.items);
    filler.add(content);
    filler.add(content);
    EXPECT_EQ(pool.news(), (Messages{transfer(root_id(0)), transfer(root_id(1)), hide_show(root_id(1), true)}));
    filler.hide_rest();
    EXPECT_EQ(pool.news(), (Messages{hide_show(root_id(49), false)})) << "the others were hidden";
}
} // namespace
