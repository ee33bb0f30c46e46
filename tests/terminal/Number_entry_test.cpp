#include "terminal/Number_entry.h"

#include <gtest/gtest.h>

#include <limits>
#include <random>
#include <string>
#include <utility>

namespace terminal {
namespace {

constexpr std::uint32_t most = 0xFFFFFFFF;

Number_format scaled(float scale, int decimals, std::int32_t offset = 0)
{
    Number_format format;
    format.scale = scale;
    format.decimals = decimals;
    format.offset = offset;
    return format;
}

/// The raw value that is read, or the refusal.
std::string read(const Number_entry& entry, std::string_view text)
{
    const Number_entry::Reading reading = entry.read(text);
    return reading.refusal.empty() ? std::to_string(reading.value) : reading.refusal;
}

std::string read(const Number_format& format, std::string_view text) { return read({format, 0, 0, most}, text); }

TEST(NumberEntry, ShowsValueAndLimitsAsTheFieldDoes)
{
    const Number_entry entry(scaled(0.1f, 1, -100), 1234, 50, 2000);
    EXPECT_EQ(entry.value(), "113.4");
    EXPECT_EQ(entry.lowest(), "-5.0");
    EXPECT_EQ(entry.highest(), "190.0");
    EXPECT_EQ(entry.decimals(), 1);
}

TEST(NumberEntry, ShowsPlainNumbersWhateverTheFieldMakesOfThem)
{
    Number_format format = scaled(0.01f, 2);
    format.exponential = true;
    format.leading_zeros = true;
    format.zero_as_blank = true;
    const Number_entry entry(format, 0, 0, 123456);
    EXPECT_EQ(entry.value(), "0.00");
    EXPECT_EQ(entry.highest(), "1234.56");
    format.truncate = true;
    format.decimals = 1;
    EXPECT_EQ(Number_entry(format, 129, 0, 200).value(), "1.2");
}

TEST(NumberEntry, HasTheMaximumAsItsLowestNumberWhereTheScaleIsNegative)
{
    const Number_entry entry(scaled(-0.5f, 1), 4, 2, 10);
    EXPECT_EQ(entry.lowest(), "-5.0");
    EXPECT_EQ(entry.highest(), "-1.0");
    EXPECT_EQ(read(entry, "-5"), "10");
    EXPECT_EQ(read(entry, "-1"), "2");
    EXPECT_EQ(read(entry, "-3.3"), "7");
    EXPECT_EQ(read(entry, "-3.25"), "7") << "halfway, and further from zero";
    EXPECT_EQ(read(entry, "-5.5"), "the entry is below the lowest number, -5.0");
    EXPECT_EQ(read(entry, "0"), "the entry is above the highest number, -1.0");
}

TEST(NumberEntry, ReadsWhatPeopleWrite)
{
    const Number_format tenths = scaled(0.1f, 1, -1000);
    EXPECT_EQ(read(tenths, "12.5"), "1125");
    EXPECT_EQ(read(tenths, "12,5"), "1125");
    EXPECT_EQ(read(tenths, "-3"), "970");
    EXPECT_EQ(read(tenths, "+3"), "1030");
    EXPECT_EQ(read(tenths, ".5"), "1005");
    EXPECT_EQ(read(tenths, " 12.5  "), "1125");
}

TEST(NumberEntry, TakesTheNearestStepAndHalvesAwayFromZero)
{
    const Number_format tenths = scaled(0.1f, 1, -1000);
    EXPECT_EQ(read(tenths, "0.04"), "1000");
    EXPECT_EQ(read(tenths, "0.05"), "1001");
    EXPECT_EQ(read(tenths, "-0.04"), "1000");
    EXPECT_EQ(read(tenths, "-0.05"), "999");
    EXPECT_EQ(read(tenths, "-0.15"), "998");
    EXPECT_EQ(read(scaled(0.3f, 1), "0.45"), "2");
    EXPECT_EQ(read(scaled(0.3f, 1), "0.4499999999"), "1");
    EXPECT_EQ(read(scaled(5, 0), "12"), "2");
    EXPECT_EQ(read(scaled(5, 0), "12.5"), "3");
}

TEST(NumberEntry, SaysWhatIsNoNumber)
{
    for (const char* text : {"", "   ", "-", ".", "abc", "1e3", "1.2.3", "12 5"})
        EXPECT_EQ(read(scaled(1, 0), text), "the entry is not a number") << text;
}

TEST(NumberEntry, SaysWhichLimitIsMissed)
{
    const Number_entry entry(scaled(0.1f, 1, -100), 0, 50, 2000);
    EXPECT_EQ(read(entry, "-5"), "50");
    EXPECT_EQ(read(entry, "190"), "2000");
    EXPECT_EQ(read(entry, "-5.04"), "50") << "the nearest step is allowed";
    EXPECT_EQ(read(entry, "-5.05"), "the entry is below the lowest number, -5.0");
    EXPECT_EQ(read(entry, "190.04"), "2000");
    EXPECT_EQ(read(entry, "190.05"), "the entry is above the highest number, 190.0");
    EXPECT_EQ(read(entry, "4294967296000000000000"), "the entry is above the highest number, 190.0");
    EXPECT_EQ(read(entry, "-" + std::string(100000, '9')), "the entry is below the lowest number, -5.0");
}

TEST(NumberEntry, TakesNothingThatDoesNotFitIn32Bits)
{
    EXPECT_EQ(read(scaled(1, 0), "4294967295"), "4294967295");
    EXPECT_EQ(read(scaled(1, 0), "4294967296"), "the entry is above the highest number, 4294967295");
    EXPECT_EQ(read(scaled(1, 0), "-1"), "the entry is below the lowest number, 0");
    EXPECT_EQ(read(scaled(1, 0), "18446744073709551616"), "the entry is above the highest number, 4294967295");
}

TEST(NumberEntry, TakesAShownLimitThatIsRoundedToOutsideForTheLimit)
{
    const Number_entry quarters(scaled(0.25f, 1), 0, 1, 7);
    EXPECT_EQ(quarters.lowest(), "0.3");
    EXPECT_EQ(quarters.highest(), "1.8");
    EXPECT_EQ(read(quarters, "0.3"), "1");
    EXPECT_EQ(read(quarters, "1.8"), "7");

    const Number_entry coarse(scaled(0.25f, 0), 0, 1, 10);
    EXPECT_EQ(coarse.lowest(), "0");
    EXPECT_EQ(coarse.highest(), "3");
    EXPECT_EQ(read(coarse, "0"), "1");
    EXPECT_EQ(read(coarse, "3"), "10");
    EXPECT_EQ(read(coarse, "2.9"), "10") << "nobody understands that 2.9 is above 3";
    EXPECT_EQ(read(coarse, "0.05"), "1");
    EXPECT_EQ(read(coarse, "3.01"), "the entry is above the highest number, 3");
    EXPECT_EQ(read(coarse, "-0.01"), "the entry is below the lowest number, 0");
}

TEST(NumberEntry, RefusesEverythingWhereTheLimitsLeaveNothing)
{
    const Number_entry entry(scaled(0.5f, 1), 0, 10, 5);
    const std::string nothing = "no number is allowed: the lowest, 5.0, is above the highest, 2.5";
    for (const char* text : {"0", "2.5", "3", "5", "100"})
        EXPECT_EQ(read(entry, text), nothing) << text;
    EXPECT_EQ(read({scaled(-0.5f, 1), 0, 10, 5}, "-3"),
              "no number is allowed: the lowest, -2.5, is above the highest, -5.0");
    EXPECT_EQ(read({scaled(1, 0), 0, 7, 7}, "7"), "7");
}

TEST(NumberEntry, HasNoStepsWhereTheScaleIsNone)
{
    using Limits = std::numeric_limits<float>;
    for (const float scale : {0.0f, -0.0f, Limits::infinity(), -Limits::infinity(), Limits::quiet_NaN()}) {
        EXPECT_EQ(read(scaled(scale, 1), "0"), "this field has no steps");
        EXPECT_EQ(read(scaled(scale, 1), ""), "this field has no steps");
    }
    EXPECT_EQ(read(scaled(Limits::denorm_min(), 0), "1"), "the entry is above the highest number, 0");
    EXPECT_EQ(read(scaled(Limits::denorm_min(), 0), "0"), "0");
}

TEST(NumberEntry, IsExactAtTheEndsOf32Bits)
{
    constexpr std::int32_t lowest = std::numeric_limits<std::int32_t>::min();
    EXPECT_EQ(read(scaled(1, 0, lowest), "-2147483648"), "0");
    EXPECT_EQ(read(scaled(1, 0, lowest), "2147483647"), "4294967295");
    EXPECT_EQ(read(scaled(0.001f, 3, lowest), "-2147483.648"), "0");
    EXPECT_EQ(read(scaled(0.001f, 3, lowest), "2147483.647"), "4294967295");
    EXPECT_EQ(read(scaled(0.001f, 3, lowest), "2147483.6474"), "4294967295");
    EXPECT_EQ(read(scaled(0.001f, 3, lowest), "2147483.6475"), "the entry is above the highest number, 2147483.647");
    EXPECT_EQ(read(scaled(1e6f, 0, lowest), "2147483647000000"), "4294967295");
    EXPECT_EQ(read(scaled(1e6f, 0, lowest), "2147483646500000"), "4294967295");
    EXPECT_EQ(read(scaled(1e6f, 0, lowest), "2147483646499999"), "4294967294");
    EXPECT_EQ(read(scaled(1e6f, 0, lowest), "-2147483648499999"), "0");
    EXPECT_EQ(read(scaled(1, 0, std::numeric_limits<std::int32_t>::max()), "6442450942"), "4294967295");
}

/// Scales of 1, 2 and 5 in every decimal, any offset and any value, many of them near the ends of their ranges.
class RandomField
{
  public:
    std::uint32_t value()
    {
        constexpr std::uint32_t ends[] = {0, 0x7FFFFFFF, 0x80000000, most};
        const std::uint32_t any = below(most);
        const std::uint32_t near = ends[below(4)] + below(7) - 3;
        return below(2) == 0 ? any : near;
    }

