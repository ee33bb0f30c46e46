#ifndef NV_STORE_PROBLEM_H
#define NV_STORE_PROBLEM_H

#include <stdexcept>
#include <string>
#include <system_error>

namespace NV_store {

/// What went wrong with a file, or nothing. A value, so that it can wait for whoever asks.
struct Problem
{
    std::string what{};       ///< names the file; empty: nothing went wrong
    std::error_code system{}; ///< why the system refused, if that is it

    /// `error` is the system's number, 0 if it gave none.
    static Problem refused(const std::string& what, int error) { return {what, {error, std::generic_category()}}; }

    explicit operator bool() const { return !what.empty(); }
    std::string text() const { return system ? what + ": " + system.message() : what; }
    [[noreturn]] void raise() const
    {
        if (system)
            throw std::system_error(system, what);
        throw std::runtime_error(what);
    }
};

/// How messages about a file begin.
inline std::string naming(const std::string& path) { return "non-volatile store \"" + path + "\""; }

} // namespace NV_store

#endif
