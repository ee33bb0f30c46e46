#include "vt/Attribute.h"

#include "vt/Iso_object_base.h"

#include <algorithm>
#include <ostream>

namespace VT {

namespace {

template <typename T>
constexpr Attribute_type type_of = Attribute_type::real;
template <>
constexpr Attribute_type type_of<std::uint8_t> = Attribute_type::uint8;
template <>
constexpr Attribute_type type_of<std::uint16_t> = Attribute_type::uint16;
template <>
constexpr Attribute_type type_of<std::int16_t> = Attribute_type::int16;
template <>
constexpr Attribute_type type_of<std::uint32_t> = Attribute_type::uint32;
template <>
constexpr Attribute_type type_of<std::int32_t> = Attribute_type::int32;

} // namespace

void print_attribute(std::ostream& out, unsigned indent, Attribute_type type, const char* name)
{
    for (unsigned level = 0; level < indent; ++level)
        out << "  ";
    out << "Type: " << static_cast<unsigned>(type) << "\tName: ";
    if (name)
        out << name << std::endl;
    else
        out.setstate(std::ios_base::badbit);
}

template <typename T>
void Attribute<T>::print(std::ostream& out, unsigned indent, const char* name) const
{
    print_attribute(out, indent, type_of<T>, name);
}

template class Attribute<std::uint8_t>;
template class Attribute<std::uint16_t>;
template class Attribute<std::int16_t>;
template class Attribute<std::uint32_t>;
template class Attribute<std::int32_t>;
template class Attribute<float>;

bool Attribute_object_id_spec::null_check(const Iso::Iso_object_base& owner, const char* name) const
{
    if (*this != Iso::null_id)
        return true;
    owner.report(name, "is the null id");
    return false;
}

void Attribute_object_id_spec::print(std::ostream& out, unsigned indent, const char* name) const
{
    print_attribute(out, indent, Attribute_type::object_id, name);
}

void Attribute_object_placement::print(std::ostream& out, unsigned indent) const
{
    print_attribute(out, indent, Attribute_type::object_placement, "object_placement");
    object_id.print(out, indent + 1, "object_id");
    x.print(out, indent + 1, "x");
    y.print(out, indent + 1, "y");
}

void Attribute_point::print(std::ostream& out, unsigned indent) const
{
    print_attribute(out, indent, Attribute_type::point, "point");
    x.print(out, indent + 1, "point_x");
    y.print(out, indent + 1, "point_y");
}

void Attribute_string::print(std::ostream& out, unsigned indent, const char* name) const
{
    print_attribute(out, indent, Attribute_type::string, name);
}

std::uint16_t Attribute_string::num_chars() const
{
    if (!buffer)
        return 0;
    return static_cast<std::uint16_t>(std::find(buffer, buffer + item_count, '\0') - buffer);
}

} // namespace VT
