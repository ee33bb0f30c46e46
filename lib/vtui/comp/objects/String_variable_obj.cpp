#include "vtui/comp/objects/String_variable_obj.h"

namespace VT::Comp {

template class String_variable_obj<1>;
template class String_variable_obj<2>;
template class String_variable_obj<4>;

} // namespace VT::Comp
