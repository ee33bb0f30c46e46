#include "tests/pool/Screen.h"
#include "vt/Container_obj.h"
#include "vt/Key_obj.h"
#include "vt/Object_pointer_obj.h"
#include "vtui/comp/objects/Container_obj.h"
#include "vtui/comp/objects/Line_obj.h"
#include "vtui/comp/objects/Object_pointer_obj.h"
#include "vtui/comp/objects/Output_number_obj.h"
#include "vtui/comp/objects/Output_string_obj.h"
#include "vtui/comp/objects/Polygon_obj.h"
#include "vtui/comp/objects/Rectangle_obj.h"

#include <deque>
#include <gtest/gtest.h>

using VT::Error;

namespace {

template <typename T>
class Array_array_256 : public Array_array<T, 256>
{};

/// The one error of a result.
VT::Problem only_error(const VT::Result& result)
{
    EXPECT_FALSE(result);
    EXPECT_EQ(result.errors.size(), 1u) << result.text();
    return result.errors.empty() ? VT::Problem{Error::none, 0, "", ""} : result.errors.front();
}

} // namespace

TEST(PoolError, WithoutAWorkingSet)
{
    C::Container_obj container;
    VT::Pool pool;
    pool.add(container);
    const VT::Problem error = only_error(pool.prepare());
    EXPECT_EQ(error.error, Error::no_working_set);
    EXPECT_EQ(error.text, "The pool has no working set");
    EXPECT_EQ(container.get_pool(), nullptr);
    EXPECT_EQ(container.get_id(), Iso::null_id);
}

TEST(PoolError, WithTwoWorkingSets)
{
    VT::Working_set_obj second("spare");
    Screen screen;
    screen.pool.add(second);
    const VT::Problem error = only_error(screen.pool.prepare());
    EXPECT_EQ(error.error, Error::two_working_sets);
    EXPECT_EQ(error.object, "spare");
    EXPECT_EQ(error.text, "The pool has two working sets: working set and working set 'spare'");
}

TEST(PoolError, WithASecondWorkingSetAddedLater)
{
    VT::Working_set_obj second;
    Screen screen;
    ASSERT_TRUE(screen.pool.prepare());
    screen.pool.add(second);
    EXPECT_EQ(only_error(screen.pool.prepare()).text, "The pool has two working sets: working set 0 and working set");
    EXPECT_EQ(second.get_pool(), nullptr);
    EXPECT_EQ(screen.working_set.get_id(), 0);
}

TEST(PoolError, WhenAnObjectBelongsToAnotherPool)
{
    C::Rectangle_obj shared;
    shared.set_name("lamp");
    Screen owner;
    owner.pool.add(shared);
    ASSERT_TRUE(owner.pool.prepare());

    Screen thief;
    thief.mask.add(shared, 0, 0);
    thief.mask.add(shared, 5, 5);
    const VT::Problem error = only_error(thief.pool.prepare());
    EXPECT_EQ(error.error, Error::in_another_pool);
    EXPECT_EQ(error.id, 2);
    EXPECT_EQ(error.object, "lamp");
    EXPECT_EQ(error.text, "rectangle 'lamp' (2) belongs to another pool");
    EXPECT_EQ(shared.get_pool(), &owner.pool);
    EXPECT_EQ(shared.get_id(), 2);
    EXPECT_EQ(thief.working_set.get_id(), Iso::null_id);
    EXPECT_EQ(thief.mask.get_pool(), nullptr);
}

TEST(PoolError, WhenTwoObjectsComeWithOneId)
{
    VT::Object_pointer_obj pointer(7, "arrow", Iso::null_id);
    VT::Key_obj key(7, nullptr, 0, 1, 0, 0, nullptr, nullptr);
    Screen screen;
    screen.pool.add(pointer);
    screen.pool.add(key);
    const VT::Problem error = only_error(screen.pool.prepare());
    EXPECT_EQ(error.error, Error::duplicate_id);
    EXPECT_EQ(error.id, 7);
    EXPECT_EQ(error.object, "key 7");
    EXPECT_EQ(error.text, "object pointer 'arrow' (7) and key 7 have the same id");
    EXPECT_EQ(pointer.get_id(), 7); // its own
    EXPECT_EQ(pointer.get_pool(), nullptr);
}

TEST(PoolError, WhenALateObjectComesWithAnIdThatIsGiven)
{
    VT::Object_pointer_obj pointer(1, nullptr, Iso::null_id);
    Screen screen;
    ASSERT_TRUE(screen.pool.prepare());
    screen.pool.add(pointer);
    EXPECT_EQ(only_error(screen.pool.prepare()).text, "data mask 1 and object pointer 1 have the same id");
    EXPECT_EQ(screen.pool.find_object(1), &screen.mask);
}

