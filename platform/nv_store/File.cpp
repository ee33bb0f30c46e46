#include "nv_store/File.h"

#include "nv_store/Record.h"
#include "nv_store/Replacement.h"

#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <limits>
#include <sqlite3.h>
#include <unistd.h>
#include <utility>

namespace NV_store {

namespace {

namespace fs = std::filesystem;

constexpr int format_version = 2;        // the seal tells it, too; 1 had neither checksums nor seal
constexpr long application = 0x6E767374; // "nvst", for the tool `file`

// The tables of each format, word for word as SQLite keeps them.
constexpr const char* tables_of_1 = "CREATE TABLE items(name TEXT NOT NULL PRIMARY KEY, type INTEGER NOT NULL, "
                                    "value ANY) STRICT, WITHOUT ROWID";
constexpr const char* items_table = "CREATE TABLE items(name TEXT NOT NULL PRIMARY KEY, type INTEGER NOT NULL, "
                                    "value ANY, checksum INTEGER NOT NULL) STRICT, WITHOUT ROWID";
constexpr const char* seal_table = "CREATE TABLE seal(sum INTEGER NOT NULL, checksum INTEGER NOT NULL) STRICT";

constexpr const char* immovable = " is damaged and cannot be put aside";

/// Why the system forbids this process an access; 0 if it does not.
int forbids(const std::string& path, int mode)
{
    return faccessat(AT_FDCWD, path.c_str(), mode, AT_EACCESS) == 0 ? 0 : errno;
}

Bits column(sqlite3_stmt* row, int i) { return to_bits(sqlite3_column_int64(row, i)); }

/// False if the value is no number of the type's kind.
bool take_row(sqlite3_stmt* row, Row& to)
{
    const auto* const name = reinterpret_cast<const char*>(sqlite3_column_text(row, 0));
    to.name.assign(name, static_cast<std::size_t>(sqlite3_column_bytes(row, 0))); // which may have zeros in it
    to.type = static_cast<Data_item::item_type_t>(sqlite3_column_int64(row, 1));
    const int kind = sqlite3_column_type(row, 2);
    if (!is_floating(to.type)) {
        to.value = column(row, 2);
        return kind == SQLITE_INTEGER;
    }
    // SQLite has no NaN and keeps a null instead.
    const bool is_nan = kind == SQLITE_NULL;
    to.value = to_bits(is_nan ? std::numeric_limits<double>::quiet_NaN() : sqlite3_column_double(row, 2));
    return is_nan || kind == SQLITE_FLOAT || kind == SQLITE_INTEGER;
}

Bits checksum_of_seal(Bits sum) { return Checksum().add(Bits{format_version}).add(sum).get(); }

} // namespace

void File::Close::operator()(sqlite3* database) const { sqlite3_close(database); }
void File::Close::operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }

std::string File::whole_path(const std::string& path)
{
    if (path.empty())
        Problem::refused(naming(path), ENOENT).raise();
    std::error_code error;
    const fs::path absolute = fs::absolute(path, error);
    if (error)
        Problem{naming(path), error}.raise();
    const fs::path resolved = fs::weakly_canonical(absolute, error);
    return error ? absolute : resolved;
}

std::unique_ptr<File> File::open(const std::string& path, Content& content)
{
    try {
        std::unique_ptr<File> file(new File(path));
        content.put_aside = settle_replacement(path);
        if (file->lock.is_moved()) // if there was something to settle
            file.reset(new File(path));
        if (!file->examine(content).empty()) {
            content.put_aside = file->give_way(content.rows);
            file.reset(new File(path));
            Content in_new_file;
            if (const std::string damage = file->examine(in_new_file); !damage.empty())
                throw Problem{naming(path) + " cannot be made: " + damage};
            content.rows = std::move(in_new_file.rows); // another process may have had it for a moment
        }
        file->write({}); // what a process left that was killed; if the disk takes nothing now, the next one tries again
        return file;
    } catch (const fs::filesystem_error& e) {
        Problem{naming(path) + immovable, e.code()}.raise();
    } catch (const Problem& problem) {
        problem.raise();
    }
}

File::File(const std::string& path_) : path(path_), lock(path_) {}

File::~File()
{
    // A log of that name may be another file's by now.
    if (database && lock.is_moved())
        sqlite3_db_config(database.get(), SQLITE_DBCONFIG_NO_CKPT_ON_CLOSE, 1, nullptr);
}

void File::connect()
{
    sqlite3* opened = nullptr;
    const int result = sqlite3_open_v2(path.c_str(), &opened, SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX,
                                       "unix-none"); // which locks nothing
    database.reset(opened);
    if (result != SQLITE_OK)
        fail(sqlite3_system_errno(opened));
    // Closing tidies up, and to tidy up in a damaged file would destroy more of it.
    sqlite3_db_config(opened, SQLITE_DBCONFIG_NO_CKPT_ON_CLOSE, 1, nullptr);
    // Set first of all, it also keeps the log's index in memory: no third file, and no shared memory on flash.
    execute("PRAGMA locking_mode=EXCLUSIVE");
}

