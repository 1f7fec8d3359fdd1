#include "corvane/analysis/CVNFuzzySearch.h"

#include <utility>

#include "corvane/analysis/FuzzySearch.h"

std::int32_t CVNFuzzySearch::fuzzySearch(std::u16string_view pattern, std::u16string_view string,
                                         std::vector<std::int64_t>* indexes) {
    CVN::FuzzyMatch match = CVN::fuzzySearch(pattern, string);
    if (indexes) *indexes = std::move(match.indexes);
    return match.score;
}
