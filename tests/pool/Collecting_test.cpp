#include "tests/pool/Screen.h"
#include "vtui/comp/objects/Button_obj.h"
#include "vtui/comp/objects/Container_obj.h"
#include "vtui/comp/objects/Fill_attributes_obj.h"
#include "vtui/comp/objects/Input_number_obj.h"
#include "vtui/comp/objects/Key_obj.h"
#include "vtui/comp/objects/Line_obj.h"
#include "vtui/comp/objects/N_state_pointer_obj.h"
#include "vtui/comp/objects/Output_number_obj.h"
#include "vtui/comp/objects/Output_string_obj.h"
#include "vtui/comp/objects/Polygon_obj.h"
#include "vtui/comp/objects/Rectangle_obj.h"
#include "vtui/comp/objects/String_variable_obj.h"

#include <gtest/gtest.h>
#include <memory>

using Ids = std::vector<Iso::Object_id>;

TEST(PoolCollecting, NumbersDepthFirstFromTheWorkingSet)
{
    C::Rectangle_obj leaf;
    C::Rectangle_obj second_leaf;
    With_child<C::Container_obj> inner(&leaf);
    With_child<C::Container_obj> outer(&inner.parent);
    Screen screen;
    screen.mask.add(outer.parent, 0, 0);
    screen.mask.add(second_leaf, 0, 0);
    ASSERT_TRUE(screen.pool.prepare());
    EXPECT_EQ(ids({&screen.working_set, &screen.mask, &outer.parent, &inner.parent, &leaf, &second_leaf}),
              (Ids{0, 1, 2, 3, 4, 5}));
    EXPECT_EQ(screen.pool.find_object(4), &leaf);
    EXPECT_EQ(leaf.get_pool(), &screen.pool);
    EXPECT_EQ(screen.pool.find_object(6), nullptr);
    EXPECT_EQ(screen.pool.find_object(Iso::null_id), nullptr);
}

TEST(PoolCollecting, GivesTheWorkingSetTheFirstIdWhenItIsAddedLast)
{
    C::Rectangle_obj detached;
    VT::Data_mask_obj mask;
    VT::Working_set_obj working_set;
    working_set.set_active_mask(mask);
    VT::Pool pool;
    pool.add(detached);
    pool.add(working_set);
    ASSERT_TRUE(pool.prepare());
    EXPECT_EQ(ids({&working_set, &detached, &mask}), (Ids{0, 1, 2}));
}

TEST(PoolCollecting, TakesAnObjectOnceHoweverManyPlacesShowIt)
{
    C::Rectangle_obj shared;
    With_child<C::Container_obj> first(&shared);
    With_child<C::Container_obj> second(&shared, 9, 9);
    Screen screen;
    screen.mask.add(first.parent, 0, 0);
    screen.mask.add(second.parent, 0, 0);
    screen.mask.add(shared, 0, 0);
    screen.pool.add(shared);
    ASSERT_TRUE(screen.pool.prepare());
    EXPECT_EQ(ids({&first.parent, &shared, &second.parent}), (Ids{2, 3, 4}));
    Bytes records;
    ASSERT_TRUE(screen.pool.serialise(records));
    EXPECT_EQ(records, join(w(0), 0, 0, 1, w(1), 0, 0, 0,                                                      //
                            w(1), 1, 0, w(0xFFFF), 3, 0, w(2), w(0), w(0), w(4), w(0), w(0), w(3), w(0), w(0), //
                            w(2), 3, w(240), w(240), 0, 1, 0, w(3), w(0), w(0),                                //
                            w(3), 14, w(0xFFFF), w(0), w(0), 0, w(0xFFFF), 0,                                  //
                            w(4), 3, w(240), w(240), 0, 1, 0, w(3), w(9), w(9)));
}

TEST(PoolCollecting, FindsThroughContainersButtonsAndKeys)
{
    C::Rectangle_obj in_container;
    C::Rectangle_obj in_button;
    C::Rectangle_obj in_key;
    With_child<C::Container_obj> container(&in_container, 1, -2);
    With_child<C::Button_obj> button(&in_button, 3, 4);
    With_child<C::Key_obj> key(&in_key, 5, 6);
    VT::Soft_key_mask_obj keys;
    keys.add(key.parent);
    Screen screen;
    screen.mask.add(container.parent, 0, 0);
    screen.mask.add(button.parent, 0, 0);
    screen.mask.set_soft_key_mask(&keys);
    ASSERT_TRUE(screen.pool.prepare());
    EXPECT_EQ(ids({&container.parent, &in_container, &button.parent, &in_button, &keys, &key.parent, &in_key}),
              (Ids{2, 3, 4, 5, 6, 7, 8}));
    EXPECT_EQ(screen.mask.soft_key_mask, 6);
    ASSERT_EQ(button.parent.num_objects, 1);
    EXPECT_EQ(button.parent.objects[0].object_id, 5);
    EXPECT_EQ(button.parent.objects[0].x, 3);
    EXPECT_EQ(button.parent.objects[0].y, 4);
    ASSERT_EQ(key.parent.num_objects, 1);
    EXPECT_EQ(key.parent.objects[0].object_id, 8);
    ASSERT_EQ(container.parent.num_objects, 1);
    EXPECT_EQ(container.parent.objects[0].y, -2);
}

