#ifndef CDS_ACCESS_BASE_H
#define CDS_ACCESS_BASE_H

#include "iso11783/Export.h"

namespace CDS {

class Head;

/// Who hears of changes.
class VTUI_EXPORT Virt_access
{
  public:
    /// Something was written there. Called by Head::deliver(): on the thread that calls that, without the lock.
    virtual void handle_change() = 0;
    virtual ~Virt_access() = default;

  protected:
    Virt_access() = default;
    Virt_access(const Virt_access&) = delete;
    Virt_access& operator=(const Virt_access&) = delete;
};

/// A place in a store's data and, with a listener, who is to hear of changes there. The place is two numbers: the
/// offset of its first byte from the beginning of the data, and its extent, how many of its bytes are watched. A number
/// is written as a whole, so that its first byte stands for all of it: extent 1. Of a structure watch all. Numbers that
/// share bytes, as in a union, are not told of one another.
///
/// Accesses come and go on the thread that delivers, at any time: from within a notification too, and while their own
/// is on its way. It is never called then.
class VTUI_EXPORT Access_base
{
  public:
    /// Without a store.
    Access_base() = default;
    /// Without a store; once there is one, `new_listener` hears of changes.
    explicit Access_base(Virt_access& new_listener) : listener(&new_listener) {}
    /// A place only, for init().
    Access_base(Head* head, unsigned offset, unsigned extent) : store(head), first(offset), bytes(extent) {}
    ~Access_base() { leave(); }
    Access_base(const Access_base&) = delete;
    Access_base& operator=(const Access_base&) = delete;

    /// Takes over a place and registers with its store, which delivers once for a start. Leaves the store that it had.
    /// Throws std::out_of_range if the place lies outside of the store's data.
    void init(const Access_base& place);

    /// What it is to be delivered for is known already. With the lock of the store held nothing newer can be among it.
    void settle();

    /// Null: none, or it is gone.
    Head* head() const { return store; }
    unsigned offset() const { return first; }
    unsigned extent() const { return bytes; }

  private:
    friend class Head;

    void leave();

    Head* store{nullptr};
    unsigned first{0};
    unsigned bytes{0};
    bool registered{false};

    // The store's: it guards them.
    bool queued{false};
    Virt_access* listener{nullptr};
    Access_base* next_in_cell{nullptr};
    Access_base* next_in_queue{nullptr};
    Access_base* previous_in_queue{nullptr};
};

} // namespace CDS

#endif
