#ifndef TESTS_LOCK_H
#define TESTS_LOCK_H

#include "vt/Iso_object_base.h"

#include <atomic>
#include <chrono>
#include <thread>

/// True if nobody can lock the object for the whole of `patience`; its lock is held again then. Where the object should
/// be free a test is patient, for a busy machine; it does not wait longer than it has to.
inline bool is_locked(Iso::Iso_object_base& object, std::chrono::milliseconds patience = std::chrono::milliseconds(30))
{
    std::atomic<bool> entered{false};
    std::thread second([&] {
        object.lock();
        entered = true;
        object.unlock();
    });
    const auto end = std::chrono::steady_clock::now() + patience;
    while (!entered && std::chrono::steady_clock::now() < end)
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    const bool locked = !entered;
    if (locked)
        object.unlock();
    second.join();
    if (locked)
        object.lock();
    return locked;
}

#endif
