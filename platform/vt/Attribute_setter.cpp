#include "vt/Attribute_setter.h"

#include "vt/VT_obj.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <type_traits>

namespace VT {

namespace {

template <typename T>
bool holds(const Attribute_info& info, double number)
{
    if constexpr (std::is_floating_point_v<T>) {
        return std::abs(number) <= std::numeric_limits<T>::max();
    } else {
        const double lowest = std::max<double>(std::numeric_limits<T>::min(), static_cast<double>(info.lowest));
        const double highest = std::min<double>(std::numeric_limits<T>::max(), static_cast<double>(info.highest));
        return number >= lowest && number <= highest && number == std::trunc(number);
    }
}

constexpr const char* not_a_number = "takes a number";
constexpr const char* out_of_range = "cannot hold that value";

} // namespace

template <typename T>
void Attribute_setter::set_number(const Attribute_info& info, Attribute<T>& attribute)
{
    const Client::Specified_value* const value = wanted(info);
    if (!value)
        return;
    const double* const number = std::get_if<double>(value);
    if (!number)
        return refused(info, not_a_number);
    if (!holds<T>(info, *number))
        return refused(info, out_of_range);
    attribute = static_cast<T>(*number);
    if (done(info, attribute.bits()))
        attribute.set_told();
}

void Attribute_setter::attribute(const Attribute_info& info, Attribute_uint8& a) { set_number(info, a); }
void Attribute_setter::attribute(const Attribute_info& info, Attribute_uint16& a) { set_number(info, a); }
void Attribute_setter::attribute(const Attribute_info& info, Attribute_int16& a) { set_number(info, a); }
void Attribute_setter::attribute(const Attribute_info& info, Attribute_uint32& a) { set_number(info, a); }
void Attribute_setter::attribute(const Attribute_info& info, Attribute_int32& a) { set_number(info, a); }
void Attribute_setter::attribute(const Attribute_info& info, Attribute_real& a) { set_number(info, a); }

void Attribute_setter::attribute(const Attribute_info& info, Attribute_object_id_spec& reference)
{
    set_number(info, static_cast<Attribute_uint16&>(reference));
}

void Attribute_setter::attribute(const Attribute_info& info, Attribute_colour& colour)
{
    const Client::Specified_value* const value = wanted(info);
    if (!value)
        return;
    if (const std::string* const symbol = std::get_if<std::string>(value))
        return colour.set_symbol(symbol->c_str());
    const double number = std::get<double>(*value);
    if (!holds<std::uint8_t>(info, number))
        return refused(info, out_of_range);
    colour = static_cast<std::uint8_t>(number);
    if (done(info, colour))
        colour.set_told();
}

void Attribute_setter::attribute(const Attribute_info& info, Attribute_string& string)
{
    const Client::Specified_value* const value = wanted(info);
    if (!value)
        return;
    const std::string* const text = std::get_if<std::string>(value);
    if (!text)
        return refused(info, "takes a text");
    const std::size_t room = string.buffer ? string.item_count : 0;
    if (text->size() > room)
        return refused(info, "is too short for that text");
    std::fill_n(string.buffer, room, '\0');
    text->copy(string.buffer, room);
    string.set_changed();
    done(info, 0);
}

void Attribute_specifier::refused(const Attribute_info& info, const char* why)
{
    any_refused = true;
    object.report(info.name, why);
}

const Client::Specified_value* Attribute_changer::wanted(const Attribute_info& info)
{
    return info.id && std::strcmp(info.name, name) == 0 ? &value : nullptr;
}

bool Attribute_changer::done(const Attribute_info& info, std::uint32_t raw)
{
    any_done = true;
    return object.tell_attribute(info.id, raw);
}

} // namespace VT
