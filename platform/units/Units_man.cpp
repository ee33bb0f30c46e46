#include "units/Units_man.h"

#include "vt/String_variable_obj.h"
#include "vt/vtui_pool.h"

#include <algorithm>
#include <cstring>
#include <stdexcept>

namespace {

// Exact, all of them: each unit is defined by such a number.
constexpr double metres_per_inch = 0.0254;             // international yard and pound agreement, 1959
constexpr double metres_per_foot = 0.3048;             // 12 inches
constexpr double kilometres_per_mile = 1.609344;       // 5280 feet
constexpr double hectares_per_acre = 0.40468564224;    // 4840 square yards of 0.9144 m
constexpr double litres_per_imperial_gallon = 4.54609; // British Weights and Measures Act, 1985
constexpr double litres_per_us_gallon = 3.785411784;   // 231 cubic inches
constexpr double kilograms_per_pound = 0.45359237;     // international yard and pound agreement, 1959
constexpr double standard_gravity = 9.80665;           // m/s², third General Conference on Weights and Measures, 1901
constexpr double fahrenheit_per_celsius = 1.8;         // 180 degrees from ice to steam for 100

constexpr double pascals_per_bar = 100000; // definition of the bar
// A pound's weight on a square inch.
constexpr double pascals_per_psi = kilograms_per_pound * standard_gravity / (metres_per_inch * metres_per_inch);

struct Units
{
    const char* text; ///< begins with the space between number and units, if there is any
    double factor;
};

struct Quantity
{
    const char* name; ///< of the pool's string variable
    std::array<Units, Units_man::number_of_systems> units;
};

constexpr Quantity in_all(const char* name, const char* text) { return {name, {{{text, 1}, {text, 1}, {text, 1}}}}; }

constexpr Quantity metric_or(const char* name, const char* metric, const char* other, double factor)
{
    return {name, {{{metric, 1}, {other, factor}, {other, factor}}}};
}

/// Imperial and US gallons go by one name and differ by a fifth. `per` is the factor of what the litres are counted in.
constexpr Quantity in_gallons(const char* name, const char* litres, const char* gallons, double per)
{
    return {name, {{{litres, 1}, {gallons, per / litres_per_imperial_gallon}, {gallons, per / litres_per_us_gallon}}}};
}

constexpr std::array<Quantity, Units_man::number_of_types> quantities{{
    in_all("no units", ""),
    metric_or("units of speed", " km/h", " mph", 1 / kilometres_per_mile),
    metric_or("units of long distance", " km", " mi", 1 / kilometres_per_mile),
    metric_or("units of short distance", " m", " ft", 1 / metres_per_foot),
    metric_or("units of area", " ha", " ac", 1 / hectares_per_acre),
    metric_or("units of area rate", " ha/h", " ac/h", 1 / hectares_per_acre),
    in_gallons("units of volume", " L", " gal", 1),
    in_gallons("units of volume flow", " L/min", " gal/min", 1),
    in_gallons("units of volume per area", " L/ha", " gal/ac", hectares_per_acre),
    metric_or("units of mass", " kg", " lb", 1 / kilograms_per_pound),
    metric_or("units of mass flow", " kg/min", " lb/min", 1 / kilograms_per_pound),
    metric_or("units of mass per area", " kg/ha", " lb/ac", hectares_per_acre / kilograms_per_pound),
    metric_or("units of count per area", " 1/ha", " 1/ac", hectares_per_acre),
    metric_or("units of pressure", " bar", " psi", pascals_per_bar / pascals_per_psi),
    metric_or("units of temperature difference", " K", " \260F", fahrenheit_per_celsius), // °F
    in_all("units of rotational speed", " rpm"),
    in_all("units of percentage", " %"),
    in_all("units of voltage", " V"),
    in_all("units of current", " A"),
    in_all("units of time", " s"),
}};

void write(VT::String_variable_obj& string, const char* text)
{
    string.set_string(0, text, static_cast<unsigned>(std::strlen(text)));
}

} // namespace

const double& Units_man::get(units_systems system, units_type type)
{
    return quantities.at(type).units.at(system).factor;
}

const char* Units_man::get_text(units_systems system, units_type type)
{
    const char* const text = quantities.at(type).units.at(system).text;
    return *text == ' ' ? text + 1 : text;
}

VT::String_variable_obj* Units_man::get_units_string(VT::vtui_pool* pool, units_type type)
{
    if (!pool || *get_text(metric, type) == '\0')
        return nullptr;
    const Quantity& quantity = quantities[type];
    if (VT::String_variable_obj* const made = pool->find_text(quantity.name))
        return made;
    std::size_t room = 0;
    for (const Units& units : quantity.units)
        room = std::max(room, std::strlen(units.text));
    VT::String_variable_obj& string = pool->make_text(quantity.name, static_cast<std::uint16_t>(room));
    write(string, quantity.units[metric].text);
    return &string;
}

void Units_man::set_system_type(units_type type, units_systems system)
{
    if (system >= number_of_systems)
        throw std::out_of_range("there is no such system of units");
    chosen.at(type) = system;
}

void Units_man::set_system_type(units_systems system)
{
    for (std::size_t type = 0; type < number_of_types; ++type)
        set_system_type(static_cast<units_type>(type), system);
}

void Units_man::write_texts(VT::vtui_pool& pool) const
{
    for (std::size_t type = 0; type < number_of_types; ++type) {
        VT::String_variable_obj* const string = pool.find_text(quantities[type].name);
        const char* const text = quantities[type].units[chosen[type]].text;
        const std::size_t length = std::strlen(text);
        if (string && (string->num_chars() != length || std::memcmp(string->value.text(), text, length) != 0))
            write(*string, text);
    }
}
