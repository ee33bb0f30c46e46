#ifndef TESTS_TERMINAL_RECORDS_H
#define TESTS_TERMINAL_RECORDS_H

#include "iso11783/Bytes.h"
#include "iso11783/Object_type.h"
#include "terminal/Object_pool.h"

#include <cstdint>
#include <string_view>
#include <vector>

/// Object records written by hand. A plain number is one byte, w() two, d() four; a list of bytes stands for itself.
namespace records {

using Bytes = std::vector<std::uint8_t>;
using Type = Iso::Object_type;

inline Bytes w(std::uint16_t value)
{
    Bytes bytes;
    Iso::Byte_writer(bytes).u16(value);
    return bytes;
}

inline Bytes d(std::uint32_t value)
{
    Bytes bytes;
    Iso::Byte_writer(bytes).u32(value);
    return bytes;
}

inline Bytes f(float value)
{
    Bytes bytes;
    Iso::Byte_writer(bytes).f32(value);
    return bytes;
}

inline Bytes at(std::uint16_t id, std::int16_t x, std::int16_t y)
{
    Bytes bytes;
    Iso::Byte_writer out(bytes);
    out.u16(id);
    out.s16(x);
    out.s16(y);
    return bytes;
}

inline void append(Bytes& bytes, int value) { bytes.push_back(static_cast<std::uint8_t>(value)); }
inline void append(Bytes& bytes, const Bytes& more) { bytes.insert(bytes.end(), more.begin(), more.end()); }
inline void append(Bytes& bytes, std::string_view text) { bytes.insert(bytes.end(), text.begin(), text.end()); }

template <typename... Parts>
Bytes join(const Parts&... parts)
{
    Bytes bytes;
    (append(bytes, parts), ...);
    return bytes;
}

template <typename... Parts>
Bytes record(std::uint16_t id, Type type, const Parts&... rest)
{
    return join(w(id), static_cast<int>(type), rest...);
}

inline Bytes repeat(std::size_t times, std::uint8_t byte) { return Bytes(times, byte); }

inline constexpr std::uint16_t null_id = Iso::null_id;

// The objects of complete_pool().
enum Id : std::uint16_t {
    working_set = 0,
    data_mask = 1,
    alarm_mask = 2,
    soft_key_mask = 3,
    key = 4,
    other_key = 5,
    container = 10,
    button = 11,
    input_boolean = 12,
    input_string = 13,
    input_number = 14,
    input_list = 15,
    pointer = 16,
    key_pointer = 17,
    output_string = 20,
    output_number = 21,
    line = 22,
    rectangle = 23,
    ellipse = 24,
    polygon = 25,
    picture = 26,
    font = 30,
    line_attributes = 31,
    fill_attributes = 32,
    number_variable = 33,
    string_variable = 34,
    input_attributes = 36,
    macro = 50,
};

// Small records, for pools that are about something else.
Bytes empty_working_set(std::uint16_t mask);
Bytes empty_mask(std::uint16_t id);
/// A container of 10 × 10 pixels with these children, each at its origin.
Bytes container_of(std::uint16_t id, const std::vector<std::uint16_t>& children);
Bytes mask_of(std::uint16_t id, const std::vector<std::uint16_t>& children);
Bytes pointer_to(std::uint16_t id, std::uint16_t target);
Bytes text(std::uint16_t id, std::string_view value);

/// An object of every type, each with all its lists in use, in the order of their ids; every reference is used.
Bytes complete_pool();

/// All records of a pool, in the order of their ids.
Bytes bytes_of(const terminal::Object_pool& pool);

} // namespace records

#endif
