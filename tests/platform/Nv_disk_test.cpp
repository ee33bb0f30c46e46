// A disk that takes nothing more while the non-volatile store is open.

#include "tests/platform/Nv_folder.h"
#include "tests/platform/Nv_vfs.h"

#include <atomic>
#include <cerrno>
#include <csignal>
#include <deque>
#include <future>
#include <sched.h>
#include <sys/mount.h>
#include <sys/resource.h>

using namespace nv;
using namespace std::chrono_literals;

namespace {

/// While it lives, files of this process cannot grow beyond some bytes.
class Limit
{
  public:
    explicit Limit(rlim_t bytes)
    {
        getrlimit(RLIMIT_FSIZE, &before);
        const rlimit limited{bytes, before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limited);
    }
    ~Limit() { setrlimit(RLIMIT_FSIZE, &before); }
    Limit(const Limit&) = delete;
    Limit& operator=(const Limit&) = delete;

  private:
    rlimit before{};
};

class NvDisk : public Folder
{
  protected:
    NvDisk() { std::signal(SIGXFSZ, SIG_IGN); } // writing fails instead
    ~NvDisk() override { std::signal(SIGXFSZ, SIG_DFL); }

    const std::string too_large = " cannot be written: File too large";
};

TEST_F(NvDisk, ThatTakesNothingMakesAFlushFail)
{
    Store store(path, never);
    Int item(store, "item", 0);
    {
        const Limit limit(1000);
        item.set(5);
        EXPECT_EQ(complaint([&] { store.flush(); }), named() + too_large);
        EXPECT_EQ(store.take_problem(), named() + too_large);
        EXPECT_EQ(store.take_problem(), "") << "told once";
        EXPECT_EQ(item.get(), 5);
        EXPECT_EQ(complaint([&] { store.flush(); }), named() + too_large) << "once more: it is tried again";
    }
    store.flush();
    EXPECT_EQ(complaint([&] { store.flush(); }), "");
}

TEST_F(NvDisk, ThatTakesAgainGetsAllThatWasSet)
{
    {
        Store store(path, never);
        Int first(store, "first", 0);
        Int second(store, "second", 0);
        {
            const Limit limit(1000);
            first.set(1);
            EXPECT_NE(complaint([&] { store.flush(); }), "");
            second.set(2);
            first.set(3);
        }
    }
    Store store(path);
    EXPECT_EQ(Int(store, "first", 0).get(), 3);
    EXPECT_EQ(Int(store, "second", 0).get(), 2);
}

TEST_F(NvDisk, ThatTakesNothingIsReportedOnceUntilItIsMended)
{
    const std::string full = " cannot be written: No space left on device";
    std::atomic<int> answer{SQLITE_FULL};
    const Vfs vfs([&](const Vfs::Event& event) { return event.what == Vfs::Event::write ? answer.load() : SQLITE_OK; });
    answer = SQLITE_OK;
    Store store(path, never);
    Int item(store, "item", 0);
    const auto try_to_write = [&](int answer_of_disk) {
        answer = answer_of_disk;
        item.set(item.get() + 1);
        return complaint([&] { store.flush(); });
    };
    EXPECT_EQ(try_to_write(SQLITE_FULL), named() + full);
    EXPECT_EQ(store.take_problem(), named() + full);
    EXPECT_EQ(try_to_write(SQLITE_FULL), named() + full) << "whoever asks for it hears it each time";
    EXPECT_EQ(store.take_problem(), "");
    EXPECT_EQ(try_to_write(SQLITE_NOMEM), named() + " cannot be written: out of memory");
    EXPECT_EQ(store.take_problem(), named() + " cannot be written: out of memory") << "it is another one";
    EXPECT_EQ(try_to_write(SQLITE_OK), "");
    EXPECT_EQ(store.take_problem(), "");
    EXPECT_EQ(try_to_write(SQLITE_FULL), named() + full);
    EXPECT_EQ(store.take_problem(), named() + full) << "once more after it was mended";
    EXPECT_EQ(try_to_write(SQLITE_OK), "");
}

TEST_F(NvDisk, ThatTakesNothingButTheLogDoesNotLetItGrow)
{
    std::atomic<bool> is_bad{false};
    const Vfs vfs([&](const Vfs::Event& event) {
        return is_bad && event.what == Vfs::Event::write && event.path == path ? SQLITE_IOERR_WRITE : SQLITE_OK;
    });
    const auto log_size = [&] { return fs::file_size(path + "-wal"); };
    {
        Store store(path, never);
        Int item(store, "item", 0);
        item.set(1);
        store.flush();
        const auto size = log_size();
        is_bad = true;
        for (int attempt = 0; attempt < 20; ++attempt) {
            item.set(attempt / 2 + 2); // every other one brings nothing new
            EXPECT_EQ(complaint([&] { store.flush(); }), named() + " cannot be written: disk I/O error");
            EXPECT_EQ(log_size(), size);
        }
        is_bad = false;
        store.flush();
        EXPECT_EQ(log_size(), size);
    }
    Store store(path);
    EXPECT_EQ(store.put_aside(), "");
    EXPECT_EQ(Int(store, "item", 0).get(), 11);
}

TEST_F(NvDisk, IsTriedAgainWithoutBeingAskedAfterTwoSeconds)
{
    using Clock = std::chrono::steady_clock;
    std::promise<Clock::time_point> second;
    std::atomic<bool> is_full{false};
    Clock::time_point first; // used by the writing thread
    const Vfs vfs([&](const Vfs::Event& event) {
        if (!is_full || event.what != Vfs::Event::write)
            return SQLITE_OK;
        if (first == Clock::time_point()) {
            first = Clock::now();
            return SQLITE_FULL;
        }
        is_full = false;
        second.set_value(Clock::now());
        return SQLITE_OK;
    });
    {
        Store store(path, 1ms);
        is_full = true;
        Int item(store, "item", 0);
        item.set(5);
        auto again = second.get_future();
        ASSERT_EQ(again.wait_for(60s), std::future_status::ready);
        EXPECT_GE(again.get() - first, 2s) << "a broken disk is not hammered";
        EXPECT_EQ(store.take_problem(), named() + " cannot be written: No space left on device");
    }
    Store store(path);
    EXPECT_EQ(Int(store, "item", 0).get(), 5);
}

/// Never lets the process go on.
void lose_changes(const std::string& path)
{
    {
        Store store(path, never);
        Int item(store, "item", 0);
        setrlimit(RLIMIT_FSIZE, std::make_unique<rlimit>(rlimit{1000, RLIM_INFINITY}).get());
        item.set(5);
    }
    std::_Exit(0);
}

TEST_F(NvDisk, ThatTakesNothingToTheEndIsReportedOnStandardError)
{
    EXPECT_EXIT(lose_changes(path), ::testing::ExitedWithCode(0),
                ::testing::Eq(named() + too_large + "; its last changes are lost\n"));
}

/// A disk of 16 pages in a process of its own, for which one has to be root. Ends with 0 if all went as it should; what
/// did not is said on standard error.
void fill_small_disk(const fs::path& folder, const std::string& path)
{
    if (unshare(CLONE_NEWNS) != 0 || mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0 ||
        mount("none", folder.c_str(), "tmpfs", 0, "size=64k") != 0)
        std::_Exit(77);
    const auto expect = [](const std::string& is, const std::string& wanted) {
        if (is != wanted)
            std::fprintf(stderr, "\"%s\" instead of \"%s\"\n", is.c_str(), wanted.c_str());
    };
    const std::string named = "non-volatile store \"" + path + "\"";
    const std::string full = " cannot be written: No space left on device";
    const std::string filler = (folder / "filler").string();
    const auto fill = [&] { std::ofstream(filler) << std::string(64 * 1024, 'x'); };

    fill();
    expect(open_complaint(path), named + " cannot be opened: No space left on device");
    fs::remove(filler);
    {
        Store store(path, never);
        Int item(store, "item", 0);
        std::deque<Int> many;
        item.set(1);
        store.flush();
        fill();
        item.set(2);
        expect(complaint([&] { store.flush(); }), ""); // it needs no more room than before
        const auto set_all = [&] {
            for (Int& one : many)
                one.set(one.get() + 1);
        };
        for (int i = 0; i < 150; ++i)
            many.emplace_back(store, "one of many " + std::to_string(i), 0);
        set_all();
        expect(complaint([&] { store.flush(); }), named + full);
        expect(store.take_problem(), named + full);
        fs::remove(filler);
        store.flush();
        set_all();
        item.set(3);
    }
    {
        fill();
        Store store(path, never);
        Int item(store, "item", 0);
        expect(std::to_string(item.get()), "3");
        expect(std::to_string(Int(store, "one of many 149", 0).get()), "2");
        item.set(4);
        expect(complaint([&] { store.flush(); }), named + full);
        fs::remove(filler);
    }
    Store store(path);
    expect(std::to_string(Int(store, "item", 0).get()), "4");
    expect(store.put_aside(), "");
    std::_Exit(0);
}

TEST_F(NvDisk, ThatIsFullIsSurvived)
{
    if (geteuid() != 0)
        GTEST_SKIP() << "only root can mount a small disk; a limit on the file's size stands in for it elsewhere";
    bool is_mounted = true;
    EXPECT_EXIT(
        fill_small_disk(folder, path),
        [&](int status) {
            is_mounted = WEXITSTATUS(status) != 77;
            return WIFEXITED(status) && (WEXITSTATUS(status) == 0 || !is_mounted);
        },
        ::testing::Eq(""));
    if (!is_mounted)
        GTEST_SKIP() << "nothing can be mounted here; a limit on the file's size stands in for it elsewhere";
}

} // namespace
