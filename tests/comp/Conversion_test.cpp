#include "util/Conversion.h"

#include <gtest/gtest.h>

#include <emmintrin.h>

#include <cmath>
#include <initializer_list>
#include <limits>

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double nan = std::numeric_limits<double>::quiet_NaN();
constexpr double tiny = std::numeric_limits<double>::denorm_min();
constexpr double huge = std::numeric_limits<double>::max();

constexpr std::int32_t lowest_32 = std::numeric_limits<std::int32_t>::min();
constexpr std::int64_t lowest_64 = std::numeric_limits<std::int64_t>::min();
constexpr std::uint64_t top_bit = 0x8000000000000000U;

double below(double value) { return std::nextafter(value, -infinity); }
double above(double value) { return std::nextafter(value, infinity); }

// What the language leaves undefined the processor does as it should, and no test would see it: but the compiler does
// not accept it in a constant.
static_assert(Conversion::to_int32(0x1.FFFFFFFFFFFFFp30) == 2147483647);
static_assert(Conversion::to_int32(2147483648.0) == lowest_32);
static_assert(Conversion::to_int32(-2147483648.0) == lowest_32);
static_assert(Conversion::to_int32(-0x1.00000001FFFFFp31) == lowest_32); // the last that is cut off
static_assert(Conversion::to_int32(-2147483649.0) == lowest_32);
static_assert(Conversion::to_int32(nan) == lowest_32);
static_assert(Conversion::to_int64(0x1.FFFFFFFFFFFFFp62) == 0x7FFFFFFFFFFFFC00);
static_assert(Conversion::to_int64(0x1p63) == lowest_64);
static_assert(Conversion::to_int64(-0x1p63) == lowest_64);
static_assert(Conversion::to_int64(-0x1.0000000000001p63) == lowest_64);
static_assert(Conversion::to_int64(nan) == lowest_64);
static_assert(Conversion::to_uint32(-1.5) == 4294967295U);
static_assert(Conversion::to_uint32(infinity) == 0);
static_assert(Conversion::to_uint64(0x1.FFFFFFFFFFFFFp63) == 0xFFFFFFFFFFFFF800U);
static_assert(Conversion::to_uint64(infinity) == 0);
static_assert(Conversion::magnitude(lowest_32) == lowest_32);

template <typename T>
struct Case
{
    double value;
    T expected;
};

TEST(Conversion, ToSigned32BitsCutsFractionsOffAndMarksWhatDoesNotFit)
{
    const Case<std::int32_t> cases[] = {
        {0.0, 0},
        {-0.0, 0},
        {tiny, 0},
        {-tiny, 0},
        {0.5, 0},
        {-0.5, 0},
        {0.999999, 0},
        {-0.999999, 0},
        {1.5, 1},
        {-1.5, -1},
        {2.999, 2},
        {-2.999, -2},
        {123456789.75, 123456789},
        {below(2147483647), 2147483646},
        {2147483647, 2147483647},
        {2147483647.5, 2147483647},
        {below(2147483648.0), 2147483647},
        {2147483648.0, lowest_32},
        {above(2147483648.0), lowest_32},
        {above(-2147483648.0), -2147483647},
        {-2147483647.5, -2147483647},
        {-2147483648.0, lowest_32},
        {below(-2147483648.0), lowest_32},
        {-2147483648.5, lowest_32},
        {above(-2147483649.0), lowest_32},
        {-2147483649.0, lowest_32},
        {4294967295.0, lowest_32},
        {4294967296.0, lowest_32},
        {4294967301.0, lowest_32},
        {-4294967296.0, lowest_32},
        {0x1p63, lowest_32},
        {-0x1p63, lowest_32},
        {huge, lowest_32},
        {-huge, lowest_32},
        {infinity, lowest_32},
        {-infinity, lowest_32},
        {nan, lowest_32},
        {-nan, lowest_32},
    };
    for (const auto& [value, expected] : cases) {
        EXPECT_EQ(Conversion::to_int32(value), expected) << std::hexfloat << value;
        EXPECT_EQ(_mm_cvttsd_si32(_mm_set_sd(value)), expected) << "as the processor does it: " << value;
    }
}

