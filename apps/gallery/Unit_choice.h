#ifndef GALLERY_UNIT_CHOICE_H
#define GALLERY_UNIT_CHOICE_H

#include "pool/Pool.h"
#include "units/Units_man.h"
#include "vtui/comp/objects/String_variable_obj.h"

namespace gallery {

/// The system of units that the operator has chosen, one for all quantities, and its name for the screens. The pool
/// stays the application's; all its routed fields follow.
class Unit_choice
{
  public:
    explicit Unit_choice(VT::Pool& objects);

    void choose(Units_man::units_systems system);
    /// Metric, imperial, US, and metric again.
    void choose_next();

    VT::String_variable_obj& name() { return text; }

  private:
    void write_name();

    VT::Pool& pool;
    Units_man units;
    Units_man::units_systems chosen{Units_man::metric};
    VT::Comp::String_variable_obj<8> text;
};

} // namespace gallery

#endif
