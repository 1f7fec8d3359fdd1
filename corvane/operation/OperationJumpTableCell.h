#pragma once

#include "corvane/operation/Operation.h"
#include "corvane/scan/Export.h"
#include "corvane/tree/Node.h"

namespace CVN::Operation {

/// The tab key in a table: selects the content of the next or previous cell, row by row, past the delimiter
/// row. In an empty cell it leaves a caret.
///
/// The range must lie in one cell of a header or data row; both its ends may touch the pipe that closes the
/// cell. An empty list, so that the key keeps its plain meaning, for any other range, and for a selection at
/// the end of the text. From the last cell forward and from the first one back, one result that changes
/// neither text nor selection: the key was used. No answer changes text.
class CORVANE_EXPORT JumpTableCell : public Operation {
public:
    explicit JumpTableCell(JumpTableCellDirection direction) : direction_(direction) {}

    std::vector<Result> run(const Ondo::Tree& tree, std::int64_t offset, std::int64_t length,
                            std::int64_t selectionOffset, std::int64_t selectionLength) const override;

private:
    /// Selects what a cell holds between its blanks; for a pipe, the empty cell that it closes.
    static std::vector<Result> moveToCell(const Ondo::Node::Iterator& node);

    JumpTableCellDirection direction_;
};

} // namespace CVN::Operation
