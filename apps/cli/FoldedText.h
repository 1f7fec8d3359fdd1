#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "corvane/analysis/FuzzySearch.h"

namespace Cli {

/// A text to search whatever its case, accents and width. Offsets count UTF-16 code units.
struct FoldedText {
    std::u16string text;
    std::vector<std::int64_t> offsets; ///< for each unit of `text`: of the character that it came from

    /// Where what matches at these offsets of `text` stands in the original: ascending, each once. The
    /// offsets must ascend and lie in `text`.
    std::vector<std::int64_t> inOriginal(const std::vector<std::int64_t>& indexes) const;
};

/// A character may become none, as a combining mark does, or several, as U+FB01 does.
FoldedText folded(std::u16string_view original);

/// Looks for a folded pattern in a text whatever its case, accents and width; the indexes are offsets of the
/// text as it stands.
CVN::FuzzyMatch foldedSearch(std::u16string_view foldedPattern, std::u16string_view text);

} // namespace Cli
