#ifndef CDS_HEAD_H
#define CDS_HEAD_H

#include "cds/MutexImp.h"
#include "iso11783/Export.h"
#include "threads/Wake_up.h"

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <memory>
#include <mutex>
#include <type_traits>
#include <vector>

namespace CDS {

class Access_base;
class Virt_access;

/// The head of the central data store: the lock of the application's own data, and the news of what changes there.
///
///     struct Machine { double speed; unsigned area; } data;
///     CDS::Head head(data);
///
/// Any thread reads (Read) and writes (Write, or try_write, which never waits). One thread delivers: the one that owns
/// the screens. It waits for descriptor() and calls deliver(), and only there do accesses hear of changes. The data
/// stay the application's.
class VTUI_EXPORT Head : public MutexImp
{
  public:
    template <class Data>
    explicit Head(Data& data) : Head(std::addressof(data), sizeof data)
    {
        static_assert(!std::is_base_of_v<MutexImp, Data>, "a store has one head");
    }
    /// Allocates a pointer for every 16 bytes of data and one more, and nothing after. Throws std::length_error from 4
    /// GiB on.
    Head(void* data, std::size_t data_size);
    /// Accesses that are left have no store then.
    ~Head();

    void* base() const { return begin; }
    std::size_t size() const { return bytes; }

    /// Where a variable lies in the data. Throws std::out_of_range if it lies elsewhere.
    template <class T>
    unsigned offset_of(const T& variable) const
    {
        return offset_of(std::addressof(variable), sizeof variable);
    }
    /// Throws std::out_of_range if so many bytes from there are not all of them in the data.
    void check(unsigned offset, std::size_t extent) const;

    /// A variable is about to change: called with the lock held and the old value in place; the numbers are those of an
    /// Access_base. Notes what accesses are concerned and wakes the thread that delivers; nobody is called from here.
    /// An access that is noted stays so until it is delivered, however often its variable changes.
    void event_signal(const void* variable, const void* new_value, unsigned offset, unsigned extent,
                      const void* options);

    /// Readable (POLLIN) while there is something to deliver.
    int descriptor() const { return wake_up.descriptor(); }
    /// Calls those who are concerned by what has changed, each once, without the lock, and says how many: in the order
    /// of the changes, and of one change in the order in which they registered. Makes no more calls than there were to
    /// make when it began; what changes meanwhile is left for the next time, as descriptor() tells. Not to be called
    /// with the lock held. What a listener throws comes out here, and the others stay to be delivered.
    std::size_t deliver();

  private:
    friend class Access_base;
    friend class Write;

    unsigned offset_of(const void* variable, std::size_t extent) const;
    bool contains(std::uintptr_t offset, std::size_t extent) const;
    void enter(Access_base& access);
    void remove(Access_base& access);
    void drop(Access_base& access); ///< is not delivered to, unless something changes again
    /// True if anybody is concerned: also by one who is noted already, because whoever noted it may not get to wake
    /// the thread that delivers.
    bool note(unsigned offset, unsigned extent);
    /// In the chain for accesses of that place: what points to `wanted`, or for null the end.
    Access_base** link_to(const Access_base* wanted, const Access_base& place);
    void append(Access_base& access);
    void take(Access_base& access);
    Virt_access* take_first(); ///< whom to call next; null if there is nobody

    void* begin;
    std::size_t bytes;
    Wake_up wake_up;

    // Read and written with the lock held, like all of an access that is the store's.
    std::vector<Access_base*> cells; ///< chains of the accesses that lie in one cell of the data
    Access_base* across{nullptr};    ///< the chain of those that lie in several
    Access_base* first{nullptr};     ///< to deliver, in this order
    Access_base* last{nullptr};
    std::size_t queued{0};
};

/// Holds the lock as long as it lives, to read several variables that belong together.
class VTUI_EXPORT Read
{
  public:
    explicit Read(Head& store) : head(store) { head.hold(); }
    ~Read() { head.release(); }
    Read(const Read&) = delete;
    Read& operator=(const Read&) = delete;

  private:
    Head& head;
};

/// One variable, or the whole data.
template <class T>
T read(Head& head, const T& variable)
{
    const Read lock(head);
    return variable;
}

/// Holds the lock as long as it lives, to change variables that belong together; to read them as well. Whoever waits
/// for changes is woken at its end. Allocates nothing.
///
///     {
///         CDS::Write write(head);
///         write.set(data.speed, 3.4);
///         write.set(data.area, data.area + 1);
///     }
class VTUI_EXPORT Write
{
  public:
    explicit Write(Head& store) : head(store) { head.hold(); }
    ~Write()
    {
        head.release();
        if (news)
            head.wake_up.set();
    }
    Write(const Write&) = delete;
    Write& operator=(const Write&) = delete;

    /// Nobody hears of a value that is there already, byte by byte. Throws std::out_of_range if the variable does not
    /// belong to the store.
    template <class T>
    void set(T& variable, const std::common_type_t<T>& value)
    {
        static_assert(std::is_trivially_copyable_v<T>);
        const unsigned offset = head.offset_of(variable);
        if (std::memcmp(&variable, &value, sizeof variable) == 0)
            return;
        if (head.note(offset, sizeof variable))
            news = true;
        variable = value;
    }

  private:
    template <class Change>
    friend bool try_write(Head& head, Change&& change);

    Write(Head& store, std::adopt_lock_t) : head(store) {}

    Head& head;
    bool news{false};
};

/// Changes variables without ever waiting, for a control loop of high priority: if the lock is free, calls
/// change(write) with it held, otherwise nothing. Says whether it did.
///
///     CDS::try_write(head, [&](CDS::Write& write) { write.set(data.speed, 3.4); });
template <class Change>
bool try_write(Head& head, Change&& change)
{
    if (!head.try_hold())
        return false;
    Write write(head, std::adopt_lock);
    change(write);
    return true;
}

} // namespace CDS

#endif
