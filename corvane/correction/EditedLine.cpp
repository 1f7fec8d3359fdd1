#include "corvane/correction/EditedLine.h"

#include <algorithm>
#include <utility>

#include "corvane/block/Fence.h"
#include "corvane/operation/BlockStructure.h"
#include "corvane/operation/LineWalk.h"

namespace CVN::Correction {

using namespace Operation;
using Ondo::Node;

namespace {

constexpr std::int64_t tabWidth = 4;
constexpr std::int64_t longestContent = 4096;

bool isBlank(char16_t unit) {
    return unit == u' ' || unit == u'\t';
}

std::int64_t columnBehind(std::int64_t column, char16_t unit) {
    return unit == u'\t' ? (column / tabWidth + 1) * tabWidth : column + 1;
}

std::int64_t columnBehind(std::int64_t column, std::u16string_view text) {
    for (const char16_t unit : text)
        column = columnBehind(column, unit);
    return column;
}

void trimEnd(std::u16string& text) {
    while (!text.empty() && isBlank(text.back()))
        text.pop_back();
}

/// The rest of a line from an offset on, as much of it as is looked at.
std::u16string lineFrom(const Ondo::Tree& tree, std::int64_t offset, std::int64_t most) {
    const std::int64_t count = std::clamp<std::int64_t>(tree.length() - offset, 0, most);
    std::u16string rest(tree.markdownIn({offset, count}));
    rest.resize(std::min(rest.find_first_of(u"\r\n"), rest.size()));
    return rest;
}

bool isPrefixLeaf(const Node* leaf) {
    return leaf && !leaf->firstChild && (isContainerMarker(leaf) || leaf->type == Ondo::ONDO_SPACE_NODE);
}

/// A selection cut to the text that the edit leaves.
Ondo::Range clamped(const Ondo::Range& selection, const PendingEdit& edit) {
    const std::int64_t textLength = edit.tree.length() + edit.growth();
    const std::int64_t start = std::min(selection.offset, textLength);
    return {start, std::min(selection.length, textLength - start)};
}

/// Where a position goes with a change. It stays before text that is put in at it.
std::int64_t movedOver(std::int64_t position, const Change& change) {
    if (position <= change.offset) return position;
    const auto growth = static_cast<std::int64_t>(change.text.size()) - change.length;
    return std::max(change.offset, position + growth);
}

/// The column of an item's content, from its marker. More than four columns of blanks behind the marker
/// belong to the content but for one, by CommonMark 0.31.2.
std::int64_t columnOfContent(const Ondo::Tree& tree, Node::Iterator marker, std::int64_t column) {
    constexpr std::int64_t widestPadding = 4;
    const auto length = static_cast<std::size_t>(markerIndentWidth(marker.node->maker));
    const std::u16string_view text = textOf(tree, marker).substr(0, length);
    const std::int64_t blank = isBlank(text.back()) ? 1 : 0;
    const std::int64_t behind = columnBehind(column, text);
    const bool hasBox = marker->charCount > markerIndentWidth(marker.node->maker);
    ++marker;
    if (hasBox || !isOfType(marker.node, Ondo::ONDO_SPACE_NODE)) return behind + 1 - blank;
    const std::int64_t padded = columnBehind(behind, textOf(tree, marker));
    return padded - behind + blank <= widestPadding ? padded : behind + 1 - blank;
}

/// A tab for each item around a marker, up to the next quote.
std::u16string tabsByItem(const Node* item) {
    std::u16string tabs;
    for (; item && !isBlockQuote(item); item = item->parent)
        if (isListItem(item)) tabs += u'\t';
    return tabs;
}

/// As many tabs as reach a column.
std::u16string tabsTo(std::int64_t column, std::int64_t target) {
    std::u16string tabs;
    for (; column < target; column = columnBehind(column, u'\t'))
        tabs += u'\t';
    return tabs;
}

bool hasLineBreak(std::u16string_view text) {
    return text.find_first_of(u"\r\n") != std::u16string_view::npos;
}

bool isClosingFence(const Node* node) {
    return isOfType(node, Ondo::ONDO_FENCED_CODE_CLOSE_MARKER_NODE) ||
           isOfType(node, Ondo::ONDO_MATH_BLOCK_CLOSE_MARKER_NODE);
}

/// Code, math or HTML that a further line at the end of the text would belong to.
Node* openBlockAtEnd(const Ondo::Tree& tree) {
    Node* const last = tree.root->lastChild;
    const bool isOpen =
        isOfType(last, Ondo::ONDO_HTML_BLOCK_NODE) ||
        Ondo::Block::isOpenFence(last, Ondo::ONDO_FENCED_CODE_NODE,
                                 Ondo::ONDO_FENCED_CODE_CLOSE_MARKER_NODE) ||
        Ondo::Block::isOpenFence(last, Ondo::ONDO_MATH_BLOCK_NODE, Ondo::ONDO_MATH_BLOCK_CLOSE_MARKER_NODE);
    return isOpen ? last : nullptr;
}

/// The HTML block that ends with the line before: text on a blank line would belong to it.
Node* htmlBefore(Node::Iterator line) {
    if (line.offset == 0 || !isOfType(line->parentBlock(), Ondo::ONDO_BLANK_LINE_NODE)) return nullptr;
    do
        line.previousInSequence();
    while (line.node && line->firstChild);
    Node* const block = line.node ? line->parentBlock() : nullptr;
    return isOfType(block, Ondo::ONDO_HTML_BLOCK_NODE) ? block : nullptr;
}

} // namespace

bool canBecomeFence(const Node* block) {
    return !block || block->type == Ondo::ONDO_DOCUMENT_NODE || block->type == Ondo::ONDO_BLANK_LINE_NODE ||
           block->type == Ondo::ONDO_PARAGRAPH_NODE;
}

bool isDeletionOfLineEnding(const PendingEdit& edit) {
    constexpr std::int64_t longest = 2;
    if (!edit.replacement.empty() || edit.length == 0 || edit.length > longest) return false;
    const std::u16string_view text = edit.tree.markdownIn({edit.offset, edit.length});
    return text == u"\n" || text == u"\r\n" || text == u"\r";
}

std::vector<Result> keepingEdit(const PendingEdit& edit, const std::optional<Change>& behind,
                                const std::optional<Change>& before) {
    std::vector<Result> results;
    Ondo::Range selection = clamped({edit.selectionOffset, edit.selectionLength}, edit);
    if (behind) {
        results.emplace_back(behind->offset, behind->length, behind->text, edit.offset, edit.length);
        const Change afterEdit{behind->offset + edit.growth(), behind->length, behind->text};
        const std::int64_t end = movedOver(selection.end(), afterEdit);
        selection.offset = movedOver(selection.offset, afterEdit);
        selection.length = end - selection.offset;
    }
    results.emplace_back(edit.offset, edit.length, std::u16string(edit.replacement), selection.offset,
                         selection.length);
    if (before) Result::addToList(results, before->offset, before->length, before->text, 0, 0);
    return results;
}

PendingEdit padded(const PendingEdit& edit, std::u16string_view text, std::int64_t before,
                   std::int64_t behind) {
    const std::int64_t textEnd = edit.end() + edit.growth();
    const auto moved = [&](std::int64_t position) {
        return position + (position >= edit.offset ? before : 0) + (position > textEnd ? behind : 0);
    };
    const std::int64_t start = moved(edit.selectionOffset);
    const std::int64_t end = moved(edit.selectionOffset + edit.selectionLength);
    return {edit.tree, edit.offset, edit.length, text, start, end - start};
}

EditedLine::EditedLine(const PendingEdit& edit) : edit_(edit) {
    const Ondo::Tree& tree = edit.tree;
    start_ = contentStart_ = edit.offset;
    if (edit.offset == tree.length() && isLineStart(tree, edit.offset)) {
        block_ = openBlockAtEnd(tree);
        return;
    }
    Node::Iterator leaf = lineAt(tree, edit.offset);
    toFirstLeaf(leaf);
    start_ = contentStart_ = leaf.offset;
    Node* const html = htmlBefore(leaf);
    block_ = html ? html : leaf->parentBlock();
    for (; leaf.node && leaf.end() <= edit.offset; ++leaf) {
        if (leaf->firstChild) continue;
        if (!isPrefixLeaf(leaf.node)) return;
        contentStart_ = leaf.end();
    }
    if (leaf.node && leaf->type == Ondo::ONDO_SPACE_NODE) contentStart_ = edit.offset;
}

bool EditedLine::isLazy() const {
    if (!isOfType(block_, Ondo::ONDO_PARAGRAPH_NODE)) return false;
    const Node* const container = block_->parent;
    Node::Iterator leaf = leafAt(edit_.tree, start_);
    for (; leaf.node && leaf.offset < contentStart_; ++leaf)
        if (isContainerMarker(leaf.node) && leaf->maker == container) return false;
    if (isBlockQuote(container)) return true;
    return isListItem(container) && contentColumn() < itemColumn();
}

Node* EditedLine::blockBeforeFence() const {
    Node* block = block_;
    if (isLazy())
        while (!block->nextSibling && block->parent)
            block = block->parent;
    return block;
}

Node::Iterator EditedLine::contentLeaf() const {
    Node::Iterator leaf = leafAt(edit_.tree, start_);
    while (isPrefixLeaf(leaf.node) || (leaf.node && leaf->firstChild))
        ++leaf;
    return leaf;
}

std::int64_t EditedLine::endBehindEdit() const {
    std::int64_t end = edit_.end();
    while (end < edit_.tree.length() && !hasLineBreak(edit_.tree.markdownIn({end, 1})))
        ++end;
    return end;
}

std::u16string EditedLine::contentBefore() const {
    std::u16string content = lineFrom(edit_.tree, contentStart_, longestContent);
    trimEnd(content);
    return content;
}

std::u16string EditedLine::contentBehind() const {
    const std::int64_t kept = std::min(edit_.offset - contentStart_, longestContent);
    std::u16string content(edit_.tree.markdownIn({contentStart_, kept}));
    content += edit_.replacement;
    const auto lineBreak = content.find_first_of(u"\r\n");
    if (lineBreak != std::u16string::npos)
        content.resize(lineBreak);
    else
        content += lineFrom(edit_.tree, edit_.end(), longestContent);
    trimEnd(content);
    return content;
}

std::u16string EditedLine::fenceBehind() const {
    std::u16string content = contentBehind();
    const std::size_t blanks = std::min(content.find_first_not_of(u" \t"), content.size());
    if (!isFenceIndentation(std::u16string_view(content).substr(0, blanks))) return {};
    return content.substr(blanks);
}

bool EditedLine::isFenceIndentation(std::u16string_view blanks) const {
    constexpr std::int64_t most = 3;
    const std::int64_t column = columnBehind(contentColumn(), blanks);
    if (!block_ || column <= most) return column <= most;
    return column - (isListItem(block_->parent) ? itemColumn() : quoteColumn()) <= most;
}

std::int64_t EditedLine::contentColumn() const {
    return columnBehind(0, edit_.tree.markdownIn({start_, contentStart_ - start_}));
}

std::int64_t EditedLine::quoteColumn() const {
    std::int64_t column = 0;
    std::int64_t quote = 0;
    Node::Iterator leaf = leafAt(edit_.tree, start_);
    for (; leaf.node && leaf.offset < contentStart_; ++leaf) {
        if (leaf->firstChild) continue;
        column = columnBehind(column, textOf(edit_.tree, leaf));
        if (leaf->type == Ondo::ONDO_BLOCK_QUOTE_MARKER_NODE) quote = column;
    }
    return quote;
}

std::int64_t EditedLine::itemColumn() const {
    Node::Iterator at = leafAt(edit_.tree, start_);
    while (!isListItem(at.node) && at->parent)
        at.parent();
    if (!isListItem(at.node)) return 0;
    const Node* const item = at.node;
    std::int64_t column = 0;
    for (toFirstLeaf(at); at.node && !(isContainerMarker(at.node) && at->maker == item); ++at)
        if (!at->firstChild) column = columnBehind(column, textOf(edit_.tree, at));
    if (!at.node) return 0;
    // Behind the box of a task, on its own line, the content begins further right.
    const bool isOwnBox = at.offset >= start_ && markerIndentWidth(at.node->maker) < at->charCount;
    return isOwnBox ? columnBehind(column, textOf(edit_.tree, at)) : columnOfContent(edit_.tree, at, column);
}

bool EditedLine::isInsideLine() const {
    if (edit_.length > longestContent || hasLineBreak(edit_.replacement)) return false;
    return !hasLineBreak(edit_.tree.markdownIn({edit_.offset, edit_.length}));
}

std::optional<Change> EditedLine::removalOfClosingFence() const {
    Node::Iterator leaf = leafAt(edit_.tree, edit_.end());
    while (leaf.node && leaf->type != Ondo::ONDO_LINE_ENDING_NODE)
        ++leaf;
    const std::int64_t lineEnd = leaf.offset;
    while (leaf.node &&
           (leaf->firstChild || isPrefixLeaf(leaf.node) || leaf->type == Ondo::ONDO_LINE_ENDING_NODE))
        ++leaf;
    if (!isClosingFence(leaf.node) || leaf->maker != block_) return {};
    return Change{lineEnd, leaf.end() - lineEnd, {}};
}

std::u16string EditedLine::furtherPrefix(IndentStyle style) const {
    if (contentStart_ == start_) return {};
    std::u16string prefix;
    std::size_t blanks = 0; // where the blanks behind the last quote marker begin
    const Node* item = nullptr;
    std::int64_t box = 0; // of a task right before: it counts only for an item that begins behind it
    const auto finishBlanks = [&] {
        if (item && style == IndentStyle::Tabs) {
            const std::int64_t target = columnBehind(0, prefix);
            prefix.resize(blanks);
            prefix += isSimplified(edit_.tree) ? tabsByItem(item) : tabsTo(columnBehind(0, prefix), target);
        }
        item = nullptr;
        box = 0;
    };
    Node::Iterator leaf = leafAt(edit_.tree, start_);
    for (; leaf.node && leaf.offset < contentStart_; ++leaf) {
        if (leaf->firstChild) continue;
        if (leaf->type == Ondo::ONDO_LIST_ITEM_MARKER_NODE) {
            const std::int64_t bare = markerIndentWidth(leaf.node->maker);
            prefix.append(static_cast<std::size_t>(box + bare), u' ');
            box = leaf->charCount - bare;
            item = leaf->maker;
        } else if (leaf->type == Ondo::ONDO_BLOCK_QUOTE_MARKER_NODE) {
            finishBlanks();
            prefix += textOf(edit_.tree, leaf);
            blanks = prefix.size();
        } else {
            prefix += edit_.tree.markdownIn({leaf.offset, std::min(leaf.end(), contentStart_) - leaf.offset});
        }
    }
    finishBlanks();
    return prefix;
}

} // namespace CVN::Correction
