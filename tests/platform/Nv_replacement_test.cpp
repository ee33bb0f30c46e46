// A process is killed at every step of putting a damaged file of the non-volatile store aside.

#include "tests/platform/Nv_folder.h"

#include <cerrno>
#include <fcntl.h>
#include <sqlite3.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

/// How many names a process may still give, change or remove before it ends; below zero: any number.
int steps_left = -1;

/// What else happens before each of these steps; it is told the name that comes into being.
std::function<void(const std::string& name)> meanwhile;

bool has_links = true; ///< the file system gives a file two names

void take_step(const char* name)
{
    if (meanwhile)
        meanwhile(name);
    if (steps_left == 0)
        _exit(99);
    if (steps_left > 0)
        --steps_left;
}

} // namespace

// These take the C library's place in this program, for its shared libraries as well.
extern "C" __attribute__((visibility("default"))) int rename(const char* from, const char* to) noexcept
{
    take_step(to);
    return renameat(AT_FDCWD, from, AT_FDCWD, to);
}
extern "C" __attribute__((visibility("default"))) int remove(const char* path) noexcept
{
    take_step("");
    return unlinkat(AT_FDCWD, path, 0) == 0 ? 0 : unlinkat(AT_FDCWD, path, AT_REMOVEDIR);
}
extern "C" __attribute__((visibility("default"))) int link(const char* from, const char* to) noexcept
{
    take_step(to);
    if (has_links)
        return linkat(AT_FDCWD, from, AT_FDCWD, to, 0);
    errno = EPERM;
    return -1;
}

using namespace nv;

namespace {

/// With links, and without.
class NvReplacement : public Folder, public ::testing::WithParamInterface<bool>
{
  protected:
    NvReplacement() { has_links = GetParam(); }
    ~NvReplacement() override
    {
        meanwhile = nullptr;
        has_links = true;
    }

    /// Opens the store in a process that ends after so many steps. Returns whether it came through.
    bool open_for(int steps) const
    {
        const pid_t child = fork();
        if (child == 0) {
            steps_left = steps;
            _exit(open_complaint(path).empty() ? 0 : 1);
        }
        int status = 0;
        waitpid(child, &status, 0);
        EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) != 1) << "with " << steps << " steps";
        return WEXITSTATUS(status) == 0;
    }

    /// What a file has that lost the item "damaged", and not "sound", which is 5.
    std::string damaged_content() const
    {
        {
            Store store(path);
            Int(store, "sound", 0).set(5);
            Int(store, "damaged", 0).set(1000);
        }
        std::string damaged = content(path);
        return damaged.replace(damaged.find("damaged\x09\x03\xE8") + 8, 1, "\x04");
    }

    void put(const std::string& file, const std::string& bytes) const
    {
        std::ofstream(file, std::ios::binary) << bytes;
    }
    void clear() const
    {
        for (const auto& entry : fs::directory_iterator(folder))
            fs::remove(entry);
    }
};

TEST_P(NvReplacement, ThatIsInterruptedIsDoneByTheNextStart)
{
    const std::string damaged = damaged_content();
    int steps = 0;
    for (bool is_through = false; !is_through; ++steps) {
        SCOPED_TRACE(steps);
        ASSERT_LT(steps, 50);
        clear();
        put(path, damaged);
        put(path + "-wal", "no log");
        is_through = open_for(steps);
        if (!is_through) {
            // A second one has no more luck.
            open_for(0);
            Store store(path);
            const bool is_new = store.put_aside().empty(); // the last step was to tidy up
            if (!is_new) {
                EXPECT_EQ(store.put_aside(), path + ".damaged-1");
            }
            EXPECT_EQ(Int(store, "damaged", 7).get(), 7);
            EXPECT_EQ(store.lost(), is_new ? std::vector<std::string>{} : std::vector<std::string>{"damaged"});
            EXPECT_EQ(Int(store, "sound", 7).get(), 5);
        }
        EXPECT_TRUE(content(path + ".damaged-1") == damaged);
        EXPECT_EQ(content(path + ".damaged-1-wal"), "no log");
        for (const std::string& file : files())
            EXPECT_EQ(file.find("-new"), std::string::npos) << file;
    }
    EXPECT_GE(steps, 4);
}