    /// With all the decimals that its scale needs.
    Number_format format()
    {
        constexpr int steps[] = {1, 2, 5};
        const int decimals = static_cast<int>(below(8));
        const std::string text = std::to_string(steps[below(3)]) + "e-" + std::to_string(decimals);
        const float scale = std::stof(text);
        return scaled(below(2) == 0 ? scale : -scale, decimals, static_cast<std::int32_t>(value()));
    }

    std::uint32_t below(std::uint32_t end) { return static_cast<std::uint32_t>(random() % end); }

  private:
    std::mt19937 random{4711};
};

TEST(NumberEntry, ReadsBackWhatIsShownForAnyValue)
{
    RandomField any;
    for (int i = 0; i < 200'000; ++i) {
        Number_format format = any.format();
        const std::uint32_t value = any.value();
        format.truncate = any.below(2) == 0;
        const std::string shown(Number_text(value, format, 0).text());
        ASSERT_EQ(read(format, shown), std::to_string(value))
            << shown << " at " << format.scale << " after " << format.offset;
    }
}

TEST(NumberEntry, TakesEveryShownLimitForTheLimitHoweverFewDecimals)
{
    RandomField any;
    for (int i = 0; i < 200'000; ++i) {
        Number_format format = any.format();
        format.scale *= static_cast<float>(1 + any.below(9999));
        format.decimals = static_cast<int>(any.below(8));
        format.truncate = any.below(2) == 0;
        std::uint32_t minimum = any.value();
        std::uint32_t maximum = any.below(3) == 0 ? minimum + any.below(20) : any.value();
        if (minimum > maximum)
            std::swap(minimum, maximum);
        const Number_entry entry(format, minimum, minimum, maximum);
        for (const std::string& shown : {entry.lowest(), entry.highest()}) {
            const Number_entry::Reading reading = entry.read(shown);
            ASSERT_EQ(reading.refusal, "") << shown << " at " << format.scale;
            ASSERT_TRUE(reading.value >= minimum && reading.value <= maximum) << shown << " at " << format.scale;
        }
    }
}

} // namespace
} // namespace terminal
