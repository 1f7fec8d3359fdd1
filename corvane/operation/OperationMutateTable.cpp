#include "corvane/operation/OperationMutateTable.h"

#include <cstddef>
#include <iterator>
#include <string>
#include <string_view>
#include <utility>

#include "corvane/block/Table.h"
#include "corvane/operation/ContainerChain.h"
#include "corvane/operation/LineWalk.h"
#include "corvane/operation/TableRows.h"
#include "corvane/scan/Assert.h"

namespace CVN::Operation {

using Ondo::Node;
using Ondo::Range;

namespace {

Node::Iterator rowOf(Node::Iterator pipe) {
    pipe.parent();
    return pipe;
}

Node::Iterator tableOf(const Node::Iterator& pipe) {
    return rowOf(rowOf(pipe));
}

/// The pipe that opens the cell of an offset; none outside tables and in a delimiter row. The empty last line
/// below a table is outside, although the leaf there is the line ending of the last row.
Node::Iterator pipeAt(const Ondo::Tree& tree, std::int64_t offset) {
    if (offset == tree.length() && isLineStart(tree, offset)) return {};
    Node::Iterator at = leafAt(tree, offset);
    toRowChild(at);
    if (!at.node || isDelimiterRow(at->parent)) return {};
    Node::Iterator pipe = at;
    toPreviousPipe(pipe);
    if (!pipe.node) return isTablePipe(at.node) ? at : Node::Iterator();
    Node::Iterator closing = pipe;
    toNextPipe(closing);
    if (!closing.node) toPreviousPipe(pipe);
    return pipe;
}

Node::Iterator pipeBehind(Node::Iterator pipe) {
    toNextPipe(pipe);
    return pipe;
}

Node::Iterator pipeBefore(Node::Iterator pipe) {
    toPreviousPipe(pipe);
    return pipe;
}

/// The pipe that opens the cell of a column; the last one of a row of fewer.
Node::Iterator pipeOf(Node::Iterator row, std::int64_t column) {
    toFirstPipe(row);
    for (; column > 0 && pipeBehind(row).node; --column)
        toNextPipe(row);
    return row;
}

/// A pipe and all up to the next one.
Range columnRange(const Node::Iterator& pipe) {
    return {pipe.offset, pipeBehind(pipe).offset - pipe.offset};
}

std::u16string textIn(const Ondo::Tree& tree, std::int64_t start, std::int64_t end) {
    return std::u16string(tree.markdownIn({start, end - start}));
}

/// The row without indentation and line ending: what moves when it takes another's place.
std::u16string contentOf(const Ondo::Tree& tree, const Node::Iterator& row) {
    return textIn(tree, rowStart(row), rowEnd(row));
}

/// Whether a new header would be taken for the delimiter row of the line above the table.
bool joinsLineAbove(const Ondo::Tree& tree, const Node::Iterator& table, std::u16string_view header,
                    std::int64_t columns) {
    if (table.offset == 0 || !readsAsDelimiterRow(header)) return false;
    const Node::Iterator line = lineAt(tree, table.offset - 1);
    const bool isInContainer = !ContainerChain(tree, line).furtherPrefix().empty();
    return !isInContainer && isRowOf(tree, line, columns);
}

std::int64_t columnsOf(const Node* table) {
    return std::ssize(static_cast<const Ondo::Block::TableNode*>(table)->alignments);
}

bool isTableOf(const Node* node, std::int64_t columns) {
    return isOfType(node, Ondo::ONDO_TABLE_NODE) && columnsOf(node) == columns;
}

std::u16string emptyRow(const Node* table) {
    return std::u16string(static_cast<std::size_t>(columnsOf(table)) + 1, u'|');
}

/// Whether a table of so many columns would run into the one above, or into one below.
bool joinsTables(const Ondo::Tree& tree, const Node::Iterator& table, std::int64_t columns) {
    if (isTableOf(table->previousSibling, columns)) return true;
    Node::Iterator line = table;
    line.nextSibling();
    while (line.node && !isTableOf(line.node, columns) && isRowOf(tree, line, columns))
        toNextLine(line);
    return isTableOf(line.node, columns);
}

/// What goes with a row that is not the first: its line. A row that ends the text takes the line ending above
/// along. Where a lone carriage return above would meet a line feed below, the line keeps its own ending and
/// the carriage return goes.
Range lineOf(const Ondo::Tree& tree, const Node::Iterator& row) {
    if (!isLineEnding(row->lastChild)) {
        Node::Iterator above = row;
        above.previousSibling();
        return {rowEnd(above), row.end() - rowEnd(above)};
    }
    const bool joinsEndings = unitAt(tree, row.offset - 1) == u'\r' && unitAt(tree, row.end()) == u'\n';
    const std::int64_t start = row.offset - (joinsEndings ? 1 : 0);
    return {start, (joinsEndings ? rowEnd(row) : row.end()) - start};
}

/// Each row takes the other's place. The caret is one behind both results.
std::vector<Result> swapRows(const Ondo::Tree& tree, const Node::Iterator& upper, const Node::Iterator& lower,
                             std::int64_t caret) {
    const std::u16string above = contentOf(tree, upper);
    const std::u16string below = contentOf(tree, lower);
    const auto inPlaceOf = [&tree](const Node::Iterator& row, const std::u16string& content) {
        return textIn(tree, row.offset, rowStart(row)) + content + lineEndingOf(tree, row);
    };
    return {Result(lower.offset, lower->charCount, inPlaceOf(lower, above), upper.offset, 0),
            Result(upper.offset, upper->charCount, inPlaceOf(upper, below), caret, 0)};
}

/// Whether the lower of two rows may take the place of the upper.
bool canComeUp(const Ondo::Tree& tree, const Node::Iterator& upper, const Node::Iterator& lower) {
    if (upper->previousSibling) return true;
    Node::Iterator table = upper;
    table.parent();
    return !joinsLineAbove(tree, table, contentOf(tree, lower), columnsOf(table.node));
}

/// A row's share in a new column: the pipe that opens its cell goes in before the given one. The delimiter
/// row gets a dash too.
Result columnAt(const Node::Iterator& pipe) {
    return Result(pipe.offset, 0, isDelimiterRow(pipe->parent) ? u"|-" : u"|", pipe.end(), 0);
}

/// A row's share in swapping the column of a pipe with the next one.
Result swapped(const Ondo::Tree& tree, const Node::Iterator& pipe, std::int64_t caret) {
    const Range left = columnRange(pipe);
    const Range right = columnRange(pipeBehind(pipe));
    return Result(left.offset, left.length + right.length,
                  textIn(tree, right.offset, right.end()) + textIn(tree, left.offset, left.end()), caret, 0);
}

std::u16string headerWithout(const Ondo::Tree& tree, const Node::Iterator& table, std::int64_t column) {
    Node::Iterator header = table;
    header.firstChild();
    const Range range = columnRange(pipeOf(header, column));
    return textIn(tree, header.offset, range.offset) + textIn(tree, range.end(), rowEnd(header));
}

} // namespace

std::vector<Result> MutateTable::run(const Ondo::Tree& tree, std::int64_t offset, std::int64_t,
                                     std::int64_t selectionOffset, std::int64_t selectionLength) const {
    CORVANE_ASSERT(action_ <= MutateTableAction::AlignRight, "OperationMutateTable");
    const Iterator pipe = pipeAt(tree, offset);
    if (!pipe.node) return {};
    const Action action = actionFor(action_);
    return action ? action(pipe, tree) : alignColumn(pipe, tree, selectionOffset, selectionLength);
}

/// None for those that align.
MutateTable::Action MutateTable::actionFor(MutateTableAction action) {
    constexpr Action actions[] = {
        addRowAbove,     addRowBelow,    deleteRow,    moveRowUp,      moveRowDown,
        addColumnBefore, addColumnAfter, deleteColumn, moveColumnLeft, moveColumnRight,
    };
    const auto number = static_cast<std::size_t>(action);
    return number < std::size(actions) ? actions[number] : nullptr;
}

std::int64_t MutateTable::calculateColumnNumber(const Node* pipe) {
    std::int64_t column = 0;
    for (const Node* node = pipe->previousSibling; node; node = node->previousSibling)
        column += isTablePipe(node) ? 1 : 0;
    return column;
}

std::int64_t MutateTable::calculateNumberOfColumns(const Node* firstNode) {
    std::int64_t pipes = 0;
    for (const Node* node = firstNode; node; node = node->nextSibling)
        pipes += isTablePipe(node) ? 1 : 0;
    return pipes - 1;
}

std::int64_t MutateTable::selectionOffsetForRowAndColumn(const Iterator& row, std::int64_t column) {
    CORVANE_ASSERT(column >= 0, "OperationMutateTable");
    const Iterator pipe = pipeOf(row, column);
    CORVANE_ASSERT(pipe.node != nullptr, "OperationMutateTable");
    return pipe.end();
}

// Rows

MutateTable::Answer MutateTable::addRowAbove(const Iterator& pipe, const Ondo::Tree& tree) {
    const Iterator row = rowOf(pipe);
    const std::int64_t caret = row.offset + calculateColumnNumber(pipe.node) + 1;
    const std::u16string added = emptyRow(row->parent) + u'\n';
    if (row->previousSibling) return {Result(row.offset, 0, added, caret, 0)};

    Iterator delimiter = row;
    delimiter.nextSibling();
    const std::u16string ending = lineEndingOf(tree, delimiter);
    const Range line = lineOf(tree, delimiter);
    const std::u16string moved = textIn(tree, delimiter.offset, rowEnd(delimiter)) +
                                 (ending.empty() ? lineEndingOf(tree, row) : ending);
    return {Result(line.offset, line.length, u"", row.offset, 0),
            Result(row.offset, 0, added + moved, caret, 0)};
}

MutateTable::Answer MutateTable::addRowBelow(const Iterator& pipe, const Ondo::Tree&) {
    Iterator row = rowOf(pipe);
    const std::u16string added = emptyRow(row->parent);
    if (!row->previousSibling) row.nextSibling();
    const bool endsLine = isLineEnding(row->lastChild);
    const std::int64_t caret = row.end() + calculateColumnNumber(pipe.node) + (endsLine ? 1 : 2);
    return {Result(row.end(), 0, endsLine ? added + u'\n' : u'\n' + added, caret, 0)};
}

MutateTable::Answer MutateTable::deleteRow(const Iterator& pipe, const Ondo::Tree& tree) {
    const Iterator row = rowOf(pipe);
    if (!row->previousSibling) return deleteHeader(pipe, tree);
    Iterator shown = row;
    toNextTextRow(shown);
    if (!shown.node) toPreviousTextRow(shown = row);
    const Range line = lineOf(tree, row);
    Answer results;
    Result::addToList(results, line.offset, line.length, u"",
                      selectionOffsetForRowAndColumn(shown, calculateColumnNumber(pipe.node)), 0);
    return results;
}

/// The first data row takes its place, the delimiter row goes behind that.
MutateTable::Answer MutateTable::deleteHeader(const Iterator& pipe, const Ondo::Tree& tree) {
    const Iterator header = rowOf(pipe);
    Iterator row = header;
    toNextTextRow(row);
    if (!row.node) return {};
    if (!canComeUp(tree, header, row)) return {};

    Iterator delimiter = row;
    delimiter.previousSibling();
    const std::u16string moved = textIn(tree, delimiter.offset, rowEnd(delimiter));
    const std::u16string ending = lineEndingOf(tree, row);
    const std::int64_t caret = selectionOffsetForRowAndColumn(row, calculateColumnNumber(pipe.node));
    Answer results;
    Result::addToList(results, row.end(), 0,
                      ending.empty() ? lineEndingOf(tree, delimiter) + moved : moved + ending, caret, 0);
    Result::addToList(results, rowStart(header), rowStart(row) - rowStart(header), u"", caret, 0);
    return results;
}

MutateTable::Answer MutateTable::moveRowUp(const Iterator& pipe, const Ondo::Tree& tree) {
    const Iterator row = rowOf(pipe);
    Iterator above = row;
    toPreviousTextRow(above);
    if (!above.node || !canComeUp(tree, above, row)) return {};
    return swapRows(tree, above, row, rowStart(above) + pipe.end() - rowStart(row));
}

MutateTable::Answer MutateTable::moveRowDown(const Iterator& pipe, const Ondo::Tree& tree) {
    const Iterator row = rowOf(pipe);
    Iterator below = row;
    toNextTextRow(below);
    if (!below.node || !canComeUp(tree, row, below)) return {};
    // All between the two moves by what the other row is longer.
    const std::int64_t shift = rowEnd(below) - rowStart(below) - (rowEnd(row) - rowStart(row));
    return swapRows(tree, row, below, rowStart(below) + shift + pipe.end() - rowStart(row));
}

// Columns

template <class Callback>
void MutateTable::eachCellForColumn(const Iterator& pipe, Callback callback) {
    const std::int64_t column = calculateColumnNumber(pipe.node);
    Iterator row = tableOf(pipe);
    for (row.lastChild(); row.node; row.previousSibling()) {
        std::int64_t number = calculateNumberOfColumns(row->firstChild);
        Iterator cell = row;
        for (toLastPipe(cell); cell.node; toPreviousPipe(cell), --number)
            if (number == column) callback(row, cell);
    }
}

template <class Edit>
MutateTable::Answer MutateTable::editColumn(const Iterator& pipe, Edit edit) {
    Answer results;
    eachCellForColumn(pipe, [&](const Iterator& row, const Iterator& cell) {
        Result result = edit(cell);
        const std::int64_t caret = result.selectionOffset;
        Result::addToList(results, result.replaceOffset, result.replaceLength,
                          std::move(result.replacementString), 0, 0);
        if (row.node == pipe->parent) results.back().selectionOffset = caret;
    });
    return results;
}

MutateTable::Answer MutateTable::addColumnBefore(const Iterator& pipe, const Ondo::Tree& tree) {
    const Iterator table = tableOf(pipe);
    if (joinsTables(tree, table, columnsOf(table.node) + 1)) return {};
    return editColumn(pipe, [](const Iterator& cell) { return columnAt(cell); });
}

MutateTable::Answer MutateTable::addColumnAfter(const Iterator& pipe, const Ondo::Tree& tree) {
    const Iterator table = tableOf(pipe);
    if (joinsTables(tree, table, columnsOf(table.node) + 1)) return {};
    return editColumn(pipe, [](const Iterator& cell) { return columnAt(pipeBehind(cell)); });
}

MutateTable::Answer MutateTable::deleteColumn(const Iterator& pipe, const Ondo::Tree& tree) {
    const std::int64_t column = calculateColumnNumber(pipe.node);
    const Iterator table = tableOf(pipe);
    const std::int64_t columns = columnsOf(table.node) - 1;
    if (columns == 0 || joinsTables(tree, table, columns)) return {};
    if (joinsLineAbove(tree, table, headerWithout(tree, table, column), columns)) return {};
    return editColumn(pipe, [column, columns](const Iterator& cell) {
        const Range range = columnRange(cell);
        const std::int64_t shown = column < columns ? cell.offset : pipeBefore(cell).offset;
        return Result(range.offset, range.length, u"", shown + 1, 0);
    });
}

MutateTable::Answer MutateTable::moveColumnLeft(const Iterator& pipe, const Ondo::Tree& tree) {
    if (!pipeBefore(pipe).node) return {};
    return editColumn(pipe, [&tree](const Iterator& cell) {
        const Iterator left = pipeBefore(cell);
        return swapped(tree, left, left.end());
    });
}

MutateTable::Answer MutateTable::moveColumnRight(const Iterator& pipe, const Ondo::Tree& tree) {
    if (!pipeBehind(pipeBehind(pipe)).node) return {};
    return editColumn(pipe, [&tree](const Iterator& cell) {
        return swapped(tree, cell, cell.end() + columnRange(pipeBehind(cell)).length);
    });
}

MutateTable::Answer MutateTable::alignColumn(const Iterator& pipe, const Ondo::Tree&,
                                             std::int64_t selectionOffset,
                                             std::int64_t selectionLength) const {
    constexpr std::u16string_view delimiters[] = {u"-", u":-", u":-:", u"-:"};
    Iterator row = tableOf(pipe);
    row.firstChild();
    row.nextSibling();
    CORVANE_ASSERT(isDelimiterRow(row.node), "OperationMutateTable");
    Iterator delimiter = pipeOf(row, calculateColumnNumber(pipe.node));
    while (delimiter.node && delimiter->type != Ondo::ONDO_TABLE_DELIMITER_MARKER_NODE)
        delimiter.nextSibling();
    CORVANE_ASSERT(delimiter.node != nullptr, "OperationMutateTable");

    const auto alignment =
        static_cast<std::size_t>(action_) - static_cast<std::size_t>(MutateTableAction::AlignNone);
    Answer results;
    Result::addToList(results, delimiter.offset, delimiter->charCount, std::u16string(delimiters[alignment]),
                      selectionOffset, selectionLength);
    return results;
}

} // namespace CVN::Operation
