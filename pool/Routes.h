#ifndef POOL_ROUTES_H
#define POOL_ROUTES_H

#include "iso11783/Object_type.h"
#include "pool/Terminal_message.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <type_traits>
#include <utility>
#include <variant>
#include <vector>

class Units_man;

namespace VT {

class Object_table;
class VT_obj;

/// An event on its way to a component. The last two concern all components, the others that of the object they name.
using Event = std::variant<Soft_key_activation_event*, Button_activation_event*, VT_change_numeric_value_event*,
                           VT_change_string_value_event*, Select_input_object_event*, Esc_event*, const VT_information*,
                           Units_man*>;

/// Which component an event goes to: the innermost one in whose memory the object lies which the event names.
/// Components are not owned.
class VTUI_EXPORT Routes
{
  public:
    template <class Component>
    void add(Component& component)
    {
        static_assert(handles_any<Component>(static_cast<Event*>(nullptr)), "the component has no handle_event()");
        add({std::addressof(component), std::addressof(component), sizeof component, &hand_over<Component>});
    }
    /// Leads an object that the component keeps elsewhere to it.
    template <class Component>
    void add(Component& component, const VT_obj& object)
    {
        static_assert(handles_any<Component>(static_cast<Event*>(nullptr)), "the component has no handle_event()");
        add({std::addressof(component), &object, 1, &hand_over<Component>});
    }
    template <class Component>
    void remove(Component& component)
    {
        remove(std::addressof(component), &hand_over<Component>);
    }

    /// Finds out whose each control of the pool is. Needed again when the table or the routes have changed.
    void find_controls(const Object_table& objects);
    bool are_found() const { return found; }

    /// Hands an event to the component of that object, if there is one.
    void deliver(Iso::Object_id object, const Event& event) const
    {
        if (object < route_of.size() && route_of[object] != nobody)
            routes[route_of[object]].deliver(event);
    }
    void deliver_to_all(const Event& event) const;

  private:
    using Hand_over = void (*)(void* component, const Event& event);

    struct Route
    {
        void* component;
        const void* begin; ///< of the memory that leads to it
        std::size_t size;
        Hand_over hand_over;

        void deliver(const Event& event) const { hand_over(component, event); }
    };

    template <class Component, class E, class = void>
    struct Handles : std::false_type
    {};
    template <class Component, class E>
    struct Handles<Component, E, std::void_t<decltype(std::declval<Component&>().handle_event(std::declval<E&>()))>>
        : std::true_type
    {};

    template <class Component, class... E>
    static constexpr bool handles_any(std::variant<E*...>*)
    {
        return (Handles<Component, E>::value || ...);
    }

    template <class Component>
    static void hand_over(void* component, const Event& event)
    {
        std::visit(
            [component](auto* e) {
                if constexpr (Handles<Component, std::remove_pointer_t<decltype(e)>>::value)
                    static_cast<Component*>(component)->handle_event(*e);
            },
            event);
    }

    void add(const Route& route);
    void remove(void* component, Hand_over way);

    static constexpr std::uint32_t nobody = ~std::uint32_t{0};

    std::vector<Route> routes;
    std::vector<std::uint32_t> route_of; ///< by object id
    bool found{true};
};

} // namespace VT

#endif
