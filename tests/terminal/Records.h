#ifndef TESTS_TERMINAL_RECORDS_H
#define TESTS_TERMINAL_RECORDS_H

#include "iso11783/Bytes.h"
#include "iso11783/Object_type.h"
#include "terminal/Object_pool.h"
#include "tests/Bytes.h"

#include <cstdint>
#include <vector>

/// Object records written by hand.
namespace records {

using Type = Iso::Object_type;

inline Bytes at(std::uint16_t id, std::int16_t x, std::int16_t y)
{
    Bytes bytes;
    Iso::Byte_writer out(bytes);
    out.u16(id);
    out.s16(x);
    out.s16(y);
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
