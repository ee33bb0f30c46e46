// The non-volatile store's file: what is wrong with it, and what becomes of it then.

#include "tests/platform/Nv_folder.h"
#include "tests/platform/Nv_vfs.h"

#include <atomic>
#include <cmath>
#include <cstddef>
#include <fcntl.h>
#include <future>
#include <linux/filter.h>
#include <linux/seccomp.h>
#include <map>
#include <optional>
#include <sys/inotify.h>
#include <sys/prctl.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace nv;

namespace {

using Names = std::vector<std::string>;

class NvFile : public Folder
{
  protected:
    /// A sound file with so many items, closed.
    void make(int items = 1) const
    {
        Store store(path);
        for (int i = 0; i < items; ++i)
            Int(store, "item " + std::to_string(i), 0).set(1000 + i);
    }

    /// Replaces bytes of the file at an offset.
    void patch(std::size_t offset, const std::string& bytes) const
    {
        std::string all = content(path);
        all.replace(offset, bytes.size(), bytes);
        write_file(all);
    }

    /// Replaces a text that the file has once.
    void patch(const std::string& text, const std::string& by) const
    {
        const std::size_t offset = content(path).find(text);
        ASSERT_NE(offset, std::string::npos);
        patch(offset, by);
    }

    /// The new name of damaged file number n.
    std::string aside(int n) const { return path + ".damaged-" + std::to_string(n); }

