#include "corvane/operation/OperationNormalizeTables.h"

#include <algorithm>
#include <utility>

#include "corvane/block/Table.h"
#include "corvane/operation/LineWalk.h"
#include "corvane/scan/Assert.h"

namespace CVN::Operation {

using Ondo::Node;
using Ondo::ONDO_TABLE_CELL_NODE;
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
        : tree_(tree), columns_(columnsOf(table.node)), at_{table.end(), 0}, selection_(selection),
          results_(results) {}

    /// Between the rows and the children of each, from the last to the first.
    void startRow();
    void stepOver(const Node* child);

    // The child that was stepped over last.
    void layOutPipe(const Node* pipe);
    void layOutSpace() { edit(at_.offset, at_.length, {}); }
    void layOutDelimiter();
    void layOutCell(const Node* cellNode);

private:
    void layOutEmptyCell(std::int64_t offset, const Column& column);
    void layOutText(const Range& left, const Range& right, const Column& column);

    void edit(std::int64_t offset, std::int64_t length, std::u16string text);
    void resizeBlanks(const Range& blanks, std::int64_t wanted);
    void select(const Range& wanted);
    Range selected() const;

    const Tree& tree_;
    std::vector<Column> columns_;
    std::vector<Column>::const_reverse_iterator column_; ///< of the cell before the pipe that was passed last
    bool isInside_ = false;                              ///< the row's last pipe was passed
    Range at_;                                           ///< of the child that was stepped over last
    Range selection_;                                    ///< in the text of the tree
    std::vector<Result>& results_;
};

void TableLayout::startRow() {
    column_ = columns_.rbegin();
    isInside_ = false;
}

void TableLayout::stepOver(const Node* child) {
    at_ = {at_.offset - child->charCount, child->charCount};
}

void TableLayout::layOutPipe(const Node* pipe) {
    if (isInside_ && isTablePipe(pipe->nextSibling)) layOutEmptyCell(at_.end(), *column_);
    if (isInside_) ++column_;
    isInside_ = true;
}

/// The last character stays at the end: it may be a colon.
void TableLayout::layOutDelimiter() {
    const std::int64_t surplus = std::max<std::int64_t>(at_.length - column_->width, 0);
    edit(at_.end() - 1 - surplus, surplus, NormalizeTables::repeatString(column_->width - at_.length, u'-'));
}

void TableLayout::layOutEmptyCell(std::int64_t offset, const Column& column) {
    edit(offset, 0, NormalizeTables::repeatString(column.width, u' '));
    if (selection_.offset == offset) select({offset + caretIn(column), 0});
}

void TableLayout::layOutCell(const Node* cellNode) {
    const std::int64_t left = spaceLength(cellNode->firstChild);
    const std::int64_t right = spaceLength(cellNode->lastChild);
    if (left < at_.length) return layOutText({at_.offset, left}, {at_.end() - right, right}, *column_);
    resizeBlanks(at_, column_->width);
    if (contains(at_, selection_)) select({at_.offset + caretIn(*column_), 0});
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
    TableLayout layout(tree, table, {selectionOffset, selectionLength}, results);
    for (const Node* row = table->lastChild; row; row = row->previousSibling) {
        layout.startRow();
        for (const Node* child = row->lastChild; child; child = child->previousSibling) {
            layout.stepOver(child);
            if (isTablePipe(child)) {
                layout.layOutPipe(child);
            } else if (isSpace(child)) {
                layout.layOutSpace();
            } else if (isOfType(child, Ondo::ONDO_TABLE_DELIMITER_MARKER_NODE)) {
                const Node* const delimiterNode = child;
                CORVANE_ASSERT(delimiterNode->charCount >= 1, "OperationNormalizeTables");
                layout.layOutDelimiter();
            } else if (!isLineEnding(child)) {
                const Node* const cellNode = child;
                CORVANE_ASSERT(cellNode->type == ONDO_TABLE_CELL_NODE, "OperationNormalizeTables");
                layout.layOutCell(cellNode);
            }
        }
    }
}

std::int64_t NormalizeTables::cellContentSize(const Node* pipe) {
    const Node* const cell = pipe->nextSibling;
    if (!isOfType(cell, ONDO_TABLE_CELL_NODE)) return 0;
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
