#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "corvane/scan/Export.h"

/// Finds a text by a few of its letters; see CVN::fuzzySearch().
class CORVANE_EXPORT CVNFuzzySearch {
public:
    /// The score of the pattern in a text, 0 without a match. `indexes`, unless null, becomes
    /// FuzzyMatch::indexes: ascending offsets in code units.
    static std::int32_t fuzzySearch(std::u16string_view pattern, std::u16string_view string,
                                    std::vector<std::int64_t>* indexes = nullptr);
};