    /// The file is put aside as number n and left as it is; an empty one takes its place, and works.
    void expect_put_aside(int n = 1) const
    {
        const std::string damaged = content(path);
        {
            Store store(path);
            EXPECT_EQ(store.put_aside(), aside(n));
            Int item(store, "item 0", 77);
            EXPECT_EQ(item.get(), 77);
            item.set(78);
        }
        EXPECT_TRUE(content(aside(n)) == damaged);
        Store store(path);
        EXPECT_EQ(store.put_aside(), "");
        EXPECT_EQ(Int(store, "item 0", 77).get(), 78);
    }
};

/// Does what another program may do to a file, and calls `meanwhile` before it closes it. Returns the last value.
std::string execute(
    const std::string& path, const std::string& sql, const std::function<void()>& meanwhile = [] {})
{
    std::string last;
    sqlite3* database = nullptr;
    EXPECT_EQ(sqlite3_open(path.c_str(), &database), SQLITE_OK);
    const auto keep = [](void* to, int, char** values, char**) {
        *static_cast<std::string*>(to) = values[0] ? values[0] : "";
        return 0;
    };
    EXPECT_EQ(sqlite3_exec(database, sql.c_str(), keep, &last, nullptr), SQLITE_OK) << sqlite3_errmsg(database);
    meanwhile();
    sqlite3_close(database);
    return last;
}

/// Runs in a process of its own, and tells what it returns.
std::string in_another_process(const std::function<std::string()>& operation)
{
    int ends[2];
    if (pipe(ends) != 0)
        return "no pipe";
    const pid_t child = fork();
    if (child == 0) {
        const std::string text = operation();
        const bool told = write(ends[1], text.data(), text.size()) == static_cast<ssize_t>(text.size());
        _exit(told ? 0 : 1);
    }
    close(ends[1]);
    char text[1000];
    std::string answer;
    for (ssize_t n; (n = read(ends[0], text, sizeof text)) > 0;)
        answer.append(text, static_cast<std::size_t>(n));
    close(ends[0]);
    int status = 0;
    waitpid(child, &status, 0);
    return status == 0 ? answer : "the process ended with " + std::to_string(status);
}

/// As a user without rights if there is such a one.
std::string as_nobody(const std::function<std::string()>& operation)
{
    return in_another_process([&] { return geteuid() == 0 && setuid(65534) != 0 ? "still root" : operation(); });
}

TEST_F(NvFile, IsMadeIfThereIsNone)
{
    EXPECT_EQ(open_complaint(path), "");
    EXPECT_EQ(files(), Names{"settings.db"}) << "nothing beside it once it is closed";
}

TEST_F(NvFile, IsTwoFilesWhileItIsOpen)
{
    Store store(path);
    EXPECT_EQ(files(), (Names{"settings.db", "settings.db-wal"}));
}

TEST_F(NvFile, IsMadeOfAnEmptyOne)
{
    write_file("");
    Store store(path);
    EXPECT_EQ(store.put_aside(), "");
    EXPECT_EQ(files(), (Names{"settings.db", "settings.db-wal"}));
}

TEST_F(NvFile, IsFoundAgainFromAnotherFolder)
{
    const fs::path before = fs::current_path();
    fs::current_path(folder);
    {
        Store store("settings.db");
        EXPECT_EQ(store.path(), path);
        fs::current_path(before);
        Int(store, "item 0", 0).set(3);
    }
    Store store(path);
    EXPECT_EQ(Int(store, "item 0", 0).get(), 3);
}

TEST_F(NvFile, IsNoAddressOfTheWeb)
{
    const fs::path before = fs::current_path();
    fs::current_path(folder);
    {
        Store store("file:settings.db?mode=memory");
    }
    fs::current_path(before);
    EXPECT_EQ(files(), Names{"file:settings.db?mode=memory"});
}

TEST_F(NvFile, BehindALinkStaysThere)
{
    make();
    const std::string link = (folder / "link").string();
    fs::create_symlink(path, link);
    {
        Store store(link);
        EXPECT_EQ(store.path(), path);
        EXPECT_EQ(Int(store, "item 0", 0).get(), 1000);
    }
    EXPECT_TRUE(fs::is_symlink(link));
}

TEST_F(NvFile, NeedsAFolder)
{
    const std::string nowhere = (folder / "none" / "settings.db").string();
    EXPECT_EQ(open_complaint(nowhere),
              "non-volatile store \"" + nowhere + "\" cannot be opened: No such file or directory");
    EXPECT_EQ(open_complaint(""), "non-volatile store \"\": No such file or directory");
}

TEST_F(NvFile, TellsWhatTheSystemSays)
{
    try {
        Store store((folder / "none" / "settings.db").string());
        FAIL();
    } catch (const std::system_error& e) {
        EXPECT_EQ(e.code(), std::errc::no_such_file_or_directory);
    }
}

TEST_F(NvFile, CannotBeAFolder)
{
    const std::string text = open_complaint(folder.string());
    EXPECT_EQ(text.rfind("non-volatile store \"" + folder.string() + "\" cannot be opened: ", 0), 0U) << text;
}

TEST_F(NvFile, NeedsAFolderThatMayBeWritten)
{
    fs::permissions(folder, fs::perms(0555));
    EXPECT_EQ(as_nobody([&] { return open_complaint(path); }), named() + " cannot be opened: Permission denied");
    fs::permissions(folder, fs::perms(0755));
}

TEST_F(NvFile, NeedsAFolderThatMayBeWrittenAlsoIfItIsThere)
{
    make();
    fs::permissions(path, fs::perms(0666));
    fs::permissions(folder, fs::perms(0555));
    EXPECT_EQ(as_nobody([&] { return open_complaint(path); }), named() + " cannot be opened: Permission denied");
    fs::permissions(folder, fs::perms(0755));
}

TEST_F(NvFile, MustBeReadable)
{
    make();
    fs::permissions(path, fs::perms(0000));
    fs::permissions(folder, fs::perms(0777));
    EXPECT_EQ(as_nobody([&] { return open_complaint(path); }), named() + " cannot be opened: Permission denied");
}

TEST_F(NvFile, MustBeWritable)
{
    make();
    fs::permissions(path, fs::perms(0444));
    fs::permissions(folder, fs::perms(0777));
    EXPECT_EQ(as_nobody([&] { return open_complaint(path); }), named() + " cannot be written: Permission denied");
}

TEST_F(NvFile, IsOpenOnceInAProcess)
{
    Store store(path);
    EXPECT_EQ(open_complaint(path), named() + " is open elsewhere");
    Int item(store, "item 0", 0);
    item.set(5);
    store.flush();
}

TEST_F(NvFile, IsOpenOnceUnderWhateverName)
{
    make();
    fs::create_hard_link(path, path + "2");
    const Store store(path);
    EXPECT_EQ(open_complaint(path + "2"), "non-volatile store \"" + path + "2\" is open elsewhere");
}

/// From now on the system refuses locks to this process. Returns whether it could be asked to.
bool forbid_locks()
{
#ifdef SYS_fcntl64
    constexpr unsigned call = SYS_fcntl64;
#else
    constexpr unsigned call = SYS_fcntl;
#endif
    sock_filter steps[] = {
        BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, nr)),
        BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, call, 0, 3),
        BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, args[1])),
        BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, F_OFD_SETLK, 0, 1),
        BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ERRNO | ENOLCK),
        BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW),
    };
    const sock_fprog program{static_cast<unsigned short>(std::size(steps)), steps};
    return prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0 && prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &program) == 0;
}

