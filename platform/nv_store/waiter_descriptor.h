#ifndef NV_STORE_WAITER_DESCRIPTOR_H
#define NV_STORE_WAITER_DESCRIPTOR_H

#include "iso11783/Export.h"
#include "nv_store/List.h"
#include "threads/Wake_up.h"

#include <cstddef>
#include <mutex>

namespace NV_store {
class Virt_access;
}

/// Where one thread, its owner, waits for changes of the items whose accesses it has registered here. Changes come from
/// any thread and are queued; the owner waits for descriptor() in its loop and calls deliver(). Whichever goes first,
/// waiter or access, the registration ends.
class VTUI_EXPORT waiter_descriptor
{
  public:
    /// Throws std::system_error if the process has no descriptor left.
    waiter_descriptor();
    ~waiter_descriptor();
    waiter_descriptor(const waiter_descriptor&) = delete;
    waiter_descriptor& operator=(const waiter_descriptor&) = delete;

    /// Readable (POLLIN) while there is something to deliver.
    int descriptor() const { return wake_up.descriptor(); }
    /// Calls handle_event() of all accesses that are waiting, in the order in which their items changed, each once, and
    /// says how many. What changes meanwhile is left for another call, as descriptor() tells. What an access throws
    /// comes out here, and the others stay to be delivered.
    std::size_t deliver();

  private:
    friend class NV_store::Virt_access;

    void queue(NV_store::Virt_access& access);
    void drop(NV_store::Virt_access& access);

    Wake_up wake_up;
    NV_store::List<NV_store::Virt_access> registered; ///< used by the owner alone
    std::mutex mutex;                                 ///< guards what follows; a store's lock may be held, never taken
    NV_store::List<NV_store::Virt_access> waiting;
    NV_store::List<NV_store::Virt_access> delivering; ///< what deliver() has still to call
};

#endif
