#include "terminal/Indirection.h"

#include "terminal/Nesting.h"

namespace terminal {

Object shown(const Object_pool& pool, Object object)
{
    // A pool in which pointers go round or deeper is refused.
    for (int i = 0; object && object.is(Iso::Object_type::object_pointer) && i < Nesting::max_depth; ++i)
        object = pool.find(object.reference(Field::value));
    return object;
}

Object holder(const Object_pool& pool, Object object)
{
    const Object variable = pool.find(object.reference(Field::variable));
    return variable ? variable : object;
}

std::uint32_t number_value(const Object_pool& pool, Object object) { return holder(pool, object).u32(Field::value); }

} // namespace terminal
