#ifndef VT_ATTRIBUTE_VISITOR_H
#define VT_ATTRIBUTE_VISITOR_H

#include "vt/Attribute.h"
#include "vt/Resolve_colour.h"

#include <cstddef>
#include <cstdint>
#include <limits>

namespace VT {

/// Which way an attribute stretches when a pool is scaled.
enum class Axis : std::uint8_t { none, x, y };

/// What an attribute is in every object of a class.
struct Attribute_info
{
    const char* name;
    std::uint8_t id{0}; ///< for Change Attribute; 0: the standard gives none
    Axis axis{Axis::none};
    std::int64_t lowest{std::numeric_limits<std::int64_t>::min()}; ///< beside the limits of the value's own type
    std::int64_t highest{std::numeric_limits<std::int64_t>::max()};

    static constexpr Attribute_info ranged(const char* name, std::uint8_t id, std::int64_t highest)
    {
        return {name, id, Axis::none, 0, highest};
    }
};

/// An event of the standard and the macro that runs on it.
struct Macro_reference
{
    std::uint8_t event;
    std::uint8_t macro;
};

/// Walks the record of an object in the order of its bytes. A visitor overrides what it cares about.
class VTUI_EXPORT Attribute_visitor
{
  public:
    virtual ~Attribute_visitor() = default;

    virtual void attribute(const Attribute_info&, Attribute_uint8&) {}
    virtual void attribute(const Attribute_info&, Attribute_uint16&) {}
    virtual void attribute(const Attribute_info&, Attribute_int16&) {}
    virtual void attribute(const Attribute_info&, Attribute_uint32&) {}
    virtual void attribute(const Attribute_info&, Attribute_int32&) {}
    virtual void attribute(const Attribute_info&, Attribute_real&) {}
    virtual void attribute(const Attribute_info&, Attribute_object_id_spec&) {}
    virtual void attribute(const Attribute_info&, Attribute_colour&) {}
    /// The record has the capacity first, then the text filled up to it.
    virtual void attribute(const Attribute_info&, Attribute_string&) {}

    /// How many entries a list that follows later in the record has.
    virtual void count(std::uint8_t) {}
    /// How many raw bytes follow.
    virtual void count(std::uint32_t) {}
    virtual void objects(Attribute_object_placement*, std::size_t) {}
    /// Children that have no position: the keys of a soft key mask.
    virtual void keys(Attribute_object_placement*, std::size_t) {}
    virtual void points(Attribute_point*, std::size_t) {}
    virtual void macros(const Macro_reference*, std::size_t) {}
    virtual void raw(const void*, std::size_t) {}
};

} // namespace VT

#endif
