#include "corvane/operation/DocumentParts.h"

#include "corvane/operation/LineWalk.h"

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

} // namespace CVN::Operation
