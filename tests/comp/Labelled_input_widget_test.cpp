#include "tests/Death.h"
#include "tests/comp/Number_field.h"
#include "vtui/comp/widgets/Labelled_input_widget.h"

using namespace number_field;
using VT::Comp::Dimension;
using VT::Comp::Point;

namespace {

using Labelled = VT::Comp::Labelled_input_widget<VT::Comp::Number_widget>;

/// A label in letters of 12 × 16 above numbers of 16 × 24.
class LabelledInputWidget : public Field
{
  protected:
    LabelledInputWidget() { label_font.size = std::uint8_t{3}; }

    VT::Comp::Font_attributes_obj label_font;
    Text rate{"Rate"};
    Labelled field{&label_font, &rate.variable, style(1, true), bounded(0, 100), &mph.variable};
};

TEST_F(LabelledInputWidget, PlacesTheLabelOverItsInput)
{
    EXPECT_EQ(size_of(field.container), Dimension(240, 240));
    EXPECT_EQ(field.container.get_id(), VT::VT_obj::NULL_ID);
    EXPECT_EQ(field.label.get_id(), VT::VT_obj::NULL_ID);
    EXPECT_EQ(field.placements.size(), 2U);
    EXPECT_EQ(field.placements.placements[0].ref, &field.input.container);
    EXPECT_EQ(field.placements.placements[1].ref, &field.label);
    for (std::size_t i = 0; i < 2; ++i)
        EXPECT_EQ(Point(field.placements.placements[i].x, field.placements.placements[i].y), Point(0, 0));
    EXPECT_EQ(field.label.options, 1) << "transparent: the input's backdrop lies under it";
    EXPECT_EQ(field.container.placements_ptr, &field.placements);
    EXPECT_EQ(&field.root(), &field.container);
    EXPECT_EQ(field.label_font, &label_font);
    EXPECT_EQ(field.label_variable, &rate.variable);
    EXPECT_EQ(field.label.font, &label_font) << "the link that the pool follows";
    EXPECT_EQ(field.label.variable, &rate.variable);
    EXPECT_EQ(field.label.length, 0) << "the text is the variable's";
}

TEST_F(LabelledInputWidget, ConstructsItsInputFromTheOtherArguments)
{
    EXPECT_EQ(field.input.layout, 1U);
    EXPECT_EQ(field.input.specifications[2].max, 100);
    EXPECT_EQ(field.input.units_variables[0], &mph.variable);
    const Labelled of_three(&label_font, nullptr, style(3), bounded(0, 1), bounded(0, 2), bounded(0, 3), nullptr);
    EXPECT_EQ(of_three.input.specifications[0].max, 1);
    EXPECT_EQ(of_three.input.specifications[1].max, 2);
    EXPECT_EQ(of_three.input.specifications[2].max, 3);
}

TEST_F(LabelledInputWidget, PrefersTheWidthOfItsInputAndTheHeightOfBoth)
{
    EXPECT_EQ(field.input.get_preferred_size(), Dimension(72, 24));
    EXPECT_EQ(field.get_preferred_size(), Dimension(72, 40)) << "the label is 48 wide";
}

TEST_F(LabelledInputWidget, PrefersTheWidthOfItsLabelIfThatIsLarger)
{
    Text seven("Density");
    field.set_label(&seven.variable);
    EXPECT_EQ(field.get_preferred_size(), Dimension(84, 40));
}

TEST_F(LabelledInputWidget, PrefersRoomForAllCharactersThatTheLabelReserves)
{
    Text reserved(std::string("Rate\0\0\0", 7));
    field.set_label(&reserved.variable);
    EXPECT_EQ(field.get_preferred_size(), Dimension(84, 40)) << "of seven characters, four of them a text";
}

TEST_F(LabelledInputWidget, PrefersAtMost16BitsOfALabel)
{
    Text endless(std::string(5470, 'x')); // 65640 wide, that is 104
    field.set_label(&endless.variable);
    EXPECT_EQ(field.get_preferred_size(), Dimension(104, 40));
}

TEST_F(LabelledInputWidget, MayPreferMoreThan8BitsOfHeight)
{
    label_font.size = std::uint8_t{14}; // 128 × 192
    number_font.size = std::uint8_t{14};
    EXPECT_EQ(field.get_preferred_size(), Dimension(512, 384));
}

TEST_F(LabelledInputWidget, WithoutTextOrFontPrefersTheSizeOfItsInput)
{
    field.set_label(nullptr);
    EXPECT_EQ(field.get_preferred_size(), Dimension(72, 24));
    const Labelled without_font(nullptr, &rate.variable, style(1), bounded(0, 100), &mph.variable);
    EXPECT_EQ(without_font.get_preferred_size(), Dimension(72, 24));
}

TEST_F(LabelledInputWidget, PutsTheLabelAtTheMarginAndTheInputBelow)
{
    field.set_size({200, 60}, {5, 3});
    EXPECT_EQ(size_of(field.container), Dimension(200, 60));
    EXPECT_EQ(size_of(field.label), Dimension(200, 16)) << "the full width in spite of the margin";
    const VT::Attribute_object_placement* const written = field.placements.get();
    EXPECT_EQ(Point(written[0].x, written[0].y), Point(0, 0));
    EXPECT_EQ(Point(written[1].x, written[1].y), Point(5, 3));
    EXPECT_EQ(Point(field.placements.placements[1].x, field.placements.placements[1].y), Point(5, 3));

    EXPECT_EQ(size_of(field.input.container), Dimension(200, 60)) << "a touch on the label means the input too";
    EXPECT_EQ(size_of(field.input.input_number), Dimension(200, 60));
    EXPECT_EQ(field.input.layout_size, Dimension(200, 24)) << "a strip as high as the input";
    EXPECT_EQ(field.input.layout_origin, Point(5, 19));
    // In the strip a pair of 72 × 24 lies at 64, 0.
    EXPECT_EQ(Point(field.input.placements.attributes[2].x, field.input.placements.attributes[2].y), Point(69, 19));
    EXPECT_EQ(Point(field.input.placements.attributes[3].x, field.input.placements.attributes[3].y), Point(117, 31));
}

TEST_F(LabelledInputWidget, LaysItsInputOutInTheHeightOfBothPartsIfTheyAreStacked)
{
    Labelled stacked(&label_font, &rate.variable, style(3), bounded(0, 100), &mph.variable);
    stacked.set_size({100, 60}, {0, 0});
    EXPECT_EQ(stacked.input.layout_size, Dimension(100, 36));
    EXPECT_EQ(stacked.input.layout_origin, Point(0, 16));
    EXPECT_EQ(Point(stacked.input.placements.attributes[2].x, stacked.input.placements.attributes[2].y), Point(26, 16));
    EXPECT_EQ(Point(stacked.input.placements.attributes[3].x, stacked.input.placements.attributes[3].y), Point(38, 40));
}

TEST_F(LabelledInputWidget, KeepsTheLabelsHeightWithoutAText)
{
    field.set_label(nullptr);
    field.set_size({200, 60}, {5, 3});
    EXPECT_EQ(size_of(field.label), Dimension(200, 16));
    EXPECT_EQ(field.input.layout_origin, Point(5, 19));
}

TEST_F(LabelledInputWidget, WithoutAFontHasALabelWithoutHeight)
{
    Labelled without_font(nullptr, &rate.variable, style(1), bounded(0, 100), nullptr);
    without_font.set_size({200, 60}, {5, 3});
    EXPECT_EQ(size_of(without_font.label), Dimension(200, 0));
    EXPECT_EQ(without_font.input.layout_origin, Point(5, 3));
}

TEST_F(LabelledInputWidget, WrapsAMarginAt16Bits)
{
    field.set_size({200, 60}, {40000, 32760});
    EXPECT_EQ(Point(field.placements.attributes[1].x, field.placements.attributes[1].y), Point(-25536, 32760));
    EXPECT_EQ(field.input.layout_origin, Point(-25536, -32760)) << "32760 + 16";
}

TEST_F(LabelledInputWidget, KeepsALabelUntilItHasAnId)
{
    field.set_label(&mph.variable);
    EXPECT_EQ(field.label_variable, &mph.variable);
    EXPECT_EQ(field.label.variable, &mph.variable);
    EXPECT_EQ(field.label.variable_reference, VT::VT_obj::NULL_ID);
}

TEST_F(LabelledInputWidget, SendsANewLabelAndNoLayout)
{
    field.input.init(nullptr, nullptr);
    take(field.input);
    pool.take(field.container, 0x3001);
    pool.take(field.label, 0x0102);
    field.set_label(&kmh.variable);
    EXPECT_EQ(field.label.variable_reference, kmh_id);
    EXPECT_TRUE(pool.news().empty()) << "not live yet";
    pool.live = true;
    field.set_label(&mph.variable);
    field.set_label(nullptr);
    EXPECT_EQ(pool.news(), (Messages{{0xAF, 0x02, 0x01, 6, 0x04, 0x20, 0, 0}, //
                                     {0xAF, 0x02, 0x01, 6, 0xFF, 0xFF, 0, 0}}));
    field.set_size({200, 60}, {5, 3});
    EXPECT_TRUE(pool.news().empty());
    EXPECT_TRUE(pool.uploaded.empty());
    EXPECT_EQ(field.placements.attributes[0].object_id, container_id);
    EXPECT_EQ(field.placements.attributes[1].object_id, 0x0102);
}

using LabelledInputWidgetDeathTest = LabelledInputWidget;

TEST_F(LabelledInputWidgetDeathTest, ALayoutWithAnEmptySlotEndsTheProcess)
{
    field.placements.placements[1].ref = nullptr;
    EXPECT_DEATH(field.set_size({200, 60}, {5, 3}),
                 death::assertion(
                     "false", "../../../../lib/vtui/comp/objects/Has_child_placements", 213,
                     "void VT::Comp::Child_placements_array<Array_type>::deref() [with Array_type = Array_array_2]"));
}

} // namespace
