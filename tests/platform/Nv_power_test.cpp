// The power fails at every moment of a non-volatile store's life: what was synced is on the disk then, of what was
// written after that any part.

#include "tests/platform/Nv_folder.h"
#include "tests/platform/Nv_vfs.h"

#include <deque>
#include <map>
#include <mutex>
#include <optional>
#include <random>

using namespace nv;

namespace {

using Event = Vfs::Event;

/// So many, with names of such length, that they need several pages.
constexpr int items = 150;

std::string name(int i) { return "a setting with a rather long name for its small value, " + std::to_string(i); }

struct Items
{
    explicit Items(Store& store)
    {
        for (int i = 0; i < items; ++i)
            numbers.emplace_back(store, name(i));
    }
    void set(Store& store, int n)
    {
        std::vector<NV_store::NV_item::Change> changes;
        for (Int& number : numbers)
            changes.push_back(number.to(n));
        store.set(changes.data(), changes.data() + changes.size());
    }
    /// What all have; none if they differ.
    std::optional<int> get() const
    {
        const int n = numbers.front().get();
        for (const Int& number : numbers)
            if (number.get() != n)
                return {};
        return n;
    }

    std::deque<Int> numbers;
};

/// Does to a file's content what was done to the file.
void apply(std::string& file, const Event& event)
{
    const auto offset = static_cast<std::size_t>(event.offset);
    if (event.what == Event::truncate)
        file.resize(offset);
    if (event.what != Event::write)
        return;
    file.resize(std::max(file.size(), offset + event.bytes.size()));
    file.replace(offset, event.bytes.size(), event.bytes);
}

/// What a disk may have of a file: for certain, and perhaps.
struct Remains
{
    std::optional<std::string> synced;
    std::vector<Event> pending;

    void take(const Event& event)
    {
        if (event.what != Event::sync)
            pending.push_back(event);
        if (event.what != Event::sync && !event.is_synced)
            return;
        synced = written();
        pending.clear();
    }
    /// As the next process finds it if only this one ends.
    std::optional<std::string> written() const
    {
        return after([](const Event&) { return true; });
    }
    /// As it may be found after the power has failed.
    std::optional<std::string> after_failure(std::mt19937& random) const
    {
        return after([&](const Event&) { return random() % 2 == 0; });
    }

  private:
    std::optional<std::string> after(const std::function<bool(const Event&)>& takes_place) const
    {
        std::optional<std::string> result = synced;
        for (const Event& event : pending) {
            if (!takes_place(event))
                continue;
            if (event.what == Event::remove) {
                result.reset();
            } else {
                if (!result)
                    result.emplace();
                apply(*result, event);
            }
        }
        return result;
    }
};

class NvPower : public Folder
{
  protected:
    /// Lives with the store and notes each event, and what was flushed by then.
    void live(int flushes)
    {
        const Vfs vfs(
            [this](const Event& event) {
                const std::lock_guard lock(mutex);
                if (event.what != Event::read) {
                    events.push_back(event);
                    told.push_back(flushed);
                }
                return SQLITE_OK;
            },
            false);
        Store store(path, never);
        Items all(store);
        for (int n = all.get().value() + 1; flushes-- > 0; ++n) {
            all.set(store, n);
            store.flush();
            const std::lock_guard lock(mutex);
            flushed = n;
        }
    }

    void put(const std::string& file, const std::optional<std::string>& bytes) const
    {
        fs::remove(file);
        if (bytes)
            std::ofstream(file, std::ios::binary) << *bytes;
    }

    /// Opens what is left in the folder of a life up to some event.
    template <class Check>
    void open_after(std::size_t event, Check check)
    {
        const Vfs quick([](const Event&) { return SQLITE_OK; }, false);
        Store store(path);
        check(store, Items(store), told[event]);
    }

    static void expect_all_of_it(const Store& store, const Items& all, int flushed)
    {
        EXPECT_EQ(store.put_aside(), "");
        EXPECT_TRUE(store.lost().empty());
        ASSERT_TRUE(all.get()) << "half of a transaction";
        EXPECT_GE(*all.get(), flushed);
        EXPECT_LE(*all.get(), flushed + 1);
    }

    /// Lets the power fail, and the process end, after each event.
    void fail_everywhere(const std::optional<std::string>& before)
    {
        std::mt19937 random(1);
        std::map<std::string, Remains> disk;
        disk[path].synced = before;
        for (std::size_t i = 0; i < events.size() && !HasFailure(); ++i) {
            disk[events[i].path].take(events[i]);
            for (const bool is_failure : {false, true}) {
                SCOPED_TRACE("event " + std::to_string(i) + (is_failure ? ": power" : ": process"));
                for (const auto& [file, remains] : disk)
                    put(file, is_failure ? remains.after_failure(random) : remains.written());
                open_after(i, expect_all_of_it);
            }
        }
    }

    std::mutex mutex;
    std::vector<Event> events;
    std::vector<int> told; ///< at each event: the last number that was flushed
    int flushed{0};
};

TEST_F(NvPower, FailureLeavesWhatWasFlushedAndNothingHalf)
{
    live(5);
    fail_everywhere({});
}

constexpr const char* format_1 = "PRAGMA journal_mode=WAL;"
                                 "CREATE TABLE items(name TEXT NOT NULL PRIMARY KEY, type INTEGER NOT NULL, "
                                 "value ANY) STRICT, WITHOUT ROWID;"
                                 "PRAGMA application_id=1853256564; PRAGMA user_version=1;";

TEST_F(NvPower, FailureLeavesAnOldFileWhileItGetsItsChecksums)
{
    sqlite3* old = nullptr;
    ASSERT_EQ(sqlite3_open(path.c_str(), &old), SQLITE_OK);
    std::string sql = format_1;
    for (int i = 0; i < items; ++i)
        sql += "INSERT INTO items VALUES('" + name(i) + "', 9, 70);";
    ASSERT_EQ(sqlite3_exec(old, sql.c_str(), nullptr, nullptr, nullptr), SQLITE_OK);
    sqlite3_close(old);
    const std::string before = content(path);
    flushed = 70;
    live(1);
    fail_everywhere(before);
}

TEST_F(NvPower, FailureAndALostLogAreSeenTogether)
{
    live(4);
    std::map<std::string, Remains> disk;
    int reported = 0;
    for (std::size_t i = 0; i < events.size() && !HasFailure(); ++i) {
        SCOPED_TRACE("event " + std::to_string(i));
        disk[events[i].path].take(events[i]);
        for (const auto& entry : fs::directory_iterator(folder))
            fs::remove(entry);
        put(path, disk[path].written());
        open_after(i, [&](const Store& store, const Items& all, int known) {
            if (!store.put_aside().empty()) {
                ++reported;
                EXPECT_EQ(store.lost().size(), std::size_t{items});
            } else {
                expect_all_of_it(store, all, known);
            }
        });
    }
    EXPECT_GT(reported, 5) << "while the log was folded in";
}

} // namespace