TEST(PoolCollecting, TakesInWhatAComponentKeepsDetached)
{
    C::Rectangle_obj child;
    C::Rectangle_obj in_key;
    With_child<C::Key_obj> key(&in_key, 5, 6);
    C::Rectangle_obj other;
    C::Container_obj container;
    C::Child_placements_and_detached<Array_array_1, 2> children;
    children.placements[0].ref = &child;
    children.detached_objects = {&key.parent, &other};
    container.placements_ptr = &children;
    Screen screen;
    screen.mask.add(container, 0, 0);
    ASSERT_TRUE(screen.pool.prepare());
    EXPECT_EQ(ids({&container, &child, &key.parent, &in_key, &other}), (Ids{2, 3, 4, 5, 6}));
    EXPECT_EQ(container.num_objects, 1) << "none of them is a child";
}

TEST(PoolCollecting, FindsTheFaceAndAllMasksOfTheWorkingSet)
{
    C::Rectangle_obj face;
    VT::Alarm_mask_obj alarm;
    Screen screen;
    screen.working_set.add(face, 0, 0);
    screen.working_set.add_mask(alarm);
    ASSERT_TRUE(screen.pool.prepare());
    EXPECT_EQ(ids({&face, &screen.mask, &alarm}), (Ids{1, 2, 3}));
    EXPECT_EQ(screen.working_set.active_mask, 2);
}

TEST(PoolCollecting, FindsWhatAPointerShowsInEveryState)
{
    C::Rectangle_obj target;
    C::Rectangle_obj on;
    C::Rectangle_obj off;
    C::Object_pointer_obj pointer;
    C::N_state_pointer_obj<2> toggle({&off, &on});
    C::N_state_pointer_obj<2> blink({nullptr, &on});
    C::Object_pointer_obj nothing;
    pointer.set_target(&target);
    toggle.set_state(1);
    Screen screen;
    for (VT::VT_obj* object : {static_cast<VT::VT_obj*>(&pointer), static_cast<VT::VT_obj*>(&toggle),
                               static_cast<VT::VT_obj*>(&blink), static_cast<VT::VT_obj*>(&nothing)})
        screen.pool.add(*object);
    ASSERT_TRUE(screen.pool.prepare());
    EXPECT_EQ(ids({&pointer, &target, &toggle, &off, &on, &blink, &nothing}), (Ids{2, 3, 4, 5, 6, 7, 8}));
    EXPECT_EQ(pointer.value, target.get_id());
    EXPECT_EQ(toggle.value, on.get_id());
    EXPECT_EQ(blink.value, Iso::null_id);
    EXPECT_EQ(nothing.value, Iso::null_id);
}

