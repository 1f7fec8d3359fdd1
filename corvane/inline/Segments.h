#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "corvane/scan/Export.h"

namespace Ondo {

/// Paths of tags and wikilinks: segments, and their encoding as one string.
///
/// An encoded path has "/" between its segments; inside a segment "\" is written as "\\" and "/" as "\/".
class CORVANE_EXPORT Segments {
public:
    static std::u16string encode(const std::vector<std::u16string>& segments);
    /// The first `count` segments; empty for 0 and less. Asserts that there are that many.
    static std::u16string encodePrefix(const std::vector<std::u16string>& segments, std::int64_t count);
    /// A backslash before anything else than "\" and "/" stands for itself. An empty path has no segments.
    static std::vector<std::u16string> decode(std::u16string_view path);
    static std::int64_t segmentCount(std::u16string_view path);
    /// Whether a path begins with the segments of another, or is the same, case folded. Both are encoded.
    static bool isPrefix(std::u16string_view prefix, std::u16string_view path);
    /// The same for a prefix that Util::downcaseUnicode() folded before: to compare many paths with one.
    static bool isFoldedPrefix(std::u16string_view foldedPrefix, std::u16string_view path);
    /// Puts `newPrefix` in the place of as many segments as `oldPrefix` has, whichever those are. All are
    /// encoded.
    static std::u16string replacePrefix(std::u16string_view path, std::u16string_view oldPrefix,
                                        std::u16string_view newPrefix);
    /// Without whitespace at its ends.
    static std::u16string normalizeSegment(std::u16string_view segment);
};

} // namespace Ondo