/// Reads all of it. Returns what is wrong with it, empty if nothing is; then `content` has what is certain all the
/// same.
std::string File::examine(Content& content)
{
    std::string damage;
    bool is_certain = false;
    try {
        connect();
        damage = judge(content, is_certain);
    } catch (const Damage& found) {
        damage = found.what;
    }
    is_checked = damage.empty();
    if (!is_checked && !is_certain) {
        for (const Row& row : content.rows)
            content.lost.push_back(row.name);
        content.rows.clear();
    }
    return damage;
}

/// As examine(). `is_certain` are the rows if they are what was written last, and not something older.
std::string File::judge(Content& content, bool& is_certain)
{
    const std::string verdict = ask("PRAGMA integrity_check(1)");
    const std::string found = ask("SELECT group_concat(sql, ';') FROM (SELECT sql FROM sqlite_schema ORDER BY name)");
    const long owner = number("PRAGMA application_id");
    const long version = number("PRAGMA user_version");
    const bool is_intact = verdict == "ok";

    const std::string tables = std::string(items_table) + ';' + seal_table;
    const bool is_unsealed = found != tables;
    if (is_intact && found.empty() && owner == 0 && version == 0) {
        to_write_anew.emplace();
        set_up();
        return {};
    }
    Bits sealed = 0;
    bool is_sealed = false;
    Sums sums;
    if (found == tables_of_1) {
        read("SELECT name, type, value FROM items", false, content);
        to_write_anew = content.rows;
    } else if (!is_unsealed) {
        sums = read("SELECT name, type, value, checksum FROM items", true, content);
        is_sealed = read_seal(sealed);
        is_certain = is_sealed ? sealed == sums.computed || sealed == sums.stored : is_intact;
    }
    sum = sums.computed;

    if (!is_intact)
        return verdict;
    // A newer version seals with its own number. Where the seal is ours, or none of its time, the number is damaged.
    if (owner == application && version > format_version && !is_sealed && found != tables_of_1)
        throw Problem{naming(path) + " was written by a newer version: its format is " + std::to_string(version) +
                      ", known is " + std::to_string(format_version)};
    const bool is_written_by_us = owner == application && version == (is_unsealed ? 1 : format_version) &&
                                  (is_unsealed ? found == tables_of_1 : is_sealed && sealed == sums.computed);
    // A damaged head can forbid SQLite to write.
    if (!is_written_by_us || !content.lost.empty() || sqlite3_db_readonly(database.get(), "main") == 1)
        return "its content is not what a store writes";
    return {};
}

File::Sums File::read(const char* sql, bool has_checksums, Content& content)
{
    Sums sums;
    const Statement rows = compile(sql);
    while (step(rows)) {
        Row row;
        bool is_right = take_row(rows.get(), row) && is_of_type(row.type, row.value);
        if (has_checksums) {
            const Bits computed = checksum(row.name, row.type, row.value);
            const Bits stored = column(rows.get(), 3);
            sums.computed += computed;
            sums.stored += stored;
            is_right &= computed == stored;
        }
        if (is_right)
            content.rows.push_back(std::move(row));
        else
            content.lost.push_back(std::move(row.name));
    }
    return sums;
}

/// False if the seal itself is damaged.
bool File::read_seal(Bits& sealed)
{
    const Statement row = compile("SELECT sum, checksum FROM seal");
    if (!step(row))
        return false;
    sealed = column(row.get(), 0);
    return column(row.get(), 1) == checksum_of_seal(sealed);
}

/// Lets a new file with these rows take its place. Its lock stays with the damaged one.
std::string File::give_way(const std::vector<Row>& rows)
{
    for (Statement* const statement : {&begin, &put, &seal, &commit})
        statement->reset(); // as long as there is one, SQLite closes nothing
    database.reset();
    try {
        return replace(path, [&](const std::string& successor) {
            File made(successor);
            made.to_write_anew = rows;
            made.is_checked = true;
            made.connect();
            made.set_up();
        });
    } catch (const Problem& problem) {
        throw Problem{naming(path) + immovable + (problem.system ? "" : ": " + problem.what), problem.system};
    }
}

Problem File::write(const std::vector<Change>& changes)
{
    failing = "cannot be written";
    try {
        if (lock.is_moved())
            throw Problem{naming(path) + " was deleted or replaced while it was open"};
        set_up();
        fold_log_in(); // what the last attempt may have left: otherwise each one lengthens the log
        if (!changes.empty()) {
            put_changes(changes);
            fold_log_in();
        }
        return {};
    } catch (const Problem& problem) {
        if (!sqlite3_get_autocommit(database.get()))
            sqlite3_exec(database.get(), "ROLLBACK", nullptr, nullptr, nullptr);
        return problem;
    }
}

