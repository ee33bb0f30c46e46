#ifndef VTUI_COMP_STRING_VARIABLE_OBJ_H
#define VTUI_COMP_STRING_VARIABLE_OBJ_H

#include "vt/String_variable_obj.h"
#include "vtui/comp/objects/Object.h"
#include <cstddef>

namespace VT::Comp {

/// A text of up to N characters that lies in the object itself: N spaces until it is set.
template <std::size_t N>
class VTUI_EXPORT String_variable_obj : public Object, public VT::String_variable_obj
{
  public:
    String_variable_obj();
    ~String_variable_obj() override = default;

    /// Sets the text as printf would print it, cut off after N characters. Sends it if the pool is live.
    void format(const char* pattern, ...) __attribute__((format(printf, 2, 3)));

  private:
    char text[N + 1];
};

extern template class String_variable_obj<1>;
extern template class String_variable_obj<2>;
extern template class String_variable_obj<4>;

} // namespace VT::Comp

#endif