TEST(PoolCollecting, FollowsTheLinksOfEveryClass)
{
    C::Font_attributes_obj fonts[3];
    C::Line_attributes_obj lines[3] = {{0, 1, 0xFFFF}, {0, 1, 0xFFFF}, {0, 1, 0xFFFF}};
    C::Fill_attributes_obj fills[2] = {{2, 0}, {3, 0}};
    const std::uint8_t pixels[8]{};
    C::Picture_graphic_obj pattern(8, 8, 8, 0, 0, 0, sizeof pixels, pixels);
    C::String_variable_obj<4> variable;

    C::Output_number_obj output_number;
    output_number.set_font(&fonts[0]);
    C::Input_number_obj input_number;
    input_number.set_font(&fonts[1]);
    C::Output_string_obj string;
    string.set_font(&fonts[2]);
    string.set_variable(&variable);
    C::Line_obj line(1, 1, 0);
    line.set_line(&lines[0]);
    C::Rectangle_obj rectangle;
    rectangle.set_line(&lines[1]);
    rectangle.set_fill(&fills[0]);
    C::Polygon_obj polygon;
    polygon.set_line(&lines[2]);
    polygon.set_fill(&fills[1]);
    fills[1].set_pattern(&pattern);

    Screen screen;
    for (VT::VT_obj* object :
         std::initializer_list<VT::VT_obj*>{&output_number, &input_number, &string, &line, &rectangle, &polygon})
        screen.pool.add(*object);
    const VT::Result result = screen.pool.prepare();
    ASSERT_TRUE(result) << result.text();
    EXPECT_TRUE(result.warnings.empty());
    EXPECT_EQ(ids({&output_number, &fonts[0], &input_number, &fonts[1], &string, &fonts[2], &variable, &line, &lines[0],
                   &rectangle, &lines[1], &fills[0], &polygon, &lines[2], &fills[1], &pattern}),
              (Ids{2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17}));
    EXPECT_EQ(output_number.font_attributes, 3);
    EXPECT_EQ(input_number.font_attributes, 5);
    EXPECT_EQ(string.font_attributes, 7);
    EXPECT_EQ(string.variable_reference, 8);
    EXPECT_EQ(line.line_attributes, 10);
    EXPECT_EQ(rectangle.line_attributes, 12);
    EXPECT_EQ(rectangle.fill_attributes, 13);
    EXPECT_EQ(polygon.line_attributes, 15);
    EXPECT_EQ(polygon.fill_attributes, 16);
    EXPECT_EQ(fills[1].fill_pattern, 17);
}

TEST(PoolCollecting, WritesTheVerticesOfAPolygon)
{
    C::Polygon_obj polygon;
    C::Vertex_array<Array_array_3> vertices;
    vertices.points[0] = {1, 2};
    vertices.points[1] = {30, 4};
    vertices.points[2] = {5, 60};
    polygon.vertices_ptr = &vertices;
    Screen screen;
    screen.pool.add(polygon);
    EXPECT_EQ(screen.records(), join(w(2), 16, w(0), w(0), w(0xFFFF), w(0xFFFF), 0, 3, 0, //
                                     w(1), w(2), w(30), w(4), w(5), w(60)));
}

TEST(PoolCollecting, LeavesObjectsTheIdTheyCameWith)
{
    VT::Object_pointer_obj first(3, nullptr, Iso::null_id);
    VT::Object_pointer_obj second(65534, nullptr, Iso::null_id);
    C::Container_obj others[3];
    Screen screen;
    for (VT::VT_obj& other : others)
        screen.mask.add(other, 0, 0);
    screen.pool.add(first);
    screen.pool.add(second);
    ASSERT_TRUE(screen.pool.prepare());
    EXPECT_EQ(ids({&first, &second, &others[0], &others[1], &others[2]}), (Ids{3, 65534, 2, 4, 5}));
    EXPECT_EQ(screen.pool.find_object(65534), &second);
}

TEST(PoolCollecting, KeepsIdsAndValuesWhenNewObjectsCome)
{
    C::Container_obj old;
    C::Container_obj late;
    C::Container_obj detached;
    Screen screen;
    screen.mask.add(old, 7, 8);
    ASSERT_TRUE(screen.pool.prepare());
    old.width = 77;
    screen.mask.add(late, 1, 2);
    screen.pool.add(detached);
    ASSERT_TRUE(screen.pool.prepare());
    EXPECT_EQ(ids({&screen.working_set, &screen.mask, &old, &late, &detached}), (Ids{0, 1, 2, 3, 4}));
    Bytes records;
    ASSERT_TRUE(screen.pool.serialise(records));
    EXPECT_EQ(records, join(w(0), 0, 0, 1, w(1), 0, 0, 0,                                    //
                            w(1), 1, 0, w(0xFFFF), 2, 0, w(2), w(7), w(8), w(3), w(1), w(2), //
                            w(2), 3, w(77), w(240), 0, 0, 0,                                 //
                            w(3), 3, w(240), w(240), 0, 0, 0,                                //
                            w(4), 3, w(240), w(240), 0, 0, 0));
}

