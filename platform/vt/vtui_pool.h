#ifndef VT_VTUI_POOL_H
#define VT_VTUI_POOL_H

#include "vt/Object_pool_interface.h"

namespace VT {

/// The face of a pool that components and the units manager see.
class VTUI_EXPORT vtui_pool : public Client::Object_pool_interface
{
  public:
    /// Takes in `object` and all that it can show, although nothing shows it yet. The object stays the caller's.
    virtual void add(VT_obj& object) = 0;
};

} // namespace VT

#endif
