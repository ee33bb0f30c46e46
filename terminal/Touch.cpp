#include "terminal/Touch.h"

#include "terminal/Control.h"
#include "terminal/Indirection.h"
#include "terminal/Nesting.h"

namespace terminal {
namespace {

using Type = Iso::Object_type;

Object topmost(const Object_pool& pool, const List<Child>& children, Position place, int depth)
{
    if (depth == Nesting::max_depth)
        return {};
    for (std::size_t i = children.size(); i-- != 0;) {
        const Child child = children[i];
        const Object object = shown(pool, pool.find(child.id));
        const Position inside{place.x - child.x, place.y - child.y};
        if (!object || !box_of(object).contains(inside))
            continue;
        if (object.is(Type::container)) {
            if (object.u8(Field::hidden) != 0)
                continue;
            if (const Object found = topmost(pool, object.children(), inside, depth + 1))
                return found;
        } else if (object.is(Type::button) || is_enabled(object)) {
            return object;
        }
    }
    return {};
}

} // namespace

Object control_at(const Object_pool& pool, Object mask, Position place)
{
    return mask ? topmost(pool, mask.children(), place, 0) : Object();
}

} // namespace terminal
