// What becomes reachable after the pool was prepared, and what is left behind where a preparation fails or a pool ends.

#include "tests/pool/Fake_terminal.h"
#include "tests/pool/Screen.h"
#include "vtui/comp/objects/Container_obj.h"
#include "vtui/comp/objects/Line_attributes_obj.h"
#include "vtui/comp/objects/N_state_pointer_obj.h"
#include "vtui/comp/objects/Polygon_obj.h"
#include "vtui/comp/objects/Rectangle_obj.h"

#include <gtest/gtest.h>

namespace {

/// A live pool: a mask (1) with a container (2), its rectangle (3) and the rectangle's line (4).
struct Live : Screen
{
    Live()
    {
        rectangle.set_line(&line);
        mask.add(frame.parent, 1, 2);
        EXPECT_TRUE(pool.load(terminal));
        terminal.take_sent();
    }

    /// Lets a preparation fail with its last step.
    void fail_to_prepare()
    {
        pool.specify("nobody", "width", 1);
        EXPECT_EQ(pool.prepare().error(), VT::Error::unknown_object);
        pool.unspecify("nobody", "width");
    }

    static Bytes mask_record() { return join(w(1), 1, 0, w(0xFFFF), 1, 0, w(2), w(1), w(2)); }
    static Bytes frame_record() { return join(w(2), 3, w(240), w(240), 0, 1, 0, w(3), w(5), w(6)); }
    static Bytes rectangle_record(int line) { return join(w(3), 14, w(line), w(0), w(0), 0, w(0xFFFF), 0); }

    C::Line_attributes_obj line{0, 1, 0xFFFF};
    C::Rectangle_obj rectangle;
    With_child<C::Container_obj> frame{&rectangle, 5, 6};
    Fake_terminal terminal;
};

} // namespace

TEST(PoolLateObjects, OfAMaskAreLoaded)
{
    C::Container_obj late;
    Live live;
    live.mask.add(late, 7, 8);
    ASSERT_TRUE(live.pool.load(live.terminal));
    EXPECT_TRUE(live.pool.is_live());
    EXPECT_EQ(late.get_id(), 5);
    EXPECT_EQ(live.terminal.sent[3],
              join(0x11, w(0), 0, 0, 1, w(1), 0, 0, 0,                                            //
                   w(1), 1, 0, w(0xFFFF), 2, 0, w(2), w(1), w(2), w(5), w(7), w(8),               //
                   Live::frame_record(), Live::rectangle_record(4), w(4), 24, 0, 1, w(0xFFFF), 0, //
                   w(5), 3, w(240), w(240), 0, 0, 0));
}

TEST(PoolLateObjects, OfAMaskAreSerialised)
{
    C::Container_obj late;
    Screen screen;
    EXPECT_EQ(screen.records(), Bytes());
    screen.mask.add(late, 7, 8);
    Bytes records;
    ASSERT_TRUE(screen.pool.serialise(records));
    EXPECT_EQ(records, join(w(0), 0, 0, 1, w(1), 0, 0, 0,                  //
                            w(1), 1, 0, w(0xFFFF), 1, 0, w(2), w(7), w(8), //
                            w(2), 3, w(240), w(240), 0, 0, 0));
}

TEST(PoolLateObjects, BehindALinkAreReportedAndThenLoaded)
{
    C::Line_attributes_obj late(0, 2, 0xFFFF);
    Live live;
    live.rectangle.set_line(&late);
    const std::vector<VT::Problem> problems = live.pool.take_problems();
    ASSERT_EQ(problems.size(), 1u);
    EXPECT_EQ(problems[0].error, VT::Error::suspicious_value);
    EXPECT_EQ(problems[0].id, 3);
    EXPECT_EQ(problems[0].text, "rectangle 3: a reference leads to an object that is not in the pool");
    EXPECT_EQ(live.terminal.take_sent(), (std::vector<Bytes>{frame(0xAF, w(3), 1, d(0xFFFF))}));
    EXPECT_TRUE(live.pool.is_live());

    ASSERT_TRUE(live.pool.load(live.terminal));
    EXPECT_EQ(late.get_id(), 5);
    EXPECT_EQ(live.rectangle.line_attributes, 5);
    EXPECT_TRUE(live.pool.take_problems().empty());
    Bytes records;
    ASSERT_TRUE(live.pool.serialise(records));
    EXPECT_EQ(live.terminal.sent[3], join(0x11, records));
}

