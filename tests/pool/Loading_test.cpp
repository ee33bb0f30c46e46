#include "terminal/Object_pool.h"
#include "tests/pool/Fake_terminal.h"
#include "tests/pool/Screen.h"
#include "vtui/comp/objects/Container_obj.h"
#include "vtui/comp/objects/Picture_graphic_obj.h"

#include <gtest/gtest.h>
#include <utility>

using VT::Error;
using namespace std::chrono_literals;

namespace {

const Bytes first_maintenance = frame(0xFF, 1, 4);
const Bytes maintenance = frame(0xFF, 0, 4);
const Bytes get_hardware = frame(0xC7);
const Bytes end_of_pool = frame(0x12);

/// A picture whose record has that many bytes.
struct Picture
{
    explicit Picture(std::size_t record_size) : pixels(record_size - header)
    {
        for (std::size_t i = 0; i < pixels.size(); ++i)
            pixels[i] = static_cast<std::uint8_t>(i * 7);
    }

    Bytes record(int id) const
    {
        return join(w(id), 20, w(1), w(1), w(1), 2, 0, 0, d(static_cast<std::int64_t>(pixels.size())), 0, pixels);
    }

    static constexpr std::size_t header = 17;
    Bytes pixels;
    C::Picture_graphic_obj object{1, 1, 1, 2, 0, 0, static_cast<std::uint32_t>(pixels.size()), pixels.data()};
};

/// A pool of three messages of 1785 bytes: the first two full, with the screen and a picture, and with a picture alone.
struct Large : Screen
{
    Large()
    {
        for (Picture* picture : {&beside_the_screen, &alone, &last})
            pool.add(picture->object);
        terminal.longest = 1785;
    }

    std::vector<Bytes> transfers() const
    {
        return {join(0x11, own_records(), beside_the_screen.record(2)), join(0x11, alone.record(3)),
                join(0x11, last.record(4))};
    }

    Picture beside_the_screen{1784 - 18};
    Picture alone{1784};
    Picture last{450};
    Fake_terminal terminal;
    static constexpr int size = 1784 + 1784 + 450;
};

VT::Problem only_error(const VT::Result& result)
{
    EXPECT_EQ(result.errors.size(), 1u) << result.text();
    return result.errors.empty() ? VT::Problem{Error::none, 0, "", ""} : result.errors.front();
}

} // namespace

TEST(PoolLoading, SaysExactlyThis)
{
    Screen screen;
    Fake_terminal terminal;
    const VT::Result result = screen.pool.load(terminal);
    ASSERT_TRUE(result) << result.text();
    EXPECT_TRUE(screen.pool.is_live());
    EXPECT_EQ(terminal.sent, (std::vector<Bytes>{first_maintenance, get_hardware, frame(0xC0, 0xFF, d(18)),
                                                 join(0x11, Screen::own_records()), end_of_pool}));
    ASSERT_TRUE(screen.pool.information());
    EXPECT_EQ(screen.pool.information()->mask_width, 480);
    EXPECT_EQ(screen.pool.information()->mask_height, 480);
    EXPECT_EQ(screen.pool.information()->boot_time, 255);
    EXPECT_EQ(screen.pool.information()->code, 2U);
    EXPECT_EQ(screen.pool.information()->options, 3);
}

TEST(PoolLoading, AsksForTheHardwareAlone)
{
    Screen screen;
    Fake_terminal terminal;
    ASSERT_TRUE(screen.pool.ask_hardware(terminal));
    EXPECT_EQ(terminal.sent, (std::vector<Bytes>{first_maintenance, get_hardware}));
    EXPECT_EQ(screen.pool.information()->mask_width, 480);
    EXPECT_FALSE(screen.pool.is_live());
    EXPECT_EQ(screen.mask.get_id(), Iso::null_id);
}

TEST(PoolLoading, IsUndoneByAskingForTheHardware)
{
    Screen screen;
    Fake_terminal terminal;
    ASSERT_TRUE(screen.pool.load(terminal));
    ASSERT_TRUE(screen.pool.ask_hardware(terminal)); // which begins with a first maintenance message
    EXPECT_FALSE(screen.pool.is_live());
}

using Steps = std::vector<std::pair<std::size_t, std::size_t>>;

