// A disk that takes nothing more while the non-volatile store is open.

#include "tests/platform/Nv_folder.h"

#include <cerrno>
#include <csignal>
#include <sched.h>
#include <sys/mount.h>
#include <sys/resource.h>
#include <thread>

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

TEST_F(NvDisk, IsTriedAgainWithoutBeingAsked)
{
    Store store(path, 1ms);
    const auto log_size = [&] { return fs::file_size(path + "-wal"); };
    Int item(store, "item", 0);
    std::string problem;
    {
        const Limit limit(1000);
        item.set(5);
        for (int i = 0; i < 1000 && problem.empty(); ++i) {
            std::this_thread::sleep_for(5ms);
            problem = store.take_problem();
        }
    }
    EXPECT_EQ(problem, named() + too_large);
    const auto before = log_size();
    for (int i = 0; i < 2000 && log_size() <= before; ++i)
        std::this_thread::sleep_for(5ms);
    EXPECT_GT(log_size(), before);
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
        item.set(1);
        store.flush();
        fill();
        item.set(2);
        expect(complaint([&] { store.flush(); }), named + full);
        expect(store.take_problem(), named + full);
        fs::remove(filler);
        store.flush();
        item.set(3);
        fill();
        expect(complaint([&] { store.flush(); }), named + full);
        fs::remove(filler);
    }
    {
        fill();
        Store store(path, never);
        Int item(store, "item", 0);
        expect(std::to_string(item.get()), "3");
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
