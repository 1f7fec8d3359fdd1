#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "corvane/operation/OperationResult.h"
#include "corvane/tree/Range.h"

namespace CVN::Operation {

/// The markers that a command writes and takes away, gathered in any order in offsets of the text before it.
///
/// Of edits that meet, the first one stands: two lines may both ask for a marker between them. Of insertions
/// at one offset, the later one stands in front.
class InlineEdits {
public:
    void insert(std::int64_t offset, std::u16string_view text);
    /// `length` is above 0; the text may be empty.
    void replace(std::int64_t offset, std::int64_t length, std::u16string_view text);
    /// Drops what would change the length of the text and lies before the offset.
    void dropResizingBefore(std::int64_t offset);
    /// From the last edit of the list on, the selection takes in as many units before and behind it, as far
    /// as the text goes.
    void growSelection(std::int64_t before, std::int64_t behind);

    /// From the end of the text to its start. The length is that of the text before.
    std::vector<Result> results(const Ondo::Range& selection, std::int64_t textLength) const;

private:
    struct Edit {
        std::int64_t offset;
        std::int64_t length;
        std::u16string text;
        std::int64_t growsBefore = 0;
        std::int64_t growsBehind = 0;

        std::int64_t end() const { return offset + length; }
    };

    void add(Edit edit);

    std::vector<Edit> edits_; ///< in the order of the results
};

} // namespace CVN::Operation
