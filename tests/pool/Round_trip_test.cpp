// What the pool writes, a terminal reads: both ends of the wire, byte for byte and field by field.

#include "tests/pool/At_terminal.h"
#include "tests/pool/Screen.h"
#include "vtui/comp/Connection_elements.h"
#include "vtui/comp/objects/Button_obj.h"
#include "vtui/comp/objects/Container_obj.h"
#include "vtui/comp/objects/Input_number_obj.h"
#include "vtui/comp/objects/Key_obj.h"
#include "vtui/comp/objects/Line_obj.h"
#include "vtui/comp/objects/N_state_pointer_obj.h"
#include "vtui/comp/objects/Output_number_obj.h"
#include "vtui/comp/objects/Output_string_obj.h"
#include "vtui/comp/objects/Polygon_obj.h"

#include <gtest/gtest.h>

using terminal::Field;

namespace {

/// A screen with an object of every class that components are made of.
struct Full : Screen
{
    Full()
    {
        font.size = 4;
        number.set_font(&font);
        number.width = 60;
        number.height = 20;
        number.value = 1234;
        number.offset = -34;
        number.scale = 0.5F;
        number.number_of_decimals = 1;
        input.set_font(&font);
        input.min_value = 3;
        input.max_value = 900;
        input.options_2 = 1;
        variable.format("l/m");
        by_variable.set_font(&font);
        by_variable.set_variable(&variable);
        own_text.set_font(&font);
        own_text.set_name("title");
        pool.specify("title", "value", "Sprayer");
        rectangle.set_line(&line_style);
        rectangle.set_fill(&fill);
        rectangle.line_suppression = 9;
        fill.set_pattern(&picture);
        line.set_line(&line_style);
        polygon.set_line(&line_style);
        polygon.set_fill(&fill);
        polygon.vertices_ptr = &vertices;
        polygon.width = 20;
        polygon.height = 20;
        vertices.points[1] = {19, 0};
        vertices.points[2] = {0, 19};
        pointer.set_target(&rectangle);
        shapes.placements[0] = {&rectangle, 1, 2};
        shapes.placements[1] = {&line, -3, 4};
        shapes.placements[2] = {&polygon, 5, -6};
        container.placements_ptr = &shapes;
        mask.add(container, 7, 8);
        mask.add(button.parent, 9, 10);
        mask.add(number, 0, 0);
        mask.add(input, 0, 0);
        mask.add(by_variable, 0, 0);
        mask.add(own_text, 0, 0);
        mask.add(pointer, 0, 0);
        mask.add(toggle, 0, 0);
        keys.add(key.parent);
        mask.set_soft_key_mask(&keys);
        alarm.priority = 1;
        alarm.acoustic_signal = 2;
        working_set.add_mask(alarm);
        working_set.add_language("en");
        key.parent.key_code = 33;
        button.parent.key_code = 34;
    }

    const std::uint8_t pixels[8]{1, 2, 4, 8, 16, 32, 64, 128};
    C::Font_attributes_obj font;
    C::Line_attributes_obj line_style{12, 2, 0xF0F0};
    C::Fill_attributes_obj fill{3, 9};
    C::Picture_graphic_obj picture{8, 8, 8, 0, 0, 0, sizeof pixels, pixels};
    C::Output_number_obj number;
    C::Input_number_obj input;
    C::String_variable_obj<4> variable;
    C::Output_string_obj by_variable;
    C::Output_string_obj own_text;
    C::Rectangle_obj rectangle;
    C::Line_obj line{30, 40, 1};
    C::Polygon_obj polygon;
    C::Vertex_array<Array_array_3> vertices;
    C::Object_pointer_obj pointer;
    C::N_state_pointer_obj<2> toggle{{&rectangle, &line}};
    C::Container_obj container;
    C::Child_placements_array<Array_array_3> shapes;
    With_child<C::Button_obj> button{&by_variable, 2, 3};
    With_child<C::Key_obj> key{&picture, 4, 5};
    VT::Soft_key_mask_obj keys;
    VT::Alarm_mask_obj alarm;
};

} // namespace

