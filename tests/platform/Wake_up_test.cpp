#include "tests/platform/Readable.h"
#include "threads/Wake_up.h"

#include <gtest/gtest.h>

#include <atomic>
#include <fcntl.h>
#include <sys/resource.h>
#include <thread>

using namespace std::chrono_literals;

TEST(WakeUp, IsReadableWhileItIsSet)
{
    Wake_up wake_up;
    EXPECT_FALSE(is_readable(wake_up.descriptor()));
    wake_up.set();
    EXPECT_TRUE(is_readable(wake_up.descriptor()));
    EXPECT_TRUE(is_readable(wake_up.descriptor()));
    wake_up.clear();
    EXPECT_FALSE(is_readable(wake_up.descriptor()));
    wake_up.set();
    EXPECT_TRUE(is_readable(wake_up.descriptor()));
}

TEST(WakeUp, IsClearAtOnceHoweverOftenItWasSet)
{
    Wake_up wake_up;
    for (int i = 0; i < 1000; ++i)
        wake_up.set();
    wake_up.clear();
    EXPECT_FALSE(is_readable(wake_up.descriptor()));
}

TEST(WakeUp, MayBeClearedWhenItIsNotSet)
{
    Wake_up wake_up;
    wake_up.clear();
    EXPECT_FALSE(is_readable(wake_up.descriptor()));
    wake_up.set();
    EXPECT_TRUE(is_readable(wake_up.descriptor()));
}

TEST(WakeUp, KeepsItsDescriptorFromProgramsThatThisOneStarts)
{
    const Wake_up wake_up;
    EXPECT_EQ(fcntl(wake_up.descriptor(), F_GETFD), FD_CLOEXEC);
}

TEST(WakeUp, TakesWhateverDescriptorIsFree)
{
    const int input = dup(STDIN_FILENO);
    close(STDIN_FILENO); // as in a service that was started without it
    {
        Wake_up wake_up;
        EXPECT_EQ(wake_up.descriptor(), 0);
        wake_up.set();
        EXPECT_TRUE(is_readable(wake_up.descriptor()));
    }
    dup2(input, STDIN_FILENO);
    close(input);
}

TEST(WakeUp, GivesItsDescriptorBack)
{
    const int descriptor = Wake_up().descriptor();
    EXPECT_EQ(fcntl(descriptor, F_GETFD), -1);
}

TEST(WakeUp, SaysThatThereIsNoDescriptorLeft)
{
#ifdef __SANITIZE_ADDRESS__
    // It ends the process when it cannot open the list of what is loaded, which it reads at every throw.
    GTEST_SKIP() << "the address sanitizer needs a descriptor itself; the other builds run this";
#endif
    rlimit before{};
    getrlimit(RLIMIT_NOFILE, &before);
    const rlimit none{0, before.rlim_max};
    setrlimit(RLIMIT_NOFILE, &none);
    EXPECT_THROW(Wake_up(), std::system_error);
    setrlimit(RLIMIT_NOFILE, &before);
}

TEST(WakeUp, MissesNothingThatOtherThreadsPutDownBeforeTheySetIt)
{
    constexpr int threads = 2;
    constexpr int each = 100000;
    for (int round = 0; round < 20 && !testing::Test::HasFailure(); ++round) {
        Wake_up wake_up;
        std::atomic<int> put_down{0};
        std::thread writers[threads];
        for (std::thread& writer : writers)
            writer = std::thread([&] {
                for (int i = 0; i < each; ++i) {
                    ++put_down;
                    wake_up.set();
                }
            });
        int seen = 0;
        while (seen < threads * each && is_readable(wake_up.descriptor(), 5s)) {
            wake_up.clear();
            seen = put_down;
        }
        for (std::thread& writer : writers)
            writer.join();
        EXPECT_EQ(seen, threads * each);
    }
}
