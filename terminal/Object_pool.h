#ifndef TERMINAL_OBJECT_POOL_H
#define TERMINAL_OBJECT_POOL_H

#include "iso11783/Object_type.h"
#include "terminal/Object.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace terminal {

/// Why a pool is refused, in the form in which the application is told.
struct Pool_fault
{
    enum Code : std::uint8_t {
        none = 0,
        not_supported = 1,  ///< an object type or a macro command that this terminal does not know
        missing_object = 2, ///< a reference to an object that is not in the pool
        other = 4,          ///< anything else: a broken record, a forbidden child, a loop, too much
        pool_deleted = 8,   ///< in addition: the terminal now holds no pool at all
    };

    Iso::Object_id parent = Iso::null_id; ///< the object that holds the faulty reference, or null
    Iso::Object_id object = Iso::null_id; ///< the faulty object
    std::uint8_t code = none;

    explicit operator bool() const { return code != none; }
};

/// The objects of a pool: their records as they were received, one after the other, and an index from id to record.
/// The record is the object: reading is reading its bytes, commands write into them. The pool owns the bytes.
class Object_pool
{
  public:
    /// Takes over `records` and indexes them. On a fault the pool is empty. Only the records by themselves are
    /// judged (complete, of a known type, each id once); what they say is the matter of check_pool().
    Pool_fault parse(std::vector<std::uint8_t> records);

    /// Adds the objects of `older` whose ids are not taken here, behind the records that are here.
    void keep_others_of(const Object_pool& older);

    bool empty() const { return bytes.empty(); }
    /// Of all records, in bytes.
    std::size_t size() const { return bytes.size(); }
    /// One more than the greatest id.
    std::size_t id_end() const { return index.size(); }

    /// The object, or an empty one if the pool has none of that id (as it has none of the null id).
    Object find(Iso::Object_id id) const { return has(id) ? Object(bytes.data() + index[id]) : Object(); }

    /// Where the record of an object of this pool starts.
    std::size_t offset(Object object) const { return static_cast<std::size_t>(object.data() - bytes.data()); }

    /// Calls `visit(Object)` for every object in the order of ids.
    template <typename Visit>
    void for_each(Visit visit) const
    {
        for (const std::uint32_t start : index) {
            if (start != no_record)
                visit(Object(bytes.data() + start));
        }
    }

    /// The byte at `place`, which is inside the record of an object of this pool, to be written.
    std::uint8_t* writable(const std::uint8_t* place) { return bytes.data() + (place - bytes.data()); }

    /// Overwrites a field of an object of this pool. The value fits, and keeps the pool as check_pool() found it.
    void write(Object object, Slot slot, std::uint32_t value);

  private:
    static constexpr std::uint32_t no_record = 0xFFFFFFFF;

    bool has(Iso::Object_id id) const { return id < index.size() && index[id] != no_record; }

    std::vector<std::uint8_t> bytes;
    std::vector<std::uint32_t> index; ///< by id: where the record starts, or no_record
};

} // namespace terminal

#endif
