#ifndef TERMINAL_OBJECT_H
#define TERMINAL_OBJECT_H

#include "iso11783/Bytes.h"
#include "iso11783/Object_type.h"
#include "terminal/Area.h"
#include "terminal/Record_layout.h"

#include <cstddef>
#include <cstdint>
#include <iterator>
#include <string_view>

namespace terminal {

struct Child
{
    Iso::Object_id id;
    std::int16_t x;
    std::int16_t y;

    static constexpr std::size_t size = 6;
    static Child at(const std::uint8_t* bytes)
    {
        return {Iso::read<std::uint16_t>(bytes), Iso::read<std::int16_t>(bytes + 2),
                Iso::read<std::int16_t>(bytes + 4)};
    }
};

struct Item
{
    Iso::Object_id id;

    static constexpr std::size_t size = 2;
    static Item at(const std::uint8_t* bytes) { return {Iso::read<std::uint16_t>(bytes)}; }
};

struct Point
{
    std::uint16_t x;
    std::uint16_t y;

    static constexpr std::size_t size = 4;
    static Point at(const std::uint8_t* bytes)
    {
        return {Iso::read<std::uint16_t>(bytes), Iso::read<std::uint16_t>(bytes + 2)};
    }
};

struct Macro_reference
{
    std::uint8_t event;
    std::uint8_t macro;

    static constexpr std::size_t size = 2;
    static Macro_reference at(const std::uint8_t* bytes) { return {bytes[0], bytes[1]}; }
};

struct Language
{
    char code[2];

    static constexpr std::size_t size = 2;
    static Language at(const std::uint8_t* bytes)
    {
        return {{static_cast<char>(bytes[0]), static_cast<char>(bytes[1])}};
    }
};

/// A little-endian number of 1, 2 or 4 bytes, zero-extended; 0 for any other size.
inline std::uint32_t read_bits(const std::uint8_t* bytes, std::size_t size)
{
    switch (size) {
    case 1:
        return *bytes;
    case 2:
        return Iso::read<std::uint16_t>(bytes);
    case 4:
        return Iso::read<std::uint32_t>(bytes);
    default:
        return 0;
    }
}

/// A list inside a record, read entry by entry as it is walked.
template <typename Entry>
class List
{
  public:
    class Iterator
    {
      public:
        using iterator_category = std::input_iterator_tag;
        using value_type = Entry;
        using difference_type = std::ptrdiff_t;
        using pointer = const Entry*;
        using reference = Entry;

        explicit Iterator(const std::uint8_t* bytes) : position(bytes) {}

        Entry operator*() const { return Entry::at(position); }
        Iterator& operator++()
        {
            position += Entry::size;
            return *this;
        }
        bool operator==(const Iterator& other) const { return position == other.position; }
        bool operator!=(const Iterator& other) const { return position != other.position; }

      private:
        const std::uint8_t* position;
    };

    List() = default;
    List(const std::uint8_t* bytes, std::size_t entries) : first(bytes), count(entries) {}

    std::size_t size() const { return count; }
    bool empty() const { return count == 0; }
    Entry operator[](std::size_t index) const { return Entry::at(first + index * Entry::size); }
    Iterator begin() const { return Iterator(first); }
    Iterator end() const { return Iterator(first + count * Entry::size); }

  private:
    const std::uint8_t* first = nullptr;
    std::size_t count = 0;
};

/// Among the options of a picture: its data are pairs of a count and a value.
inline constexpr std::uint8_t run_length_encoded = 4;

/// Bytes inside a record: the data of a picture, the commands of a macro.
struct Byte_view
{
    const std::uint8_t* data = nullptr;
    std::size_t size = 0;
};

/// One object of a pool, seen through the bytes of its record; the pool owns them. An Object is a pointer to be copied
/// freely, valid until the pool changes by an upload; it sees what commands write in the meantime. An empty one
/// (false) stands for an object that does not exist: only its conversion to bool may be used.
///
/// Fields are read by name. One that the type does not have reads as 0, a reference as the null id, a list as empty.
class Object
{
  public:
    Object() = default;
    explicit Object(const std::uint8_t* bytes) : record(bytes) {}

    explicit operator bool() const { return record != nullptr; }

    Iso::Object_id id() const { return Iso::read<std::uint16_t>(record); }
    Iso::Object_type type() const { return static_cast<Iso::Object_type>(record[2]); }
    bool is(Iso::Object_type wanted) const { return type() == wanted; }

    const Record_layout& layout() const { return record_layouts[record[2]]; }
    bool has(Field field) const { return slot(field).offset != 0; }

    /// The bits of a field, zero-extended, whatever its width.
    std::uint32_t u32(Field field) const { return raw(slot(field)); }
    std::uint16_t u16(Field field) const { return static_cast<std::uint16_t>(u32(field)); }
    std::uint8_t u8(Field field) const { return static_cast<std::uint8_t>(u32(field)); }
    /// The bits of a four-byte field, read as a signed or a floating-point number.
    std::int32_t s32(Field field) const { return static_cast<std::int32_t>(u32(field)); }
    float f32(Field field) const { return has(field) ? Iso::read<float>(record + position(slot(field))) : 0; }
    Iso::Object_id reference(Field field) const { return has(field) ? u16(field) : Iso::null_id; }

    List<Child> children() const { return list<Child>(Field::children); }
    List<Item> items() const { return list<Item>(Field::items); }
    List<Point> points() const { return list<Point>(Field::points); }
    List<Macro_reference> macros() const { return list<Macro_reference>(Field::macros); }
    List<Language> languages() const { return list<Language>(Field::languages); }
    Byte_view bytes() const;
    /// The text of a string object, of a string variable, of a validation.
    std::string_view text() const;

    const std::uint8_t* data() const { return record; }
    /// Of the whole record.
    std::size_t size() const;

    /// The bits at `slot`, which is of this record's layout; 0 if there is none.
    std::uint32_t raw(Slot slot) const { return read_bits(record + position(slot), slot.size); }
    /// How far behind the start of the record the field at `slot` lies.
    std::size_t position(Slot slot) const { return slot.offset + (slot.moves ? text().size() : 0); }
    /// The number of entries of the list, 0 where there is no such list, and where its first entry lies.
    std::size_t count(Field list) const;
    const std::uint8_t* entries(Field list) const;

  private:
    Slot slot(Field field) const { return layout().slots[static_cast<std::size_t>(field)]; }

    template <typename Entry>
    List<Entry> list(Field field) const
    {
        const std::size_t n = count(field);
        return n == 0 ? List<Entry>() : List<Entry>(entries(field), n);
    }

    const std::uint8_t* record = nullptr;
};

/// The id of an object, or the null id of an empty one.
inline Iso::Object_id id_of(Object object) { return object ? object.id() : Iso::null_id; }

/// The area of an object that has a width and a height, its top left corner at the origin. A check box is a square.
inline Area box_of(Object object)
{
    const int width = object.u16(Field::width);
    return {0, 0, width, object.is(Iso::Object_type::input_boolean) ? width : object.u16(Field::height)};
}

/// The length of the record that starts at `bytes` and is of this layout; 0 if it does not end within `available`.
std::size_t record_size(const Record_layout& layout, const std::uint8_t* bytes, std::size_t available);

} // namespace terminal

#endif
