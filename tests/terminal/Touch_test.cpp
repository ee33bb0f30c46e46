#include "Touch_fixture.h"

#include "terminal/Nesting.h"
#include "terminal/Screen_layout.h"

#include <chrono>

namespace {

using terminal::Area;
using terminal::Hardware;
using terminal::Screen_layout;
using Touch = Touch_fixture;

Hardware with_mask(std::uint16_t size)
{
    Hardware hardware;
    hardware.mask_size = size;
    return hardware;
}

void expect_area(const Area& area, const Area& expected)
{
    EXPECT_EQ(area.left, expected.left);
    EXPECT_EQ(area.top, expected.top);
    EXPECT_EQ(area.right, expected.right);
    EXPECT_EQ(area.bottom, expected.bottom);
}

} // namespace

TEST(ScreenLayout, Has480PixelsAndOneColumnOfEightKeys)
{
    const Screen_layout layout(with_mask(480));
    expect_area(layout.screen(), {0, 0, 540, 480});
    expect_area(layout.mask(), {0, 0, 480, 480});
    expect_area(layout.keys(), {480, 0, 540, 480});
    EXPECT_EQ(layout.n_cells(), 8);
    expect_area(layout.cell(0), {480, 0, 540, 60});
    expect_area(layout.cell(7), {480, 420, 540, 480});
}

TEST(ScreenLayout, Has240PixelsAndTwoColumnsOfFourKeys)
{
    const Screen_layout layout(with_mask(240));
    expect_area(layout.screen(), {0, 0, 360, 240});
    expect_area(layout.keys(), {240, 0, 360, 240});
    expect_area(layout.cell(0), {240, 0, 300, 60});
    expect_area(layout.cell(3), {240, 180, 300, 240});
    expect_area(layout.cell(4), {300, 0, 360, 60});
    expect_area(layout.cell(7), {300, 180, 360, 240});
}

TEST(ScreenLayout, CutsCellsThatAreHigherThanTheScreen)
{
    Hardware hardware = with_mask(40);
    hardware.physical_soft_keys = 2;
    const Screen_layout layout(hardware);
    expect_area(layout.screen(), {0, 0, 160, 40});
    expect_area(layout.cell(1), {100, 0, 160, 40});
    hardware.soft_key_height = 0;
    EXPECT_TRUE(Screen_layout(hardware).cell(1).empty());
}

TEST_F(Touch, DoesNothingWithoutAPool)
{
    EXPECT_EQ(touch(0, 0), nothing);
    EXPECT_EQ(touch(500, 0), nothing);
}

TEST_F(Touch, PressesAndReleasesTheSoftKeyInTheCell)
{
    const Id first = builder.key(1, {});
    const Id second = builder.key(2, {});
    const Id third = builder.key(3, {});
    const Id keys = builder.soft_key_mask(
        0, {first, builder.pointer(builder.pointer(second)), builder.pointer(none), third, third});
    load({}, keys);
    EXPECT_EQ(touch(480, 0), key(first));
    EXPECT_EQ(touch(539, 59), key(first));
    EXPECT_EQ(touch(510, 60), key(second)) << "behind two pointers";
    EXPECT_EQ(touch(510, 130), nothing) << "the pointer is null";
    EXPECT_EQ(touch(510, 180), key(third));
    EXPECT_EQ(touch(510, 299), key(third)) << "in a second cell";
    EXPECT_EQ(touch(510, 300), nothing) << "there is no further key";
    EXPECT_EQ(touch(510, 479), nothing);
    for (const auto& [x, y] : {std::pair{479, 0}, {540, 0}, {500, -1}, {500, 480}, {-1, 0}, {1 << 30, 1 << 30}})
        EXPECT_EQ(touch(x, y), nothing) << x << " " << y;
    EXPECT_EQ(touch(510, 0, 1), key(second)) << "the picture begins with a later key";
    EXPECT_EQ(touch(510, 60, 3), key(third));
    EXPECT_EQ(touch(510, 0, 5), nothing);
    EXPECT_EQ(touch(510, 0, ~std::size_t{0}), nothing);
}

TEST_F(Touch, FindsTheKeysOfASmallScreenInTwoColumns)
{
    Session small(with_mask(240));
    const Id a = builder.key(1, {});
    const Id b = builder.key(1, {});
    const Id keys = builder.soft_key_mask(0, {a, a, a, a, b, a, a, b});
    mask = builder.mask(0, {}, keys);
    builder.working_set(mask);
    ASSERT_EQ(small.load(builder.bytes()), accepted);
    const auto touched = [&](int x, int y) {
        small.sent.clear();
        small.terminal.touch({x, y});
        return small.sent;
    };
    EXPECT_EQ(touched(240, 239), key(a));
    EXPECT_EQ(touched(300, 0), key(b));
    EXPECT_EQ(touched(359, 59), key(b));
    EXPECT_EQ(touched(359, 60), key(a));
    EXPECT_EQ(touched(300, 180), key(b));
    EXPECT_EQ(touched(360, 0), nothing);
    EXPECT_EQ(touched(300, 240), nothing);
}

