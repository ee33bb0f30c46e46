#ifndef VTUI_COMP_OBJECT_H
#define VTUI_COMP_OBJECT_H

#include "iso11783/Export.h"

namespace VT::Comp {

/// The root of all components' classes.
class VTUI_EXPORT Element
{};

/// What every object wrapper is.
class VTUI_EXPORT Object : public Element
{
  public:
    Object() = default;
    /// Containers of components need a copy constructor to compile. Calling it is a programming error that ends the
    /// process: a vector of components may grow from empty, but never move what it holds.
    [[noreturn]] Object(const Object&);
    Object& operator=(const Object&) = delete;
};

/// What every component with virtual operations is.
class VTUI_EXPORT Widget : public Element
{};

/// The macros of an object. No component has any.
class VTUI_EXPORT Has_macros
{
  public:
    const void* macros_ptr{nullptr};
};

} // namespace VT::Comp

#endif
