#ifndef NV_STORE_NV_NUMBER_H
#define NV_STORE_NV_NUMBER_H

#include "nv_store/NV_item.h"
#include "nv_store/Store.h"

namespace NV_store {

/// A number that outlives the process.
///
///     NV_store::NV_number<double, Data_item::float64> rate(store, "rate", 200);
///
/// It has the value that the store has under its name, or else the default, which is not written: a later program may
/// have another one. Any thread reads and sets it.
template <typename T, Data_item::item_type_t item_type>
class VTUI_EXPORT NV_number : public NV_item
{
    static_assert(item_type == Item_type<T>::value, "the code is that of another type");

  public:
    using value_type = T;

    /// Throws std::runtime_error, which names item and file, if an item of this name is there already, or if what the
    /// file has under it is of another type; the file stays as it is then.
    NV_number(Store& store, const std::string& name, T initial = T())
        : NV_item(store, name, item_type, to_bits(initial))
    {}

    /// Never waits, and is never half of one value and half of another.
    T get() const { return from_bits<T>(get_bits()); }

    /// The value is there at once for everyone, on the disk a little later (see Store). Allocates nothing and does not
    /// wait for the disk. Watching accesses hear of it if it is another value; the bits count, so -0 is another one
    /// than 0, and all NaN are one.
    void set(T value) { set_bits(to_bits(value)); }

    /// For Store::set().
    Change to(T value) { return {*this, to_bits(value)}; }
};

} // namespace NV_store

#endif
