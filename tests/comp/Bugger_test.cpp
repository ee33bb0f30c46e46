#include "tests/Death.h"
#include "util/Bugger.h"
#include "util/Fatal.h"

#include <gtest/gtest.h>

#include <csignal>
#include <cstdio>
#include <cstdlib>

namespace {

std::string bug_assertion()
{
    return death::assertion_text("false", "../../../../util/Bugger", 42, "static void Bugger::report_bug(const char*)");
}

death::Words words(const std::string& all) { return ::testing::Eq(all); }

void report_with_joined_output(const char* text)
{
    death::join_output_and_error();
    Bugger::report_bug(text);
}

void report_with_silenced_output(const char* text)
{
    if (!std::freopen("/dev/null", "w", stdout))
        std::exit(3);
    Bugger::report_bug(text);
}

TEST(BuggerDeathTest, PrintsTheBugWithCarriageReturnAndLineFeedBeforeItAborts)
{
    EXPECT_DEATH(report_with_joined_output("CDS: Tried to set with no init"),
                 words("BUG: CDS: Tried to set with no init\r\n" + bug_assertion()));
}

TEST(BuggerDeathTest, PrintsTheBugOnStandardOutputAndTheAssertionOnStandardError)
{
    EXPECT_DEATH(report_with_silenced_output("CDS: Tried to set with no init"), words(bug_assertion()));
}

TEST(BuggerDeathTest, PrintsTheTextAsItIs)
{
    EXPECT_DEATH(report_with_joined_output("100 %s"), words("BUG: 100 %s\r\n" + bug_assertion()));
    EXPECT_DEATH(report_with_joined_output(""), words("BUG: \r\n" + bug_assertion()));
}

TEST(BuggerDeathTest, Aborts)
{
    EXPECT_EXIT(report_with_silenced_output("x"), ::testing::KilledBySignal(SIGABRT), words(bug_assertion()));
}

TEST(FatalDeathTest, AnAssertionSaysSourceLineFunctionAndConditionAndAborts)
{
    EXPECT_EXIT(Fatal::assertion("max > min", "../a/b", 37, "void f(int)"), ::testing::KilledBySignal(SIGABRT),
                death::assertion("max > min", "../a/b", 37, "void f(int)"));
}

TEST(FatalDeathTest, AConfigurationErrorIsOneLineAndStatus255)
{
    EXPECT_FATAL_ERROR(Fatal::configuration("No 'x'."), "No 'x'.");
}

void fail_with_an_exit_handler()
{
    std::atexit([] { std::fputs("exit handler\n", stderr); });
    Fatal::configuration("No.");
}

TEST(FatalDeathTest, AConfigurationErrorRunsTheExitHandlers)
{
    EXPECT_EXIT(fail_with_an_exit_handler(), ::testing::ExitedWithCode(255),
                words("FATAL ERROR!  No.\nexit handler\n"));
}

} // namespace