TEST_F(NvFile, ThatCannotBeLockedIsNotSaidToBeOpenElsewhere)
{
    EXPECT_EQ(in_another_process([&] { return forbid_locks() ? open_complaint(path) : "locks cannot be forbidden"; }),
              named() + " cannot be locked: No locks available");
}

/// What another process says of the file once it is told to look; it is made before this one has other threads.
class Other_process
{
  public:
    explicit Other_process(const std::function<std::string()>& look)
    {
        if (pipe(go) != 0 || pipe(answer) != 0)
            throw std::runtime_error("no pipe");
        child = fork();
        if (child != 0)
            return;
        char byte;
        const std::string said = read(go[0], &byte, 1) == 1 ? look() : "";
        _exit(write(answer[1], said.data(), said.size()) == static_cast<ssize_t>(said.size()) ? 0 : 1);
    }
    ~Other_process()
    {
        for (const int end : {go[0], go[1], answer[0], answer[1]})
            close(end);
        waitpid(child, nullptr, 0);
    }
    Other_process(const Other_process&) = delete;
    Other_process& operator=(const Other_process&) = delete;

    std::string look() const
    {
        char said[1000];
        const ssize_t length = write(go[1], "x", 1) == 1 ? read(answer[0], said, sizeof said) : 0;
        return {said, static_cast<std::size_t>(std::max<ssize_t>(length, 0))};
    }

  private:
    int go[2];
    int answer[2];
    pid_t child;
};

TEST_F(NvFile, IsOpenInOneProcess)
{
    const Other_process other([&] { return open_complaint(path); });
    {
        const Store store(path);
        EXPECT_EQ(other.look(), named() + " is open elsewhere");
    }
    EXPECT_EQ(open_complaint(path), "") << "it is free again";
}

TEST_F(NvFile, StaysLockedWhenItIsCopied)
{
    const Other_process other([&] { return open_complaint(path); });
    const Store store(path);
    fs::copy_file(path, path + ".copy");
    EXPECT_EQ(other.look(), named() + " is open elsewhere");
}

TEST_F(NvFile, IsLockedForSqliteToo)
{
    const Other_process other([&] {
        sqlite3* database = nullptr;
        sqlite3_open(path.c_str(), &database);
        sqlite3_exec(database, "SELECT * FROM items", nullptr, nullptr, nullptr);
        return std::string(sqlite3_errmsg(database));
    });
    const Store store(path);
    fs::copy_file(path, path + ".copy");
    EXPECT_EQ(other.look(), "database is locked");
}

TEST_F(NvFile, IsWaitedForAMoment)
{
    std::optional<Store> before(std::in_place, path);
    const int events = inotify_init1(IN_CLOEXEC);
    inotify_add_watch(events, path.c_str(), IN_CLOSE_WRITE);
    auto next = std::async(std::launch::async, [&] { return open_complaint(path); });
    pollfd refused{events, POLLIN, 0};
    EXPECT_EQ(poll(&refused, 1, 5000), 1) << "it has tried once";
    close(events);
    before.reset();
    EXPECT_EQ(next.get(), "");
}

TEST_F(NvFile, OfANewerVersionIsRefusedAndLeftAlone)
{
    make();
    execute(path, "ALTER TABLE items ADD COLUMN unit TEXT; PRAGMA user_version=3");
    const std::string before = content(path);
    EXPECT_EQ(open_complaint(path), named() + " was written by a newer version: its format is 3, known is 2");
    EXPECT_TRUE(content(path) == before);
}

TEST_F(NvFile, WithADamagedHeadIsPutAsideAndLosesNothing)
{
    const std::size_t write_version = 18, user_version = 60, application_id = 68;
    make();
    int n = 0;
    for (const auto& [offset, bytes] : std::vector<std::pair<std::size_t, std::string>>{
             {write_version, "\3"},
             {user_version, std::string("\0\0\0\3", 4)},
             {user_version, std::string("\0\0\0\1", 4)},
             {user_version, "\xFF"},
             {application_id, std::string(4, '\0')},
             {application_id, "GPKG"},
         }) {
        SCOPED_TRACE(n);
        patch(offset, bytes);
        const std::string damaged = content(path);
        Store store(path);
        ASSERT_EQ(store.put_aside(), aside(++n));
        EXPECT_TRUE(content(aside(n)) == damaged);
        EXPECT_EQ(Int(store, "item 0", 77).get(), 1000);
        EXPECT_TRUE(store.lost().empty());
    }
}

