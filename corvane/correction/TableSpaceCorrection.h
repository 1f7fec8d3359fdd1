#pragma once

#include "corvane/correction/Correction.h"

namespace CVN::Correction {

/// Stands for a space at the end of a cell's text, where a space itself would be part of the padding.
inline constexpr char16_t nbsp = u'\u00A0';

/// Sees to the spaces in the cells of a table while the user types, in header and data rows.
///
/// - Spaces typed right behind a cell's text, with nothing but padding up to the pipe, go in as no-break
///   spaces, so that they are not taken for padding.
/// - Text typed behind such no-break spaces turns them into spaces: they stand between words now. So does a
///   pipe, which makes them padding.
/// - Text typed right behind a pipe gets a space in front, and text typed right before one a space behind.
///
/// The selection stays with the text. No opinion about an edit that reaches beyond one cell, and about text
/// with a pipe further in, a line break or a tab.
class CORVANE_EXPORT TableSpaceCorrection : public Correction {
public:
    /// A cell's text between its padding of spaces and tabs. A cell of nothing but blanks is all `leading`.
    struct Parts {
        std::u16string_view leading;
        std::u16string_view text;
        std::u16string_view trailing;
    };

    static Parts splitTrim(std::u16string_view cell);
    std::vector<Operation::Result> run(const Ondo::Tree& tree, std::int64_t offset, std::int64_t length,
                                       std::u16string_view replacement, std::int64_t selectionOffset,
                                       std::int64_t selectionLength) const override;
};

} // namespace CVN::Correction
