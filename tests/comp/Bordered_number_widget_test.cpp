#include "tests/Death.h"
#include "tests/comp/Number_field.h"
#include "vtui/comp/widgets/Bordered_number_widget.h"

#include <type_traits>

using namespace number_field;
using VT::Comp::Bordered_number_widget;
using VT::Comp::Dimension;
using VT::Comp::Point;

namespace {

/// Numbers of 12 × 16: three of them, with two letters of 8 × 12 behind them, make 52 × 16.
class BorderedNumberWidget : public Field
{
  protected:
    BorderedNumberWidget() { number_font.size = std::uint8_t{3}; }

    Bordered_number_widget::Style bordered(std::uint32_t layout = 0, bool input = false)
    {
        return {&line, &fill, style(layout, input)};
    }

    static void expect_border(Bordered_number_widget& field, Dimension size, Point place)
    {
        EXPECT_EQ(size_of(field.border), size);
        const VT::Attribute_object_placement* const written = field.placements.get();
        EXPECT_EQ(Point(written[0].x, written[0].y), Point(0, 0));
        EXPECT_EQ(Point(written[1].x, written[1].y), place);
        EXPECT_EQ(Point(field.placements.placements[1].x, field.placements.placements[1].y), place);
    }

    /// Where the border lies in a box.
    void expect_layout(std::uint32_t layout, Dimension box, Dimension size, Point place)
    {
        SCOPED_TRACE("layout " + std::to_string(layout));
        Bordered_number_widget field(bordered(layout), bounded(0, 100), &ha.variable);
        field.set_size(box);
        expect_border(field, size, place);
    }

