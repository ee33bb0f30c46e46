#ifndef VTUI_COMP_STRING_VARIABLE_OBJ_H
#define VTUI_COMP_STRING_VARIABLE_OBJ_H

#include "vt/String_variable_obj.h"
#include "vtui/comp/objects/Object.h"

#include <algorithm>
#include <cstdarg>
#include <cstddef>
#include <cstdio>

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

template <std::size_t N>
String_variable_obj<N>::String_variable_obj() : VT::String_variable_obj(NULL_ID, nullptr, N, text)
{
    std::fill_n(text, N, ' ');
    text[N] = '\0';
}

template <std::size_t N>
void String_variable_obj<N>::format(const char* pattern, ...)
{
    std::va_list arguments;
    va_start(arguments, pattern);
    if (get_id() == NULL_ID) {
        std::vsnprintf(text, sizeof text, pattern, arguments);
        value.set_changed();
    } else {
        char formatted[sizeof text];
        const int length = std::vsnprintf(formatted, sizeof formatted, pattern, arguments);
        set_string(0, formatted, static_cast<unsigned>(std::max(length, 0))); // may say more than was written
    }
    va_end(arguments);
}

extern template class String_variable_obj<1>;
extern template class String_variable_obj<2>;
extern template class String_variable_obj<4>;

} // namespace VT::Comp

#endif