TEST_F(NvFile, OfAnotherProgramIsPutAside)
{
    execute(path, "CREATE TABLE items(name TEXT); PRAGMA application_id=1");
    expect_put_aside();
}

TEST_F(NvFile, OfAnotherProgramThatCallsItselfNewerIsPutAside)
{
    execute(path, "CREATE TABLE items(name TEXT); PRAGMA application_id=1; PRAGMA user_version=9");
    expect_put_aside();
}

TEST_F(NvFile, ThatIsNoDatabaseIsPutAside)
{
    write_file("Dear Sir or Madam, " + std::string(5000, 'x'));
    expect_put_aside();
    EXPECT_EQ(files(), (Names{"settings.db", "settings.db.damaged-1"}));
}

TEST_F(NvFile, IsPutAsideUnderAFreeName)
{
    for (int n = 1; n < 4; ++n) {
        write_file("no database " + std::to_string(n) + std::string(5000, 'x'));
        expect_put_aside(n);
        fs::remove(path);
    }
}

TEST_F(NvFile, ThatIsPutAsideLeavesTheNewestThree)
{
    std::ofstream(aside(1) + "-wal") << "of the first";
    for (const char* far_too_high : {"4000000000", "9999999999"})
        std::ofstream(path + ".damaged-" + far_too_high) << "none of ours";
    for (int n = 2; n < 6; ++n) {
        write_file("no database " + std::to_string(n) + std::string(5000, 'x'));
        expect_put_aside(n);
    }
    EXPECT_EQ(files(),
              (Names{"settings.db", "settings.db.damaged-3", "settings.db.damaged-4", "settings.db.damaged-4000000000",
                     "settings.db.damaged-5", "settings.db.damaged-9999999999"}));
}

TEST_F(NvFile, ThatWasCutOffIsPutAside)
{
    make(1000);
    const std::string whole = content(path);
    int n = 0;
    for (const std::size_t part : {2U, 3U, 7U}) {
        write_file(whole.substr(0, whole.size() / part));
        expect_put_aside(++n);
    }
}

TEST_F(NvFile, WithOverwrittenPagesIsPutAside)
{
    make(1000);
    patch(3 * 4096 + 100, std::string(1000, '\x5A'));
    expect_put_aside();
}

TEST_F(NvFile, WithoutItsHeadIsPutAside)
{
    make(1000);
    patch(0, std::string(100, '\0'));
    expect_put_aside();
}

TEST_F(NvFile, WithAnotherTableIsPutAside)
{
    make();
    patch("CREATE TABLE items", "CREATE TABLE stems");
    expect_put_aside();
}

TEST_F(NvFile, WithAnotherColumnIsPutAside)
{
    make();
    patch("value ANY", "other ANY");
    expect_put_aside();
}

TEST_F(NvFile, IsPutAsideWithItsLog)
{
    make(1000);
    std::string log;
    {
        Store store(path, never);
        Int(store, "item 0", 0).set(5);
        store.flush();
        log = content(path + "-wal");
        fs::copy_file(path, path + "2");
        fs::copy_file(path + "-wal", path + "2-wal");
    }
    path += "2";
    patch(3 * 4096, std::string(2 * 4096, 'x'));
    const std::string damaged = content(path);
    Store store(path);
    EXPECT_EQ(store.put_aside(), path + ".damaged-1");
    EXPECT_TRUE(content(path + ".damaged-1") == damaged);
    EXPECT_TRUE(content(path + ".damaged-1-wal") == log);
    EXPECT_EQ(Int(store, "item 0", 0).get(), 0);
}

TEST_F(NvFile, ThatCannotBePutAsideIsRefused)
{
    write_file(std::string(5000, 'x'));
    fs::permissions(path, fs::perms(0666));
    fs::permissions(folder, fs::perms(0555));
    EXPECT_EQ(as_nobody([&] { return open_complaint(path); }),
              named() + " is damaged and cannot be put aside: Permission denied");
    fs::permissions(folder, fs::perms(0755));
    EXPECT_EQ(content(path), std::string(5000, 'x'));
}

