#ifndef TESTS_TERMINAL_SESSION_H
#define TESTS_TERMINAL_SESSION_H

#include "Records.h"

#include "terminal/Terminal.h"

#include <gtest/gtest.h>

#include <vector>

/// A terminal and the application's end of the line to it.
struct Session
{
    explicit Session(const terminal::Hardware& hardware = {})
        : terminal(hardware, [this](const std::uint8_t* message, std::size_t count) {
              sent.emplace_back(message, message + count);
          })
    {}

    Session(const Session&) = delete;

    /// What the terminal sends in answer to a message; empty if nothing.
    Bytes ask(const Bytes& message)
    {
        sent.clear();
        terminal.receive(message.data(), message.size());
        EXPECT_LE(sent.size(), 1u);
        return sent.empty() ? Bytes() : sent[0];
    }

    Bytes transfer(const Bytes& pool) { return ask(join(0x11, pool)); }
    Bytes end() { return ask(join(0x12, records::repeat(7, 0xFF))); }

    Bytes load(const Bytes& pool)
    {
        EXPECT_TRUE(transfer(pool).empty());
        return end();
    }

    std::vector<Bytes> sent;
    terminal::Terminal terminal;
};

/// The beginning of a message, filled up to eight bytes.
template <typename... Parts>
Bytes message(const Parts&... parts)
{
    Bytes bytes = join(parts...);
    if (bytes.size() < Iso::frame_size)
        bytes.resize(Iso::frame_size, 0xFF);
    return bytes;
}

inline const Bytes accepted = message(0x12, 0, 0xFF, 0xFF, 0xFF, 0xFF, 0);

#endif
