#pragma once

#include <cstdint>
#include <vector>

#include "corvane/operation/Operation.h"
#include "corvane/scan/Export.h"
#include "corvane/tree/Node.h"

namespace CVN::Operation {

/// Adds, deletes and moves rows and columns of a table, and aligns columns. What it writes is minimal: cells
/// without blanks, delimiters of one dash. NormalizeTables lays the table out afterwards.
///
/// It works on the row and column of the start of the range. A caret directly before the pipe that closes a
/// cell is in that cell, one behind the last pipe in the last column, one directly before the first pipe in
/// the first. Afterwards the caret stands directly behind the pipe that opens the cell in the new, moved or
/// neighbouring row and column; aligning carries the given selection along.
///
/// The header row takes part as any other: a row above it becomes the header, and where it goes the row below
/// takes its place. Rows change places without their indentation and line endings, and the last one goes with
/// the line ending above it where it has none, so that the end of the text stays as it was.
///
/// An empty list in the delimiter row and outside tables, for the only row and the only column, for a move
/// beyond the edge, and wherever the table would run into lines around it: into a table that has as many
/// columns then, or a line above of which its header would be the delimiter row. A plain line below that
/// comes to fit the columns does become a row.
class CORVANE_EXPORT MutateTable : public Operation {
public:
    explicit MutateTable(MutateTableAction action) : action_(action) {}

    /// Asserts that the action is one of the enumeration.
    std::vector<Result> run(const Ondo::Tree& tree, std::int64_t offset, std::int64_t length,
                            std::int64_t selectionOffset, std::int64_t selectionLength) const override;

private:
    using Answer = std::vector<Result>;
    using Iterator = Ondo::Node::Iterator;
    /// Each gets the pipe that opens the cell.
    using Action = Answer (*)(const Iterator& pipe, const Ondo::Tree& tree);
    static Action actionFor(MutateTableAction action);

    static Answer addRowAbove(const Iterator& pipe, const Ondo::Tree& tree);
    static Answer addRowBelow(const Iterator& pipe, const Ondo::Tree& tree);
    static Answer deleteRow(const Iterator& pipe, const Ondo::Tree& tree);
    static Answer deleteHeader(const Iterator& pipe, const Ondo::Tree& tree);
    static Answer moveRowUp(const Iterator& pipe, const Ondo::Tree& tree);
    static Answer moveRowDown(const Iterator& pipe, const Ondo::Tree& tree);
    static Answer addColumnBefore(const Iterator& pipe, const Ondo::Tree& tree);
    static Answer addColumnAfter(const Iterator& pipe, const Ondo::Tree& tree);
    static Answer deleteColumn(const Iterator& pipe, const Ondo::Tree& tree);
    static Answer moveColumnLeft(const Iterator& pipe, const Ondo::Tree& tree);
    static Answer moveColumnRight(const Iterator& pipe, const Ondo::Tree& tree);
    Answer alignColumn(const Iterator& pipe, const Ondo::Tree& tree, std::int64_t selectionOffset,
                       std::int64_t selectionLength) const;

    /// The number of pipes before it in its row.
    static std::int64_t calculateColumnNumber(const Ondo::Node* pipe);
    /// Of the row that starts with the node; -1 for a row without children.
    static std::int64_t calculateNumberOfColumns(const Ondo::Node* firstNode);
    /// Directly behind the pipe that opens the cell of a column, or behind the last pipe of a row of fewer.
    /// Asserts that the column is not negative and that the row has pipes.
    static std::int64_t selectionOffsetForRowAndColumn(const Iterator& row, std::int64_t column);
    /// Calls back with each row of the table, from the last to the first, and the pipe that opens its cell in
    /// the column of the given one.
    template <class Callback>
    static void eachCellForColumn(const Iterator& pipe, Callback callback);
    /// The edit gets the pipe that opens the cell in each row, and answers the result for it, with the caret
    /// that counts if the row is that of the given pipe.
    template <class Edit>
    static Answer editColumn(const Iterator& pipe, Edit edit);

    MutateTableAction action_;
};

} // namespace CVN::Operation
