#ifndef TERMINAL_COMMANDS_H
#define TERMINAL_COMMANDS_H

#include "iso11783/Function.h"
#include "terminal/Live_pool.h"

#include <array>
#include <cstddef>
#include <cstdint>

namespace terminal {

/// A message of the usual length; what a message does not use is 0xFF.
using Frame = std::array<std::uint8_t, Iso::frame_size>;

/// A command by which an application changes its live pool (the functions from 0xA0 to 0xBF), and how it is answered:
/// with its own function, the bytes that identify what was to be changed, and an error byte.
struct Command
{
    Iso::Function function;
    std::uint8_t size;       ///< a shorter message is not this command
    std::uint8_t echo_from;  ///< in the command
    std::uint8_t echo_to;    ///< in the answer
    std::uint8_t echo_count; ///< bytes
    std::uint8_t error_at;   ///< in the answer

    /// Changes the pool, or leaves it as it was and returns error bits other than 0.
    std::uint8_t (*execute)(Live_pool& pool, const std::uint8_t* message, std::size_t count);

    Frame run(Live_pool& pool, const std::uint8_t* message, std::size_t count) const;
};

/// The command of that function, or nullptr.
const Command* find_command(std::uint8_t function);

} // namespace terminal

#endif
