#include "tests/gallery/Operator.h"

#include <gtest/gtest.h>

#include <array>
#include <string>

namespace {

using terminal::Area;

TEST(GalleryOperation, TheUnitsKeyShowsEveryNumberInTheNextSystem)
{
    Operator op;
    op.turn_to("layouts");
    const auto sees_all = [&](std::initializer_list<const char*> texts) {
        for (const char* text : texts)
            EXPECT_TRUE(op.sees(text)) << text;
    };
    sees_all({"metric", "12.5", " km/h", "96", " L/min", "187", " L/ha", "34.7", " ha"});
    op.use(Operator::units);
    sees_all({"imperial", "7.8", " mph", "21.1", " gal/min", "16.6", " gal/ac", "85.7", " ac"});
    EXPECT_FALSE(op.sees("12.5"));
    EXPECT_FALSE(op.sees(" km/h"));
    op.use(Operator::units);
    sees_all({"US", "7.8", " mph", "25.4", " gal/min", "20.0", " gal/ac", "85.7", " ac"});
    op.use(Operator::units);
    sees_all({"metric", "12.5", " km/h", "96", " L/min", "187", " L/ha", "34.7", " ha"});
}

TEST(GalleryOperation, TheOtherPagesFollowTheUnitsToo)
{
    Operator op;
    op.turn_to("layouts");
    op.use(Operator::units);
    op.turn_to("fields");
    EXPECT_TRUE(op.sees("imperial"));
    EXPECT_TRUE(op.sees("78.7")) << "feet of boom";
    op.turn_to("limits");
    EXPECT_TRUE(op.sees("4.049")) << "feet";
    EXPECT_TRUE(op.sees(" \260F"));
}

TEST(GalleryOperation, NumberAndUnitsAreLaidOutAgainForTheNewTexts)
{
    Operator op;
    op.turn_to("layouts");
    constexpr int right_edge = 15 + 275; // of the first field
    const auto expect_at_the_right_edge = [&](const std::string& number, const std::string& units) {
        EXPECT_EQ(op.find(units).area.right, right_edge);
        EXPECT_EQ(op.find(number).area.right, op.find(units).area.left);
    };
    EXPECT_EQ(op.find(" km/h").area.width(), 5 * 8);
    expect_at_the_right_edge("12.5", " km/h");
    op.use(Operator::units);
    EXPECT_EQ(op.find(" mph").area.width(), 4 * 8);
    expect_at_the_right_edge("7.8", " mph");

    // The pair in the middle of the second field.
    EXPECT_EQ(op.find("21.1").area.left - 15, (275 - (6 * 16 + 8 * 8)) / 2);
    EXPECT_EQ(op.find(" gal/min").area.left, op.find("21.1").area.right);
}

TEST(GalleryOperation, NoTextIsCutOff)
{
    for (const std::uint16_t side : std::array<std::uint16_t, 2>{240, 480}) {
        terminal::Hardware hardware;
        hardware.mask_size = side;
        Operator op(hardware);
        for (const gallery::Picture& picture : op.gallery.pictures()) {
            op.gallery.show(picture);
            for (const Operator::Shown& shown : op.screen())
                EXPECT_TRUE(shown.fits) << shown.text << " on " << picture.name << " of " << side;
        }
    }
}

TEST(GalleryOperation, BordersFollowTheUnits)
{
    Operator op;
    op.turn_to("fields");
    const auto border_around = [&](const std::string& number, const std::string& units) {
        const Area left = op.find(number).area, right = op.find(units).area;
        return Area{left.left - 2, left.top - 2, right.right + 2, left.bottom + 2};
    };
    EXPECT_TRUE(op.sees_rectangle(border_around("96", " L/min")));
    op.use(Operator::units);
    EXPECT_TRUE(op.sees_rectangle(border_around("21", " gal/min")));
    EXPECT_EQ(border_around("21", " gal/min").width(), 4 * 16 + 8 * 8 + 4);
}

TEST(GalleryOperation, AKeyActsWhenItIsReleased)
{
    Operator op;
    op.turn_to("fields");
    op.press(Operator::up);
    EXPECT_TRUE(op.sees("200"));
    op.release(Operator::up);
    EXPECT_TRUE(op.sees("210"));
    op.use(Operator::down);
    EXPECT_TRUE(op.sees("200"));
}

TEST(GalleryOperation, WhatIsSteppedChangesWhatFollowsFromIt)
{
    Operator op;
    op.turn_to("fields");
    op.use(Operator::up);
    EXPECT_TRUE(op.sees("101")) << "litres a minute, of 210 L/ha at 12 km/h, 24 m wide";
}

TEST(GalleryOperation, StepsAreMetricInEverySystem)
{
    Operator op;
    op.turn_to("layouts");
    op.use(Operator::units);
    op.use(Operator::up);
    EXPECT_TRUE(op.sees("8.1")) << "13 km/h";
    op.use(Operator::units);
    op.use(Operator::units);
    EXPECT_TRUE(op.sees("13.0"));
}

TEST(GalleryOperation, StepsStopAtTheLimits)
{
    Operator op;
    op.turn_to("limits");
    op.use(Operator::up);
    EXPECT_TRUE(op.sees("47"));
    EXPECT_TRUE(op.sees("Bounded: 47 %"));
    for (int i = 0; i < 12; ++i)
        op.use(Operator::up);
    EXPECT_TRUE(op.sees("100"));
    EXPECT_TRUE(op.sees("Bounded: 100 %"));
    for (int i = 0; i < 21; ++i)
        op.use(Operator::down);
    EXPECT_TRUE(op.sees("0"));
    EXPECT_TRUE(op.sees("Bounded: 0 %"));
}

TEST(GalleryOperation, AnEntryReachesTheApplicationInItsOwnUnits)
{
    Operator op;
    op.turn_to("limits");
    EXPECT_TRUE(op.sees("none yet"));
    op.use(Operator::units);
    op.enter(1, 140 + 400);
    EXPECT_TRUE(op.sees("14.0")) << "degrees Fahrenheit";
    EXPECT_TRUE(op.sees("Negative: 7.777777778 K"));
    op.enter(2, 9999);
    EXPECT_TRUE(op.sees("9.999"));
    EXPECT_TRUE(op.sees("Three decimals: 3.0476952 m"));
}

TEST(GalleryOperation, EntriesReachAsFarAs32Bits)
{
    Operator op;
    op.turn_to("limits");
    op.enter(3, 0);
    EXPECT_TRUE(op.sees("-2147483647"));
    EXPECT_TRUE(op.sees("Large offset: -2147483647"));
    op.enter(4, 4294967295);
    EXPECT_TRUE(op.sees("2147483647"));
    EXPECT_TRUE(op.sees("Unbounded: 2147483647"));
    op.enter(4, 0);
    EXPECT_TRUE(op.sees("-2147483648"));
    EXPECT_TRUE(op.sees("Unbounded: -2147483648"));
}

TEST(GalleryOperation, WhatTheOperatorSetsChangesWhatTheSprayerDoes)
{
    Operator op;
    op.turn_to("fields");
    op.enter(1, 360);
    EXPECT_TRUE(op.sees("36.0")) << "metres of boom";
    EXPECT_TRUE(op.sees("144")) << "litres a minute";
    EXPECT_TRUE(op.sees("43.2")) << "hectares an hour";
}

TEST(GalleryOperation, AFingerOnTheLabelOpensTheEntry)
{
    Operator op;
    op.turn_to("fields");
    op.use(Operator::units);
    op.touch("Boom width");
    op.type("100");
    EXPECT_TRUE(op.sees("100.0")) << "feet";
    op.use(Operator::units);
    op.use(Operator::units);
    EXPECT_TRUE(op.sees("30.5")) << "metres";
}

TEST(GalleryOperation, AnEntryStaysWhenTheUnitsChange)
{
    Operator op;
    op.turn_to("fields");
    op.use(Operator::units);
    op.enter(0, 150);
    EXPECT_TRUE(op.sees("15.0"));
    op.use(Operator::units);
    EXPECT_TRUE(op.sees("18.0")) << "the same in US gallons";
    op.use(Operator::units);
    EXPECT_TRUE(op.sees("169")) << "and in litres a hectare";
}

TEST(GalleryOperation, WithoutATouchScreenTheOperatorSeesTheInputItself)
{
    terminal::Hardware keys_only;
    keys_only.touch = false;
    Operator op(keys_only);
    op.turn_to("fields");
    EXPECT_EQ(op.find("200").type, Iso::Object_type::input_number);
    op.enter(0, 250);
    EXPECT_TRUE(op.sees("250"));
    op.use(Operator::units);
    EXPECT_EQ(op.find("22.3").type, Iso::Object_type::input_number);
}

} // namespace