TEST(PoolCollecting, WritesReferencesOfOldObjectsToNewOnes)
{
    C::Line_attributes_obj line(0, 1, 0xFFFF);
    C::Rectangle_obj rectangle;
    C::Rectangle_obj late_child;
    With_child<C::Container_obj> parent(&rectangle);
    VT::Soft_key_mask_obj keys;
    VT::Data_mask_obj next;
    Screen screen;
    screen.mask.add(parent.parent, 0, 0);
    ASSERT_TRUE(screen.pool.prepare());
    rectangle.set_line(&line);
    parent.children.placements[0] = {&late_child, 8, 9};
    parent.children.deref();
    screen.mask.set_soft_key_mask(&keys);
    screen.working_set.set_active_mask(next);

    screen.pool.specify("nobody", "width", 1);
    ASSERT_FALSE(screen.pool.prepare());
    EXPECT_EQ(rectangle.line_attributes, Iso::null_id);
    EXPECT_EQ(parent.parent.objects[0].object_id, Iso::null_id);
    EXPECT_EQ(screen.mask.soft_key_mask, Iso::null_id);

    keys.set_name("nobody");
    screen.pool.specify("nobody", "background_colour", 7);
    late_child.set_name("nobody");
    const VT::Result result = screen.pool.prepare();
    ASSERT_TRUE(result) << result.text();
    EXPECT_EQ(rectangle.line_attributes, line.get_id());
    EXPECT_EQ(parent.parent.objects[0].object_id, late_child.get_id());
    EXPECT_EQ(parent.parent.objects[0].x, 8);
    EXPECT_EQ(screen.mask.soft_key_mask, keys.get_id());
    EXPECT_EQ(screen.working_set.active_mask, next.get_id());
    EXPECT_EQ(ids({&next, &keys, &late_child, &line}), (Ids{4, 5, 6, 7}));
    EXPECT_EQ(screen.pool.find_object(8), nullptr);
}

TEST(PoolCollecting, LeavesReferencesThatSaySomethingNewer)
{
    C::Line_attributes_obj line(0, 1, 0xFFFF);
    C::Rectangle_obj rectangle;
    C::Container_obj late;
    rectangle.set_line(&line);
    Screen screen;
    screen.mask.add(rectangle, 0, 0);
    ASSERT_TRUE(screen.pool.prepare());
    rectangle.set_line_attributes(Iso::null_id); // past the link
    screen.pool.add(late);
    ASSERT_TRUE(screen.pool.prepare());
    EXPECT_EQ(rectangle.line_attributes, Iso::null_id);
}

TEST(PoolCollecting, DoesNotWritePlacementsOutTwice)
{
    C::Container_obj child;
    With_child<C::Container_obj> parent(&child, 1, 2);
    Screen screen;
    screen.mask.add(parent.parent, 0, 0);
    ASSERT_TRUE(screen.pool.prepare());
    parent.children.placements[0].x = 50; // laid out, but not written out by its component
    C::Container_obj late;
    screen.pool.add(late);
    ASSERT_TRUE(screen.pool.prepare());
    EXPECT_EQ(parent.parent.objects[0].x, 1);
}

TEST(PoolCollecting, LeavesAHoleWhereAnObjectIsDestroyed)
{
    Screen screen;
    auto gone = std::make_unique<C::Container_obj>();
    C::Container_obj last;
    screen.pool.add(*gone);
    screen.pool.add(last);
    ASSERT_TRUE(screen.pool.prepare());
    gone.reset();
    EXPECT_EQ(screen.pool.find_object(2), nullptr);
    EXPECT_EQ(screen.pool.size(), 4u);
    C::Container_obj late;
    screen.pool.add(late);
    EXPECT_EQ(screen.records(), join(w(3), 3, w(240), w(240), 0, 0, 0, w(4), 3, w(240), w(240), 0, 0, 0));
}

TEST(PoolCollecting, LetsItsObjectsGoWhenItIsDestroyed)
{
    C::Container_obj object;
    VT::Object_pointer_obj with_id(9, nullptr, Iso::null_id);
    {
        Screen screen;
        screen.pool.add(object);
        screen.pool.add(with_id);
        ASSERT_TRUE(screen.pool.prepare());
        EXPECT_EQ(object.get_id(), 2);
    }
    EXPECT_EQ(object.get_pool(), nullptr);
    EXPECT_EQ(object.get_id(), Iso::null_id);
    EXPECT_EQ(with_id.get_id(), Iso::null_id);
}

TEST(PoolCollecting, DoesNotMindHowDeepScreensNest)
{
    constexpr std::size_t depth = 60000;
    std::vector<std::unique_ptr<With_child<C::Container_obj>>> nested;
    C::Rectangle_obj innermost;
    VT::VT_obj* child = &innermost;
    for (std::size_t i = 0; i < depth; ++i) {
        nested.push_back(std::make_unique<With_child<C::Container_obj>>(child));
        child = &nested.back()->parent;
    }
    Screen screen;
    screen.mask.add(*child, 0, 0);
    ASSERT_TRUE(screen.pool.prepare());
    EXPECT_EQ(innermost.get_id(), depth + 2);
}
