#ifndef TESTS_PLATFORM_READABLE_H
#define TESTS_PLATFORM_READABLE_H

#include <chrono>
#include <poll.h>

/// True if the descriptor becomes readable within `patience`.
inline bool is_readable(int descriptor, std::chrono::milliseconds patience = std::chrono::milliseconds(0))
{
    pollfd wanted{descriptor, POLLIN, 0};
    return poll(&wanted, 1, static_cast<int>(patience.count())) == 1;
}

#endif