TEST_F(Touch, PressesAndReleasesAButtonOnEveryPixelOfItAndOnNoOther)
{
    const Id id = add_button(20, 10);
    load({{id, 100, 50}});
    for (const auto& [x, y] : {std::pair{100, 50}, {119, 50}, {100, 59}, {119, 59}, {110, 55}})
        EXPECT_EQ(touch(x, y), button(id)) << x << " " << y;
    for (const auto& [x, y] : {std::pair{99, 50}, {100, 49}, {120, 50}, {100, 60}, {0, 0}})
        EXPECT_EQ(touch(x, y), nothing) << x << " " << y;
}

TEST_F(Touch, TakesTheTopmostControlHoweverMuchElseCoversIt)
{
    const Id below = add_button(100, 100);
    const Id number = add_number();
    const Id backdrop = builder.rectangle(100, 100, none);
    const Id text = builder.string({100, 100, none}, "covered");
    const Id cover = builder.container(100, 100, {{builder.number({50, 50, none}, {})}});
    load({{below, 0, 0}, {number, 10, 10}, {backdrop, 0, 0}, {text, 0, 0}, {cover, 0, 0}});
    EXPECT_EQ(opened_by(10, 10), number);
    EXPECT_EQ(opened_by(29, 19), number);
    EXPECT_EQ(touch(30, 10), button(below));
    EXPECT_EQ(touch(10, 20), button(below));
}

TEST_F(Touch, GoesByTheOrderOfDrawing)
{
    const Id first = add_button();
    const Id second = add_button();
    load({{first, 0, 0}, {second, 10, 0}, {builder.container(20, 10, {{first, 15, 0}}), 10, 0}});
    EXPECT_EQ(touch(9, 0), button(first));
    EXPECT_EQ(touch(10, 0), button(second));
    EXPECT_EQ(touch(24, 0), button(second));
    EXPECT_EQ(touch(25, 0), button(first)) << "in the container above";
    EXPECT_EQ(touch(30, 0), nothing) << "the container cuts it off";
}

TEST_F(Touch, AddsThePlacesOfNestedContainersAndIsCutByEach)
{
    const Id id = add_button(100, 100);
    const Id inner = builder.container(10, 100, {{id, -5, -50}});
    const Id outer = builder.container(100, 20, {{inner, 30, 5}});
    load({{outer, 200, 100}, {outer, -35, 470}});
    EXPECT_EQ(touch(230, 105), button(id));
    EXPECT_EQ(touch(239, 119), button(id));
    for (const auto& [x, y] : {std::pair{229, 105}, {230, 104}, {240, 105}, {230, 120}})
        EXPECT_EQ(touch(x, y), nothing) << x << " " << y;
    EXPECT_EQ(touch(0, 475), button(id)) << "the second time in the same mask";
    EXPECT_EQ(touch(4, 479), button(id));
    EXPECT_EQ(touch(5, 475), nothing);
    EXPECT_EQ(touch(0, 480), nothing) << "the mask ends";
}

TEST_F(Touch, LooksBehindObjectPointers)
{
    const Id id = add_button();
    const Id pointer = builder.pointer(builder.container(20, 10, {{builder.pointer(builder.pointer(id)), 3, 0}}));
    const Id null = builder.pointer(none);
    load({{pointer, 7, 7}, {null, 7, 7}});
    EXPECT_EQ(touch(10, 7), button(id));
    EXPECT_EQ(touch(9, 7), nothing);
    session.ask(message(0xA8, w(pointer), 0xFF, d(none)));
    EXPECT_EQ(touch(10, 7), nothing);
    session.ask(message(0xA8, w(null), 0xFF, d(id)));
    EXPECT_EQ(touch(7, 7), button(id));
}

TEST_F(Touch, FindsNothingInHiddenContainers)
{
    const Id below = add_button(30, 30);
    const Id above = add_button(30, 30);
    const Id box = builder.container(30, 30, {{builder.container(30, 30, {{above}})}}, 1);
    load({{below}, {box}});
    EXPECT_EQ(touch(5, 5), button(below));
    session.ask(message(0xA0, w(box), 1));
    EXPECT_EQ(touch(5, 5), button(above));
}

TEST_F(Touch, FollowsChildrenThatMove)
{
    const Id id = add_button();
    load({{id, 0, 0}, {id, 100, 0}});
    EXPECT_EQ(touch(119, 0), button(id));
    session.ask(message(0xB4, w(mask), w(id), w(300), w(40)));
    EXPECT_EQ(touch(0, 0), nothing);
    EXPECT_EQ(touch(100, 0), nothing);
    EXPECT_EQ(touch(300, 40), button(id));
}

TEST_F(Touch, IsTakenByADisabledButtonAndLetThroughByADisabledInput)
{
    const Id below = add_button(100, 10);
    const Id number = add_number(false);
    const Id check_box = builder.input_boolean(10, 0, none, 0, none, 0);
    load({{below}, {number, 0, 0}, {check_box, 20, 0}, {add_button(20, 10, disabled), 40, 0}});
    EXPECT_EQ(touch(5, 5), button(below));
    EXPECT_EQ(touch(25, 5), button(below));
    EXPECT_EQ(touch(45, 5), nothing);
    session.ask(message(0xA1, w(number), 1));
    EXPECT_EQ(opened_by(5, 5), number);
}

