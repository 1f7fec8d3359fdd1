#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "corvane/scan/Export.h"

namespace CVN::Operation {

/// A replacement of text that an operation or correction proposes, with the selection to show behind it.
///
/// Offsets and lengths count UTF-16 code units. A list of results is applied in its order, each result to the
/// text that the ones before it left; the selection of the last one is the selection in the end. Results of
/// one list never overlap. An operation that touches several places works from the end of the text to its
/// start, so that the offsets it reads from the tree stay true.
struct CORVANE_EXPORT Result {
    std::int64_t replaceOffset;
    std::int64_t replaceLength;       ///< 0 inserts
    std::u16string replacementString; ///< empty deletes
    std::int64_t selectionOffset;     ///< in the text behind this replacement
    std::int64_t selectionLength;     ///< 0 is a caret

    /// Asserts that no number is negative.
    Result(std::int64_t replaceOffset_, std::int64_t replaceLength_, std::u16string replacementString_,
           std::int64_t selectionOffset_, std::int64_t selectionLength_);

    /// Carries the selection, which until then is one in the text before this replacement, over it. A
    /// replacement that ends where the selection starts moves it, so that a caret lands behind an insertion;
    /// one that starts where it ends leaves it; one that covers it leaves a caret behind the new text.
    void offsetSelection();

    /// Appends a result. Its selection is that of the last result, or for the first one the given selection,
    /// carried over the replacement.
    static void addToList(std::vector<Result>& results, std::int64_t replaceOffset,
                          std::int64_t replaceLength, std::u16string replacementString,
                          std::int64_t selectionOffset, std::int64_t selectionLength);

    std::int64_t replaceEnd() const { return replaceOffset + replaceLength; }
    std::int64_t replacementLength() const { return static_cast<std::int64_t>(replacementString.size()); }
    bool operator==(const Result&) const = default;
};

} // namespace CVN::Operation
