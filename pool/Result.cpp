#include "pool/Result.h"

namespace VT {

std::string Result::text() const
{
    std::string lines;
    for (const Problem& problem : errors)
        lines.append(problem.text).append("\n");
    return lines;
}

} // namespace VT
