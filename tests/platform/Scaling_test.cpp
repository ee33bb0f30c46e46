#include "tests/Record_text.h"
#include "tests/platform/Objects.h"

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <thread>

namespace {

TEST(Scaling, StretchesAnArea)
{
    auto object = objects::container();
    object.__set_scale(1, 3, 2, 4);
    EXPECT_EQ(object.width, 120);
    EXPECT_EQ(object.height, 90);
    EXPECT_TRUE(object.width.changed());
}

TEST(Scaling, CutsFractionsOff)
{
    auto object = objects::rectangle();
    object.__set_scale(2, 1, 3, 3);
    EXPECT_EQ(object.width, 46) << "70 * 2 / 3";
    EXPECT_EQ(object.height, 16) << "50 / 3";
}

TEST(Scaling, MultipliesBeforeItDivides)
{
    auto object = objects::container();
    object.__set_scale(480, 480, 240, 240);
    EXPECT_EQ(object.width, 480);
    object.__set_scale(65535, 65535, 65535, 65535);
    EXPECT_EQ(object.width, 480);
}

TEST(Scaling, MovesChildrenAndCutsNegativePositionsTowardsZero)
{
    VT::Attribute_object_placement children[2];
    children[0].x = std::int16_t{-7};
    children[0].y = std::int16_t{9};
    children[1].x = std::int16_t{20};
    children[1].y = std::int16_t{-9};
    auto object = objects::container(children, 2);
    object.__set_scale(1, 1, 2, 4);
    EXPECT_EQ(children[0].x, -3);
    EXPECT_EQ(children[0].y, 2);
    EXPECT_EQ(children[1].x, 10);
    EXPECT_EQ(children[1].y, -2);
}

TEST(Scaling, OfAPictureStretchesItsWidthOnly)
{
    auto object = objects::picture();
    object.__set_scale(1, 1, 2, 2);
    EXPECT_EQ(Record_text::of(object),
              (Record_text::Lines{"u16 width 32 #1", "u16 actual_width 2", "u16 actual_height 2", "u8 format 2",
                                  "u8 options 1 #2", "colour transparency_colour 13 #3", "count u32 4", "count u8 0",
                                  "raw 'abcd'"}));
}

TEST(Scaling, LeavesWhatIsNoLengthAlone)
{
    auto number = objects::input_number();
    auto before = Record_text::of(number);
    number.__set_scale(1, 1, 2, 2);
    before[0] = "u16 width 50 #1";
    before[1] = "u16 height 8 #2";
    EXPECT_EQ(Record_text::of(number), before);

    auto line = objects::line_attributes();
    const auto line_before = Record_text::of(line);
    line.__set_scale(1, 1, 2, 2);
    EXPECT_EQ(Record_text::of(line), line_before);

    auto key = objects::key();
    const auto key_before = Record_text::of(key);
    key.__set_scale(1, 1, 2, 2);
    EXPECT_EQ(Record_text::of(key), key_before);
}

TEST(Scaling, OfAFontTakesTheLargestThatFitsTheScaledCell)
{
    const auto scaled = [](std::uint8_t code, std::uint16_t a, std::uint16_t b, std::uint16_t c, std::uint16_t d) {
        auto font = objects::font(code);
        font.__set_scale(a, b, c, d);
        return int{font.size};
    };
    EXPECT_EQ(scaled(6, 1, 1, 1, 1), 6);
    EXPECT_EQ(scaled(6, 1, 1, 2, 2), 3) << "12 x 16";
    EXPECT_EQ(scaled(6, 2, 2, 1, 1), 9) << "48 x 64";
    EXPECT_EQ(scaled(6, 5, 5, 6, 6), 5) << "16 x 24 into 20 x 26";
    EXPECT_EQ(scaled(6, 1, 1, 1, 2), 4) << "16 x 16 into 24 x 16";
    EXPECT_EQ(scaled(6, 1, 1, 2, 1), 3) << "12 x 16 into 12 x 32";
    EXPECT_EQ(scaled(6, 1, 1, 100, 100), 0) << "the smallest there is";
    EXPECT_EQ(scaled(14, 2, 2, 1, 1), 14) << "the largest there is";
    EXPECT_EQ(scaled(0, 480, 480, 200, 200), 3) << "12 x 16 into 14 x 19";
}

TEST(Font, HasTheCellOfItsSize)
{
    EXPECT_EQ(objects::font(6).get_font_width(), 24);
    EXPECT_EQ(objects::font(6).get_font_height(), 32);
    EXPECT_EQ(objects::font(0).get_font_width(), 6);
    EXPECT_EQ(objects::font(14).get_font_height(), 192);
}

TEST(ScaleCheck, AcceptsWhatFitsSixteenBitsAndChangesNothing)
{
    VT::Attribute_object_placement children[1];
    children[0].x = std::int16_t{100};
    auto object = objects::container(children, 1);
    const auto before = Record_text::of(object);
    EXPECT_TRUE(object.check_scale_area(2, 2, 1, 1));
    EXPECT_TRUE(object.check_scale_area(273, 273, 1, 1)) << "240 * 273 = 65520, 100 * 273 = 27300";
    EXPECT_EQ(Record_text::of(object), before);
}

TEST(ScaleCheck, RefusesASizeBeyondSixteenBitsAndChangesNothing)
{
    auto object = objects::container();
    const auto before = Record_text::of(object);
    EXPECT_FALSE(object.check_scale_area(274, 1, 1, 1)) << "240 * 274 = 65760";
    EXPECT_FALSE(object.check_scale_area(1, 547, 1, 1)) << "120 * 547 = 65640";
    EXPECT_TRUE(object.check_scale_area(1, 546, 1, 1)) << "120 * 546 = 65520";
    EXPECT_EQ(Record_text::of(object), before);
}

TEST(ScaleCheck, RefusesAPositionBeyondSixteenBits)
{
    VT::Attribute_object_placement children[2];
    children[1].x = std::int16_t{1000};
    auto object = objects::container(children, 2);
    EXPECT_TRUE(object.check_scale_area(32, 1, 1, 1));
    EXPECT_FALSE(object.check_scale_area(33, 1, 1, 1)) << "33000 is no signed position";
    children[1].x = std::int16_t{0};
    children[1].y = std::int16_t{-1000};
    EXPECT_TRUE(object.check_scale_area(1, 32, 1, 1));
    EXPECT_FALSE(object.check_scale_area(1, 33, 1, 1));
}

TEST(ScaleCheck, AcceptsTheLastSizeAndTheLastPositions)
{
    VT::Attribute_object_placement children[2];
    children[0].x = std::int16_t{1057};  // × 31 = 32767
    children[1].y = std::int16_t{-1024}; // × 32 = -32768
    auto object = objects::container(children, 2);
    object.width = std::uint16_t{1};
    object.height = std::uint16_t{1};
    EXPECT_TRUE(object.check_scale_area(31, 32, 1, 1));
    object.__set_scale(31, 32, 1, 1);
    EXPECT_EQ(children[0].x, 32767);
    EXPECT_EQ(children[1].y, -32768);

    auto area = objects::container();
    area.width = std::uint16_t{13107};
    area.height = std::uint16_t{21845};
    EXPECT_TRUE(area.check_scale_area(5, 3, 1, 1));
    area.__set_scale(5, 3, 1, 1);
    EXPECT_EQ(area.width, 65535);
    EXPECT_EQ(area.height, 65535);
    EXPECT_FALSE(area.check_scale_area(65536 / 2, 1, 65535 / 2, 1)) << "65537";
    EXPECT_FALSE(area.check_scale_area(1, 65536 / 2, 1, 65535 / 2));
}

TEST(ScaleCheck, RefusesTheFirstPositionsBeyond)
{
    VT::Attribute_object_placement children[1];
    auto object = objects::container(children, 1);
    object.width = std::uint16_t{1};
    object.height = std::uint16_t{1};
    children[0].x = std::int16_t{16384};
    EXPECT_FALSE(object.check_scale_area(2, 1, 1, 1)) << "32768";
    children[0].x = std::int16_t{0};
    children[0].y = std::int16_t{-10923};
    EXPECT_FALSE(object.check_scale_area(1, 3, 1, 1)) << "-32769";
}

TEST(ScaleCheck, RefusesAPointBeyondSixteenBitsAndChangesNothing)
{
    VT::Attribute_point points[2];
    points[1].x = std::uint16_t{2000};
    points[0].y = std::uint16_t{3000};
    auto object = objects::polygon(points, 2);
    const auto before = Record_text::of(object);
    EXPECT_TRUE(object.check_scale_area(32, 21, 1, 1)) << "64000 across, 63000 down";
    EXPECT_FALSE(object.check_scale_area(33, 1, 1, 1)) << "66000 across";
    EXPECT_FALSE(object.check_scale_area(1, 22, 1, 1)) << "66000 down";
    EXPECT_EQ(Record_text::of(object), before);
}

TEST(ScaleCheck, WaitsForTheLockAndReleasesIt)
{
    auto object = objects::container();
    std::atomic<bool> checked{false};
    object.lock();
    std::thread second([&] {
        object.check_scale_area(2, 2, 1, 1);
        checked = true;
    });
    std::this_thread::sleep_for(std::chrono::milliseconds(30));
    EXPECT_FALSE(checked);
    object.unlock();
    second.join();
    EXPECT_TRUE(checked);
    object.lock(); // would wait for ever if it were still held
    object.unlock();
}

} // namespace
