#pragma once

#include <string_view>

#include "corvane/operation/Operation.h"
#include "corvane/scan/Export.h"

namespace CVN::Operation {

/// Adds the definition that the footnote reference at the start of the range lacks.
///
/// Answers one result with the definition's text selected. An empty list without a reference there, for a
/// label that has a definition, and where the definition would not be one.
class CORVANE_EXPORT InsertFootnoteDefinition : public Operation {
public:
    /// The text must stay alive, and is of one line; it may be empty.
    explicit InsertFootnoteDefinition(std::u16string_view definitionText) : definitionText_(definitionText) {}

    /// A definition for a reference at an offset, which may still be to come: `label` is the reference as it
    /// is written, with its brackets. The definition goes before that of the next reference, or else behind
    /// that of the one before, or behind the last one in the note; those count that lie behind the offset
    /// and in no container. Otherwise it goes to the end of the note, an empty line apart. A list of one
    /// result, with the text selected, or an empty one when the last block of the note is of code, math or
    /// HTML, is not closed and would take the definition in.
    static std::vector<Result> insertDefinition(const Ondo::Tree& tree, std::int64_t offset,
                                                std::u16string_view label, std::u16string_view text);

    std::vector<Result> run(const Ondo::Tree& tree, std::int64_t offset, std::int64_t length,
                            std::int64_t selectionOffset, std::int64_t selectionLength) const override;

private:
    std::u16string_view definitionText_;
};

} // namespace CVN::Operation
