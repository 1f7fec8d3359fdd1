#pragma once

#include "corvane/operation/Operation.h"
#include "corvane/scan/Export.h"

namespace CVN::Operation {

/// Puts a thematic break or an empty table of two columns in the place of the range, on lines of its own at
/// the left margin. A table gets an empty line between itself and a table next to it, or a row that would
/// join it.
///
/// Answers one result with a caret, behind the break or in the table's first cell. An empty list where the
/// range reaches into front matter or into the lines of a table that it does not cover whole.
class CORVANE_EXPORT InsertBlock : public Operation {
public:
    explicit InsertBlock(InsertBlockType type) : type_(type) {}

    std::vector<Result> run(const Ondo::Tree& tree, std::int64_t offset, std::int64_t length,
                            std::int64_t selectionOffset, std::int64_t selectionLength) const override;

private:
    /// What separates the block from the text before the offset, and from that behind it.
    std::u16string before(const Ondo::Tree& tree, std::int64_t offset) const;
    std::u16string behind(const Ondo::Tree& tree, std::int64_t end) const;

    InsertBlockType type_;
};

} // namespace CVN::Operation