TEST(Conversion, ToSigned64BitsCutsFractionsOffAndMarksWhatDoesNotFit)
{
    const Case<std::int64_t> cases[] = {
        {0.0, 0},
        {-0.0, 0},
        {tiny, 0},
        {-tiny, 0},
        {0.999999, 0},
        {-0.999999, 0},
        {-1.5, -1},
        {2147483647.5, 2147483647},
        {2147483648.5, 2147483648},
        {-2147483649.5, -2147483649},
        {4294967295.5, 4294967295},
        {4294967296.5, 4294967296},
        {0x1p52 + 0.5, 0x10000000000000},
        {0x1p53, 0x20000000000000},
        {below(0x1p63), 0x7FFFFFFFFFFFFC00},
        {0x1p63, lowest_64},
        {above(0x1p63), lowest_64},
        {above(-0x1p63), -0x7FFFFFFFFFFFFC00},
        {-0x1p63, lowest_64},
        {below(-0x1p63), lowest_64},
        {0x1p64, lowest_64},
        {-0x1p64, lowest_64},
        {huge, lowest_64},
        {-huge, lowest_64},
        {infinity, lowest_64},
        {-infinity, lowest_64},
        {nan, lowest_64},
    };
    for (const auto& [value, expected] : cases) {
        EXPECT_EQ(Conversion::to_int64(value), expected) << std::hexfloat << value;
#ifdef __x86_64__
        EXPECT_EQ(_mm_cvttsd_si64(_mm_set_sd(value)), expected) << "as the processor does it: " << value;
#endif
    }
}

TEST(Conversion, ToUnsigned32BitsKeepsTheLowHalfOf64)
{
    const Case<std::uint32_t> cases[] = {
        {0.0, 0U},
        {-0.0, 0U},
        {tiny, 0U},
        {-tiny, 0U},
        {0.999999, 0U},
        {-0.999999, 0U},
        {1.5, 1U},
        {-1.0, 4294967295U},
        {-1.5, 4294967295U},
        {-2.0, 4294967294U},
        {2147483647.5, 2147483647U},
        {below(2147483648.0), 2147483647U},
        {2147483648.0, 2147483648U},
        {above(2147483648.0), 2147483648U},
        {4294967295.0, 4294967295U},
        {below(4294967296.0), 4294967295U},
        {4294967296.0, 0U},
        {above(4294967296.0), 0U},
        {4294967301.75, 5U},
        {-2147483648.0, 2147483648U},
        {-2147483649.0, 2147483647U},
        {-4294967295.0, 1U},
        {-4294967296.0, 0U},
        {0x1p40 + 7, 7U},
        {-0x1p40 - 7, 4294967289U},
        {below(0x1p63), 0xFFFFFC00U},
        {0x1p63, 0U},
        {above(-0x1p63), 0x400U},
        {-0x1p63, 0U},
        {below(-0x1p63), 0U},
        {below(0x1p64), 0U},
        {0x1p64, 0U},
        {huge, 0U},
        {-huge, 0U},
        {infinity, 0U},
        {-infinity, 0U},
        {nan, 0U},
    };
    for (const auto& [value, expected] : cases)
        EXPECT_EQ(Conversion::to_uint32(value), expected) << std::hexfloat << value;
}

