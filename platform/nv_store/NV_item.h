#ifndef NV_STORE_NV_ITEM_H
#define NV_STORE_NV_ITEM_H

#include "iso11783/Export.h"
#include "nv_store/Record.h"

namespace NV_store {

class Store;

/// A value that a store keeps under a name, of whatever type. The store outlives it, and it outlives its accesses.
class VTUI_EXPORT NV_item
{
  public:
    /// A new value for an item, for Store::set().
    struct Change
    {
        NV_item& item;
        Bits value;
    };

    NV_item(const NV_item&) = delete;
    NV_item& operator=(const NV_item&) = delete;

    const std::string& name() const { return *record.name; }
    Data_item::item_type_t type() const { return record.type; }
    Store& store() const { return owner; }

  protected:
    /// Throws std::runtime_error if an item of this name is there already, or if the store has it with another type.
    NV_item(Store& store, const std::string& name, Data_item::item_type_t type, Bits initial);
    ~NV_item();

    Bits get_bits() const { return record.value.load(std::memory_order_acquire); }
    void set_bits(Bits value);

  private:
    friend class Store;
    friend class Virt_access;

    Store& owner;
    Record& record;
};

} // namespace NV_store

#endif
