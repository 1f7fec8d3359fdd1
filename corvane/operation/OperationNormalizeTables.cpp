#include "corvane/operation/OperationNormalizeTables.h"

#include <algorithm>
#include <utility>

#include "corvane/block/Table.h"
#include "corvane/operation/LineWalk.h"
#include "corvane/scan/Assert.h"

namespace CVN::Operation {

using Ondo::Node;
using Ondo::Range;
using Ondo::Tree;

namespace {

using Alignment = Ondo::Block::TableNode::ColumnAlignment;

constexpr std::int64_t narrowest = 3; ///< of a text, in code units
constexpr std::int64_t widest = 60;
constexpr std::int64_t blanksAround = 2;

bool isSpace(const Node* node) {
    return isOfType(node, Ondo::ONDO_SPACE_NODE);
}

std::int64_t spaceLength(const Node* node) {
    return isSpace(node) ? node->charCount : 0;
}

struct Column {
    std::int64_t width; ///< with the blanks around the text
    Alignment alignment;
};

std::vector<Column> columnsOf(const Node* table) {
    std::vector<Column> columns;
    for (const Alignment alignment : static_cast<const Ondo::Block::TableNode*>(table)->alignments)
        columns.push_back({narrowest + blanksAround, alignment});
    for (const Node* row = table->firstChild; row; row = row->nextSibling) {
        auto column = columns.begin();
        for (const Node* pipe = row->firstChild; pipe && column != columns.end(); pipe = pipe->nextSibling) {
            if (!isTablePipe(pipe)) continue;
            const std::int64_t size = std::min(NormalizeTables::cellContentSize(pipe), widest);
            column->width = std::max(column->width, size + blanksAround);
            ++column;
        }
    }
    return columns;
}

/// The blanks on the two sides of a text.
struct Padding {
    std::int64_t left;
    std::int64_t right;
};

Padding paddingOf(const Column& column, std::int64_t size) {
    const std::int64_t space = column.width - size;
    const std::int64_t rest = std::max<std::int64_t>(space - 1, 1);
    if (column.alignment == Alignment::Right) return {rest, 1};
    if (column.alignment != Alignment::Center) return {1, rest};
    const std::int64_t left = std::max<std::int64_t>(space / 2, 1);
    return {left, std::max<std::int64_t>(space - left, 1)};
}

/// Where the caret goes in a cell without text, counted from the pipe's end.
std::int64_t caretIn(const Column& column) {
    if (column.alignment == Alignment::Right) return column.width - 1;
    return column.alignment == Alignment::Center ? column.width / 2 : 1;
}

bool contains(const Range& outer, const Range& inner) {
    return outer.offset <= inner.offset && inner.end() <= outer.end();
}

/// Lays out one table, from its end to its start. So the offsets before the place at hand are still those of
/// the tree, and so is a selection there.
class TableLayout {
public:
    TableLayout(const Tree& tree, const Node::Iterator& table, const Range& selection,
                std::vector<Result>& results)
        : tree_(tree), table_(table), columns_(columnsOf(table.node)), selection_(selection),
          results_(results) {}

    void layOut() {
        std::int64_t end = table_.end();
        for (const Node* row = table_->lastChild; row; row = row->previousSibling) {
            layOutRow(row, end);
            end -= row->charCount;
        }
    }

private:
    void layOutRow(const Node* row, std::int64_t end);
    void layOutDelimiter(const Node* delimiterNode, const Range& at, const Column& column);
    void layOutEmptyCell(std::int64_t offset, const Column& column);
    void layOutCell(const Node* cellNode, const Range& at, const Column& column);
    void layOutText(const Range& left, const Range& right, const Column& column);

    void edit(std::int64_t offset, std::int64_t length, std::u16string text);
    void resizeBlanks(const Range& blanks, std::int64_t wanted);
    void select(const Range& wanted);
    Range selected() const;

