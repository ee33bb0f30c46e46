#ifndef TESTS_COMP_PARTS_H
#define TESTS_COMP_PARTS_H

#include "tests/Death.h"
#include "tests/comp/Number_field.h"
#include "vtui/comp/objects/Container_obj.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

/// What the tests of composed components share.
namespace parts {

using number_field::Journal;
using VT::Comp::Child_placements;
using VT::Comp::Container_obj;
using VT::Comp::Point;

// The messages of a live pool, as bytes.

inline Bytes hide_show(Iso::Object_id id, bool show) { return frame(0xA0, w(id), show); }
inline Bytes numeric_value(Iso::Object_id id, Iso::Object_id value) { return frame(0xA8, w(id), 0xFF, d(value)); }
inline Bytes child_position(Iso::Object_id parent, Iso::Object_id child, int x, int y)
{
    return join(0xB4, w(parent), w(child), w(x), w(y));
}
inline Bytes transfer(Iso::Object_id id) { return join(0x11, w(id)); } ///< an upload, as Journal writes it down

/// Gives a container whose children have their ids the list of them, as the builder of a pool does.
inline void list_children(Container_obj& container)
{
    Child_placements& children = *container.placements_ptr;
    children.deref();
    container.objects = children.get();
    container.num_objects = static_cast<std::uint8_t>(children.size());
}

/// Numbers such a container. The terminal is told.
inline void take_parent(Journal& pool, Container_obj& container, Iso::Object_id id)
{
    list_children(container);
    pool.take(container, id);
    pool.upload(container);
    pool.sent.clear();
    pool.uploaded.clear();
}

/// Where child `i` lies.
inline Point placed(Child_placements& children, std::size_t i)
{
    return {children.placement(i).x, children.placement(i).y};
}

/// Where the record says that child `i` lies.
inline Point written(Child_placements& children, std::size_t i) { return {children.get()[i].x, children.get()[i].y}; }

/// A container as it is constructed, of these children.
inline void expect_new(const Container_obj& container, const Child_placements& children)
{
    EXPECT_EQ(container.get_id(), VT::VT_obj::NULL_ID);
    EXPECT_STREQ(container.get_name(), "");
    EXPECT_EQ(container.width, 240);
    EXPECT_EQ(container.height, 240);
    EXPECT_EQ(container.hidden, 0);
    EXPECT_EQ(container.objects, nullptr);
    EXPECT_EQ(container.num_objects, 0);
    EXPECT_EQ(container.macros, nullptr);
    EXPECT_EQ(container.num_macros, 0);
    EXPECT_EQ(container.macros_ptr, nullptr);
    EXPECT_EQ(container.placements_ptr, &children);
}

inline void expect_child(Child_placements& children, std::size_t i, const VT::VT_obj& child, Point place)
{
    EXPECT_EQ(children.placement(i).ref, &child) << "child " << i;
    EXPECT_EQ(placed(children, i), place) << "child " << i;
}

inline death::Words no_child(const std::string& array)
{
    return death::assertion("false", "../../../../lib/vtui/comp/objects/Has_child_placements", 213,
                            "void VT::Comp::Child_placements_array<Array_type>::deref() [with Array_type = " + array +
                                "]");
}

inline death::Words copied()
{
    return death::assertion("false", "../../../../lib/vtui/comp/objects/Object", 165,
                            "VT::Comp::Object::Object(const VT::Comp::Object&)");
}

/// A vector takes in one component, and ends the process when it has to move that to take in another.
template <class Component, typename... Arguments>
void expect_no_second_in_a_vector(Arguments&&... arguments)
{
    std::vector<Component> components;
    components.emplace_back(arguments...);
    ASSERT_EQ(components.size(), 1U);
    ASSERT_EQ(components.capacity(), 1U);
    EXPECT_DEATH(components.emplace_back(arguments...), copied());
}

} // namespace parts

#endif
