#ifndef TESTS_BYTES_H
#define TESTS_BYTES_H

#include "iso11783/Bytes.h"

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

/// Messages and records written by hand: a plain number is one byte, w() two, d() and f() four; bytes and texts are
/// themselves.
using Bytes = std::vector<std::uint8_t>;

inline Bytes w(int value)
{
    Bytes bytes;
    Iso::Byte_writer(bytes).u16(static_cast<std::uint16_t>(value));
    return bytes;
}

inline Bytes d(std::int64_t value)
{
    Bytes bytes;
    Iso::Byte_writer(bytes).u32(static_cast<std::uint32_t>(value));
    return bytes;
}

inline Bytes f(float value)
{
    Bytes bytes;
    Iso::Byte_writer(bytes).f32(value);
    return bytes;
}

inline void append(Bytes& bytes, int value) { bytes.push_back(static_cast<std::uint8_t>(value)); }
inline void append(Bytes& bytes, const Bytes& more) { bytes.insert(bytes.end(), more.begin(), more.end()); }
inline void append(Bytes& bytes, std::string_view text) { bytes.insert(bytes.end(), text.begin(), text.end()); }

template <class... Parts>
Bytes join(const Parts&... parts)
{
    Bytes bytes;
    (append(bytes, parts), ...);
    return bytes;
}

/// A message filled up to eight bytes.
template <typename... Parts>
Bytes frame(const Parts&... parts)
{
    Bytes bytes = join(parts...);
    if (bytes.size() < 8)
        bytes.resize(8, 0xFF);
    return bytes;
}

#endif
