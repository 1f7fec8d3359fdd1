#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "corvane/scan/Export.h"

namespace CVN {

/// How well a text fits a pattern whose characters it has, in that order.
struct FuzzyMatch {
    bool matched = false;
    std::int32_t score = 0; ///< not negative; a match may have 0
    /// Where the characters of the pattern stand, ascending. Without a match: where those stand that come
    /// before the missing one.
    std::vector<std::int64_t> indexes;
};

/// Looks for the characters of a pattern in their order. Tight and early matches score high: each character
/// earns 1, and more the longer the run it goes on; each code unit between two of them and before the first
/// one costs 1; a match without a gap earns 20 on top, if there are at least two characters. A score beyond
/// 32 bits is the highest that there is.
///
/// Offsets count UTF-16 code units; what is compared are code points, a lone surrogate as one of its own.
/// Case counts: fold both texts before, with Util::downcaseUnicode() and Util::diacriticFolding(). At most 10
/// ways through the text are tried, whatever the pattern: then the best match found so far is the answer. An
/// empty pattern is unmatched.
CORVANE_EXPORT FuzzyMatch fuzzySearch(std::u16string_view pattern, std::u16string_view text);

/// The same into a result of an earlier search, whose memory is used again: for long lists.
CORVANE_EXPORT void fuzzySearch(std::u16string_view pattern, std::u16string_view text, FuzzyMatch& result);

} // namespace CVN
