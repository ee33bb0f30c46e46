#ifndef VTUI_COMP_N_STATE_POINTER_OBJ_H
#define VTUI_COMP_N_STATE_POINTER_OBJ_H

#include "vtui/comp/objects/Object_pointer_obj.h"

#include <array>
#include <cstddef>

namespace VT::Comp {

/// Shows one of N objects, each of which stands for a state. The pool takes in all of them.
template <std::size_t N>
class VTUI_EXPORT N_state_pointer_obj : public Object_pointer_obj
{
    static_assert(N == 2, "the pool takes in the objects of two states");

  public:
    /// An object per state, null to show nothing in it. The first state is the current one.
    explicit N_state_pointer_obj(const std::array<VT::VT_obj*, N>& objects) : states(objects) { set_state(0); }
    ~N_state_pointer_obj() override = default;

    /// Points at the object of a state, 0 to N − 1.
    void set_state(std::size_t new_state)
    {
        state = new_state;
        set_target(states[state]);
    }

    std::size_t state{0};
    std::array<VT::VT_obj*, N> states;
};

extern template class N_state_pointer_obj<2>;

} // namespace VT::Comp

#endif
