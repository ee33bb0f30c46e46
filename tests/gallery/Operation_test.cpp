#include "tests/Bytes.h"
#include "tests/gallery/Operator.h"

#include <gtest/gtest.h>

#include <poll.h>
#include <unistd.h>

#include <array>
#include <filesystem>
#include <string>

namespace {

using gallery::Machine;
using gallery::Settings;
using terminal::Area;

TEST(GalleryOperation, TheUnitsKeyShowsEveryNumberInTheNextSystem)
{
    Operator op;
    op.turn_to("layouts");
    const auto sees_all = [&](std::initializer_list<const char*> texts) {
        for (const char* text : texts)
            EXPECT_TRUE(op.sees(text)) << text;
    };
    sees_all({"metric", "12.5", " km/h", "96", " L/min", "187", " L/ha", "34.7", " ha"});
    op.use(Operator::units);
    sees_all({"imperial", "7.8", " mph", "21.1", " gal/min", "16.6", " gal/ac", "85.7", " ac"});
    EXPECT_FALSE(op.sees("12.5"));
    EXPECT_FALSE(op.sees(" km/h"));
    op.use(Operator::units);
    sees_all({"US", "7.8", " mph", "25.4", " gal/min", "20.0", " gal/ac", "85.7", " ac"});
    op.use(Operator::units);
    sees_all({"metric", "12.5", " km/h", "96", " L/min", "187", " L/ha", "34.7", " ha"});
}

TEST(GalleryOperation, TheOtherPagesFollowTheUnitsToo)
{
    Operator op;
    op.turn_to("layouts");
    op.use(Operator::units);
    op.turn_to("fields");
    EXPECT_TRUE(op.sees("imperial"));
    EXPECT_TRUE(op.sees("78.7")) << "feet of boom";
    op.turn_to("limits");
    EXPECT_TRUE(op.sees("4.049")) << "feet";
    EXPECT_TRUE(op.sees(" \260F"));
}

TEST(GalleryOperation, NumberAndUnitsAreLaidOutAgainForTheNewTexts)
{
    Operator op;
    op.turn_to("layouts");
    constexpr int right_edge = 15 + 275; // of the first field
    const auto expect_at_the_right_edge = [&](const std::string& number, const std::string& units) {
        EXPECT_EQ(op.find(units).area.right, right_edge);
        EXPECT_EQ(op.find(number).area.right, op.find(units).area.left);
    };
    EXPECT_EQ(op.find(" km/h").area.width(), 5 * 8);
    expect_at_the_right_edge("12.5", " km/h");
    op.use(Operator::units);
    EXPECT_EQ(op.find(" mph").area.width(), 4 * 8);
    expect_at_the_right_edge("7.8", " mph");

    // The pair in the middle of the second field.
    EXPECT_EQ(op.find("21.1").area.left - 15, (275 - (6 * 16 + 8 * 8)) / 2);
    EXPECT_EQ(op.find(" gal/min").area.left, op.find("21.1").area.right);
}

TEST(GalleryOperation, NoTextIsCutOff)
{
    for (const std::uint16_t side : std::array<std::uint16_t, 2>{240, 480}) {
        terminal::Hardware hardware;
        hardware.mask_size = side;
        Operator op(hardware);
        for (const gallery::Picture& picture : op.gallery.pictures()) {
            if (picture.name.find("scroll") == 0)
                continue; // its windows cut what they show
            picture.show();
            for (const Operator::Shown& shown : op.screen())
                EXPECT_TRUE(shown.fits) << shown.text << " on " << picture.name << " of " << side;
        }
    }
}

TEST(GalleryOperation, BordersFollowTheUnits)
{
    Operator op;
    op.turn_to("fields");
    const auto border_around = [&](const std::string& number, const std::string& units) {
        const Area left = op.find(number).area, right = op.find(units).area;
        return Area{left.left - 2, left.top - 2, right.right + 2, left.bottom + 2};
    };
    EXPECT_TRUE(op.sees_rectangle(border_around("96", " L/min")));
    op.use(Operator::units);
    EXPECT_TRUE(op.sees_rectangle(border_around("21", " gal/min")));
    EXPECT_EQ(border_around("21", " gal/min").width(), 4 * 16 + 8 * 8 + 4);
}

TEST(GalleryOperation, AKeyActsWhenItIsReleased)
{
    Operator op;
    op.turn_to("fields");
    op.press(Operator::up);
    EXPECT_TRUE(op.sees("200"));
    op.release(Operator::up);
    EXPECT_TRUE(op.sees("210"));
    op.use(Operator::down);
    EXPECT_TRUE(op.sees("200"));
}

TEST(GalleryOperation, WhatIsSteppedChangesWhatFollowsFromIt)
{
    Operator op;
    op.turn_to("fields");
    op.use(Operator::up);
    EXPECT_TRUE(op.sees("101")) << "litres a minute, of 210 L/ha at 12 km/h, 24 m wide";
}

TEST(GalleryOperation, StepsAreMetricInEverySystem)
{
    Operator op;
    op.turn_to("layouts");
    op.use(Operator::units);
    op.use(Operator::up);
    EXPECT_TRUE(op.sees("8.1")) << "13 km/h";
    op.use(Operator::units);
    op.use(Operator::units);
    EXPECT_TRUE(op.sees("13.0"));
}

TEST(GalleryOperation, StepsStopAtTheLimits)
{
    Operator op;
    op.turn_to("limits");
    op.use(Operator::up);
    EXPECT_TRUE(op.sees("47"));
    EXPECT_TRUE(op.sees("Bounded: 47 %"));
    for (int i = 0; i < 12; ++i)
        op.use(Operator::up);
    EXPECT_TRUE(op.sees("100"));
    EXPECT_TRUE(op.sees("Bounded: 100 %"));
    for (int i = 0; i < 21; ++i)
        op.use(Operator::down);
    EXPECT_TRUE(op.sees("0"));
    EXPECT_TRUE(op.sees("Bounded: 0 %"));
}

TEST(GalleryOperation, AnEntryReachesTheApplicationInItsOwnUnits)
{
    Operator op;
    op.turn_to("limits");
    EXPECT_TRUE(op.sees("none yet"));
    op.use(Operator::units);
    op.enter(1, 140 + 400);
    EXPECT_TRUE(op.sees("14.0")) << "degrees Fahrenheit";
    EXPECT_TRUE(op.sees("Negative: 7.777777778 K"));
    op.enter(2, 9999);
    EXPECT_TRUE(op.sees("9.999"));
    EXPECT_TRUE(op.sees("Three decimals: 3.0476952 m"));
}

TEST(GalleryOperation, EntriesReachAsFarAs32Bits)
{
    Operator op;
    op.turn_to("limits");
    op.enter(3, 0);
    EXPECT_TRUE(op.sees("-2147483647"));
    EXPECT_TRUE(op.sees("Large offset: -2147483647"));
    op.enter(4, 4294967295);
    EXPECT_TRUE(op.sees("2147483647"));
    EXPECT_TRUE(op.sees("Unbounded: 2147483647"));
    op.enter(4, 0);
    EXPECT_TRUE(op.sees("-2147483648"));
    EXPECT_TRUE(op.sees("Unbounded: -2147483648"));
}

TEST(GalleryOperation, WhatTheOperatorSetsChangesWhatTheSprayerDoes)
{
    Operator op;
    op.turn_to("fields");
    op.enter(1, 360);
    EXPECT_TRUE(op.sees("36.0")) << "metres of boom";
    EXPECT_TRUE(op.sees("144")) << "litres a minute";
    EXPECT_TRUE(op.sees("43.2")) << "hectares an hour";
}

TEST(GalleryOperation, AFingerOnTheLabelOpensTheEntry)
{
    Operator op;
    op.turn_to("fields");
    op.use(Operator::units);
    op.touch("Boom width");
    op.type("100");
    EXPECT_TRUE(op.sees("100.0")) << "feet";
    op.use(Operator::units);
    op.use(Operator::units);
    EXPECT_TRUE(op.sees("30.5")) << "metres";
}

TEST(GalleryOperation, AnEntryStaysWhenTheUnitsChange)
{
    Operator op;
    op.turn_to("fields");
    op.use(Operator::units);
    op.enter(0, 150);
    EXPECT_TRUE(op.sees("15.0"));
    op.use(Operator::units);
    EXPECT_TRUE(op.sees("18.0")) << "the same in US gallons";
    op.use(Operator::units);
    EXPECT_TRUE(op.sees("169")) << "and in litres a hectare";
}

TEST(GalleryOperation, WithoutATouchScreenTheOperatorSeesTheInputItself)
{
    terminal::Hardware keys_only;
    keys_only.touch = false;
    Operator op(keys_only);
    op.turn_to("fields");
    EXPECT_EQ(op.find("200").type, Iso::Object_type::input_number);
    op.enter(0, 250);
    EXPECT_TRUE(op.sees("250"));
    op.use(Operator::units);
    EXPECT_EQ(op.find("22.3").type, Iso::Object_type::input_number);
}

// On a mask of 480 pixels.
constexpr int half_icon = 24;
constexpr terminal::Position spray{50, 330}, left{229, 309}, right{229, 359};

TEST(GalleryOperation, ActionsFillAndDrainTheTank)
{
    Operator op;
    op.turn_to("buttons");
    EXPECT_TRUE(op.sees("60 %"));
    op.touch("Fill tank");
    EXPECT_TRUE(op.sees("70 %"));
    for (int i = 0; i < 4; ++i)
        op.touch("Fill tank");
    EXPECT_TRUE(op.sees("100 %"));
    for (int i = 0; i < 11; ++i)
        op.touch("Drain tank");
    EXPECT_TRUE(op.sees("0 %"));
}

TEST(GalleryOperation, AFingerThatSlipsOffAButtonDoesNothing)
{
    Operator op;
    op.turn_to("buttons");
    op.slip_from("Fill tank");
    EXPECT_TRUE(op.sees("60 %"));
    op.touch("Fill tank");
    EXPECT_TRUE(op.sees("70 %"));
}

TEST(GalleryOperation, ActionsMoveTheBoomBetweenItsEnds)
{
    Operator op;
    op.turn_to("buttons");
    const auto height = [&] {
        for (const Operator::Shown& shown : op.screen())
            if (shown.type == Iso::Object_type::rectangle && shown.area.width() == 230)
                return shown.area.top;
        return -1;
    };
    const int start = height();
    op.touch("Boom up");
    const int higher = height();
    EXPECT_LT(higher, start);
    op.touch("Boom up");
    const int highest = height();
    EXPECT_LT(highest, higher);
    op.touch("Boom up");
    EXPECT_EQ(height(), highest);
    for (int i = 0; i < 4; ++i)
        op.touch("Boom down");
    EXPECT_GT(height(), start);
}

TEST(GalleryOperation, TogglesAndCheckBoxesSayWhereTheSprayerSprays)
{
    Operator op;
    op.turn_to("buttons");
    EXPECT_EQ(op.pictures(half_icon), 6U + 1U) << "drops, and the icon of the combo";
    op.touch_at(left);
    EXPECT_EQ(op.pictures(half_icon), 3U + 1U);
    op.touch_at(right);
    EXPECT_EQ(op.pictures(half_icon), 1U);
    op.touch_at(left);
    op.touch_at(spray);
    EXPECT_EQ(op.pictures(half_icon), 1U);
    op.touch_at(spray);
    EXPECT_EQ(op.pictures(half_icon), 3U + 1U);
}

TEST(GalleryOperation, TheComboAndItsSoftKeyTurnAllOff)
{
    Operator op;
    op.turn_to("buttons");
    op.touch("All off");
    EXPECT_EQ(op.pictures(half_icon), 1U);
    op.touch_at(spray);
    EXPECT_EQ(op.pictures(half_icon), 6U + 1U);
    op.press(Operator::all_off);
    EXPECT_EQ(op.pictures(half_icon), 6U + 1U);
    op.release(Operator::all_off);
    EXPECT_EQ(op.pictures(half_icon), 1U);
}

TEST(GalleryOperation, SaysWhichButtonWasPressedAndHowALatchStands)
{
    Operator op;
    op.turn_to("buttons");
    EXPECT_TRUE(op.sees("Last: none"));
    for (const char* name : {"plain", "bevel", "white", "blue"}) {
        const Area caption = op.find(name).area;
        op.touch_at({(caption.left + caption.right) / 2, caption.top - 20});
        EXPECT_TRUE(op.sees(std::string("Last: ") + name));
    }
    const Area caption = op.find("latch").area;
    for (const char* state : {"down", "up", "down"}) {
        op.touch_at({(caption.left + caption.right) / 2, caption.top - 20});
        EXPECT_TRUE(op.sees(std::string("Last: latch ") + state));
    }
}

TEST(GalleryOperation, ACoveredComponentTakesNoFingerUntilItIsEnabledAgain)
{
    Operator op;
    op.turn_to("covers");
    const std::pair<Operator::Key, const char*> parts[] = {
        {Operator::button, "Fill tank"}, {Operator::label, "Label"}, {Operator::panel, "All off"}};
    for (const auto& [key, text] : parts) {
        op.use(key);
        op.touch_in_vain(text);
        op.use(key);
        op.touch(text);
    }
    op.use(Operator::everything);
    for (const auto& [key, text] : parts)
        op.touch_in_vain(text);
    op.use(Operator::everything);
    op.touch("Fill tank");
    EXPECT_TRUE(op.sees("Last: button"));
    op.touch("Label");
    EXPECT_TRUE(op.sees("Last: label"));
    op.touch("All off");
    EXPECT_TRUE(op.sees("Last: combo"));
}

TEST(GalleryOperation, EachComponentGetsTheSmallestCoverThatHidesIt)
{
    constexpr int tile = 32;
    constexpr std::pair<Operator::Key, std::size_t> tiles[] = {{Operator::check, 1},
                                                               {Operator::toggle, 4},
                                                               {Operator::button, 16},
                                                               {Operator::label, 64},
                                                               {Operator::panel, 256}};
    Operator op;
    op.turn_to("covers");
    for (const auto& [key, count] : tiles) {
        op.use(key);
        EXPECT_EQ(op.pictures(tile), count);
        op.use(key);
        EXPECT_EQ(op.pictures(tile), 0U);
    }
}

TEST(GalleryOperation, TheTrailGoesDownAndUpBetweenItsEnds)
{
    Operator op;
    op.turn_to("trail");
    const auto expect_level = [&](const std::string& name, const std::string& depth, std::size_t chevrons) {
        EXPECT_TRUE(op.sees(name));
        EXPECT_TRUE(op.sees(depth));
        const auto is_chevron = [](const Operator::Shown& shown) { return shown.type == Iso::Object_type::polygon; };
        EXPECT_EQ(op.count(is_chevron), chevrons);
    };
    expect_level("Tank", "1", 0);
    op.use(Operator::back);
    expect_level("Tank", "1", 0);
    op.use(Operator::deeper);
    expect_level("Boom", "2", 1);
    op.use(Operator::deeper);
    op.use(Operator::deeper);
    expect_level("Drop", "4", 3);
    op.use(Operator::deeper);
    expect_level("Drop", "4", 3);
    op.use(Operator::back);
    expect_level("Nozzle", "3", 2);
    EXPECT_FALSE(op.sees("Drop"));
}

TEST(GalleryOperation, TheFrameFollowsTheTrail)
{
    Operator op;
    op.turn_to("trail");
    const auto corner = [&] {
        for (const Operator::Shown& shown : op.screen())
            if (shown.type == Iso::Object_type::picture_graphic && shown.area.width() == 8)
                return shown.area.left;
        return -1;
    };
    constexpr int cell = 115; // pixels
    const int start = corner();
    op.use(Operator::deeper);
    EXPECT_EQ(corner(), start + cell);
    op.use(Operator::deeper);
    EXPECT_EQ(corner(), start + 2 * cell);
    op.use(Operator::back);
    EXPECT_EQ(corner(), start + cell);
}

TEST(GalleryOperation, RowsScrollByHalfTheirWindowBetweenTheirEnds)
{
    Operator op;
    op.turn_to("scroll");
    constexpr int half = 110, hidden = 380; // pixels
    const int start = op.find("Fill").area.top;
    const auto expect_moved = [&](int pixels) { EXPECT_EQ(op.find("Fill").area.top, start - pixels); };
    op.use(Operator::scroll_up);
    expect_moved(0);
    op.press(Operator::scroll_down);
    expect_moved(0);
    op.release(Operator::scroll_down);
    expect_moved(half);
    for (int i = 0; i < 4; ++i)
        op.use(Operator::scroll_down);
    expect_moved(hidden);
    op.use(Operator::scroll_up);
    expect_moved(hidden - half);
}

TEST(GalleryOperation, FewRowsHaveNoBarAndNoKeysUntilThereAreMany)
{
    Operator op;
    op.turn_to("scroll");
    const Area track{340, 40, 360, 260};
    EXPECT_TRUE(op.has(Operator::scroll_up));
    EXPECT_TRUE(op.has(Operator::scroll_down));
    EXPECT_TRUE(op.sees_rectangle(track));
    op.use(Operator::scroll_down);
    op.use(Operator::rows);
    EXPECT_FALSE(op.has(Operator::scroll_up));
    EXPECT_FALSE(op.has(Operator::scroll_down));
    EXPECT_TRUE(op.has(Operator::scroll_left)) << "of the columns";
    EXPECT_FALSE(op.sees_rectangle(track));
    op.use(Operator::rows);
    EXPECT_TRUE(op.has(Operator::scroll_up));
    EXPECT_TRUE(op.sees_rectangle(track));
    const int top = op.find("Fill").area.top;
    op.use(Operator::scroll_down);
    EXPECT_LT(op.find("Fill").area.top, top);
}

TEST(GalleryOperation, ColumnsScrollAndJumpToOneOfThem)
{
    Operator op;
    op.turn_to("scroll");
    constexpr int window_left = 10, window_right = 470, half = 230; // pixels
    const int start = op.find("1").area.left;
    op.use(Operator::scroll_right);
    EXPECT_EQ(op.find("1").area.left, start - half);
    op.use(Operator::scroll_left);
    EXPECT_EQ(op.find("1").area.left, start);
    op.use(Operator::jump);
    const Area column = op.find("8").area;
    EXPECT_GE(column.left, window_left);
    EXPECT_LE(column.right, window_right);
    op.use(Operator::jump);
    EXPECT_EQ(op.find("8").area.left, column.left) << "it is there already";
}

TEST(GalleryOperation, TheListIsChosenFromByFingerAndByKeys)
{
    Operator op;
    op.turn_to("list");
    const auto expect_chosen = [&](const std::string& name) {
        EXPECT_EQ(op.count([&](const Operator::Shown& shown) { return shown.text == name; }), 2U) << "beside the list";
    };
    expect_chosen("ISO 03");
    op.touch("ISO 02");
    expect_chosen("ISO 02");
    op.use(Operator::item_up);
    expect_chosen("ISO 015");
    op.use(Operator::item_up);
    expect_chosen("ISO 015");
    for (int i = 0; i < 6; ++i)
        op.use(Operator::item_down);
    expect_chosen("ISO 06");
    op.use(Operator::item_down);
    expect_chosen("ISO 06");
}

/// A button is released that the terminal does not show.
TEST(GalleryOperation, AHiddenButtonOfTheListChoosesNothing)
{
    Operator op;
    op.turn_to("list");
    std::vector<std::string> before;
    for (const Operator::Shown& shown : op.screen())
        before.push_back(shown.text);

    const terminal::Object_pool& objects = op.link.terminal.pool();
    int hidden = 0;
    for (const terminal::Child list : op.link.terminal.active_mask().children())
        for (const terminal::Child item : objects.find(list.id).children()) {
            const terminal::Object container = objects.find(item.id);
            if (!container.is(Iso::Object_type::container) || container.u8(terminal::Field::hidden) == 0)
                continue;
            for (const terminal::Child part : container.children())
                if (objects.find(part.id).is(Iso::Object_type::button)) {
                    const Bytes released = frame(1, 0, w(part.id), w(op.link.terminal.active_mask().id()), 1);
                    op.gallery.pool().receive(released.data(), released.size());
                    ++hidden;
                }
        }
    EXPECT_EQ(hidden, 43);

    std::vector<std::string> after;
    for (const Operator::Shown& shown : op.screen())
        after.push_back(shown.text);
    EXPECT_EQ(after, before);
    op.use(Operator::item_up);
    EXPECT_EQ(op.count([](const Operator::Shown& shown) { return shown.text == "ISO 025"; }), 2U);
}

/// Whatever a terminal may say about any object of the pool; the sanitizers watch.
TEST(GalleryOperation, AnythingMayBeActivatedOrEntered)
{
    Operator op;
    VT::Pool& pool = op.gallery.pool();
    const auto say = [&](const Bytes& message) { pool.receive(message.data(), message.size()); };
    for (int id = 0; id < static_cast<int>(pool.size()); ++id)
        for (int activation = 0; activation <= 3; ++activation) {
            say(frame(0, activation, w(id), w(0xFFFF), 1));
            say(frame(1, activation, w(id), w(0xFFFF), 1));
            say(frame(5, w(id), 0xFF, d(activation == 0 ? 0xFFFFFFFF : 0x80000000 >> activation)));
        }
    pool.take_problems();
    for (VT::Mask_obj* const page : op.gallery.pages()) {
        op.gallery.show(*page);
        EXPECT_FALSE(op.screen().empty()) << page->get_name();
    }
}

TEST(GalleryOperation, TheScreenShowsWhatTheMachineDoes)
{
    Operator op;
    op.turn_to("machine");
    op.look_again();
    EXPECT_TRUE(op.sees("128.40")) << "hectares";
    op.gallery.machine().work(2);
    op.gallery.machine().work(60);
    EXPECT_TRUE(op.sees("128.40")) << "until it looks again";
    op.look_again();
    EXPECT_TRUE(op.sees("12.0")) << "km/h";
    EXPECT_TRUE(op.sees("3.2")) << "bar";
    EXPECT_TRUE(op.sees("2751")) << "litres";
    EXPECT_TRUE(op.sees("128.90")) << "hectares";
}

TEST(GalleryOperation, TheMachineDoesWhatTheOperatorSets)
{
    Operator op;
    op.turn_to("machine");
    op.look_again();
    Machine& machine = op.gallery.machine();
    op.use(Operator::up);
    EXPECT_EQ(CDS::read(machine.store, machine.data.target_speed), 13);
    op.enter(1, 150);
    EXPECT_EQ(CDS::read(machine.store, machine.data.rate), 150);
    machine.work(2);
    op.look_again();
    EXPECT_EQ(op.count([](const Operator::Shown& shown) { return shown.text == "13.0"; }), 2U) << "set, and driven";
}

TEST(GalleryOperation, TheMachineWorksOnAThreadOfItsOwn)
{
    Operator op;
    op.turn_to("machine");
    op.look_again();
    Machine& machine = op.gallery.machine();
    machine.start();
    pollfd news{op.gallery.descriptors()[0], POLLIN, 0};
    constexpr int longest = 10'000; // milliseconds
    while (op.sees("0.0") && poll(&news, 1, longest) == 1)
        op.look_again();
    EXPECT_FALSE(op.sees("0.0")) << "it drives, and has pressure";
    machine.stop();
}

TEST(GalleryOperation, SettingsAreStillThereAfterARestart)
{
    const auto folder = std::filesystem::temp_directory_path() / ("vtui-settings-" + std::to_string(getpid()));
    std::filesystem::create_directory(folder);
    const std::string file = (folder / "settings.db").string();
    {
        Operator op({}, file);
        op.turn_to("settings");
        EXPECT_TRUE(op.sees("24.0")) << "metres, as delivered";
        op.use(Operator::up);
        op.enter(1, 9);
        EXPECT_TRUE(op.sees("24.5"));
    }
    {
        Operator op({}, file);
        op.turn_to("settings");
        EXPECT_TRUE(op.sees("24.5"));
        EXPECT_TRUE(op.sees("9"));
        EXPECT_TRUE(op.sees("130")) << "which nobody has changed";
    }
    std::filesystem::remove_all(folder);
}

TEST(GalleryOperation, SettingsAreFollowedWhileTheirPageIsSeen)
{
    Operator op;
    Settings& settings = op.gallery.stored();
    op.turn_to("settings");
    settings.sections.set(8);
    op.look_again();
    EXPECT_TRUE(op.sees("8"));
    op.turn_to("machine");
    settings.sections.set(5);
    op.look_again();
    op.turn_to("settings");
    EXPECT_TRUE(op.sees("5")) << "refreshed when it came into sight";
    EXPECT_FALSE(op.sees("8"));
}

} // namespace
