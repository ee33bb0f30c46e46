#ifndef VT_VTUI_POOL_H
#define VT_VTUI_POOL_H

#include "vt/Object_pool_interface.h"

namespace VT {

class String_variable_obj;

/// The face of a pool that components and the units manager see.
class VTUI_EXPORT vtui_pool : public Client::Object_pool_interface
{
  public:
    /// Takes in `object` and all that it can show, although nothing shows it yet. The object stays the caller's.
    virtual void add(VT_obj& object) = 0;

    /// A text that the pool owns, by its name; null if there is none of that name.
    virtual String_variable_obj* find_text(const char* name) = 0;
    /// Makes a text with room for `length` characters, which lives as long as the pool. `name` is kept by address and
    /// is the name of the object.
    virtual String_variable_obj& make_text(const char* name, std::uint16_t length) = 0;
};

} // namespace VT

#endif
