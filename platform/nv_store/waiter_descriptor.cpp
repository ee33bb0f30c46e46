#include "nv_store/waiter_descriptor.h"

#include "nv_store/Access.h"

using NV_store::Virt_access;

waiter_descriptor::waiter_descriptor() = default;

waiter_descriptor::~waiter_descriptor()
{
    while (Virt_access* const access = registered.take_first())
        access->autounreg(this);
}

void waiter_descriptor::queue(Virt_access& access)
{
    const std::lock_guard lock(mutex);
    if (access.in_queue.is_listed())
        return;
    waiting.append(access.in_queue);
    wake_up.set();
}

void waiter_descriptor::drop(Virt_access& access)
{
    const std::lock_guard lock(mutex);
    access.in_queue.leave();
}

std::size_t waiter_descriptor::deliver()
{
    std::unique_lock lock(mutex);
    delivering.append(waiting);
    std::size_t delivered = 0;
    while (Virt_access* const access = delivering.take_first()) {
        lock.unlock();
        ++delivered;
        access->handle_event();
        lock.lock();
    }
    if (waiting.is_empty())
        wake_up.clear();
    return delivered;
}
