#include "tests/comp/Custom_select.h"

#include <array>
#include <type_traits>
#include <vector>

using namespace custom_select;
using Lines = Record_text::Lines;

namespace {

using CustomSelectWidget = Custom_select;

TEST_F(CustomSelectWidget, StartsWithAnEmptyContainer)
{
    expect_new(list.container, list.placements);
    EXPECT_EQ(list.root(), &list.container);
    ASSERT_EQ(list.placements.size(), 101U);
    expect_child(list.placements, 0, style.rect_17_patterned, {0, 0});
    for (std::size_t i = 1; i <= 100; ++i)
        expect_child(list.placements, i, style.null_pointer, {0, 0});
}

TEST_F(CustomSelectWidget, HasOneSeparator)
{
    EXPECT_EQ(list.separator.get_id(), VT::VT_obj::NULL_ID);
    EXPECT_STREQ(list.separator.get_name(), "");
    EXPECT_EQ(Record_text::values_of(list.separator),
              (Lines{"id line_attributes null", "u16 width 1", "u16 height 1", "u8 line_direction 1", "count u8 0"}));
    EXPECT_EQ(list.separator.line, &style.line_black_c) << "the link that the pool follows";
}

TEST_F(CustomSelectWidget, HasFiftyButtonsThatShowNothing)
{
    ASSERT_EQ(list.items.size(), buttons);
    for (Toggle_button_widget& item : list.items) {
        expect_new(item.container, item.placements);
        EXPECT_EQ(item.state_pointer.states,
                  (std::array<VT::VT_obj*, 2>{&style.rect_17_patterned, &style.rect_bevel_dark}));
        expect_child(item.placements, 1, item.state_pointer, {0, 0});
        expect_child(item.placements, 2, style.null_pointer, {0, 0});
    }
}

TEST_F(CustomSelectWidget, SelectsTheFirstItemAtFirstAndShowsNone)
{
    EXPECT_EQ(list.get_selected_item(), 0);
    expect_on(none);
    EXPECT_FALSE(list.was_last_button());
}

TEST_F(CustomSelectWidget, NeverMovesAButton)
{
    EXPECT_EQ(list.items.capacity(), buttons) << "room for these and no others";
    const Toggle_button_widget* const first = list.items.data();
    for (const Toggle_button_widget& item : list.items)
        EXPECT_EQ(item.container.placements_ptr, &item.placements) << "where it was built";
    list.set_size(200, 30);
    list.set_selected(49);
    EXPECT_EQ(list.items.data(), first);
    EXPECT_EQ(list.items.capacity(), buttons);
}

TEST_F(CustomSelectWidget, TellsWhereItsButtonsLie)
{
    const auto [begin, size] = list.outlying_controls();
    EXPECT_EQ(begin, &list.items[0]);
    EXPECT_EQ(size, buttons * sizeof(Toggle_button_widget));
    EXPECT_EQ(static_cast<const char*>(begin) + size, reinterpret_cast<const char*>(&list.items[49] + 1));
}

TEST_F(CustomSelectWidget, IsPlainAndAList)
{
    EXPECT_FALSE(std::is_polymorphic_v<Select>);
    EXPECT_TRUE((std::is_convertible_v<Select*, VT::Comp::Custom_list_widget<100, 2>*>));
}

TEST_F(CustomSelectWidget, NamesTheEventThatADerivedListMustNotHide)
{
    EXPECT_TRUE((std::is_same_v<Select::Handled_events, VT::Event_list<VT::Button_activation_event>>));
}

TEST_F(CustomSelectWidget, StacksButtonsWithASeparatorUnderEach)
{
    list.set_size(200, 30);
    expect_column({200, 30}, 35);
    expect_written();
    EXPECT_EQ(placed(list.placements, 2), Point(0, 32));
    EXPECT_EQ(placed(list.placements, 99), Point(0, 1715)) << "the last button";
    EXPECT_EQ(placed(list.placements, 100), Point(0, 1747));
}

TEST_F(CustomSelectWidget, EndsWithoutAnyHeight)
{
    list.set_size(200, 30);
    EXPECT_EQ(size_of(list.container), Dimension(200, 0));
    list.container.height = std::uint16_t{1750};
    list.set_size(200, 30);
    EXPECT_EQ(size_of(list.container), Dimension(200, 0)) << "the same size again";
    list.set_size(120, 20);
    EXPECT_EQ(size_of(list.container), Dimension(120, 0));
}

TEST_F(CustomSelectWidget, LeavesTheStyleAsItIs)
{
    style.set_sizes(240);
    list.set_size(200, 30);
    EXPECT_EQ(size_of(style.rect_17_patterned), Dimension(240, 240));
    EXPECT_EQ(size_of(style.rect_bevel_dark), Dimension(240, 240));
}

TEST_F(CustomSelectWidget, KeepsTheRoomOfHiddenButtons)
{
    list.items[0].set_hidden(true);
    list.items[3].set_hidden(true);
    list.set_size(200, 30);
    expect_column({200, 30}, 35);
}

TEST_F(CustomSelectWidget, GivesAllButtonsOneSize)
{
    list.items[3].set_size({7, 90});
    list.separator.height = std::uint16_t{9};
    list.set_size(200, 30);
    expect_column({200, 30}, 35);
}

TEST_F(CustomSelectWidget, NeverMovesAnItemAcross)
{
    list.placements.placements[1].x = 7;
    list.placements.placements[2].x = -4;
    list.set_size(200, 30);
    EXPECT_EQ(placed(list.placements, 1), Point(7, 0));
    EXPECT_EQ(placed(list.placements, 2), Point(-4, 32));
    expect_written();
}

TEST_F(CustomSelectWidget, StacksItemsWithoutHeightByTheirGapsAlone)
{
    list.set_size(0, 0);
    expect_column({0, 0}, 5);
}

TEST_F(CustomSelectWidget, WrapsPlacesAt16Bits)
{
    list.set_size(65535, 1306);
    expect_column({65535, 1306}, 1311);
    EXPECT_EQ(placed(list.placements, 51), Point(0, -32761)) << "32775 pixels down";
    list.set_size(1, 65535);
    expect_column({1, 65535}, 65540);
    EXPECT_EQ(placed(list.placements, 2), Point(0, 1));
    EXPECT_EQ(placed(list.placements, 3), Point(0, 4));
}

/// What is in a list's record while it is uploaded.
class Size_watch final : public Fake_pool
{
  public:
    explicit Size_watch(Select& watched) : list(watched) {}

