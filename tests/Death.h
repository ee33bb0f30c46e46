#ifndef TESTS_DEATH_H
#define TESTS_DEATH_H

#include <gtest/gtest.h>

#include <cerrno>
#include <string>
#include <unistd.h>

/// The last words of a process, complete: matchers for EXPECT_DEATH and EXPECT_EXIT that look at every byte on standard
/// error.
namespace death {

using Words = ::testing::Matcher<const std::string&>;

/// What the C library prints for a failed assertion.
inline std::string assertion_text(const std::string& condition, const std::string& source, unsigned line,
                                  const std::string& function)
{
    return std::string(program_invocation_short_name) + ": " + source + ":" + std::to_string(line) + ": " + function +
           ": Assertion `" + condition + "' failed.\n";
}

inline Words assertion(const std::string& condition, const std::string& source, unsigned line,
                       const std::string& function)
{
    return ::testing::Eq(assertion_text(condition, source, line, function));
}

/// A pool that cannot be: `message` without the words in front and without the line's end.
inline Words fatal_error(const std::string& message) { return ::testing::Eq("FATAL ERROR!  " + message + "\n"); }

/// Makes what goes to standard output arrive on standard error, in order.
inline void join_output_and_error() { dup2(STDERR_FILENO, STDOUT_FILENO); }

} // namespace death

/// The process ends as configuration errors end it: with exit(-1), and with `message` as its only words.
#define EXPECT_FATAL_ERROR(statement, message)                                                                         \
    EXPECT_EXIT(statement, ::testing::ExitedWithCode(255), death::fatal_error(message))

#endif
