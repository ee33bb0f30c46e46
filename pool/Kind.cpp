#include "pool/Kind.h"

namespace VT {

namespace {

using Links = Kind::Links;

template <class Class>
bool is_a(VT_obj& object)
{
    return dynamic_cast<Class*>(&object) != nullptr;
}

/// How far from the VT_obj the part lies that a cast has found.
std::ptrdiff_t distance(VT_obj& object, void* part)
{
    return static_cast<char*>(part) - reinterpret_cast<char*>(&object);
}

Links links_of(VT_obj& object)
{
    switch (object.get_type()) {
    case Iso::Object_type::working_set:
        return is_a<Working_set_obj>(object) ? Links::working_set : Links::none;
    case Iso::Object_type::data_mask:
    case Iso::Object_type::alarm_mask:
        return is_a<Mask_obj>(object) ? Links::mask : Links::none;
    case Iso::Object_type::output_number:
        return is_a<Comp::Output_number_obj>(object) ? Links::output_number : Links::none;
    case Iso::Object_type::input_number:
        return is_a<Comp::Input_number_obj>(object) ? Links::input_number : Links::none;
    case Iso::Object_type::output_string:
        return is_a<Comp::Output_string_obj>(object) ? Links::output_string : Links::none;
    case Iso::Object_type::line:
        return is_a<Comp::Line_obj>(object) ? Links::line : Links::none;
    case Iso::Object_type::rectangle:
        return is_a<Comp::Rectangle_obj>(object) ? Links::rectangle : Links::none;
    case Iso::Object_type::polygon:
        return is_a<Comp::Polygon_obj>(object) ? Links::polygon : Links::none;
    case Iso::Object_type::fill_attributes:
        return is_a<Comp::Fill_attributes_obj>(object) ? Links::fill : Links::none;
    case Iso::Object_type::object_pointer:
        return is_a<Comp::Object_pointer_obj>(object) ? Links::pointer : Links::none;
    default:
        return Links::none;
    }
}

} // namespace

const Kind& Kinds::learn(VT_obj& object)
{
    Kind& kind = known[&typeid(object)];
    kind.links = links_of(object);
    kind.is_parent = is_a<Parent_obj>(object);
    kind.has_states = is_a<Comp::N_state_pointer_obj<2>>(object);
    kind.has_covers = is_a<Comp::Cover_pointer>(object);
    auto* const has_placements = dynamic_cast<Comp::Has_child_placements*>(&object);
    auto* const list = dynamic_cast<Object_list*>(&object);
    if (has_placements && list) {
        kind.placements = distance(object, has_placements);
        kind.list = distance(object, list);
    }
    return kind;
}

} // namespace VT
