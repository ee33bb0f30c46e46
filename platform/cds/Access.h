#ifndef CDS_ACCESS_H
#define CDS_ACCESS_H

#include "cds/Access_base.h"
#include "cds/Head.h"

#include <type_traits>

namespace CDS {

template <class T, class Notification>
class Access;

/// One variable of a store, watched: a class that derives from this one hears of changes by handle_change(), for the
/// first time with the next delivery. Store and variable outlive it.
template <class T>
class VTUI_EXPORT Access<T, Virt_access> : public Virt_access
{
  public:
    /// Throws std::out_of_range if the variable lies outside of the store's data.
    Access(Head& head, T& bound) : access(static_cast<Virt_access&>(*this))
    {
        constexpr unsigned extent = std::is_scalar_v<T> ? 1 : sizeof(T);
        access.init(Access_base(&head, head.offset_of(bound), extent));
        variable = &bound;
    }

    Access_base access;
    T* variable{nullptr}; ///< read and written with the lock of the store held
};

} // namespace CDS

#endif
