#include "vt/Resolve_colour.h"

namespace VT::Resolve_colour {

// Compiled here, once, for whoever builds a pool of components.
template VTUI_EXPORT bool List<Attribute_node>::resolve_colours(unsigned char (*resolve)(Attribute_node&));

} // namespace VT::Resolve_colour
