#include "Records.h"

#include "terminal/Pool_check.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>

using namespace records;
using terminal::Field;
using terminal::Object;

namespace {

/// The complete pool, taken apart, and what the fields of its objects read as.
class ObjectRecord : public ::testing::Test
{
  protected:
    void SetUp() override { ASSERT_FALSE(pool.parse(complete_pool())); }

    void expect(Id id, Type type, std::size_t size, const std::vector<std::pair<Field, std::uint32_t>>& fields)
    {
        const Object object = pool.find(id);
        ASSERT_TRUE(object);
        EXPECT_EQ(object.id(), id);
        EXPECT_EQ(object.type(), type);
        EXPECT_EQ(object.size(), size);
        for (const auto& [field, value] : fields) {
            EXPECT_TRUE(object.has(field)) << static_cast<int>(field);
            EXPECT_EQ(object.u32(field), value) << static_cast<int>(field);
        }
        std::size_t n = 0;
        for (std::size_t i = 1; i < static_cast<std::size_t>(Field::n_children); ++i)
            n += object.has(static_cast<Field>(i));
        EXPECT_EQ(n, fields.size()) << "fields that are not counts";
    }

    void expect_macro(Id id)
    {
        const auto macros = pool.find(id).macros();
        ASSERT_EQ(macros.size(), 1u);
        EXPECT_EQ(macros[0].event, 1);
        EXPECT_EQ(macros[0].macro, macro);
    }

    void expect_child(Id id, std::size_t index, Id child, int x, int y)
    {
        const auto children = pool.find(id).children();
        ASSERT_LT(index, children.size());
        EXPECT_EQ(children[index].id, child);
        EXPECT_EQ(children[index].x, x);
        EXPECT_EQ(children[index].y, y);
    }

    terminal::Object_pool pool;
};

} // namespace

TEST_F(ObjectRecord, ReadsAWorkingSet)
{
    expect(working_set, Type::working_set, 10 + 6 + 2 + 4,
           {{Field::background, 1}, {Field::selectable, 1}, {Field::active_mask, data_mask}});
    expect_child(working_set, 0, output_string, 3, 4);
    expect_macro(working_set);
    const auto languages = pool.find(working_set).languages();
    ASSERT_EQ(languages.size(), 2u);
    EXPECT_EQ(std::string(languages[0].code, 2), "en");
    EXPECT_EQ(std::string(languages[1].code, 2), "de");
}

TEST_F(ObjectRecord, ReadsADataMask)
{
    expect(data_mask, Type::data_mask, 8 + 8 * 6 + 2, {{Field::background, 7}, {Field::soft_key_mask, soft_key_mask}});
    expect_child(data_mask, 0, container, 5, 6);
    expect_child(data_mask, 1, button, -1, -2);
    expect_child(data_mask, 7, container, 300, -300);
    expect_macro(data_mask);
}

TEST_F(ObjectRecord, ReadsAnAlarmMask)
{
    expect(
        alarm_mask, Type::alarm_mask, 10 + 6 + 2,
        {{Field::background, 8}, {Field::soft_key_mask, null_id}, {Field::priority, 1}, {Field::acoustic_signal, 2}});
    expect_child(alarm_mask, 0, output_string, 0, 0);
    expect_macro(alarm_mask);
}

TEST_F(ObjectRecord, ReadsAContainer)
{
    expect(container, Type::container, 10 + 7 * 6 + 2, {{Field::width, 100}, {Field::height, 50}, {Field::hidden, 0}});
    expect_child(container, 6, picture, 7, 7);
    expect_macro(container);
}

TEST_F(ObjectRecord, ReadsASoftKeyMask)
{
    expect(soft_key_mask, Type::soft_key_mask, 6 + 3 * 2 + 2, {{Field::background, 9}});
    const auto keys = pool.find(soft_key_mask).items();
    ASSERT_EQ(keys.size(), 3u);
    EXPECT_EQ(keys[0].id, key);
    EXPECT_EQ(keys[1].id, null_id);
    EXPECT_EQ(keys[2].id, key_pointer);
    expect_macro(soft_key_mask);
}

TEST_F(ObjectRecord, ReadsAKey)
{
    expect(key, Type::key, 7 + 6 + 2, {{Field::background, 10}, {Field::key_code, 40}});
    expect_child(key, 0, output_string, 0, 0);
    expect_macro(key);
}

