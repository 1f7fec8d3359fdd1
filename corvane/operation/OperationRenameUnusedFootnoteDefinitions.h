#pragma once

#include "corvane/operation/Operation.h"
#include "corvane/scan/Export.h"

namespace CVN::Operation {

/// Marks the numbered footnote definitions of the note that nothing refers to: «[^3]:» becomes «[^3?]:»,
/// which is no number, so that RenumberFootnotes passes it over. Where «[^3?]» is referred to, it takes
/// another question mark.
///
/// The range means nothing here. Answers one result for each of them, from the end of the note to its start.
class CORVANE_EXPORT RenameUnusedFootnoteDefinitions : public Operation {
public:
    /// Asserts that each numeric label is followed by its closing marker.
    std::vector<Result> run(const Ondo::Tree& tree, std::int64_t offset, std::int64_t length,
                            std::int64_t selectionOffset, std::int64_t selectionLength) const override;
};

} // namespace CVN::Operation