    void upload(VT::VT_obj& object) override
    {
        EXPECT_EQ(&object, list.root());
        Fake_pool::upload(object);
        sizes.push_back(VT::Comp::size_of(object));
        last_button.push_back(written(list.placements, 99));
        button_sizes.push_back(list.items[49].get_size());
    }

    Select& list;
    std::vector<Dimension> sizes;
    std::vector<Point> last_button;
    std::vector<Dimension> button_sizes;
};

TEST_F(CustomSelectWidget, IsUploadedWithAllItsHeightAndTheWidthItHadBefore)
{
    Size_watch watch(list);
    number(watch);
    watch.live = true;
    list.set_size(200, 30);
    list.set_size(120, 20);
    list.set_size(90, 1306); // 50 × 1311 pixels
    EXPECT_EQ(watch.sizes, (std::vector{Dimension(240, 1750), Dimension(200, 1250), Dimension(120, 14)}));
    EXPECT_EQ(watch.last_button, (std::vector{Point(0, 1715), Point(0, 1225), Point(0, -1297)}));
    EXPECT_EQ(watch.button_sizes, (std::vector{Dimension(200, 30), Dimension(120, 20), Dimension(90, 1306)}));
    EXPECT_EQ(size_of(list.container), Dimension(90, 0));
}

TEST_F(CustomSelectWidget, IsUploadedOnceWhenItsItemsMove)
{
    go_live();
    list.set_size(200, 30);
    EXPECT_EQ(pool.news(), (Messages{transfer(container_id)}));
    expect_written();
    list.set_size(200, 31);
    EXPECT_EQ(pool.news(), (Messages{transfer(container_id)}));
    expect_written();
}

TEST_F(CustomSelectWidget, IsNotUploadedWhenItsItemsStay)
{
    go_live();
    list.set_size(200, 30);
    pool.news();
    list.set_size(200, 30);
    EXPECT_TRUE(pool.news().empty());
    expect_column({200, 30}, 35);
    list.set_size(120, 30);
    EXPECT_TRUE(pool.news().empty()) << "only narrower";
    EXPECT_EQ(size_of(list.container), Dimension(120, 0));
    EXPECT_TRUE(list.container.is_changed()) << "the next upload tells";
    list.set_size(120, 1306);
    pool.news();
    list.set_size(120, 1306);
    EXPECT_TRUE(pool.news().empty()) << "places that have wrapped around";
}

TEST_F(CustomSelectWidget, IsWrittenOutAlsoWhenItsItemsStay)
{
    go_live();
    list.set_size(200, 30);
    pool.news();
    list.placements.placements[0].y = 3;
    list.placements.placements[7].x = 5;
    list.set_size(200, 30);
    EXPECT_TRUE(pool.news().empty());
    expect_written();
    EXPECT_EQ(written(list.placements, 0), Point(0, 3));
    EXPECT_EQ(written(list.placements, 7), Point(5, 105));
}

TEST_F(CustomSelectWidget, PutsBackWhatIsNotInItsPlace)
{
    go_live();
    list.set_size(200, 30);
    pool.news();
    list.placements.placements[99].y = 3;
    list.set_size(200, 30);
    EXPECT_EQ(pool.news(), (Messages{transfer(container_id)}));
    expect_column({200, 30}, 35);
    list.placements.placements[100].ref = &content;
    list.set_size(200, 30);
    EXPECT_EQ(pool.news(), (Messages{transfer(container_id)}));
    expect_column({200, 30}, 35);
    list.placements.placements[1].ref = nullptr;
    list.set_size(200, 30);
    EXPECT_EQ(pool.news(), (Messages{transfer(container_id)}));
    expect_column({200, 30}, 35);
    expect_written();
}

TEST_F(CustomSelectWidget, IsUploadedAlsoWhenTheTerminalHasItAll)
{
    go_live();
    list.set_size(200, 30);
    list.container.height = std::uint16_t{1750};
    list.root()->upload(true);
    pool.news();
    list.placements.placements[99].y = 3;
    list.set_size(200, 30);
    EXPECT_EQ(pool.news(), (Messages{transfer(container_id)}));
}

TEST_F(CustomSelectWidget, IsShownByTheHeightThatTheApplicationGives)
{
    go_live();
    list.set_size(200, 30);
    list.container.height = std::uint16_t{10 * 35};
    list.root()->upload(true);
    EXPECT_EQ(pool.news(), (Messages{transfer(container_id), transfer(container_id)}));
    EXPECT_FALSE(list.container.is_changed());
    EXPECT_EQ(size_of(list.container), Dimension(200, 350));
}

TEST_F(CustomSelectWidget, IsNotUploadedBeforeThePoolIsLive)
{
    pool.live = true;
    list.set_size(200, 30);
    EXPECT_TRUE(pool.news().empty()) << "no id";
    pool.live = false;
    number(pool);
    list.set_size(200, 31);
    EXPECT_TRUE(pool.news().empty());
    EXPECT_TRUE(pool.uploaded.empty());
    expect_written();
}

using CustomSelectWidgetDeathTest = CustomSelectWidget;

TEST_F(CustomSelectWidgetDeathTest, ALayoutWithoutABackgroundEndsTheProcess)
{
    list.placements.placements[0].ref = nullptr;
    EXPECT_DEATH(list.set_size(200, 30), no_child("VT::Comp::Custom_list_widget<100, 2>::Array_array_N"));
}

TEST_F(CustomSelectWidgetDeathTest, ALayoutWithAButtonWithoutAContentEndsTheProcess)
{
    list.items[49].get_content().ref = nullptr;
    EXPECT_DEATH(list.set_size(200, 30), no_child("Array_array_3"));
}

TEST_F(CustomSelectWidgetDeathTest, AnotherButtonEndsTheProcess)
{
    EXPECT_DEATH(list.items.emplace_back(content, content), copied());
}

TEST_F(CustomSelectWidgetDeathTest, AVectorCannotMoveIt) { expect_no_second_in_a_vector<Select>(style); }

} // namespace