TEST(Conversion, ToUnsigned64BitsReachesTwiceAsFar)
{
    const Case<std::uint64_t> cases[] = {
        {0.0, 0U},
        {-0.0, 0U},
        {0.999999, 0U},
        {-0.999999, 0U},
        {-1.0, 0xFFFFFFFFFFFFFFFFU},
        {-1.5, 0xFFFFFFFFFFFFFFFFU},
        {2147483648.5, 2147483648U},
        {4294967295.5, 4294967295U},
        {4294967296.5, 4294967296U},
        {below(0x1p63), 0x7FFFFFFFFFFFFC00U},
        {0x1p63, top_bit},
        {above(0x1p63), 0x8000000000000800U},
        {0x1.8p63, 0xC000000000000000U},
        {below(0x1p64), 0xFFFFFFFFFFFFF800U},
        {0x1p64, 0U},
        {above(0x1p64), 0U},
        {0x1p65, 0U},
        {huge, 0U},
        {infinity, 0U},
        {above(-0x1p63), 0x8000000000000400U}, // wraps around
        {-0x1p63, top_bit},
        {below(-0x1p63), top_bit},
        {-0x1p64, top_bit},
        {-huge, top_bit},
        {-infinity, top_bit},
        {nan, top_bit},
    };
    for (const auto& [value, expected] : cases)
        EXPECT_EQ(Conversion::to_uint64(value), expected) << std::hexfloat << value;
}

TEST(Conversion, RoundsHalvesToTheEvenNeighbour)
{
    const Case<std::int32_t> cases[] = {
        {0.5, 0},
        {-0.5, 0},
        {above(0.5), 1},
        {below(0.5), 0},
        {below(-0.5), -1},
        {1.5, 2},
        {-1.5, -2},
        {2.5, 2},
        {-2.5, -2},
        {3.5, 4},
        {-3.5, -4},
        {below(2.5), 2},
        {above(2.5), 3},
        {1000000.5, 1000000},
        {1000001.5, 1000002},
        {2147483646.5, 2147483646},
        {below(2147483647.5), 2147483647},
        {2147483647.5, lowest_32}, // up to 2^31, which does not fit
        {-2147483647.5, lowest_32},
        {above(-2147483647.5), -2147483647},
        {-2147483648.5, lowest_32}, // the lowest number itself
        {below(-2147483648.5), lowest_32},
        {4294967296.0, lowest_32},
        {infinity, lowest_32},
        {-infinity, lowest_32},
        {nan, lowest_32},
    };
    for (const auto& [value, expected] : cases) {
        EXPECT_EQ(Conversion::round_to_int32(value), expected) << std::hexfloat << value;
        EXPECT_EQ(_mm_cvtsd_si32(_mm_set_sd(value)), expected) << "as the processor does it: " << value;
        if (std::abs(value) < 2147483647) {
            EXPECT_EQ(Conversion::round_to_int64(value), expected) << std::hexfloat << value;
        }
    }
}

TEST(Conversion, RoundsToUnsigned32Bits)
{
    const Case<std::uint32_t> cases[] = {
        {0.5, 0U},
        {-0.5, 0U},
        {1.5, 2U},
        {2.5, 2U},
        {above(2.5), 3U},
        {below(3.5), 3U},
        {-1.5, 4294967294U},
        {-2.5, 4294967294U},
        {2147483647.5, 2147483648U},
        {2147483648.5, 2147483648U},
        {4294967294.5, 4294967294U},
        {4294967295.25, 4294967295U},
        {4294967295.5, 0U},
        {0x1p63, 0U},
        {infinity, 0U},
        {nan, 0U},
    };
    for (const auto& [value, expected] : cases)
        EXPECT_EQ(Conversion::round_to_uint32(value), expected) << std::hexfloat << value;
}

TEST(Conversion, RoundsTo64BitsBeyond32)
{
    const Case<std::int64_t> cases[] = {
        {2147483647.5, 2147483648},
        {2147483648.5, 2147483648},
        {-2147483648.5, -2147483648},
        {-2147483649.5, -2147483650},
        {4294967295.5, 4294967296},
        {4294967296.5, 4294967296},
        {0x1p51 + 0.5, 0x8000000000000},
        {0x1p51 + 1.5, 0x8000000000002},
        {below(0x1p63), 0x7FFFFFFFFFFFFC00},
        {0x1p63, lowest_64},
        {-0x1p63, lowest_64},
        {below(-0x1p63), lowest_64},
        {0x1p64, lowest_64},
        {infinity, lowest_64},
        {-infinity, lowest_64},
        {nan, lowest_64},
    };
    for (const auto& [value, expected] : cases)
        EXPECT_EQ(Conversion::round_to_int64(value), expected) << std::hexfloat << value;
}

