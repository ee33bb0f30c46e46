#include "tests/comp/Icon_text.h"
#include "vtui/comp/widgets/Key_button_combo_widget.h"

#include <type_traits>

using namespace icon_text;

namespace {

class KeyButtonComboWidget : public Icon_text
{
  protected:
    KeyButtonComboWidget() { style.font_2.size = std::uint8_t{0}; }

    /// Button and edge of that size, and icon and text in their middle.
    void expect_layout(Dimension size, Dimension face, Point face_place)
    {
        SCOPED_TRACE(::testing::PrintToString(size));
        combo.set_size(size);
        EXPECT_EQ(size_of(combo.container), Dimension(240, 240)) << "only its children are sized";
        EXPECT_EQ(combo.button.get_size(), size);
        EXPECT_EQ(size_of(combo.button.button), size);
        EXPECT_EQ(size_of(combo.border.container), size);
        EXPECT_EQ(size_of(combo.icon_text.container), face);
        expect_place(combo.placements, 0, {0, 0});
        expect_place(combo.placements, 1, face_place);
        expect_place(combo.placements, 2, {0, 0});
    }

    void take()
    {
        take_all(container_id, {&combo.container, &combo.button.container, &combo.button.button,
                                &combo.icon_text.container, &combo.icon_text.caption, &combo.border.container,
                                &combo.border.border, &combo.soft_key.key, &fill.variable});
    }

    static constexpr Iso::Object_id container_id = 0x1001;
    static constexpr Iso::Object_id button_root_id = 0x1002;
    static constexpr Iso::Object_id button_id = 0x1003;
    static constexpr Iso::Object_id icon_text_id = 0x1004;
    static constexpr Iso::Object_id caption_id = 0x1005;
    static constexpr Iso::Object_id edge_id = 0x1006;
    static constexpr Iso::Object_id rectangle_id = 0x1007;
    static constexpr Iso::Object_id key_id = 0x1008;
    static constexpr Iso::Object_id fill_id = 0x1009;