    VT::Comp::Line_attributes_obj line{0, 1, 0xFFFF};
    VT::Comp::Fill_attributes_obj fill{0, 0};
    Text ha{"ha"};
};

constexpr Specification s0 = bounded(1, 50, 0.1, 1, Units_man::speed);
constexpr Specification s1 = bounded(-2, 30, 0.25, 2, Units_man::mass);
constexpr Specification s2 = bounded(3, 70, 0.5, 3, Units_man::area);

TEST_F(BorderedNumberWidget, IsConstructedLikeItsNumber)
{
    const auto expect = [&](const Bordered_number_widget& field, const Specification& first,
                            const Specification& second, const Specification& third) {
        EXPECT_EQ(field.number.specifications[0].units_type, first.units_type);
        EXPECT_EQ(field.number.specifications[0].max, first.max);
        EXPECT_EQ(field.number.specifications[1].units_type, second.units_type);
        EXPECT_EQ(field.number.specifications[1].min, second.min);
        EXPECT_EQ(field.number.specifications[2].units_type, third.units_type);
        EXPECT_EQ(field.number.specifications[2].scale, third.scale);
        for (const VT::String_variable_obj* const variable : field.number.units_variables)
            EXPECT_EQ(variable, &mph.variable);
        EXPECT_EQ(field.number.layout, 2U);
        EXPECT_EQ(field.number.output_font, &number_font);
        EXPECT_EQ(field.border_line, &line);
        EXPECT_EQ(field.border_fill, &fill);
        EXPECT_EQ(field.border.line, &line) << "the link that the pool follows";
        EXPECT_EQ(field.border.fill, &fill);
    };
    expect({bordered(2), s0, s1, s2, &mph.variable}, s0, s1, s2);
    expect({bordered(2), s0, s1, &mph.variable}, s0, s1, s1);
    expect({bordered(2), s1, &mph.variable}, s1, s1, s1);
    expect({bordered(2), &mph.variable}, Specification(), Specification(), Specification());
}

TEST_F(BorderedNumberWidget, PlacesTheBorderOverTheNumber)
{
    Bordered_number_widget field(bordered(), s0, nullptr);
    EXPECT_EQ(size_of(field.container), Dimension(240, 240));
    EXPECT_EQ(field.get_size(), Dimension(240, 240));
    EXPECT_EQ(field.container.get_id(), VT::VT_obj::NULL_ID);
    EXPECT_EQ(field.border.get_id(), VT::VT_obj::NULL_ID);
    EXPECT_EQ(field.placements.size(), 2U);
    EXPECT_EQ(field.placements.placements[0].ref, &field.number.container);
    EXPECT_EQ(field.placements.placements[1].ref, &field.border);
    for (std::size_t i = 0; i < 2; ++i)
        EXPECT_EQ(Point(field.placements.placements[i].x, field.placements.placements[i].y), Point(0, 0));
    EXPECT_EQ(field.container.placements_ptr, &field.placements);
    EXPECT_EQ(&field.root(), &field.container);
    EXPECT_FALSE(std::is_polymorphic_v<Bordered_number_widget>);
}

TEST_F(BorderedNumberWidget, LinksItsBorderToLineAndFill)
{
    Bordered_number_widget field(bordered(), s0, nullptr);
    EXPECT_EQ(field.border.line_attributes, VT::VT_obj::NULL_ID) << "an id comes with the pool";
    EXPECT_EQ(field.border.fill_attributes, VT::VT_obj::NULL_ID);
    pool.take(line, 0x0A0B);
    pool.take(fill, 0x0C0D);
    pool.take(field.border, 0x0102);
    pool.live = true;
    field.construct(&line, &fill);
    field.construct(nullptr, nullptr);
    EXPECT_EQ(pool.news(), (Messages{{0xAF, 0x02, 0x01, 1, 0x0B, 0x0A, 0, 0},
                                     {0xAF, 0x02, 0x01, 5, 0x0D, 0x0C, 0, 0},
                                     {0xAF, 0x02, 0x01, 1, 0xFF, 0xFF, 0, 0},
                                     {0xAF, 0x02, 0x01, 5, 0xFF, 0xFF, 0, 0}}));
}

TEST_F(BorderedNumberWidget, NeedsNeitherLineNorFill)
{
    Bordered_number_widget field({nullptr, nullptr, style()}, s0, nullptr);
    EXPECT_EQ(field.border_line, nullptr);
    EXPECT_EQ(field.border_fill, nullptr);
    pool.take(field.border, 0x0102);
    field.construct(nullptr, nullptr);
    field.set_size({100, 40});
    EXPECT_EQ(field.border.line_attributes, VT::VT_obj::NULL_ID);
    EXPECT_EQ(field.border.fill_attributes, VT::VT_obj::NULL_ID);
}

TEST_F(BorderedNumberWidget, PrefersTwoPixelsMoreOnEverySide)
{
    const Bordered_number_widget beside(bordered(0), bounded(0, 100), &ha.variable);
    EXPECT_EQ(beside.number.get_preferred_size(), Dimension(52, 16));
    EXPECT_EQ(beside.get_preferred_size(), Dimension(56, 20));
    const Bordered_number_widget stacked(bordered(3), bounded(0, 100), &ha.variable);
    EXPECT_EQ(stacked.get_preferred_size(), Dimension(40, 32));
}

TEST_F(BorderedNumberWidget, MayNeedMoreThan8Bits)
{
    number_font.size = std::uint8_t{14}; // 128 × 192
    units_font.size = std::uint8_t{14};
    const Bordered_number_widget field(bordered(3), bounded(0, 100), &ha.variable);
    EXPECT_EQ(field.get_preferred_size(), Dimension(388, 388));
}

TEST_F(BorderedNumberWidget, HugsTheRightEdgeLikeItsNumber) { expect_layout(0, {100, 40}, {56, 20}, {44, 10}); }

TEST_F(BorderedNumberWidget, LiesInTheMiddleInAllOtherLayouts)
{
    expect_layout(1, {100, 40}, {56, 20}, {22, 10});
    expect_layout(2, {100, 40}, {56, 20}, {22, 10});
    expect_layout(3, {100, 40}, {40, 32}, {30, 4});
    expect_layout(9, {100, 40}, {40, 32}, {30, 4});
}

TEST_F(BorderedNumberWidget, CutsHalfAPixelOff)
{
    expect_layout(0, {101, 41}, {56, 20}, {45, 10});
    expect_layout(1, {101, 41}, {56, 20}, {22, 10});
    expect_layout(1, {51, 15}, {56, 20}, {-2, -2}); // -5 / 2
}

TEST_F(BorderedNumberWidget, OverhangsABoxThatIsTooSmallAndWrapsAt16Bits)
{
    expect_layout(0, {10, 10}, {56, 20}, {-46, -5});
    expect_layout(0, {65535, 65535}, {56, 20}, {-57, 32757});
    expect_layout(1, {65535, 65535}, {56, 20}, {32739, 32757});
}

TEST_F(BorderedNumberWidget, GivesItsNumberTheWholeArea)
{
    Bordered_number_widget field(bordered(0, true), bounded(0, 100), &ha.variable);
    field.set_size({100, 40});
    EXPECT_EQ(field.get_size(), Dimension(100, 40));
    EXPECT_EQ(size_of(field.container), Dimension(100, 40));
    EXPECT_EQ(size_of(field.number.container), Dimension(100, 40));
    EXPECT_EQ(field.number.layout_size, Dimension(100, 40));
    EXPECT_EQ(field.number.layout_origin, Point(0, 0));
    EXPECT_EQ(size_of(field.number.input_number), Dimension(100, 40));
    EXPECT_EQ(field.number.placements.attributes[3].x, 84);
}

TEST_F(BorderedNumberWidget, TakesItsPreferredSize)
{
    Bordered_number_widget field(bordered(1), bounded(0, 100), &ha.variable);
    field.set_preferred_size();
    EXPECT_EQ(field.get_size(), Dimension(56, 20));
    expect_border(field, {56, 20}, {0, 0});
    EXPECT_EQ(field.number.placements.attributes[2].x, 2) << "the margin";
}

TEST_F(BorderedNumberWidget, FollowsItsNumberToAnotherSystem)
{
    Bordered_number_widget field(bordered(1), bounded(0, 100, 1, 0, Units_man::speed),
                                 bounded(0, 10000, 1, 0, Units_man::speed), &ha.variable);
    field.init(nullptr, nullptr);
    field.set_size({100, 40});
    field.number.set_system(Units_man::imperial);
    expect_border(field, {56, 20}, {22, 10});
    field.set_size({100, 40});
    expect_border(field, {80, 20}, {10, 10});

    Units_man units;
    field.handle_event(units);
    EXPECT_EQ(field.number.system, Units_man::metric);
    expect_border(field, {56, 20}, {22, 10});
    EXPECT_EQ(field.get_size(), Dimension(100, 40));
}

TEST_F(BorderedNumberWidget, UploadsItselfAfterItsNumberWhenUnitsHaveChanged)
{
    Bordered_number_widget field(bordered(1), bounded(0, 100), nullptr);
    field.init(nullptr, nullptr);
    field.set_size({100, 40});
    take(field.number);
    pool.take(field.container, 0x3001);
    pool.upload(field.container);
    pool.sent.clear();
    pool.live = true;
    Units_man units;
    field.handle_event(units);
    EXPECT_EQ(pool.news(), (Messages{frame(0xA8, w(output_id), 0xFF, d(0)), //
                                     join(0x11, w(container_id)),           //
                                     join(0x11, w(0x3001))}));
}

TEST_F(BorderedNumberWidget, HandsOtherEventsToItsNumber)
{
    Bordered_number_widget field(bordered(0, true), bounded(0, 100, 0.5), nullptr);
    field.init(nullptr, nullptr);
    take(field.number);
    VT::VT_change_numeric_value_event entry{input_id, 37};
    field.handle_event(entry);
    EXPECT_EQ(field.get_value(), 18.5);
    field.handle_event(VT::VT_information{});
    EXPECT_EQ(field.number.placements.placements[2].ref, &field.number.input_number);
}

TEST_F(BorderedNumberWidget, ForwardsToItsNumber)
{
    Bordered_number_widget field(bordered(0, true), bounded(-10, 100, 0.5), &mph.variable);
    field.init(nullptr, &ha.variable);
    EXPECT_EQ(field.number.units_variable, &ha.variable);
    EXPECT_EQ(field.number.output_number.offset, -20);
    field.set_value(30);
    EXPECT_EQ(field.get_value(), 30);
    EXPECT_EQ(field.number.output_number.value, 80U);
    field.increment(5);
    EXPECT_EQ(field.get_value(), 35);
    field.decrement(500);
    EXPECT_EQ(field.get_value(), -10);
    EXPECT_FALSE(field.is_input(input_id));
    pool.take(field.number.input_number, input_id);
    EXPECT_TRUE(field.is_input(input_id));
    EXPECT_FALSE(field.is_input(output_id));

    Bordered_number_widget speed(bordered(), s0, nullptr);
    speed.init(&pool, nullptr);
    EXPECT_EQ(speed.number.units_variable, Units_man::get_units_string(&pool, Units_man::speed));
}

TEST_F(BorderedNumberWidget, SendsItsValueAndNoLayout)
{
    Bordered_number_widget field(bordered(0, true), bounded(0, 100, 0.5), nullptr);
    field.init(nullptr, nullptr);
    take(field.number);
    pool.take(field.container, 0x3001);
    pool.take(field.border, 0x3002);
    pool.live = true;
    field.set_size({100, 40});
    field.set_preferred_size();
    EXPECT_TRUE(pool.news().empty());
    EXPECT_EQ(field.placements.attributes[0].object_id, container_id);
    EXPECT_EQ(field.placements.attributes[1].object_id, 0x3002);
    field.set_value(18.5);
    EXPECT_EQ(pool.news(), (Messages{frame(0xA8, w(output_id), 0xFF, d(37)), frame(0xA8, w(input_id), 0xFF, d(37))}));
}

using BorderedNumberWidgetDeathTest = BorderedNumberWidget;

death::Words no_child(const char* array)
{
    return death::assertion("false", "../../../../lib/vtui/comp/objects/Has_child_placements", 213,
                            std::string("void VT::Comp::Child_placements_array<Array_type>::deref() "
                                        "[with Array_type = ") +
                                array + "]");
}

TEST_F(BorderedNumberWidgetDeathTest, ALayoutWithAnEmptySlotEndsTheProcess)
{
    Bordered_number_widget field(bordered(), s0, nullptr);
    field.placements.placements[1].ref = nullptr;
    EXPECT_DEATH(field.set_size({100, 40}), no_child("Array_array_2"));
}

TEST_F(BorderedNumberWidgetDeathTest, ALayoutWithoutABackdropEndsTheProcess)
{
    Bordered_number_widget field({&line, &fill, {}}, s0, nullptr);
    EXPECT_DEATH(field.set_size({100, 40}), no_child("Array_array_4"));
}

} // namespace
