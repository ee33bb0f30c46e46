#ifndef TERMINAL_POOL_CHECK_H
#define TERMINAL_POOL_CHECK_H

#include "terminal/Object_pool.h"

#include <cstdint>

namespace terminal {

/// Whether a reference or a code may stand in a field: the null id, where it is allowed, or an object of an allowed
/// type; a code that is known. The fault names `object`.
Pool_fault check_field(const Object_pool& pool, Object object, const Constraint& constraint, std::uint32_t value);

/// Judges what the records of a pool say, each by itself: references lead to objects of the right type, codes are
/// known, pictures have their pixels, macros hold whole commands, there is one working set. How objects stand inside
/// each other is the matter of Nesting.
Pool_fault check_pool(const Object_pool& pool);

} // namespace terminal

#endif
