#ifndef NV_STORE_RECORD_H
#define NV_STORE_RECORD_H

#include "nv_store/Bits.h"
#include "nv_store/Data_item.h"
#include "nv_store/List.h"

#include <atomic>
#include <string>

namespace NV_store {

class Virt_access;

/// What a store knows of one name. It stays until the store goes, whether or not an item has it. All but the value is
/// guarded by the store.
struct Record
{
    const std::string* name{nullptr};
    Data_item::item_type_t type{};
    std::atomic<Bits> value{0};
    bool is_in_use{false}; ///< an item has it
    bool is_kept{false};   ///< the file has a value or is to have one; otherwise it is a default
    bool is_lost{false};   ///< or can be: a damaged file may have had a value
    Bits checksum{0};      ///< the one in the file, used by the writer alone once it runs; 0 if there is none
    Link<Record> unsaved{*this};
    List<Virt_access> accesses;
};

static_assert(std::atomic<Bits>::is_always_lock_free, "reading a number takes no lock");

} // namespace NV_store

#endif