TEST(PoolLoading, PutsAWholePoolIntoOneMessage)
{
    Large large;
    Fake_terminal terminal;
    Steps steps;
    ASSERT_TRUE(large.pool.load(terminal, [&](std::size_t sent, std::size_t total) {
        EXPECT_EQ(terminal.sent.size(), 4u);
        steps.push_back({sent, total});
    }));
    EXPECT_EQ(steps, (Steps{{Large::size, Large::size}}));
    EXPECT_EQ(terminal.sent, (std::vector<Bytes>{first_maintenance, get_hardware, frame(0xC0, 0xFF, d(Large::size)),
                                                 join(0x11, Screen::own_records(), large.beside_the_screen.record(2),
                                                      large.alone.record(3), large.last.record(4)),
                                                 end_of_pool}));
}

TEST(PoolLoading, CutsThePoolToWhatTheLinkTakesAndTellsTheProgress)
{
    Large large;
    Steps steps;
    ASSERT_TRUE(large.pool.load(large.terminal, [&](std::size_t sent, std::size_t total) {
        EXPECT_EQ(large.terminal.sent.size(), 4 + steps.size());
        steps.push_back({sent, total});
    }));
    EXPECT_EQ(steps, (Steps{{1784, Large::size}, {3568, Large::size}, {Large::size, Large::size}}));
    const std::vector<Bytes> transfers = large.transfers();
    EXPECT_EQ(large.terminal.sent,
              (std::vector<Bytes>{first_maintenance, get_hardware, frame(0xC0, 0xFF, d(Large::size)), transfers[0],
                                  transfers[1], transfers[2], end_of_pool}));
}

TEST(PoolLoading, CutsNoRecordInTwo)
{
    const std::pair<std::size_t, const char*> cuts[] = {
        {59, "0 1 2 3 4 5"},           // bytes: 1, then 10 8 10 10 10 10
        {58, "0 1 2 3 4 | 5"},         //
        {29, "0 1 2 | 3 4 | 5"},       // the first message is full
        {28, "0 1 | 2 3 | 4 5"},       //
        {19, "0 1 | 2 | 3 | 4 | 5"},   //
        {18, "0 | 1 | 2 | 3 | 4 | 5"}, //
        {11, "0 | 1 | 2 | 3 | 4 | 5"},
    };
    for (const auto& [longest, expected] : cuts) {
        std::vector<C::Container_obj> containers(4);
        Screen screen;
        for (C::Container_obj& container : containers)
            screen.pool.add(container);
        Fake_terminal terminal;
        terminal.longest = longest;
        ASSERT_TRUE(screen.pool.load(terminal));
        std::string cut;
        for (const Bytes& message : terminal.sent) {
            if (message[0] != 0x11)
                continue;
            EXPECT_LE(message.size(), longest);
            terminal::Object_pool alone; // as terminals read it that look at each message by itself
            EXPECT_FALSE(alone.parse(Bytes(message.begin() + 1, message.end())));
            cut += cut.empty() ? "" : " |";
            alone.for_each(
                [&cut](terminal::Object object) { cut += (cut.empty() ? "" : " ") + std::to_string(object.id()); });
        }
        EXPECT_EQ(cut, expected) << longest;
    }
}

TEST(PoolLoading, EndsBeforeTheTransferWithEachRecordThatIsTooLongForTheLink)
{
    C::Container_obj frame_of_page;
    frame_of_page.set_name("frame");
    for (const std::size_t longest : {10U, 8U, 0U}) { // no less than 8 is assumed
        Screen screen;
        screen.pool.add(frame_of_page);
        Fake_terminal terminal;
        terminal.longest = longest;
        const VT::Result result = screen.pool.load(terminal);
        ASSERT_EQ(result.errors.size(), longest == 10 ? 2u : 3u);
        for (const VT::Problem& error : result.errors)
            EXPECT_EQ(error.error, Error::too_long_record);
        const std::string room = std::to_string(longest == 10 ? 9 : 7);
        EXPECT_EQ(result.errors.front().text,
                  "working set 0 has a record of 10 bytes; the link's longest message has room for " + room);
        EXPECT_EQ(result.errors.back().text,
                  "container 'frame' (2) has a record of 10 bytes; the link's longest message has room for " + room);
        EXPECT_EQ(result.errors.back().object, "frame");
        EXPECT_EQ(result.errors.back().id, 2);
        EXPECT_EQ(terminal.take_sent(), (std::vector<Bytes>{first_maintenance, get_hardware}));
        EXPECT_FALSE(screen.pool.is_live());

        terminal.longest = 11;
        EXPECT_TRUE(screen.pool.load(terminal));
    }
}

