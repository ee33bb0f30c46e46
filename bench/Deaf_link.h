#ifndef BENCH_DEAF_LINK_H
#define BENCH_DEAF_LINK_H

#include "apps/Loopback_link.h"

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <vector>

/// The way to a terminal that loads the pool and is deaf afterwards: what follows is the pool's work alone.
class Deaf_link final : public VT::Client::Terminal_link
{
  public:
    bool send(const std::uint8_t* message, std::size_t size) override
    {
        ++sent;
        return deaf || link.send(message, size);
    }
    bool receive(std::vector<std::uint8_t>& message, std::chrono::milliseconds timeout) override
    {
        return link.receive(message, timeout);
    }

    bool deaf{false};
    std::uint64_t sent{0}; ///< messages

  private:
    apps::Loopback_link link;
};

#endif
