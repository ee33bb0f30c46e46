#include "terminal/Nesting.h"

#include <algorithm>

namespace terminal {

using Type = Iso::Object_type;

/// An object whose inner objects are being measured one after the other.
struct Nesting::Frame
{
    Iso::Object_id id = Iso::null_id;
    const std::uint8_t* next = nullptr; ///< each entry begins with the id of an inner object
    const std::uint8_t* end = nullptr;
    std::size_t entry_size = 0;
    Set allowed = 0;          ///< types of the inner objects
    bool transparent = false; ///< what shows inside shows outside too
    Node sum;
};

/// A drawing, a control or a key where it stands. A pointer is what it points at.
std::uint8_t Nesting::own_content(Type type)
{
    switch (type) {
    case Type::object_pointer:
        return 0;
    case Type::key:
        return key;
    case Type::button:
    case Type::input_boolean:
    case Type::input_string:
    case Type::input_number:
    case Type::input_list:
        return control;
    default:
        return drawing;
    }
}

/// What may show where these types may stand.
std::uint8_t Nesting::content_of(Set types)
{
    return static_cast<std::uint8_t>((contains(types, Type::container) ? drawing : 0) |
                                     (contains(types, Type::button) ? control : 0) |
                                     (contains(types, Type::key) ? key : 0));
}

Nesting::Frame Nesting::open_frame(Object object)
{
    Frame frame;
    frame.id = object.id();
    frame.transparent = object.is(Type::container) || object.is(Type::object_pointer);
    frame.sum = {1, 1, own_content(object.type()), false};
    const Record_layout& layout = object.layout();
    if (object.is(Type::object_pointer)) {
        const Constraint& target = layout.constraints[0];
        frame.next = object.data() + target.slot.offset;
        frame.entry_size = target.slot.size;
        frame.end = frame.next + frame.entry_size;
        frame.allowed = target.allowed;
    } else if (const List_layout& list = layout.lists[0]; list.field == Field::children || list.field == Field::items) {
        frame.next = object.data() + list.slot.offset;
        frame.entry_size = list.slot.size;
        frame.end = frame.next + object.raw(list.count) * frame.entry_size;
        frame.allowed = list.allowed;
    }
    return frame;
}

Pool_fault Nesting::measure(const Object_pool& pool)
{
    nodes.assign(pool.id_end(), Node());
    Stack stack;
    Pool_fault fault;
    pool.for_each([&](Object object) {
        if (!fault && nodes[object.id()].depth == 0)
            fault = measure_from(pool, object, stack);
    });
    return fault;
}

Pool_fault Nesting::measure_from(const Object_pool& pool, Object root, Stack& stack)
{
    std::size_t n_open = 0;
    const auto open = [&](Object object) {
        nodes[object.id()].open = true;
        stack[n_open++] = open_frame(object);
    };

    open(root);
    while (n_open != 0) {
        Frame& frame = stack[n_open - 1];
        if (frame.next == frame.end) {
            nodes[frame.id] = frame.sum;
            --n_open;
            continue;
        }
        const Iso::Object_id id = Iso::read<std::uint16_t>(frame.next);
        if (id == Iso::null_id) {
            frame.next += frame.entry_size;
            continue;
        }
        const auto refuse = [&](std::uint8_t code) { return Pool_fault{frame.id, id, code}; };
        const Object object = pool.find(id);
        if (!object)
            return refuse(Pool_fault::missing_object);
        const Node& inner = nodes[id];
        if (!contains(frame.allowed, object.type()) || inner.open)
            return refuse(Pool_fault::other);
        if (inner.depth == 0) {
            if (n_open == stack.size())
                return refuse(Pool_fault::other);
            open(object);
            continue; // and come back to this entry
        }

        Node& sum = frame.sum;
        sum.drawn += inner.drawn;
        sum.depth = std::max(sum.depth, static_cast<std::uint8_t>(inner.depth + 1));
        if (sum.drawn > max_drawn || sum.depth > max_depth || (inner.content & ~content_of(frame.allowed)) != 0)
            return refuse(Pool_fault::other);
        if (frame.transparent)
            sum.content = static_cast<std::uint8_t>(sum.content | inner.content);
        frame.next += frame.entry_size;
    }
    return {};
}

bool Nesting::covers(Object pointer, Object target) const
{
    // Depths shrink from parent to child, so that a target of less depth cannot contain the pointer: no loop.
    const Node& outer = nodes[pointer.id()];
    const Node& inner = nodes[target.id()];
    return inner.drawn < outer.drawn && inner.depth < outer.depth && (inner.content & ~outer.content) == 0;
}

} // namespace terminal
