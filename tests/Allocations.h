#ifndef TESTS_ALLOCATIONS_H
#define TESTS_ALLOCATIONS_H

#include <cstddef>

/// How often this program has called operator new.
std::size_t allocations();
/// And for how many bytes in all.
std::size_t allocated_bytes();

#endif