TEST(PoolLoading, AsksForRoomForPoolsOfAnySize)
{
    constexpr int size = 0x01020304;
    Screen screen;
    Picture picture{size - 18};
    screen.pool.add(picture.object);
    Fake_terminal terminal;
    terminal.refuse_from = 3; // nobody needs the picture
    EXPECT_FALSE(screen.pool.load(terminal));
    EXPECT_EQ(terminal.sent.back(), join(0xC0, 0xFF, 4, 3, 2, 1, 0xFF, 0xFF));
}

TEST(PoolLoading, NamesTheStepAtWhichTheLinkBreaks)
{
    const std::pair<std::size_t, const char*> steps[] = {
        {0, "The link refused Working Set Maintenance"},
        {1, "The link refused Get Hardware"},
        {2, "The link refused Get Memory"},
        {3, "The link refused the pool at byte 0 of 4018"},
        {4, "The link refused the pool at byte 1784 of 4018"},
        {5, "The link refused the pool at byte 3568 of 4018"},
        {6, "The link refused End of Object Pool"},
    };
    for (const auto& [messages, text] : steps) {
        Large large;
        large.terminal.refuse_from = messages;
        const VT::Problem error = only_error(large.pool.load(large.terminal));
        EXPECT_EQ(error.error, Error::link_refused) << messages;
        EXPECT_EQ(error.text, text) << messages;
        EXPECT_EQ(large.terminal.sent.size(), messages);
        EXPECT_FALSE(large.pool.is_live());

        Fake_terminal back;
        EXPECT_TRUE(large.pool.load(back)) << messages;
        EXPECT_EQ(back.sent.size(), 5u);
    }
}

TEST(PoolLoading, DoesNotWaitForEver)
{
    const std::pair<std::uint8_t, const char*> questions[] = {
        {0xC7, "The terminal did not answer Get Hardware within 2500 ms"},
        {0xC0, "The terminal did not answer Get Memory within 2500 ms"},
        {0x12, "The terminal did not answer End of Object Pool within 3500 ms"},
    };
    for (const auto& [function, text] : questions) {
        Screen screen;
        Fake_terminal terminal;
        terminal.answers.erase(function);
        const VT::Problem error = only_error(screen.pool.load(terminal, {}, {2500ms, 3500ms}));
        EXPECT_EQ(error.error, Error::timed_out);
        EXPECT_EQ(error.text, text);
        EXPECT_FALSE(screen.pool.is_live());
        // Alive all the time: the fake link does not wait, but each time-out counts as the second it was asked for.
        const std::size_t seconds = function == 0x12 ? 3 : 2;
        ASSERT_GT(terminal.sent.size(), seconds);
        for (std::size_t i = 0; i < seconds; ++i)
            EXPECT_EQ(terminal.sent[terminal.sent.size() - 1 - i], maintenance);
        EXPECT_EQ(terminal.sent[terminal.sent.size() - 1 - seconds][0], function);
    }
}

TEST(PoolLoading, EndsAtOnceWhenTheTerminalDoesNotKnowTheQuestion)
{
    const std::pair<std::uint8_t, const char*> questions[] = {
        {0xC7, "The terminal does not know Get Hardware"},
        {0xC0, "The terminal does not know Get Memory"},
        {0x12, "The terminal does not know End of Object Pool"},
    };
    for (const auto& [function, text] : questions) {
        Screen screen;
        Fake_terminal terminal;
        terminal.answers[function] = frame(0xFD, function);
        const VT::Problem error = only_error(screen.pool.load(terminal));
        EXPECT_EQ(error.error, Error::unusable_terminal);
        EXPECT_EQ(error.text, text);
        EXPECT_EQ(terminal.sent.back()[0], function) << "nothing was sent while it waited";
    }
}

TEST(PoolLoading, GoesOnWhenTheTerminalDoesNotKnowSomethingElse)
{
    Screen screen;
    Fake_terminal terminal;
    terminal.inbox.push_back(frame(0xFD, 0xC2));
    EXPECT_TRUE(screen.pool.load(terminal));
}

