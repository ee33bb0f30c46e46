#include "cds/Access_base.h"

#include "cds/Head.h"

namespace CDS {

void Access_base::init(const Access_base& place)
{
    if (place.store)
        place.store->check(place.first, place.bytes);
    leave();
    store = place.store;
    first = place.first;
    bytes = place.bytes;
    if (store && listener) {
        store->enter(*this);
        registered = true;
    }
}

void Access_base::leave()
{
    if (registered)
        store->remove(*this);
    registered = false;
    store = nullptr;
}

} // namespace CDS