TEST_F(Touch, LatchesALatchableButtonAndUnlatchesItAgain)
{
    const Id lamp = builder.button(20, 20, 0, 0, latchable);
    const Id fan = builder.button(20, 20, 0, 0, latchable | latched);
    const Id broken = builder.button(20, 20, 0, 0, latchable | disabled);
    load({{lamp, 0, 0}, {fan, 30, 0}, {broken, 60, 0}});
    const auto options = [&](Id id) { return session.terminal.pool().find(id).u8(terminal::Field::options); };
    const std::uint32_t revision = session.terminal.revision();

    EXPECT_EQ(touch(5, 5), Messages{message(0x01, 1, w(lamp), w(mask), 1)});
    EXPECT_EQ(options(lamp), latchable | latched);
    EXPECT_NE(session.terminal.revision(), revision) << "it looks different";
    EXPECT_EQ(touch(5, 5), Messages{message(0x01, 0, w(lamp), w(mask), 1)});
    EXPECT_EQ(options(lamp), latchable);
    EXPECT_EQ(touch(35, 5), Messages{message(0x01, 0, w(fan), w(mask), 1)}) << "it was latched already";
    EXPECT_EQ(options(fan), latchable);
    EXPECT_EQ(touch(65, 5), Messages());
    EXPECT_EQ(options(broken), latchable | disabled);
}

TEST_F(Touch, DoesNothingOnStringsAndListsAndLetsNothingThrough)
{
    const Id below = add_button(100, 10);
    const Id string = builder.input_string({20, 10, none}, "text");
    const Id list = builder.input_list(20, 10, 0, {none});
    load({{below}, {string}, {list, 20, 0}});
    EXPECT_EQ(touch(5, 5), nothing);
    EXPECT_EQ(touch(25, 5), nothing);
    EXPECT_EQ(touch(45, 5), button(below));
}

TEST_F(Touch, ChangesACheckBoxOverWithinItsSquare)
{
    const Id variable = builder.number_variable(7);
    const Id own = builder.input_boolean(10, 0, none, 0);
    const Id shared = builder.input_boolean(10, 0, none, 0, variable);
    load({{own, 0, 0}, {shared, 50, 50}});
    EXPECT_EQ(touch(9, 9), (Messages{message(0x05, w(own), 0xFF, d(1))}));
    EXPECT_EQ(touch(0, 0), (Messages{message(0x05, w(own), 0xFF, d(0))}));
    EXPECT_EQ(touch(10, 0), nothing);
    EXPECT_EQ(touch(0, 10), nothing);
    EXPECT_EQ(touch(55, 55), (Messages{message(0x05, w(shared), 0xFF, d(0))})) << "7 is a tick, too";
    EXPECT_EQ(session.terminal.pool().find(variable).u32(terminal::Field::value), 0u);
}

TEST_F(Touch, NamesTheAlarmMaskThatIsShown)
{
    const Id pressed = add_button();
    const Id soft_key = builder.key(1, {});
    const Id soft_keys = builder.soft_key_mask(0, {soft_key});
    load({});
    const Bytes alarm =
        records::record(200, Iso::Object_type::alarm_mask, 8, w(soft_keys), 1, 2, 1, 0, records::at(pressed, 0, 0));
    ASSERT_EQ(session.load(alarm), accepted);
    EXPECT_EQ(touch(3, 3), nothing);
    mask = 200;
    session.ask(message(0xAD, w(session.terminal.working_set().id()), w(mask)));
    EXPECT_EQ(touch(3, 3), button(pressed));
    EXPECT_EQ(touch(480, 0), key(soft_key));
}

TEST_F(Touch, GoesAsDeepAsAPoolMayNest)
{
    // The mask is the outermost of them, and the button the innermost.
    const Id id = add_button();
    Id box = id;
    for (int depth = 2; depth < terminal::Nesting::max_depth; ++depth)
        box = builder.container(480, 480, {{box, 1, 2}});
    load({{box, 0, 0}});
    const int deep = terminal::Nesting::max_depth - 2;
    EXPECT_EQ(touch(deep, 2 * deep), button(id));
    EXPECT_EQ(touch(deep - 1, 2 * deep), nothing);
}

TEST_F(Touch, EndsSoonInAPoolOfAMillionObjects)
{
    const Id empty = builder.container(480, 480, {});
    const Id hundred = builder.container(480, 480, Pool_builder::Places(100, {empty}));
    const Id ten_thousand = builder.container(480, 480, Pool_builder::Places(100, {hundred}));
    const Id below = add_button(480, 480);
    Pool_builder::Places all(98, {ten_thousand});
    all.insert(all.begin(), {below});
    load(all);
    const auto start = std::chrono::steady_clock::now();
    EXPECT_EQ(touch(100, 100), button(below));
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(2));
}
