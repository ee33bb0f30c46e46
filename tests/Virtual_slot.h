#ifndef TESTS_VIRTUAL_SLOT_H
#define TESTS_VIRTUAL_SLOT_H

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <type_traits>

/// The place of a virtual member function in its class's virtual table, from 0. The pointer to such a member begins
/// with one more than the offset of the slot.
template <typename Member>
std::size_t virtual_slot(Member member)
{
    static_assert(std::is_member_function_pointer_v<Member>);
    std::uintptr_t word;
    std::memcpy(&word, &member, sizeof word);
    return (word - 1) / sizeof(void*);
}

#endif
