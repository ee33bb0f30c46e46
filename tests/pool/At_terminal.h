#ifndef TESTS_POOL_AT_TERMINAL_H
#define TESTS_POOL_AT_TERMINAL_H

#include "apps/Loopback_link.h"
#include "pool/Pool.h"
#include "tests/Bytes.h"

#include <vector>

/// All records that the terminal holds.
inline Bytes records_in(const terminal::Terminal& terminal)
{
    Bytes bytes;
    terminal.pool().for_each([&](const terminal::Object& object) {
        bytes.insert(bytes.end(), object.data(), object.data() + object.size());
    });
    return bytes;
}

/// The terminal's messages since the last call reach the pool.
inline void deliver(apps::Loopback_link& link, VT::Pool& pool)
{
    for (std::vector<std::uint8_t> message; link.receive(message, {});)
        pool.receive(message.data(), message.size());
}

#endif
