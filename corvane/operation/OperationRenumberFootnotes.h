#pragma once

#include "corvane/operation/Operation.h"
#include "corvane/scan/Export.h"

namespace CVN::Operation {

/// Numbers the footnotes of the note 1, 2, 3 and so on, in the order of their first references.
///
/// Labels that are no numbers stay and use none up. A reference and its definitions keep belonging together:
/// a numeric definition that nothing refers to, and whose number becomes that of another footnote, is marked
/// as RenameUnusedFootnoteDefinitions marks it; others of its kind stay. The range means nothing here.
/// Answers one result for each label that changes, from the end of the note to its start.
class CORVANE_EXPORT RenumberFootnotes : public Operation {
public:
    /// Asserts that each numeric label stands between its markers.
    std::vector<Result> run(const Ondo::Tree& tree, std::int64_t offset, std::int64_t length,
                            std::int64_t selectionOffset, std::int64_t selectionLength) const override;
};

} // namespace CVN::Operation
