#include "tests/Fake_pool.h"
#include "tests/Record_text.h"
#include "tests/platform/Objects.h"

#include <gtest/gtest.h>

using Lines = Record_text::Lines;

namespace {

TEST(DataMask, ListsItsChildrenInTheOrderTheyWereAdded)
{
    Fake_pool pool;
    auto box = objects::container();
    auto button = objects::button();
    VT::Data_mask_obj mask("main", 7);
    mask.add(box, 10, -20);
    mask.add(button, 30, 40);
    mask.add(box, 0, 5);
    EXPECT_STREQ(mask.get_name(), "main");
    EXPECT_EQ(mask.get_children(), (std::vector<VT::VT_obj*>{&box, &button, &box}));

    pool.take(box, 11);
    pool.take(button, 12);
    pool.take(mask, 10);
    mask.write_children();
    EXPECT_EQ(mask.get_type(), Iso::Object_type::data_mask);
    EXPECT_EQ(Record_text::of(mask),
              (Lines{"colour background_colour 7 #1", "id soft_key_mask null #2", "count u8 3", "count u8 0",
                     "child 11 at 10,-20", "child 12 at 30,40", "child 11 at 0,5"}));
}

TEST(DataMask, IsEmptyAndBlackAtFirst)
{
    VT::Data_mask_obj mask;
    EXPECT_EQ(mask.get_id(), VT::VT_obj::NULL_ID);
    EXPECT_STREQ(mask.get_name(), "");
    EXPECT_EQ(mask.get_soft_key_mask(), nullptr);
    EXPECT_EQ(Record_text::of(mask),
              (Lines{"colour background_colour 0 #1", "id soft_key_mask null #2", "count u8 0", "count u8 0"}));
}

TEST(AlarmMask, HasPriorityAndSignal)
{
    VT::Alarm_mask_obj mask("alarm", 12);
    EXPECT_EQ(mask.get_type(), Iso::Object_type::alarm_mask);
    mask.priority = std::uint8_t{2};
    mask.acoustic_signal = std::uint8_t{3};
    EXPECT_EQ(Record_text::of(mask),
              (Lines{"colour background_colour 12 #1", "id soft_key_mask null #2", "u8 priority 2 #3",
                     "u8 acoustic_signal 3 #4", "count u8 0", "count u8 0"}));
}

TEST(SoftKeyMask, ListsItsKeysWithoutPositions)
{
    Fake_pool pool;
    auto key = objects::key();
    auto pointer = objects::object_pointer();
    VT::Soft_key_mask_obj keys(nullptr, 3);
    keys.add(key);
    keys.add(pointer);
    pool.take(key, 11);
    pool.take(pointer, 12);
    pool.take(keys, 10);
    keys.write_children();
    EXPECT_EQ(keys.get_type(), Iso::Object_type::soft_key_mask);
    EXPECT_EQ(Record_text::of(keys),
              (Lines{"colour background_colour 3 #1", "count u8 2", "count u8 0", "key 11 at 0,0", "key 12 at 0,0"}));
}

TEST(Mask, GivesItsChildrenTheIdsOfTheMoment)
{
    Fake_pool pool;
    auto box = objects::container();
    VT::Data_mask_obj mask;
    mask.add(box, 0, 0);
    pool.take(mask, 10);
    pool.take(box, 11);
    mask.write_children();
    EXPECT_EQ(mask.objects[0].object_id, 11);
    pool.release(box);
    pool.take(box, 12);
    mask.write_children();
    EXPECT_EQ(mask.objects[0].object_id, 12);
    EXPECT_EQ(mask.num_objects, 1);
}

TEST(Mask, ListsItsChildrenUpToTheFirstThatItsPoolDoesNotHave)
{
    Fake_pool pool;
    auto box = objects::container();
    auto late = objects::container();
    VT::Data_mask_obj mask;
    mask.add(box, 0, 0);
    mask.add(late, 0, 0);
    mask.add(box, 0, 0);
    pool.take(mask, 10);
    pool.take(box, 11);
    mask.write_children();
    EXPECT_EQ(mask.num_objects, 1);
    pool.take(late, 12);
    mask.write_children();
    ASSERT_EQ(mask.num_objects, 3);
    EXPECT_EQ(mask.objects[1].object_id, 12);
}

TEST(Mask, ListsNoMoreChildrenThanARecordCanCount)
{
    Fake_pool pool;
    auto box = objects::container();
    VT::Data_mask_obj mask;
    pool.take(mask, 10);
    pool.take(box, 11);
    for (int i = 0; i < 256; ++i)
        mask.add(box, 0, 0);
    mask.write_children();
    EXPECT_EQ(mask.num_objects, 255);
}

TEST(Mask, ReportsSoftKeysThatItsPoolDoesNotHave)
{
    Fake_pool pool;
    VT::Soft_key_mask_obj keys;
    VT::Data_mask_obj mask;
    pool.take(mask, 2);
    mask.set_soft_key_mask(&keys);
    EXPECT_TRUE(pool.reported.empty()); // the load to come may take them in
    pool.live = true;
    mask.set_soft_key_mask(&keys);
    EXPECT_EQ(pool.reported, (std::vector<std::string>{"2 a reference leads to an object that is not in the pool"}));
    EXPECT_EQ(mask.soft_key_mask, VT::VT_obj::NULL_ID);
    pool.take(keys, 3);
    mask.set_soft_key_mask(&keys);
    mask.set_soft_key_mask(nullptr);
    EXPECT_EQ(pool.reported.size(), 1U);
}

TEST(Mask, RemembersItsSoftKeysUntilItHasAnId)
{
    Fake_pool pool;
    VT::Soft_key_mask_obj keys;
    VT::Data_mask_obj mask;
    pool.take(keys, 3);
    mask.set_soft_key_mask(&keys);
    EXPECT_EQ(mask.get_soft_key_mask(), &keys);
    EXPECT_EQ(mask.soft_key_mask, VT::VT_obj::NULL_ID);
    pool.take(mask, 2);
    mask.set_soft_key_mask(&keys);
    EXPECT_EQ(mask.soft_key_mask, 3);
    EXPECT_TRUE(pool.sent.empty());
}

TEST(Mask, ExchangesItsSoftKeysWithACommandThatSaysWhichKindOfMaskItIs)
{
    Fake_pool pool;
    VT::Soft_key_mask_obj keys;
    VT::Data_mask_obj data;
    VT::Alarm_mask_obj alarm;
    pool.take(keys, 0x0304);
    pool.take(data, 0x0102);
    pool.take(alarm, 0x0506);
    pool.live = true;
    data.set_soft_key_mask(&keys);
    alarm.set_soft_key_mask(&keys);
    data.set_soft_key_mask(nullptr);
    EXPECT_EQ(pool.sent, (Messages{{0xAE, 1, 0x02, 0x01, 0x04, 0x03, 0xFF, 0xFF},
                                   {0xAE, 2, 0x06, 0x05, 0x04, 0x03, 0xFF, 0xFF},
                                   {0xAE, 1, 0x02, 0x01, 0xFF, 0xFF, 0xFF, 0xFF}}));
    EXPECT_EQ(data.get_soft_key_mask(), nullptr);
    EXPECT_EQ(data.soft_key_mask, VT::VT_obj::NULL_ID);
    EXPECT_EQ(alarm.soft_key_mask, 0x0304);
}

TEST(WorkingSet, IsSelectableAndShowsNoMaskAtFirst)
{
    VT::Working_set_obj set("set", 4);
    EXPECT_EQ(set.get_type(), Iso::Object_type::working_set);
    EXPECT_EQ(set.get_active_mask(), nullptr);
    EXPECT_TRUE(set.get_masks().empty());
    EXPECT_EQ(Record_text::of(set),
              (Lines{"colour background_colour 4 #1", "u8 selectable 1 #2", "id active_mask null #3", "count u8 0",
                     "count u8 0", "count u8 0", "raw ''"}));
}

TEST(WorkingSet, ListsItsFaceAndItsLanguages)
{
    Fake_pool pool;
    auto picture = objects::picture();
    VT::Working_set_obj set;
    set.add(picture, 2, 3);
    set.add_language("en");
    set.add_language("de");
    pool.take(picture, 11);
    pool.take(set, 10);
    set.write_children();
    EXPECT_EQ(Record_text::of(set),
              (Lines{"colour background_colour 0 #1", "u8 selectable 1 #2", "id active_mask null #3", "count u8 1",
                     "count u8 0", "count u8 2", "child 11 at 2,3", "raw 'ende'"}));
}

TEST(WorkingSet, IgnoresLanguagesBeyond255)
{
    VT::Working_set_obj set;
    for (int i = 0; i < 255; ++i)
        set.add_language("en");
    const Lines full = Record_text::of(set);
    ASSERT_EQ(full.size(), 7U);
    EXPECT_EQ(full[5], "count u8 255");
    EXPECT_EQ(full[6].size(), std::string("raw ''").size() + 510);
    set.add_language("de");
    EXPECT_EQ(Record_text::of(set), full);
}

TEST(WorkingSet, KnowsEachOfItsMasksOnce)
{
    VT::Data_mask_obj first;
    VT::Alarm_mask_obj second;
    VT::Working_set_obj set;
    set.add_mask(first);
    set.set_active_mask(second);
    set.set_active_mask(first);
    set.add_mask(second);
    EXPECT_EQ(set.get_masks(), (std::vector<VT::Mask_obj*>{&first, &second}));
    EXPECT_EQ(set.get_active_mask(), &first);
}

TEST(WorkingSet, RemembersItsMaskUntilItHasAnId)
{
    Fake_pool pool;
    VT::Data_mask_obj mask;
    VT::Working_set_obj set;
    pool.take(mask, 3);
    set.set_active_mask(mask);
    EXPECT_EQ(set.active_mask, VT::VT_obj::NULL_ID);
    pool.take(set, 0);
    set.set_active_mask(mask);
    EXPECT_EQ(set.active_mask, 3);
    EXPECT_TRUE(pool.sent.empty());
}

TEST(WorkingSet, ShowsAnotherMaskWithACommand)
{
    Fake_pool pool;
    VT::Data_mask_obj mask;
    VT::Working_set_obj set;
    pool.take(mask, 0x0304);
    pool.take(set, 0x0102);
    pool.live = true;
    set.set_active_mask(mask);
    EXPECT_EQ(pool.sent, (Messages{{0xAD, 0x02, 0x01, 0x04, 0x03, 0xFF, 0xFF, 0xFF}}));
    EXPECT_EQ(set.active_mask, 0x0304);
}

} // namespace
