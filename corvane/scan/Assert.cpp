#include "corvane/scan/Assert.h"

#include <cstdio>
#include <cstdlib>

namespace Ondo {

void assertionFailed(const char* condition, const char* function, const char* source) {
    std::fputs("Assertion failed: (", stderr);
    std::fputs(condition, stderr);
    std::fputs("), function ", stderr);
    std::fputs(function, stderr);
    std::fputs(", source ", stderr);
    std::fputs(source, stderr);
    std::fputs(".\n", stderr);
    std::abort();
}

} // namespace Ondo
