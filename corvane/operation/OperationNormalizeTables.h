#pragma once

#include <string>

#include "corvane/operation/Operation.h"
#include "corvane/scan/Export.h"
#include "corvane/tree/Node.h"

namespace CVN::Operation {

/// Pads the cells of tables so that their pipes line up.
///
/// Looks at the tables from the first-level block at `offset` to the one at `offset + length`. A column is as
/// wide as its longest text, held between 3 and 60 code units, and a blank on each side: a longer text sticks
/// out. Texts are set by the alignment of their column, the dashes of the delimiter row fill it, and blanks
/// outside the pipes go. No text in a cell changes, nor does anything outside the tables.
///
/// Results come from the end to the start. A caret in the blanks of a cell goes to the text that they
/// surround, in an empty cell to where its text would begin. An empty list when all lines up already.
class CORVANE_EXPORT NormalizeTables : public Operation {
public:
    std::vector<Result> run(const Ondo::Tree& tree, std::int64_t offset, std::int64_t length,
                            std::int64_t selectionOffset, std::int64_t selectionLength) const override;

    /// Adds the results for one table. The selection counts only for the first result of a list.
    static void normalizeTableNode(const Ondo::Node::Iterator& table, std::int64_t selectionOffset,
                                   std::int64_t selectionLength, const Ondo::Tree& tree,
                                   std::vector<Result>& results);
    /// The length of the cell behind a pipe without the blanks at its ends; 0 in a delimiter row and for an
    /// empty cell.
    static std::int64_t cellContentSize(const Ondo::Node* pipe);
    static std::u16string repeatString(std::int64_t count, char16_t character);
    /// Whether every code unit of a stretch is U+0020; true for a length below 1.
    static bool hasOnlySpace(std::int64_t offset, std::int64_t length, const Ondo::Tree& tree);
};

} // namespace CVN::Operation
