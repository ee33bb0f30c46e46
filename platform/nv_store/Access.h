#ifndef NV_STORE_ACCESS_H
#define NV_STORE_ACCESS_H

#include "iso11783/Export.h"
#include "nv_store/Bits.h"
#include "nv_store/List.h"
#include "nv_store/NV_number.h"

class waiter_descriptor;

namespace NV_store {

/// Says which item somebody is interested in. The item outlives it.
class VTUI_EXPORT Access_base
{
  public:
    explicit Access_base(NV_item* bound) : item(bound) {}
    Access_base(const Access_base&) = delete;
    Access_base& operator=(const Access_base&) = delete;

  protected:
    NV_item* item;
};

/// Hears of changes of an item while it is registered under a waiter: the waiter's owner calls deliver(), and that
/// calls handle_event(), once for all changes since the last time. All of this class, and its end, belong to the
/// waiter's owner's thread; changes come from any. It may go, or end its registration, at any time: also from within a
/// notification, and while its own is on the way; it is not called any more then.
class VTUI_EXPORT Virt_access : public Access_base
{
  public:
    using Access_base::Access_base;

    /// The item has changed.
    virtual void handle_event() = 0;
    virtual ~Virt_access();

    /// Registers for changes. With `since_read` a change since this access last read the item counts as well, so that
    /// whoever shows the value first and registers then misses none. Once more under the same waiter: nothing else;
    /// under another one: it moves there.
    void autoreg(waiter_descriptor* waiter, bool since_read);
    /// Ends the registration under that waiter, with null under whichever; a notification on the way is dropped. Does
    /// nothing if there is none.
    void autounreg(waiter_descriptor* waiter);
    /// Asks for a notification of its own, as if the item had changed, if it is registered.
    void ask();
    /// The owner knows already that the item is that. If it still is, a notification on the way is dropped.
    void settle(Bits known);

  protected:
    Bits last_read{item_value()}; ///< what autoreg() compares with

  private:
    friend class Store;
    friend class ::waiter_descriptor;

    Bits item_value() const;
    void notify(); ///< while registered: by the owner, or by any thread with the store's lock held

    waiter_descriptor* registered_under{nullptr}; ///< written with the store's lock held
    Link<Virt_access> in_item{*this};             ///< guarded by the store
    Link<Virt_access> in_waiter{*this};           ///< used by the waiter's owner alone
    Link<Virt_access> in_queue{*this};            ///< guarded by the waiter
};

template <class N, class Notification>
class Access;

/// An access to a number. Derive from it to hear of changes.
template <class N>
class VTUI_EXPORT Access<N, Virt_access> : public Virt_access
{
  public:
    explicit Access(N& bound) : Virt_access(&bound) {}

  protected:
    N& number() const { return static_cast<N&>(*item); }
    /// The number's value. What it changes to from now on is news, see autoreg().
    typename N::value_type read()
    {
        const auto value = number().get();
        last_read = to_bits(value);
        return value;
    }
};

} // namespace NV_store

#endif
