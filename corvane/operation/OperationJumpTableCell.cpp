#include "corvane/operation/OperationJumpTableCell.h"

#include "corvane/operation/LineWalk.h"
#include "corvane/operation/TableRows.h"

namespace CVN::Operation {

using Ondo::Node;

namespace {

// A cell is stood for by the pipe that closes it: an empty one has no node of its own.

bool isCell(const Node* node) {
    return isOfType(node, Ondo::ONDO_TABLE_CELL_NODE);
}

bool isSpace(const Node* node) {
    return node && node->category == Node::Category::Space;
}

/// The cell that holds an offset or ends there.
Node::Iterator cellAt(const Ondo::Tree& tree, std::int64_t offset) {
    Node::Iterator at = leafAt(tree, offset);
    toRowChild(at);
    if (!at.node || isDelimiterRow(at->parent)) return {};
    if (isCell(at.node)) at.nextSibling();
    Node::Iterator opening = at;
    toPreviousPipe(opening);
    return isTablePipe(at.node) && opening.node ? at : Node::Iterator();
}

/// The first cell of a row; none for no row.
Node::Iterator firstCell(Node::Iterator row) {
    toFirstPipe(row);
    toNextPipe(row);
    return row;
}

Node::Iterator cellAfter(Node::Iterator cell) {
    Node::Iterator row = cell;
    row.parent();
    toNextPipe(cell);
    if (cell.node) return cell;
    toNextTextRow(row);
    return firstCell(row);
}

Node::Iterator cellBefore(Node::Iterator cell) {
    Node::Iterator row = cell;
    row.parent();
    const bool isFirst = cell.node == firstCell(row).node;
    if (isFirst) {
        toPreviousTextRow(row);
        toLastPipe(row);
        return row;
    }
    toPreviousPipe(cell);
    return cell;
}

} // namespace

std::vector<Result> JumpTableCell::run(const Ondo::Tree& tree, std::int64_t offset, std::int64_t length,
                                       std::int64_t selectionOffset, std::int64_t selectionLength) const {
    if (selectionOffset == tree.length()) return {};
    const Node::Iterator cell = cellAt(tree, offset);
    if (!cell.node || cell.node != cellAt(tree, offset + length).node) return {};
    const bool isNext = direction_ == JumpTableCellDirection::Next;
    Node::Iterator to = isNext ? cellAfter(cell) : cellBefore(cell);
    if (!to.node) return {Result(0, 0, u"", selectionOffset, selectionLength)};
    if (isCell(to->previousSibling)) to.previousSibling();
    return moveToCell(to);
}

std::vector<Result> JumpTableCell::moveToCell(const Node::Iterator& node) {
    std::int64_t start = node.offset;
    std::int64_t end = isTablePipe(node.node) ? start : node.end();
    const Node* const first = node->firstChild;
    const Node* const last = node->lastChild;
    if (isSpace(last)) end -= last->charCount;
    if (isSpace(first) && first != last) start += first->charCount;
    return {Result(0, 0, u"", start, end - start)};
}

} // namespace CVN::Operation
