#pragma once

#include <cstdint>
#include <vector>

#include "corvane/operation/Operation.h"
#include "corvane/scan/Export.h"
#include "corvane/tree/Node.h"

namespace CVN::Operation {

/// Rewrites the prefixes of lines, as a clean-up: each becomes the one that the line's containers call for.
/// "> " for a quote, blanks as wide as the marker of an item and what separates its text, four for code.
///
/// Only prefixes change, never what a line belongs to or what it says; a second run finds nothing to do. The
/// lines are those of all lists, quotes and indented code that the range touches, and blank lines behind
/// lists; other first-level blocks stay as they stand. Results come from the last line to the first.
class CORVANE_EXPORT NormalizeIndentation : public Operation {
public:
    explicit NormalizeIndentation(IndentStyle style) : style_(style) {}

    std::vector<Result> run(const Ondo::Tree& tree, std::int64_t offset, std::int64_t length,
                            std::int64_t selectionOffset, std::int64_t selectionLength) const override;

private:
    /// Whether the prefix of a line is ours to write. `block` is the deepest one that the line starts with.
    static bool shouldNormalizeLine(const Ondo::Node* block);

    IndentStyle style_;
};

} // namespace CVN::Operation
