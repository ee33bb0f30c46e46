#include "pool/Scaling.h"

#include "pool/Kind.h"
#include "pool/Names.h"

#include <mutex>

namespace VT {

namespace {

/// What leaves 16 bits wraps: only what stands in attributes has been checked.
template <typename T>
T scaled(T position, std::uint16_t to, std::uint16_t from)
{
    return static_cast<T>(std::int64_t{position} * to / from);
}

/// A component's points are signed, but stand in the record unsigned.
short scaled_point(short coordinate, std::uint16_t to, std::uint16_t from)
{
    return static_cast<short>(scaled(static_cast<std::uint16_t>(coordinate), to, from));
}

} // namespace

std::string in_pixels(std::uint16_t width, std::uint16_t height)
{
    return std::to_string(width) + " x " + std::to_string(height);
}

void scale(const Object_table& objects, std::size_t first, Scale by, std::vector<Problem>& problems)
{
    if (by.is_none())
        return;

    bool all_fit = true;
    for (std::size_t place = first; place < objects.size(); ++place) {
        VT_obj* const object = objects[place];
        if (!object || object->check_scale_area(by.to_width, by.to_height, by.from, by.from))
            continue;
        all_fit = false;
        problems.push_back({Error::does_not_fit, object->get_id(), name_of(*object),
                            describe(*object) + " does not fit 16 bits when the pool is scaled from " +
                                in_pixels(by.from, by.from) + " to " + in_pixels(by.to_width, by.to_height) +
                                " pixels"});
    }
    if (!all_fit)
        return;

    Kinds kinds;
    for (std::size_t place = first; place < objects.size(); ++place) {
        VT_obj* const object = objects[place];
        if (!object)
            continue;
        const std::lock_guard hold(*object);
        object->__set_scale(by.to_width, by.to_height, by.from, by.from);
        // The component writes its placements and points out again when it moves one of them.
        const Kind& kind = kinds.of(*object);
        if (Comp::Child_placements* const children = placements_of(kind, *object))
            for (std::size_t i = 0; i < children->size(); ++i) {
                Comp::Child_placement& child = children->placement(i);
                child.x = scaled(child.x, by.to_width, by.from);
                child.y = scaled(child.y, by.to_height, by.from);
            }
        if (Comp::Vertices* const vertices = vertices_of(kind, *object))
            for (std::size_t i = 0; i < vertices->size(); ++i) {
                auto& [x, y] = vertices->point(i);
                x = scaled_point(x, by.to_width, by.from);
                y = scaled_point(y, by.to_height, by.from);
            }
    }
}

void scale(Attribute_object_placement* children, std::size_t count, Scale by)
{
    for (std::size_t i = 0; i < count; ++i) {
        children[i].x = scaled<std::int16_t>(children[i].x, by.to_width, by.from);
        children[i].y = scaled<std::int16_t>(children[i].y, by.to_height, by.from);
    }
}

} // namespace VT
