#pragma once

#include "corvane/correction/Correction.h"

namespace CVN::Correction {

/// Keeps carriage returns and NUL out of a note: a carriage return becomes a line feed, together with a line
/// feed behind it a single one, and NUL goes.
///
/// The selection stays with the text around it; its ends keep what lies between them. No opinion about a text
/// without these characters.
class CORVANE_EXPORT InvalidCharacterCorrection : public Correction {
public:
    std::vector<Operation::Result> run(const Ondo::Tree& tree, std::int64_t offset, std::int64_t length,
                                       std::u16string_view replacement, std::int64_t selectionOffset,
                                       std::int64_t selectionLength) const override;

    /// As run(), which knows no more of the note than these.
    static std::vector<Operation::Result> process(std::int64_t offset, std::int64_t length,
                                                  std::u16string_view text, std::int64_t selectionOffset,
                                                  std::int64_t selectionLength);

    /// For a text that is about to be loaded: one result that replaces the part from the first change to the
    /// last one, with a caret at 0; an empty list when the text can be loaded as it is.
    static std::vector<Operation::Result> correctionsForInitialString(std::u16string_view text);
};

} // namespace CVN::Correction
