#include "tests/Fake_pool.h"
#include "vtui/comp/objects/Fill_attributes_obj.h"
#include "vtui/comp/objects/Font_attributes_obj.h"
#include "vtui/comp/objects/Input_number_obj.h"
#include "vtui/comp/objects/Line_attributes_obj.h"
#include "vtui/comp/objects/Line_obj.h"
#include "vtui/comp/objects/Object_pointer_obj.h"
#include "vtui/comp/objects/Output_number_obj.h"
#include "vtui/comp/objects/Output_string_obj.h"
#include "vtui/comp/objects/Picture_graphic_obj.h"
#include "vtui/comp/objects/Polygon_obj.h"
#include "vtui/comp/objects/Rectangle_obj.h"
#include "vtui/comp/objects/String_variable_obj.h"

#include <gtest/gtest.h>

#include <type_traits>

using namespace VT::Comp;

namespace {

/// What there is to link to. The targets have ids from the start; the owner of a link has none.
class Link : public ::testing::Test
{
  protected:
    Link()
    {
        pool.take(target_fill, target_id);
        pool.take(target_line, target_id);
        pool.take(target_font, target_id);
        pool.take(target_picture, target_id);
        pool.take(target_text, target_id);
    }

    /// The life of one link: `set` makes it, `link` is its pointer, `attribute` the id in the record, `change` is the
    /// function and number of its change command.
    template <typename Owner, typename Target, typename Attribute>
    void expect_link_rule(const char* name, Owner&& owner, void (std::decay_t<Owner>::*set)(Target*),
                          Target* std::decay_t<Owner>::*link, Attribute attribute, std::common_type_t<Target>& target,
                          const Fake_pool::Message& linked)
    {
        SCOPED_TRACE(name);
        pool.live = false;
        pool.sent.clear();

        (owner.*set)(&target);
        EXPECT_EQ(owner.*link, &target);
        EXPECT_EQ(owner.*attribute, VT::VT_obj::NULL_ID) << "without an id of its own the owner keeps the pointer only";
        EXPECT_FALSE((owner.*attribute).changed());

        owner.set_pool(&pool, VT::VT_obj::NULL_ID);
        (owner.*set)(&target);
        EXPECT_EQ(owner.*attribute, VT::VT_obj::NULL_ID) << "a pool alone is no id";
        owner.set_pool(nullptr, owner_id);
        (owner.*set)(&target);
        EXPECT_EQ(owner.*attribute, target_id) << "an id without a pool is enough";
        (owner.*set)(nullptr);
        EXPECT_EQ(owner.*attribute, VT::VT_obj::NULL_ID);
        owner.set_pool(nullptr, VT::VT_obj::NULL_ID);
        (owner.*set)(&target);

        pool.take(owner, owner_id);
        EXPECT_EQ(owner.*attribute, VT::VT_obj::NULL_ID) << "whoever gives the id writes the links";
        (owner.*set)(&target);
        EXPECT_EQ(owner.*attribute, target_id);
        (owner.*set)(nullptr);
        EXPECT_EQ(owner.*link, nullptr);
        EXPECT_EQ(owner.*attribute, VT::VT_obj::NULL_ID);
        EXPECT_TRUE(pool.sent.empty()) << "the pool is not live";

        pool.live = true;
        (owner.*set)(&target);
        (owner.*set)(nullptr);
        Fake_pool::Message unlinked = linked;
        unlinked[4] = unlinked[5] = 0xFF;
        EXPECT_EQ(pool.sent, (Messages{linked, unlinked}));
        EXPECT_EQ(owner.*link, nullptr);
        EXPECT_EQ(owner.*attribute, VT::VT_obj::NULL_ID);
    }

    static Fake_pool::Message change_attribute(std::uint8_t attribute)
    {
        return {0xAF, 0x02, 0x01, attribute, 0x0B, 0x0A, 0, 0};
    }

    static constexpr Iso::Object_id owner_id = 0x0102;
    static constexpr Iso::Object_id target_id = 0x0A0B;

