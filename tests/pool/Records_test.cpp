// The record of every class of objects, byte by byte. The objects come with an id of their own, 7.

#include "tests/pool/Screen.h"
#include "vt/Button_obj.h"
#include "vt/Container_obj.h"
#include "vt/Fill_attributes_obj.h"
#include "vt/Font_attributes_obj.h"
#include "vt/Input_number_obj.h"
#include "vt/Key_obj.h"
#include "vt/Line_attributes_obj.h"
#include "vt/Line_obj.h"
#include "vt/Object_pointer_obj.h"
#include "vt/Output_number_obj.h"
#include "vt/Output_string_obj.h"
#include "vt/Picture_graphic_obj.h"
#include "vt/Polygon_obj.h"
#include "vt/Rectangle_obj.h"
#include "vt/String_variable_obj.h"
#include "vtui/comp/objects/Container_obj.h"
#include "vtui/comp/objects/Key_obj.h"
#include "vtui/comp/objects/Object_pointer_obj.h"
#include "vtui/comp/objects/Output_string_obj.h"

#include <gtest/gtest.h>

namespace {

constexpr VT::Macro_reference macros[] = {{22, 3}, {2, 4}};
constexpr auto macro_bytes = {22, 3, 2, 4};

Bytes two_macros() { return {macro_bytes.begin(), macro_bytes.end()}; }

/// Children as an application writes them that gives its own ids.
struct Children
{
    Children()
    {
        list[0].object_id = 300;
        list[0].x = -2;
        list[0].y = 1000;
        list[1].object_id = 301;
        list[1].x = 5;
        list[1].y = -1;
    }

    VT::Attribute_object_placement list[2];

    static Bytes bytes() { return join(w(300), w(-2), w(1000), w(301), w(5), w(-1)); }
};

Bytes record_of(VT::VT_obj& object)
{
    Screen screen;
    screen.pool.add(object);
    return screen.records();
}

} // namespace

TEST(PoolRecord, OfAWorkingSet)
{
    C::Container_obj face;
    VT::Data_mask_obj mask;
    VT::Working_set_obj working_set(nullptr, 9);
    working_set.set_active_mask(mask);
    working_set.add(face, -3, 4);
    working_set.add_language("de");
    working_set.add_language("en");
    working_set.selectable = 0;
    working_set.macros = macros;
    working_set.num_macros = 2;
    VT::Pool pool;
    pool.add(working_set);
    Bytes records;
    ASSERT_TRUE(pool.serialise(records));
    EXPECT_EQ(records, join(w(0), 0, 9, 0, w(2), 1, 2, 2, w(1), w(-3), w(4), two_macros(), "deen", //
                            w(1), 3, w(240), w(240), 0, 0, 0,                                      //
                            w(2), 1, 0, w(0xFFFF), 0, 0));
}

TEST(PoolRecord, OfADataMaskAndAnAlarmMask)
{
    C::Container_obj first;
    C::Container_obj second;
    VT::Soft_key_mask_obj keys;
    VT::Data_mask_obj data(nullptr, 7);
    data.add(first, 1, 2);
    data.add(second, 3, -4);
    data.set_soft_key_mask(&keys);
    data.macros = macros;
    data.num_macros = 1;
    VT::Alarm_mask_obj alarm(nullptr, 12);
    alarm.add(second, 5, 6);
    alarm.set_soft_key_mask(&keys);
    alarm.priority = 2;
    alarm.acoustic_signal = 3;
    VT::Working_set_obj working_set;
    working_set.set_active_mask(data);
    working_set.add_mask(alarm);
    VT::Pool pool;
    pool.add(working_set);
    Bytes records;
    ASSERT_TRUE(pool.serialise(records));
    EXPECT_EQ(records, join(w(0), 0, 0, 1, w(1), 0, 0, 0,                                       //
                            w(1), 1, 7, w(4), 2, 1, w(2), w(1), w(2), w(3), w(3), w(-4), 22, 3, //
                            w(2), 3, w(240), w(240), 0, 0, 0,                                   //
                            w(3), 3, w(240), w(240), 0, 0, 0,                                   //
                            w(4), 4, 0, 0, 0,                                                   //
                            w(5), 2, 12, w(4), 2, 3, 1, 0, w(3), w(5), w(6)));
}

