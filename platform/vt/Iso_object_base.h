#ifndef VT_ISO_OBJECT_BASE_H
#define VT_ISO_OBJECT_BASE_H

#include "iso11783/Export.h"
#include "iso11783/Object_type.h"

#include <atomic>
#include <cstdint>

namespace VT {
class Attribute_object_id_spec;
namespace Client {
class Object_pool_interface;
}
} // namespace VT

namespace Iso {

/// What makes an object one of a pool: its id, its name, the pool that gave the id, and a lock.
///
/// Objects are changed by the thread that owns their pool. The lock is for work on an object that another thread may be
/// doing too (preparing, scaling and writing out records): whoever touches an object from a second thread holds it.
class VTUI_EXPORT Iso_object_base
{
  public:
    static constexpr Object_id NULL_ID = null_id;

    virtual ~Iso_object_base() = default;

    /// The object's name, empty when it has none.
    virtual const char* get_name() const;
    /// `new_name` is kept by address and must outlive the object; null takes the name away.
    void set_name(const char* new_name) { own_name = new_name; }

    Object_id get_id() const { return own_id; }
    Object_type get_type() const { return own_type; }

    /// The pool the object belongs to, null until one has taken it in.
    VT::Client::Object_pool_interface* get_pool() const { return own_pool; }
    /// For the pool: takes the object in under an id, or lets it go with a null pool and the null id.
    void set_pool(VT::Client::Object_pool_interface* pool, Object_id id);

    /// Not re-entrant; held for a few instructions only, so waiting is a spin that yields.
    void lock();
    void unlock() { locked.store(false, std::memory_order_release); }

    /// True when the reference is set; a null one is reported to the pool under the attribute's name.
    bool attribute_null_check(const VT::Attribute_object_id_spec& reference, const char* attribute) const;

    /// Tells the pool, if there is one, what is wrong with an attribute.
    void report(const char* attribute, const char* what) const;

  protected:
    Iso_object_base(Object_id id, const char* name, Object_type type) : own_name(name), own_id(id), own_type(type) {}

    /// An object is its identity: the copy constructor is there so that containers of objects compile, and aborts.
    [[noreturn]] Iso_object_base(const Iso_object_base&);
    Iso_object_base& operator=(const Iso_object_base&) = delete;

  private:
    VT::Client::Object_pool_interface* own_pool{nullptr};
    const char* own_name;
    Object_id own_id;
    Object_type own_type;
    std::atomic<bool> locked{false};
};

} // namespace Iso

#endif
