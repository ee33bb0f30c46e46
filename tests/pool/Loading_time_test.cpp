// How long loading waits, and that the terminal hears of the application all the while.

#include "tests/pool/Fake_terminal.h"
#include "tests/pool/Screen.h"
#include "vtui/comp/objects/Container_obj.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <map>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

using VT::Error;
using namespace std::chrono_literals;
using std::chrono::milliseconds;

namespace {

/// A terminal that takes its time, and a link that really waits, in a time of its own.
class Slow_terminal final : public Fake_terminal
{
  public:
    std::map<std::uint8_t, milliseconds> sending;  ///< how long the link takes for a function
    std::map<std::uint8_t, milliseconds> thinking; ///< how long the terminal takes to answer it
    std::multimap<milliseconds, Bytes> coming;     ///< what the terminal says, and when
    milliseconds time{0};
    milliseconds longest_wait{0};
    std::string log; ///< what was sent, and when: "FF 0, C7 0"

    bool send(const std::uint8_t* message, std::size_t size) override
    {
        const bool taken = Fake_terminal::send(message, size);
        if (!taken)
            return false;
        log += (log.empty() ? "" : ", ") + in_hexadecimal(*message) + ' ' + std::to_string(time.count());
        time += sending[*message];
        for (const Bytes& said : inbox)
            coming.emplace(said[0] == *message ? time + thinking[*message] : time, said);
        inbox.clear();
        return true;
    }

    bool receive(std::vector<std::uint8_t>& message, milliseconds timeout) override
    {
        longest_wait = std::max(longest_wait, timeout);
        const milliseconds end = time + timeout;
        if (coming.empty() || coming.begin()->first > end) {
            time = end;
            return false;
        }
        time = std::max(time, coming.begin()->first);
        message = coming.begin()->second;
        coming.erase(coming.begin());
        return true;
    }

    std::chrono::steady_clock::time_point now() const override { return std::chrono::steady_clock::time_point(time); }

  private:
    static std::string in_hexadecimal(std::uint8_t function)
    {
        constexpr char digits[] = "0123456789ABCDEF";
        return {digits[function >> 4], digits[function & 15]};
    }
};

struct Loading : Screen
{
    VT::Result load() { return pool.load(terminal, {}, {2500ms, 3500ms}); }

    VT::Problem failure()
    {
        const VT::Result result = load();
        EXPECT_EQ(result.errors.size(), 1u) << result.text();
        return result ? VT::Problem{Error::none, 0, "", ""} : result.errors.front();
    }

    Slow_terminal terminal;
};

} // namespace

TEST(PoolLoadingTime, IsNotSpentOnATerminalThatAnswersAtOnce)
{
    Loading loading;
    ASSERT_TRUE(loading.load());
    EXPECT_EQ(loading.terminal.log, "FF 0, C7 0, C0 0, 11 0, 12 0");
}

TEST(PoolLoadingTime, IsInterruptedEachSecondForMaintenance)
{
    Loading loading;
    loading.terminal.time = 70ms;
    loading.terminal.thinking = {{0xC7, 2500ms}, {0xC0, 499ms}, {0x12, 1600ms}};
    ASSERT_TRUE(loading.load());
    EXPECT_EQ(loading.terminal.log, "FF 70, C7 70, FF 1070, FF 2070, C0 2570, 11 3069, 12 3069, FF 3070, FF 4070");
    EXPECT_EQ(loading.terminal.longest_wait, 1000ms);
}

TEST(PoolLoadingTime, IsInterruptedEachSecondAlsoWhileOtherMessagesCome)
{
    Loading loading;
    loading.terminal.thinking = {{0xC7, 2500ms}};
    for (milliseconds when = 100ms; when < 2500ms; when += 300ms)
        loading.terminal.coming.emplace(when, frame(0xFE, 0x26, w(1), w(0xFFFF), 0, 0));
    ASSERT_TRUE(loading.load());
    EXPECT_EQ(loading.terminal.log, "FF 0, C7 0, FF 1000, FF 2000, C0 2500, 11 2500, 12 2500");
}

TEST(PoolLoadingTime, PassesAlsoWithALinkThatDoesNotWait)
{
    class Impatient final : public VT::Client::Terminal_link
    {
      public:
        bool send(const std::uint8_t* message, std::size_t) override
        {
            maintained += *message == 0xFF;
            return true;
        }
        bool receive(std::vector<std::uint8_t>&, milliseconds timeout) override
        {
            waits.push_back(timeout.count());
            return waits.size() > 100 ? throw std::runtime_error("it goes on for ever") : false;
        }
        std::chrono::steady_clock::time_point now() const override { return {}; } // stands still

        int maintained{0};
        std::vector<milliseconds::rep> waits;
    } link;
    Screen screen;
    EXPECT_EQ(screen.pool.ask_hardware(link, 2500ms).error(), Error::timed_out);
    EXPECT_EQ(link.waits, (std::vector<milliseconds::rep>{1000, 1000, 500}));
    EXPECT_EQ(link.maintained, 3);
}

