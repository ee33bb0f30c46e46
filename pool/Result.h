#ifndef POOL_RESULT_H
#define POOL_RESULT_H

#include "iso11783/Export.h"
#include "iso11783/Object_type.h"

#include <cstdint>
#include <string>
#include <vector>

namespace VT {

/// What can be wrong with a pool, its loading, or a command to it.
enum class Error : std::uint8_t {
    none,
    no_working_set,    ///< nothing that was added is a working set
    two_working_sets,  ///< a pool has one root
    in_another_pool,   ///< the object belongs to another pool
    duplicate_id,      ///< two objects that came with the same id of their own
    too_many_objects,  ///< all 65,535 ids are given
    too_many_children, ///< a list of the object has more than 255 entries
    unknown_object,    ///< something is specified for an object that the pool does not have
    unknown_attribute, ///< something is specified for an attribute that the object does not have
    refused_value,     ///< a specified value that the attribute cannot hold
    unknown_colour,    ///< a symbolic colour that nobody knows
    does_not_fit,      ///< the object would leave 16-bit coordinates when the pool is scaled
    other_mask_size,   ///< the pool was scaled for a terminal of another size
    too_long_record,   ///< an object's record fits no message that the link carries
    unusable_terminal, ///< the terminal says something of itself that cannot be
    link_refused,      ///< the link took no more messages
    timed_out,         ///< the terminal did not answer
    not_enough_memory, ///< the terminal has no room for the pool
    rejected_pool,     ///< the terminal found a fault in the pool
    rejected_command,  ///< the terminal could not carry out a command
    suspicious_value,  ///< an object found a value that will hardly show what is meant
};

/// One thing that is wrong, and with which object.
struct Problem
{
    Error error;
    Iso::Object_id id;  ///< the object's, as far as it had one; otherwise the null id
    std::string object; ///< its name; an object without a name is called by its class and id, as in "container 17"
    std::string text;   ///< a sentence for a person, complete with the object's name
};

/// How preparing or loading a pool ended: true when there are no errors. Warnings do not keep a pool from working.
struct [[nodiscard]] Result
{
    std::vector<Problem> errors; ///< in the order they were found; where several are found at once, all of them
    std::vector<Problem> warnings;

    explicit operator bool() const { return errors.empty(); }

    /// Of the first error.
    Error error() const { return errors.empty() ? Error::none : errors.front().error; }
    /// All errors, a line each.
    VTUI_EXPORT std::string text() const;
};

} // namespace VT

#endif
