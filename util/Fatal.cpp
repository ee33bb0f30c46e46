#include "util/Fatal.h"

#include <cstdlib>
#include <iostream>

// <cassert> declares it only while NDEBUG is not defined.
extern "C" [[noreturn]] void __assert_fail(const char* condition, const char* source, unsigned line,
                                           const char* function) noexcept;

void Fatal::assertion(const char* condition, const char* source, unsigned line, const char* function)
{
    __assert_fail(condition, source, line, function);
}

void Fatal::configuration(const std::string& message)
{
    std::cerr << "FATAL ERROR!  " << message << std::endl;
    std::exit(-1);
}
