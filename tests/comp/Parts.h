#ifndef TESTS_COMP_PARTS_H
#define TESTS_COMP_PARTS_H

#include "tests/Bytes.h"
#include "tests/Death.h"
#include "tests/Fake_pool.h"
#include "tests/Record_text.h"
#include "vtui/comp/objects/Button_obj.h"
#include "vtui/comp/objects/Container_obj.h"
#include "vtui/comp/objects/Dimension.h"
#include "vtui/comp/objects/Has_child_placements.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <utility>
#include <vector>

namespace VT::Comp {

inline bool operator==(Dimension a, Dimension b) { return a.width == b.width && a.height == b.height; }
inline bool operator==(Point a, Point b) { return a.x == b.x && a.y == b.y; }
inline std::ostream& operator<<(std::ostream& out, Dimension d) { return out << d.width << " x " << d.height; }
inline std::ostream& operator<<(std::ostream& out, Point p) { return out << p.x << ", " << p.y; }

} // namespace VT::Comp

/// What the tests of composed components share.
namespace parts {

using VT::Comp::Child_placements;
using VT::Comp::Container_obj;
using VT::Comp::Point;

/// A string variable that is as long as its text.
struct Text
{
    explicit Text(std::string text)
        : buffer(std::move(text)),
          variable(VT::VT_obj::NULL_ID, nullptr, static_cast<std::uint16_t>(buffer.size()), buffer.data())
    {}

    std::string buffer;
    VT::String_variable_obj variable;
};

/// A pool that writes uploads down between the messages: as transfers of which only the id is told.
class Journal final : public Fake_pool
{
  public:
    void upload(VT::VT_obj& object) override
    {
        Fake_pool::upload(object);
        sent.push_back(join(0x11, w(object.get_id())));
    }

    /// What was sent since the last time.
    Messages news() { return std::exchange(sent, {}); }
};

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

/// A button as it is constructed.
inline void expect_new_button(VT::Comp::Button_obj& button)
{
    EXPECT_EQ(button.get_id(), VT::VT_obj::NULL_ID);
    EXPECT_STREQ(button.get_name(), "");
    EXPECT_EQ(
        Record_text::values_of(button),
        (Record_text::Lines{"u16 width 200", "u16 height 200", "colour background_colour 0", "colour border_colour 0",
                            "u8 key_code 1", "u8 options 0", "count u8 0", "count u8 0"}));
    EXPECT_EQ(button.placements_ptr, nullptr);
    EXPECT_EQ(button.macros_ptr, nullptr);
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
