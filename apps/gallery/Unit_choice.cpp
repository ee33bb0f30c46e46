#include "apps/gallery/Unit_choice.h"

namespace gallery {

Unit_choice::Unit_choice(VT::Pool& objects) : pool(objects) { write_name(); }

void Unit_choice::choose(Units_man::units_systems system)
{
    chosen = system;
    write_name();
    units.set_system_type(chosen);
    pool.announce(units);
}

void Unit_choice::choose_next()
{
    choose(static_cast<Units_man::units_systems>((chosen + 1) % Units_man::number_of_systems));
}

void Unit_choice::write_name()
{
    constexpr const char* names[Units_man::number_of_systems] = {"metric", "imperial", "US"};
    text.format("%s", names[chosen]);
}

} // namespace gallery