TEST_P(NvReplacement, ThatIsInterruptedNeverLeavesAnOldFileWithoutItsLog)
{
    // Format 1: the file itself is sound, and older than its log, which has what is damaged.
    std::string old;
    std::string log;
    {
        sqlite3* database = nullptr;
        ASSERT_EQ(sqlite3_open(path.c_str(), &database), SQLITE_OK);
        const auto run = [&](const char* sql) {
            ASSERT_EQ(sqlite3_exec(database, sql, nullptr, nullptr, nullptr), SQLITE_OK);
        };
        run("PRAGMA journal_mode=WAL;"
            "CREATE TABLE items(name TEXT NOT NULL PRIMARY KEY, type INTEGER NOT NULL, "
            "value ANY) STRICT, WITHOUT ROWID;"
            "PRAGMA application_id=1853256564; PRAGMA user_version=1;"
            "INSERT INTO items VALUES('item', 9, 1); PRAGMA wal_checkpoint;"
            "INSERT OR REPLACE INTO items VALUES('item', 9, 49), ('what', 99, 0);");
        old = content(path);
        log = content(path + "-wal");
        sqlite3_close(database);
    }
    for (int steps = 0;; ++steps) {
        SCOPED_TRACE(steps);
        ASSERT_LT(steps, 50);
        clear();
        put(path, old);
        put(path + "-wal", log);
        if (open_for(steps))
            break;
        Store store(path);
        EXPECT_EQ(Int(store, "item", 7).get(), 7) << "neither the older value nor an uncertain one";
        EXPECT_TRUE(content(path + ".damaged-1") == old);
        EXPECT_TRUE(content(path + ".damaged-1-wal") == log);
    }
}

TEST_P(NvReplacement, LeavesThePathEmptyForAMomentAtMostWithoutLinks)
{
    put(path, damaged_content());
    int seen = 0;
    int empty = 0;
    meanwhile = [&](const std::string&) {
        ++seen;
        empty += fs::exists(path) ? 0 : 1;
    };
    EXPECT_EQ(open_complaint(path), "");
    EXPECT_GE(seen, 2);
    EXPECT_EQ(empty, has_links ? 0 : 1);
}

TEST_P(NvReplacement, KeepsWhatIsCarriedOverFromWhoeverFindsThePathEmpty)
{
    const std::string damaged = damaged_content();
    for (int steps = 0;; ++steps) {
        SCOPED_TRACE(steps);
        ASSERT_LT(steps, 50);
        clear();
        put(path, damaged);
        if (open_for(steps))
            break;
        if (!fs::exists(path))
            put(path, ""); // an older program, or a tool
        Store store(path);
        EXPECT_EQ(Int(store, "sound", 7).get(), 5);
        EXPECT_TRUE(content(path + ".damaged-1") == damaged);
    }
}

TEST_P(NvReplacement, LeavesADatabaseAloneThatSomebodyPutThereMeanwhile)
{
    const std::string damaged = damaged_content();
    fs::remove(path);
    {
        Store store(path);
        Int(store, "sound", 0).set(6);
    }
    const std::string restored = content(path);
    for (int steps = 0;; ++steps) {
        SCOPED_TRACE(steps);
        ASSERT_LT(steps, 50);
        clear();
        put(path, damaged);
        if (open_for(steps))
            break;
        fs::remove(path);
        put(path, restored);
        Store store(path);
        EXPECT_EQ(store.put_aside(), "");
        EXPECT_EQ(Int(store, "sound", 7).get(), 6);
    }
}

TEST_P(NvReplacement, GoesOnWithWhatAnotherProcessMadeOfIt)
{
    put(path, damaged_content());
    bool has_met = false;
    meanwhile = [&](const std::string& name) {
        if (has_links || name != path)
            return;
        meanwhile = nullptr; // for the other one, too
        has_met = true;
        const pid_t other = fork();
        if (other == 0) {
            {
                Store store(path);
                Int(store, "sound", 7).set(6);
            }
            _exit(0);
        }
        waitpid(other, nullptr, 0);
    };
    {
        Store store(path);
        EXPECT_EQ(store.put_aside(), path + ".damaged-1");
        Int sound(store, "sound", 7);
        EXPECT_EQ(sound.get(), has_links ? 5 : 6);
        sound.set(8);
    }
    EXPECT_EQ(has_met, !has_links);
    Store store(path);
    EXPECT_EQ(store.put_aside(), "") << "the seal is that of what is in the file";
    EXPECT_EQ(Int(store, "sound", 7).get(), 8);
}

TEST_P(NvReplacement, IsNotSeenInAFileThatSomebodyPutThere)
{
    put(path + ".damaged-1", "damaged");
    put(path + ".damaged-2-wal", "left over");
    Store store(path);
    EXPECT_EQ(store.put_aside(), "");
    EXPECT_EQ(content(path + ".damaged-1"), "damaged");
    EXPECT_EQ(content(path + ".damaged-2-wal"), "left over");
}

INSTANTIATE_TEST_SUITE_P(Disk, NvReplacement, ::testing::Bool(),
                         [](const auto& of) { return of.param ? "WithLinks" : "WithoutLinks"; });

} // namespace
