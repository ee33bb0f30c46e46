#include "pool/Colours.h"

#include "pool/Names.h"
#include "vt/VT_obj.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace VT {

namespace {

using Resolve_colour::Attribute_node;

/// By palette index.
constexpr std::array<std::string_view, 16> standard_colours{
    "black", "white", "green", "teal", "maroon", "purple",  "olive",  "silver",
    "grey",  "blue",  "lime",  "cyan", "red",    "magenta", "yellow", "navy",
};

struct Unknown
{
    Attribute_colour* colour;
    const char* symbol;
};

/// The resolver is a plain function; what it does not know it leaves here.
thread_local std::vector<Unknown> unknown;

unsigned char standard_colour(Attribute_node& node)
{
    const auto found = std::find(standard_colours.begin(), standard_colours.end(), node.get_name());
    if (found != standard_colours.end())
        return static_cast<unsigned char>(found - standard_colours.begin());
    auto& colour = static_cast<Attribute_colour&>(node); // there is no other class of nodes
    unknown.push_back({&colour, node.get_name()});
    return colour; // stays as it is
}

} // namespace

void resolve_colours(unsigned char (*resolve)(Attribute_node&), const Client::Object_pool_interface& pool,
                     Unknown_colours own, std::vector<Problem>& problems)
{
    unknown.clear();
    Resolve_colour::List<Attribute_node>::resolve_colours(resolve ? resolve : standard_colour);
    for (const auto& [colour, symbol] : unknown) {
        const VT_obj& object = *colour->get_object();
        const bool is_own = object.get_pool() == &pool;
        if (is_own)
            problems.push_back({Error::unknown_colour, object.get_id(), name_of(object),
                                describe(object) + ": nobody knows the colour '" + symbol + "'"});
        if (!is_own || own == Unknown_colours::wait)
            colour->set_symbol(symbol);
    }
}

} // namespace VT