TEST(PoolError, WhenThereAreMoreObjectsThanIds)
{
    Screen screen;
    std::deque<C::Object_pointer_obj> pointers(65535 - 2);
    for (C::Object_pointer_obj& pointer : pointers)
        screen.pool.add(pointer);
    ASSERT_TRUE(screen.pool.prepare());
    EXPECT_EQ(pointers.back().get_id(), 65534);

    C::Container_obj surplus;
    surplus.set_name("the last straw");
    screen.pool.add(surplus);
    const VT::Problem error = only_error(screen.pool.prepare());
    EXPECT_EQ(error.error, Error::too_many_objects);
    EXPECT_EQ(error.object, "the last straw");
    EXPECT_EQ(error.id, Iso::null_id);
    EXPECT_EQ(error.text, "There is no id left for container 'the last straw'");
    EXPECT_EQ(surplus.get_pool(), nullptr);
    EXPECT_EQ(screen.pool.find_object(65534), &pointers.back());
}

TEST(PoolError, WhenAMaskHasTooManyChildren)
{
    C::Rectangle_obj child;
    Screen screen;
    screen.mask.set_name("home");
    for (int i = 0; i < 255; ++i)
        screen.mask.add(child, 0, 0);
    EXPECT_TRUE(screen.pool.prepare());
    EXPECT_EQ(screen.mask.num_objects, 255);

    Screen crowded;
    C::Rectangle_obj other;
    crowded.mask.set_name("home");
    for (int i = 0; i < 256; ++i)
        crowded.mask.add(other, 0, 0);
    const VT::Problem error = only_error(crowded.pool.prepare());
    EXPECT_EQ(error.error, Error::too_many_children);
    EXPECT_EQ(error.object, "home");
    EXPECT_EQ(error.text, "data mask 'home' has 256 children; there is room for 255");
    EXPECT_EQ(other.get_pool(), nullptr);
}

TEST(PoolError, WhenAContainerOrPolygonHasTooManyEntries)
{
    C::Container_obj container;
    C::Rectangle_obj child;
    C::Child_placements_array<Array_array_256> children;
    for (std::size_t i = 0; i < children.size(); ++i)
        children.placements[i].ref = &child;
    container.placements_ptr = &children;
    C::Polygon_obj polygon;
    C::Vertex_array<Array_array_256> vertices;
    polygon.vertices_ptr = &vertices;
    Screen screen;
    screen.pool.add(container);
    screen.pool.add(polygon);
    const VT::Result result = screen.pool.prepare();
    EXPECT_EQ(result.text(), "container has 256 children; there is room for 255\n"
                             "polygon has 256 points; there is room for 255\n");
    EXPECT_EQ(result.error(), Error::too_many_children);
}

TEST(PoolError, CanBeMendedAndTheCallRepeated)
{
    C::Rectangle_obj child;
    C::Line_attributes_obj line(0, 1, 0xFFFF);
    child.set_line(&line);
    With_child<C::Container_obj> parent(&child);
    VT::Data_mask_obj mask;
    VT::Working_set_obj working_set;
    working_set.set_active_mask(mask);
    mask.add(parent.parent, 0, 0);
    VT::Pool pool;
    pool.add(parent.parent);
    ASSERT_EQ(pool.prepare().error(), Error::no_working_set);
    pool.add(working_set);
    pool.specify("nobody", "width", 1);
    ASSERT_EQ(pool.prepare().error(), Error::unknown_object);
    // The second run had come as far as to write references.
    EXPECT_EQ(child.line_attributes, Iso::null_id);
    EXPECT_EQ(parent.parent.num_objects, 0);
    EXPECT_EQ(parent.parent.get_pool(), nullptr);
    EXPECT_EQ(working_set.get_id(), Iso::null_id);
    EXPECT_EQ(pool.find_object(0), nullptr);

    child.set_name("nobody");
    ASSERT_TRUE(pool.prepare());
    EXPECT_EQ(ids({&working_set, &parent.parent, &child, &line, &mask}), (std::vector<Iso::Object_id>{0, 1, 2, 3, 4}));
    EXPECT_EQ(child.width, 1);
    EXPECT_EQ(child.line_attributes, 3);
}

TEST(PoolWarning, AboutReferencesThatShowNothing)
{
    C::Rectangle_obj rectangle;
    C::Output_number_obj number;
    C::Line_obj line(1, 1, 0);
    line.set_name("rule");
    C::Output_string_obj string;
    Screen screen;
    for (VT::VT_obj* object : std::initializer_list<VT::VT_obj*>{&rectangle, &number, &line, &string})
        screen.pool.add(*object);
    const VT::Result result = screen.pool.prepare();
    ASSERT_TRUE(result);
    ASSERT_EQ(result.warnings.size(), 3u);
    EXPECT_EQ(result.warnings[0].text, "rectangle 2: line_attributes is the null id");
    EXPECT_EQ(result.warnings[0].object, "rectangle 2");
    EXPECT_EQ(result.warnings[0].id, 2);
    EXPECT_EQ(result.warnings[0].error, Error::suspicious_value);
    EXPECT_EQ(result.warnings[1].text, "line 'rule' (4): line_attributes is the null id");
    EXPECT_EQ(result.warnings[1].object, "rule");
    EXPECT_EQ(result.warnings[2].text, "output string 5: font_attributes is the null id");
}
