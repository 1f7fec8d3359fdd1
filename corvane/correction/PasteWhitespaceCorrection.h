#pragma once

#include "corvane/correction/Correction.h"

namespace CVN::Correction {

/// Keeps pasted text a space away from the words on both sides, and drops spaces that it would double.
///
/// - On the left a space goes in front of the text, unless one stands there: white space of any kind and the
///   start of a line count. None is needed behind an opening marker ("**"), nor behind punctuation but for
///   closing brackets, the closing quotes "» ’ ” ›", the marks ". , ; : ! ?" and closing markers.
/// - On the right a space goes behind the text, unless one stands there: white space and the end of a line
///   count. None is needed before punctuation but for opening brackets and opening markers.
/// - Where none is needed, spaces that the text brings along at that edge are dropped; of a text of nothing
///   else nothing is left. Tabs and line endings stay; a text that begins or ends in one needs no space.
/// - Neither is put nor dropped in code, math and front matter, their markers included. Where a line starts
///   nothing is dropped on the left, and nothing at all of a text of white space.
/// - An edge is left alone where both sides are digits, or characters of a script that sets no spaces, where
///   either is a currency sign, and at the inner side of "«" and "»".
///
/// Digits and signs of two code units count like any others. A caret moves along with what is put and
/// dropped; a selection keeps its start and takes in what is put behind that. A text that was corrected is
/// left alone when it is corrected once more at the same place. No opinion in an empty note, nor on a paste
/// of nothing but list markers directly behind one.
class CORVANE_EXPORT PasteWhitespaceCorrection : public Correction {
public:
    std::vector<Operation::Result> run(const Ondo::Tree& tree, std::int64_t offset, std::int64_t length,
                                       std::u16string_view replacement, std::int64_t selectionOffset,
                                       std::int64_t selectionLength) const override;
};

} // namespace CVN::Correction
