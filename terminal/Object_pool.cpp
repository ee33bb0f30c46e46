#include "terminal/Object_pool.h"

#include <algorithm>
#include <utility>

namespace terminal {

Pool_fault Object_pool::parse(std::vector<std::uint8_t> records)
{
    const auto refuse = [this](Iso::Object_id object, std::uint8_t code) {
        *this = {};
        return Pool_fault{Iso::null_id, object, code};
    };

    *this = {};
    if (records.size() >= no_record)
        return refuse(Iso::null_id, Pool_fault::other);
    std::size_t start = 0;
    while (start < records.size()) {
        const std::uint8_t* const record = records.data() + start;
        const std::size_t available = records.size() - start;
        if (available < 3)
            return refuse(available < 2 ? Iso::null_id : Object(record).id(), Pool_fault::other);
        const Iso::Object_id id = Object(record).id();
        const Record_layout* const layout = find_layout(record[2]);
        if (!layout)
            return refuse(id, Pool_fault::not_supported);
        const std::size_t size = record_size(*layout, record, available);
        if (size == 0 || id == Iso::null_id || has(id))
            return refuse(id, Pool_fault::other);
        if (id >= index.size())
            index.resize(std::size_t{id} + 1, no_record);
        index[id] = static_cast<std::uint32_t>(start);
        start += size;
    }
    bytes = std::move(records);
    return {};
}

void Object_pool::keep_others_of(const Object_pool& older)
{
    index.resize(std::max(index.size(), older.index.size()), no_record);
    bytes.reserve(bytes.size() + older.bytes.size());
    older.for_each([this](Object object) {
        if (has(object.id()))
            return;
        index[object.id()] = static_cast<std::uint32_t>(bytes.size());
        bytes.insert(bytes.end(), object.data(), object.data() + object.size());
    });
}

void Object_pool::write(Object object, Slot slot, std::uint32_t value)
{
    std::uint8_t* const place = writable(object.data() + object.position(slot));
    for (std::size_t i = 0; i < slot.size; ++i)
        place[i] = static_cast<std::uint8_t>(value >> 8 * i);
}

} // namespace terminal