    const Tree& tree_;
    const Node::Iterator& table_;
    std::vector<Column> columns_;
    Range selection_; ///< in the text of the tree
    std::vector<Result>& results_;
};

void TableLayout::layOutRow(const Node* row, std::int64_t end) {
    auto column = columns_.rbegin(); // of the cell before the pipe that was passed last
    bool isInside = false;           // the row's last pipe was passed
    for (const Node* child = row->lastChild; child; child = child->previousSibling) {
        const Range at{end - child->charCount, child->charCount};
        end = at.offset;
        if (isTablePipe(child)) {
            if (isInside && isTablePipe(child->nextSibling)) layOutEmptyCell(at.end(), *column);
            if (isInside) ++column;
            isInside = true;
        } else if (isSpace(child)) {
            edit(at.offset, at.length, {});
        } else if (isOfType(child, Ondo::ONDO_TABLE_DELIMITER_MARKER_NODE)) {
            layOutDelimiter(child, at, *column);
        } else if (!isLineEnding(child)) {
            layOutCell(child, at, *column);
        }
    }
}

/// The last character stays at the end: it may be a colon.
void TableLayout::layOutDelimiter(const Node* delimiterNode, const Range& at, const Column& column) {
    CORVANE_ASSERT(delimiterNode->charCount >= 1, "OperationNormalizeTables");
    const std::int64_t surplus = std::max<std::int64_t>(delimiterNode->charCount - column.width, 0);
    edit(at.end() - 1 - surplus, surplus, NormalizeTables::repeatString(column.width - at.length, u'-'));
}

void TableLayout::layOutEmptyCell(std::int64_t offset, const Column& column) {
    edit(offset, 0, NormalizeTables::repeatString(column.width, u' '));
    if (selection_.offset == offset) select({offset + caretIn(column), 0});
}

void TableLayout::layOutCell(const Node* cellNode, const Range& at, const Column& column) {
    CORVANE_ASSERT(cellNode->type == Ondo::ONDO_TABLE_CELL_NODE, "OperationNormalizeTables");
    const std::int64_t left = spaceLength(cellNode->firstChild);
    const std::int64_t right = spaceLength(cellNode->lastChild);
    if (left < at.length) return layOutText({at.offset, left}, {at.end() - right, right}, column);
    resizeBlanks(at, column.width);
    if (contains(at, selection_)) select({at.offset + caretIn(column), 0});
}

/// A selection that begins behind the text begins at its end, and one in the blanks before it is a caret at
/// its start.
void TableLayout::layOutText(const Range& left, const Range& right, const Column& column) {
    const Padding padding = paddingOf(column, right.offset - left.end());
    resizeBlanks(right, padding.right);
    if (contains(right, {selection_.offset, 0})) {
        const std::int64_t end = contains(right, selection_) ? right.offset : selected().end();
        select({right.offset, end - right.offset});
    }
    resizeBlanks(left, padding.left);
    if (contains(left, selection_)) select({left.offset + padding.left, 0});
}

void TableLayout::edit(std::int64_t offset, std::int64_t length, std::u16string text) {
    if (length == 0 && text.empty()) return;
    Result::addToList(results_, offset, length, std::move(text), selection_.offset, selection_.length);
}

void TableLayout::resizeBlanks(const Range& blanks, std::int64_t wanted) {
    const bool isKept = NormalizeTables::hasOnlySpace(blanks.offset, blanks.length, tree_);
    const std::int64_t kept = isKept ? std::min(blanks.length, wanted) : 0;
    edit(blanks.offset + kept, blanks.length - kept, NormalizeTables::repeatString(wanted - kept, u' '));
}

Range TableLayout::selected() const {
    if (results_.empty()) return selection_;
    return {results_.back().selectionOffset, results_.back().selectionLength};
}

void TableLayout::select(const Range& wanted) {
    if (wanted == selected()) return;
    if (results_.empty()) results_.emplace_back(wanted.offset, 0, u"", wanted.offset, wanted.length);
    results_.back().selectionOffset = wanted.offset;
    results_.back().selectionLength = wanted.length;
}

Node::Iterator firstLevelAt(const Tree& tree, std::int64_t offset) {
    Node::Iterator block = tree.iteratorAtOffset(offset, Ondo::LevelSetting::FirstLevel);
    while (block.level > 1)
        block.parent();
    return block;
}

bool changesText(const Result& result) {
    return result.replaceLength > 0 || !result.replacementString.empty();
}

} // namespace

std::vector<Result> NormalizeTables::run(const Tree& tree, std::int64_t offset, std::int64_t length,
                                         std::int64_t selectionOffset, std::int64_t selectionLength) const {
    if (tree.length() == 0) return {};
    const Node* const first = firstLevelAt(tree, offset).node;
    std::vector<Result> results;
    Node::Iterator block = firstLevelAt(tree, offset + length);
    while (true) {
        if (isOfType(block.node, Ondo::ONDO_TABLE_NODE))
            normalizeTableNode(block, selectionOffset, selectionLength, tree, results);
        if (block.node == first || !block->previousSibling) break;
        block.previousSibling();
    }
    if (std::none_of(results.begin(), results.end(), changesText)) return {};
    return results;
}

void NormalizeTables::normalizeTableNode(const Node::Iterator& table, std::int64_t selectionOffset,
                                         std::int64_t selectionLength, const Tree& tree,
                                         std::vector<Result>& results) {
    TableLayout(tree, table, {selectionOffset, selectionLength}, results).layOut();
}

std::int64_t NormalizeTables::cellContentSize(const Node* pipe) {
    const Node* const cell = pipe->nextSibling;
    if (!isOfType(cell, Ondo::ONDO_TABLE_CELL_NODE)) return 0;
    const std::int64_t right = cell->lastChild == cell->firstChild ? 0 : spaceLength(cell->lastChild);
    return cell->charCount - spaceLength(cell->firstChild) - right;
}

std::u16string NormalizeTables::repeatString(std::int64_t count, char16_t character) {
    return std::u16string(static_cast<std::size_t>(std::max<std::int64_t>(count, 0)), character);
}

bool NormalizeTables::hasOnlySpace(std::int64_t offset, std::int64_t length, const Tree& tree) {
    return length < 1 || tree.markdownIn({offset, length}).find_first_not_of(u' ') == std::u16string::npos;
}

} // namespace CVN::Operation
