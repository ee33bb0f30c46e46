#include "tests/Death.h"
#include "tests/comp/Number_field.h"

#include <cmath>

using namespace number_field;

namespace {

using NumberWidgetDeathTest = Field;

death::Words in_set_system(const char* condition, unsigned line)
{
    return death::assertion(condition, "../../../vtui/comp/widgets/Number_widget", line,
                            "void VT::Comp::Number_widget::set_system(Units_man::units_systems)");
}

death::Words not_above() { return in_set_system("max > min", 37); }
death::Words too_many_steps() { return in_set_system("false", 48); }

death::Words no_child()
{
    return death::assertion(
        "false", "../../../../lib/vtui/comp/objects/Has_child_placements", 213,
        "void VT::Comp::Child_placements_array<Array_type>::deref() [with Array_type = Array_array_4]");
}

/// Shows a field of that specification.
void show(const Specification& specification)
{
    Number_widget(Style(), specification, nullptr).set_system(Units_man::metric);
}

TEST_F(NumberWidgetDeathTest, AMaximumThatIsNotAboveTheMinimumEndsTheProcess)
{
    EXPECT_DEATH(show(bounded(5, 5)), not_above());
    EXPECT_DEATH(show(bounded(5, 4)), not_above());
    EXPECT_DEATH(show(bounded(0, -1)), not_above());
    EXPECT_DEATH(show(bounded(1, 0)), not_above());
    EXPECT_DEATH(show(bounded(1, std::nextafter(1, 0))), not_above());
    EXPECT_DEATH(show(bounded(0, NAN)), not_above());
    EXPECT_DEATH(show(bounded(NAN, 1)), not_above());
    EXPECT_DEATH(show(bounded(HUGE_VAL, HUGE_VAL)), not_above());
    show(bounded(1, std::nextafter(1, 2)));
}

TEST_F(NumberWidgetDeathTest, MoreStepsThanARawNumberCountsEndTheProcess)
{
    EXPECT_DEATH(show(bounded(0, 858993459, std::nextafter(0.2, 0))), too_many_steps()) << "4294967295 and a bit";
    EXPECT_DEATH(show(bounded(0, 858993460, 0.2)), too_many_steps());
    EXPECT_DEATH(show(bounded(-429496730, 429496730, 0.2)), too_many_steps());
    EXPECT_DEATH(show(bounded(0, 2147483647, 0.49)), too_many_steps());
    EXPECT_DEATH(show(bounded(0, 100, 0)), too_many_steps()) << "infinitely many";
    EXPECT_DEATH(show(bounded(0, 2147483648.0, -0.25)), too_many_steps()) << "the lowest number by less than nothing";
    show(bounded(0, 858993459, 0.2));
}

TEST_F(NumberWidgetDeathTest, TheMaximumIsLookedAtFirst) { EXPECT_DEATH(show(bounded(100, 0, 0)), not_above()); }

TEST_F(NumberWidgetDeathTest, OnlyTheSystemShownIsLookedAt)
{
    Number_widget field(style(), bounded(0, 10), bounded(5, 5), bounded(0, 100, 0), nullptr);
    field.init(nullptr, nullptr);
    EXPECT_DEATH(field.set_system(Units_man::imperial), not_above());
    EXPECT_DEATH(field.set_system(Units_man::us), too_many_steps());
}

TEST_F(NumberWidgetDeathTest, InitShowsSystem0)
{
    Number_widget field(style(), bounded(5, 5), bounded(0, 10), nullptr);
    field.set_system(Units_man::imperial);
    EXPECT_DEATH(field.init(nullptr, nullptr), not_above());
}

TEST_F(NumberWidgetDeathTest, AnUnboundedNegativeScaleIsShownOnce)
{
    Number_widget field(style(), bounded(0, 0, -1), nullptr);
    field.set_system(Units_man::metric);
    EXPECT_DEATH(field.set_system(Units_man::metric), not_above()) << "2147483648 to -2147483647";
}

TEST_F(NumberWidgetDeathTest, ALayoutWithoutABackdropEndsTheProcess)
{
    for (const bool input : {false, true}) {
        Style bare = style(0, input);
        bare.backdrop = nullptr;
        Number_widget field(bare, bounded(0, 10), nullptr);
        field.init(nullptr, nullptr);
        EXPECT_DEATH(field.set_size({100, 40}), no_child());
        EXPECT_DEATH(field.set_layout({100, 40}, {}), no_child());
        Units_man units;
        EXPECT_DEATH(field.handle_event(units), no_child());
    }
}

TEST_F(NumberWidgetDeathTest, ALayoutWithAnEmptySlotEndsTheProcess)
{
    for (const std::size_t slot : {0U, 1U, 2U, 3U}) {
        Number_widget field(style(), bounded(0, 10), nullptr);
        field.placements.placements[slot].ref = nullptr;
        EXPECT_DEATH(field.set_size({100, 40}), no_child()) << slot;
    }
}

} // namespace
