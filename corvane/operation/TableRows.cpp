#include "corvane/operation/TableRows.h"

#include <string_view>

#include "corvane/block/Table.h"
#include "corvane/operation/IndentInfo.h"
#include "corvane/operation/LinePrefix.h"
#include "corvane/scan/Go.h"
#include "corvane/scan/Lines.h"
#include "corvane/scan/Util.h"

namespace CVN::Operation {

using Ondo::Node;

namespace {

bool isInRow(const Node* node) {
    while (node && !isTableRow(node))
        node = node->parent;
    return node;
}

/// What a line holds between its blanks.
std::u16string_view contentOf(std::u16string_view line) {
    return Ondo::Util::trim(line, Ondo::Go::characterAnyOf(u" \t\r\n"));
}

/// Whether the blanks before the content of a line make indented code of it, which the simplified dialect
/// lacks.
bool isCode(const Ondo::Tree& tree, std::u16string_view line) {
    const auto start = static_cast<std::int64_t>(line.find_first_not_of(u" \t"));
    return !isSimplified(tree) &&
           Ondo::Lines::Line::indentationAtOffsetRelativeToStart(start, 0, line) >= codeIndentation;
}

void passDelimiter(Ondo::Go& go) {
    go.nextWhile(Ondo::Go::character(u' '));
    go.nextWhile(Ondo::Go::character(u':'), 1);
    go.nextMatch(Ondo::Go::character(u'-'), 1, Ondo::Go::NoLimit);
    go.nextWhile(Ondo::Go::character(u':'), 1);
    go.nextWhile(Ondo::Go::character(u' '));
    go.nextMatch(Ondo::Go::character(u'|'), 1, 1);
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

bool readsAsDelimiterRow(std::u16string_view row) {
    Ondo::Go go(contentOf(row));
    go.nextMatch(Ondo::Go::character(u'|'), 1, 1);
    while (!go.hasFailed() && !go.isAtEnd())
        passDelimiter(go);
    return !go.hasFailed();
}

bool beginsAsRow(const Ondo::Tree& tree, std::int64_t line) {
    std::int64_t column = 0;
    for (; unitAt(tree, line) == u' ' || unitAt(tree, line) == u'\t'; ++line)
        column = columnBehind(unitAt(tree, line), column);
    return unitAt(tree, line) == u'|' && (column < codeIndentation || isSimplified(tree));
}

bool isRowOf(const Ondo::Tree& tree, const Node::Iterator& line, std::int64_t columns) {
    Node::Iterator ending = line;
    ending.endOfLine();
    const auto text = tree.markdownIn({line.offset, ending.end() - line.offset});
    const auto content = contentOf(text);
    if (content.empty() || content.front() != u'|' || isCode(tree, text)) return false;
    Ondo::Go cell(content);
    cell.setPos(1);
    while (columns > 0 && Ondo::Block::Table::matchColumn(cell))
        --columns;
    return columns == 0 && cell.isAtEnd();
}

} // namespace CVN::Operation
