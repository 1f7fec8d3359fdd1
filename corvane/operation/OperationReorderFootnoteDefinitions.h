#pragma once

#include "corvane/operation/Operation.h"
#include "corvane/scan/Export.h"

namespace CVN::Operation {

/// Sorts footnote definitions that follow each other, with at most one blank line between two of them, by
/// their labels: first the numbers, then the words. Definitions with equal labels keep their order.
///
/// In a run whose order changes the blank lines go. What makes a place stays there: the line ending, the
/// lack of one at the end of the note, and what stands before the label, blanks or what a container puts
/// there. A selection that starts in a run goes along with its definition. The range means nothing here.
/// Answers one result for each run that changes, from the end of the note to its start.
class CORVANE_EXPORT ReorderFootnoteDefinitions : public Operation {
public:
    std::vector<Result> run(const Ondo::Tree& tree, std::int64_t offset, std::int64_t length,
                            std::int64_t selectionOffset, std::int64_t selectionLength) const override;
};

} // namespace CVN::Operation
