#pragma once

#include <algorithm>
#include <cstdint>
#include <limits>

#include "corvane/tree/Range.h"

/// The location that says "nothing found".
inline constexpr std::int64_t CVNNotFound = std::numeric_limits<std::int64_t>::max();

/// A run of UTF-16 code units on the client's side.
struct CVNRange {
    std::int64_t location = 0;
    std::int64_t length = 0;

    /// {CVNNotFound, 0}
    static constexpr CVNRange notFound() { return {CVNNotFound, 0}; }
    static constexpr CVNRange between(std::int64_t start, std::int64_t end) { return {start, end - start}; }
    static constexpr CVNRange of(const Ondo::Range& range) { return {range.offset, range.length}; }

    /// No farther than CVNNotFound, which stands for "to the end of everything". A negative length counts as
    /// 0.
    constexpr std::int64_t end() const {
        if (length <= 0) return location;
        return length > CVNNotFound - std::max<std::int64_t>(location, 0) ? CVNNotFound : location + length;
    }
    constexpr bool isFound() const { return location != CVNNotFound; }
    constexpr Ondo::Range coreRange() const { return {location, length}; }
    constexpr bool operator==(const CVNRange& other) const {
        return location == other.location && length == other.length;
    }

    /// The smallest range that holds both, which must be found.
    static constexpr CVNRange unite(const CVNRange& a, const CVNRange& b) {
        return between(std::min(a.location, b.location), std::max(a.end(), b.end()));
    }
    /// What both have in common; empty, at the later start, when that is nothing.
    static constexpr CVNRange intersect(const CVNRange& a, const CVNRange& b) {
        const std::int64_t start = std::max(a.location, b.location);
        return between(start, std::max(start, std::min(a.end(), b.end())));
    }
};
