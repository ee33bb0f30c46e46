#ifndef NV_STORE_STORE_H
#define NV_STORE_STORE_H

#include "iso11783/Export.h"
#include "nv_store/NV_item.h"
#include "nv_store/Problem.h"

#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <initializer_list>
#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

namespace NV_store {

class File;

/// Keeps the settings of a machine in one file of SQLite's. It reads all of them when it is opened; a thread of its own
/// writes what changes, so nobody else waits for the disk. The store outlives its items.
///
///     NV_store::Store store("/var/lib/sprayer/settings.db");
///
/// Changes are gathered for a while and written in one transaction, of each item the last value. They are safe from
/// then on, whatever happens to process and power; until then they are lost together with the process. flush() writes
/// at once. If the disk fails, the values stay in memory and are tried again: every two seconds, by flush(), and at the
/// end.
class VTUI_EXPORT Store
{
  public:
    static constexpr auto in_memory = ":memory:"; ///< instead of a file: nothing is kept
    static constexpr std::chrono::milliseconds gathering_time{500};
    static constexpr std::chrono::seconds retry_time{2};

    /// Opens the file; makes it if there is none, but not its folder. A file that is damaged, or is no store's, is
    /// renamed, see put_aside(), and replaced by a new one with what is certain of it: a machine must start. Throws
    /// std::system_error if the system refuses (no such folder, no permission, disk full), std::runtime_error if
    /// somebody has the file open (after a second) or if a newer version wrote it; the text names the file, which stays
    /// as it is.
    explicit Store(const std::string& path, std::chrono::milliseconds gathering = gathering_time);
    /// Writes what is left; if that fails, says on standard error that it is lost.
    ~Store();
    Store(const Store&) = delete;
    Store& operator=(const Store&) = delete;

    /// The file, with its whole path.
    const std::string& path() const { return file_path; }
    /// The new name of the damaged file that was found here. Empty if there was none.
    const std::string& put_aside() const { return damaged_path; }
    /// If a damaged file was found here: the names of the items that have begun with their defaults because of it, for
    /// a message to the driver, in alphabetical order. That is every value in the file that is not certain and, of the
    /// items that there have been so far, each that the file had nothing of: perhaps it was never set.
    std::vector<std::string> lost() const;

    /// Sets several items of this store together: after a crash the file has all of it or nothing of it. Other threads
    /// see the values one by one. From any thread, as NV_number::set(). Throws std::invalid_argument if one of them is
    /// another store's, before it sets any.
    ///
    ///     store.set({length.to(12), width.to(3.5)});
    void set(std::initializer_list<NV_item::Change> changes) { set(changes.begin(), changes.end()); }
    void set(const NV_item::Change* begin, const NV_item::Change* end);

    /// Returns when all that was set before is on the disk. Throws std::system_error or std::runtime_error, naming the
    /// file, if the attempt fails, also because the file was deleted or replaced; what was set stays, to be tried
    /// again. From any thread.
    void flush();

    /// What attempts to write fail with: once, and once more when it is something else or was mended meanwhile;
    /// otherwise empty. To be asked now and then by whoever can tell the driver.
    std::string take_problem();

  private:
    friend class NV_item;
    friend class Virt_access;

    Record& claim(const std::string& name, Data_item::item_type_t type, Bits initial);
    Record& find_or_add(const std::string& name);
    void release(Record& record);
    [[noreturn]] void refuse(const Record& record, const std::string& what) const;

    bool change(Record& record, Bits value);
    void write_changes();

    const std::chrono::milliseconds gathering;
    std::string file_path;
    std::string damaged_path;
    std::unique_ptr<File> file; ///< null: in memory. Used by the writer alone once it runs

    mutable std::mutex mutex; ///< guards what follows; never held while the disk works
    std::map<std::string, Record> records;
    List<Record> unsaved;
    std::condition_variable work; ///< for the writer
    std::condition_variable done; ///< an attempt has ended
    bool is_closing{false};
    // Flushes are counted: asked for, tried, and those after which all was on the disk.
    std::uint64_t asked{0};
    std::uint64_t tried{0};
    std::uint64_t written{0};
    Problem failure;     ///< of the last attempt
    std::string problem; ///< that nobody has asked for yet

    std::thread writer;
};

} // namespace NV_store

#endif
