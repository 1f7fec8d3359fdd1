#pragma once

#include <string_view>

#include "corvane/operation/Operation.h"
#include "corvane/scan/Export.h"

namespace CVN::Operation {

/// Inserts a footnote at the end of the range: its reference there, and its definition among the others, as
/// InsertFootnoteDefinition puts it.
///
/// The label of both is a number that nobody writes, of which RenumberFootnotes, run next, makes the right
/// one. Answers two results, the definition first, with the definition's text selected. An empty list where
/// a reference has no place (see footnotePlace()), where a definition at the end of the note would belong to
/// an unclosed block of code, math or HTML, and under a rule set without footnotes.
class CORVANE_EXPORT InsertFootnote : public Operation {
public:
    /// The text must stay alive, and is of one line; it may be empty.
    explicit InsertFootnote(std::u16string_view definitionText) : definitionText_(definitionText) {}

    std::vector<Result> run(const Ondo::Tree& tree, std::int64_t offset, std::int64_t length,
                            std::int64_t selectionOffset, std::int64_t selectionLength) const override;

private:
    std::u16string_view definitionText_;
};

} // namespace CVN::Operation