TEST_F(ObjectRecord, ReadsAButton)
{
    expect(button, Type::button, 13 + 6 + 2,
           {{Field::width, 60},
            {Field::height, 30},
            {Field::background, 12},
            {Field::border_colour, 13},
            {Field::key_code, 42},
            {Field::options, 2}});
    expect_child(button, 0, output_string, 0, 0);
    expect_macro(button);
}

TEST_F(ObjectRecord, ReadsAnInputBoolean)
{
    expect(input_boolean, Type::input_boolean, 13 + 2,
           {{Field::background, 14},
            {Field::width, 20},
            {Field::font, font},
            {Field::variable, number_variable},
            {Field::value, 1},
            {Field::enabled, 1}});
    expect_macro(input_boolean);
}

TEST_F(ObjectRecord, ReadsAnInputStringWithFieldsBehindItsText)
{
    expect(input_string, Type::input_string, 19 + 5 + 2,
           {{Field::width, 90},
            {Field::height, 16},
            {Field::background, 15},
            {Field::font, font},
            {Field::input_attributes, input_attributes},
            {Field::options, 1},
            {Field::variable, string_variable},
            {Field::justification, 5},
            {Field::enabled, 1}});
    EXPECT_EQ(pool.find(input_string).text(), "Hello");
    expect_macro(input_string);
}

TEST_F(ObjectRecord, ReadsAnInputNumber)
{
    expect(input_number, Type::input_number, 38 + 2,
           {{Field::width, 91},
            {Field::height, 17},
            {Field::background, 16},
            {Field::font, font},
            {Field::options, 2},
            {Field::variable, null_id},
            {Field::value, 1000},
            {Field::minimum, 10},
            {Field::maximum, 5000},
            {Field::offset, 0xFFFFFFF6},
            {Field::scale, 0x3F000000},
            {Field::decimals, 1},
            {Field::format, 0},
            {Field::justification, 6},
            {Field::options_2, 1}});
    EXPECT_EQ(pool.find(input_number).s32(Field::offset), -10);
    EXPECT_EQ(pool.find(input_number).f32(Field::scale), 0.5f);
    expect_macro(input_number);
}

TEST_F(ObjectRecord, ReadsAnInputList)
{
    expect(
        input_list, Type::input_list, 13 + 3 * 2 + 2,
        {{Field::width, 92}, {Field::height, 18}, {Field::variable, null_id}, {Field::value, 1}, {Field::options, 1}});
    const auto items = pool.find(input_list).items();
    ASSERT_EQ(items.size(), 3u);
    EXPECT_EQ(items[0].id, output_string);
    EXPECT_EQ(items[1].id, null_id);
    EXPECT_EQ(items[2].id, output_number);
    expect_macro(input_list);
}

TEST_F(ObjectRecord, ReadsAnOutputString)
{
    expect(output_string, Type::output_string, 17 + 5 + 2,
           {{Field::width, 80},
            {Field::height, 16},
            {Field::background, 17},
            {Field::font, font},
            {Field::options, 1},
            {Field::variable, null_id},
            {Field::justification, 4}});
    EXPECT_EQ(pool.find(output_string).text(), "Text!");
    expect_macro(output_string);
}

TEST_F(ObjectRecord, ReadsAnOutputNumber)
{
    expect(output_number, Type::output_number, 29 + 2,
           {{Field::width, 81},
            {Field::height, 17},
            {Field::background, 18},
            {Field::font, font},
            {Field::options, 4},
            {Field::variable, number_variable},
            {Field::value, 123},
            {Field::offset, 7},
            {Field::scale, 0x3E800000},
            {Field::decimals, 2},
            {Field::format, 1},
            {Field::justification, 10}});
    EXPECT_EQ(pool.find(output_number).f32(Field::scale), 0.25f);
    expect_macro(output_number);
}

TEST_F(ObjectRecord, ReadsALine)
{
    expect(line, Type::line, 11 + 2,
           {{Field::line_attributes, line_attributes}, {Field::width, 40}, {Field::height, 41}, {Field::direction, 1}});
    expect_macro(line);
}

TEST_F(ObjectRecord, ReadsARectangle)
{
    expect(rectangle, Type::rectangle, 13 + 2,
           {{Field::line_attributes, line_attributes},
            {Field::width, 42},
            {Field::height, 43},
            {Field::suppression, 3},
            {Field::fill_attributes, fill_attributes}});
    expect_macro(rectangle);
}

TEST_F(ObjectRecord, ReadsAnEllipse)
{
    expect(ellipse, Type::ellipse, 15 + 2,
           {{Field::line_attributes, line_attributes},
            {Field::width, 44},
            {Field::height, 45},
            {Field::ellipse_type, 2},
            {Field::start_angle, 10},
            {Field::end_angle, 90},
            {Field::fill_attributes, fill_attributes}});
    expect_macro(ellipse);
}