TEST(PoolRoundTrip, EveryClassArrivesAsItWasWritten)
{
    Full screen;
    apps::Loopback_link link;
    const VT::Result result = screen.pool.load(link);
    ASSERT_TRUE(result) << result.text();
    EXPECT_TRUE(result.warnings.empty());
    Bytes written;
    ASSERT_TRUE(screen.pool.serialise(written));
    EXPECT_EQ(records_in(link.terminal), written);

    const auto at_terminal = [&](const VT::VT_obj& object) {
        const terminal::Object found = link.terminal.pool().find(object.get_id());
        EXPECT_TRUE(found);
        EXPECT_EQ(found.type(), object.get_type());
        return found;
    };
    EXPECT_EQ(at_terminal(screen.working_set).reference(Field::active_mask), screen.mask.get_id());
    EXPECT_EQ(at_terminal(screen.working_set).languages().size(), 1u);
    EXPECT_EQ(at_terminal(screen.mask).reference(Field::soft_key_mask), screen.keys.get_id());
    EXPECT_EQ(at_terminal(screen.mask).children().size(), 8u);
    EXPECT_EQ(at_terminal(screen.keys).items()[0].id, screen.key.parent.get_id());
    EXPECT_EQ(at_terminal(screen.alarm).u8(Field::acoustic_signal), 2);
    EXPECT_EQ(at_terminal(screen.container).children()[1].x, -3);
    EXPECT_EQ(at_terminal(screen.container).children()[2].id, screen.polygon.get_id());
    EXPECT_EQ(at_terminal(screen.button.parent).u8(Field::key_code), 34);
    EXPECT_EQ(at_terminal(screen.key.parent).children()[0].y, 5);
    EXPECT_EQ(at_terminal(screen.number).s32(Field::offset), -34);
    EXPECT_EQ(at_terminal(screen.number).f32(Field::scale), 0.5F);
    EXPECT_EQ(at_terminal(screen.number).reference(Field::font), screen.font.get_id());
    EXPECT_EQ(at_terminal(screen.input).u32(Field::maximum), 900u);
    EXPECT_EQ(at_terminal(screen.variable).text(), "l/m ");
    EXPECT_EQ(at_terminal(screen.by_variable).reference(Field::variable), screen.variable.get_id());
    EXPECT_EQ(at_terminal(screen.own_text).text(), "Sprayer");
    EXPECT_EQ(at_terminal(screen.rectangle).u8(Field::suppression), 9);
    EXPECT_EQ(at_terminal(screen.line).u8(Field::direction), 1);
    EXPECT_EQ(at_terminal(screen.polygon).points()[2].y, 19);
    EXPECT_EQ(at_terminal(screen.picture).bytes().data[7], 128);
    EXPECT_EQ(at_terminal(screen.font).u8(Field::font_size), 4);
    EXPECT_EQ(at_terminal(screen.line_style).u16(Field::line_art), 0xF0F0);
    EXPECT_EQ(at_terminal(screen.fill).reference(Field::pattern), screen.picture.get_id());
    EXPECT_EQ(at_terminal(screen.pointer).reference(Field::value), screen.rectangle.get_id());
    EXPECT_EQ(at_terminal(screen.toggle).reference(Field::value), screen.rectangle.get_id());
}

TEST(PoolRoundTrip, TheStyleSetIsAPoolThatATerminalAccepts)
{
    for (const std::uint16_t size : {std::uint16_t{240}, std::uint16_t{480}}) {
        C::Connection_elements style;
        style.set_sizes(size);
        Screen screen;
        for (VT::VT_obj* object : std::initializer_list<VT::VT_obj*>{&style.font_0,
                                                                     &style.font_1,
                                                                     &style.font_2,
                                                                     &style.font_3,
                                                                     &style.font_4,
                                                                     &style.font_5,
                                                                     &style.font_6,
                                                                     &style.font_7,
                                                                     &style.font_8,
                                                                     &style.line_none,
                                                                     &style.line_black,
                                                                     &style.line_111,
                                                                     &style.line_white,
                                                                     &style.line_grey_2,
                                                                     &style.fill_red,
                                                                     &style.rect_red,
                                                                     &style.fill_green,
                                                                     &style.rect_green,
                                                                     &style.fill_white,
                                                                     &style.rect_white,
                                                                     &style.fill_195,
                                                                     &style.rect_195,
                                                                     &style.fill_81,
                                                                     &style.rect_81,
                                                                     &style.fill_39,
                                                                     &style.rect_39,
                                                                     &style.fill_188,
                                                                     &style.rect_188,
                                                                     &style.fill_17,
                                                                     &style.rect_17,
                                                                     &style.fill_17_patterned,
                                                                     &style.rect_17_patterned,
                                                                     &style.rect_bevel_dark,
                                                                     &style.rect_bevel_light,
                                                                     &style.fill_59,
                                                                     &style.line_white_b,
                                                                     &style.line_black_b,
                                                                     &style.line_black_c,
                                                                     &style.line_111_b,
                                                                     &style.null_pointer,
                                                                     &style.empty_string,
                                                                     &style.percent_string,
                                                                     &style.cover.root()})
            screen.pool.add(*object);
        for (auto& number : style.number_strings)
            screen.pool.add(number);
        apps::Loopback_link link;
        const VT::Result result = screen.pool.load(link);
        ASSERT_TRUE(result) << result.text();
        EXPECT_TRUE(result.warnings.empty());
        // The screen, the members above, the four covers inside the largest, the numbers.
        EXPECT_EQ(link.terminal.pool().id_end(), 2u + 43 + 4 + 256);
        Bytes written;
        ASSERT_TRUE(screen.pool.serialise(written));
        EXPECT_EQ(records_in(link.terminal), written);
        EXPECT_EQ(link.terminal.pool().find(style.number_strings[255].get_id()).text(), "255 ");
        EXPECT_EQ(link.terminal.pool().find(style.cover_tile.get_id()).bytes().size, 1024u);
    }
}

