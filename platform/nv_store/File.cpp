#include "nv_store/File.h"

#include "nv_store/Record.h"

#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <limits>
#include <sqlite3.h>
#include <unistd.h>

namespace NV_store {

namespace {

namespace fs = std::filesystem;

constexpr int format_version = 1;
constexpr long application = 0x6E767374; // "nvst", for the tool `file`

constexpr auto busy_time = 1000; // milliseconds: the process before this one may still be dying

// What SQLite puts beside a database.
constexpr const char* companions[] = {"-journal", "-wal", "-shm"};

Problem refused(const std::string& what, int error) { return {what, {error, std::generic_category()}}; }

bool is_taken(const std::string& path)
{
    bool taken = fs::exists(fs::symlink_status(path));
    for (const char* companion : companions)
        taken |= fs::exists(fs::symlink_status(path + companion));
    return taken;
}

/// Why the system forbids this process an access; 0 if it does not.
int forbids(const std::string& path, int mode)
{
    return faccessat(AT_FDCWD, path.c_str(), mode, AT_EACCESS) == 0 ? 0 : errno;
}

/// Gives a file and what belongs to it another name, so that whoever repairs it finds all of it together.
std::string move_aside(const std::string& path)
{
    std::string free_path;
    for (int i = 1; free_path.empty() || is_taken(free_path); ++i)
        free_path = path + ".damaged-" + std::to_string(i);
    // The database last: as long as it is there, a next start comes here again.
    for (const char* companion : companions)
        if (fs::exists(path + companion))
            fs::rename(path + companion, free_path + companion);
    fs::rename(path, free_path);
    return free_path;
}

bool is_floating(Data_item::item_type_t type) { return type == Data_item::float32 || type == Data_item::float64; }

} // namespace

void File::Close::operator()(sqlite3* database) const { sqlite3_close(database); }
void File::Close::operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }

std::string File::whole_path(const std::string& path)
{
    if (path.empty())
        refused(naming(path), ENOENT).raise();
    std::error_code error;
    const fs::path absolute = fs::absolute(path, error);
    if (error)
        Problem{naming(path), error}.raise();
    const fs::path resolved = fs::weakly_canonical(absolute, error);
    return error ? absolute : resolved;
}

std::unique_ptr<File> File::open(const std::string& path, std::string& put_aside)
{
    const auto attempt = [&] { return std::unique_ptr<File>(new File(path)); };
    try {
        try {
            return attempt();
        } catch (const Damage&) {
            put_aside = move_aside(path);
        }
        return attempt();
    } catch (const Damage& damage) {
        Problem{naming(path) + " cannot be made: " + damage.what}.raise();
    } catch (const fs::filesystem_error& e) {
        Problem{naming(path) + " is damaged and cannot be put aside", e.code()}.raise();
    } catch (const Problem& problem) {
        problem.raise();
    }
}

File::File(const std::string& path_) : path(path_)
{
    sqlite3* opened = nullptr;
    const int result = sqlite3_open_v2(path.c_str(), &opened,
                                       SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE | SQLITE_OPEN_NOMUTEX, nullptr);
    database.reset(opened);
    if (result != SQLITE_OK)
        fail(sqlite3_system_errno(opened));
    if (sqlite3_db_readonly(opened, "main") == 1) // what SQLite makes of a file that it may not write
        throw refused(naming(path) + " cannot be written", forbids(path, W_OK));
    sqlite3_busy_timeout(opened, busy_time);
    // Closing tidies up, and to tidy up in a damaged file would destroy more of it.
    sqlite3_db_config(opened, SQLITE_DBCONFIG_NO_CKPT_ON_CLOSE, 1, nullptr);
    // Set first of all, it also keeps the log's index in memory: no third file, and no shared memory on flash.
    execute("PRAGMA locking_mode=EXCLUSIVE");
    check_or_make();
    sqlite3_db_config(opened, SQLITE_DBCONFIG_NO_CKPT_ON_CLOSE, 0, nullptr);
    prepare();
    is_checked = true;
}

File::~File() = default;

void File::check_or_make()
{
    const long owner = number("PRAGMA application_id");
    const long version = number("PRAGMA user_version");
    if (owner == 0 && version == 0 && number("SELECT count(*) FROM sqlite_schema") == 0) {
        make();
        return;
    }
    if (owner != application)
        throw Problem{naming(path) + " is a database of another program"};
    if (version > format_version)
        throw Problem{naming(path) + " was written by a newer version: its format is " + std::to_string(version) +
                      ", known is " + std::to_string(format_version)};
    const std::string verdict = ask("PRAGMA integrity_check(1)");
    if (verdict != "ok")
        throw Damage{verdict};
}

/// Only the first step is not part of the transaction, and leaves an empty database.
void File::make()
{
    if (ask("PRAGMA journal_mode=WAL") != "wal")
        throw Problem{naming(path) + " " + failing + ": no write-ahead log"};
    execute("BEGIN");
    execute("CREATE TABLE items(name TEXT NOT NULL PRIMARY KEY, type INTEGER NOT NULL, value ANY) "
            "STRICT, WITHOUT ROWID");
    execute(("PRAGMA application_id=" + std::to_string(application)).c_str());
    execute(("PRAGMA user_version=" + std::to_string(format_version)).c_str());
    execute("COMMIT");
}

