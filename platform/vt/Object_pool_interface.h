#ifndef VT_OBJECT_POOL_INTERFACE_H
#define VT_OBJECT_POOL_INTERFACE_H

#include "iso11783/Export.h"
#include "iso11783/Object_type.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <variant>

namespace Iso {
class Iso_object_base;
}

namespace VT {

class VT_obj;
class Output_string_obj;

namespace Client {

/// A value that a specification gives for an attribute: a number, or a text (also the name of a symbolic colour).
using Specified_value = std::variant<double, std::string>;

/// What the application's specification says about one object.
class VTUI_EXPORT Object_specification_interface
{
  public:
    virtual ~Object_specification_interface() = default;

    /// The value given for the attribute of that name, or null when none is given.
    virtual const Specified_value* find(const char* attribute) const = 0;
};

/// A pool as its objects see it. Owned by the application; it outlives no object's use of it, and takes back its hold
/// on every object when it is destroyed.
class VTUI_EXPORT Object_pool_interface
{
  public:
    virtual ~Object_pool_interface() = default;

    /// The pool's object of that id, or null.
    virtual VT_obj* find_object(Iso::Object_id id) const = 0;

    /// True while a terminal holds the pool, so that changes have to be sent.
    virtual bool is_live() const = 0;

    /// Sends one message, `head` followed by `tail`, filled up to the size of a frame. Called only while the pool is
    /// live.
    virtual void send(const std::uint8_t* head, std::size_t head_size, const void* tail, std::size_t tail_size) = 0;

    /// Sends the whole record of one of its objects again, and the changed ones of what it shows. Called only while the
    /// pool is live.
    virtual void upload(VT_obj& object) = 0;

    /// Gives `object` a value buffer of its item count, filled with `text` and spaces.
    virtual void set_string(Output_string_obj& object, const char* text) = 0;

    /// Notes something wrong about an attribute of one of its objects, for the application to read in the result.
    virtual void report(const Iso::Iso_object_base& object, const char* attribute, const char* what) = 0;

    /// `object` is being destroyed.
    virtual void forget(const VT_obj& object) = 0;
};

} // namespace Client
} // namespace VT

#endif
