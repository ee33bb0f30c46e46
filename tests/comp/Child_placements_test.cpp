#include "tests/Death.h"
#include "tests/Fake_pool.h"
#include "tests/Virtual_slot.h"
#include "vtui/comp/objects/Container_obj.h"
#include "vtui/comp/objects/Has_child_placements.h"

#include <gtest/gtest.h>

#include <csignal>
#include <cstddef>
#include <type_traits>
#include <unistd.h>

using VT::Comp::Child_placement;
using VT::Comp::Child_placements;
using VT::Comp::Child_placements_array;

namespace long_list {

/// A component with a capacity of its own.
struct Owner
{
    template <typename T>
    class Array_array_N : public Array_array<T, 15>
    {};
};

} // namespace long_list

namespace {

death::Words missing_child(const std::string& array)
{
    return death::assertion("false", "../../../../lib/vtui/comp/objects/Has_child_placements", 213,
                            "void VT::Comp::Child_placements_array<Array_type>::deref() [with Array_type = " + array +
                                "]");
}

TEST(ChildPlacement, IsEmptyAtTheOriginAtFirst)
{
    const Child_placement placement;
    EXPECT_EQ(placement.ref, nullptr);
    EXPECT_EQ(placement.x, 0);
    EXPECT_EQ(placement.y, 0);
}

TEST(ChildPlacement, HoldsObjectThenXThenY)
{
    EXPECT_EQ(offsetof(Child_placement, ref), 0U);
    EXPECT_EQ(offsetof(Child_placement, x), sizeof(void*));
    EXPECT_EQ(offsetof(Child_placement, y), sizeof(void*) + 2);
}

TEST(ChildPlacements, HaveTheCapacityOfTheirArray)
{
    EXPECT_EQ(Child_placements_array<Array_array_1>().size(), 1U);
    EXPECT_EQ(Child_placements_array<Array_array_4>().size(), 4U);
    EXPECT_EQ(Child_placements_array<long_list::Owner::Array_array_N>().size(), 15U);
}

TEST(ChildPlacements, ShowTheFirstOfTheirConsecutiveAttributes)
{
    Child_placements_array<Array_array_3> children;
    EXPECT_EQ(children.get(), &children.attributes[0]);
    EXPECT_EQ(children.get() + 2, &children.attributes[2]);
}

TEST(ChildPlacements, LetThePoolFindTheChildrenByIndex)
{
    Child_placements_array<Array_array_3> children;
    EXPECT_EQ(&children.placement(2), &children.placements[2]);
}

TEST(ChildPlacements, AreWrittenOutInOrderWithIdAndPosition)
{
    Fake_pool pool;
    VT::Comp::Container_obj first;
    VT::Comp::Container_obj second;
    pool.take(first, 11);
    pool.take(second, 12);
    Child_placements_array<Array_array_2> children;
    children.placements[0] = {&first, 3, -4};
    children.placements[1] = {&second, -32768, 32767};
    children.deref();
    EXPECT_EQ(children.attributes[0].object_id, 11);
    EXPECT_EQ(children.attributes[0].x, 3);
    EXPECT_EQ(children.attributes[0].y, -4);
    EXPECT_EQ(children.attributes[1].object_id, 12);
    EXPECT_EQ(children.attributes[1].x, -32768);
    EXPECT_EQ(children.attributes[1].y, 32767);
    EXPECT_TRUE(children.attributes[0].changed());
}

TEST(ChildPlacements, WriteTheNullIdOfAChildThatHasNone)
{
    VT::Comp::Container_obj child;
    Child_placements_array<Array_array_1> children;
    children.placements[0] = {&child, 0, 0};
    children.deref();
    EXPECT_EQ(children.attributes[0].object_id, VT::VT_obj::NULL_ID);
}

TEST(ChildPlacements, WrittenOutAgainUnchangedAreNoChange)
{
    Fake_pool pool;
    VT::Comp::Container_obj child;
    pool.take(child, 11);
    Child_placements_array<Array_array_1> children;
    children.placements[0] = {&child, 3, 4};
    children.deref();
    VT::Attribute_object_placement& attribute = children.attributes[0];
    attribute.object_id.set_told();
    attribute.x.set_told();
    attribute.y.set_told();
    children.deref();
    EXPECT_FALSE(attribute.changed());
    EXPECT_EQ(attribute.object_id, 11);
    EXPECT_EQ(attribute.x, 3);
    EXPECT_EQ(attribute.y, 4);
    children.placements[0].y = 5;
    children.deref();
    EXPECT_TRUE(attribute.y.changed());
    EXPECT_FALSE(attribute.x.changed());
}

TEST(ChildPlacements, HaveTheirVirtualOperationsInThisOrder)
{
    EXPECT_EQ(virtual_slot(&Child_placements::get), 0U);
    EXPECT_EQ(virtual_slot(&Child_placements::size), 1U);
    EXPECT_EQ(virtual_slot(&Child_placements::deref), 2U);
    EXPECT_EQ(virtual_slot(&Child_placements::placement), 5U) << "behind the two destructors";
    EXPECT_TRUE(std::is_abstract_v<Child_placements>);
    EXPECT_TRUE(std::has_virtual_destructor_v<Child_placements>);
}

TEST(HasChildPlacements, PointsAtNoneUntilItsOwnerSetsThem)
{
    EXPECT_EQ(VT::Comp::Has_child_placements().placements_ptr, nullptr);
}

TEST(HasChildPlacements, IsReachedFromAVtObject)
{
    VT::Comp::Container_obj container;
    VT::VT_obj* const object = &container;
    EXPECT_EQ(dynamic_cast<VT::Comp::Has_child_placements*>(object),
              static_cast<VT::Comp::Has_child_placements*>(&container));
}

template <template <typename> class Array_type>
void write_out_with_an_empty_last_slot()
{
    VT::Comp::Container_obj child;
    Child_placements_array<Array_type> children;
    for (std::size_t i = 0; i + 1 < children.size(); ++i)
        children.placements[i].ref = &child;
    children.deref();
}

TEST(ChildPlacementsDeathTest, APlacementWithoutAnObjectEndsTheProcess)
{
    EXPECT_DEATH(write_out_with_an_empty_last_slot<Array_array_1>(), missing_child("Array_array_1"));
    EXPECT_DEATH(write_out_with_an_empty_last_slot<Array_array_2>(), missing_child("Array_array_2"));
    EXPECT_DEATH(write_out_with_an_empty_last_slot<Array_array_3>(), missing_child("Array_array_3"));
    EXPECT_DEATH(write_out_with_an_empty_last_slot<Array_array_4>(), missing_child("Array_array_4"));
    EXPECT_DEATH(write_out_with_an_empty_last_slot<Array_array_8>(), missing_child("Array_array_8"));
    EXPECT_DEATH(write_out_with_an_empty_last_slot<long_list::Owner::Array_array_N>(),
                 missing_child("long_list::Owner::Array_array_N"));
}

Child_placements_array<Array_array_3>* half_written;

/// Ends the aborting process with status 1 if exactly the first of the three placements has been written.
void judge_half_written(int)
{
    const bool first = half_written->attributes[0].x == 7;
    const bool last = half_written->attributes[2].x == 9;
    _exit(first && !last ? 1 : 2);
}

TEST(ChildPlacementsDeathTest, TheEarlierPlacementsHaveBeenWrittenThen)
{
    VT::Comp::Container_obj child;
    Child_placements_array<Array_array_3> children;
    children.placements[0] = {&child, 7, 0};
    children.placements[2] = {&child, 9, 0};
    half_written = &children;
    EXPECT_EXIT(
        {
            std::signal(SIGABRT, judge_half_written);
            children.deref();
        },
        ::testing::ExitedWithCode(1), missing_child("Array_array_3"));
}

} // namespace