TEST_F(ObjectRecord, ReadsAPolygon)
{
    expect(polygon, Type::polygon, 14 + 3 * 4 + 2,
           {{Field::width, 46},
            {Field::height, 47},
            {Field::line_attributes, line_attributes},
            {Field::fill_attributes, fill_attributes},
            {Field::polygon_type, 3}});
    const auto points = pool.find(polygon).points();
    ASSERT_EQ(points.size(), 3u);
    EXPECT_EQ(points[0].y, 1);
    EXPECT_EQ(points[2].x, 4);
    EXPECT_EQ(points[2].y, 5);
    expect_macro(polygon);
}

TEST_F(ObjectRecord, ReadsAPictureWithMacrosBehindItsData)
{
    expect(picture, Type::picture_graphic, 17 + 4 + 2,
           {{Field::width, 20},
            {Field::actual_width, 3},
            {Field::actual_height, 2},
            {Field::format, 1},
            {Field::options, 1},
            {Field::transparency_colour, 19}});
    const terminal::Byte_view data = pool.find(picture).bytes();
    EXPECT_EQ(Bytes(data.data, data.data + data.size), (Bytes{0x12, 0x30, 0x45, 0x60}));
    EXPECT_TRUE(pool.find(picture).text().empty()) << "data are not a text";
    expect_macro(picture);
}

TEST_F(ObjectRecord, ReadsVariables)
{
    expect(number_variable, Type::number_variable, 7, {{Field::value, 0x12345678}});
    expect(string_variable, Type::string_variable, 5 + 8, {});
    EXPECT_EQ(pool.find(string_variable).text(), "variable");
    EXPECT_TRUE(pool.find(string_variable).macros().empty());
}

TEST_F(ObjectRecord, ReadsFontLineAndFillAttributes)
{
    expect(font, Type::font_attributes, 8 + 2,
           {{Field::colour, 20}, {Field::font_size, 3}, {Field::font_type, 0}, {Field::font_style, 5}});
    expect(line_attributes, Type::line_attributes, 8 + 2,
           {{Field::colour, 21}, {Field::line_width, 2}, {Field::line_art, 0xAAAA}});
    expect(fill_attributes, Type::fill_attributes, 8 + 2,
           {{Field::fill_type, 3}, {Field::colour, 22}, {Field::pattern, picture}});
    expect_macro(font);
    expect_macro(line_attributes);
    expect_macro(fill_attributes);
}

TEST_F(ObjectRecord, ReadsInputAttributes)
{
    expect(input_attributes, Type::input_attributes, 6 + 4 + 2, {{Field::validation_type, 1}});
    EXPECT_EQ(pool.find(input_attributes).text(), "0123");
    expect_macro(input_attributes);
}

TEST_F(ObjectRecord, ReadsAnObjectPointer)
{
    expect(pointer, Type::object_pointer, 5, {{Field::value, picture}});
    EXPECT_EQ(pool.find(pointer).reference(Field::value), picture);
}

TEST_F(ObjectRecord, ReadsAMacro)
{
    expect(macro, Type::macro, 5 + 27, {});
    EXPECT_EQ(pool.find(macro).bytes().size, 27u);
    EXPECT_EQ(pool.find(macro).bytes().data[0], 0xA0);
    EXPECT_TRUE(pool.find(macro).text().empty()) << "commands are not a text";
}

TEST_F(ObjectRecord, ReadsWhatATypeDoesNotHaveAsNothing)
{
    const Object variable = pool.find(number_variable);
    EXPECT_FALSE(variable.has(Field::width));
    EXPECT_EQ(variable.u32(Field::width), 0u);
    EXPECT_EQ(variable.f32(Field::scale), 0.0f);
    EXPECT_EQ(variable.reference(Field::font), null_id);
    EXPECT_TRUE(variable.children().empty());
    EXPECT_TRUE(variable.text().empty());
    EXPECT_EQ(variable.bytes().size, 0u);
}

TEST_F(ObjectRecord, IsAbsentForAnUnknownIdAndForTheNullId)
{
    EXPECT_FALSE(pool.find(6));
    EXPECT_FALSE(pool.find(1000));
    EXPECT_FALSE(pool.find(null_id));
}

TEST_F(ObjectRecord, PassesEveryCheckAsPartOfTheCompletePool) { EXPECT_FALSE(terminal::check_pool(pool)); }
