#ifndef VT_ATTRIBUTE_H
#define VT_ATTRIBUTE_H

#include "iso11783/Export.h"
#include "iso11783/Object_type.h"

#include <cstdint>
#include <cstring>
#include <iosfwd>
#include <type_traits>

namespace Iso {
class Iso_object_base;
}

namespace VT {

/// What kind of value an attribute holds; the number that a dump prints.
enum class Attribute_type : std::uint8_t {
    uint8,
    uint16,
    int16,
    uint32,
    int32,
    real,
    object_id,
    colour,
    string,
    point,
    object_placement
};

/// Writes the line that introduces an attribute in a dump: two spaces a level, the type's number and the name. A null
/// name leaves the stream failed, so nothing more of that dump appears.
VTUI_EXPORT void print_attribute(std::ostream& out, unsigned indent, Attribute_type type, const char* name);

/// One value of a VT object that remembers whether it differs from what the terminal was last told. What all objects of
/// a class share (name, id, range) is said by the class and costs an object nothing.
template <typename T>
class VTUI_EXPORT Attribute
{
  public:
    constexpr Attribute(T initial = T{}) : value(initial) {}
    constexpr Attribute(const Attribute&) = default;

    constexpr operator T() const { return value; }

    /// Records a change only if the value differs.
    Attribute& operator=(T new_value)
    {
        if (new_value != value) {
            value = new_value;
            is_changed = true;
        }
        return *this;
    }
    Attribute& operator=(const Attribute& other) { return *this = other.value; }

    bool changed() const { return is_changed; }
    /// The terminal has been told the value.
    void set_told() { is_changed = false; }

    /// How Change Attribute carries the value: sign-extended, or the bits of the float.
    std::uint32_t bits() const
    {
        if constexpr (std::is_floating_point_v<T>) {
            static_assert(sizeof value == sizeof(std::uint32_t));
            std::uint32_t result;
            std::memcpy(&result, &value, sizeof result);
            return result;
        } else {
            return static_cast<std::uint32_t>(value);
        }
    }

    void print(std::ostream& out, unsigned indent, const char* name) const;

  private:
    T value;
    bool is_changed{false};
};

using Attribute_uint8 = Attribute<std::uint8_t>;
using Attribute_uint16 = Attribute<std::uint16_t>;
using Attribute_int16 = Attribute<std::int16_t>;
using Attribute_uint32 = Attribute<std::uint32_t>;
using Attribute_int32 = Attribute<std::int32_t>;
using Attribute_real = Attribute<float>;

/// A reference to another object by its id; the null id while there is none.
class VTUI_EXPORT Attribute_object_id_spec : public Attribute_uint16
{
  public:
    constexpr Attribute_object_id_spec(Iso::Object_id id = Iso::null_id) : Attribute_uint16(id) {}
    using Attribute_uint16::operator=;

    void print(std::ostream& out, unsigned indent, const char* name) const;

    /// True when the reference is set; a null one is reported to `owner`'s pool under the attribute's name.
    bool null_check(const Iso::Iso_object_base& owner, const char* name) const;
};

/// One entry of a parent's object list: which child, and where its top left corner lies in the parent (pixels).
struct VTUI_EXPORT Attribute_object_placement
{
    Attribute_uint16 object_id{Iso::null_id};
    Attribute_int16 x;
    Attribute_int16 y;

    bool changed() const { return object_id.changed() || x.changed() || y.changed(); }
    void print(std::ostream& out, unsigned indent) const;
};

/// One vertex of a polygon, in pixels from its top left corner.
struct VTUI_EXPORT Attribute_point
{
    Attribute_uint16 x;
    Attribute_uint16 y;

    bool changed() const { return x.changed() || y.changed(); }
    void print(std::ostream& out, unsigned indent) const;
};

/// A text of fixed capacity in a buffer that somebody else owns. The text ends at the first NUL or with the capacity.
class VTUI_EXPORT Attribute_string
{
  public:
    Attribute_string(char* text_buffer, std::uint16_t capacity) : buffer(text_buffer), item_count(capacity) {}

    /// The number of characters before the end of the text.
    std::uint16_t num_chars() const;
    const char* text() const { return buffer ? buffer : ""; }

    bool changed() const { return is_changed; }
    void set_changed() { is_changed = true; }
    void print(std::ostream& out, unsigned indent, const char* name) const;
    void set_told() { is_changed = false; }

    char* buffer;             ///< may be null: no characters
    std::uint16_t item_count; ///< the capacity: what the terminal reserves

  private:
    bool is_changed{false};
};

} // namespace VT

#endif
