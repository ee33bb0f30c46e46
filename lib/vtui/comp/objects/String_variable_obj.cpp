#include "vtui/comp/objects/String_variable_obj.h"

#include <algorithm>
#include <cstdarg>
#include <cstdio>

namespace VT::Comp {

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

template class String_variable_obj<1>;
template class String_variable_obj<2>;
template class String_variable_obj<4>;

} // namespace VT::Comp
