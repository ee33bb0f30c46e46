#include "tests/Fake_pool.h"
#include "tests/Record_text.h"
#include "tests/platform/Objects.h"

#include <gtest/gtest.h>

using Lines = Record_text::Lines;
using objects::none;

namespace {

const VT::Macro_reference macro[] = {{17, 4}};

/// Two children of ids 50 and 51.
struct Children
{
    Children()
    {
        list[0].object_id = std::uint16_t{50};
        list[0].x = std::int16_t{-3};
        list[0].y = std::int16_t{4};
        list[1].object_id = std::uint16_t{51};
    }

    VT::Attribute_object_placement list[2];
};

const Lines lists{"count u8 2", "count u8 1", "child 50 at -3,4", "child 51 at 0,0", "macro 17:4"};

Lines join(Lines lines, const Lines& more)
{
    lines.insert(lines.end(), more.begin(), more.end());
    return lines;
}

TEST(Record, OfAContainer)
{
    Children children;
    VT::Container_obj object{none, nullptr, 240, 120, 1, 2, 1, children.list, macro};
    EXPECT_EQ(object.get_type(), Iso::Object_type::container);
    EXPECT_EQ(Record_text::of(object), join({"u16 width 240 #1", "u16 height 120 #2", "u8 hidden 1"}, lists));
}

TEST(Record, OfAButton)
{
    Children children;
    VT::Button_obj object{none, nullptr, 60, 30, 7, 8, 9, 4, 2, 1, children.list, macro};
    EXPECT_EQ(object.get_type(), Iso::Object_type::button);
    EXPECT_EQ(Record_text::of(object), join({"u16 width 60 #1", "u16 height 30 #2", "colour background_colour 7 #3",
                                             "colour border_colour 8 #4", "u8 key_code 9 #5", "u8 options 4 #6"},
                                            lists));
}

TEST(Record, OfAKey)
{
    Children children;
    VT::Key_obj object{none, nullptr, 5, 6, 2, 1, children.list, macro};
    EXPECT_EQ(object.get_type(), Iso::Object_type::key);
    EXPECT_EQ(Record_text::of(object), join({"colour background_colour 5 #1", "u8 key_code 6 #2"}, lists));
}

TEST(Record, OfAnOutputNumber)
{
    auto object = objects::output_number();
    EXPECT_EQ(object.get_type(), Iso::Object_type::output_number);
    // The value has a command of its own.
    EXPECT_EQ(Record_text::of(object),
              (Lines{"u16 width 100 #1", "u16 height 16 #2", "colour background_colour 3 #3",
                     "id font_attributes 21 #4", "u8 options 8 #5", "id variable_reference 22 #6", "u32 value 1234",
                     "s32 offset -5 #7", "f32 scale 0.5 #8", "u8 number_of_decimals 2 #9", "u8 format 1 #10",
                     "u8 justification 6 #11", "count u8 0"}));
}

TEST(Record, OfAnInputNumber)
{
    auto object = objects::input_number();
    EXPECT_EQ(object.get_type(), Iso::Object_type::input_number);
    EXPECT_EQ(
        Record_text::of(object),
        (Lines{"u16 width 100 #1", "u16 height 16 #2", "colour background_colour 3 #3", "id font_attributes 21 #4",
               "u8 options 8 #5", "id variable_reference 22 #6", "u32 value 1234", "u32 min_value 10 #7",
               "u32 max_value 2000 #8", "s32 offset -5 #9", "f32 scale 0.5 #10", "u8 number_of_decimals 2 #11",
               "u8 format 1 #12", "u8 justification 6 #13", "u8 options_2 1 #15", "count u8 0"}));
}

TEST(Record, OfAnOutputString)
{
    char text[] = "speed";
    auto object = objects::output_string(text, 5);
    EXPECT_EQ(object.get_type(), Iso::Object_type::output_string);
    EXPECT_EQ(Record_text::of(object),
              (Lines{"u16 width 80 #1", "u16 height 24 #2", "colour background_colour 3 #3", "id font_attributes 21 #4",
                     "u8 options 2 #5", "id variable_reference 22 #6", "u8 justification 5 #7", "text value 5 'speed'",
                     "count u8 0"}));
    EXPECT_EQ(object.length, 5);
}

TEST(Record, OfARectangle)
{
    auto object = objects::rectangle();
    EXPECT_EQ(object.get_type(), Iso::Object_type::rectangle);
    EXPECT_EQ(Record_text::of(object), (Lines{"id line_attributes 31 #1", "u16 width 70 #2", "u16 height 50 #3",
                                              "u8 line_suppression 9 #4", "id fill_attributes 32 #5", "count u8 0"}));
}

TEST(Record, OfALine)
{
    auto object = objects::line();
    EXPECT_EQ(object.get_type(), Iso::Object_type::line);
    EXPECT_EQ(Record_text::of(object), (Lines{"id line_attributes 31 #1", "u16 width 70 #2", "u16 height 50 #3",
                                              "u8 line_direction 1 #4", "count u8 0"}));
}

TEST(Record, OfAPolygon)
{
    VT::Attribute_point points[2];
    points[0].x = std::uint16_t{10};
    points[1].y = std::uint16_t{7};
    VT::Polygon_obj object{none, nullptr, 70, 50, 31, 32, 2, 2, 1, points, macro};
    EXPECT_EQ(object.get_type(), Iso::Object_type::polygon);
    EXPECT_EQ(Record_text::of(object),
              (Lines{"u16 width 70 #1", "u16 height 50 #2", "id line_attributes 31 #3", "id fill_attributes 32 #4",
                     "u8 polygon_type 2 #5", "count u8 2", "count u8 1", "point 10,0", "point 0,7", "macro 17:4"}));
}

TEST(Record, OfAPictureGraphic)
{
    VT::Picture_graphic_obj object{none, nullptr, 64, 4, 2, 2, 1, 13, 4, 1, objects::pixels, macro};
    EXPECT_EQ(object.get_type(), Iso::Object_type::picture_graphic);
    EXPECT_EQ(Record_text::of(object),
              (Lines{"u16 width 64 #1", "u16 actual_width 4", "u16 actual_height 2", "u8 format 2", "u8 options 1 #2",
                     "colour transparency_colour 13 #3", "count u32 4", "count u8 1", "raw 'abcd'", "macro 17:4"}));
}

TEST(Record, OfAnObjectPointer)
{
    auto object = objects::object_pointer();
    EXPECT_EQ(object.get_type(), Iso::Object_type::object_pointer);
    EXPECT_EQ(Record_text::of(object), (Lines{"id value 40 #1"}));
}

TEST(Record, OfAStringVariable)
{
    char text[] = "ab";
    auto object = objects::string_variable(text, 2);
    EXPECT_EQ(object.get_type(), Iso::Object_type::string_variable);
    EXPECT_EQ(Record_text::of(object), (Lines{"text value 2 'ab'"}));
}

TEST(Record, OfFontAttributes)
{
    auto object = objects::font();
    EXPECT_EQ(object.get_type(), Iso::Object_type::font_attributes);
    EXPECT_EQ(Record_text::of(object), (Lines{"colour font_colour 9 #1", "u8 font_size 6 #2", "u8 font_type 1 #3",
                                              "u8 font_style 5 #4", "count u8 0"}));
}

TEST(Record, OfLineAttributes)
{
    auto object = objects::line_attributes();
    EXPECT_EQ(object.get_type(), Iso::Object_type::line_attributes);
    EXPECT_EQ(Record_text::of(object),
              (Lines{"colour line_colour 9 #1", "u8 line_width 2 #2", "u16 line_art 61680 #3", "count u8 0"}));
}

TEST(Record, OfFillAttributes)
{
    auto object = objects::fill();
    EXPECT_EQ(object.get_type(), Iso::Object_type::fill_attributes);
    EXPECT_EQ(Record_text::of(object),
              (Lines{"u8 fill_type 3 #1", "colour fill_colour 12 #2", "id fill_pattern 33 #3", "count u8 0"}));
}

TEST(VtObject, IsOfAPlainType)
{
    EXPECT_EQ(objects::container().get_extended_type(), 0);
    EXPECT_EQ(objects::fill().get_extended_type(), 0);
}

TEST(VtObject, HasTheAreaOfItsRecord)
{
    EXPECT_EQ(objects::container().get_width(), 240);
    EXPECT_EQ(objects::container().get_height(), 120);
    EXPECT_EQ(objects::output_number().get_width(), 100);
    EXPECT_EQ(objects::output_number().get_height(), 16);
    EXPECT_EQ(objects::picture().get_width(), 64);
}

TEST(VtObject, WithoutAnAreaIsZeroWideAndHigh)
{
    EXPECT_EQ(objects::key().get_width(), 0);
    EXPECT_EQ(objects::key().get_height(), 0);
    EXPECT_EQ(objects::font().get_width(), 0);
    EXPECT_EQ(objects::line_attributes().get_width(), 0) << "the width of lines is not an area";
    EXPECT_EQ(objects::fill().get_height(), 0);
    EXPECT_EQ(objects::object_pointer().get_width(), 0);
}

} // namespace
