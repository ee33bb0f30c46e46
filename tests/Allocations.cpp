#include "tests/Allocations.h"

#include <cstdlib>
#include <new>

namespace {
std::size_t count;
std::size_t bytes;
} // namespace

std::size_t allocations() { return count; }
std::size_t allocated_bytes() { return bytes; }

void* operator new(std::size_t size, const std::nothrow_t&) noexcept
{
    ++count;
    bytes += size;
    return std::malloc(size ? size : 1);
}

void* operator new(std::size_t size)
{
    if (void* const memory = operator new(size, std::nothrow))
        return memory;
    throw std::bad_alloc();
}

void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }
