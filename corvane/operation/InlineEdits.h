#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "corvane/operation/OperationResult.h"

namespace CVN::Operation {

/// The markers that a command writes and takes away, gathered in any order in offsets of the text before it.
///
/// Of edits that meet, the first one stands: two lines may both ask for a marker between them. Of insertions
/// at one offset, the later one stands in front.
class InlineEdits {
public:
    /// Where an inserted marker stands at an edge of the selection: whether the selection takes it in.
    enum class Joins { None, Start, End };

    void insert(std::int64_t offset, std::u16string_view text, Joins joins = Joins::None);
    /// `length` is above 0; the text may be empty.
    void replace(std::int64_t offset, std::int64_t length, std::u16string_view text);
    /// Drops what would change the length of the text and lies before the offset.
    void dropResizingBefore(std::int64_t offset);

    /// From the end of the text to its start.
    std::vector<Result> results(std::int64_t selectionOffset, std::int64_t selectionLength) const;

private:
    struct Edit {
        std::int64_t offset;
        std::int64_t length;
        std::u16string text;
        Joins joins;

        std::int64_t end() const { return offset + length; }
    };

    void add(Edit edit);

    std::vector<Edit> edits_; ///< in the order of the results
};

} // namespace CVN::Operation
