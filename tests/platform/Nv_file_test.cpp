// The non-volatile store's file: what is wrong with it, and what becomes of it then.

#include "tests/platform/Nv_folder.h"

#include <cstring>
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

    /// The file is put aside as number n and left as it is; an empty one takes its place, and works.
    void expect_put_aside(int n = 1) const
    {
        const std::string damaged = content(path);
        const std::string aside = path + ".damaged-" + std::to_string(n);
        {
            Store store(path);
            EXPECT_EQ(store.put_aside(), aside);
            Int item(store, "item 0", 77);
            EXPECT_EQ(item.get(), 77);
            item.set(78);
        }
        EXPECT_TRUE(content(aside) == damaged);
        Store store(path);
        EXPECT_EQ(store.put_aside(), "");
        EXPECT_EQ(Int(store, "item 0", 77).get(), 78);
    }
};

/// Runs in a process of its own, as a user without rights if there is such a one, and tells what it returns.
std::string as_nobody(const std::function<std::string()>& operation)
{
    int ends[2];
    if (pipe(ends) != 0)
        return "no pipe";
    const pid_t child = fork();
    if (child == 0) {
        std::string text = geteuid() == 0 && setuid(65534) != 0 ? "still root" : operation();
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

TEST_F(NvFile, IsOpenInOneProcess)
{
    int go[2];
    ASSERT_EQ(pipe(go), 0);
    std::string answer;
    // The child is made first: this process has no other threads yet.
    const pid_t child = fork();
    if (child == 0) {
        char byte;
        const bool asked = read(go[0], &byte, 1) == 1;
        _exit(asked && open_complaint(path) == named() + " is open elsewhere" ? 0 : 1);
    }
    {
        Store store(path);
        ASSERT_EQ(write(go[1], "x", 1), 1);
        int status = -1;
        waitpid(child, &status, 0);
        EXPECT_EQ(status, 0);
    }
    EXPECT_EQ(open_complaint(path), "") << "it is free again";
    close(go[0]);
    close(go[1]);
}

TEST_F(NvFile, OfANewerVersionIsRefusedAndLeftAlone)
{
    make();
    patch(60, std::string("\0\0\0\2", 4)); // the user version
    const std::string before = content(path);
    EXPECT_EQ(open_complaint(path), named() + " was written by a newer version: its format is 2, known is 1");
    EXPECT_TRUE(content(path) == before);
}

TEST_F(NvFile, OfAnotherProgramIsRefusedAndLeftAlone)
{
    make();
    for (const char* application : {"\0\0\0\0", "GPKG"}) {
        patch(68, std::string(application, 4)); // the application id
        const std::string before = content(path);
        EXPECT_EQ(open_complaint(path), named() + " is a database of another program");
        EXPECT_TRUE(content(path) == before);
    }
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
    patch(2 * 4096 + 100, std::string(1000, '\x5A'));
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

// A row is the name, the code, and the value with its highest byte first: 1000 is 03 E8.

TEST_F(NvFile, WithAValueOutOfRangeIsRefusedByThatItemAlone)
{
    make(2);
    patch(std::string("item 0\x09\x03\xE8"), std::string("item 0\x04\x03\xE8"));
    {
        Store store(path);
        EXPECT_EQ(complaint([&] { Byte item(store, "item 0", 7); }),
                  named() + ": the item \"item 0\" has a stored value that its type cannot have");
        EXPECT_EQ(complaint([&] { Int item(store, "item 0", 7); }),
                  named() + ": the item \"item 0\" is stored as uint8, not as int32");
        EXPECT_EQ(Int(store, "item 1", 7).get(), 1001);
    }
    EXPECT_NE(content(path).find("item 0\x04\x03\xE8"), std::string::npos) << "not lost";
}

TEST_F(NvFile, WithAFractionForAnIntegerIsRefusedByThatItem)
{
    {
        Store store(path);
        Double(store, "item 0", 0).set(1.5);
    }
    patch("item 0\x0B\x3F\xF8", "item 0\x09\x3F\xF8");
    Store store(path);
    EXPECT_EQ(complaint([&] { Int item(store, "item 0", 7); }),
              named() + ": the item \"item 0\" has a stored value that its type cannot have");
}

TEST_F(NvFile, MayHaveAnIntegerForAFloatingNumber)
{
    make();
    patch("item 0\x09\x03\xE8", "item 0\x0B\x03\xE8");
    Store store(path);
    EXPECT_EQ(Double(store, "item 0", 7).get(), 1000) << "as a service tool writes it";
}

TEST_F(NvFile, WithAnUnknownTypeIsRefusedByThatItem)
{
    make();
    patch("item 0\x09\x03\xE8", "item 0\x63\x03\xE8");
    Store store(path);
    EXPECT_EQ(complaint([&] { Int item(store, "item 0", 7); }),
              named() + ": the item \"item 0\" is stored as an unknown type, not as int32");
}

} // namespace