void File::prepare()
{
    // Each commit is on the disk before it returns, or flush() would promise too much.
    execute("PRAGMA synchronous=FULL");
    execute("PRAGMA wal_autocheckpoint=100"); // pages: a log of some 400 KiB, not of 4 MiB
    begin = compile("BEGIN IMMEDIATE");
    put = compile("INSERT OR REPLACE INTO items(name, type, value) VALUES(?, ?, ?)");
    commit = compile("COMMIT");
}

void File::read(const std::function<void(const Row& row)>& take)
{
    try {
        const Statement rows = compile("SELECT name, type, value FROM items");
        while (step(rows)) {
            sqlite3_stmt* const row = rows.get();
            const auto type = static_cast<Data_item::item_type_t>(sqlite3_column_int64(row, 1));
            const int kind = sqlite3_column_type(row, 2);
            const auto* const name = reinterpret_cast<const char*>(sqlite3_column_text(row, 0));
            const auto length = static_cast<std::size_t>(sqlite3_column_bytes(row, 0)); // which may have zeros in it
            Row result{std::string(name, length), type, 0, kind == SQLITE_INTEGER};
            if (!is_floating(type)) {
                result.value = to_bits(sqlite3_column_int64(row, 2));
            } else {
                // SQLite has no NaN and keeps a null instead.
                const bool is_nan = kind == SQLITE_NULL;
                result.value =
                    to_bits(is_nan ? std::numeric_limits<double>::quiet_NaN() : sqlite3_column_double(row, 2));
                result.is_readable |= is_nan || kind == SQLITE_FLOAT;
            }
            take(result);
        }
    } catch (const Problem& problem) {
        problem.raise();
    }
}

Problem File::write(const std::vector<Change>& changes)
{
    failing = "cannot be written";
    if (changes.empty())
        return {};
    try {
        step(begin);
        for (const Change& change : changes)
            store(change);
        step(commit);
        return {};
    } catch (const Problem& problem) {
        if (!sqlite3_get_autocommit(database.get()))
            sqlite3_exec(database.get(), "ROLLBACK", nullptr, nullptr, nullptr);
        return problem;
    }
}

void File::store(const Change& change)
{
    const std::string& name = *change.record->name;
    sqlite3_bind_text64(put.get(), 1, name.data(), name.size(), SQLITE_STATIC, SQLITE_UTF8);
    sqlite3_bind_int64(put.get(), 2, change.type);
    if (is_floating(change.type))
        sqlite3_bind_double(put.get(), 3, from_bits<double>(change.value));
    else
        sqlite3_bind_int64(put.get(), 3, from_bits<sqlite3_int64>(change.value));
    step(put);
}

void File::execute(const char* sql) { ask(sql); }

/// The first value of the answer; empty if there is none.
std::string File::ask(const char* sql)
{
    const Statement statement = compile(sql);
    if (!step(statement))
        return {};
    const auto* const text = reinterpret_cast<const char*>(sqlite3_column_text(statement.get(), 0));
    return text ? text : "";
}

File::Statement File::compile(const char* sql)
{
    sqlite3_stmt* statement = nullptr;
    if (sqlite3_prepare_v2(database.get(), sql, -1, &statement, nullptr) != SQLITE_OK)
        fail(sqlite3_system_errno(database.get()));
    return Statement(statement);
}

/// True if there is a row; otherwise the statement is ready for another time.
bool File::step(const Statement& statement)
{
    errno = 0; // SQLite keeps that of a failed commit to itself
    const int result = sqlite3_step(statement.get());
    const int error = errno;
    if (result == SQLITE_ROW)
        return true;
    if (sqlite3_reset(statement.get()) != SQLITE_OK)
        fail(error);
    return false;
}

void File::fail(int error) const
{
    const std::string what = naming(path) + " " + failing;
    const std::string message = sqlite3_errmsg(database.get());
    switch (sqlite3_errcode(database.get()) & 0xFF) {
    case SQLITE_BUSY:
        throw Problem{naming(path) + " is open elsewhere"};
    case SQLITE_FULL:
        throw refused(what, ENOSPC);
    case SQLITE_CANTOPEN:
    case SQLITE_READONLY:
        // After the first refusal SQLite tries other ways, and says what became of those.
        if (const int forbidden = forbids(fs::path(path).parent_path(), W_OK | X_OK))
            throw refused(what, forbidden);
        break;
    case SQLITE_IOERR:
        break;
    case SQLITE_NOTADB:
    case SQLITE_CORRUPT:
    case SQLITE_ERROR: // a table other than ours
        if (!is_checked)
            throw Damage{message};
        [[fallthrough]];
    default:
        error = 0;
    }
    throw error != 0 ? refused(what, error) : Problem{what + ": " + message};
}

} // namespace NV_store
