#include "util/Bugger.h"

#include "util/Fatal.h"

#include <cstdio>

void Bugger::report_bug(const char* text)
{
    std::printf("BUG: %s\r\n", text);
    std::fflush(stdout); // abort() does not
    Fatal::assertion("false", "../../../../util/Bugger", 42, "static void Bugger::report_bug(const char*)");
}