TEST(PoolLoadingTime, IsInterruptedBetweenMessagesAsSoonAsASecondIsOver)
{
    const std::pair<milliseconds, const char*> logs[] = {
        {499ms, "FF 0, C7 0, C0 0, 11 0, 11 499, 11 998, FF 1497, 12 1497"},
        {500ms, "FF 0, C7 0, C0 0, 11 0, 11 500, FF 1000, 11 1000, 12 1500"},
        {1000ms, "FF 0, C7 0, C0 0, 11 0, FF 1000, 11 1000, FF 2000, 11 2000, FF 3000, 12 3000"},
        {1001ms, "FF 0, C7 0, C0 0, 11 0, FF 1001, 11 1001, FF 2002, 11 2002, FF 3003, 12 3003"},
    };
    for (const auto& [each, log] : logs) {
        C::Container_obj container;
        Loading loading;
        loading.pool.add(container);
        loading.terminal.longest = 1 + 10;
        loading.terminal.sending = {{0x11, each}};
        ASSERT_TRUE(loading.load());
        EXPECT_EQ(loading.terminal.log, log);
    }
}

TEST(PoolLoadingTime, CountsSinceTheLastMaintenanceWhateverWasDoneMeanwhile)
{
    Loading loading;
    loading.terminal.thinking = {{0xC7, 600ms}, {0xC0, 600ms}};
    ASSERT_TRUE(loading.load());
    EXPECT_EQ(loading.terminal.log, "FF 0, C7 0, C0 600, FF 1000, 11 1200, 12 1200");
}

TEST(PoolLoadingTime, LetsAnAnswerComeUntilTheTimeoutIsOver)
{
    const std::pair<std::uint8_t, milliseconds> questions[] = {{0xC7, 2500ms}, {0xC0, 2500ms}, {0x12, 3500ms}};
    for (const auto& [function, timeout] : questions) {
        Loading in_time;
        in_time.terminal.thinking = {{function, timeout}};
        EXPECT_TRUE(in_time.load());

        Loading late;
        late.terminal.thinking = {{function, timeout + 1ms}};
        EXPECT_EQ(late.failure().error, Error::timed_out);
        EXPECT_EQ(late.terminal.time, timeout);
    }
}

TEST(PoolLoadingTime, IsThreeSecondsForAQuestionAndHalfAMinuteForThePoolUnlessToldOtherwise)
{
    for (const auto& [function, patience] : {std::pair<std::uint8_t, milliseconds>(0xC7, 3s), {0x12, 30s}}) {
        Loading in_time;
        in_time.terminal.thinking = {{function, patience}};
        EXPECT_TRUE(in_time.pool.load(in_time.terminal));
        Loading too_late;
        too_late.terminal.thinking = {{function, patience + 1ms}};
        EXPECT_FALSE(too_late.pool.load(too_late.terminal));
    }
}

TEST(PoolLoadingTime, IsNotPutOffByOtherMessages)
{
    Loading loading;
    loading.terminal.answers.erase(0xC7);
    for (milliseconds when = 100ms; when < 5000ms; when += 300ms)
        loading.terminal.coming.emplace(when, frame(0xFE, 0x26, w(1), w(0xFFFF), 0, 0));
    EXPECT_EQ(loading.failure().text, "The terminal did not answer Get Hardware within 2500 ms");
    EXPECT_EQ(loading.terminal.time, 2500ms);
    EXPECT_EQ(loading.terminal.log, "FF 0, C7 0, FF 1000, FF 2000");
}

TEST(PoolLoadingTime, EndsWhenTheLinkRefusesMaintenanceWhileItWaits)
{
    Loading loading;
    loading.terminal.thinking = {{0xC7, 1500ms}};
    loading.terminal.refuse_from = 2;
    const VT::Problem failure = loading.failure();
    EXPECT_EQ(failure.error, Error::link_refused);
    EXPECT_EQ(failure.text, "The link refused Working Set Maintenance");
    EXPECT_EQ(loading.terminal.time, 1000ms);
}

TEST(PoolLoadingTime, EndsWhenTheLinkRefusesMaintenanceBetweenMessages)
{
    Loading loading;
    loading.terminal.longest = 1 + 10;
    loading.terminal.sending = {{0x11, 1000ms}};
    loading.terminal.refuse_from = 4;
    const VT::Problem failure = loading.failure();
    EXPECT_EQ(failure.error, Error::link_refused);
    EXPECT_EQ(failure.text, "The link refused Working Set Maintenance");
    EXPECT_EQ(loading.terminal.log, "FF 0, C7 0, C0 0, 11 0");
}