TEST(PoolLoading, EndsWithATerminalWhoseMaskHasNoPixels)
{
    for (const Bytes& hardware : {frame(0xC7, 0xFF, 2, 3, w(0), w(480)), frame(0xC7, 0xFF, 2, 3, w(480), w(0))}) {
        Screen screen;
        screen.pool.set_designed_size(240);
        Fake_terminal terminal;
        terminal.answers[0xC7] = hardware;
        const VT::Problem error = only_error(screen.pool.load(terminal));
        EXPECT_EQ(error.error, Error::unusable_terminal);
        EXPECT_EQ(error.text, "The terminal says that its data mask has no pixels");
        EXPECT_EQ(terminal.sent.size(), 2u);
        EXPECT_FALSE(screen.pool.information());
        EXPECT_EQ(only_error(screen.pool.ask_hardware(terminal)).error, Error::unusable_terminal);
    }
}

TEST(PoolLoading, IsNotKeptFromTimingOutByOtherMessages)
{
    class Chatterbox final : public VT::Client::Terminal_link
    {
      public:
        bool send(const std::uint8_t*, std::size_t) override { return true; }
        bool receive(std::vector<std::uint8_t>& message, std::chrono::milliseconds) override
        {
            message = frame(0xFE, 0x26, w(1), w(0xFFFF), 0, 0);
            return true;
        }
    } terminal;
    Screen screen;
    EXPECT_EQ(only_error(screen.pool.ask_hardware(terminal, 30ms)).text,
              "The terminal did not answer Get Hardware within 30 ms");
}

TEST(PoolLoading, EndsWhenTheTerminalHasNoMemory)
{
    Screen screen;
    Fake_terminal terminal;
    terminal.answers[0xC0] = frame(0xC0, 4, 1);
    const VT::Problem error = only_error(screen.pool.load(terminal));
    EXPECT_EQ(error.error, Error::not_enough_memory);
    EXPECT_EQ(error.text, "The terminal has no room for 18 bytes");
    EXPECT_EQ(terminal.sent.size(), 3u);
}

TEST(PoolLoading, NamesTheObjectsThatTheTerminalRejects)
{
    C::Container_obj container;
    container.set_name("frame");
    Screen screen;
    screen.mask.add(container, 0, 0);
    Fake_terminal terminal;
    terminal.answers[0x12] = frame(0x12, 1, w(1), w(2), 4);
    VT::Problem error = only_error(screen.pool.load(terminal));
    EXPECT_EQ(error.error, Error::rejected_pool);
    EXPECT_EQ(error.object, "frame");
    EXPECT_EQ(error.id, 2);
    EXPECT_EQ(error.text, "The terminal rejected the pool with error code 4: container 'frame' (2) in data mask 1");
    EXPECT_FALSE(screen.pool.is_live());

    terminal.answers[0x12] = frame(0x12, 1, w(0xFFFF), w(77), 2);
    error = only_error(screen.pool.load(terminal));
    EXPECT_EQ(error.text, "The terminal rejected the pool with error code 2: object 77 (not in the pool)");
    EXPECT_EQ(error.object, "");

    terminal.answers[0x12] = frame(0x12, 1, w(0xFFFF), w(0xFFFF), 8);
    EXPECT_EQ(only_error(screen.pool.load(terminal)).text, "The terminal rejected the pool with error code 8");
}

TEST(PoolLoading, SendsNothingOfAPoolThatCannotBePrepared)
{
    C::Container_obj container;
    VT::Pool pool;
    pool.add(container);
    Fake_terminal terminal;
    EXPECT_EQ(only_error(pool.load(terminal)).error, Error::no_working_set);
    EXPECT_EQ(terminal.sent, (std::vector<Bytes>{first_maintenance, get_hardware}));
}

TEST(PoolLoading, BringsThePresentValuesBack)
{
    C::Container_obj container;
    Screen screen;
    screen.mask.add(container, 3, 4);
    Fake_terminal terminal;
    ASSERT_TRUE(screen.pool.load(terminal));
    container.change_size(100, 50);
    terminal.take_sent();
    terminal.refuse_from = 0;
    container.set_child_location(0, 0, 0); // no child, nothing said
    EXPECT_TRUE(screen.pool.is_live());
    container.set_hidden(true);
    EXPECT_FALSE(screen.pool.is_live());
    screen.mask.set_background_colour(9); // noted while the link is down

    Fake_terminal back;
    ASSERT_TRUE(screen.pool.load(back));
    EXPECT_EQ(back.sent[3], join(0x11, w(0), 0, 0, 1, w(1), 0, 0, 0,            //
                                 w(1), 1, 9, w(0xFFFF), 1, 0, w(2), w(3), w(4), //
                                 w(2), 3, w(100), w(50), 1, 0, 0));
    back.take_sent();
    container.set_hidden(false);
    EXPECT_EQ(back.sent, (std::vector<Bytes>{frame(0xA0, w(2), 1)}));
    EXPECT_TRUE(terminal.sent.empty());
}

