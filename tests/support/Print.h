#pragma once

#include <string>
#include <vector>

#include "corvane/scan/Util.h"
#include "corvane/tree/SyncRanges.h"

/// Values of the core as short strings: a comparison is one line, and a failure says what was there.

namespace Ondo::Test {

inline std::string show(const Range& range) {
    return '[' + std::to_string(range.offset) + ", " + std::to_string(range.length) + ']';
}
/// The range and the text that takes its place.
inline std::string show(const Replacement& edit) {
    return show(edit.range) + Util::utf8(Util::escape(edit.replacement));
}
/// Where it stood at the last sync, and where it stands.
inline std::string show(const RangePair& pair) {
    return show(pair.initialRange) + "->" + show(pair.redrawRange);
}
template <class T>
std::string show(const std::vector<T>& values) {
    std::string out;
    for (const T& value : values)
        out += (out.empty() ? "" : " ") + show(value);
    return out;
}

} // namespace Ondo::Test
