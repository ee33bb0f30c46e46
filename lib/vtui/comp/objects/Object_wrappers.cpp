// The destructors of the object wrappers, out of line: each class has one virtual table, and it lies in this library.

#include "vtui/comp/objects/Button_obj.h"
#include "vtui/comp/objects/Container_obj.h"
#include "vtui/comp/objects/Font_attributes_obj.h"
#include "vtui/comp/objects/Input_number_obj.h"
#include "vtui/comp/objects/N_state_pointer_obj.h"
#include "vtui/comp/objects/Output_number_obj.h"

namespace VT::Comp {

Button_obj::~Button_obj() = default;
Container_obj::~Container_obj() = default;
Font_attributes_obj::~Font_attributes_obj() = default;
Input_number_obj::~Input_number_obj() = default;
Output_number_obj::~Output_number_obj() = default;

template class N_state_pointer_obj<2>;

} // namespace VT::Comp
