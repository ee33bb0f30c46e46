#include "pool/Scaling.h"

#include "pool/Kind.h"
#include "pool/Names.h"

#include <string>

namespace VT {

namespace {

std::int16_t scaled(std::int16_t position, std::uint16_t to, std::uint16_t from)
{
    return static_cast<std::int16_t>(std::int64_t{position} * to / from);
}

std::string in_pixels(std::uint16_t width, std::uint16_t height)
{
    return std::to_string(width) + " x " + std::to_string(height);
}

} // namespace

void scale(const Object_table& objects, std::size_t first, Scale by, std::vector<Problem>& problems)
{
    if (by.is_none())
        return;

    bool all_fit = true;
    for (std::size_t place = first; place < objects.size(); ++place) {
        VT_obj* const object = objects[place];
        if (!object || object->check_scale_area(by.to_width, by.to_height, by.from_width, by.from_height))
            continue;
        all_fit = false;
        problems.push_back({Error::does_not_fit, object->get_id(), name_of(*object),
                            describe(*object) + " does not fit 16 bits when the pool is scaled from " +
                                in_pixels(by.from_width, by.from_height) + " to " +
                                in_pixels(by.to_width, by.to_height) + " pixels"});
    }
    if (!all_fit)
        return;

    Kinds kinds;
    for (std::size_t place = first; place < objects.size(); ++place) {
        VT_obj* const object = objects[place];
        if (!object)
            continue;
        object->lock();
        object->__set_scale(by.to_width, by.to_height, by.from_width, by.from_height);
        object->unlock();
        // The component writes its placements out again when it moves one of them.
        if (Comp::Child_placements* const children = placements_of(kinds.of(*object), *object))
            for (std::size_t i = 0; i < children->size(); ++i) {
                Comp::Child_placement& child = children->placement(i);
                child.x = scaled(child.x, by.to_width, by.from_width);
                child.y = scaled(child.y, by.to_height, by.from_height);
            }
    }
}

} // namespace VT