TEST(Conversion, TakesTheMagnitudeOfAllButTheLowestNumber)
{
    EXPECT_EQ(Conversion::magnitude(0), 0);
    EXPECT_EQ(Conversion::magnitude(1), 1);
    EXPECT_EQ(Conversion::magnitude(-1), 1);
    EXPECT_EQ(Conversion::magnitude(2147483647), 2147483647);
    EXPECT_EQ(Conversion::magnitude(-2147483647), 2147483647);
    EXPECT_EQ(Conversion::magnitude(lowest_32), lowest_32);
}

template <typename T>
void expect_numbers(std::initializer_list<Case<T>> cases)
{
    for (const auto& [value, expected] : cases)
        EXPECT_EQ(Conversion::to_number<T>(value), expected) << std::hexfloat << value;
}

TEST(Conversion, ToSmallNumbersKeepsTheLowBits)
{
    expect_numbers<unsigned char>({{300.4, 44}, {-1, 255}, {2.5, 2}, {3.5, 4}, {255.5, 0}, {0x1p31, 0}, {nan, 0}});
    expect_numbers<signed char>({{127.4, 127}, {127.5, -128}, {300.4, 44}, {-129, 127}, {infinity, 0}});
    expect_numbers<unsigned short>({{65536.2, 0}, {-1, 65535}, {65535.4, 65535}, {0x1p31 - 1, 65535}, {0x1p31, 0}});
    expect_numbers<short>({{2.5, 2}, {32767.5, -32768}, {-32769, 32767}, {-0.5, 0}, {nan, 0}});
}

TEST(Conversion, ToNumbersOf32BitsRoundsHalvesToEven)
{
    expect_numbers<int>(
        {{2.5, 2}, {-2.5, -2}, {3.5, 4}, {2147483647.4, 2147483647}, {0x1p31, lowest_32}, {nan, lowest_32}});
    expect_numbers<unsigned int>(
        {{2.5, 2}, {0x1p31, 0x80000000}, {4294967295.4, 0xFFFFFFFF}, {0x1p32, 0}, {-1, 0xFFFFFFFF}, {nan, 0}});
}

TEST(Conversion, ToNumbersOf64BitsKeepsTheTopBitOfTheUnsignedOnes)
{
    expect_numbers<long long>(
        {{2.5, 2}, {-3.5, -4}, {0x1p62, 0x4000000000000000}, {0x1p63, lowest_64}, {nan, lowest_64}});
    expect_numbers<unsigned long long>(
        {{2.5, 2}, {0x1p63, top_bit}, {below(0x1p64), 0xFFFFFFFFFFFFF800}, {0x1p64, 0}, {-1, ~0ULL}});
}

TEST(Conversion, ToTruthAsksWhetherTheRoundedNumberIsNotZero)
{
    expect_numbers<bool>({{0.4, false},
                          {0.5, false},
                          {0.6, true},
                          {-0.6, true},
                          {-0.4, false},
                          {65536.2, true},
                          {0x1p64, true},
                          {infinity, true},
                          {nan, true}});
}

TEST(Conversion, ToFloatingNumbersDoesNotRoundToIntegers)
{
    expect_numbers<double>({{2.5, 2.5}, {0.1, 0.1}, {huge, huge}});
    expect_numbers<float>({{2.5, 2.5F}, {0.1, 0.1F}, {16777217.0, 16777216.0F}, {tiny, 0.0F}});
    constexpr float beyond = std::numeric_limits<float>::infinity();
    expect_numbers<float>({{1e300, beyond}, {-1e300, -beyond}, {infinity, beyond}});
    EXPECT_TRUE(std::isnan(Conversion::to_number<float>(nan)));
}

} // namespace