TEST_F(NvFile, OnABadPartOfTheDiskIsPutAside)
{
    make();
    {
        const Vfs vfs([this](const Vfs::Event& event) {
            const bool is_bad = event.what == Vfs::Event::read && event.path == path && !fs::exists(aside(1));
            return is_bad ? SQLITE_IOERR_READ : SQLITE_OK;
        });
        Store store(path);
        EXPECT_EQ(store.put_aside(), aside(1));
    }
    EXPECT_EQ(open_complaint(path), "");
}

TEST_F(NvFile, ThatTurnsOutBadWhileItIsMadeIsClosed)
{
    const Vfs vfs([this](const Vfs::Event& event) {
        const bool is_bad = event.what == Vfs::Event::read && event.path == path + "-wal" && !fs::exists(aside(1));
        return is_bad ? SQLITE_IOERR_READ : SQLITE_OK;
    });
    const Store store(path);
    EXPECT_EQ(store.put_aside(), aside(1));
    for (const auto& entry : fs::directory_iterator("/proc/self/fd")) {
        std::error_code closed_meanwhile;
        EXPECT_EQ(fs::read_symlink(entry, closed_meanwhile).string().find(aside(1)), std::string::npos) << entry;
    }
}

TEST_F(NvFile, OnADiskThatCannotBeReadAtAllIsRefused)
{
    make();
    const Vfs vfs([this](const Vfs::Event& event) {
        return event.what == Vfs::Event::read && event.path == path ? SQLITE_IOERR_READ : SQLITE_OK;
    });
    EXPECT_EQ(open_complaint(path), named() + " cannot be made: disk I/O error");
}

TEST_F(NvFile, ThatNothingCanReplaceIsRefused)
{
    write_file(std::string(5000, 'x'));
    const Vfs vfs([this](const Vfs::Event& event) {
        return event.what == Vfs::Event::write && event.path != path ? SQLITE_NOMEM : SQLITE_OK;
    });
    EXPECT_EQ(open_complaint(path), named() + " is damaged and cannot be put aside: non-volatile store \"" + aside(1) +
                                        "-new\" cannot be opened: out of memory");
    EXPECT_EQ(content(path), std::string(5000, 'x'));
}

TEST_F(NvFile, IsNotPutAsideForWhatSqliteSaysWhileItIsOpen)
{
    make();
    std::atomic<int> answer{SQLITE_OK};
    const Vfs vfs([&](const Vfs::Event& event) { return event.what == Vfs::Event::write ? answer.load() : SQLITE_OK; });
    Store store(path, never);
    Int item(store, "item 0", 0);
    item.set(5);
    for (const auto& [error, text] : std::map<int, std::string>{{SQLITE_CORRUPT, "database disk image is malformed"},
                                                                {SQLITE_NOMEM, "out of memory"},
                                                                {SQLITE_IOERR_WRITE, "disk I/O error"}}) {
        answer = error;
        EXPECT_EQ(complaint([&] { store.flush(); }), named() + " cannot be written: " + text);
    }
    answer = SQLITE_OK;
    store.flush();
    EXPECT_EQ(store.put_aside(), "");
}

TEST_F(NvFile, InAFolderThatIsGoneIsRefused)
{
    EXPECT_EQ(in_another_process([&] {
                  fs::current_path(folder);
                  fs::remove(folder);
                  return open_complaint("settings.db");
              }),
              "non-volatile store \"settings.db\": No such file or directory");
}

TEST_F(NvFile, ThatIsDeletedWhileItIsOpenIsReported)
{
    const std::string gone = named() + " was deleted or replaced while it was open";
    Store store(path, never);
    Int item(store, "item 0", 0);
    item.set(5);
    store.flush();
    fs::rename(path, path + "2");
    EXPECT_EQ(complaint([&] { store.flush(); }), gone) << "also if there is nothing to write";
    item.set(6);
    EXPECT_EQ(complaint([&] { store.flush(); }), gone);
    EXPECT_EQ(store.take_problem(), gone);
    fs::copy_file(path + "2", path);
    EXPECT_EQ(complaint([&] { store.flush(); }), gone) << "another one";
    fs::rename(path + "2", path);
    store.flush();
    EXPECT_EQ(store.take_problem(), "");
}

TEST_F(NvFile, ThatTookTheOthersPlaceKeepsItsLog)
{
    {
        Store store(path, never);
        fs::remove(path);
        fs::remove(path + "-wal");
        write_file("another one");
        std::ofstream(path + "-wal") << "and its log";
    }
    EXPECT_EQ(content(path), "another one");
    EXPECT_EQ(content(path + "-wal"), "and its log");
}

