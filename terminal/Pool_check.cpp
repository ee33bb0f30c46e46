#include "terminal/Pool_check.h"

#include "iso11783/Function.h"

#include <algorithm>

namespace terminal {
namespace {

using Type = Iso::Object_type;

/// The length of the command that starts at `command`, or 0 for a function that no macro may hold.
std::size_t command_size(const std::uint8_t* command, std::size_t available)
{
    using Iso::Function;
    switch (static_cast<Function>(command[0])) {
    case Function::hide_show:
    case Function::enable_disable:
    case Function::change_child_location:
    case Function::change_size:
    case Function::change_background_colour:
    case Function::change_numeric_value:
    case Function::change_active_mask:
    case Function::change_soft_key_mask:
    case Function::change_attribute:
        return Iso::frame_size;
    case Function::change_child_position:
        return 9;
    case Function::change_string_value: {
        constexpr std::size_t header = 5;
        if (available < header)
            return header;
        return std::max(Iso::frame_size, header + Iso::read<std::uint16_t>(command + 3));
    }
    default:
        return 0;
    }
}

std::uint8_t check_macro(Byte_view commands)
{
    while (commands.size != 0) {
        const std::size_t size = command_size(commands.data, commands.size);
        if (size == 0)
            return Pool_fault::not_supported;
        if (size > commands.size)
            return Pool_fault::other;
        commands.data += size;
        commands.size -= size;
    }
    return Pool_fault::none;
}

/// Run-length encoded data may end early: the pixels without data are not drawn.
std::uint8_t check_picture(Object picture)
{
    if (picture.u8(Field::options) & run_length_encoded)
        return Pool_fault::none;
    constexpr std::uint64_t bits_per_pixel[] = {1, 4, 8};
    const std::uint64_t row = (picture.u16(Field::actual_width) * bits_per_pixel[picture.u8(Field::format)] + 7) / 8;
    return row * picture.u16(Field::actual_height) <= picture.u32(Field::length) ? Pool_fault::none : Pool_fault::other;
}

Pool_fault check_object(const Object_pool& pool, Object object)
{
    const Record_layout& layout = object.layout();
    for (std::size_t i = 0; i < layout.n_constraints; ++i) {
        const Constraint& constraint = layout.constraints[i];
        if (const Pool_fault fault = check_field(pool, object, constraint, object.raw(constraint.slot)))
            return fault;
    }
    for (const Macro_reference reference : object.macros()) {
        const Object macro = pool.find(reference.macro);
        if (!macro)
            return {object.id(), reference.macro, Pool_fault::missing_object};
        if (!macro.is(Type::macro))
            return {object.id(), reference.macro, Pool_fault::other};
    }
    std::uint8_t code = Pool_fault::none;
    if (object.is(Type::picture_graphic))
        code = check_picture(object);
    else if (object.is(Type::macro))
        code = check_macro(object.bytes());
    return {Iso::null_id, object.id(), code};
}

} // namespace

Pool_fault check_field(const Object_pool& pool, Object object, const Constraint& constraint, std::uint32_t value)
{
    if (!constraint.reference) {
        const bool known = contains(constraint.allowed, value);
        return {Iso::null_id, object.id(), known ? Pool_fault::none : Pool_fault::other};
    }
    const auto id = static_cast<Iso::Object_id>(value);
    if (id == Iso::null_id) {
        const bool optional = constraint.allowed & or_null;
        return {object.id(), id, optional ? Pool_fault::none : Pool_fault::missing_object};
    }
    const Object target = pool.find(id);
    if (!target)
        return {object.id(), id, Pool_fault::missing_object};
    return {object.id(), id, contains(constraint.allowed, target.type()) ? Pool_fault::none : Pool_fault::other};
}

Pool_fault check_pool(const Object_pool& pool)
{
    Pool_fault fault;
    Object working_set;
    pool.for_each([&](Object object) {
        if (fault)
            return;
        if (object.is(Type::working_set)) {
            if (working_set)
                fault = {Iso::null_id, object.id(), Pool_fault::other};
            working_set = object;
        }
        if (!fault)
            fault = check_object(pool, object);
    });
    if (!fault && !working_set)
        fault = {Iso::null_id, Iso::null_id, Pool_fault::other};
    return fault;
}

} // namespace terminal
