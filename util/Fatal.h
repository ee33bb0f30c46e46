#ifndef UTIL_FATAL_H
#define UTIL_FATAL_H

#include "iso11783/Export.h"

#include <string>

/// The endings that leave no way back. They work in every build type: nothing here goes through a macro that NDEBUG
/// removes. Field service greps for the texts, so source and line are constants that do not move with the code.
namespace Fatal {

/// A failed assertion: the C library's message on standard error, then abort.
[[noreturn]] VTUI_EXPORT void assertion(const char* condition, const char* source, unsigned line, const char* function);

/// A pool that some terminals would refuse: "FATAL ERROR!  " and `message` on standard error, then exit(-1).
[[noreturn]] VTUI_EXPORT void configuration(const std::string& message);

} // namespace Fatal

#endif
