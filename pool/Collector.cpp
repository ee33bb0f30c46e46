#include "pool/Collector.h"

#include "pool/Names.h"

#include <algorithm>
#include <limits>
#include <string>

namespace VT {

void Collector::collect(VT_obj& root)
{
    pending.push_back(&root);
    collect_pending();
}

void Collector::collect_below(VT_obj& member)
{
    const Kind& kind = kinds.of(member);
    check_lists(kind, member);
    expand(kind, member);
    collect_pending();
}

void Collector::collect_pending()
{
    while (!pending.empty()) {
        VT_obj& object = *pending.back();
        pending.pop_back();
        if (object.get_pool() == &pool)
            continue;
        if (object.get_pool()) {
            report_stranger(object);
            continue;
        }
        const Kind& kind = kinds.of(object);
        found.push_back({&object, &kind, object.get_id()});
        object.set_pool(&pool, object.get_id());
        check_lists(kind, object);
        expand(kind, object);
    }
}

void Collector::report_stranger(const VT_obj& object)
{
    if (std::find(strangers.begin(), strangers.end(), &object) != strangers.end())
        return;
    strangers.push_back(&object);
    problems.push_back(
        {Error::in_another_pool, object.get_id(), name_of(object), describe(object) + " belongs to another pool"});
}

void Collector::expand(const Kind& kind, VT_obj& object)
{
    const auto first = static_cast<std::ptrdiff_t>(pending.size());
    for_each_reachable(kind, object, [this](VT_obj* reached) {
        if (reached && reached->get_pool() != &pool)
            pending.push_back(reached);
    });
    std::reverse(pending.begin() + first, pending.end());
}

void Collector::check_lists(const Kind& kind, VT_obj& object)
{
    const auto check = [&](std::size_t entries, const char* what) {
        constexpr std::size_t most = std::numeric_limits<std::uint8_t>::max();
        if (entries > most)
            problems.push_back({Error::too_many_children, object.get_id(), name_of(object),
                                describe(object) + " has " + std::to_string(entries) + ' ' + what +
                                    "; there is room for " + std::to_string(most)});
    };
    if (const Comp::Child_placements* const children = placements_of(kind, object))
        check(children->size(), "children");
    if (kind.is_parent)
        check(static_cast<Parent_obj&>(object).get_children().size(), "children");
    if (kind.links == Kind::Links::polygon)
        if (const Comp::Vertices* const vertices = static_cast<Comp::Polygon_obj&>(object).vertices_ptr)
            check(vertices->size(), "points");
}

} // namespace VT
