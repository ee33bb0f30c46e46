#include "tests/comp/Number_field.h"

#include <limits>

using namespace number_field;
using VT::VT_change_numeric_value_event;
using VT::VT_information;

namespace {

using Heard = std::vector<double>;

/// A field from 0 to 100 in halves, or as a test wants it.
class NumberWidgetEvent : public Field
{
  protected:
    Listener field{style(0, true), bounded(0, 100, 0.5), nullptr};

    NumberWidgetEvent() { field.init(nullptr, nullptr); }

    void enter(Iso::Object_id id, std::uint32_t raw)
    {
        VT_change_numeric_value_event event{id, raw};
        field.handle_event(event);
    }
};

TEST_F(NumberWidgetEvent, OfAnEntryGivesTheValue)
{
    field.handle_input(37);
    EXPECT_EQ(field.get_value(), 18.5);
    EXPECT_EQ(field.heard, (Heard{18.5}));
}

TEST_F(NumberWidgetEvent, OfAnEntryIsShownByTheOutputNumberOnly)
{
    field.handle_input(37);
    EXPECT_EQ(field.output_number.value, 37U);
    EXPECT_EQ(field.input_number.value, 0U) << "the terminal has changed its own";
}

TEST_F(NumberWidgetEvent, OfAnEntryIsNotKeptWithinTheLimits)
{
    field.handle_input(201);
    EXPECT_EQ(field.get_value(), 100.5);
    field.handle_input(4294967295U);
    EXPECT_EQ(field.get_value(), 2147483647.5);
    EXPECT_EQ(field.output_number.value, 4294967295U);
}

TEST_F(NumberWidgetEvent, OfAnEntryIsExactWhereTheTerminalsNumbersAreNot)
{
    Listener tenths(style(), bounded(-10, 10, 0.1), nullptr);
    tenths.init(nullptr, nullptr);
    tenths.handle_input(3);
    EXPECT_EQ(tenths.get_value(), 3 * 0.1 - 10) << "the float nearest to 0.1 would give more";

    Listener odd(style(), bounded(0.25, 10), nullptr);
    odd.init(nullptr, nullptr);
    EXPECT_EQ(odd.output_number.offset, 0);
    odd.handle_input(5);
    EXPECT_EQ(odd.get_value(), 5.25) << "the minimum itself, not the whole offset";
}

TEST_F(NumberWidgetEvent, OfAnEntryIsDividedByTheFactor)
{
    Listener warm(style(), bounded(0, 100, 1, 0, Units_man::temperature_difference), nullptr);
    warm.init(nullptr, nullptr);
    warm.handle_input(18);
    warm.set_system(Units_man::imperial);
    warm.handle_input(18);
    warm.set_system(Units_man::metric);
    warm.handle_input(9);
    EXPECT_EQ(warm.heard, (Heard{18, 10, 9}));
}

TEST_F(NumberWidgetEvent, OfAnEntryIsReportedWhenAllIsDone)
{
    struct Witness : Number_widget
    {
        using Number_widget::Number_widget;
        void handle_input_value(double v) override
        {
            EXPECT_EQ(get_value(), v);
            shown = output_number.value;
        }
        std::uint32_t shown{0};
    };
    Witness witness(style(), bounded(0, 100), nullptr);
    witness.handle_input(37);
    EXPECT_EQ(witness.shown, 37U);
    witness.increment(1);
    EXPECT_EQ(witness.shown, 38U);
}

TEST_F(NumberWidgetEvent, OfAnEntryNeedsNobodyToHearOfIt)
{
    Number_widget plain(style(), bounded(0, 100), nullptr);
    plain.handle_input(12);
    plain.handle_input_value(3);
    EXPECT_EQ(plain.get_value(), 12);
}

TEST_F(NumberWidgetEvent, OfItsInputNumberIsAnEntry)
{
    take(field);
    enter(input_id, 37);
    EXPECT_EQ(field.get_value(), 18.5);
    EXPECT_EQ(field.heard, (Heard{18.5}));
}

TEST_F(NumberWidgetEvent, OfAnotherObjectChangesNothing)
{
    take(field);
    field.set_value(3);
    for (const Iso::Object_id id : {output_id, container_id, units_id, backdrop_id, Iso::null_id, Iso::Object_id{0}})
        enter(id, 37);
    EXPECT_EQ(field.get_value(), 3);
    EXPECT_EQ(field.output_number.value, 6U);
    EXPECT_TRUE(field.heard.empty());
}

TEST_F(NumberWidgetEvent, OfTheSameIdAsThatOfTheInputNumberIsAnEntryEvenIfThatIsNull)
{
    enter(Iso::null_id, 37);
    EXPECT_EQ(field.heard, (Heard{18.5}));
}

TEST_F(NumberWidgetEvent, KnowsItsInputByTheIdItHasBeenGiven)
{
    EXPECT_FALSE(field.is_input(VT::VT_obj::NULL_ID)) << "it has none yet";
    EXPECT_FALSE(field.is_input(input_id));
    take(field);
    EXPECT_TRUE(field.is_input(input_id));
    EXPECT_FALSE(field.is_input(output_id));
    EXPECT_FALSE(field.is_input(container_id));
    EXPECT_FALSE(field.is_input(VT::VT_obj::NULL_ID));
}

TEST_F(NumberWidgetEvent, OfAStepReportsTheValue)
{
    field.set_value(10);
    field.increment(2.5);
    field.decrement(4);
    field.increment(-1);
    EXPECT_EQ(field.heard, (Heard{12.5, 8.5, 7.5}));
    EXPECT_EQ(field.get_value(), 7.5);
    EXPECT_EQ(field.output_number.value, 15U);
    EXPECT_EQ(field.input_number.value, 15U);
}

TEST_F(NumberWidgetEvent, OfAStepStopsAtTheLimitsAndReportsThem)
{
    field.set_value(99);
    field.increment(5);
    field.increment(5);
    field.set_value(1);
    field.decrement(5);
    field.increment(std::numeric_limits<double>::quiet_NaN());
    EXPECT_EQ(field.heard, (Heard{100, 100, 0, 0}));
    EXPECT_EQ(field.get_value(), 0);
}

TEST_F(NumberWidgetEvent, OfTheProgramIsNotReported)
{
    field.set_value(7);
    field.set_system(Units_man::us);
    Units_man units;
    field.set_size({100, 40});
    field.handle_event(units);
    field.handle_event(VT_information{});
    EXPECT_TRUE(field.heard.empty());
}

/// True if the answer of a terminal has put the input number in the place of the output number.
bool exchanged(Number_widget& field)
{
    const VT::VT_obj* const touched = field.placements.placements[0].ref;
    const VT::VT_obj* const shown = field.placements.placements[2].ref;
    EXPECT_TRUE((touched == &field.input_number && shown == &field.output_number) ||
                (touched == &field.output_number && shown == &field.input_number));
    return shown == &field.input_number;
}

VT_information terminal(std::uint8_t options, std::uint32_t code)
{
    VT_information information{};
    information.options = options;
    information.code = code;
    return information;
}

TEST_F(NumberWidgetEvent, OfATerminalWithTheFlagOrOfCode9LeavesTheNumbersInTheirPlaces)
{
    for (const VT_information& information :
         {terminal(1, 0), terminal(0xFF, 0), terminal(3, 2), terminal(0, 9), terminal(0xFE, 9), terminal(1, 9)}) {
        field.handle_event(information);
        EXPECT_FALSE(exchanged(field)) << +information.options << ' ' << information.code;
    }
}

TEST_F(NumberWidgetEvent, OfAnyOtherTerminalExchangesTheNumbers)
{
    for (const VT_information& information : {terminal(0, 0), terminal(2, 0), terminal(0xFE, 8), terminal(0, 10),
                                              terminal(0, 0x109), terminal(0, 0x90000)}) {
        Number_widget other(style(0, true), nullptr);
        other.handle_event(information);
        EXPECT_TRUE(exchanged(other)) << +information.options << ' ' << information.code;
    }
}

TEST_F(NumberWidgetEvent, OfATerminalExchangesTheNumbersOnce)
{
    field.handle_event(terminal(0, 0));
    EXPECT_TRUE(exchanged(field));
    field.handle_event(terminal(0, 0));
    EXPECT_TRUE(exchanged(field));
    field.handle_event(terminal(1, 0));
    EXPECT_TRUE(exchanged(field)) << "not undone by another terminal";
}

TEST_F(NumberWidgetEvent, OfATerminalIsNoConcernOfAFieldWithoutInput)
{
    Number_widget shown(style(0, false), nullptr);
    shown.handle_event(terminal(0, 0));
    EXPECT_EQ(shown.placements.placements[0].ref, &backdrop);
    EXPECT_EQ(shown.placements.placements[2].ref, &shown.output_number);
}

TEST_F(NumberWidgetEvent, OfATerminalExchangesOnlyWhatTheSlotsHold)
{
    take(field);
    field.set_size({100, 40}, {90, 30}, {5, 6});
    pool.live = true;
    const auto numbers = field.placements.placements[2];
    field.handle_event(terminal(0, 0));
    EXPECT_EQ(field.placements.placements[2].x, numbers.x);
    EXPECT_EQ(field.placements.placements[2].y, numbers.y);
    EXPECT_EQ(field.placements.placements[0].x, 0);
    EXPECT_EQ(field.placements.attributes[0].object_id, input_id) << "written out with the next layout";
    EXPECT_EQ(field.placements.attributes[2].object_id, output_id);
    EXPECT_TRUE(pool.sent.empty());

    field.set_size({100, 40});
    EXPECT_EQ(field.placements.attributes[0].object_id, output_id);
    EXPECT_EQ(field.placements.attributes[0].x, 0);
    EXPECT_EQ(field.placements.attributes[0].y, 0);
    EXPECT_EQ(field.placements.attributes[2].object_id, input_id);
    EXPECT_TRUE(pool.sent.empty());
}

} // namespace
