#ifndef POOL_OPERATOR_CHANGE_H
#define POOL_OPERATOR_CHANGE_H

#include "pool/Object_table.h"
#include "pool/Terminal_message.h"

namespace VT {

// What the operator changes at the terminal, noted in the objects as something that the terminal has been told: a
// record that is sent again says what the operator sees. Objects of any class take part that show their attributes
// under the usual names: "value", "variable_reference", "options".

/// A number goes to the variable of the input if it has one, to the input itself otherwise.
void note_change(const Object_table& objects, const VT_change_numeric_value_event& entered);
/// The same with a text. What the object has no room for is left out.
void note_change(const Object_table& objects, const VT_change_string_value_event& entered);
/// A latchable button latches when it is pressed and unlatches when it is released.
void note_change(const Object_table& objects, const Button_activation_event& activation);

} // namespace VT

#endif
