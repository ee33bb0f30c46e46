#include "pool/Routes.h"

#include "pool/Object_table.h"
#include "vt/VT_obj.h"

#include <algorithm>
#include <functional>

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

bool Routes::By_component::comes_before(const Route& a, const Route& b)
{
    if (a.component != b.component)
        return lies_before(a.component, b.component);
    if (a.hand_over != b.hand_over)
        return std::less<>()(a.hand_over, b.hand_over);
    if (a.begin != b.begin)
        return lies_before(a.begin, b.begin);
    return a.whole < b.whole;
}

void Routes::add(const Route& route)
{
    if (in_use.find(route) != in_use.end())
        return;
    if (removed.empty()) {
        routes.push_back(route);
        in_use.insert(static_cast<std::uint32_t>(routes.size() - 1));
    } else {
        routes[*removed.begin()] = route;
        in_use.insert(removed.extract(removed.begin()));
    }
    current = false;
}

bool Routes::remove(void* component, Hand_over hand_over_)
{
    Route first{}; // of those that the component may have
    first.component = component;
    first.hand_over = hand_over_;
    bool any = false;
    for (auto next = in_use.lower_bound(first); next != in_use.end();) {
        Route& route = routes[*next];
        if (route.component != component || route.hand_over != hand_over_)
            break;
        removed.insert(in_use.extract(next++));
        route.component = nullptr;
        route.events = 0;
        any = true;
    }
    return any;
}

void Routes::rebuild(const Object_table& objects)
{
    std::vector<const VT_obj*> controls;
    for (std::size_t place = 0; place < objects.size(); ++place)
        if (objects[place] && is_control(*objects[place]))
            controls.push_back(objects[place]);
    std::sort(controls.begin(), controls.end(), lies_before);

    // In the order of their memory, what contains others before them.
    std::vector<std::uint32_t> order;
    for (std::uint32_t i = 0; i < routes.size(); ++i)
        if (routes[i].component)
            order.push_back(i);
    std::stable_sort(order.begin(), order.end(), [this](std::uint32_t a, std::uint32_t b) {
        const Route &left = routes[a], &right = routes[b];
        if (left.begin != right.begin)
            return lies_before(left.begin, right.begin);
        return left.size != right.size ? left.size > right.size : left.component_size > right.component_size;
    });

    route_of.assign(objects.ids(), nobody);
    std::uint32_t around = nobody; // the innermost memory that contains the present address
    const auto leave_what_ends_before = [&](const void* address) {
        const auto has_ended = [&](const Route& r) {
            return !lies_before(address, static_cast<const char*>(r.begin) + r.size);
        };
        while (around != nobody && has_ended(routes[around]))
            around = routes[around].outer;
    };
    auto next = order.begin();
    for (const VT_obj* const control : controls) {
        for (; next != order.end() && !lies_before(control, routes[*next].begin); ++next) {
            leave_what_ends_before(routes[*next].begin);
            routes[*next].outer = around;
            around = *next;
        }
        leave_what_ends_before(control);
        route_of[control->get_id()] = around;
    }
    current = true;
}

void Routes::deliver_to_all(const Event& event) const
{
    // A component may route others, or no longer itself, while it handles the event.
    for (std::size_t i = 0; i < routes.size(); ++i)
        if (routes[i].component && routes[i].whole)
            routes[i].hand_over(routes[i].component, event);
}

} // namespace VT
