#ifndef UTIL_BUGGER_H
#define UTIL_BUGGER_H

#include "iso11783/Export.h"

/// Reports misuse at run time.
class VTUI_EXPORT Bugger
{
  public:
    /// Prints "BUG: " and `text` on standard output, then ends the process with a failed assertion.
    [[noreturn]] static void report_bug(const char* text);
};

#endif
