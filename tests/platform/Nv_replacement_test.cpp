// A process is killed at every step of putting a damaged file of the non-volatile store aside.

#include "tests/platform/Nv_folder.h"

#include <fcntl.h>
#include <sqlite3.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

/// How many names a process may still change or remove before it ends; below zero: any number.
int steps_left = -1;

void take_step()
{
    if (steps_left == 0)
        _exit(99);
    if (steps_left > 0)
        --steps_left;
}

} // namespace

// These take the C library's place in this program, for its shared libraries as well.
extern "C" __attribute__((visibility("default"))) int rename(const char* from, const char* to) noexcept
{
    take_step();
    return renameat(AT_FDCWD, from, AT_FDCWD, to);
}
extern "C" __attribute__((visibility("default"))) int remove(const char* path) noexcept
{
    take_step();
    return unlinkat(AT_FDCWD, path, 0) == 0 ? 0 : unlinkat(AT_FDCWD, path, AT_REMOVEDIR);
}

using namespace nv;

namespace {

class NvReplacement : public Folder
{
  protected:
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

TEST_F(NvReplacement, ThatIsInterruptedIsDoneByTheNextStart)
{
    {
        Store store(path);
        Int(store, "sound", 0).set(5);
        Int(store, "damaged", 0).set(1000);
    }
    std::string damaged = content(path);
    damaged.replace(damaged.find("damaged\x09\x03\xE8") + 8, 1, "\x04");
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

TEST_F(NvReplacement, ThatIsInterruptedNeverLeavesAnOldFileWithoutItsLog)
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

TEST_F(NvReplacement, IsNotSeenInAFileThatSomebodyPutThere)
{
    put(path + ".damaged-1", "damaged");
    put(path + ".damaged-2-wal", "left over");
    Store store(path);
    EXPECT_EQ(store.put_aside(), "");
    EXPECT_EQ(content(path + ".damaged-1"), "damaged");
    EXPECT_EQ(content(path + ".damaged-2-wal"), "left over");
}

} // namespace
