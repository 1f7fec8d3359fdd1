#pragma once

#include "corvane/correction/Correction.h"

namespace CVN::Correction {

/// Takes a surplus space away with a deleted word: of the spaces on its two sides the one behind it goes too.
///
/// The selection proposed stays, and follows the text when it lies behind. No opinion about edits that bring
/// text, when what is deleted is nothing but white space, unless a space stands on both sides, and in code,
/// math and front matter.
class CORVANE_EXPORT DeleteWhitespaceCorrection : public Correction {
public:
    std::vector<Operation::Result> run(const Ondo::Tree& tree, std::int64_t offset, std::int64_t length,
                                       std::u16string_view replacement, std::int64_t selectionOffset,
                                       std::int64_t selectionLength) const override;
};

} // namespace CVN::Correction