TEST(PoolRecord, OfASoftKeyMaskListsKeysWithoutPositions)
{
    C::Key_obj key;
    C::Object_pointer_obj pointer;
    VT::Soft_key_mask_obj keys(nullptr, 3);
    keys.add(key);
    keys.add(pointer);
    keys.macros = macros;
    keys.num_macros = 2;
    Screen screen;
    screen.pool.add(keys);
    EXPECT_EQ(screen.records(), join(w(2), 4, 3, 2, 2, w(3), w(4), two_macros(), //
                                     w(3), 5, 1, 1, 0, 0,                        //
                                     w(4), 27, w(0xFFFF)));
}

TEST(PoolRecord, OfAContainer)
{
    Children children;
    VT::Container_obj container(7, "frame", 0x0102, 0x0304, 1, 2, 2, children.list, macros);
    EXPECT_EQ(record_of(container), join(w(7), 3, w(0x0102), w(0x0304), 1, 2, 2, Children::bytes(), two_macros()));
}

TEST(PoolRecord, OfAKey)
{
    Children children;
    VT::Key_obj key(7, nullptr, 4, 200, 2, 1, children.list, macros);
    EXPECT_EQ(record_of(key), join(w(7), 5, 4, 200, 2, 1, Children::bytes(), 22, 3));
}

TEST(PoolRecord, OfAButton)
{
    Children children;
    VT::Button_obj button(7, nullptr, 100, 50, 9, 10, 11, 33, 2, 2, children.list, macros);
    EXPECT_EQ(record_of(button), join(w(7), 6, w(100), w(50), 9, 10, 11, 33, 2, 2, Children::bytes(), two_macros()));
}

TEST(PoolRecord, OfAnInputNumber)
{
    VT::Input_number_obj number(7, nullptr, 80, 20, 1, 500, 10, 501, 0xFFFFFFFE, 5, 0x89ABCDEF, -3, 0.5F, 2, 1, 6, 3, 1,
                                macros);
    EXPECT_EQ(record_of(number), join(w(7), 9, w(80), w(20), 1, w(500), 10, w(501), d(0xFFFFFFFE), d(5), d(0x89ABCDEF),
                                      d(-3), d(0x3F000000), 2, 1, 6, 3, 1, 22, 3));
}

TEST(PoolRecord, OfAnOutputNumber)
{
    VT::Output_number_obj number(7, nullptr, 80, 20, 1, 500, 15, 501, 0x01020304, -3, -2.0F, 7, 1, 9, 2, macros);
    EXPECT_EQ(record_of(number), join(w(7), 12, w(80), w(20), 1, w(500), 15, w(501), d(0x01020304), d(-3),
                                      d(0xC0000000), 7, 1, 9, 2, two_macros()));
}

TEST(PoolRecord, OfAnOutputStringFillsTheTextUpWithSpaces)
{
    char text[6] = {'a', 'b', '\0', 'x', 'y', 'z'};
    VT::Output_string_obj string(7, nullptr, 60, 16, 3, 500, 7, 0xFFFF, 5, sizeof text, text, 1, macros);
    EXPECT_EQ(record_of(string), join(w(7), 11, w(60), w(16), 3, w(500), 7, w(0xFFFF), 5, w(6), "ab    ", 1, 22, 3));
}

TEST(PoolRecord, OfAnOutputStringWithoutATextOfItsOwn)
{
    C::Font_attributes_obj font;
    C::Output_string_obj string;
    string.set_font(&font);
    EXPECT_EQ(record_of(string), join(w(2), 11, w(0), w(0), 1, w(3), 0, w(0xFFFF), 0, w(0), 0, //
                                      w(3), 23, 0, 1, 0, 0, 0));
}

