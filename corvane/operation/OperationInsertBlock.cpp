#include "corvane/operation/OperationInsertBlock.h"

#include <string>
#include <utility>

#include "corvane/operation/LineWalk.h"

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

/// Whether a block may not go in there. An end that stands right before a table leaves that whole.
bool isRefusedAt(const Ondo::Tree& tree, std::int64_t offset, bool isEnd) {
    if (isOnLastEmptyLine(tree, offset)) return false;
    Node::Iterator at = leafAt(tree, offset);
    toClosedBlock(at);
    return at.node && !(isEnd && isTable(at.node) && at.offset == offset);
}

/// Whether what follows on the next line would become a row of a table that ends at the offset.
bool isBeforeRow(const Ondo::Tree& tree, std::int64_t offset) {
    std::int64_t at = offset;
    if (unitAt(tree, at) == u'\r') ++at;
    if (unitAt(tree, at) == u'\n') ++at;
    while (unitAt(tree, at) == u' ' || unitAt(tree, at) == u'\t')
        ++at;
    return unitAt(tree, at) == u'|';
}

} // namespace

std::vector<Result> InsertBlock::run(const Ondo::Tree& tree, std::int64_t offset, std::int64_t length,
                                     std::int64_t, std::int64_t) const {
    const std::int64_t end = offset + length;
    if (isRefusedAt(tree, offset, false) || isRefusedAt(tree, end, length > 0)) return {};
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
    const bool isBelowTable = block && (isTable(block->previousSibling) || isTable(block));
    if (type_ == InsertBlockType::Table && isBelowTable)
        text += startsLine ? emptyLineAt(tree, offset) : u"\n";
    return text;
}

std::u16string InsertBlock::behind(const Ondo::Tree& tree, std::int64_t end) const {
    std::u16string text = isLineEnd(tree, end) ? u"" : u"\n";
    if (type_ != InsertBlockType::Table || end == tree.length()) return text;
    const Node* const block = blockAt(tree, end);
    const bool isAboveTable = block && (isTable(block) || isTable(block->nextSibling));
    if (isAboveTable || isBeforeRow(tree, end)) text += u"\n";
    return text;
}

} // namespace CVN::Operation
