#include "nv_store/Replacement.h"

#include <charconv>
#include <fcntl.h>
#include <filesystem>
#include <set>
#include <unistd.h>

namespace NV_store {

namespace {

namespace fs = std::filesystem;

constexpr std::size_t kept = 3;
constexpr unsigned highest = 1'000'000'000; // of the numbers that are taken for ours

// What SQLite puts beside a database.
constexpr const char* companions[] = {"-journal", "-wal", "-shm"};

bool is_there(const std::string& path)
{
    std::error_code unknown;
    return fs::exists(fs::symlink_status(path, unknown));
}

/// The names of one replacement.
struct Names
{
    Names(const std::string& path, unsigned n)
        : damaged(path + ".damaged-" + std::to_string(n)), successor(damaged + "-new")
    {}

    std::string damaged;
    std::string successor; ///< there until the replacement is complete
};

/// The numbers of all replacements of which there is anything.
std::set<unsigned> numbers(const fs::path& path)
{
    std::set<unsigned> found;
    const std::string start = path.filename().string() + ".damaged-";
    std::error_code unreadable; // then there is none to be found
    for (const auto& entry : fs::directory_iterator(path.parent_path(), unreadable)) {
        const std::string name = entry.path().filename().string();
        unsigned n = 0;
        if (name.compare(0, start.size(), start) == 0 &&
            std::from_chars(name.data() + start.size(), name.data() + name.size(), n).ec == std::errc() && n < highest)
            found.insert(n);
    }
    return found;
}

void move(const std::string& from, const std::string& to)
{
    for (const char* companion : companions)
        if (is_there(from + companion))
            fs::rename(from + companion, to + companion);
}

void remove(const std::string& path)
{
    std::error_code none_or_not_ours;
    for (const char* companion : companions)
        fs::remove(path + companion, none_or_not_ours);
    fs::remove(path, none_or_not_ours); // at last: it tells that there is something to undo
}

/// What was renamed in the path's folder is so after a power failure, too.
void sync_folder(const fs::path& path)
{
    const int folder = open(path.parent_path().c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    fsync(folder);
    close(folder);
}

} // namespace

std::string replace(const std::string& path, const std::function<void(const std::string& successor)>& make)
{
    std::set<unsigned> all = numbers(path);
    const unsigned n = all.empty() ? 1 : *all.rbegin() + 1;
    const Names names(path, n);
    make(names.successor);
    // The database last: as long as it is there, the next start undoes this.
    move(path, names.damaged);
    fs::rename(path, names.damaged);
    fs::rename(names.successor, path);
    sync_folder(path);
    for (all.insert(n); all.size() > kept; all.erase(all.begin()))
        remove(Names(path, *all.begin()).damaged);
    return names.damaged;
}

std::string finish_replacement(const std::string& path)
{
    if (is_there(path))
        return {};
    for (const unsigned n : numbers(path)) {
        const Names names(path, n);
        if (is_there(names.damaged) && is_there(names.successor)) {
            fs::rename(names.successor, path);
            sync_folder(path);
            return names.damaged;
        }
    }
    return {};
}

void undo_replacement(const std::string& path)
{
    for (const unsigned n : numbers(path)) {
        const Names names(path, n);
        if (!is_there(names.successor))
            continue;
        if (!is_there(names.damaged))
            move(names.damaged, path);
        remove(names.successor);
    }
}

} // namespace NV_store