TEST(PoolRecord, OfALine)
{
    VT::Line_obj line(7, nullptr, 500, 30, 40, 1, 2, macros);
    EXPECT_EQ(record_of(line), join(w(7), 13, w(500), w(30), w(40), 1, 2, two_macros()));
}

TEST(PoolRecord, OfARectangle)
{
    VT::Rectangle_obj rectangle(7, nullptr, 500, 30, 40, 9, 501, 2, macros);
    EXPECT_EQ(record_of(rectangle), join(w(7), 14, w(500), w(30), w(40), 9, w(501), 2, two_macros()));
}

TEST(PoolRecord, OfAPolygon)
{
    VT::Attribute_point points[3];
    points[1].x = 1000;
    points[2].x = 2;
    points[2].y = 65535;
    VT::Polygon_obj polygon(7, nullptr, 30, 40, 500, 501, 3, 3, 2, points, macros);
    EXPECT_EQ(record_of(polygon), join(w(7), 16, w(30), w(40), w(500), w(501), 3, 3, 2, w(0), w(0), w(1000), w(0), w(2),
                                       w(65535), two_macros()));
}

TEST(PoolRecord, OfAPictureGraphic)
{
    const std::uint8_t pixels[] = {1, 2, 255, 0};
    VT::Picture_graphic_obj picture(7, nullptr, 20, 2, 1000, 2, 3, 13, sizeof pixels, 2, pixels, macros);
    EXPECT_EQ(record_of(picture), join(w(7), 20, w(20), w(2), w(1000), 2, 3, 13, d(4), 2, 1, 2, 255, 0, two_macros()));
}

TEST(PoolRecord, OfAStringVariable)
{
    char text[4] = {'1', '2', '\0', '\0'};
    VT::String_variable_obj variable(7, nullptr, sizeof text, text);
    EXPECT_EQ(record_of(variable), join(w(7), 22, w(4), "12  "));
}

TEST(PoolRecord, OfAttributeObjects)
{
    VT::Font_attributes_obj font(7, nullptr, 12, 14, 1, 15, 2, macros);
    EXPECT_EQ(record_of(font), join(w(7), 23, 12, 14, 1, 15, 2, two_macros()));
    VT::Line_attributes_obj line(7, nullptr, 12, 3, 0xAAAA, 1, macros);
    EXPECT_EQ(record_of(line), join(w(7), 24, 12, 3, w(0xAAAA), 1, 22, 3));
    VT::Fill_attributes_obj fill(7, nullptr, 3, 12, 500, 2, macros);
    EXPECT_EQ(record_of(fill), join(w(7), 25, 3, 12, w(500), 2, two_macros()));
}

TEST(PoolRecord, OfAnObjectPointer)
{
    VT::Object_pointer_obj pointer(7, nullptr, 0x1234);
    EXPECT_EQ(record_of(pointer), join(w(7), 27, w(0x1234)));
}

TEST(PoolRecord, ReplacesWhatWasThereBefore)
{
    Screen screen;
    Bytes records{1, 2, 3};
    ASSERT_TRUE(screen.pool.serialise(records));
    EXPECT_EQ(records, Screen::own_records());
    VT::Working_set_obj second;
    screen.pool.add(second);
    EXPECT_FALSE(screen.pool.serialise(records));
    EXPECT_EQ(records, Bytes());
}

TEST(PoolRecord, OfAFileDoesNotCountAsTold)
{
    Screen screen;
    VT::Object_pointer_obj pointer(7, nullptr, 0x1234);
    screen.pool.add(pointer);
    pointer.value = 5;
    screen.mask.background_colour = 4;
    Bytes records;
    ASSERT_TRUE(screen.pool.serialise(records));
    EXPECT_TRUE(pointer.value.changed());
    EXPECT_TRUE(screen.mask.background_colour.changed());
}
