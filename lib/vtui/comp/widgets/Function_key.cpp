#include "vtui/comp/widgets/Function_key.h"

#include <utility>

namespace VT::Comp {

Function_key::Function_key(std::function<void()> its_action) : action(std::move(its_action)) {}

void Function_key::handle_event(Soft_key_activation_event& event)
{
    if (is_key_id(event.object_id) && event.activation_code == Iso::Activation::released)
        action();
}

} // namespace VT::Comp
