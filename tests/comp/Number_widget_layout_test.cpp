#include "tests/comp/Number_field.h"

using namespace number_field;
using VT::Comp::Dimension;
using VT::Comp::Point;

namespace {

/// Where number and units lie, with sizes that a test gives them.
class NumberWidgetLayout : public Field
{
  protected:
    struct Box
    {
        Dimension size;
        Point origin;
    };

    struct Drawing
    {
        Point number;
        Point units;
    };

    void expect(std::uint32_t layout, Dimension number, Dimension units, Box box, Drawing drawing)
    {
        Number_widget field(style(layout), nullptr);
        field.output_number.width = number.width;
        field.output_number.height = number.height;
        field.units.width = units.width;
        field.units.height = units.height;
        field.set_layout(box.size, box.origin);
        SCOPED_TRACE("layout " + std::to_string(layout));
        expect_at(field, 0, {0, 0});
        expect_at(field, 1, {0, 0});
        expect_at(field, 2, drawing.number);
        expect_at(field, 3, drawing.units);
    }

    static void expect_at(Number_widget& field, std::size_t slot, Point place)
    {
        const VT::Comp::Child_placement& child = field.placements.placements[slot];
        const VT::Attribute_object_placement& written = field.placements.attributes[slot];
        EXPECT_EQ(Point(child.x, child.y), place) << "slot " << slot;
        EXPECT_EQ(Point(written.x, written.y), place) << "slot " << slot << " as written out";
    }

