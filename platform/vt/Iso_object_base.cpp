#include "vt/Iso_object_base.h"

#include "vt/Attribute.h"
#include "vt/Object_pool_interface.h"

#include <cstdlib>
#include <thread>

namespace Iso {

Iso_object_base::Iso_object_base(const Iso_object_base&) { std::abort(); }

const char* Iso_object_base::get_name() const { return own_name ? own_name : ""; }

void Iso_object_base::set_pool(VT::Client::Object_pool_interface* pool, Object_id id)
{
    own_pool = pool;
    own_id = id;
}

void Iso_object_base::lock()
{
    while (locked.exchange(true, std::memory_order_acquire))
        std::this_thread::yield();
}

bool Iso_object_base::attribute_null_check(const VT::Attribute_object_id_spec& reference, const char* attribute) const
{
    return reference.null_check(*this, attribute);
}

void Iso_object_base::report(const char* attribute, const char* what) const
{
    if (own_pool)
        own_pool->report(*this, attribute, what);
}

} // namespace Iso
