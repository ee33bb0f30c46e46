#include "tests/Fake_pool.h"
#include "tests/platform/Objects.h"

#include <gtest/gtest.h>

#include <functional>

namespace {

/// A pool that has the object of a test under the id 0x0102.
class ChangeCommand : public ::testing::Test
{
  protected:
    template <typename Object>
    void go_live(Object& object)
    {
        pool.take(object, 0x0102);
        pool.live = true;
    }

    Fake_pool pool;
};

TEST_F(ChangeCommand, HidesAndShowsAContainer)
{
    auto object = objects::container();
    go_live(object);
    object.set_hidden(true);
    EXPECT_EQ(object.hidden, 1);
    object.set_hidden(false);
    EXPECT_EQ(object.hidden, 0);
    EXPECT_EQ(pool.sent,
              (Messages{{0xA0, 0x02, 0x01, 0, 0xFF, 0xFF, 0xFF, 0xFF}, {0xA0, 0x02, 0x01, 1, 0xFF, 0xFF, 0xFF, 0xFF}}));
}

TEST_F(ChangeCommand, MovesAChild)
{
    VT::Attribute_object_placement children[2];
    children[0].object_id = std::uint16_t{0x0A0B};
    children[1].object_id = std::uint16_t{0x0C0D};
    auto object = objects::container(children, 2);
    go_live(object);
    object.set_child_location(1, -2, 0x0304);
    EXPECT_EQ(pool.sent, (Messages{{0xB4, 0x02, 0x01, 0x0D, 0x0C, 0xFE, 0xFF, 0x04, 0x03}}));
    EXPECT_EQ(children[1].x, -2);
    EXPECT_EQ(children[1].y, 0x0304);
    EXPECT_EQ(children[0].x, 0);
    EXPECT_TRUE(pool.uploaded.empty());
}

TEST_F(ChangeCommand, SendsTheContainerAgainToMoveAChildThatItHoldsTwice)
{
    VT::Attribute_object_placement children[3];
    children[0].object_id = std::uint16_t{7};
    children[1].object_id = std::uint16_t{8};
    children[2].object_id = std::uint16_t{7};
    auto object = objects::container(children, 3);
    go_live(object);
    object.set_child_location(2, 5, 6);
    EXPECT_TRUE(pool.sent.empty());
    EXPECT_EQ(pool.uploaded, (std::vector<VT::VT_obj*>{&object}));
    EXPECT_EQ(children[2].x, 5);
    EXPECT_EQ(children[2].y, 6);
    EXPECT_EQ(children[0].x, 0) << "the other place of the same child";

    ASSERT_FALSE(object.is_changed());
    object.set_child_location(2, 5, 6);
    EXPECT_EQ(pool.uploaded.size(), 2U) << "also to where it is";

    object.set_child_location(1, 5, 6);
    EXPECT_EQ(pool.sent.size(), 1U) << "the child that it holds once";
    EXPECT_EQ(pool.uploaded.size(), 2U);
}

TEST_F(ChangeCommand, IgnoresAChildBeyondTheList)
{
    VT::Attribute_object_placement children[2];
    children[0].object_id = std::uint16_t{7};
    auto object = objects::container(children, 1);
    go_live(object);
    object.set_child_location(1, 5, 6);
    EXPECT_TRUE(pool.sent.empty());
    EXPECT_TRUE(pool.uploaded.empty());
    EXPECT_FALSE(children[1].changed());
}

TEST_F(ChangeCommand, SendsTheContainerAgainToExchangeAChild)
{
    VT::Attribute_object_placement children[2];
    children[1].object_id = std::uint16_t{8};
    auto object = objects::container(children, 2);
    go_live(object);
    object.set_child_location(1, 9, -5, 6, true);
    EXPECT_EQ(children[1].object_id, 9);
    EXPECT_EQ(children[1].x, -5);
    EXPECT_EQ(children[1].y, 6);
    EXPECT_TRUE(pool.sent.empty());
    EXPECT_EQ(pool.uploaded, (std::vector<VT::VT_obj*>{&object}));

    object.set_child_location(2, 9, -5, 6, true);
    EXPECT_EQ(pool.uploaded.size(), 1U) << "there is no such child";
}

TEST_F(ChangeCommand, ExchangesAChildForItselfOnlyIfAsked)
{
    VT::Attribute_object_placement children[1];
    children[0].object_id = std::uint16_t{8};
    auto object = objects::container(children, 1);
    for (VT::Attribute_object_placement& child : children) {
        child.object_id.set_told();
        child.x.set_told();
        child.y.set_told();
    }
    go_live(object);
    ASSERT_FALSE(object.is_changed());
    object.set_child_location(0, 8, 0, 0, false);
    EXPECT_TRUE(pool.uploaded.empty());
    object.set_child_location(0, 8, 0, 0, true);
    EXPECT_EQ(pool.uploaded.size(), 1U);
    object.set_child_location(0, 8, 0, 1, false);
    EXPECT_EQ(pool.uploaded.size(), 2U);
}

TEST_F(ChangeCommand, ChangesASize)
{
    auto object = objects::rectangle();
    go_live(object);
    object.change_size(0x0304, 0x0506);
    EXPECT_EQ(pool.sent, (Messages{{0xA6, 0x02, 0x01, 0x04, 0x03, 0x06, 0x05, 0xFF}}));
    EXPECT_EQ(object.width, 0x0304);
    EXPECT_EQ(object.height, 0x0506);
}

TEST_F(ChangeCommand, ChangesABackgroundColour)
{
    const Fake_pool::Message expected{0xA7, 0x02, 0x01, 12, 0xFF, 0xFF, 0xFF, 0xFF};
    const auto check = [&](auto object) {
        pool.sent.clear();
        go_live(object);
        object.set_background_colour(12);
        EXPECT_EQ(pool.sent, (Messages{expected}));
        EXPECT_EQ(object.background_colour, 12);
    };
    check(objects::button());
    check(objects::key());
    check(objects::output_number());
    check(objects::input_number());
    check(objects::output_string());
    check(VT::Data_mask_obj());
    check(VT::Alarm_mask_obj());
    check(VT::Soft_key_mask_obj());
    check(VT::Working_set_obj());
}

TEST_F(ChangeCommand, ChangesANumericValue)
{
    const auto check = [&](auto object) {
        pool.sent.clear();
        go_live(object);
        object.set_value(0x04030201);
        EXPECT_EQ(pool.sent, (Messages{{0xA8, 0x02, 0x01, 0xFF, 1, 2, 3, 4}}));
        EXPECT_EQ(object.value, 0x04030201U);
    };
    check(objects::output_number());
    check(objects::input_number());
}

TEST_F(ChangeCommand, PointsAPointerAtAnotherObject)
{
    auto object = objects::object_pointer();
    go_live(object);
    object.set_value(0x0708);
    object.set_value(VT::VT_obj::NULL_ID);
    EXPECT_EQ(pool.sent, (Messages{{0xA8, 0x02, 0x01, 0xFF, 0x08, 0x07, 0, 0}, //
                                   {0xA8, 0x02, 0x01, 0xFF, 0xFF, 0xFF, 0, 0}}));
    EXPECT_EQ(object.value, VT::VT_obj::NULL_ID);
}

TEST_F(ChangeCommand, EnablesAndDisablesAButtonByItsOption)
{
    auto object = objects::button();
    go_live(object);
    object.set_enabled(false);
    EXPECT_EQ(object.options, 4 | 16);
    object.set_enabled(true);
    EXPECT_EQ(object.options, 4);
    EXPECT_EQ(pool.sent,
              (Messages{{0xA1, 0x02, 0x01, 0, 0xFF, 0xFF, 0xFF, 0xFF}, {0xA1, 0x02, 0x01, 1, 0xFF, 0xFF, 0xFF, 0xFF}}));
}

TEST_F(ChangeCommand, EnablesAndDisablesAnInputNumberByItsOption)
{
    auto object = objects::input_number();
    object.options_2 = std::uint8_t{3};
    go_live(object);
    object.set_enabled(false);
    EXPECT_EQ(object.options_2, 2);
    object.set_enabled(true);
    EXPECT_EQ(object.options_2, 3);
    EXPECT_EQ(pool.sent,
              (Messages{{0xA1, 0x02, 0x01, 0, 0xFF, 0xFF, 0xFF, 0xFF}, {0xA1, 0x02, 0x01, 1, 0xFF, 0xFF, 0xFF, 0xFF}}));
}

/// The message of Change Attribute for a reference to the object 0x0A0B.
Messages reference_message(std::uint8_t attribute) { return {{0xAF, 0x02, 0x01, attribute, 0x0B, 0x0A, 0, 0}}; }

TEST_F(ChangeCommand, ChangesAReference)
{
    const auto check = [&](auto object, std::uint8_t attribute, auto change, auto reference) {
        pool.sent.clear();
        go_live(object);
        (object.*change)(0x0A0B);
        EXPECT_EQ(pool.sent, reference_message(attribute));
        EXPECT_EQ(object.*reference, 0x0A0B);
    };
    using Field = VT::Field_obj;
    check(objects::output_number(), 4, &Field::set_font_attributes, &Field::font_attributes);
    check(objects::input_number(), 4, &Field::set_font_attributes, &Field::font_attributes);
    check(objects::output_string(), 4, &Field::set_font_attributes, &Field::font_attributes);
    check(objects::output_number(), 6, &Field::set_variable_reference, &Field::variable_reference);
    check(objects::input_number(), 6, &Field::set_variable_reference, &Field::variable_reference);
    check(objects::output_string(), 6, &Field::set_variable_reference, &Field::variable_reference);
    check(objects::rectangle(), 1, &VT::Rectangle_obj::set_line_attributes, &VT::Rectangle_obj::line_attributes);
    check(objects::rectangle(), 5, &VT::Rectangle_obj::set_fill_attributes, &VT::Rectangle_obj::fill_attributes);
    check(objects::line(), 1, &VT::Line_obj::set_line_attributes, &VT::Line_obj::line_attributes);
    check(objects::polygon(), 3, &VT::Polygon_obj::set_line_attributes, &VT::Polygon_obj::line_attributes);
    check(objects::polygon(), 4, &VT::Polygon_obj::set_fill_attributes, &VT::Polygon_obj::fill_attributes);
    check(objects::fill(), 3, &VT::Fill_attributes_obj::set_fill_pattern, &VT::Fill_attributes_obj::fill_pattern);
}

TEST_F(ChangeCommand, TakesAReferenceAwayWithTheNullId)
{
    auto object = objects::rectangle();
    go_live(object);
    object.set_fill_attributes(VT::VT_obj::NULL_ID);
    EXPECT_EQ(pool.sent, (Messages{{0xAF, 0x02, 0x01, 5, 0xFF, 0xFF, 0, 0}}));
}

TEST_F(ChangeCommand, ChangesATextAndFillsTheMessageUp)
{
    char text[] = "    ";
    auto object = objects::string_variable(text, 4);
    go_live(object);
    object.set_string(0, "ab", 2);
    EXPECT_EQ(pool.sent, (Messages{{0xB3, 0x02, 0x01, 2, 0, 'a', 'b', 0xFF}}));
    EXPECT_EQ(object.num_chars(), 2);
    EXPECT_STREQ(text, "ab");
}

TEST_F(ChangeCommand, ChangesATextThatFillsItsVariableAndNoMore)
{
    char text[] = "    !";
    auto object = objects::string_variable(text, 4);
    go_live(object);
    object.set_string(0, "abcdef", 6);
    EXPECT_EQ(pool.sent, (Messages{{0xB3, 0x02, 0x01, 4, 0, 'a', 'b', 'c', 'd'}}));
    EXPECT_STREQ(text, "abcd!");
}

TEST_F(ChangeCommand, ChangesTheEndOfATextAndSendsTheWholeOfIt)
{
    char text[] = "abcd!behind it";
    auto object = objects::string_variable(text, 4);
    go_live(object);
    object.set_string(2, "Z", 1);
    EXPECT_EQ(pool.sent, (Messages{{0xB3, 0x02, 0x01, 3, 0, 'a', 'b', 'Z'}}));
    object.set_string(9, "Z", 1);
    EXPECT_STREQ(text, "abZ");
    EXPECT_STREQ(text + 4, "!behind it") << "there is no room behind the end";
}

TEST_F(ChangeCommand, ReadsNoMoreOfATextThanFits)
{
    char text[] = "  ";
    const char given[] = {'a', 'b'}; // a third byte would be outside
    auto object = objects::string_variable(text, 2);
    go_live(object);
    object.set_string(0, given, 500);
    EXPECT_STREQ(text, "ab");
    EXPECT_EQ(pool.sent, (Messages{{0xB3, 0x02, 0x01, 2, 0, 'a', 'b', 0xFF}}));
}

TEST_F(ChangeCommand, ChangesAnAttributeByItsName)
{
    auto object = objects::output_number();
    go_live(object);
    EXPECT_TRUE(object.change_attribute("width", 300));
    EXPECT_TRUE(object.change_attribute("background_colour", 255));
    EXPECT_TRUE(object.change_attribute("offset", -2));
    EXPECT_TRUE(object.change_attribute("scale", 0.25));
    EXPECT_TRUE(object.change_attribute("font_attributes", 0x0A0B));
    EXPECT_EQ(pool.sent, (Messages{{0xAF, 0x02, 0x01, 1, 0x2C, 0x01, 0, 0},
                                   {0xAF, 0x02, 0x01, 3, 0xFF, 0, 0, 0},
                                   {0xAF, 0x02, 0x01, 7, 0xFE, 0xFF, 0xFF, 0xFF},
                                   {0xAF, 0x02, 0x01, 8, 0, 0, 0x80, 0x3E},
                                   {0xAF, 0x02, 0x01, 4, 0x0B, 0x0A, 0, 0}}));
    EXPECT_EQ(object.width, 300);
    EXPECT_EQ(object.background_colour, 255);
    EXPECT_EQ(object.offset, -2);
    EXPECT_EQ(object.scale, 0.25F);
    EXPECT_EQ(object.font_attributes, 0x0A0B);
}

TEST_F(ChangeCommand, RefusesAnAttributeThatTheClassDoesNotHave)
{
    auto object = objects::output_number();
    go_live(object);
    EXPECT_FALSE(object.change_attribute("fill_pattern", 1));
    EXPECT_FALSE(object.change_attribute("", 1));
    EXPECT_TRUE(pool.sent.empty());
}

TEST_F(ChangeCommand, RefusesAnAttributeThatTheStandardGivesNoId)
{
    auto container = objects::container();
    go_live(container);
    EXPECT_FALSE(container.change_attribute("hidden", 1));
    EXPECT_EQ(container.hidden, 0);
    auto number = objects::input_number();
    go_live(number);
    EXPECT_FALSE(number.change_attribute("value", 5));
    EXPECT_EQ(number.value, 1234U);
    EXPECT_TRUE(pool.sent.empty());
}

TEST_F(ChangeCommand, RefusesAnAttributeValueOutOfRange)
{
    auto object = objects::output_number();
    go_live(object);
    EXPECT_FALSE(object.change_attribute("width", -1));
    EXPECT_FALSE(object.change_attribute("width", 65536));
    EXPECT_FALSE(object.change_attribute("width", 1.5));
    EXPECT_FALSE(object.change_attribute("format", 2));
    EXPECT_FALSE(object.change_attribute("options", 16));
    EXPECT_EQ(object.width, 100);
    EXPECT_EQ(object.format, 1);
    EXPECT_EQ(object.options, 8);
    EXPECT_TRUE(pool.sent.empty());
}

/// Every operation with a command, on an object that `prepare` puts where the test wants it.
void change_everything(const std::function<void(VT::VT_obj&)>& prepare)
{
    const auto with = [&](auto object, auto change) {
        prepare(object);
        change(object);
    };
    VT::Attribute_object_placement child[1];
    char text[] = "  ";
    with(objects::container(), [](auto& o) { o.set_hidden(true); });
    with(objects::container(child, 1), [](auto& o) { o.set_child_location(0, 1, 2); });
    with(objects::rectangle(), [](auto& o) { o.change_size(1, 2); });
    with(objects::rectangle(), [](auto& o) { o.set_line_attributes(3); });
    with(objects::rectangle(), [](auto& o) { o.set_fill_attributes(3); });
    with(objects::polygon(), [](auto& o) { o.set_line_attributes(3); });
    with(objects::line(), [](auto& o) { o.set_line_attributes(3); });
    with(objects::fill(), [](auto& o) { o.set_fill_pattern(3); });
    with(objects::button(), [](auto& o) { o.set_background_colour(3); });
    with(objects::button(), [](auto& o) { o.set_enabled(false); });
    with(objects::input_number(), [](auto& o) { o.set_enabled(false); });
    with(objects::output_number(), [](auto& o) { o.set_value(3); });
    with(objects::output_string(), [](auto& o) { o.set_font_attributes(3); });
    with(objects::output_string(), [](auto& o) { o.set_variable_reference(3); });
    with(objects::object_pointer(), [](auto& o) { o.set_value(3); });
    with(objects::string_variable(text, 2), [](auto& o) { o.set_string(0, "a", 1); });
    with(objects::font(), [](auto& o) { EXPECT_TRUE(o.change_attribute("font_size", 3)); });
    with(VT::Data_mask_obj(), [](auto& o) { o.set_soft_key_mask(nullptr); });
    with(VT::Data_mask_obj(), [](auto& o) { o.set_background_colour(3); });
    VT::Data_mask_obj mask;
    with(VT::Working_set_obj(), [&mask](auto& o) { o.set_active_mask(mask); });
}

TEST_F(ChangeCommand, IsNotSentWithoutAPool)
{
    change_everything([](VT::VT_obj&) {});
    EXPECT_TRUE(pool.sent.empty());
}

TEST_F(ChangeCommand, IsNotSentBeforeThePoolIsLive)
{
    change_everything([this](VT::VT_obj& object) { pool.take(object, 0x0102); });
    EXPECT_TRUE(pool.sent.empty());
    EXPECT_TRUE(pool.uploaded.empty());
}

TEST_F(ChangeCommand, IsSentOnceForEachOperationWhenThePoolIsLive)
{
    change_everything([this](VT::VT_obj& object) { go_live(object); });
    EXPECT_EQ(pool.sent.size(), 20U);
    EXPECT_TRUE(pool.uploaded.empty());
}

TEST_F(ChangeCommand, KeepsTheValueForLaterWhileThePoolIsNotLive)
{
    auto object = objects::output_number();
    pool.take(object, 0x0102);
    object.set_value(77);
    EXPECT_EQ(object.value, 77U);
    EXPECT_TRUE(object.value.changed());
}

} // namespace
