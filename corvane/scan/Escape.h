#pragma once

#include "corvane/scan/Go.h"

namespace Ondo {

/// Whether an odd run of backslashes stands before the cursor, which escapes the character there. False at
/// the end of the range and for a cursor that has failed.
inline bool isNextCharacterEscaped(Go go) {
    if (go.hasFailed() || go.pos() == go.maxPos()) return false;
    const std::int64_t at = go.pos();
    return (at - go.previousWhile(Go::character(u'\\'))) % 2 != 0;
}

/// Over a backslash and the character whose power it takes, which may be missing at the end of the range.
inline void stepOverEscape(Go& go) {
    go.step();
    if (!go.isAtEnd()) go.step();
}

} // namespace Ondo