TEST(PoolRoundTrip, ChangesReachTheTerminalAndAreNotRefused)
{
    Full screen;
    apps::Loopback_link link;
    ASSERT_TRUE(screen.pool.load(link));
    screen.container.set_hidden(true);
    screen.container.set_child_location(0, 30, -40);
    screen.container.change_size(55, 66);
    screen.mask.set_background_colour(3);
    screen.number.set_value(99);
    screen.number.change_attribute("scale", 0.25);
    screen.toggle.set_state(1);
    screen.button.parent.set_enabled(false);
    screen.variable.format("ha");
    screen.working_set.set_active_mask(screen.alarm);
    screen.working_set.set_active_mask(screen.mask);
    screen.mask.set_soft_key_mask(nullptr);
    screen.line.direction = 0;
    screen.line.upload(false);
    deliver(link, screen.pool);
    for (const VT::Problem& problem : screen.pool.take_problems())
        ADD_FAILURE() << problem.text;
    Bytes written;
    ASSERT_TRUE(screen.pool.serialise(written));
    EXPECT_EQ(records_in(link.terminal), written);
}

TEST(PoolRoundTrip, RefusalsNameTheObject)
{
    Full screen;
    apps::Loopback_link link;
    ASSERT_TRUE(screen.pool.load(link));
    screen.toggle.set_value(60000); // nothing has that id
    deliver(link, screen.pool);
    const std::vector<VT::Problem> problems = screen.pool.take_problems();
    ASSERT_EQ(problems.size(), 1u);
    EXPECT_EQ(problems[0].object, "object pointer " + std::to_string(screen.toggle.get_id()));
    EXPECT_EQ(problems[0].error, VT::Error::rejected_command);
}

TEST(PoolRoundTrip, ARejectedPoolNamesParentAndChild)
{
    C::Key_obj key;
    key.set_name("start");
    Screen screen;
    screen.mask.set_name("home");
    screen.mask.add(key, 0, 0); // a key is no child of a mask
    apps::Loopback_link link;
    const VT::Result result = screen.pool.load(link);
    ASSERT_EQ(result.error(), VT::Error::rejected_pool);
    EXPECT_EQ(result.errors[0].object, "start");
    EXPECT_NE(result.text().find("key 'start' (2) in data mask 'home' (1)"), std::string::npos) << result.text();
}

TEST(PoolRoundTrip, NothingIsLostWhenTheLinkDrops)
{
    Full screen;
    apps::Loopback_link link;
    ASSERT_TRUE(screen.pool.load(link));
    link.set_down(true);
    screen.number.set_value(5);
    EXPECT_FALSE(screen.pool.is_live());
    screen.variable.format("bar");
    EXPECT_EQ(screen.pool.load(link).error(), VT::Error::link_refused);
    link.set_down(false);
    ASSERT_TRUE(screen.pool.load(link));
    EXPECT_EQ(link.terminal.pool().find(screen.number.get_id()).u32(Field::value), 5u);
    EXPECT_EQ(link.terminal.pool().find(screen.variable.get_id()).text(), "bar ");
}

TEST(PoolRoundTrip, WhatTheOperatorEntersSurvivesTheNextLoad)
{
    Full screen;
    apps::Loopback_link link;
    ASSERT_TRUE(screen.pool.load(link));
    ASSERT_TRUE(link.terminal.enter_number(screen.input.get_id(), 77));
    deliver(link, screen.pool);
    EXPECT_EQ(screen.input.value, 77u);
    ASSERT_TRUE(screen.pool.load(link));
    EXPECT_EQ(link.terminal.pool().find(screen.input.get_id()).u32(Field::value), 77u);
}
