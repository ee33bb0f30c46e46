#include "vtui/comp/widgets/Labelled_input_widget.h"

namespace VT::Comp {

template class Labelled_input_widget<Button_widget>;
template class Labelled_input_widget<Number_widget>;

} // namespace VT::Comp
