#pragma once

#include "corvane/operation/Operation.h"
#include "corvane/scan/Export.h"

namespace CVN::Operation {

/// Moves the lines that the range touches over the line above or below them.
///
/// Lines move as text, with the markers and blanks that they start with. What moves, and what is passed, is
/// more than a line in these cases:
///
/// - A folded section moves whole, and is passed whole. The lines that then come behind it may belong to it:
///   a paragraph that moves down past a folded heading is hidden with the rest of its section.
/// - Other lines pass a table whole. A data row passes the next data row of its table; any other part of a
///   table stays where it is.
/// - Nothing passes a fence of front matter, and no line becomes one.
///
/// An item that becomes the first of an ordered list takes over the number that the list starts with. The
/// other items keep what is written; RenumberOrderedList counts them. The item's further lines stay as they
/// are: behind a longer number, what is nested in it may stand too far left to belong to it, and counting
/// does not mend that.
///
/// Answers a deletion and an insertion in front of it: of the range for Up, for Down of the lines below,
/// which move up over the range. The selection stays on its text. When one of the stretches lacks a final
/// line ending, so does the text in the end: the ending changes sides. A lone carriage return that comes to
/// stand before an empty line gets a line feed.
///
/// An empty list when the lines can't move: at the ends of the text, when a table or front matter forbids it,
/// when a line with a pipe would join a table, when text would become front matter.
class CORVANE_EXPORT MoveLines : public Operation {
public:
    explicit MoveLines(MoveLinesDirection direction) : direction_(direction) {}

    std::vector<Result> run(const Ondo::Tree& tree, std::int64_t offset, std::int64_t length,
                            std::int64_t selectionOffset, std::int64_t selectionLength) const override;

private:
    MoveLinesDirection direction_;
};

} // namespace CVN::Operation
