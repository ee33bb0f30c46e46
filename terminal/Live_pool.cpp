#include "terminal/Live_pool.h"

#include "terminal/Pool_check.h"

#include <algorithm>
#include <utility>

namespace terminal {

using Type = Iso::Object_type;

Pool_fault Live_pool::load(std::vector<std::uint8_t> records, std::size_t memory)
{
    const std::size_t uploaded = records.size();
    Object_pool candidate;
    if (const Pool_fault fault = candidate.parse(std::move(records)))
        return fault;
    candidate.keep_others_of(pool);
    if (candidate.size() > memory)
        return {Iso::null_id, Iso::null_id, Pool_fault::other};
    if (const Pool_fault fault = check_pool(candidate))
        return fault;
    Nesting measures;
    if (const Pool_fault fault = measures.measure(candidate))
        return fault;

    pool = std::move(candidate);
    nesting = std::move(measures);
    last_upload = uploaded;
    pool.for_each([this](Object object) {
        if (object.is(Type::working_set))
            working_set_id = object.id();
    });
    ++n_changes;
    return {};
}

void Live_pool::clear()
{
    pool = {};
    nesting = {};
    working_set_id = Iso::null_id;
    ++n_changes;
}

bool Live_pool::set(Object object, Field field, std::uint32_t value)
{
    const Record_layout& layout = object.layout();
    const Slot slot = layout.slots[static_cast<std::size_t>(field)];
    if (slot.offset == 0 || (slot.size < sizeof value && value >> 8 * slot.size != 0))
        return false;
    for (std::size_t i = 0; i < layout.n_constraints; ++i) {
        const Constraint& constraint = layout.constraints[i];
        if (constraint.slot.offset == slot.offset && check_field(pool, object, constraint, value))
            return false;
    }
    if (object.is(Type::object_pointer))
        return point(object, static_cast<Iso::Object_id>(value));
    // The data of a picture stay what they are, and so does the way in which they are encoded.
    if (object.is(Type::picture_graphic) && field == Field::options &&
        ((value ^ object.u32(field)) & run_length_encoded) != 0)
        return false;
    pool.write(object, slot, value);
    ++n_changes;
    return true;
}

bool Live_pool::point(Object pointer, Iso::Object_id id)
{
    const Slot slot = pointer.layout().slots[static_cast<std::size_t>(Field::value)];
    const Iso::Object_id previous = pointer.reference(Field::value);
    const Object target = pool.find(id);
    pool.write(pointer, slot, id);
    if (target && !nesting.covers(pointer, target)) {
        Nesting measures;
        if (measures.measure(pool)) {
            pool.write(pointer, slot, previous);
            return false;
        }
        nesting = std::move(measures);
    }
    ++n_changes;
    return true;
}

bool Live_pool::set_text(Object object, std::string_view text)
{
    const std::string_view room = object.text();
    if (text.size() > room.size())
        return false;
    if (room.empty())
        return true;
    std::uint8_t* const place = pool.writable(object.bytes().data);
    std::copy(text.begin(), text.end(), place);
    std::fill(place + text.size(), place + room.size(), std::uint8_t{' '});
    ++n_changes;
    return true;
}

void Live_pool::move_child(Object parent, std::size_t index, std::int16_t x, std::int16_t y)
{
    std::uint8_t* const entry = pool.writable(parent.entries(Field::children) + index * Child::size);
    Iso::write(entry + 2, x);
    Iso::write(entry + 4, y);
    ++n_changes;
}

} // namespace terminal
