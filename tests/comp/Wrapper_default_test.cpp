#include "tests/Fake_pool.h"
#include "tests/Record_text.h"
#include "vtui/comp/objects/Button_obj.h"
#include "vtui/comp/objects/Container_obj.h"
#include "vtui/comp/objects/Fill_attributes_obj.h"
#include "vtui/comp/objects/Font_attributes_obj.h"
#include "vtui/comp/objects/Input_number_obj.h"
#include "vtui/comp/objects/Key_obj.h"
#include "vtui/comp/objects/Line_attributes_obj.h"
#include "vtui/comp/objects/Line_obj.h"
#include "vtui/comp/objects/N_state_pointer_obj.h"
#include "vtui/comp/objects/Output_number_obj.h"
#include "vtui/comp/objects/Output_string_obj.h"
#include "vtui/comp/objects/Picture_graphic_obj.h"
#include "vtui/comp/objects/Polygon_obj.h"
#include "vtui/comp/objects/Rectangle_obj.h"
#include "vtui/comp/objects/String_variable_obj.h"

#include <gtest/gtest.h>

using namespace VT::Comp;
using Lines = Record_text::Lines;

namespace {

/// Every value of a new wrapper, in the order of its record; it has neither id nor name nor pool, and nothing of it
/// counts as changed.
void expect_new(VT::VT_obj& object, Iso::Object_type type, const Lines& values)
{
    EXPECT_EQ(object.get_id(), VT::VT_obj::NULL_ID);
    EXPECT_STREQ(object.get_name(), "");
    EXPECT_EQ(object.get_pool(), nullptr);
    EXPECT_EQ(object.get_type(), type);
    EXPECT_EQ(object.get_extended_type(), 0);
    EXPECT_EQ(Record_text::values_of(object), values);

    Fake_pool pool;
    pool.take(object, 5);
    pool.live = true;
    object.upload(false);
    EXPECT_TRUE(pool.uploaded.empty());
}

template <typename Wrapper>
void expect_no_macros(const Wrapper& object)
{
    EXPECT_EQ(object.macros_ptr, nullptr);
    EXPECT_EQ(object.macros, nullptr);
    EXPECT_EQ(object.num_macros, 0);
}

template <typename Parent>
void expect_no_children(const Parent& object)
{
    EXPECT_EQ(object.placements_ptr, nullptr);
    EXPECT_EQ(object.objects, nullptr);
    EXPECT_EQ(object.num_objects, 0);
}

TEST(NewWrapper, Container)
{
    Container_obj object;
    expect_new(object, Iso::Object_type::container,
               {"u16 width 240", "u16 height 240", "u8 hidden 0", "count u8 0", "count u8 0"});
    expect_no_children(object);
    expect_no_macros(object);
}

TEST(NewWrapper, Button)
{
    Button_obj object;
    expect_new(object, Iso::Object_type::button,
               {"u16 width 200", "u16 height 200", "colour background_colour 0", "colour border_colour 0",
                "u8 key_code 1", "u8 options 0", "count u8 0", "count u8 0"});
    expect_no_children(object);
    expect_no_macros(object);
}

TEST(NewWrapper, Key)
{
    Key_obj object;
    expect_new(object, Iso::Object_type::key,
               {"colour background_colour 1", "u8 key_code 1", "count u8 0", "count u8 0"});
    expect_no_children(object);
    expect_no_macros(object);
}

TEST(NewWrapper, OutputNumber)
{
    Output_number_obj object;
    expect_new(object, Iso::Object_type::output_number,
               {"u16 width 0", "u16 height 0", "colour background_colour 0", "id font_attributes null", "u8 options 0",
                "id variable_reference null", "u32 value 0", "s32 offset 0", "f32 scale 1", "u8 number_of_decimals 0",
                "u8 format 0", "u8 justification 0", "count u8 0"});
    expect_no_macros(object);
}

TEST(NewWrapper, InputNumber)
{
    Input_number_obj object;
    expect_new(object, Iso::Object_type::input_number,
               {"u16 width 0", "u16 height 0", "colour background_colour 0", "id font_attributes null", "u8 options 0",
                "id variable_reference null", "u32 value 0", "u32 min_value 0", "u32 max_value 0", "s32 offset 0",
                "f32 scale 1", "u8 number_of_decimals 0", "u8 format 0", "u8 justification 0", "u8 options_2 0",
                "count u8 0"});
    expect_no_macros(object);
}

TEST(NewWrapper, OutputString)
{
    Output_string_obj object;
    expect_new(object, Iso::Object_type::output_string,
               {"u16 width 0", "u16 height 0", "colour background_colour 1", "id font_attributes null", "u8 options 0",
                "id variable_reference null", "u8 justification 0", "text value 0 ''", "count u8 0"});
    EXPECT_EQ(object.length, 0);
    EXPECT_EQ(object.value.buffer, nullptr);
    EXPECT_EQ(object.variable, nullptr);
    expect_no_macros(object);
}

TEST(NewWrapper, Rectangle)
{
    Rectangle_obj object;
    expect_new(object, Iso::Object_type::rectangle,
               {"id line_attributes null", "u16 width 0", "u16 height 0", "u8 line_suppression 0",
                "id fill_attributes null", "count u8 0"});
    EXPECT_EQ(object.fill, nullptr);
    EXPECT_EQ(object.line, nullptr);
    expect_no_macros(object);
}

TEST(NewWrapper, Polygon)
{
    Polygon_obj object;
    expect_new(object, Iso::Object_type::polygon,
               {"u16 width 0", "u16 height 0", "id line_attributes null", "id fill_attributes null",
                "u8 polygon_type 0", "count u8 0", "count u8 0"});
    EXPECT_EQ(object.points, nullptr);
    EXPECT_EQ(object.num_points, 0);
    EXPECT_EQ(object.vertices_ptr, nullptr);
    expect_no_macros(object);
}

TEST(NewWrapper, ObjectPointer)
{
    Object_pointer_obj object;
    expect_new(object, Iso::Object_type::object_pointer, {"id value null"});
    EXPECT_EQ(object.target, nullptr);
}

TEST(NewWrapper, FontAttributes)
{
    Font_attributes_obj object;
    expect_new(object, Iso::Object_type::font_attributes,
               {"colour font_colour 0", "u8 font_size 1", "u8 font_type 0", "u8 font_style 0", "count u8 0"});
    expect_no_macros(object);
}

TEST(NewWrapper, LineAttributesHaveTheirOwnersValues)
{
    Line_attributes_obj object(111, 2, 0xF0F0);
    expect_new(object, Iso::Object_type::line_attributes,
               {"colour line_colour 111", "u8 line_width 2", "u16 line_art 61680", "count u8 0"});
    expect_no_macros(object);
}

TEST(NewWrapper, FillAttributesHaveTheirOwnersValues)
{
    Fill_attributes_obj object(2, 17);
    expect_new(object, Iso::Object_type::fill_attributes,
               {"u8 fill_type 2", "colour fill_colour 17", "id fill_pattern null", "count u8 0"});
    EXPECT_EQ(object.pattern, nullptr);
    expect_no_macros(object);
}

TEST(NewWrapper, LineHasItsOwnersValues)
{
    Line_obj object(70, 50, 1);
    expect_new(object, Iso::Object_type::line,
               {"id line_attributes null", "u16 width 70", "u16 height 50", "u8 line_direction 1", "count u8 0"});
    expect_no_macros(object);
}

TEST(NewWrapper, PictureGraphicHasItsOwnersValues)
{
    static const std::uint8_t pixels[] = {'a', 'b', 'c', 'd', 'e', 'f'};
    Picture_graphic_obj object(64, 3, 2, 2, 1, 13, sizeof pixels, pixels);
    expect_new(object, Iso::Object_type::picture_graphic,
               {"u16 width 64", "u16 actual_width 3", "u16 actual_height 2", "u8 format 2", "u8 options 1",
                "colour transparency_colour 13", "count u32 6", "count u8 0", "raw 'abcdef'"});
    EXPECT_EQ(object.raw_data, pixels) << "not copied";
    expect_no_macros(object);
}

TEST(NewWrapper, StringVariableIsFullOfSpaces)
{
    String_variable_obj<1> one;
    expect_new(one, Iso::Object_type::string_variable, {"text value 1 ' '"});
    String_variable_obj<2> two;
    expect_new(two, Iso::Object_type::string_variable, {"text value 2 '  '"});
    String_variable_obj<4> four;
    expect_new(four, Iso::Object_type::string_variable, {"text value 4 '    '"});
}

TEST(NewWrapper, StatePointerPointsAtTheObjectOfItsFirstState)
{
    Container_obj off;
    Container_obj on;
    N_state_pointer_obj<2> object({&off, &on});
    expect_new(object, Iso::Object_type::object_pointer, {"id value null"});
    EXPECT_EQ(object.state, 0U);
    EXPECT_EQ(object.target, &off);
    EXPECT_EQ(object.states[0], &off);
    EXPECT_EQ(object.states[1], &on);
}

} // namespace