    Key_button_combo_widget combo{style};
};

TEST_F(KeyButtonComboWidget, DrawsTheButtonThenIconAndTextThenTheEdge)
{
    expect_new(combo.container, combo.placements);
    ASSERT_EQ(combo.placements.size(), 3U);
    expect_child(combo.placements, 0, combo.button.container, {0, 0});
    expect_child(combo.placements, 1, combo.icon_text.container, {0, 0});
    expect_child(combo.placements, 2, combo.border.container, {0, 0});
    EXPECT_EQ(&combo.root(), &combo.container);
    EXPECT_EQ(&combo.get_soft_key(), &combo.soft_key.key);
    EXPECT_FALSE(std::is_polymorphic_v<Key_button_combo_widget>);
}

TEST_F(KeyButtonComboWidget, BuildsItsPartsFromTheStyle)
{
    EXPECT_EQ(combo.button.get_size(), Dimension(240, 240));
    EXPECT_EQ(size_of(combo.button.button), Dimension(200, 200));
    expect_child(combo.button.placements, 1, style.rect_17_patterned, {0, 0});
    expect_child(combo.button.placements, 2, style.rect_17_patterned, {0, 0});
    EXPECT_EQ(combo.border.border.line, &style.line_111_b);
    expect_new_caption(combo.icon_text.caption, style.font_2);
    expect_child(combo.icon_text.placements, 0, style.rect_17_patterned, {0, 0});
    EXPECT_EQ(combo.soft_key.placements.placements[0].ref, nullptr);
    EXPECT_EQ(combo.soft_key.get_background_colour(), 1);
}

TEST_F(KeyButtonComboWidget, IsLargerThanItsFaceByAFifth)
{
    expect_layout({120, 60}, {100, 50}, {10, 5});
    expect_layout({60, 30}, {50, 25}, {5, 2});
}

TEST_F(KeyButtonComboWidget, CutsFractionsOff)
{
    expect_layout({61, 32}, {50, 26}, {5, 3});
    expect_layout({1, 2}, {0, 1}, {0, 0});
    expect_layout({65535, 65534}, {54612, 54611}, {5461, 5461});
}

TEST_F(KeyButtonComboWidget, GivesItsFaceFiveSixthsOfAnySize)
{
    for (int side = 0; side <= 65535; ++side) {
        const auto d = static_cast<std::uint16_t>(side);
        combo.set_size({d, d});
        const int face = static_cast<int>(side / 1.2);
        ASSERT_EQ(combo.icon_text.container.width, face) << side;
        ASSERT_EQ(combo.icon_text.container.height, face) << side;
    }
}

TEST_F(KeyButtonComboWidget, LaysOutItsParts)
{
    combo.set_icon(&icon, &other_icon);
    combo.set_size({120, 96});
    EXPECT_EQ(size_of(combo.icon_text.caption), Dimension(100, 16));
    expect_place(combo.icon_text.placements, 0, {30, 20}); // in 100 × 80
    expect_place(combo.icon_text.placements, 1, {0, 44});
    EXPECT_EQ(size_of(combo.border.border), Dimension(117, 93));
    expect_child(combo.border.placements, 0, combo.border.border, {3, 3});
    expect_place(combo.button.placements, 2, {0, 0});
}

TEST_F(KeyButtonComboWidget, WrapsItsEdgeBelow3Pixels)
{
    combo.set_size({2, 0});
    EXPECT_EQ(size_of(combo.border.border), Dimension(65535, 65533));
}

TEST_F(KeyButtonComboWidget, LeavesItsSoftKeyAloneWhenItIsLaidOut)
{
    combo.set_icon(&icon, &icon);
    combo.soft_key.set_size({60, 36});
    combo.set_size({120, 60});
    expect_place(combo.soft_key.placements, 0, {10, 6});
}

TEST_F(KeyButtonComboWidget, HasAnIconForTheButtonAndAnotherForTheKey)
{
    take();
    pool.live = true;
    combo.set_icon(&icon, &other_icon);
    expect_child(combo.icon_text.placements, 0, icon, {0, 0});
    expect_child(combo.soft_key.placements, 0, other_icon, {0, 0});
    expect_child(combo.button.placements, 2, style.rect_17_patterned, {0, 0});
    EXPECT_TRUE(pool.news().empty());
    EXPECT_TRUE(pool.uploaded.empty());
}

TEST_F(KeyButtonComboWidget, MovesANewIconOfTheKeyToTheOriginButNotThatOfTheButton)
{
    combo.set_icon(&icon, &icon);
    combo.set_size({120, 96});
    combo.soft_key.set_size({60, 36});
    combo.set_icon(&other_icon, &other_icon);
    expect_child(combo.icon_text.placements, 0, other_icon, {30, 20});
    expect_child(combo.soft_key.placements, 0, other_icon, {0, 0});
}

TEST_F(KeyButtonComboWidget, SendsANewTextOfTheButton)
{
    combo.set_text(&fill.variable);
    EXPECT_EQ(combo.icon_text.caption.variable, &fill.variable);
    EXPECT_EQ(combo.icon_text.caption.variable_reference, VT::VT_obj::NULL_ID);
    take();
    pool.live = true;
    combo.set_text(&fill.variable);
    combo.set_text(nullptr);
    EXPECT_EQ(pool.news(), (Messages{{0xAF, 0x05, 0x10, 6, 0x09, 0x10, 0, 0}, //
                                     {0xAF, 0x05, 0x10, 6, 0xFF, 0xFF, 0, 0}}));
}

TEST_F(KeyButtonComboWidget, SendsNothingWhenItIsLaidOut)
{
    take();
    pool.live = true;
    expect_layout({120, 60}, {100, 50}, {10, 5});
    EXPECT_EQ(combo.placements.attributes[0].object_id, button_root_id);
    EXPECT_EQ(combo.placements.attributes[1].object_id, icon_text_id);
    EXPECT_EQ(combo.placements.attributes[2].object_id, edge_id);
    EXPECT_EQ(combo.icon_text.placements.attributes[1].object_id, caption_id);
    EXPECT_TRUE(pool.news().empty());
    EXPECT_TRUE(pool.uploaded.empty());
}

TEST_F(KeyButtonComboWidget, IsKnownByTheIdsOfItsButtonAndItsKey)
{
    EXPECT_TRUE(combo.is_button_or_key_id(VT::VT_obj::NULL_ID)) << "they have none yet";
    EXPECT_FALSE(combo.is_button_or_key_id(button_id));
    take();
    EXPECT_TRUE(combo.is_button_or_key_id(button_id));
    EXPECT_TRUE(combo.is_button_or_key_id(key_id));
    for (const Iso::Object_id id :
         {container_id, button_root_id, icon_text_id, caption_id, edge_id, rectangle_id, fill_id, Iso::null_id})
        EXPECT_FALSE(combo.is_button_or_key_id(id)) << id;
}

using KeyButtonComboWidgetDeathTest = KeyButtonComboWidget;

TEST_F(KeyButtonComboWidgetDeathTest, ALayoutWithoutTheButtonsIconEndsTheProcess)
{
    combo.set_icon(nullptr, &icon);
    EXPECT_DEATH(combo.set_size({120, 60}), no_child("Array_array_2"));
}

TEST_F(KeyButtonComboWidgetDeathTest, ALayoutWithAnEmptySlotEndsTheProcess)
{
    for (const std::size_t slot : {0U, 1U, 2U}) {
        Key_button_combo_widget broken(style);
        broken.placements.placements[slot].ref = nullptr;
        EXPECT_DEATH(broken.set_size({120, 60}), no_child("Array_array_3")) << slot;
    }
}

TEST_F(KeyButtonComboWidgetDeathTest, TheKeyMayHaveNoIconUnlessItIsSized)
{
    combo.set_icon(&icon, nullptr);
    combo.set_size({120, 60});
    EXPECT_DEATH(combo.soft_key.set_size({60, 36}), no_child("Array_array_1"));
}

TEST_F(KeyButtonComboWidgetDeathTest, AVectorCannotMoveIt)
{
    expect_no_second_in_a_vector<Key_button_combo_widget>(style);
}

} // namespace
