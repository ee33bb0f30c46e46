#ifndef POOL_SCALING_H
#define POOL_SCALING_H

#include "pool/Object_table.h"
#include "pool/Result.h"
#include "vt/Attribute.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace VT {

/// From the mask that the objects are laid out for, which is square, to the mask of the terminal; pixels.
struct Scale
{
    std::uint16_t to_width, to_height;
    std::uint16_t from;

    bool is_none() const { return to_width == from && to_height == from; }
};

/// "240 x 240"
std::string in_pixels(std::uint16_t width, std::uint16_t height);

/// Scales the objects from place `first` on, and the placements of their components with them. Where an object does not
/// fit 16-bit coordinates any more nothing is scaled and each such object is a problem.
void scale(const Object_table& objects, std::size_t first, Scale by, std::vector<Problem>& problems);

/// Scales the positions of `count` children.
void scale(Attribute_object_placement* children, std::size_t count, Scale by);

} // namespace VT

#endif
