#ifndef TESTS_COMP_ICON_TEXT_H
#define TESTS_COMP_ICON_TEXT_H

#include "tests/comp/Parts.h"
#include "vtui/comp/Connection_elements.h"
#include "vtui/comp/objects/Output_string_obj.h"

#include <initializer_list>
#include <string>

namespace icon_text {

using namespace VT::Comp;
using namespace parts;
using Lines = Record_text::Lines;

/// Captured by an action: it is counted when the action is copied, which with captures above two pointers allocates.
struct Copied
{
    Copied() = default;
    Copied(const Copied& other) : times(other.times + 1) { ++all; }
    Copied& operator=(const Copied&) = delete;

    int times{0};
    void* room[3]{}; ///< as large as it takes
    static inline int all{0};
};

/// What an icon with a text borrows: a style with letters of 6 × 8, icons, texts, and a pool for all of it.
class Icon_text : public ::testing::Test
{
  protected:
    Icon_text()
    {
        style.font_1.size = std::uint8_t{0};
        resize(icon, {40, 24}); // no square: its width is not its height
    }

    /// What is new about a caption: two lines, in the middle, of letters of `font`.
    static void expect_new_caption(Output_string_obj& caption, const VT::Font_attributes_obj& font)
    {
        EXPECT_EQ(caption.get_id(), VT::VT_obj::NULL_ID);
        EXPECT_STREQ(caption.get_name(), "");
        EXPECT_EQ(Record_text::values_of(caption),
                  (Lines{"u16 width 0", "u16 height 0", "colour background_colour 1", "id font_attributes null",
                         "u8 options 3", "id variable_reference null", "u8 justification 1", "text value 0 ''",
                         "count u8 0"}));
        EXPECT_EQ(caption.length, 0);
        EXPECT_EQ(caption.font, &font) << "the link that the pool follows";
        EXPECT_EQ(caption.variable, nullptr);
    }

    /// The computed place of a child, and what stands in the parent's object list.
    static void expect_place(Child_placements& children, std::size_t child, Point place)
    {
        SCOPED_TRACE("child " + std::to_string(child));
        EXPECT_EQ(placed(children, child), place);
        EXPECT_EQ(written(children, child), place);
        EXPECT_EQ(children.get()[child].object_id, children.placement(child).ref->get_id());
    }

    /// Numbers objects from `id` on; the terminal is told all of them.
    void take_all(Iso::Object_id id, std::initializer_list<VT::VT_obj*> objects)
    {
        for (VT::VT_obj* const object : objects) {
            pool.take(*object, id++);
            pool.upload(*object);
        }
        pool.sent.clear();
        pool.uploaded.clear();
    }

    Journal pool; // outlives what is in it
    Connection_elements style;
    Rectangle_obj icon;
    Rectangle_obj other_icon;
    Text fill{"Fill tank"};
};

} // namespace icon_text

#endif
