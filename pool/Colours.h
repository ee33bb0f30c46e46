#ifndef POOL_COLOURS_H
#define POOL_COLOURS_H

#include "pool/Result.h"
#include "vt/Object_pool_interface.h"
#include "vt/Resolve_colour.h"

#include <vector>

namespace VT {

/// What becomes of a colour of the pool's own whose name nobody knows.
enum class Unknown_colours { wait, are_dropped };

/// Gives every colour that waits its palette index: the one that `resolve` answers or, if that is null, the one that
/// the standard has for the name. A name that is not among the standard's sixteen is a problem where it is the colour
/// of one of `pool`'s objects; the colours of other objects go on waiting for a pool of their own.
void resolve_colours(unsigned char (*resolve)(Resolve_colour::Attribute_node&),
                     const Client::Object_pool_interface& pool, Unknown_colours own, std::vector<Problem>& problems);

} // namespace VT

#endif
