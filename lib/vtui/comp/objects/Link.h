#ifndef VTUI_COMP_LINK_H
#define VTUI_COMP_LINK_H

#include "vt/VT_obj.h"

namespace VT::Comp {

/// The one rule for links between objects: the pointer is stored; `write` hands the id to the VT object only once the
/// owner has an id itself. Until then the pool, which follows the pointer, does that.
template <class Owner, class Target, class Base>
void set_link(Owner& owner, Target*& link, Target* target, void (Base::*write)(Iso::Object_id))
{
    link = target;
    if (owner.get_id() != VT::VT_obj::NULL_ID)
        (owner.*write)(owner.id_of(target));
}

} // namespace VT::Comp

#endif
