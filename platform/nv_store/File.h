#ifndef NV_STORE_FILE_H
#define NV_STORE_FILE_H

#include "nv_store/Bits.h"
#include "nv_store/Data_item.h"
#include "nv_store/Problem.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

struct sqlite3;
struct sqlite3_stmt;

namespace NV_store {

struct Record;

/// A store's file while it is open: a database with one table of names, types and values. One thread at a time uses it.
/// Nobody else can open it meanwhile, in this process or another.
class File
{
  public:
    struct Row
    {
        std::string name;
        Data_item::item_type_t type;
        Bits value;
        bool is_readable; ///< the value is a number of the type's kind
    };
    struct Change
    {
        Record* record;
        Data_item::item_type_t type;
        Bits value;
    };

    /// Absolute, and free of symbolic links: what belongs to the file lies beside it.
    static std::string whole_path(const std::string& path);
    /// How messages begin.
    static std::string naming(const std::string& path) { return "non-volatile store \"" + path + "\""; }

    /// Opens or makes the file. Gives a damaged one another name, `put_aside`, and makes a new one. Throws what
    /// Problem::raise() throws.
    static std::unique_ptr<File> open(const std::string& path, std::string& put_aside);

    /// All of it. Throws as open() does.
    void read(const std::function<void(const Row& row)>& take);
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
    struct Close
    {
        void operator()(sqlite3* database) const;
        void operator()(sqlite3_stmt* statement) const;
    };
    using Statement = std::unique_ptr<sqlite3_stmt, Close>;

    /// Throws a Problem or Damage.
    explicit File(const std::string& path);

    void check_or_make();
    void make();
    void prepare();
    void store(const Change& change);

    void execute(const char* sql);
    std::string ask(const char* sql);
    long number(const char* sql) { return std::stol(ask(sql)); }
    Statement compile(const char* sql);
    bool step(const Statement& statement);
    /// `error` is the system's, if there is one.
    [[noreturn]] void fail(int error) const;

    const std::string path;
    const char* failing{"cannot be opened"};
    bool is_checked{false};
    std::unique_ptr<sqlite3, Close> database; // outlives the statements
    Statement begin;
    Statement put;
    Statement commit;
};

} // namespace NV_store

#endif
