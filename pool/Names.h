#ifndef POOL_NAMES_H
#define POOL_NAMES_H

#include "iso11783/Function.h"
#include "iso11783/Object_type.h"

#include <string>

namespace Iso {
class Iso_object_base;
}

namespace VT {

/// The object's name; without one its class and, if it has one, its id: "container 17".
std::string name_of(const Iso::Iso_object_base& object);

/// All that tells a person which object is meant: "container 17", or "container 'frame' (17)".
std::string describe(const Iso::Iso_object_base& object);

/// The standard's name of a message to the terminal.
std::string name_of(Iso::Function function);

} // namespace VT

#endif
