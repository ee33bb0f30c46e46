#ifndef UNITS_UNITS_MAN_H
#define UNITS_UNITS_MAN_H

#include "iso11783/Export.h"

#include <array>
#include <cstddef>
#include <cstdint>

namespace VT {
class vtui_pool;
class String_variable_obj;
} // namespace VT

/// Knows in which units a quantity is shown in each system of units, and which system is chosen for it. The store keeps
/// every quantity in its metric unit; factors lead from there to what is shown.
///
///     units.set_system_type(Units_man::speed, Units_man::us);
///     pool.announce(units); // components and units texts follow
///
/// A quantity or system outside its enumeration throws std::out_of_range here.
class VTUI_EXPORT Units_man
{
  public:
    enum units_systems : std::uint32_t { metric, imperial, us };
    static constexpr std::size_t number_of_systems = 3;

    /// What an implement shows, with its metric unit.
    enum units_type : std::uint32_t {
        none,                   ///< a plain number: factor 1 and no text
        speed,                  ///< km/h
        distance_long,          ///< km
        distance_short,         ///< m
        area,                   ///< ha
        area_rate,              ///< ha/h
        volume,                 ///< L: a small l would be read as a 1
        volume_flow,            ///< L/min
        volume_per_area,        ///< L/ha
        mass,                   ///< kg
        mass_flow,              ///< kg/min
        mass_per_area,          ///< kg/ha
        count_per_area,         ///< 1/ha
        pressure,               ///< bar
        temperature_difference, ///< K: no zero is shifted, so not for temperatures
        rotational_speed,       ///< rpm
        percent,                ///< %
        voltage,                ///< V
        current,                ///< A
        time,                   ///< s
    };
    static constexpr std::size_t number_of_types = time + 1;

    /// Shown units per metric unit.
    static const double& get(units_systems system, units_type type);
    /// The text of the units, in ISO 8859-1; empty for a quantity without.
    static const char* get_text(units_systems system, units_type type);

    /// The string variable with the units text of a quantity, a space before it to part it from a number. The pool owns
    /// one for all components; it says the metric text until other systems are announced. Null without a pool, and for
    /// a quantity without units.
    static VT::String_variable_obj* get_units_string(VT::vtui_pool* pool, units_type type);

    /// The system chosen for a quantity; metric at first.
    units_systems get_system_type(units_type type) const { return chosen.at(type); }
    void set_system_type(units_type type, units_systems system);
    /// Chooses one system for all quantities.
    void set_system_type(units_systems system);

    /// Brings the units texts that the pool has up to date; a live one sends Change String Value for each that differs.
    void write_texts(VT::vtui_pool& pool) const;

  private:
    std::array<units_systems, number_of_types> chosen{};
};

#endif
