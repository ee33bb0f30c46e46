#include "vt/Resolve_colour.h"

#include "vt/Attribute.h"

namespace VT {

namespace Resolve_colour {

template <>
List<Attribute_node> List<Attribute_node>::unresolved{};

} // namespace Resolve_colour

namespace {
using Unresolved = Resolve_colour::List<Resolve_colour::Attribute_node>;
}

Attribute_colour::~Attribute_colour()
{
    if (is_queued())
        Unresolved::unresolved.remove(*this);
}

Attribute_colour& Attribute_colour::operator=(std::uint8_t palette_index)
{
    if (is_queued()) {
        Unresolved::unresolved.remove(*this);
        nuke_name();
    }
    set_colour(palette_index);
    return *this;
}

void Attribute_colour::set_symbol(const char* symbol)
{
    name = symbol;
    Unresolved::unresolved.add(*this);
}

void Attribute_colour::print(std::ostream& out, unsigned indent, const char* attribute) const
{
    print_attribute(out, indent, Attribute_type::colour, attribute);
}

void Attribute_colour::set_colour(std::uint8_t palette_index)
{
    if (palette_index == value)
        return;
    value = palette_index;
    is_changed = true;
}

} // namespace VT
