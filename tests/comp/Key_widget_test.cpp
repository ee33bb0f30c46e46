#include "tests/comp/Icon_text.h"
#include "vtui/comp/widgets/Function_key.h"
#include "vtui/comp/widgets/Key_widget.h"

#include <type_traits>

using namespace icon_text;

namespace {

/// Both kinds of key show one object in their middle.
template <class Key>
class KeyWidget : public Icon_text
{
  protected:
    void expect_layout(Dimension content, Dimension size, Point place)
    {
        resize(icon, content);
        key.set_content(&icon);
        key.set_size(size);
        expect_place(key.placements, 0, place);
    }

    Key key;
};

using Keys = ::testing::Types<Key_widget, Function_key>;
TYPED_TEST_SUITE(KeyWidget, Keys);

TYPED_TEST(KeyWidget, IsAnEmptyKeyAtFirst)
{
    Key_obj& object = this->key.key;
    EXPECT_EQ(object.get_id(), VT::VT_obj::NULL_ID);
    EXPECT_STREQ(object.get_name(), "");
    EXPECT_EQ(Record_text::values_of(object),
              (Lines{"colour background_colour 1", "u8 key_code 1", "count u8 0", "count u8 0"}));
    EXPECT_EQ(object.placements_ptr, &this->key.placements);
    EXPECT_EQ(object.macros_ptr, nullptr);
    ASSERT_EQ(this->key.placements.size(), 1U);
    EXPECT_EQ(this->key.placements.placements[0].ref, nullptr);
    EXPECT_EQ(placed(this->key.placements, 0), Point(0, 0));
    EXPECT_EQ(this->key.get_background_colour(), 1);
    EXPECT_FALSE(std::is_polymorphic_v<TypeParam>);
}

TYPED_TEST(KeyWidget, PutsItsContentInTheMiddle) { this->expect_layout({30, 20}, {60, 32}, {15, 6}); }

TYPED_TEST(KeyWidget, CutsHalfAPixelOff)
{
    this->expect_layout({31, 20}, {60, 32}, {14, 6});
    this->expect_layout({30, 21}, {60, 32}, {15, 5});
}

TYPED_TEST(KeyWidget, IsOverhungEvenlyByContentThatIsTooLarge)
{
    this->expect_layout({70, 20}, {60, 32}, {-5, 6});
    this->expect_layout({71, 43}, {60, 32}, {-5, -5}); // -11 / 2
}

TYPED_TEST(KeyWidget, HoldsAnyDifferenceOf16BitSizes)
{
    this->expect_layout({65535, 65535}, {0, 0}, {-32767, -32767});
    this->expect_layout({0, 0}, {65535, 65535}, {32767, 32767});
}

TYPED_TEST(KeyWidget, LaysOutTheSizeThatAPointerShows)
{
    Object_pointer_obj pointer;
    pointer.set_target(&this->icon);
    resize(this->icon, {30, 20});
    this->key.set_content(&pointer);
    this->key.set_size({60, 32});
    this->expect_place(this->key.placements, 0, {15, 6});
}

TYPED_TEST(KeyWidget, ShowsANewContentWithTheNextSizeOnly)
{
    this->pool.take(this->icon, 0x1002);
    this->pool.take(this->key.key, 0x1001);
    this->expect_layout({30, 20}, {60, 32}, {15, 6});
    this->pool.live = true;
    this->key.set_content(&this->other_icon);
    expect_child(this->key.placements, 0, this->other_icon, {0, 0});
    EXPECT_EQ(this->key.placements.attributes[0].object_id, 0x1002);
    EXPECT_EQ(this->key.placements.attributes[0].x, 15);
    this->key.set_size({60, 32});
    this->expect_place(this->key.placements, 0, {30, 16});
    EXPECT_TRUE(this->pool.news().empty());
    EXPECT_TRUE(this->pool.uploaded.empty());
}

TYPED_TEST(KeyWidget, LeavesTheKeyAsItIsWhenItIsLaidOut)
{
    const Lines before = Record_text::values_of(this->key.key);
    this->expect_layout({30, 20}, {60, 32}, {15, 6});
    EXPECT_EQ(Record_text::values_of(this->key.key), before);
}

TYPED_TEST(KeyWidget, SendsItsBackgroundColour)
{
    this->key.set_background_colour(200);
    EXPECT_EQ(this->key.get_background_colour(), 200);
    this->pool.take(this->key.key, 0x0102);
    this->key.set_background_colour(255);
    EXPECT_EQ(this->key.get_background_colour(), 255);
    EXPECT_TRUE(this->pool.news().empty()) << "not live yet";
    this->pool.live = true;
    this->key.set_background_colour(12);
    EXPECT_EQ(this->key.get_background_colour(), 12);
    EXPECT_EQ(this->pool.news(), (Messages{{0xA7, 0x02, 0x01, 12, 0xFF, 0xFF, 0xFF, 0xFF}}));
}

TYPED_TEST(KeyWidget, IsKnownByTheIdOfItsKey)
{
    EXPECT_TRUE(this->key.is_key_id(VT::VT_obj::NULL_ID)) << "it has none yet";
    EXPECT_FALSE(this->key.is_key_id(0x0102));
    this->pool.take(this->key.key, 0x0102);
    EXPECT_TRUE(this->key.is_key_id(0x0102));
    EXPECT_FALSE(this->key.is_key_id(0x0201));
    EXPECT_FALSE(this->key.is_key_id(0x02));
    EXPECT_FALSE(this->key.is_key_id(VT::VT_obj::NULL_ID));
}

template <class Key>
class KeyWidgetDeathTest : public KeyWidget<Key>
{};
TYPED_TEST_SUITE(KeyWidgetDeathTest, Keys);

TYPED_TEST(KeyWidgetDeathTest, ALayoutWithoutContentEndsTheProcess)
{
    EXPECT_DEATH(this->key.set_size({60, 32}), no_child("Array_array_1"));
    this->key.set_content(&this->icon);
    this->key.set_content(nullptr);
    EXPECT_DEATH(this->key.set_size({60, 32}), no_child("Array_array_1"));
}

TYPED_TEST(KeyWidgetDeathTest, AVectorCannotMoveIt) { expect_no_second_in_a_vector<TypeParam>(); }

} // namespace
