#include "terminal/Object.h"

#include <limits>

namespace terminal {

std::size_t record_size(const Record_layout& layout, const std::uint8_t* bytes, std::size_t available)
{
    if (available < layout.fixed_size)
        return 0;
    // 64 bits: a picture may claim 4 GiB of data behind its header.
    std::uint64_t size = layout.fixed_size;
    for (std::size_t i = 0; i < layout.n_lists; ++i) {
        const List_layout& list = layout.lists[i];
        const std::uint64_t shift = list.count.moves ? size - layout.fixed_size : 0;
        size += std::uint64_t{read_bits(bytes + list.count.offset + shift, list.count.size)} * list.slot.size;
        if (size > available)
            return 0;
    }
    return static_cast<std::size_t>(size);
}

std::size_t Object::size() const { return record_size(layout(), record, std::numeric_limits<std::size_t>::max()); }

Byte_view Object::bytes() const
{
    const std::size_t n = count(Field::bytes);
    return n == 0 ? Byte_view() : Byte_view{record + slot(Field::bytes).offset, n};
}

std::string_view Object::text() const
{
    if (is(Iso::Object_type::picture_graphic) || is(Iso::Object_type::macro))
        return {};
    const Byte_view view = bytes();
    return {reinterpret_cast<const char*>(view.data), view.size};
}

std::size_t Object::count(Field list) const
{
    const Record_layout& own = layout();
    for (std::size_t i = 0; i < own.n_lists; ++i) {
        if (own.lists[i].field == list)
            return raw(own.lists[i].count);
    }
    return 0;
}

const std::uint8_t* Object::entries(Field wanted) const
{
    const Record_layout& own = layout();
    std::size_t before = 0;
    for (std::size_t i = 0; i < own.n_lists; ++i) {
        const List_layout& list = own.lists[i];
        if (list.field == wanted)
            return record + list.slot.offset + before;
        before += raw(list.count) * list.slot.size;
    }
    return nullptr;
}

} // namespace terminal