// Files of format 1 have no checksums. A row is the name, the code, and the value with its highest byte first: 1000 is
// 03 E8.

constexpr const char* format_1 = "PRAGMA journal_mode=WAL;"
                                 "CREATE TABLE items(name TEXT NOT NULL PRIMARY KEY, type INTEGER NOT NULL, "
                                 "value ANY) STRICT, WITHOUT ROWID;"
                                 "PRAGMA application_id=1853256564; PRAGMA user_version=1;"
                                 "INSERT INTO items VALUES('double', 11, 1.5), ('none', 11, NULL), ('int', 9, -7),"
                                 "('large', 15, -1), ('by hand', 11, 1000);";

void expect_values_of_format_1(Store& store)
{
    EXPECT_EQ(Double(store, "double").get(), 1.5);
    EXPECT_TRUE(std::isnan(Double(store, "none").get()));
    EXPECT_EQ(Int(store, "int").get(), -7);
    EXPECT_EQ(Unsigned_long(store, "large").get(), ~0ULL);
    EXPECT_EQ(Double(store, "by hand").get(), 1000) << "an integer, as a service tool writes it";
}

TEST_F(NvFile, OfFormat1GetsItsChecksums)
{
    execute(path, format_1);
    for (int i = 0; i < 2; ++i) {
        Store store(path);
        EXPECT_EQ(store.put_aside(), "");
        expect_values_of_format_1(store);
    }
    EXPECT_EQ(execute(path, "PRAGMA user_version"), "2");
    EXPECT_EQ(execute(path, "SELECT count(checksum) FROM items"), "5");
}

TEST_F(NvFile, OfFormat1IsReadWithItsLog)
{
    execute(path, format_1, [&] {
        for (const char* end : {"", "-wal"})
            fs::copy_file(path + end, path + "2" + end);
    });
    ASSERT_LT(fs::file_size(path + "2"), 2 * 4096U) << "all is in the log";
    Store store(path + "2");
    expect_values_of_format_1(store);
}

TEST_F(NvFile, OfFormat1IsReadFromAFullDiskAndWrittenLater)
{
    execute(path, format_1);
    std::atomic<bool> is_full{true};
    const Vfs vfs(
        [&](const Vfs::Event& event) { return is_full && event.what == Vfs::Event::write ? SQLITE_FULL : SQLITE_OK; });
    {
        Store store(path, never);
        expect_values_of_format_1(store);
        Int item(store, "int");
        item.set(8);
        EXPECT_EQ(complaint([&] { store.flush(); }), named() + " cannot be written: No space left on device");
        is_full = false;
        store.flush();
        item.set(-7);
    }
    Store store(path);
    EXPECT_EQ(store.put_aside(), "");
    expect_values_of_format_1(store);
}

TEST_F(NvFile, OfFormat1WithWhatIsNoValueIsPutAside)
{
    const std::string sound = std::string(format_1) + "INSERT INTO items VALUES(";
    int n = 0;
    for (const char* row : {"'item 0', 99, 1000", "'item 0', 4, 1000", "'item 0', 9, 1.5", "'item 0', 9, NULL",
                            "'item 0', 10, 1e300", "'item 0', 11, 'text'", "'item 0', 2, 2"}) {
        SCOPED_TRACE(row);
        fs::remove(path);
        execute(path, sound + row + ")");
        Store store(path);
        EXPECT_EQ(store.put_aside(), aside(++n));
        EXPECT_EQ(store.lost(), (Names{"by hand", "double", "int", "item 0", "large", "none"}))
            << "no value of it is certain";
        EXPECT_EQ(Int(store, "item 0", 7).get(), 7);
    }
}

TEST_F(NvFile, OfFormat1WithADamagedVersionIsPutAside)
{
    execute(path, std::string(format_1) + "PRAGMA user_version=9");
    EXPECT_EQ(open_complaint(path), "");
    EXPECT_TRUE(fs::exists(aside(1)));
}

TEST_F(NvFile, ThatAToolHasTakenOutOfItsLogModeIsWrittenAsEver)
{
    make();
    EXPECT_EQ(execute(path, "PRAGMA journal_mode=DELETE"), "delete");
    {
        Store store(path);
        EXPECT_EQ(store.put_aside(), "");
        Int(store, "item 0", 0).set(5);
    }
    EXPECT_EQ(execute(path, "PRAGMA journal_mode"), "wal");
}

} // namespace
