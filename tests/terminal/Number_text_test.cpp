#include "terminal/Number_text.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

namespace terminal {
namespace {

std::string number(std::uint32_t value, const Number_format& format, int columns = 0)
{
    return std::string(Number_text(value, format, columns).text());
}

Number_format scaled(float scale, int decimals, std::int32_t offset = 0)
{
    Number_format format;
    format.scale = scale;
    format.decimals = decimals;
    format.offset = offset;
    return format;
}

TEST(NumberText, IsValuePlusOffsetTimesScale)
{
    EXPECT_EQ(number(0, {}), "0");
    EXPECT_EQ(number(123, {}), "123");
    EXPECT_EQ(number(4294967295, {}), "4294967295");
    EXPECT_EQ(number(100, scaled(2, 0, -30)), "140");
    EXPECT_EQ(number(1, scaled(0.5f, 2, 4)), "2.50");
}

TEST(NumberText, TakesTheSumSignedAndBeyond32Bits)
{
    EXPECT_EQ(number(5, scaled(1, 0, -7)), "-2");
    EXPECT_EQ(number(0, scaled(1, 0, std::numeric_limits<std::int32_t>::min())), "-2147483648");
    EXPECT_EQ(number(4294967295, scaled(1, 0, std::numeric_limits<std::int32_t>::max())), "6442450942");
    EXPECT_EQ(number(0x80000000 - 15, scaled(0.1f, 1, std::numeric_limits<std::int32_t>::min())), "-1.5");
}

TEST(NumberText, RoundsHalvesAwayFromZero)
{
    EXPECT_EQ(number(5, scaled(0.1f, 0)), "1");
    EXPECT_EQ(number(4, scaled(0.1f, 0)), "0");
    EXPECT_EQ(number(15, scaled(0.1f, 0)), "2");
    EXPECT_EQ(number(25, scaled(0.01f, 1)), "0.3");
    EXPECT_EQ(number(0, scaled(0.1f, 0, -15)), "-2");
    EXPECT_EQ(number(999, scaled(0.01f, 1)), "10.0");
}

TEST(NumberText, TruncatesTowardsZero)
{
    Number_format format = scaled(0.1f, 0);
    format.truncate = true;
    EXPECT_EQ(number(19, format), "1");
    format.offset = -38;
    EXPECT_EQ(number(19, format), "-1");
}

TEST(NumberText, TakesTheScaleAsTheDecimalNumberItWasWrittenAs)
{
    for (std::uint32_t value = 0; value < 1000; ++value) {
        Number_format format = scaled(0.01f, 2);
        format.truncate = true;
        char expected[8];
        std::snprintf(expected, sizeof expected, "%u.%02u", value / 100, value % 100);
        ASSERT_EQ(number(value, format), expected);
    }
    EXPECT_EQ(number(4294967295, scaled(0.01f, 2)), "42949672.95");
    EXPECT_EQ(number(3, scaled(16777217.0f, 0)), "50331648");
}

TEST(NumberText, ShowsAsManyDecimalsAsAsked)
{
    EXPECT_EQ(number(7, scaled(1, 3)), "7.000");
    EXPECT_EQ(number(7, scaled(0.001f, 7)), "0.0070000");
    EXPECT_EQ(number(7, scaled(1, 7)), "7.0000000");
    EXPECT_EQ(number(7, scaled(1, 255)), "7.0000000") << "seven is the most there is";
    EXPECT_EQ(number(7, scaled(1e-30f, 2)), "0.00");
}

TEST(NumberText, HasNoNegativeZero)
{
    EXPECT_EQ(number(0, scaled(0.01f, 1, -4)), "0.0");
    EXPECT_EQ(number(0, scaled(0.01f, 1, -5)), "-0.1");
    EXPECT_EQ(number(0, scaled(-1, 0)), "0");
}

TEST(NumberText, FillsWithZerosUpToTheColumnsOfItsField)
{
    Number_format format = scaled(1, 0);
    format.leading_zeros = true;
    EXPECT_EQ(number(42, format, 5), "00042");
    EXPECT_EQ(number(42, format, 2), "42");
    EXPECT_EQ(number(42, format, 0), "42");
    format.offset = -100;
    EXPECT_EQ(number(42, format, 5), "-0058");
    format.decimals = 1;
    EXPECT_EQ(number(142, format, 7), "00042.0");
    EXPECT_EQ(number(42, format, 65535).size(), 128u);
}

TEST(NumberText, IsBlankForZeroOnlyIfExactlyZero)
{
    Number_format format = scaled(0.1f, 0, -5);
    format.zero_as_blank = true;
    EXPECT_EQ(number(5, format), "");
    EXPECT_EQ(number(6, format), "0");
    format.leading_zeros = true;
    EXPECT_EQ(number(5, format, 4), "");
    EXPECT_EQ(number(7, scaled(0, 1)), "0.0");
    format.scale = 0;
    EXPECT_EQ(number(7, format), "");
}

TEST(NumberText, HasOneDigitBeforeThePointInExponentialFormat)
{
    Number_format format = scaled(1, 2);
    format.exponential = true;
    EXPECT_EQ(number(0, format), "0.00e+00");
    EXPECT_EQ(number(7, format), "7.00e+00");
    EXPECT_EQ(number(1500, format), "1.50e+03");
    EXPECT_EQ(number(12345, format), "1.23e+04");
    EXPECT_EQ(number(99950, format), "1.00e+05");
    EXPECT_EQ(number(4294967295, format), "4.29e+09");
    format.scale = 0.001f;
    EXPECT_EQ(number(15, format), "1.50e-02");
    format.offset = -30;
    EXPECT_EQ(number(15, format), "-1.50e-02");
    format.truncate = true;
    format.decimals = 0;
    EXPECT_EQ(number(11, format), "-1e-02");
    format.scale = 1e38f;
    EXPECT_EQ(number(40, format), "1e+39");
}

TEST(NumberText, HasNoNegativeZeroInExponentialFormatEither)
{
    Number_format format = scaled(-1, 1);
    format.exponential = true;
    EXPECT_EQ(number(0, format), "0.0e+00");
}

TEST(NumberText, IsBoundedForEveryScale)
{
    EXPECT_EQ(number(4294967295, scaled(std::numeric_limits<float>::max(), 7)),
              "1461501564315743250000000000000000000000000000000.0000000");
    EXPECT_EQ(number(1, scaled(std::numeric_limits<float>::denorm_min(), 7)), "0.0000000");
    EXPECT_EQ(number(1, scaled(std::numeric_limits<float>::infinity(), 1)), "inf");
    EXPECT_EQ(number(1, scaled(-std::numeric_limits<float>::infinity(), 1)), "-inf");
    EXPECT_EQ(number(1, scaled(std::numeric_limits<float>::infinity(), 1, -3)), "-inf");
    EXPECT_EQ(number(0, scaled(std::numeric_limits<float>::infinity(), 1)), "nan");
    EXPECT_EQ(number(1, scaled(std::numeric_limits<float>::quiet_NaN(), 1)), "nan");
}

} // namespace
} // namespace terminal
