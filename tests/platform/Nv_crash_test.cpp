// The writing process is killed at random moments, and the file is looked at each time.

#include "tests/platform/Nv_folder.h"

#include <array>
#include <csignal>
#include <cstdint>
#include <deque>
#include <iostream>
#include <random>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

using namespace nv;
using namespace std::chrono_literals;

namespace {

/// Items of several types that are set together to the same number, and one that is set alone.
struct Items
{
    explicit Items(Store& store)
    {
        for (int i = 0; i < 40; ++i) {
            doubles.emplace_back(store, "double " + std::to_string(i));
            longs.emplace_back(store, "long " + std::to_string(i));
        }
    }

    void set(Store& store, long long n)
    {
        std::vector<NV_store::NV_item::Change> changes;
        for (Double& item : doubles)
            changes.push_back(item.to(static_cast<double>(n)));
        for (Long& item : longs)
            changes.push_back(item.to(n));
        store.set(changes.data(), changes.data() + changes.size());
    }

    /// The number that all items have; −1 if they differ.
    long long get() const
    {
        const long long n = longs.front().get();
        for (const Double& item : doubles)
            if (item.get() != static_cast<double>(n))
                return -1;
        for (const Long& item : longs)
            if (item.get() != n)
                return -1;
        return n;
    }

    std::deque<Double> doubles;
    std::deque<Long> longs;
};

/// Counts on from what the file has, until it is killed. Tells each number once it is flushed; sets others that it
/// leaves to the store to write, and opens the store anew every now and then.
[[noreturn]] void write_numbers(const std::string& path, int told)
{
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    for (;;) {
        Store store(path, 1ms);
        Items items(store);
        Long alone(store, "alone");
        for (int i = 0; i < 30; ++i) {
            const long long n = items.get() + 1;
            items.set(store, n);
            alone.set(n);
            if (i % 3 == 0) {
                std::this_thread::sleep_for(1ms);
            } else {
                store.flush();
                if (write(told, &n, sizeof n) != sizeof n)
                    _exit(1);
            }
        }
    }
}

/// Lets a process write for a while, which begins at once or with the first number that is flushed, and kills it.
/// Returns the last number that was flushed, or `told` if none was.
long long write_and_kill(const std::string& path, bool from_first, std::chrono::microseconds life, long long told)
{
    int ends[2];
    if (pipe(ends) != 0)
        throw std::runtime_error("no pipe");
    const pid_t child = fork();
    if (child == 0) {
        close(ends[0]);
        write_numbers(path, ends[1]);
    }
    close(ends[1]);
    if (from_first) {
        EXPECT_EQ(read(ends[0], &told, sizeof told), static_cast<ssize_t>(sizeof told));
    }
    std::this_thread::sleep_for(life);
    kill(child, SIGKILL);
    int status = 0;
    waitpid(child, &status, 0);
    EXPECT_TRUE(WIFSIGNALED(status)) << "it ended by itself";
    for (long long n; read(ends[0], &n, sizeof n) == sizeof n;)
        told = n;
    close(ends[0]);
    return told;
}

class NvCrash : public Folder
{};

TEST_F(NvCrash, LeavesWhatWasFlushedAndNothingHalf)
{
    constexpr int kills = 300;
    constexpr unsigned seed = 1; // of the lives' lengths; what they reach in that time differs all the same
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 random(seed);
    std::uniform_int_distribution<int> life(0, 30'000); // microseconds
    long long told = 0;                                 // that it is flushed
    long long last = 0;                                 // that was found, flushed or not
    long long flushed = 0;
    int unasked = 0;
    for (int i = 0; i < kills; ++i) {
        if (i % 50 == 0) { // killed while it makes the file, too
            for (const char* end : {"", "-wal", "-journal"})
                fs::remove(path + end);
            told = last = 0;
        }
        const long long before = last;
        told = write_and_kill(path, i % 2 == 1, std::chrono::microseconds(life(random)), told);
        flushed += std::max(0LL, told - before);

        Store store(path); // checks the file's integrity, and puts a damaged one aside
        ASSERT_EQ(store.put_aside(), "") << "after kill " << i;
        Items items(store);
        const long long found = items.get();
        ASSERT_NE(found, -1) << "torn after kill " << i;
        ASSERT_GE(found, told) << "lost after kill " << i;
        ASSERT_GE(found, last) << "what was there once is gone after kill " << i;
        const long long alone = Long(store, "alone").get();
        ASSERT_GE(alone, told);
        ASSERT_LE(alone, found);
        ASSERT_GE(alone, found - 1);
        unasked += found > told;
        last = found;
    }
    EXPECT_GE(flushed, kills / 2);
    std::cout << kills << " kills with seed " << seed << ", " << flushed << " numbers, " << unasked
              << " files newer than the last flush\n";
}

} // namespace
