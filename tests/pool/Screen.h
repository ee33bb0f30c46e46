#ifndef TESTS_POOL_SCREEN_H
#define TESTS_POOL_SCREEN_H

#include "pool/Pool.h"
#include "tests/Bytes.h"
#include "vt/Working_set_obj.h"
#include "vtui/comp/objects/Has_child_placements.h"

#include <algorithm>
#include <initializer_list>
#include <vector>

namespace C = VT::Comp;

/// The smallest pool there is: a working set (0) with one mask (1).
struct Screen
{
    Screen()
    {
        working_set.set_active_mask(mask);
        pool.add(working_set);
    }

    VT::Data_mask_obj mask;
    VT::Working_set_obj working_set;
    VT::Pool pool;

    static Bytes own_records() { return join(w(0), 0, 0, 1, w(1), 0, 0, 0, w(1), 1, 0, w(0xFFFF), 0, 0); }

    /// The records of what was added to an empty screen.
    Bytes records()
    {
        Bytes all;
        const VT::Result result = pool.serialise(all);
        if (!result)
            return join(result.text());
        const Bytes own = own_records();
        if (all.size() < own.size() || !std::equal(own.begin(), own.end(), all.begin()))
            return join("the screen's own records differ");
        return Bytes(all.begin() + static_cast<std::ptrdiff_t>(own.size()), all.end());
    }
};

/// A container, button or key with one child, as components have them.
template <class Parent>
struct With_child
{
    explicit With_child(VT::VT_obj* child, std::int16_t x = 0, std::int16_t y = 0)
    {
        children.placements[0] = {child, x, y};
        parent.placements_ptr = &children;
    }

    Parent parent;
    C::Child_placements_array<Array_array_1> children;
};

/// A terminal's message.
inline void say(VT::Pool& pool, const Bytes& message) { pool.receive(message.data(), message.size()); }

inline std::vector<Iso::Object_id> ids(std::initializer_list<const VT::VT_obj*> objects)
{
    std::vector<Iso::Object_id> result;
    for (const VT::VT_obj* object : objects)
        result.push_back(object->get_id());
    return result;
}

#endif
