#include "corvane/operation/MoveLinesStretch.h"

#include <optional>
#include <string_view>

#include "corvane/inline/FoldMarker.h"
#include "corvane/operation/LineWalk.h"
#include "corvane/operation/TableRows.h"
#include "corvane/operation/TrialParse.h"

namespace CVN::Operation {

using Ondo::Node;
using Ondo::Inline::FoldMarkerNode;

namespace {

const Node* tableOf(const Node::Iterator& leaf) {
    return selfOrAncestor(leaf.node, Ondo::ONDO_TABLE_NODE);
}

/// From a block to one of its siblings. The leaf lies in them or between; going there from it saves a search.
LineStretch linesOfBlocks(const Node::Iterator& leaf, const Node* from, const Node* to) {
    Node::Iterator first = leaf;
    while (first->parent != from->parent)
        first.parent();
    Node::Iterator last = first;
    while (first.node != from)
        first.previousSibling();
    while (last.node != to)
        last.nextSibling();
    last.lastNodeOfSubtree();
    return {first, last};
}

/// The section of the outermost head whose fold hides a leaf, or which the leaf lies in.
std::optional<LineStretch> foldedSectionOf(const Node::Iterator& leaf) {
    const Node* const head = FoldMarkerNode::topmostFoldedContentHead(leaf.node);
    const Node* const tail = head ? FoldMarkerNode::foldableTailFromContentHead(head) : nullptr;
    if (!tail) return std::nullopt;
    return linesOfBlocks(leaf, head, tail);
}

/// What lines pass that have a leaf beside them.
LineStretch passedAt(const Node::Iterator& leaf, const LineStretch& lines) {
    if (isPartOfTable(lines)) return {leaf, leaf};
    if (const auto section = foldedSectionOf(leaf)) return *section;
    const Node* const table = tableOf(leaf);
    return table ? linesOfBlocks(leaf, table, table) : LineStretch(leaf, leaf);
}

/// Whether a line could become a row of a table that a leaf above it lies in. Tables stand at the left
/// margin.
bool joinsTable(const Ondo::Tree& tree, const Node::Iterator& above, std::int64_t line) {
    return beginsAsRow(tree, line) && tableOf(above);
}

constexpr std::u16string_view openingFence = u"---";
constexpr std::u16string_view otherClosingFence = u"...";

/// Whether a line that starts at an offset is all this.
bool isLine(const Ondo::Tree& tree, std::int64_t line, std::u16string_view wanted) {
    for (const char16_t unit : wanted)
        if (unitAt(tree, line++) != unit) return false;
    return line == tree.length() || unitAt(tree, line) == u'\n' || unitAt(tree, line) == u'\r';
}

bool hasClosingFence(const Ondo::Tree& tree, std::int64_t from, std::int64_t end) {
    for (std::int64_t at = from; at < end; ++at) {
        const bool isFence = isLine(tree, at, openingFence) || isLine(tree, at, otherClosingFence);
        if (isFence && isLineStart(tree, at)) return true;
    }
    return false;
}

bool knowsFrontMatter(const Ondo::Tree& tree) {
    const Ondo::Tree trial = trialParse(tree, u"---\n---");
    return isOfType(trial.root->firstChild, Ondo::ONDO_YAML_NODE);
}

} // namespace

LineStretch::LineStretch(Node::Iterator from, Node::Iterator to) : first(from), last(to) {
    first.beginningOfLine();
    toFirstLeaf(first);
    last.endOfLine();
    start = first.offset;
    end = last.end();
}

LineStretch linesOf(const Ondo::Tree& tree, std::int64_t offset, std::int64_t length) {
    if (offset == tree.length() && isLineStart(tree, offset)) return LineStretch(offset);
    const Node::Iterator first = leafAt(tree, offset);
    return {first, length > 1 ? leafAt(tree, offset + length - 1) : first};
}

LineStretch withFoldedSections(const LineStretch& lines) {
    if (lines.length() == 0) return lines;
    const auto first = foldedSectionOf(lines.first);
    const auto last = foldedSectionOf(lines.last);
    return {first ? first->first : lines.first, last ? last->last : lines.last};
}

bool isPartOfTable(const LineStretch& lines) {
    const Node* const table = tableOf(lines.first);
    return table && table->charCount > lines.length();
}

bool leaveTablesWhole(const LineStretch& lines, bool up) {
    const Node* const first = tableOf(lines.first);
    const Node* const last = tableOf(lines.last);
    const auto isWhole = [&lines](const Node* table) {
        return !table || lines.contains(table->startOffset(), table->endOffset());
    };
    if (isWhole(first) && isWhole(last)) return true;
    const Node* row = lines.first.node;
    while (row && !isTableRow(row))
        row = row->parent;
    if (!isOfType(row, Ondo::ONDO_TABLE_DATA_ROW_NODE) || row->charCount != lines.length()) return false;
    return isOfType(up ? row->previousSibling : row->nextSibling, Ondo::ONDO_TABLE_DATA_ROW_NODE);
}

bool crossesFrontMatter(const Ondo::Tree& tree, std::int64_t start, std::int64_t end) {
    const Node* const matter = tree.root->firstChild;
    if (!isOfType(matter, Ondo::ONDO_YAML_NODE) || start >= matter->charCount) return false;
    const Node* const content = matter->childWhere(
        [](const Node* child) { return child->type == Ondo::ONDO_YAML_CONTENT_ATTRIBUTE_NODE; });
    return !content || start < content->startOffset() || end > content->endOffset();
}

bool makesFrontMatter(const Ondo::Tree& tree, const LineStretch& upper, const LineStretch& lower) {
    if (upper.start > 0 || !isLine(tree, lower.start, openingFence)) return false;
    const std::int64_t behindFence = lower.start + static_cast<std::int64_t>(openingFence.size());
    const bool isClosed =
        hasClosingFence(tree, 0, lower.start) || hasClosingFence(tree, behindFence, tree.length());
    return isClosed && knowsFrontMatter(tree);
}

LineStretch lineAbove(const Ondo::Tree& tree, const LineStretch& lines) {
    Node::Iterator leaf = lines.first;
    if (leaf.node)
        toPreviousLeaf(leaf);
    else
        leaf = leafAt(tree, lines.start);
    return passedAt(leaf, lines);
}

LineStretch lineBelow(const LineStretch& lines) {
    Node::Iterator leaf = lines.last;
    toNextLeaf(leaf);
    return passedAt(leaf, lines);
}

bool swapJoinsTables(const Ondo::Tree& tree, const LineStretch& upper, const LineStretch& lower) {
    Node::Iterator above = upper.first;
    toPreviousLeaf(above);
    return joinsTable(tree, above, lower.start) || joinsTable(tree, upper.last, lower.end) ||
           joinsTable(tree, lower.last, upper.start);
}

} // namespace CVN::Operation
