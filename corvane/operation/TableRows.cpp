#include "corvane/operation/TableRows.h"

#include <string_view>

#include "corvane/block/Table.h"
#include "corvane/operation/LineWalk.h"
#include "corvane/scan/Go.h"

namespace CVN::Operation {

using Ondo::Node;

namespace {

bool isInRow(const Node* node) {
    while (node && !isTableRow(node))
        node = node->parent;
    return node;
}

bool isDelimiterRow(const Node* node) {
    return isOfType(node, Ondo::ONDO_TABLE_DELIMITER_ROW_NODE);
}

std::u16string_view withoutBlanks(std::u16string_view line) {
    constexpr std::u16string_view blanks = u" \t\r\n";
    const auto start = line.find_first_not_of(blanks);
    if (start == std::u16string_view::npos) return {};
    return line.substr(start, line.find_last_not_of(blanks) + 1 - start);
}

} // namespace

void toRowChild(Node::Iterator& at) {
    if (!isInRow(at.node)) at = {};
    while (at.node && !isTableRow(at->parent))
        at.parent();
}

void toPreviousPipe(Node::Iterator& at) {
    do
        at.previousSibling();
    while (at.node && !isTablePipe(at.node));
}

void toNextPipe(Node::Iterator& at) {
    do
        at.nextSibling();
    while (at.node && !isTablePipe(at.node));
}

void toFirstPipe(Node::Iterator& row) {
    row.firstChild();
    if (row.node && !isTablePipe(row.node)) toNextPipe(row);
}

void toLastPipe(Node::Iterator& row) {
    row.lastChild();
    if (row.node && !isTablePipe(row.node)) toPreviousPipe(row);
}

void toPreviousTextRow(Node::Iterator& row) {
    row.previousSibling();
    if (isDelimiterRow(row.node)) row.previousSibling();
}

void toNextTextRow(Node::Iterator& row) {
    row.nextSibling();
    if (isDelimiterRow(row.node)) row.nextSibling();
}

std::int64_t rowStart(Node::Iterator row) {
    toFirstPipe(row);
    return row.offset;
}

std::int64_t rowEnd(const Node::Iterator& row) {
    return row.end() - (isLineEnding(row->lastChild) ? row->lastChild->charCount : 0);
}

std::u16string lineEndingOf(const Ondo::Tree& tree, const Node::Iterator& row) {
    const std::int64_t end = rowEnd(row);
    return std::u16string(tree.markdownIn({end, row.end() - end}));
}

bool isRowOf(const Ondo::Tree& tree, std::int64_t lineStart, std::int64_t columns) {
    Node::Iterator ending = leafAt(tree, lineStart);
    if (!ending.node) return false;
    ending.endOfLine();
    const auto line = withoutBlanks(tree.markdownIn({lineStart, ending.end() - lineStart}));
    if (line.empty() || line.front() != u'|') return false;
    Ondo::Go cell(line);
    cell.setPos(1);
    while (columns > 0 && Ondo::Block::Table::matchColumn(cell))
        --columns;
    return columns == 0 && cell.isAtEnd();
}

} // namespace CVN::Operation
