#include "terminal/Touch.h"

#include "terminal/Control.h"
#include "terminal/Indirection.h"
#include "terminal/Nesting.h"
#include "terminal/Screen_layout.h"
#include "terminal/Terminal.h"

namespace terminal {
namespace {

using Type = Iso::Object_type;

/// Calls `visit(Object, Area)` for each control of which something shows within `clip`, and with that part of it, in
/// the order of drawing.
template <typename Visit>
void visit_controls(const Object_pool& pool, const List<Child>& children, Position origin, const Area& clip, int depth,
                    Visit& visit)
{
    if (depth == Nesting::max_depth)
        return;
    for (const Child child : children) {
        const Object object = shown(pool, pool.find(child.id));
        if (!object)
            continue;
        const Position corner{origin.x + child.x, origin.y + child.y};
        const Area visible = box_of(object).moved(corner.x, corner.y) & clip;
        if (visible.empty())
            continue;
        if (object.is(Type::container)) {
            if (object.u8(Field::hidden) == 0)
                visit_controls(pool, object.children(), corner, visible, depth + 1, visit);
        } else if (object.is(Type::button) || is_enabled(object)) {
            visit(object, visible);
        }
    }
}

template <typename Visit>
void visit_controls(const Terminal& terminal, const Area& clip, Visit visit)
{
    if (const Object mask = terminal.active_mask())
        visit_controls(terminal.pool(), mask.children(), {}, clip, 0, visit);
}

/// What a soft key mask has in that place: the key, also behind pointers; or nothing.
Object key_in(const Terminal& terminal, Object key_mask, std::size_t number)
{
    const Object key = shown(terminal.pool(), terminal.pool().find(key_mask.items()[number].id));
    return key && key.is(Type::key) ? key : Object();
}

/// Calls `visit(Object, Area)` for the soft key of each cell that has one and is to be seen.
template <typename Visit>
void visit_keys(const Terminal& terminal, std::size_t first_key, Visit visit)
{
    const Object key_mask = terminal.active_soft_key_mask();
    const std::size_t n_keys = key_mask ? key_mask.items().size() : 0;
    const Screen_layout layout(terminal.hardware());
    std::size_t number = first_key;
    for (int cell = 0; cell < layout.n_cells() && number < n_keys; ++cell, ++number) {
        const Area area = layout.cell(cell);
        const Object key = key_in(terminal, key_mask, number);
        if (key && !area.empty())
            visit(key, area);
    }
}

} // namespace

bool is_usable(Object object)
{
    switch (object.type()) {
    case Type::key:
        return true;
    case Type::button:
    case Type::input_boolean:
    case Type::input_number:
        return is_enabled(object);
    default:
        return false;
    }
}

Object target_at(const Terminal& terminal, Position place, std::size_t first_key)
{
    Object topmost;
    const auto take = [&](Object object, const Area& area) {
        if (area.contains(place))
            topmost = object;
    };
    if (Screen_layout(terminal.hardware()).mask().contains(place))
        visit_controls(terminal, {place.x, place.y, place.x + 1, place.y + 1}, take);
    else
        visit_keys(terminal, first_key, take);
    return topmost;
}

bool shows(const Terminal& terminal, Iso::Object_id target)
{
    const Object object = terminal.pool().find(target);
    if (!object)
        return false;
    bool found = false;
    if (object.is(Type::key)) {
        const Object key_mask = terminal.active_soft_key_mask();
        for (std::size_t i = 0; key_mask && i < key_mask.items().size() && !found; ++i) {
            const Object key = key_in(terminal, key_mask, i);
            found = key && key.id() == target;
        }
    } else {
        visit_controls(terminal, Screen_layout(terminal.hardware()).mask(),
                       [&](Object control, const Area&) { found = found || control.id() == target; });
    }
    return found;
}

std::vector<Target> usable_targets(const Terminal& terminal, std::size_t first_key)
{
    std::vector<Target> targets;
    std::vector<bool> listed(terminal.pool().id_end());
    const auto add = [&](Object object, const Area& area) {
        if (!is_usable(object) || listed[object.id()])
            return;
        listed[object.id()] = true;
        targets.push_back({object, area});
    };
    visit_controls(terminal, Screen_layout(terminal.hardware()).mask(), add);
    visit_keys(terminal, first_key, add);
    return targets;
}

} // namespace terminal