/// What has to be written before anything else, but not before all is read: a disk that takes nothing keeps nobody from
/// reading.
void File::set_up()
{
    if (is_set_up)
        return;
    // On the disk when it is said to be; also the removal of the journal by which the next step begins a log.
    execute("PRAGMA synchronous=EXTRA");
    execute("PRAGMA journal_mode=WAL");
    execute("PRAGMA wal_autocheckpoint=0");
    begin = compile("BEGIN IMMEDIATE");
    commit = compile("COMMIT");
    if (to_write_anew)
        write_anew();
    else
        compile_puts();
    fold_log_in();
    sqlite3_db_config(database.get(), SQLITE_DBCONFIG_NO_CKPT_ON_CLOSE, 0, nullptr);
    is_set_up = true;
}

/// The first step of a new file, journal_mode, is not part of the transaction, and leaves an empty database.
void File::write_anew()
{
    step(begin);
    execute("DROP TABLE IF EXISTS items");
    execute(items_table);
    execute(seal_table);
    compile_puts();
    sum = 0;
    for (const Row& row : *to_write_anew) {
        put_row(row.name, row.type, row.value);
        sum += checksum(row.name, row.type, row.value);
    }
    put_seal(sum);
    execute(("PRAGMA application_id=" + std::to_string(application)).c_str());
    execute(("PRAGMA user_version=" + std::to_string(format_version)).c_str());
    step(commit);
    to_write_anew.reset();
}

void File::compile_puts()
{
    put = compile("INSERT OR REPLACE INTO items(name, type, value, checksum) VALUES(?, ?, ?, ?)");
    seal = compile("INSERT OR REPLACE INTO seal(rowid, sum, checksum) VALUES(1, ?, ?)");
}

void File::put_changes(const std::vector<Change>& changes)
{
    Bits new_sum = sum;
    step(begin);
    for (const Change& change : changes) {
        put_row(*change.record->name, change.type, change.value);
        new_sum += checksum(*change.record->name, change.type, change.value) - change.record->checksum;
    }
    put_seal(new_sum);
    step(commit);
    sum = new_sum;
    for (const Change& change : changes)
        change.record->checksum = checksum(*change.record->name, change.type, change.value);
}

void File::put_row(const std::string& name, Data_item::item_type_t type, Bits value)
{
    sqlite3_bind_text64(put.get(), 1, name.data(), name.size(), SQLITE_STATIC, SQLITE_UTF8);
    sqlite3_bind_int64(put.get(), 2, type);
    if (is_floating(type))
        sqlite3_bind_double(put.get(), 3, from_bits<double>(value));
    else
        sqlite3_bind_int64(put.get(), 3, from_bits<sqlite3_int64>(value));
    sqlite3_bind_int64(put.get(), 4, from_bits<sqlite3_int64>(checksum(name, type, value)));
    step(put);
}

void File::put_seal(Bits sealed)
{
    sqlite3_bind_int64(seal.get(), 1, from_bits<sqlite3_int64>(sealed));
    sqlite3_bind_int64(seal.get(), 2, from_bits<sqlite3_int64>(checksum_of_seal(sealed)));
    step(seal);
}

/// Brings what the log has into the database. SQLite takes a damaged log for a shorter one and says nothing, so no
/// transaction that is said to be on the disk is in the log alone. The next one overwrites the log from its beginning.
void File::fold_log_in()
{
    errno = 0;
    const int result = sqlite3_wal_checkpoint_v2(database.get(), "main", SQLITE_CHECKPOINT_PASSIVE, nullptr, nullptr);
    if (result != SQLITE_OK)
        fail(errno);
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
    const int code = sqlite3_extended_errcode(database.get());
    switch (code & 0xFF) {
    case SQLITE_FULL:
        throw Problem::refused(what, ENOSPC);
    case SQLITE_CANTOPEN:
    case SQLITE_READONLY:
        // After the first refusal SQLite tries other ways, and says what became of those.
        if (const int forbidden = forbids(fs::path(path).parent_path(), W_OK | X_OK))
            throw Problem::refused(what, forbidden);
        break;
    case SQLITE_IOERR:
        if (!is_checked && code == SQLITE_IOERR_READ) // a part of the disk is gone
            throw Damage{message};
        break;
    case SQLITE_NOTADB:
    case SQLITE_CORRUPT:
    case SQLITE_ERROR: // tables that SQLite does not understand
        if (!is_checked)
            throw Damage{message};
        [[fallthrough]];
    default:
        error = 0;
    }
    throw error != 0 ? Problem::refused(what, error) : Problem{what + ": " + message};
}

} // namespace NV_store
