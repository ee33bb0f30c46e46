#ifndef POOL_ROUTES_H
#define POOL_ROUTES_H

#include "iso11783/Object_type.h"
#include "pool/Terminal_message.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <set>
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

/// Which component an event goes to: of those in whose memory the object lies which the event names, the innermost that
/// handles such events. To a component's memory belongs what its outlying_controls() says, if it has that: the address
/// and the size in bytes of memory that it keeps elsewhere. It is asked once, by add(): what lies there must not move
/// or grow afterwards. Of two components that name the same memory the smaller one is the inner one. Components are not
/// owned.
class VTUI_EXPORT Routes
{
  public:
    Routes() = default;
    Routes(const Routes&) = delete;
    Routes& operator=(const Routes&) = delete;

    template <class Component>
    void add(Component& component)
    {
        check<Component>();
        add_memory(component, std::addressof(component), sizeof component, true);
        if constexpr (Has_outlying_controls<Component>::value) {
            const auto [begin, size] = component.outlying_controls();
            add_memory(component, begin, size, false);
        }
    }
    /// Leads an object that the component keeps elsewhere to it, too.
    template <class Component>
    void add(Component& component, const VT_obj& object)
    {
        add(component);
        add_memory(component, &object, 1, false);
    }
    /// False if it was not added as one of that type.
    template <class Component>
    bool remove(Component& component)
    {
        return remove(std::addressof(component), &hand_over<Component>);
    }

    /// Finds out whose each control of the pool is.
    void rebuild(const Object_table& objects);
    /// False when routes have changed since.
    bool are_current() const { return current; }

    /// Hands an event to the component that it concerns, if there is one.
    void deliver(Iso::Object_id object, const Event& event) const
    {
        const std::uint32_t wanted = 1U << event.index();
        std::uint32_t index = object < route_of.size() ? route_of[object] : nobody;
        while (index != nobody && !(routes[index].events & wanted))
            index = routes[index].outer;
        if (index != nobody)
            routes[index].hand_over(routes[index].component, event);
    }
    void deliver_to_all(const Event& event) const;

  private:
    using Hand_over = void (*)(void* component, const Event& event);

    static constexpr std::uint32_t nobody = ~std::uint32_t{0};

    /// Memory that leads to a component. A removed one keeps its place, because events may be under way.
    struct Route
    {
        void* component; ///< null: removed
        std::size_t component_size;
        const void* begin;
        std::size_t size;
        bool whole;           ///< the component itself, not controls elsewhere
        std::uint32_t events; ///< handled ones, a bit each
        Hand_over hand_over;
        std::uint32_t outer{nobody}; ///< the route whose memory contains this one's
    };

    /// Orders routes by their component, and that by its memory.
    struct By_component
    {
        using is_transparent = void; ///< a route that has no place yet can be looked for

        const std::vector<Route>* routes;

        template <class A, class B>
        bool operator()(const A& a, const B& b) const
        {
            return comes_before(at(a), at(b));
        }

      private:
        static bool comes_before(const Route& a, const Route& b);
        const Route& at(std::uint32_t place) const { return (*routes)[place]; }
        static const Route& at(const Route& route) { return route; }
    };

    template <class Component, class E, class = void>
    struct Handles : std::false_type
    {};
    template <class Component, class E>
    struct Handles<Component, E, std::void_t<decltype(std::declval<Component&>().handle_event(std::declval<E&>()))>>
        : std::true_type
    {};

    static constexpr Event* every_event = nullptr;

    template <class Component, class... E>
    static constexpr std::uint32_t handled(std::variant<E*...>*)
    {
        std::uint32_t bits = 0;
        std::uint32_t bit = 1;
        ((bits |= Handles<Component, E>::value ? bit : 0, bit <<= 1), ...);
        return bits;
    }

    template <class Component, class... E>
    static constexpr bool handles_all(Event_list<E...>)
    {
        return (Handles<Component, E>::value && ...);
    }

    template <class Component, class = void>
    struct Keeps_its_word : std::true_type
    {};
    template <class Component>
    struct Keeps_its_word<Component, std::void_t<typename Component::Handled_events>>
        : std::bool_constant<handles_all<Component>(typename Component::Handled_events())>
    {};

    template <class Component, class = void>
    struct Has_outlying_controls : std::false_type
    {};
    template <class Component>
    struct Has_outlying_controls<Component, std::void_t<decltype(std::declval<Component&>().outlying_controls())>>
        : std::true_type
    {};

    template <class Component>
    static constexpr void check()
    {
        static_assert(handled<Component>(every_event) != 0, "the component has no handle_event()");
        static_assert(Keeps_its_word<Component>::value,
                      "a handle_event() of the component's base is hidden: add `using Base::handle_event;`");
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

    template <class Component>
    void add_memory(Component& component, const void* begin, std::size_t size, bool whole)
    {
        add({std::addressof(component), sizeof component, begin, size, whole, handled<Component>(every_event),
             &hand_over<Component>});
    }
    void add(const Route& route);
    bool remove(void* component, Hand_over hand_over_);

    std::vector<Route> routes;
    std::set<std::uint32_t, By_component> in_use{By_component{&routes}}; ///< places of the routes that are in use
    /// The others, to be used again: they keep their nodes, so that coming and going allocates nothing.
    std::set<std::uint32_t> removed;
    std::vector<std::uint32_t> route_of; ///< by object id
    bool current{true};
};

} // namespace VT

#endif
