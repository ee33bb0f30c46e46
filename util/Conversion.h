#ifndef UTIL_CONVERSION_H
#define UTIL_CONVERSION_H

#include <cmath>
#include <cstdint>
#include <limits>
#include <type_traits>

/// Doubles made integers, for every double, on every machine as the controllers' hardware does it. What no integer of
/// the type can hold becomes the hardware's mark for it: the lowest number of 32 or 64 bits. Fractions are cut off;
/// round first where that is meant.
namespace Conversion {

constexpr std::int32_t to_int32(double value)
{
    return value > -2147483649.0 && value < 2147483648.0 ? static_cast<std::int32_t>(value)
                                                         : std::numeric_limits<std::int32_t>::min();
}

constexpr std::int64_t to_int64(double value)
{
    return value >= -0x1p63 && value < 0x1p63 ? static_cast<std::int64_t>(value)
                                              : std::numeric_limits<std::int64_t>::min();
}

/// The low half of the 64-bit result: a negative number wraps around, and what 64 bits cannot hold becomes 0.
constexpr std::uint32_t to_uint32(double value) { return static_cast<std::uint32_t>(to_int64(value)); }

/// From 2^63 on the upper half of the range; what lies beyond 2^64 becomes 0. A negative number wraps around.
constexpr std::uint64_t to_uint64(double value)
{
    constexpr std::uint64_t top = std::uint64_t{1} << 63;
    return value >= 0x1p63 ? static_cast<std::uint64_t>(to_int64(value - 0x1p63)) ^ top
                           : static_cast<std::uint64_t>(to_int64(value));
}

/// Halves go to the even neighbour.
inline std::int32_t round_to_int32(double value) { return to_int32(std::rint(value)); }
inline std::uint32_t round_to_uint32(double value) { return to_uint32(std::rint(value)); }
inline std::int64_t round_to_int64(double value) { return to_int64(std::rint(value)); }

/// A number as a variable of type T takes it: rounded to the nearest integer, halves to the even one. The types below
/// 32 bits keep the low bits of a signed 32-bit integer; a bool says whether it is not 0, and NaN is true. Floating
/// types round as always.
template <typename T>
T to_number(double value)
{
    static_assert(std::is_arithmetic_v<T>);
    if constexpr (std::is_same_v<T, bool>)
        return std::rint(value) != 0;
    else if constexpr (std::is_floating_point_v<T>)
        return static_cast<T>(value);
    else if constexpr (std::is_same_v<T, unsigned long long>)
        return to_uint64(std::rint(value));
    else if constexpr (std::is_same_v<T, long long>)
        return round_to_int64(value);
    else if constexpr (std::is_same_v<T, unsigned int>)
        return round_to_uint32(value);
    else
        return static_cast<T>(round_to_int32(value));
}

/// The lowest number has no positive counterpart and stays what it is.
constexpr std::int32_t magnitude(std::int32_t value)
{
    return value < 0 ? static_cast<std::int32_t>(0U - static_cast<std::uint32_t>(value)) : value;
}

} // namespace Conversion

#endif
