#ifndef TERMINAL_LIVE_POOL_H
#define TERMINAL_LIVE_POOL_H

#include "terminal/Nesting.h"
#include "terminal/Object_pool.h"

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace terminal {

/// The pool that the terminal shows. What it holds has passed every check, and each change keeps it so: a change that
/// would break a rule of the pool is refused and leaves everything as it was.
class Live_pool
{
  public:
    /// Adds uploaded records: an object of an id that the pool has already is replaced. If the result is faulty or
    /// takes more than `memory` bytes, the pool stays as it was.
    Pool_fault load(std::vector<std::uint8_t> records, std::size_t memory);
    void clear();
    /// Whether the object came with the last upload that was taken.
    bool was_uploaded_last(Object object) const { return pool.offset(object) < last_upload; }

    const Object_pool& objects() const { return pool; }
    Object working_set() const { return pool.find(working_set_id); }
    /// Changes whenever anything in the pool does.
    std::uint32_t revision() const { return n_changes; }

    /// Writes a field; false if the type has no such field, or the value may not stand there.
    bool set(Object object, Field field, std::uint32_t value);

    /// Writes the text of a string, the rest of its room filled up with spaces; false if the room is too small.
    bool set_text(Object object, std::string_view text);

    /// Moves the child of that index in the list of `parent`.
    void move_child(Object parent, std::size_t index, std::int16_t x, std::int16_t y);

  private:
    bool point(Object pointer, Iso::Object_id target);

    Object_pool pool;
    Nesting nesting; ///< the measures of `pool`
    Iso::Object_id working_set_id = Iso::null_id;
    std::size_t last_upload = 0; ///< bytes, with which `pool` begins
    std::uint32_t n_changes = 0;
};

} // namespace terminal

#endif
