#include "vtui/comp/widgets/Toggle_button_widget.h"

namespace VT::Comp {

Toggle_button_widget::Toggle_button_widget(VT::VT_obj& off, VT::VT_obj& on) : state_pointer({&off, &on})
{
    construct(state_pointer);
}

} // namespace VT::Comp
