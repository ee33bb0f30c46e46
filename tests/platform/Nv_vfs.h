#ifndef TESTS_PLATFORM_NV_VFS_H
#define TESTS_PLATFORM_NV_VFS_H

#include <sqlite3.h>

#include <cstring>
#include <functional>
#include <mutex>
#include <new>
#include <string>
#include <vector>

namespace nv {

/// While it lives, it stands between SQLite and the files of the non-volatile store: tells what is done to them, and
/// fails where it is asked to. There is one at a time.
class Vfs
{
  public:
    struct Event
    {
        enum What { read, write, truncate, sync, remove } what;
        std::string path;
        sqlite3_int64 offset{0}; ///< for truncate: the length
        std::string bytes{};     ///< that are written
        bool is_synced{false};   ///< for remove: and the folder is synced
    };

    /// Returns SQLITE_OK if the event is to take place; otherwise what SQLite is told instead. On any thread.
    using Hook = std::function<int(const Event& event)>;

    /// Without `syncs` nothing is synced: to be quick where nothing depends on it.
    explicit Vfs(
        Hook hook_ = [](const Event&) { return SQLITE_OK; }, bool syncs_ = true)
        : hook(std::move(hook_)), syncs(syncs_), below(sqlite3_vfs_find(name))
    {
        vfs = *below;
        vfs.pNext = nullptr;
        vfs.szOsFile = static_cast<int>(sizeof(File)) + below->szOsFile;
        vfs.pAppData = this;
        vfs.xOpen = open;
        vfs.xDelete = remove;
        sqlite3_vfs_register(&vfs, 0); // is found before the one that it hides
    }
    ~Vfs() { sqlite3_vfs_unregister(&vfs); }
    Vfs(const Vfs&) = delete;
    Vfs& operator=(const Vfs&) = delete;

  private:
    static constexpr const char* name = "unix-none";

    struct File
    {
        sqlite3_file base; ///< first: what SQLite knows
        Vfs* vfs;
        const char* path;
        sqlite3_file* below() { return reinterpret_cast<sqlite3_file*>(this + 1); }
        int ask(Event::What what, sqlite3_int64 offset = 0, std::string bytes = {})
        {
            return vfs->hook({what, path, offset, std::move(bytes)});
        }
    };

    static File& self(sqlite3_file* file) { return *reinterpret_cast<File*>(file); }
    static sqlite3_file* below_of(sqlite3_file* file) { return self(file).below(); }

    static int open(sqlite3_vfs* asked, const char* path, sqlite3_file* to, int flags, int* given)
    {
        static const sqlite3_io_methods methods = make_methods();
        Vfs* const vfs = static_cast<Vfs*>(asked->pAppData);
        File& file = *new (to) File{{nullptr}, vfs, path};
        std::memset(static_cast<void*>(file.below()), 0, static_cast<std::size_t>(vfs->below->szOsFile));
        const int result = vfs->below->xOpen(vfs->below, path, file.below(), flags, given);
        file.base.pMethods = file.below()->pMethods ? &methods : nullptr;
        return result;
    }
    static int remove(sqlite3_vfs* asked, const char* path, int sync_folder)
    {
        Vfs* const vfs = static_cast<Vfs*>(asked->pAppData);
        const int result = vfs->hook({Event::remove, path, 0, {}, sync_folder != 0});
        return result != SQLITE_OK ? result : vfs->below->xDelete(vfs->below, path, vfs->syncs ? sync_folder : 0);
    }

    static sqlite3_io_methods make_methods()
    {
        sqlite3_io_methods m{};
        m.iVersion = 1;
        m.xClose = [](sqlite3_file* f) { return below_of(f)->pMethods->xClose(below_of(f)); };
        m.xRead = [](sqlite3_file* f, void* to, int size, sqlite3_int64 offset) {
            const int result = self(f).ask(Event::read, offset);
            return result != SQLITE_OK ? result : below_of(f)->pMethods->xRead(below_of(f), to, size, offset);
        };
        m.xWrite = [](sqlite3_file* f, const void* from, int size, sqlite3_int64 offset) {
            const std::string bytes(static_cast<const char*>(from), static_cast<std::size_t>(size));
            const int result = self(f).ask(Event::write, offset, bytes);
            return result != SQLITE_OK ? result : below_of(f)->pMethods->xWrite(below_of(f), from, size, offset);
        };
        m.xTruncate = [](sqlite3_file* f, sqlite3_int64 size) {
            const int result = self(f).ask(Event::truncate, size);
            return result != SQLITE_OK ? result : below_of(f)->pMethods->xTruncate(below_of(f), size);
        };
        m.xSync = [](sqlite3_file* f, int flags) {
            const int result = self(f).ask(Event::sync);
            return result != SQLITE_OK || !self(f).vfs->syncs ? result
                                                              : below_of(f)->pMethods->xSync(below_of(f), flags);
        };
        m.xFileSize = [](sqlite3_file* f, sqlite3_int64* size) {
            return below_of(f)->pMethods->xFileSize(below_of(f), size);
        };
        m.xLock = [](sqlite3_file* f, int level) { return below_of(f)->pMethods->xLock(below_of(f), level); };
        m.xUnlock = [](sqlite3_file* f, int level) { return below_of(f)->pMethods->xUnlock(below_of(f), level); };
        m.xCheckReservedLock = [](sqlite3_file* f, int* is_locked) {
            return below_of(f)->pMethods->xCheckReservedLock(below_of(f), is_locked);
        };
        m.xFileControl = [](sqlite3_file* f, int what, void* argument) {
            return below_of(f)->pMethods->xFileControl(below_of(f), what, argument);
        };
        m.xSectorSize = [](sqlite3_file* f) { return below_of(f)->pMethods->xSectorSize(below_of(f)); };
        m.xDeviceCharacteristics = [](sqlite3_file* f) {
            return below_of(f)->pMethods->xDeviceCharacteristics(below_of(f));
        };
        return m;
    }

    Hook hook;
    bool syncs;
    sqlite3_vfs* below;
    sqlite3_vfs vfs{};
};

} // namespace nv

#endif
