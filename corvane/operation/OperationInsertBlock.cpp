#include "corvane/operation/OperationInsertBlock.h"

#include <string>
#include <utility>

#include "corvane/operation/LineWalk.h"
#include "corvane/operation/TableRows.h"

namespace CVN::Operation {

using Ondo::Node;

namespace {

constexpr std::u16string_view thematicBreak = u"- - -";
constexpr std::u16string_view emptyTable = u"|   |   |\n|---|---|\n|   |   |";
constexpr std::int64_t firstCell = 2;

bool isLineEnd(const Ondo::Tree& tree, std::int64_t offset) {
    const char16_t next = unitAt(tree, offset);
    return offset == tree.length() || next == u'\n' || next == u'\r';
}

/// The empty last line belongs to no block.
bool isOnLastEmptyLine(const Ondo::Tree& tree, std::int64_t offset) {
    return offset == tree.length() && isLineStart(tree, offset);
}

bool isTable(const Node* node) {
    return isOfType(node, Ondo::ONDO_TABLE_NODE);
}

/// From a leaf to the table or front matter around it; to none outside of them.
void toClosedBlock(Node::Iterator& at) {
    while (at.node && !isTable(at.node) && at->type != Ondo::ONDO_YAML_NODE)
        at.parent();
}

/// The block whose line an offset stands on: the table, in one.
const Node* blockAt(const Ondo::Tree& tree, std::int64_t offset) {
    const Node* const leaf = leafAt(tree, offset).node;
    const Node* const table = selfOrAncestor(leaf, Ondo::ONDO_TABLE_NODE);
    return table || !leaf ? table : leaf->parentBlock();
}

/// Whether what stands next to a block, in or out of its containers, is a table.
template <Node* Node::*sibling>
bool isNextToTable(const Node* block) {
    while (block && !(block->*sibling && (block->*sibling)->isBlock()))
        block = block->parent;
    return block && isTable(block->*sibling);
}

/// Whether a range covers a table, with or without the ending of its last row.
bool coversTable(const Ondo::Tree& tree, const Node::Iterator& table, std::int64_t offset, std::int64_t end) {
    if (offset == end || table.offset < offset || end < table.offset) return false;
    return end >= table.end() || (isLineEnd(tree, end) && leafAt(tree, end).end() == table.end());
}

/// Whether a block may not take the place of a range because of what one of its edges stands in. An end right
/// before a table leaves that whole.
bool isRefusedAt(const Ondo::Tree& tree, std::int64_t edge, std::int64_t offset, std::int64_t end) {
    if (isOnLastEmptyLine(tree, edge)) return false;
    Node::Iterator at = leafAt(tree, edge);
    toClosedBlock(at);
    if (!isTable(at.node)) return at.node != nullptr;
    return !(offset < end && edge == end && at.offset == end) && !coversTable(tree, at, offset, end);
}

bool isBlankUnit(char16_t unit) {
    return unit == u' ' || unit == u'\t';
}

/// Whether nothing but blanks stands before the offset on its line, or at the start of a line on the one
/// above.
bool isBehindBlanks(const Ondo::Tree& tree, std::int64_t offset) {
    std::int64_t at = offset;
    if (isLineStart(tree, at) && unitAt(tree, --at) == u'\n' && unitAt(tree, at - 1) == u'\r') --at;
    while (isBlankUnit(unitAt(tree, at - 1)))
        --at;
    return at >= 0 && isLineStart(tree, at);
}

/// Whether what follows on the next line would become a row of a table that ends at the offset.
bool isBeforeRow(const Ondo::Tree& tree, std::int64_t offset) {
    std::int64_t at = offset;
    if (unitAt(tree, at) == u'\r') ++at;
    if (unitAt(tree, at) == u'\n') ++at;
    return beginsAsRow(tree, at);
}

} // namespace

std::vector<Result> InsertBlock::run(const Ondo::Tree& tree, std::int64_t offset, std::int64_t length,
                                     std::int64_t, std::int64_t) const {
    const std::int64_t end = offset + length;
    if (isRefusedAt(tree, offset, offset, end) || isRefusedAt(tree, end, offset, end)) return {};
    std::u16string text = before(tree, offset);
    const std::int64_t start = offset + static_cast<std::int64_t>(text.size());
    text += type_ == InsertBlockType::Table ? emptyTable : thematicBreak;
    text += behind(tree, end);
    const auto textEnd = offset + static_cast<std::int64_t>(text.size());
    const std::int64_t caret = type_ == InsertBlockType::Table ? start + firstCell : textEnd;
    return {Result(offset, length, std::move(text), caret, 0)};
}

std::u16string InsertBlock::before(const Ondo::Tree& tree, std::int64_t offset) const {
    const bool startsLine = isLineStart(tree, offset);
    std::u16string text = startsLine ? u"" : u"\n";
    const Node* const block = blockAt(tree, offset);
    // A table that the offset stands in is one that goes.
    const bool isBehindTable = isTable(block) && isOnLastEmptyLine(tree, offset);
    const bool isBelowTable = isBehindTable || isNextToTable<&Node::previousSibling>(block);
    if (type_ == InsertBlockType::Table && isBelowTable && !isBehindBlanks(tree, offset))
        text += startsLine ? emptyLineAt(tree, offset) : u"\n";
    return text;
}

std::u16string InsertBlock::behind(const Ondo::Tree& tree, std::int64_t end) const {
    std::u16string text = isLineEnd(tree, end) ? u"" : u"\n";
    if (type_ != InsertBlockType::Table || end == tree.length()) return text;
    const Node* const block = blockAt(tree, end);
    const bool startsTable = isTable(block) && !isLineEnd(tree, end);
    const bool isAboveTable = startsTable || isNextToTable<&Node::nextSibling>(block);
    if (isAboveTable || isBeforeRow(tree, end)) text += u"\n";
    return text;
}

} // namespace CVN::Operation
