// Bytes of the non-volatile store's files change: each value is what was flushed, or is named among the lost ones.

#include "tests/platform/Nv_folder.h"
#include "tests/platform/Nv_vfs.h"

#include <deque>
#include <random>
#include <set>

using namespace nv;

namespace {

/// Items of several types, with values that are not their defaults.
struct Items
{
    static constexpr int of_each = 60;

    explicit Items(Store& store)
    {
        for (int i = 0; i < of_each; ++i) {
            doubles.emplace_back(store, "double " + std::to_string(i), -1);
            ints.emplace_back(store, "int " + std::to_string(i), -1);
            bytes.emplace_back(store, "byte " + std::to_string(i), 255);
        }
    }
    void set(int n)
    {
        for (int i = 0; i < of_each; ++i) {
            doubles[index(i)].set(double_value(n, i));
            ints[index(i)].set(int_value(n, i));
            bytes[index(i)].set(byte_value(n, i));
        }
    }
    /// Each has the value of set(n), or is reported.
    void expect(int n, const std::set<std::string>& lost) const
    {
        for (int i = 0; i < of_each; ++i) {
            expect(doubles[index(i)], double_value(n, i), lost);
            expect(ints[index(i)], int_value(n, i), lost);
            expect(bytes[index(i)], byte_value(n, i), lost);
        }
    }

  private:
    static std::size_t index(int i) { return static_cast<std::size_t>(i); }
    static double double_value(int n, int i) { return 0.1 * i + n; }
    static int int_value(int n, int i) { return 1000 * i + n; }
    static unsigned char byte_value(int n, int i) { return static_cast<unsigned char>(i + n); }

    template <class N>
    static void expect(const N& number, typename N::value_type value, const std::set<std::string>& lost)
    {
        EXPECT_TRUE(number.get() == value || lost.count(number.name()) == 1)
            << number.name() << " is " << +number.get() << " instead of " << +value;
    }

    std::deque<Double> doubles;
    std::deque<Int> ints;
    std::deque<Byte> bytes;
};

class NvDamage : public Folder
{
  protected:
    /// Writes the files with one byte changed, and opens them. Returns whether something was put aside.
    bool open_changed(const std::string& in_database, const std::string& in_log)
    {
        for (const auto& entry : fs::directory_iterator(folder))
            fs::remove(entry);
        write_file(in_database);
        if (!in_log.empty())
            std::ofstream(path + "-wal", std::ios::binary) << in_log;
        bool is_reported = false;
        EXPECT_EQ(complaint([&] {
                      Store store(path, never);
                      const Items items(store);
                      const auto lost = store.lost();
                      is_reported = !store.put_aside().empty();
                      EXPECT_TRUE(is_reported || lost.empty());
                      items.expect(last, {lost.begin(), lost.end()});
                  }),
                  "");
        return is_reported;
    }
    std::string changed(std::string bytes, std::size_t offset)
    {
        bytes[offset] = static_cast<char>(bytes[offset] ^ static_cast<char>(1 + random() % 255));
        return bytes;
    }
    std::size_t any_of(const std::string& bytes) { return random() % bytes.size(); }

    /// What lies on the disk after `last` flushes.
    void live()
    {
        Store store(path, never);
        Items items(store);
        for (int n = 1; n <= last; ++n) {
            items.set(n);
            store.flush();
        }
        database = content(path);
        log = content(path + "-wal");
    }

    static constexpr int last = 3;
    const Vfs quick{[](const Vfs::Event&) { return SQLITE_OK; }, false};
    std::mt19937 random{1};
    std::string database;
    std::string log;
};

TEST_F(NvDamage, OfAnyByteOfTheDatabaseIsSeen)
{
    live();
    ASSERT_GT(database.size(), 12'000U);
    int reported = 0;
    for (std::size_t i = 0; i < 100 && !HasFailure(); ++i) { // the head
        SCOPED_TRACE(i);
        reported += open_changed(changed(database, i), {});
    }
    EXPECT_GT(reported, 30);
    for (int i = 0; i < 500 && !HasFailure(); ++i) {
        const std::size_t offset = any_of(database);
        SCOPED_TRACE(offset);
        reported += open_changed(changed(database, offset), {});
    }
    EXPECT_GT(reported, 100);
}

TEST_F(NvDamage, OfTheLogLosesNothing)
{
    live();
    ASSERT_GT(log.size(), 12'000U);
    for (int i = 0; i < 150 && !HasFailure(); ++i) {
        const std::size_t offset = i < 60 ? static_cast<std::size_t>(i) : any_of(log); // its head, the first frame's
        SCOPED_TRACE(offset);
        EXPECT_FALSE(open_changed(database, changed(log, offset)));
    }
    for (int i = 0; i < 20 && !HasFailure(); ++i) {
        SCOPED_TRACE(i);
        EXPECT_FALSE(open_changed(database, log.substr(0, any_of(log)))) << "cut off";
    }
}

TEST_F(NvDamage, OfOneValueLosesThatOneAlone)
{
    live();
    const std::size_t found = database.find("int 17");
    ASSERT_NE(found, std::string::npos);
    const std::string damaged = changed(database, found + 7); // behind name and type
    EXPECT_TRUE(open_changed(damaged, {}));
    EXPECT_TRUE(content(path + ".damaged-1") == damaged);
    Store store(path);
    EXPECT_EQ(store.put_aside(), "") << "it is over";
    EXPECT_TRUE(store.lost().empty());
    EXPECT_EQ(Int(store, "int 17", -7).get(), -7);
    EXPECT_EQ(Int(store, "int 18", -7).get(), 18'003);
}

TEST_F(NvDamage, OfOneValueIsToldByItsName)
{
    live();
    write_file(changed(database, database.find("int 17") + 7));
    Store store(path);
    EXPECT_EQ(store.lost(), std::vector<std::string>{"int 17"}) << "before anybody asks for it";
    Int fresh(store, "fresh", 1);
    EXPECT_EQ(store.lost(), (std::vector<std::string>{"fresh", "int 17"})) << "it could have been in the file";
}

TEST_F(NvDamage, OfTheWholeFileLosesWhatTheProgramClaims)
{
    write_file(std::string(5000, 'x'));
    Store store(path);
    EXPECT_TRUE(store.lost().empty());
    const Int item(store, "item", 7);
    EXPECT_EQ(item.get(), 7);
    EXPECT_EQ(store.lost(), std::vector<std::string>{"item"});
}

TEST_F(NvDamage, OfTheSealAloneLosesNothing)
{
    live();
    const std::size_t end_of_its_page = 3 * 4096;
    EXPECT_TRUE(open_changed(changed(database, end_of_its_page - 1), {}));
    Store store(path);
    Items(store).expect(last, {});
}

TEST_F(NvDamage, ThatBringsAnOlderPageBackIsSeen)
{
    live();
    // One page of several becomes older: each value is sound in itself.
    std::string older;
    {
        write_file(database);
        Store store(path, never);
        Items(store).set(last - 1);
        store.flush();
        older = content(path);
    }
    int reported = 0;
    ASSERT_EQ(older.size(), database.size());
    for (std::size_t page = 4096; page < database.size(); page += 4096) {
        std::string mixed = database;
        mixed.replace(page, 4096, older, page, 4096);
        SCOPED_TRACE(page);
        if (mixed != database)
            reported += open_changed(mixed, {});
    }
    EXPECT_GE(reported, 3);
}

} // namespace
