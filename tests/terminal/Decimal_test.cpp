#include "terminal/Decimal.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

namespace terminal {
namespace {

/// As it was read, with a dot for the point; or "none".
std::string read_back(std::string_view text)
{
    const auto number = read_number(text);
    if (!number)
        return "none";
    return (number->negative ? "-" : "") + std::string(number->whole) + "." + std::string(number->fraction);
}

int compared(std::string_view a, std::string_view b) { return compare(read_number(a).value(), read_number(b).value()); }

std::int64_t steps(std::string_view number, const Decimal& step)
{
    return count_steps(read_number(number).value(), step);
}

TEST(Decimal, IsTheShortestNumberThatMakesTheFloat)
{
    const auto expect = [](float number, std::int64_t digits, int exponent) {
        const Decimal decimal = shortest(number);
        EXPECT_EQ(decimal.digits, digits) << number;
        EXPECT_EQ(decimal.exponent, exponent) << number;
    };
    expect(0.01f, 1, -2);
    expect(-2.5f, -25, -1);
    expect(1e6f, 1, 6);
    expect(16777216, 16777216, 0);
    expect(0, 0, 0);
    expect(-0.0f, 0, 0);
    expect(std::numeric_limits<float>::max(), 34028235, 31);
    expect(std::numeric_limits<float>::denorm_min(), 1, -45);
}

TEST(WrittenNumber, HasASignDigitsAndAPointOrComma)
{
    EXPECT_EQ(read_back("12.5"), "12.5");
    EXPECT_EQ(read_back("12,5"), "12.5");
    EXPECT_EQ(read_back("-3"), "-3.");
    EXPECT_EQ(read_back("+3"), "3.");
    EXPECT_EQ(read_back(".5"), ".5");
    EXPECT_EQ(read_back("-,5"), "-.5");
    EXPECT_EQ(read_back("5."), "5.");
    EXPECT_EQ(read_back("  7 \t\r\n"), "7.");
}

TEST(WrittenNumber, HasNoZerosAroundItAndNoNegativeZero)
{
    EXPECT_EQ(read_back("007"), "7.");
    EXPECT_EQ(read_back("0100.0100"), "100.01");
    EXPECT_EQ(read_back("-000.000"), ".");
    EXPECT_EQ(read_back("-0.01"), "-.01");
    EXPECT_EQ(read_back(std::string(100000, '0') + "1"), "1.");
}

TEST(WrittenNumber, IsNothingElse)
{
    for (const char* text : {"",
                             " ",
                             "-",
                             "+",
                             ".",
                             ",",
                             "-.",
                             "abc",
                             "1a",
                             "a1",
                             "1 2",
                             "- 1",
                             "--1",
                             "+-1",
                             "1-",
                             "1.2.3",
                             "1,2.3",
                             "1.-2",
                             "1e3",
                             "0x10",
                             "inf",
                             "nan",
                             "\xE2\x88\x92"
                             "3",
                             "\xC2\xA0"
                             "3"})
        EXPECT_EQ(read_back(text), "none") << text;
    EXPECT_FALSE(read_number(std::string_view("1\0", 2)));
}

TEST(WrittenNumber, ComparesAsANumber)
{
    // Each is less than the ones behind it.
    const char* const order[] = {"-100", "-20", "-3.5", "-3.05", "-3",  "-0.1", "-0.01", "0",
                                 "0.01", "0.1", "3",    "3.05",  "3.5", "20",   "100"};
    for (std::size_t i = 0; i < std::size(order); ++i) {
        for (std::size_t k = 0; k < std::size(order); ++k) {
            const int result = compared(order[i], order[k]);
            EXPECT_EQ((result > 0) - (result < 0), (i > k) - (i < k)) << order[i] << " " << order[k];
        }
    }
    EXPECT_EQ(compared("01.50", "+1,5"), 0);
    EXPECT_EQ(compared("-0", "0"), 0);
}

TEST(Steps, AreCountedToTheNearestWithHalvesAwayFromZero)
{
    constexpr Decimal tenth{1, -1};
    EXPECT_EQ(steps("12.5", tenth), 125);
    EXPECT_EQ(steps("12.54", tenth), 125);
    EXPECT_EQ(steps("12.549999999999999999999999", tenth), 125);
    EXPECT_EQ(steps("12.55", tenth), 126);
    EXPECT_EQ(steps("-12.55", tenth), -126);
    EXPECT_EQ(steps("-12.549", tenth), -125);
    EXPECT_EQ(steps("0.05", tenth), 1);
    EXPECT_EQ(steps("0.049", tenth), 0);
    EXPECT_EQ(steps("0", tenth), 0);
    constexpr Decimal three{3, 0};
    EXPECT_EQ(steps("1.4", three), 0);
    EXPECT_EQ(steps("1.4999", three), 0);
    EXPECT_EQ(steps("1.5", three), 1);
    EXPECT_EQ(steps("4.49", three), 1);
    EXPECT_EQ(steps("4.5", three), 2);
    EXPECT_EQ(steps("4.5", {-3, 0}), -2);
    EXPECT_EQ(steps("-4.5", {-3, 0}), 2);
    EXPECT_EQ(steps("0.125", {25, -2}), 1);
    EXPECT_EQ(steps("0.12", {25, -2}), 0);
    EXPECT_EQ(steps("499999", {1, 6}), 0);
    EXPECT_EQ(steps("500000", {1, 6}), 1);
    EXPECT_EQ(steps("499999.9", {1, 6}), 0);
    EXPECT_EQ(steps("5", {1, 2}), 0) << "5 is a half of 10, not of 100";
}

TEST(Steps, AreExactFarBeyondWhatADoubleHolds)
{
    EXPECT_EQ(steps("6442450942.000", {1, -3}), 6442450942000);
    EXPECT_EQ(steps("8589934591", {1, 0}), 8589934591);
    EXPECT_EQ(steps("8589934591499999999999999999999", {1, 21}), 8589934591);
    EXPECT_EQ(steps("8589934591500000000000000000000", {1, 21}), 8589934592);
    EXPECT_EQ(steps("0.00000000000000000000000000000000000000000000123456", {1, -50}), 123456);
}

TEST(Steps, AreMoreThanAnyFieldHasForATextOfAnyLength)
{
    constexpr std::int64_t many = std::int64_t{1} << 40;
    EXPECT_GT(steps(std::string(100000, '9'), {1, 0}), many);
    EXPECT_LT(steps("-" + std::string(100000, '9'), {999999999, 30}), -many);
    EXPECT_GT(steps("1" + std::string(1000, '0') + ".5", {1, -45}), many);
    EXPECT_EQ(steps("0." + std::string(100000, '0') + "1", {1, -45}), 0);
    EXPECT_EQ(steps("2." + std::string(100000, '9'), {1, 0}), 3);
    EXPECT_EQ(steps("2.4" + std::string(100000, '9'), {1, 0}), 2);
}

} // namespace
} // namespace terminal
