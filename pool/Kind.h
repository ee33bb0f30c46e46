#ifndef POOL_KIND_H
#define POOL_KIND_H

#include "vt/Working_set_obj.h"
#include "vtui/comp/objects/Fill_attributes_obj.h"
#include "vtui/comp/objects/Has_child_placements.h"
#include "vtui/comp/objects/Input_number_obj.h"
#include "vtui/comp/objects/Line_obj.h"
#include "vtui/comp/objects/N_state_pointer_obj.h"
#include "vtui/comp/objects/Output_number_obj.h"
#include "vtui/comp/objects/Output_string_obj.h"
#include "vtui/comp/objects/Polygon_obj.h"
#include "vtui/comp/objects/Rectangle_obj.h"
#include "vtui/comp/widgets/Disable_widget.h"

#include <cstddef>
#include <optional>
#include <typeinfo>
#include <unordered_map>

namespace VT {

/// What the pool has to know about a class of objects beyond VT_obj: how its objects lead to others.
struct Kind
{
    /// The class that holds links to other objects, of those the pool knows.
    enum class Links : std::uint8_t {
        none,
        working_set,
        mask,
        output_number,
        input_number,
        output_string,
        line,
        rectangle,
        polygon,
        fill,
        pointer,
    };

    Links links{Links::none};
    bool is_parent{false};  ///< a Parent_obj
    bool has_states{false}; ///< a pointer with a target per state
    bool has_covers{false}; ///< one that may come to show other covers

    /// Where in the object lies its Has_child_placements and, only with that, its Object_list.
    std::optional<std::ptrdiff_t> placements;
    std::ptrdiff_t list{0};
};

/// Finds out what kind an object is. Dynamic casts across the classes' bases cost more than all the rest of collecting,
/// so they are made once per class.
class Kinds
{
  public:
    const Kind& of(VT_obj& object)
    {
        const auto found = known.find(&typeid(object));
        return found != known.end() ? found->second : learn(object);
    }

  private:
    const Kind& learn(VT_obj& object);

    std::unordered_map<const std::type_info*, Kind> known;
};

/// The object's placements, null if it has none.
inline Comp::Child_placements* placements_of(const Kind& kind, VT_obj& object)
{
    if (!kind.placements)
        return nullptr;
    char* const at = reinterpret_cast<char*>(&object) + *kind.placements;
    return reinterpret_cast<Comp::Has_child_placements*>(at)->placements_ptr;
}

/// The list that the placements of the object are for.
inline Object_list& list_of(const Kind& kind, VT_obj& object)
{
    return *reinterpret_cast<Object_list*>(reinterpret_cast<char*>(&object) + kind.list);
}

/// The component's points of the object, null if it is no polygon or has none.
inline Comp::Vertices* vertices_of(const Kind& kind, VT_obj& object)
{
    return kind.links == Kind::Links::polygon ? static_cast<Comp::Polygon_obj&>(object).vertices_ptr : nullptr;
}

/// Empties the lists that a pool has written into the object.
inline void clear_lists(const Kind& kind, VT_obj& object)
{
    if (kind.placements)
        list_of(kind, object) = {nullptr, 0};
    if (kind.is_parent)
        static_cast<Object_list&>(static_cast<Parent_obj&>(object)) = {nullptr, 0};
    if (vertices_of(kind, object)) {
        auto& polygon = static_cast<Comp::Polygon_obj&>(object);
        polygon.points = nullptr;
        polygon.num_points = 0;
    }
}

/// Calls `link(target, attribute)` for every link that stands in an attribute of the object; the target may be null.
template <typename F>
void for_each_link(const Kind& kind, VT_obj& object, F&& link)
{
    switch (kind.links) {
    case Kind::Links::none:
        return;
    case Kind::Links::working_set: {
        auto& working_set = static_cast<Working_set_obj&>(object);
        return link(working_set.get_active_mask(), working_set.active_mask);
    }
    case Kind::Links::mask: {
        auto& mask = static_cast<Mask_obj&>(object);
        return link(mask.get_soft_key_mask(), mask.soft_key_mask);
    }
    case Kind::Links::output_number: {
        auto& number = static_cast<Comp::Output_number_obj&>(object);
        return link(number.font, number.font_attributes);
    }
    case Kind::Links::input_number: {
        auto& number = static_cast<Comp::Input_number_obj&>(object);
        return link(number.font, number.font_attributes);
    }
    case Kind::Links::output_string: {
        auto& string = static_cast<Comp::Output_string_obj&>(object);
        link(string.font, string.font_attributes);
        return link(string.variable, string.variable_reference);
    }
    case Kind::Links::line: {
        auto& line = static_cast<Comp::Line_obj&>(object);
        return link(line.line, line.line_attributes);
    }
    case Kind::Links::rectangle: {
        auto& rectangle = static_cast<Comp::Rectangle_obj&>(object);
        link(rectangle.line, rectangle.line_attributes);
        return link(rectangle.fill, rectangle.fill_attributes);
    }
    case Kind::Links::polygon: {
        auto& polygon = static_cast<Comp::Polygon_obj&>(object);
        link(polygon.line, polygon.line_attributes);
        return link(polygon.fill, polygon.fill_attributes);
    }
    case Kind::Links::fill: {
        auto& fill = static_cast<Comp::Fill_attributes_obj&>(object);
        return link(fill.pattern, fill.fill_pattern);
    }
    case Kind::Links::pointer: {
        auto& pointer = static_cast<Comp::Object_pointer_obj&>(object);
        return link(pointer.target, pointer.value);
    }
    }
}

/// Calls `reach(VT_obj*)` for everything that the object can show, null where it shows nothing: its children, its
/// masks or states, then its links.
template <typename F>
void for_each_reachable(const Kind& kind, VT_obj& object, F&& reach)
{
    if (Comp::Child_placements* const children = placements_of(kind, object)) {
        for (std::size_t i = 0; i < children->size(); ++i)
            reach(children->placement(i).ref);
        for (std::size_t i = 0; VT_obj* const apart = children->detached(i); ++i)
            reach(apart);
    }
    if (kind.is_parent)
        for (VT_obj* const child : static_cast<Parent_obj&>(object).get_children())
            reach(child);
    if (kind.links == Kind::Links::working_set)
        for (Mask_obj* const mask : static_cast<Working_set_obj&>(object).get_masks())
            reach(mask);
    if (kind.has_states) {
        auto& pointer = static_cast<Comp::N_state_pointer_obj<2>&>(object);
        for (VT_obj* const shown : pointer.states)
            reach(shown);
        if (kind.has_covers)
            reach(&static_cast<Comp::Cover_pointer&>(object).largest);
    }
    for_each_link(kind, object, [&](VT_obj* target, Attribute_object_id_spec&) { reach(target); });
}

} // namespace VT

#endif
