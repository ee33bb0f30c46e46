#include "tests/comp/Icon_text.h"
#include "vtui/comp/widgets/Labelled_input_widget.h"

#include <type_traits>

using namespace icon_text;

namespace {

using Labelled = Labelled_input_widget<Button_widget>;

/// A button under a label in letters of 12 × 16.
class LabelledButton : public Icon_text
{
  protected:
    LabelledButton() { label_font.size = std::uint8_t{3}; }

    void take()
    {
        take_all(container_id,
                 {&field.container, &field.label, &field.input.container, &field.input.button, &icon, &fill.variable});
    }

    static constexpr Iso::Object_id container_id = 0x1001;
    static constexpr Iso::Object_id label_id = 0x1002;
    static constexpr Iso::Object_id input_id = 0x1003;
    static constexpr Iso::Object_id button_id = 0x1004;
    static constexpr Iso::Object_id icon_id = 0x1005;
    static constexpr Iso::Object_id fill_id = 0x1006;

    Font_attributes_obj label_font;
    Labelled field{&label_font, &fill.variable, icon};
};

TEST_F(LabelledButton, PlacesTheLabelOverTheButton)
{
    expect_new(field.container, field.placements);
    ASSERT_EQ(field.placements.size(), 2U);
    expect_child(field.placements, 0, field.input.container, {0, 0});
    expect_child(field.placements, 1, field.label, {0, 0});
    EXPECT_EQ(&field.root(), &field.container);
    EXPECT_EQ(field.label.get_id(), VT::VT_obj::NULL_ID);
    EXPECT_EQ(field.label_font, &label_font);
    EXPECT_EQ(field.label_variable, &fill.variable);
    EXPECT_EQ(field.label.font, &label_font) << "the link that the pool follows";
    EXPECT_EQ(field.label.variable, &fill.variable);
    EXPECT_FALSE(std::is_polymorphic_v<Labelled>);
}

TEST_F(LabelledButton, ConstructsItsButtonAroundTheContent)
{
    expect_child(field.input.placements, 1, icon, {0, 0});
    expect_child(field.input.placements, 2, icon, {0, 0});
    EXPECT_EQ(size_of(field.input.button), Dimension(200, 200));
}

TEST_F(LabelledButton, PrefersTheSizeOfItsLabel)
{
    EXPECT_EQ(field.get_preferred_size(), Dimension(108, 16)) << "nine characters";
    field.set_size({200, 100}, {5, 3});
    EXPECT_EQ(field.get_preferred_size(), Dimension(108, 16)) << "whatever size it has";
}

TEST_F(LabelledButton, PrefersNothingWithoutTextOrFont)
{
    EXPECT_EQ(Labelled(nullptr, &fill.variable, icon).get_preferred_size(), Dimension(0, 0));
    field.set_label(nullptr);
    EXPECT_EQ(field.get_preferred_size(), Dimension(0, 0));
}

TEST_F(LabelledButton, IsAButtonAllOverWithTheLabelAtTheMargin)
{
    field.set_size({200, 100}, {5, 3});
    EXPECT_EQ(size_of(field.container), Dimension(200, 100));
    EXPECT_EQ(field.input.get_size(), Dimension(200, 100));
    EXPECT_EQ(size_of(field.input.button), Dimension(200, 100)) << "a touch on the label means the button too";
    EXPECT_EQ(size_of(field.label), Dimension(200, 16)) << "the full width in spite of the margin";
    expect_place(field.placements, 0, {0, 0});
    expect_place(field.placements, 1, {5, 3});
}

TEST_F(LabelledButton, LeavesTheContentOfItsButtonWhereItIs)
{
    field.input.set_content({&other_icon, 40, 30});
    field.set_size({200, 100}, {5, 3});
    expect_place(field.input.placements, 1, {0, 0});
    expect_place(field.input.placements, 2, {40, 30});
}

TEST_F(LabelledButton, WithoutAFontHasALabelWithoutHeight)
{
    Labelled without_font(nullptr, &fill.variable, icon);
    without_font.set_size({200, 100}, {5, 3});
    EXPECT_EQ(size_of(without_font.label), Dimension(200, 0));
    expect_place(without_font.placements, 1, {5, 3});
}

TEST_F(LabelledButton, WrapsAMarginAt16Bits)
{
    field.set_size({200, 100}, {40000, 65535});
    expect_place(field.placements, 1, {-25536, -1});
}

TEST_F(LabelledButton, SendsANewLabelAndNoLayout)
{
    field.set_label(&fill.variable);
    EXPECT_EQ(field.label.variable_reference, VT::VT_obj::NULL_ID) << "kept until it has an id";
    take();
    field.set_label(&fill.variable);
    EXPECT_EQ(field.label.variable_reference, fill_id);
    EXPECT_TRUE(pool.news().empty()) << "not live yet";
    pool.live = true;
    field.set_label(nullptr);
    EXPECT_EQ(field.label_variable, nullptr);
    field.set_label(&fill.variable);
    EXPECT_EQ(field.label_variable, &fill.variable);
    EXPECT_EQ(pool.news(), (Messages{{0xAF, 0x02, 0x10, 6, 0xFF, 0xFF, 0, 0}, //
                                     {0xAF, 0x02, 0x10, 6, 0x06, 0x10, 0, 0}}));
    field.set_size({200, 100}, {5, 3});
    EXPECT_TRUE(pool.news().empty());
    EXPECT_TRUE(pool.uploaded.empty());
    EXPECT_EQ(field.placements.attributes[0].object_id, input_id);
    EXPECT_EQ(field.placements.attributes[1].object_id, label_id);
    EXPECT_EQ(field.input.placements.attributes[0].object_id, button_id);
    EXPECT_EQ(field.input.placements.attributes[2].object_id, icon_id);
}

TEST_F(LabelledButton, IsKnownByTheIdOfItsButton)
{
    take();
    EXPECT_TRUE(field.input.is_button_id(button_id));
    EXPECT_FALSE(field.input.is_button_id(container_id));
}

using LabelledButtonDeathTest = LabelledButton;

TEST_F(LabelledButtonDeathTest, ALayoutWithAnEmptySlotEndsTheProcess)
{
    for (const std::size_t slot : {0U, 1U}) {
        Labelled broken(&label_font, nullptr, icon);
        broken.placements.placements[slot].ref = nullptr;
        EXPECT_DEATH(broken.set_size({200, 100}, {5, 3}), no_child("Array_array_2")) << slot;
    }
    field.input.get_content().ref = nullptr;
    EXPECT_DEATH(field.set_size({200, 100}, {5, 3}), no_child("Array_array_3"));
}

TEST_F(LabelledButtonDeathTest, AVectorCannotMoveIt)
{
    expect_no_second_in_a_vector<Labelled>(&label_font, &fill.variable, icon);
}

} // namespace
