#pragma once

#include "corvane/operation/Operation.h"
#include "corvane/scan/Export.h"

namespace CVN::Operation {

/// Opens all folds that hide the start or the end of a range, as an editor does before it touches or shows
/// it. An edge on the line of a folded head is not hidden by that fold, and a caret behind the last line
/// ending is hidden by none. The end of a range is hidden where the hidden text begins, and at the end of the
/// note: a folded heading that is selected with its line ending opens, and so does the last fold of a note
/// that is selected as a whole.
///
/// One result a fold, from the last to the first; all other folds stay. An empty list when both edges show.
class CORVANE_EXPORT OperationUnfoldRangeEdges : public Operation {
public:
    std::vector<Result> run(const Ondo::Tree& tree, std::int64_t offset, std::int64_t length,
                            std::int64_t selectionOffset, std::int64_t selectionLength) const override;
};

} // namespace CVN::Operation
