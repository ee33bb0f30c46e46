#ifndef TERMINAL_RECORD_LAYOUT_H
#define TERMINAL_RECORD_LAYOUT_H

#include "iso11783/Object_type.h"

#include <array>
#include <cstddef>
#include <cstdint>

namespace terminal {

/// The parts of object records by name, across all types: first the plain fields, then the lists that fields count.
enum class Field : std::uint8_t {
    none,
    background,
    selectable,
    active_mask,
    soft_key_mask,
    priority,
    acoustic_signal,
    width,
    height,
    hidden,
    key_code,
    border_colour,
    options,
    options_2,
    font,
    variable,
    value, ///< of an object pointer: what it points at
    minimum,
    maximum,
    offset,
    scale,
    decimals,
    format, ///< of a number or a picture
    justification,
    enabled,
    input_attributes,
    line_attributes,
    fill_attributes,
    direction,
    suppression,
    ellipse_type,
    start_angle,
    end_angle,
    polygon_type,
    actual_width,
    actual_height,
    transparency_colour,
    colour,
    font_size,
    font_type,
    font_style,
    line_width,
    line_art,
    fill_type,
    pattern,
    validation_type,

    n_children,
    n_items,
    n_points,
    n_macros,
    n_languages,
    length,

    children,
    items, ///< the keys of a soft key mask, the items of an input list
    points,
    macros,
    languages,
    bytes, ///< a text, the data of a picture, the commands of a macro
};

inline constexpr std::size_t n_fields = static_cast<std::size_t>(Field::bytes) + 1;

/// A set of small numbers: of object types, or of the codes that a field may hold.
using Set = std::uint32_t;

inline constexpr Set anything = ~Set{0};
inline constexpr Set or_null = Set{1} << 31; ///< in a set of types: the reference may also be the null id

constexpr bool contains(Set set, std::uint32_t number)
{
    return set == anything || (number < 32 && (set >> number & 1));
}

constexpr bool contains(Set set, Iso::Object_type type) { return contains(set, static_cast<std::uint32_t>(type)); }

/// Where a part of a record lies. What stands behind a list moves with the length of the list, so `offset` is counted
/// as if all lists were empty.
struct Slot
{
    std::uint8_t offset = 0; ///< 0: the type has no such part
    std::uint8_t size = 0;   ///< of the field, or of one entry of the list, in bytes
    bool moves = false;      ///< a field that stands behind the text of the record
};

/// A field or list whose content is not free.
struct Constraint
{
    Slot slot;
    bool reference = false; ///< the field holds an object id; `allowed` are types. Otherwise `allowed` are codes.
    Set allowed = anything;
};

/// A list at the end (or, for a text, in the middle) of a record.
struct List_layout
{
    Slot slot;
    Slot count;             ///< the field that tells the number of entries
    Set allowed = anything; ///< types that the entries may refer to
    Field field{};
};

/// The record of one object type. Every question about the bytes of a record (its length, the place of a field, what
/// Change Attribute may write, where references lead) is answered from here.
struct Record_layout
{
    static constexpr std::size_t max_lists = 3;
    static constexpr std::size_t max_attributes = 15;
    static constexpr std::size_t max_constraints = 6;

    std::uint8_t fixed_size = 0; ///< with all lists empty; 0: there is no such type
    std::uint8_t n_lists = 0;
    std::uint8_t n_constraints = 0;
    std::array<Slot, n_fields> slots{};
    std::array<List_layout, max_lists> lists{};
    std::array<Constraint, max_constraints> constraints{};
    std::array<Field, max_attributes + 1> attributes{}; ///< by number; none: not to be changed in this way
};

inline constexpr std::size_t n_types = static_cast<std::size_t>(Iso::Object_type::macro) + 1;

extern const std::array<Record_layout, n_types> record_layouts;

/// The layout for a type byte, or nullptr for a type that this terminal does not know.
inline const Record_layout* find_layout(std::uint8_t type)
{
    return type < n_types && record_layouts[type].fixed_size != 0 ? &record_layouts[type] : nullptr;
}

} // namespace terminal

#endif