    static constexpr Dimension high_number{40, 20};
    static constexpr Dimension low_units{16, 10};
    static constexpr Dimension low_number{40, 10};
    static constexpr Dimension high_units{16, 20};
};

TEST_F(NumberWidgetLayout, AtTheRightEdgeAlignsTheBottoms)
{
    expect(0, high_number, low_units, {{100, 40}, {}}, {{44, 10}, {84, 20}});
    expect(0, low_number, high_units, {{100, 40}, {}}, {{44, 20}, {84, 10}});
}

TEST_F(NumberWidgetLayout, OfAPairInTheMiddleAlignsTheBottoms)
{
    expect(1, high_number, low_units, {{100, 40}, {}}, {{22, 10}, {62, 20}});
    expect(1, low_number, high_units, {{100, 40}, {}}, {{22, 20}, {62, 10}});
}

TEST_F(NumberWidgetLayout, AtTheLeftEdgeCentresBoth)
{
    expect(2, high_number, low_units, {{100, 40}, {}}, {{0, 10}, {40, 15}});
    expect(2, low_number, high_units, {{100, 40}, {}}, {{0, 15}, {40, 10}});
}

TEST_F(NumberWidgetLayout, OfThreeAndMoreStacksTheNumberOnTheUnits)
{
    for (const std::uint32_t layout : {3U, 4U, 7U, 0xFFFFFFFFU}) {
        expect(layout, high_number, low_units, {{100, 40}, {}}, {{30, 5}, {42, 25}});
        expect(layout, low_number, high_units, {{100, 40}, {}}, {{30, 5}, {42, 15}});
    }
}

TEST_F(NumberWidgetLayout, WithoutUnitsGivesTheNumberTheWholeBox)
{
    expect(0, high_number, {0, 0}, {{100, 40}, {}}, {{60, 10}, {100, 30}});
    expect(1, high_number, {0, 0}, {{100, 40}, {}}, {{30, 10}, {70, 30}});
    expect(2, high_number, {0, 0}, {{100, 40}, {}}, {{0, 10}, {40, 20}});
    expect(3, high_number, {0, 0}, {{100, 40}, {}}, {{30, 10}, {50, 30}});
}

TEST_F(NumberWidgetLayout, CutsHalfAPixelOff)
{
    // 41 - 20 and 41 - 19: the one is odd
    expect(0, {40, 20}, {15, 19}, {{101, 41}, {}}, {{46, 10}, {86, 11}});
    // 101 - 56, 40 - 19
    expect(1, {40, 19}, {16, 20}, {{101, 40}, {}}, {{22, 11}, {62, 10}});
    expect(2, {40, 19}, {16, 13}, {{101, 40}, {}}, {{0, 10}, {40, 13}});
    // 101 - 40, 101 - 16, 41 - 30
    expect(3, {40, 20}, {16, 10}, {{101, 41}, {}}, {{30, 5}, {42, 25}});
}

TEST_F(NumberWidgetLayout, OverhangsABoxThatIsTooSmall)
{
    // Halves of negative numbers go towards zero: (5 - 20) / 2 is -7 and (5 - 10) / 2 is -2.
    expect(0, {40, 20}, {16, 10}, {{10, 5}, {}}, {{-46, -7}, {-6, 3}});
    expect(1, {40, 20}, {15, 10}, {{10, 5}, {}}, {{-22, -7}, {18, 3}});
    expect(2, {40, 20}, {16, 10}, {{10, 5}, {}}, {{0, -7}, {40, -2}});
    expect(3, {39, 20}, {15, 10}, {{10, 5}, {}}, {{-14, -12}, {-2, 8}});
    expect(0, {40, 20}, {16, 10}, {{0, 0}, {}}, {{-56, -10}, {-16, 0}});
}

TEST_F(NumberWidgetLayout, MovesNumberAndUnitsByTheOrigin)
{
    expect(0, high_number, low_units, {{100, 40}, {3, -14}}, {{47, -4}, {87, 6}});
    expect(1, high_number, low_units, {{100, 40}, {3, -14}}, {{25, -4}, {65, 6}});
    expect(2, high_number, low_units, {{100, 40}, {3, -14}}, {{3, -4}, {43, 1}});
    expect(3, high_number, low_units, {{100, 40}, {-31, 2}}, {{-1, 7}, {11, 27}});
}

TEST_F(NumberWidgetLayout, WrapsPositionsAt16Bits)
{
    // 65535 - 16 is 65519, that is -17
    expect(0, {40, 20}, {16, 10}, {{65535, 40}, {}}, {{-57, 10}, {-17, 20}});
    expect(1, {40, 20}, {16, 10}, {{65535, 40}, {}}, {{32739, 10}, {-32757, 20}});
    expect(2, {40000, 20}, {16, 10}, {{100, 40}, {}}, {{0, 10}, {-25536, 15}});
    expect(3, {1, 40000}, {3, 10}, {{65535, 65535}, {}}, {{32767, 12762}, {32766, -12774}});
    // the sums of sizes do not wrap: (100 - 80000) / 2 is -39950, (65535 - 70000) / 2 is -2232
    expect(1, {40000, 20}, {40000, 10}, {{100, 40}, {}}, {{25586, 10}, {50, 20}});
    expect(3, {40, 30000}, {16, 40000}, {{100, 65535}, {}}, {{30, -2232}, {42, 27768}});
    // and the origin comes last
    expect(2, {32767, 20}, {16, 10}, {{100, 40}, {1, 0}}, {{1, 10}, {-32768, 15}});
    expect(2, {40, 20}, {16, 10}, {{100, 0}, {-1, -32768}}, {{-1, 32758}, {39, 32763}});
}

TEST_F(NumberWidgetLayout, ComparesTheBottomsAsSigned16BitNumbers)
{
    // Bottoms of 32768, that is -32768, and of 32763: the units' is the larger one.
    for (const auto layout : {0U, 1U})
        expect(layout, {40, 20}, {16, 10}, {{100, 65516}, {}},
               {{static_cast<std::int16_t>(layout ? 22 : 44), 32743},
                {static_cast<std::int16_t>(layout ? 62 : 84), 32753}});
    // Of 32777 and 32772 both wrap, and so do the tops that follow.
    expect(0, {40, 20}, {16, 10}, {{100, 65535}, {}}, {{44, 32757}, {84, 32767}});
}

TEST_F(NumberWidgetLayout, IsAboutTheObjectInTheNumbersPlace)
{
    Number_widget field(style(2, true), nullptr);
    field.handle_event(VT::VT_information{}); // the input number is shown
    field.input_number.width = std::uint16_t{40};
    field.input_number.height = std::uint16_t{20};
    field.output_number.width = std::uint16_t{1};
    field.output_number.height = std::uint16_t{1};
    field.set_layout({100, 40}, {});
    expect_at(field, 2, {0, 10});
    expect_at(field, 3, {40, 20});
    expect_at(field, 0, {0, 0});
}

TEST_F(NumberWidgetLayout, WritesAllSlotsOut)
{
    for (const bool input : {false, true}) {
        Number_widget field(style(0, input), nullptr);
        take(field);
        field.set_layout({100, 40}, {});
        const VT::Attribute_object_placement* const written = field.placements.get();
        EXPECT_EQ(written[0].object_id, input ? input_id : backdrop_id);
        EXPECT_EQ(written[1].object_id, backdrop_id);
        EXPECT_EQ(written[2].object_id, output_id);
        EXPECT_EQ(written[3].object_id, units_id);
    }
}

TEST_F(NumberWidgetLayout, KeepsAllSizes)
{
    Number_widget field(style(), nullptr);
    field.set_size({80, 30});
    field.set_layout({100, 40}, {5, 6});
    EXPECT_EQ(size_of(field.container), Dimension(80, 30));
    EXPECT_EQ(field.layout_size, Dimension(80, 30)) << "remembered by set_size() only";
    EXPECT_EQ(field.layout_origin, Point(0, 0));
}

} // namespace
