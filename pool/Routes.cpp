#include "pool/Routes.h"

#include "pool/Object_table.h"
#include "vt/VT_obj.h"

#include <algorithm>
#include <functional>
#include <numeric>

namespace VT {

namespace {

/// What the operator can use: the objects that events name.
bool is_control(const VT_obj& object)
{
    switch (object.get_type()) {
    case Iso::Object_type::key:
    case Iso::Object_type::button:
    case Iso::Object_type::input_boolean:
    case Iso::Object_type::input_string:
    case Iso::Object_type::input_number:
    case Iso::Object_type::input_list:
        return true;
    default:
        return false;
    }
}

/// Addresses in unrelated memory have an order in std::less only.
bool lies_before(const void* a, const void* b) { return std::less<>()(a, b); }

} // namespace

void Routes::add(const Route& route)
{
    const auto is_known = [&](const Route& r) {
        return r.component == route.component && r.begin == route.begin && r.hand_over == route.hand_over;
    };
    if (std::any_of(routes.begin(), routes.end(), is_known))
        return;
    routes.push_back(route);
    found = false;
}

void Routes::remove(void* component, Hand_over way)
{
    const auto is_its = [=](const Route& r) { return r.component == component && r.hand_over == way; };
    routes.erase(std::remove_if(routes.begin(), routes.end(), is_its), routes.end());
    found = false;
}

void Routes::find_controls(const Object_table& objects)
{
    std::vector<const VT_obj*> controls;
    for (std::size_t place = 0; place < objects.size(); ++place)
        if (objects[place] && is_control(*objects[place]))
            controls.push_back(objects[place]);
    std::sort(controls.begin(), controls.end(), lies_before);

    // Of memory inside other memory the inner one is smaller: it comes later and stays.
    std::vector<std::uint32_t> by_size(routes.size());
    std::iota(by_size.begin(), by_size.end(), 0U);
    std::stable_sort(by_size.begin(), by_size.end(),
                     [this](std::uint32_t a, std::uint32_t b) { return routes[a].size > routes[b].size; });

    route_of.assign(objects.ids(), nobody);
    for (const std::uint32_t index : by_size) {
        const Route& route = routes[index];
        const void* const end = static_cast<const char*>(route.begin) + route.size;
        auto control = std::lower_bound(controls.begin(), controls.end(), route.begin, lies_before);
        for (; control != controls.end() && lies_before(*control, end); ++control)
            route_of[(*control)->get_id()] = index;
    }
    found = true;
}

void Routes::deliver_to_all(const Event& event) const
{
    // A component may route others while it handles the event.
    for (std::size_t i = 0; i < routes.size(); ++i)
        if (routes[i].begin == routes[i].component)
            routes[i].deliver(event);
}

} // namespace VT
