#include "cds/Head.h"

#include "cds/Access_base.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <stdexcept>
#include <string>

namespace CDS {

namespace {

constexpr unsigned cell_size = 16; ///< bytes of data

/// The last cell that a place reaches into. At least one byte long, and not beyond the numbers.
unsigned last_cell(unsigned offset, unsigned extent)
{
    const unsigned reach = std::min(std::max(extent, 1U) - 1, std::numeric_limits<unsigned>::max() - offset);
    return (offset + reach) / cell_size;
}

/// True if one begins in the other. Each is at least one byte long.
bool overlap(const Access_base& access, unsigned offset, unsigned extent)
{
    return offset < access.offset() ? access.offset() - offset < extent
                                    : offset - access.offset() < std::max(access.extent(), 1U);
}

/// Holds the lock as long as it lives, for who may come with the lock held already.
class Hold
{
  public:
    explicit Hold(MutexImp& wanted) : lock(wanted.is_held_by_this_thread() ? nullptr : &wanted)
    {
        if (lock)
            lock->hold();
    }
    ~Hold()
    {
        if (lock)
            lock->release();
    }
    Hold(const Hold&) = delete;
    Hold& operator=(const Hold&) = delete;

  private:
    MutexImp* lock;
};

[[noreturn]] void report_outside(std::int64_t offset, std::size_t extent, std::size_t size)
{
    throw std::out_of_range("CDS: an access to " + std::to_string(extent) + " bytes at offset " +
                            std::to_string(offset) + " leaves the data of " + std::to_string(size) + " bytes");
}

} // namespace

Head::Head(void* data, std::size_t data_size) : begin(data), bytes(data_size)
{
    if (bytes > std::numeric_limits<unsigned>::max())
        throw std::length_error("CDS: data of " + std::to_string(bytes) + " bytes are too large for one store");
    cells.resize(bytes / cell_size + 1);
}

Head::~Head()
{
    const auto abandon = [](Access_base* access) {
        for (; access; access = access->next_in_cell) {
            access->store = nullptr;
            access->registered = false;
        }
    };
    std::for_each(cells.begin(), cells.end(), abandon);
    abandon(across);
}

void Head::check(unsigned offset, std::size_t extent) const
{
    if (!contains(offset, extent))
        report_outside(offset, extent, bytes);
}

unsigned Head::offset_of(const void* variable, std::size_t extent) const
{
    // As numbers: addresses in unrelated memory have no distance.
    const auto distance = reinterpret_cast<std::uintptr_t>(variable) - reinterpret_cast<std::uintptr_t>(begin);
    if (!contains(distance, extent))
        report_outside(static_cast<std::intptr_t>(distance), extent, bytes);
    return static_cast<unsigned>(distance);
}

bool Head::contains(std::uintptr_t offset, std::size_t extent) const
{
    return offset <= bytes && extent <= bytes - offset;
}

void Head::event_signal(const void*, const void*, unsigned offset, unsigned extent, const void*)
{
    if (note(offset, extent))
        wake_up.set();
}

std::size_t Head::deliver()
{
    wake_up.clear();
    // As many as there are now: those who change the data in answer would keep this going for ever.
    const std::size_t most = read(*this, queued);
    std::size_t delivered = 0;
    while (delivered < most) {
        Virt_access* const listener = take_first();
        if (!listener)
            break;
        ++delivered;
        try {
            listener->handle_change(); // it may be gone after this
        } catch (...) {
            wake_up.set();
            throw;
        }
    }
    return delivered;
}

void Head::enter(Access_base& access)
{
    {
        const Hold lock(*this);
        access.next_in_cell = nullptr;
        *link_to(nullptr, access) = &access;
        append(access);
    }
    wake_up.set();
}

void Head::remove(Access_base& access)
{
    const Hold lock(*this);
    if (access.queued)
        take(access);
    *link_to(&access, access) = access.next_in_cell;
}

void Head::drop(Access_base& access)
{
    const Hold lock(*this);
    if (access.queued)
        take(access);
}

bool Head::note(unsigned offset, unsigned extent)
{
    bool is_somebody_concerned = false;
    const auto note_in = [&](Access_base* access) {
        for (; access; access = access->next_in_cell) {
            if (!overlap(*access, offset, extent))
                continue;
            is_somebody_concerned = true;
            if (!access->queued)
                append(*access);
        }
    };
    const std::size_t end = std::min(std::size_t{last_cell(offset, extent)} + 1, cells.size());
    for (std::size_t cell = offset / cell_size; cell < end; ++cell)
        note_in(cells[cell]);
    note_in(across);
    return is_somebody_concerned;
}

Access_base** Head::link_to(const Access_base* wanted, const Access_base& place)
{
    const unsigned cell = place.offset() / cell_size;
    Access_base** link = last_cell(place.offset(), place.extent()) == cell ? &cells[cell] : &across;
    while (*link != wanted)
        link = &(*link)->next_in_cell;
    return link;
}

void Head::append(Access_base& access)
{
    access.next_in_queue = nullptr;
    access.previous_in_queue = last;
    (last ? last->next_in_queue : first) = &access;
    last = &access;
    access.queued = true;
    ++queued;
}

void Head::take(Access_base& access)
{
    (access.previous_in_queue ? access.previous_in_queue->next_in_queue : first) = access.next_in_queue;
    (access.next_in_queue ? access.next_in_queue->previous_in_queue : last) = access.previous_in_queue;
    access.queued = false;
    --queued;
}

Virt_access* Head::take_first()
{
    const Read lock(*this);
    if (!first)
        return nullptr;
    Virt_access* const listener = first->listener;
    take(*first);
    return listener;
}

} // namespace CDS