TEST(PoolLateObjects, BehindALinkOfAnotherPoolAreReported)
{
    C::Line_attributes_obj foreign(0, 2, 0xFFFF);
    Screen other;
    other.pool.add(foreign);
    ASSERT_TRUE(other.pool.prepare());
    Live live;
    live.rectangle.set_line(&foreign);
    EXPECT_EQ(live.pool.take_problems().size(), 1u);
    EXPECT_TRUE(other.pool.take_problems().empty());
    EXPECT_EQ(live.pool.load(live.terminal).error(), VT::Error::in_another_pool);
}

TEST(PoolLateObjects, BehindAPointerAreLoaded)
{
    C::Object_pointer_obj pointer;
    C::Rectangle_obj late;
    Screen screen;
    screen.mask.add(pointer, 0, 0);
    ASSERT_TRUE(screen.pool.prepare());
    pointer.set_target(&late);
    EXPECT_TRUE(screen.pool.take_problems().empty()); // the load to come takes it in
    Fake_terminal terminal;
    ASSERT_TRUE(screen.pool.load(terminal));
    EXPECT_EQ(late.get_id(), 3);
    EXPECT_EQ(pointer.value, 3);
    terminal.take_sent();
    pointer.set_target(&screen.mask);
    pointer.set_target(&late);
    EXPECT_EQ(terminal.take_sent(), (std::vector<Bytes>{frame(0xA8, w(2), 0xFF, d(1)), frame(0xA8, w(2), 0xFF, d(3))}));
    EXPECT_TRUE(screen.pool.take_problems().empty());
}

TEST(PoolLateObjects, InThePlaceOfAChildAreLoaded)
{
    C::Rectangle_obj late;
    Live live;
    live.frame.children.placements[0].ref = &late;
    ASSERT_TRUE(live.pool.load(live.terminal));
    EXPECT_EQ(live.frame.parent.objects[0].object_id, late.get_id());
    EXPECT_EQ(late.get_id(), 5);
}

TEST(PoolFailedPreparation, LeavesALivePoolsListsAndReferences)
{
    C::Rectangle_obj late_child;
    C::Line_attributes_obj late_line(0, 2, 0xFFFF);
    C::Container_obj late;
    Live live;
    live.frame.children.placements[0].ref = &late_child; // the component has not written it out
    live.rectangle.line = &late_line;
    live.mask.add(late, 9, 9);
    live.fail_to_prepare();

    EXPECT_TRUE(live.pool.is_live());
    EXPECT_EQ(live.pool.size(), 5u);
    for (const VT::VT_obj* object : std::initializer_list<VT::VT_obj*>{&late_child, &late_line, &late}) {
        EXPECT_EQ(object->get_pool(), nullptr);
        EXPECT_EQ(object->get_id(), Iso::null_id);
    }
    for (VT::VT_obj* object : std::initializer_list<VT::VT_obj*>{&live.mask, &live.frame.parent, &live.rectangle})
        object->upload(true);
    // The frame counts as changed once more, so the mask takes it along.
    EXPECT_EQ(live.terminal.take_sent(),
              (std::vector<Bytes>{join(0x11, Live::frame_record()), join(0x11, Live::mask_record()), frame(0x12), //
                                  join(0x11, Live::frame_record()), frame(0x12), join(0x11, Live::rectangle_record(4)),
                                  frame(0x12)}));

    ASSERT_TRUE(live.pool.prepare());
    EXPECT_EQ(live.mask.num_objects, 2);
    EXPECT_EQ(live.frame.parent.objects[0].object_id, late_child.get_id());
    EXPECT_EQ(live.rectangle.line_attributes, late_line.get_id());
}

