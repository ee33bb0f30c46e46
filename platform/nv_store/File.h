#ifndef NV_STORE_FILE_H
#define NV_STORE_FILE_H

#include "nv_store/Bits.h"
#include "nv_store/Lock.h"
#include "nv_store/Problem.h"
#include "nv_store/Row.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

struct sqlite3;
struct sqlite3_stmt;

namespace NV_store {

struct Record;

/// A store's file while it is open: a database with a table of items, each with a checksum, and the sum of all
/// checksums, which seals it. One thread at a time uses it. Nobody else can open it meanwhile.
class File
{
  public:
    struct Content
    {
        std::vector<Row> rows;
        std::vector<std::string> lost; ///< names under which a damaged file has something else than what was written
        std::string put_aside;         ///< the new name of the damaged file
    };
    struct Change
    {
        Record* record;
        Data_item::item_type_t type;
        Bits value;
    };

    /// Absolute, and free of symbolic links: what belongs to the file lies beside it.
    static std::string whole_path(const std::string& path);

    /// Opens or makes the file and reads all of it. Gives a damaged one another name and makes a new one, with what is
    /// certain of the damaged one. Throws what Problem::raise() throws.
    static std::unique_ptr<File> open(const std::string& path, Content& content);

    /// All changes in one transaction. They are on the disk when it returns, or none is.
    Problem write(const std::vector<Change>& changes);

    ~File();
    File(const File&) = delete;
    File& operator=(const File&) = delete;

  private:
    /// The content is not what a store writes.
    struct Damage
    {
        std::string what;
    };
    /// Of the checksums of all rows.
    struct Sums
    {
        Bits computed{0};
        Bits stored{0};
    };
    struct Close
    {
        void operator()(sqlite3* database) const;
        void operator()(sqlite3_stmt* statement) const;
    };
    using Statement = std::unique_ptr<sqlite3_stmt, Close>;

    /// Throws a Problem. All that follows throws a Problem or Damage, but examine() no Damage.
    explicit File(const std::string& path);

    void connect();
    std::string examine(Content& content);
    std::string judge(Content& content, bool& is_certain);
    Sums read(const char* sql, bool has_checksums, Content& content);
    bool read_seal(Bits& sealed);

    std::string give_way(const std::vector<Row>& rows);
    void set_up();
    void write_anew();
    void compile_puts();
    void put_changes(const std::vector<Change>& changes);
    void put_row(const std::string& name, Data_item::item_type_t type, Bits value);
    void put_seal(Bits sealed);
    void fold_log_in();

    void execute(const char* sql);
    std::string ask(const char* sql);
    long number(const char* sql) { return std::stol(ask(sql)); }
    Statement compile(const char* sql);
    bool step(const Statement& statement);
    /// `error` is the system's, if there is one.
    [[noreturn]] void fail(int error) const;

    const std::string path;
    Lock lock;
    const char* failing{"cannot be opened"};
    bool is_checked{false};
    bool is_set_up{false};
    std::optional<std::vector<Row>> to_write_anew; ///< with checksums
    Bits sum{0};                                   ///< of the checksums of all rows
    std::unique_ptr<sqlite3, Close> database;      // outlives the statements
    Statement begin;
    Statement put;
    Statement seal;
    Statement commit;
};

} // namespace NV_store

#endif
