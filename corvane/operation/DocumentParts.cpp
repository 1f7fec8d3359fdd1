#include "corvane/operation/DocumentParts.h"

#include <algorithm>
#include <iterator>

#include "corvane/operation/LineWalk.h"
#include "corvane/operation/TrialParse.h"

namespace CVN::Operation {

using Ondo::Node;
using Ondo::Tree;

namespace {

bool isBlankLine(const Node* node) {
    return isOfType(node, Ondo::ONDO_BLANK_LINE_NODE);
}

bool isFootnote(const Node* node) {
    return isOfType(node, Ondo::ONDO_FOOTNOTE_DEFINITION_NODE);
}

bool isBlank(const Tree& tree, const Node::Iterator& at) {
    return at->type == Ondo::ONDO_SPACE_NODE || (at->type == Ondo::ONDO_TEXT_NODE && isOnlySpaces(tree, at));
}

Node::Iterator siblingBefore(Node::Iterator at) {
    at.previousSibling();
    return at;
}

Node::Iterator siblingBehind(Node::Iterator at) {
    at.nextSibling();
    return at;
}

/// The block that the title is the first line of; none in a note without text.
Node::Iterator titleBlock(const Tree& tree) {
    Node::Iterator at = tree.root->begin();
    at.firstChild();
    if (isOfType(at.node, Ondo::ONDO_YAML_NODE)) at.nextSibling();
    while (isBlankLine(at.node))
        at.nextSibling();
    return at;
}

/// The end of a line of tags, from the first node on it; 0 for another line.
std::int64_t afterTagline(const Tree& tree, Node::Iterator at) {
    while (at.node && at->isBlock())
        ++at;
    bool hasTag = false;
    for (; at.node && at->type != Ondo::ONDO_LINE_ENDING_NODE; at.nextInSequenceSkippingSubtree()) {
        const bool isTag = at->type == Ondo::ONDO_HASHTAG_NODE;
        if (!isTag && !isBlank(tree, at)) return 0;
        hasTag |= isTag;
    }
    if (!hasTag) return 0;
    return at.node ? at.end() : tree.length();
}

/// The definition before another, with at most one blank line between them.
Node::Iterator footnoteBefore(const Node::Iterator& footnote) {
    const Node::Iterator before = siblingBefore(footnote);
    return isBlankLine(before.node) ? siblingBefore(before) : before;
}

/// Whether lines below the block would belong to it. This parses the block again.
bool takesIn(const Tree& tree, const Node::Iterator& block, std::u16string_view lines) {
    const Tree trial = trialParse(tree, std::u16string(textOf(tree, block)) + std::u16string(lines));
    return !isOfType(trial.root->lastChild, Ondo::ONDO_PARAGRAPH_NODE);
}

/// Whether text directly below the block would become part of it.
bool takesLinesBelow(const Tree& tree, const Node::Iterator& block) {
    if (block->type == Ondo::ONDO_HTML_BLOCK_NODE)
        return takesIn(tree, block, isLineStart(tree, block.end()) ? u"x" : u"\nx");
    constexpr std::uint16_t types[] = {Ondo::ONDO_LIST_NODE, Ondo::ONDO_BLOCK_QUOTE_NODE,
                                       Ondo::ONDO_TABLE_NODE};
    return std::find(std::begin(types), std::end(types), block->type) != std::end(types);
}

bool isBrokenByLines(const Node* block) {
    return block->type != Ondo::ONDO_PARAGRAPH_NODE && block->type != Ondo::ONDO_ATX_HEADING_NODE &&
           !isBlankLine(block);
}

/// Whether a block is one line, with that which underlines it.
bool isOfOneLine(const Node::Iterator& block) {
    if (!block.node) return false;
    Node::Iterator line = block;
    line.endOfLine();
    if (block->type == Ondo::ONDO_SETEXT_HEADING_NODE) {
        ++line;
        line.endOfLine();
    }
    return line.end() == block.end();
}

/// Enough of the text at a place to tell what kind of block it makes: two lines, unless they are long.
std::u16string_view startOfBlock(const Tree& tree, std::int64_t offset) {
    constexpr std::int64_t longest = 1000;
    const std::u16string_view text = tree.markdownIn({offset, std::min(longest, tree.length() - offset)});
    const std::size_t first = text.find(u'\n');
    return first == std::u16string_view::npos ? text : text.substr(0, text.find(u'\n', first + 1));
}

/// Whether the block at a place stays what it is below lines that go in there. Lines of a paragraph and items
/// of a list may join it.
bool leavesBlockBelow(const Tree& tree, std::u16string_view lines, const Node* block, std::int64_t offset) {
    const std::u16string text = std::u16string(lines) + std::u16string(startOfBlock(tree, offset));
    const Tree trial = trialParse(tree, text);
    const auto start = static_cast<std::int64_t>(lines.size());
    Node::Iterator at = trial.root->begin();
    for (at.firstChild(); at.end() <= start;)
        at.nextSibling();
    if (at->type != block->type) return false;
    return at.offset == start || at->type == Ondo::ONDO_PARAGRAPH_NODE || at->type == Ondo::ONDO_LIST_NODE;
}

} // namespace

Node* firstContentBlock(const Tree& tree) {
    Node* block = tree.root->firstChild;
    if (!isOfType(block, Ondo::ONDO_YAML_NODE)) return block;
    block = block->nextSibling;
    return isBlankLine(block) ? block->nextSibling : block;
}

bool isOnlySpaces(const Tree& tree, const Node::Iterator& at) {
    return textOf(tree, at).find_first_not_of(u' ') == std::u16string_view::npos;
}

bool isBlockOnlyTags(const Tree& tree, Node* block) {
    if (!block) return false;
    Node::Iterator at(block);
    bool hasTag = false;
    for (at.firstChild(); at.node; at.nextSibling()) {
        const bool isTag = at->type == Ondo::ONDO_HASHTAG_NODE;
        const bool passes = isTag || at->type == Ondo::ONDO_LINE_ENDING_NODE || isBlank(tree, at);
        if (!passes) return false;
        hasTag |= isTag;
    }
    return hasTag;
}

std::int64_t afterTitleAndTagline(const Tree& tree) {
    const Node::Iterator block = titleBlock(tree);
    if (!block.node) return 0;
    Node::Iterator lineEnd = block;
    lineEnd.endOfLine();
    if (lineEnd->type != Ondo::ONDO_LINE_ENDING_NODE) return tree.length();

    Node::Iterator below = lineEnd;
    if (const std::int64_t end = afterTagline(tree, ++below)) return end;
    below = siblingBehind(block);
    if (isBlankLine(below.node))
        if (const std::int64_t end = afterTagline(tree, siblingBehind(below))) return end;
    return lineEnd.end();
}

std::int64_t trailingFootnotesStart(const Tree& tree) {
    Node::Iterator first = tree.root->begin();
    first.lastChild();
    while (isBlankLine(first.node))
        first.previousSibling();
    if (!isFootnote(first.node)) return tree.length();

    for (Node::Iterator before = first; isFootnote(before.node); before = footnoteBefore(before))
        first = before;
    const Node::Iterator blank = siblingBefore(first);
    return isBlankLine(blank.node) ? blank.offset : first.offset;
}

InsertionPlace placeBehind(const Tree& tree, const Node::Iterator& block, std::int64_t offset) {
    bool needsEmptyLine = false;
    if (block.node && isBrokenByLines(block.node) && offset <= block.end()) {
        offset = block.end();
        needsEmptyLine = takesLinesBelow(tree, block);
    }
    if (!isLineStart(tree, offset)) return {offset, needsEmptyLine ? u"\n\n" : u"\n"};
    return {offset, needsEmptyLine ? emptyLineAt(tree, offset) : u""};
}

InsertionPlace bodyPlace(const Tree& tree) {
    const Node::Iterator title = isOnlyFootnotes(tree) ? Node::Iterator() : titleBlock(tree);
    if (!title.node) {
        const Node* const first = tree.root->firstChild;
        return placeBehind(tree, title, isOfType(first, Ondo::ONDO_YAML_NODE) ? first->charCount : 0);
    }
    const InsertionPlace place = placeBehind(tree, title, afterTitleAndTagline(tree));
    const Node::Iterator below = siblingBehind(title);
    const bool isRightBehind = below.node && place.offset == below.offset;
    const std::int64_t end = isRightBehind ? afterTagline(tree, below) : 0;
    return end ? placeBehind(tree, {}, end) : place;
}

std::u16string withLineBelow(const Tree& tree, std::u16string lines, std::int64_t offset) {
    if (offset >= tree.length()) return lines;
    const Node* const block =
        tree.iteratorAtOffset(offset, Ondo::LevelSetting::FirstLevel)->firstLevelAncestor();
    if (isBlankLine(block)) return lines;
    if (isDefinition(block) || !leavesBlockBelow(tree, lines, block, offset)) lines += u'\n';
    return lines;
}

Node::Iterator lastContentBlock(const Tree& tree) {
    const std::int64_t end = trailingFootnotesStart(tree);
    Node::Iterator at = tree.root->begin();
    at.lastChild();
    while (at.node && (at.offset >= end || isBlankLine(at.node)))
        at.previousSibling();
    return at;
}

bool isLeftOpen(const Tree& tree, const Node::Iterator& block) {
    if (!isOfType(block.node, Ondo::ONDO_FENCED_CODE_NODE) &&
        !isOfType(block.node, Ondo::ONDO_HTML_BLOCK_NODE) &&
        !isOfType(block.node, Ondo::ONDO_MATH_BLOCK_NODE))
        return false;
    return takesIn(tree, block, u"\n\nx");
}

bool isOnlyFootnotes(const Tree& tree) {
    if (trailingFootnotesStart(tree) == tree.length()) return false;
    const Node* const last = lastContentBlock(tree).node;
    return !last || last->type == Ondo::ONDO_YAML_NODE;
}

bool isTagline(const Tree& tree, const Node::Iterator& block) {
    const Node::Iterator title = titleBlock(tree);
    return block.node != title.node && isOfOneLine(title) && block.offset < bodyPlace(tree).offset &&
           isBlockOnlyTags(tree, block.node);
}

bool isDefinition(const Node* node) {
    return isFootnote(node) || isOfType(node, Ondo::ONDO_LINK_REFERENCE_DEFINITION_NODE);
}

} // namespace CVN::Operation
