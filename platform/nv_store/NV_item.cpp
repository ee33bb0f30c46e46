#include "nv_store/NV_item.h"

#include "nv_store/Store.h"

namespace NV_store {

NV_item::NV_item(Store& store, const std::string& name, Data_item::item_type_t type, Bits initial)
    : owner(store), record(store.claim(name, type, initial))
{}

NV_item::~NV_item() { owner.release(record); }

void NV_item::set_bits(Bits value) { owner.set({{*this, value}}); }

} // namespace NV_store