    Fake_pool pool;
    Fill_attributes_obj target_fill{2, 1};
    Line_attributes_obj target_line{0, 1, 0xFFFF};
    Font_attributes_obj target_font;
    Picture_graphic_obj target_picture{8, 8, 8, 0, 0, 0, 0, nullptr};
    String_variable_obj<4> target_text;
};

TEST_F(Link, OfARectangle)
{
    expect_link_rule("fill", Rectangle_obj(), &Rectangle_obj::set_fill, &Rectangle_obj::fill,
                     &Rectangle_obj::fill_attributes, target_fill, change_attribute(5));
    expect_link_rule("line", Rectangle_obj(), &Rectangle_obj::set_line, &Rectangle_obj::line,
                     &Rectangle_obj::line_attributes, target_line, change_attribute(1));
}

TEST_F(Link, OfAPolygon)
{
    expect_link_rule("fill", Polygon_obj(), &Polygon_obj::set_fill, &Polygon_obj::fill, &Polygon_obj::fill_attributes,
                     target_fill, change_attribute(4));
    expect_link_rule("line", Polygon_obj(), &Polygon_obj::set_line, &Polygon_obj::line, &Polygon_obj::line_attributes,
                     target_line, change_attribute(3));
}

TEST_F(Link, OfALine)
{
    expect_link_rule("line", Line_obj(1, 1, 0), &Line_obj::set_line, &Line_obj::line, &Line_obj::line_attributes,
                     target_line, change_attribute(1));
}

TEST_F(Link, OfAFill)
{
    expect_link_rule("pattern", Fill_attributes_obj(3, 1), &Fill_attributes_obj::set_pattern,
                     &Fill_attributes_obj::pattern, &Fill_attributes_obj::fill_pattern, target_picture,
                     change_attribute(3));
}

TEST_F(Link, OfANumber)
{
    expect_link_rule("output", Output_number_obj(), &Output_number_obj::set_font, &Output_number_obj::font,
                     &Output_number_obj::font_attributes, target_font, change_attribute(4));
    expect_link_rule("input", Input_number_obj(), &Input_number_obj::set_font, &Input_number_obj::font,
                     &Input_number_obj::font_attributes, target_font, change_attribute(4));
}

TEST_F(Link, OfAString)
{
    expect_link_rule("font", Output_string_obj(), &Output_string_obj::set_font, &Output_string_obj::font,
                     &Output_string_obj::font_attributes, target_font, change_attribute(4));
    expect_link_rule<Output_string_obj, VT::String_variable_obj>(
        "variable", Output_string_obj(), &Output_string_obj::set_variable, &Output_string_obj::variable,
        &Output_string_obj::variable_reference, target_text, change_attribute(6));
}

TEST_F(Link, OfAnObjectPointer)
{
    expect_link_rule<Object_pointer_obj, VT::VT_obj>("target", Object_pointer_obj(), &Object_pointer_obj::set_target,
                                                     &Object_pointer_obj::target, &Object_pointer_obj::value,
                                                     target_font, {0xA8, 0x02, 0x01, 0xFF, 0x0B, 0x0A, 0, 0});
}

TEST_F(Link, ToAnObjectWithoutAnIdIsTheNullId)
{
    Rectangle_obj rectangle;
    rectangle.fill_attributes = std::uint16_t{4};
    pool.take(rectangle, owner_id);
    pool.live = true;
    Fill_attributes_obj without_id(2, 1);
    rectangle.set_fill(&without_id);
    EXPECT_EQ(rectangle.fill, &without_id);
    EXPECT_EQ(rectangle.fill_attributes, VT::VT_obj::NULL_ID);
    EXPECT_EQ(pool.reported, (std::vector<std::string>{"258 a reference leads to an object that is not in the pool"}));
}

TEST_F(Link, ToAnObjectOfThePoolOrToNoneIsNotReported)
{
    Rectangle_obj rectangle;
    Fill_attributes_obj without_id(2, 1);
    rectangle.set_fill(&without_id);
    pool.take(rectangle, owner_id);
    rectangle.set_fill(&target_fill);
    rectangle.set_fill(nullptr);
    EXPECT_TRUE(pool.reported.empty());
}

} // namespace
