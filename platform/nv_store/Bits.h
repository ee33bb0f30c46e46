#ifndef NV_STORE_BITS_H
#define NV_STORE_BITS_H

#include <cstdint>
#include <cstring>
#include <limits>
#include <type_traits>

namespace NV_store {

/// How numbers of all types lie in memory: an integer with its sign extended to 64 bits, anything else as a double. One
/// machine operation reads or writes it, also on 32 bits. Every NaN is the same one, because the files know only one.
using Bits = std::uint64_t;

template <typename T>
Bits to_bits(T value)
{
    if constexpr (std::is_floating_point_v<T>) {
        const double wide = value != value ? std::numeric_limits<double>::quiet_NaN() : value;
        Bits bits;
        std::memcpy(&bits, &wide, sizeof bits);
        return bits;
    } else {
        return static_cast<Bits>(value); // of a negative one: with its sign extended
    }
}

template <typename T>
T from_bits(Bits bits)
{
    if constexpr (std::is_floating_point_v<T>) {
        double wide;
        std::memcpy(&wide, &bits, sizeof wide);
        return static_cast<T>(wide);
    } else {
        return static_cast<T>(bits);
    }
}

/// Whether a T can be what the bits say.
template <typename T>
bool fits(Bits bits)
{
    return to_bits(from_bits<T>(bits)) == bits;
}

} // namespace NV_store

#endif
