#ifndef TERMINAL_INDIRECTION_H
#define TERMINAL_INDIRECTION_H

#include "terminal/Object_pool.h"

#include <cstdint>

namespace terminal {

/// What is drawn and touched in the place of an object: itself or, behind object pointers, what the last one points at.
/// Empty for an empty object, and where a pointer is null.
Object shown(const Object_pool& pool, Object object);

/// Where an object has its value or text: in its variable or, without one, in itself.
Object holder(const Object_pool& pool, Object object);

/// The number that a field, a check box or a list shows.
std::uint32_t number_value(const Object_pool& pool, Object object);

} // namespace terminal

#endif
