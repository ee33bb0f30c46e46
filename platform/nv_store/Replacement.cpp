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

/// The successor takes its place, unless another process has just seen to that.
void complete(const std::string& path, const Names& names)
{
    std::error_code error;
    fs::rename(names.successor, path, error);
    if (error && error != std::errc::no_such_file_or_directory)
        throw fs::filesystem_error(names.successor, error);
    sync_folder(path);
}

/// Somebody has put a file there since. An empty one is only what whoever finds none makes.
bool is_put_there(const std::string& path, const Names& names)
{
    std::error_code gone;
    return !fs::is_empty(path, gone) && !fs::equivalent(path, names.damaged, gone);
}

} // namespace

std::string replace(const std::string& path, const std::function<void(const std::string& successor)>& make)
{
    std::set<unsigned> all = numbers(path);
    const unsigned n = all.empty() ? 1 : *all.rbegin() + 1;
    const Names names(path, n);
    make(names.successor);
    // The database last: as long as it has no other name, the next start undoes this.
    move(path, names.damaged);
    std::error_code has_no_links;
    fs::create_hard_link(path, names.damaged, has_no_links);
    if (has_no_links)
        fs::rename(path, names.damaged); // so for a moment the path leads nowhere
    complete(path, names);
    for (all.insert(n); all.size() > kept; all.erase(all.begin()))
        remove(Names(path, *all.begin()).damaged);
    return names.damaged;
}

std::string settle_replacement(const std::string& path)
{
    for (const unsigned n : numbers(path)) {
        const Names names(path, n);
        if (!is_there(names.successor))
            continue;
        const bool is_named = is_there(names.damaged);
        if (is_named && !is_put_there(path, names)) {
            complete(path, names);
            return names.damaged;
        }
        if (!is_named)
            move(names.damaged, path);
        remove(names.successor);
    }
    return {};
}

} // namespace NV_store
