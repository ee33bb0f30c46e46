#include "cds/Access_base.h"

#include "cds/Head.h"

namespace CDS {

void Access_base::init(const Access_base& place)
{
    Head* const new_store = place.store; // the place may be its own
    if (new_store)
        new_store->check(place.first, place.bytes);
    leave();
    store = new_store;
    first = place.first;
    bytes = place.bytes;
    if (store && listener) {
        store->enter(*this);
        registered = true;
    }
}

void Access_base::settle()
{
    if (registered)
        store->drop(*this);
}

void Access_base::leave()
{
    if (registered)
        store->remove(*this);
    registered = false;
}

} // namespace CDS
