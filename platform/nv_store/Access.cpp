#include "nv_store/Access.h"

#include "nv_store/waiter_descriptor.h"

#include <mutex>

namespace NV_store {

Virt_access::~Virt_access() { autounreg(registered_under); }

Bits Virt_access::item_value() const { return item->get_bits(); }

void Virt_access::notify() { registered_under->queue(*this); }

void Virt_access::autoreg(waiter_descriptor* waiter, bool since_read)
{
    if (registered_under != waiter)
        autounreg(registered_under);
    if (!waiter)
        return;
    const std::lock_guard lock(item->owner.mutex);
    if (!registered_under) {
        registered_under = waiter;
        waiter->registered.append(in_waiter);
        item->record.accesses.append(in_item);
    }
    if (since_read && item_value() != last_read)
        notify();
}

void Virt_access::autounreg(waiter_descriptor* waiter)
{
    waiter_descriptor* const present = registered_under;
    if (!present || (waiter && waiter != present))
        return;
    {
        const std::lock_guard lock(item->owner.mutex);
        in_item.leave();
        registered_under = nullptr;
    }
    present->drop(*this); // nobody notifies it any more
    in_waiter.leave();
}

void Virt_access::settle(Bits known)
{
    const std::lock_guard lock(item->owner.mutex);
    if (item_value() != known)
        return;
    last_read = known;
    if (registered_under)
        registered_under->drop(*this);
}

void Virt_access::ask()
{
    if (registered_under)
        notify();
}

} // namespace NV_store
