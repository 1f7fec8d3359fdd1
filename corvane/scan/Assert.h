#pragma once

#include "corvane/scan/Export.h"

/// Broken invariants stop the process, in release builds too: a tree that went
/// wrong must not go on to restyle or rewrite somebody's note.
///
/// CORVANE_ASSERT(condition, source) prints the condition's text, the function
/// and `source`, the name of the unit whose invariant it is, and aborts.
/// Anything that a user can feed in is checked with an error of its own instead.

namespace Ondo {

[[noreturn]] CORVANE_EXPORT void assertionFailed(const char* condition, const char* function,
                                                 const char* source);

} // namespace Ondo

#define CORVANE_ASSERT(condition, source)                                                                    \
    ((condition) ? static_cast<void>(0) : ::Ondo::assertionFailed(#condition, __func__, source))