TEST(PoolFailedPreparation, LeavesALivePoolThe255ChildrenOfAFullMask)
{
    C::Rectangle_obj child;
    C::Rectangle_obj surplus;
    Screen screen;
    for (int i = 0; i < 255; ++i)
        screen.mask.add(child, static_cast<std::int16_t>(i), 0);
    Fake_terminal terminal;
    ASSERT_TRUE(screen.pool.load(terminal));
    terminal.take_sent();
    screen.mask.upload(true);
    const std::vector<Bytes> before = terminal.take_sent();

    screen.mask.add(surplus, 0, 0);
    EXPECT_EQ(screen.pool.prepare().error(), VT::Error::too_many_children);
    EXPECT_EQ(surplus.get_pool(), nullptr);
    EXPECT_TRUE(screen.pool.is_live());
    EXPECT_EQ(screen.mask.num_objects, 255);
    screen.mask.upload(true);
    EXPECT_EQ(terminal.take_sent(), before);
}

TEST(PoolFailedPreparation, LeavesANewObjectWithoutLists)
{
    C::Polygon_obj polygon;
    C::Vertex_array<Array_array_3> vertices;
    polygon.vertices_ptr = &vertices;
    C::Rectangle_obj child;
    With_child<C::Container_obj> parent(&child);
    VT::Data_mask_obj mask;
    mask.add(child, 0, 0);
    Live live;
    for (VT::VT_obj* object : std::initializer_list<VT::VT_obj*>{&polygon, &parent.parent, &mask})
        live.pool.add(*object);
    live.fail_to_prepare();
    EXPECT_EQ(polygon.points, nullptr);
    EXPECT_EQ(polygon.num_points, 0);
    EXPECT_EQ(parent.parent.objects, nullptr);
    EXPECT_EQ(parent.parent.num_objects, 0);
    EXPECT_EQ(mask.num_objects, 0);

    ASSERT_TRUE(live.pool.prepare());
    EXPECT_EQ(polygon.num_points, 3);
    EXPECT_EQ(parent.parent.num_objects, 1);
    EXPECT_EQ(mask.num_objects, 1);
}

namespace {

/// Objects that outlive the pool they were in.
struct Survivors
{
    Survivors()
    {
        rectangle.set_line(&line);
        pointer.set_target(&rectangle);
        polygon.vertices_ptr = &vertices;
        mask.add(frame.parent, 0, 0);
        mask.set_soft_key_mask(&keys);
        for (VT::VT_obj* object : std::initializer_list<VT::VT_obj*>{&pointer, &polygon})
            mask.add(*object, 0, 0);
        Screen screen;
        screen.working_set.add_mask(mask);
        EXPECT_TRUE(screen.pool.prepare());
        EXPECT_EQ(rectangle.line_attributes, line.get_id());
    }

    C::Line_attributes_obj line{0, 1, 0xFFFF};
    C::Rectangle_obj rectangle;
    With_child<C::Container_obj> frame{&rectangle};
    C::Object_pointer_obj pointer;
    C::Polygon_obj polygon;
    C::Vertex_array<Array_array_3> vertices;
    VT::Soft_key_mask_obj keys;
    VT::Data_mask_obj mask;
};

} // namespace

TEST(PoolEnd, LeavesNoneOfItsIdsInLinksAndLists)
{
    Survivors objects;
    EXPECT_EQ(objects.rectangle.line_attributes, Iso::null_id);
    EXPECT_EQ(objects.pointer.value, Iso::null_id);
    EXPECT_EQ(objects.mask.soft_key_mask, Iso::null_id);
    EXPECT_EQ(objects.frame.parent.num_objects, 0);
    EXPECT_EQ(objects.mask.num_objects, 0);
    EXPECT_EQ(objects.polygon.num_points, 0);
}

TEST(PoolEnd, LeavesNothingForASecondPoolWhereALinkWasCleared)
{
    Survivors objects;
    objects.rectangle.set_line(nullptr);
    objects.pointer.set_target(nullptr);
    objects.mask.set_soft_key_mask(nullptr);
    Screen screen;
    screen.working_set.add_mask(objects.mask);
    ASSERT_TRUE(screen.pool.prepare());
    EXPECT_EQ(objects.rectangle.line_attributes, Iso::null_id);
    EXPECT_EQ(objects.pointer.value, Iso::null_id);
    EXPECT_EQ(objects.mask.soft_key_mask, Iso::null_id);
    EXPECT_EQ(objects.line.get_pool(), nullptr);
    EXPECT_EQ(objects.frame.parent.objects[0].object_id, objects.rectangle.get_id());
    EXPECT_EQ(objects.mask.num_objects, 3);
    EXPECT_EQ(objects.polygon.num_points, 3);
}
