#include "tests/Fake_pool.h"
#include "tests/platform/Objects.h"

#include <gtest/gtest.h>

namespace {

/// A live pool.
class Upload : public ::testing::Test
{
  protected:
    Upload() { pool.live = true; }

    template <typename Object>
    std::size_t uploads_of(Object& object)
    {
        pool.uploaded.clear();
        object.upload(false);
        return pool.uploaded.size();
    }

    Fake_pool pool;
};

TEST_F(Upload, AlwaysSendsTheRecord)
{
    auto object = objects::container();
    pool.take(object, 5);
    object.upload(true);
    object.upload(true);
    EXPECT_EQ(pool.uploaded, (std::vector<VT::VT_obj*>{&object, &object}));
    EXPECT_TRUE(pool.sent.empty());
}

TEST_F(Upload, SendsNothingUnlessThePoolIsLive)
{
    auto object = objects::container();
    object.upload(true);
    pool.live = false;
    pool.take(object, 5);
    object.width = std::uint16_t{1};
    object.upload(true);
    object.upload(false);
    EXPECT_TRUE(pool.uploaded.empty());
}

TEST_F(Upload, OfWhatHasChangedSendsNothingWhenNothingHas)
{
    auto object = objects::container();
    pool.take(object, 5);
    EXPECT_EQ(uploads_of(object), 0U);
    object.width = std::uint16_t{240};
    EXPECT_EQ(uploads_of(object), 0U) << "the same width";
}

TEST_F(Upload, OfWhatHasChangedSendsTheRecordOnce)
{
    auto object = objects::container();
    pool.take(object, 5);
    object.width = std::uint16_t{1};
    EXPECT_EQ(uploads_of(object), 1U);
    EXPECT_EQ(uploads_of(object), 0U);
}

TEST_F(Upload, FindsAChangeInEveryPartOfARecord)
{
    const auto check = [this](const char* part, auto&& object, auto change) {
        SCOPED_TRACE(part);
        pool.take(object, 5);
        EXPECT_EQ(uploads_of(object), 0U);
        change(object);
        EXPECT_EQ(uploads_of(object), 1U);
    };
    VT::Attribute_object_placement children[3];
    VT::Attribute_point points[3];
    char text[] = "  ";
    check("u8", objects::container(), [](auto& o) { o.hidden = std::uint8_t{1}; });
    check("u16", objects::container(), [](auto& o) { o.height = std::uint16_t{1}; });
    check("u32", objects::output_number(), [](auto& o) { o.value = std::uint32_t{1}; });
    check("s32", objects::output_number(), [](auto& o) { o.offset = std::int32_t{1}; });
    check("f32", objects::output_number(), [](auto& o) { o.scale = 1.0F; });
    check("id", objects::rectangle(), [](auto& o) { o.fill_attributes = std::uint16_t{1}; });
    check("colour", objects::button(), [](auto& o) { o.border_colour = std::uint8_t{1}; });
    check("text", objects::string_variable(text, 2), [](auto& o) { o.value.set_changed(); });
    check("children", objects::container(children, 3), [&](auto&) { children[2].y = std::int16_t{1}; });
    check("points", objects::polygon(points, 3), [&](auto&) { points[2].x = std::uint16_t{1}; });

    VT::Key_obj key = objects::key();
    VT::Soft_key_mask_obj keys;
    keys.add(key);
    keys.write_children();
    check("keys", keys, [](auto& o) { o.objects[0].object_id = std::uint16_t{3}; });
}

/// What a change command has told the terminal is not told again.
class UploadAfterCommand : public Upload
{
  protected:
    template <typename Object, typename Change>
    void expect_told(Object&& object, Change change)
    {
        pool.take(object, 5);
        pool.sent.clear();
        change(object);
        EXPECT_EQ(pool.sent.size(), 1U);
        EXPECT_EQ(uploads_of(object), 0U);
    }
};

TEST_F(UploadAfterCommand, SendsNothing)
{
    VT::Attribute_object_placement child[1];
    char text[] = "  ";
    expect_told(objects::container(), [](auto& o) { o.set_hidden(true); });
    expect_told(objects::container(child, 1), [](auto& o) { o.set_child_location(0, 1, 2); });
    expect_told(objects::rectangle(), [](auto& o) { o.change_size(1, 2); });
    expect_told(objects::rectangle(), [](auto& o) { o.set_line_attributes(3); });
    expect_told(objects::button(), [](auto& o) { o.set_background_colour(3); });
    expect_told(objects::button(), [](auto& o) { o.set_enabled(false); });
    expect_told(objects::input_number(), [](auto& o) { o.set_enabled(false); });
    expect_told(objects::output_number(), [](auto& o) { o.set_value(3); });
    expect_told(objects::object_pointer(), [](auto& o) { o.set_value(3); });
    expect_told(objects::string_variable(text, 2), [](auto& o) { o.set_string(0, "a", 1); });
}

TEST_F(UploadAfterCommand, SendsNothingForAnAttributeChangedByItsName)
{
    expect_told(objects::font(), [](auto& o) { EXPECT_TRUE(o.change_attribute("font_size", 3)); });
    expect_told(objects::output_number(), [](auto& o) { EXPECT_TRUE(o.change_attribute("scale", 3)); });
    expect_told(objects::key(), [](auto& o) { EXPECT_TRUE(o.change_attribute("background_colour", 3)); });
}

TEST_F(UploadAfterCommand, SendsWhatTheCommandDidNotCarry)
{
    auto object = objects::container();
    pool.take(object, 5);
    object.width = std::uint16_t{1};
    object.set_hidden(true);
    EXPECT_EQ(uploads_of(object), 1U);
}

TEST_F(UploadAfterCommand, SendsAMaskNothingForItsSoftKeyMask)
{
    VT::Soft_key_mask_obj keys;
    pool.take(keys, 6);
    expect_told(VT::Data_mask_obj(), [&](auto& o) { o.set_soft_key_mask(&keys); });
    VT::Data_mask_obj mask;
    pool.take(mask, 7);
    expect_told(VT::Working_set_obj(), [&](auto& o) { o.set_active_mask(mask); });
}

} // namespace
