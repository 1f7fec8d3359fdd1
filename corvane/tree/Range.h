#pragma once

#include <algorithm>
#include <cstdint>
#include <string_view>

#include "corvane/scan/Export.h"

namespace Ondo {

/// A run of UTF-16 code units, and how it moves through an edit.
struct CORVANE_EXPORT Range {
    std::int64_t offset = 0;
    std::int64_t length = 0;

    std::int64_t end() const { return offset + length; }
    bool operator==(const Range& other) const { return offset == other.offset && length == other.length; }

    /// The smallest range that holds both.
    static Range unite(const Range& a, const Range& b);
    /// Maps `r` from before an edit to after it. An insertion at either edge of `r` becomes part of it.
    static void modifyRangeAsAfterReplace(Range& r, const Range& replaced, std::u16string_view replacement);
    static Range rangeAsAfterReplace(Range r, const Range& replaced, std::u16string_view replacement);
    /// The inverse: an edge inside the inserted text widens to the edge of the replaced span.
    static void modifyRangeAsBeforeReplace(Range& r, const Range& replaced, std::u16string_view replacement);
    static Range rangeAsBeforeReplace(Range r, const Range& replaced, std::u16string_view replacement);
};

} // namespace Ondo
