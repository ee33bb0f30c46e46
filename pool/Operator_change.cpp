#include "pool/Operator_change.h"

#include "vtui/comp/objects/Button_obj.h"
#include "vtui/comp/objects/Input_number_obj.h"

#include <cstring>
#include <limits>
#include <typeinfo>

namespace VT {

namespace {

using Type = Iso::Object_type;

/// Finds the attribute of type A that has a name.
template <class A>
class Finder final : public Attribute_visitor
{
  public:
    explicit Finder(const char* wanted) : name(wanted) {}

    using Attribute_visitor::attribute;
    void attribute(const Attribute_info& info, A& candidate) override
    {
        if (std::strcmp(info.name, name) == 0)
            found = &candidate;
    }

    A* found{nullptr};

  private:
    const char* name;
};

template <class A>
A* find(VT_obj& object, const char* name)
{
    Finder<A> finder(name);
    object.visit(finder);
    return finder.found;
}

/// Spares the objects of most screens the search: those of class C, which has the attribute as that member.
template <class C, class A, class Base>
A* find(VT_obj& object, A Base::*member, const char* name)
{
    return typeid(object) == typeid(C) ? &(static_cast<C&>(object).*member) : find<A>(object, name);
}

/// Where an input has its value: in its variable, which is of that type, or without one in itself. Null where that is
/// not in the pool.
VT_obj* holder(const Object_table& objects, VT_obj& input, Type variable_type)
{
    const auto* const reference =
        find<Comp::Input_number_obj>(input, &Input_number_obj::variable_reference, "variable_reference");
    if (!reference || *reference == Iso::null_id)
        return &input;
    VT_obj* const variable = objects.find(*reference);
    return variable && variable->get_type() == variable_type ? variable : nullptr;
}

bool takes_numbers(Type type)
{
    return type == Type::input_boolean || type == Type::input_number || type == Type::input_list;
}

} // namespace

void note_change(const Object_table& objects, const VT_change_numeric_value_event& entered)
{
    VT_obj* const input = objects.find(entered.object_id);
    if (!input || !takes_numbers(input->get_type()))
        return;
    VT_obj* const object = holder(objects, *input, Type::number_variable);
    if (!object)
        return;
    if (auto* const number = find<Comp::Input_number_obj>(*object, &Input_number_obj::value, "value")) {
        *number = entered.value;
        number->set_told();
    } else if (auto* const choice = find<Attribute_uint8>(*object, "value");
               choice && entered.value <= std::numeric_limits<std::uint8_t>::max()) {
        *choice = static_cast<std::uint8_t>(entered.value);
        choice->set_told();
    }
}

void note_change(const Object_table& objects, const VT_change_string_value_event& entered)
{
    VT_obj* const input = objects.find(entered.object_id);
    if (!input || input->get_type() != Type::input_string)
        return;
    VT_obj* const object = holder(objects, *input, Type::string_variable);
    auto* const text = object ? find<Attribute_string>(*object, "value") : nullptr;
    if (!text || !text->buffer)
        return;
    const std::size_t copied = entered.value.copy(text->buffer, text->item_count);
    if (copied < text->item_count)
        text->buffer[copied] = '\0';
    text->set_told();
}

void note_change(const Object_table& objects, const Button_activation_event& activation)
{
    VT_obj* const button = objects.find(activation.object_id);
    if (!button || button->get_type() != Type::button)
        return;
    auto* const options = find<Comp::Button_obj>(*button, &Button_obj::options, "options");
    if (!options || !(*options & Button_obj::latchable))
        return;
    const bool other_change = options->changed(); // which the terminal has yet to be told
    if (activation.activation_code == Iso::Activation::pressed)
        *options = static_cast<std::uint8_t>(*options | Button_obj::latched);
    else if (activation.activation_code == Iso::Activation::released)
        *options = static_cast<std::uint8_t>(*options & ~Button_obj::latched);
    if (!other_change)
        options->set_told();
}

} // namespace VT