TEST(PoolLoading, LetsGoOfTheLinkThatThePoolHadBefore)
{
    Screen screen;
    Fake_terminal former;
    ASSERT_TRUE(screen.pool.load(former));
    former.take_sent();
    Fake_terminal silent;
    silent.answers.clear();
    EXPECT_FALSE(screen.pool.load(silent));
    EXPECT_FALSE(screen.pool.maintain());
    EXPECT_EQ(former.take_sent(), std::vector<Bytes>());
}

TEST(PoolLoading, HasNoLinkUntilTheTerminalHasAccepted)
{
    Screen screen;
    Fake_terminal terminal;
    ASSERT_TRUE(screen.pool.load(terminal));
    bool live_meanwhile = true;
    ASSERT_TRUE(screen.pool.load(
        terminal, [&](std::size_t, std::size_t) { live_meanwhile = screen.pool.is_live() || screen.pool.maintain(); }));
    EXPECT_FALSE(live_meanwhile);
}

TEST(PoolLoading, TellsTheTerminalAfterwardsThatTheFirstObjectChangedMeanwhile)
{
    Screen screen;
    Fake_terminal terminal;
    ASSERT_TRUE(screen.pool.load(terminal, [&](std::size_t, std::size_t) { screen.working_set.selectable = 0; }));
    ASSERT_EQ(terminal.sent.size(), 7u);
    EXPECT_EQ(terminal.sent[5], join(0x11, w(0), 0, 0, 0, w(1), 0, 0, 0));
    EXPECT_EQ(terminal.sent[6], end_of_pool);
}

TEST(PoolLoading, TellsTheTerminalAfterwardsWhatChangedMeanwhile)
{
    C::Container_obj changed;
    C::Container_obj hidden;
    C::Container_obj same;
    Screen screen;
    for (VT::VT_obj* object : {&changed, &hidden, &same})
        screen.pool.add(*object);
    Fake_terminal terminal;
    ASSERT_TRUE(screen.pool.load(terminal, [&](std::size_t, std::size_t) {
        changed.width = 7;
        hidden.set_hidden(true);
    }));
    ASSERT_EQ(terminal.sent.size(), 9u);
    EXPECT_EQ(terminal.sent[4], end_of_pool);
    EXPECT_EQ(terminal.sent[5], join(0x11, w(2), 3, w(7), w(240), 0, 0, 0));
    EXPECT_EQ(terminal.sent[6], end_of_pool);
    EXPECT_EQ(terminal.sent[7], join(0x11, w(3), 3, w(240), w(240), 1, 0, 0));
    EXPECT_EQ(terminal.sent[8], end_of_pool);
    EXPECT_TRUE(screen.pool.is_live());
}

TEST(PoolLoading, IsMaintainedBySecondBySecondMessages)
{
    Screen screen;
    EXPECT_FALSE(screen.pool.maintain());
    Fake_terminal terminal;
    ASSERT_TRUE(screen.pool.load(terminal));
    terminal.take_sent();
    EXPECT_TRUE(screen.pool.maintain());
    EXPECT_EQ(terminal.take_sent(), (std::vector<Bytes>{maintenance}));
    terminal.refuse_from = 0;
    EXPECT_FALSE(screen.pool.maintain());
    EXPECT_FALSE(screen.pool.is_live());
}

TEST(PoolLoading, EndsWithNewObjectsUntilTheyAreLoaded)
{
    C::Container_obj late;
    Screen screen;
    Fake_terminal terminal;
    ASSERT_TRUE(screen.pool.load(terminal));
    ASSERT_TRUE(screen.pool.prepare());
    EXPECT_TRUE(screen.pool.is_live());
    screen.pool.add(late);
    late.set_hidden(true);
    EXPECT_TRUE(screen.pool.is_live());
    ASSERT_TRUE(screen.pool.prepare());
    EXPECT_FALSE(screen.pool.is_live());
    ASSERT_TRUE(screen.pool.load(terminal));
    EXPECT_TRUE(screen.pool.is_live());
}
