#include "corvane/inline/FoldMarker.h"

#include <algorithm>
#include <iterator>

#include "corvane/block/AtxHeading.h"
#include "corvane/block/SetextHeading.h"

namespace Ondo::Inline {

namespace {

constexpr std::uint16_t unfoldableTypes[] = {ONDO_BLANK_LINE_NODE, ONDO_FENCED_CODE_NODE,
                                             ONDO_INDENTED_CODE_NODE, ONDO_MATH_BLOCK_NODE};

bool isListItem(const Node* node) {
    return node && node->type == ONDO_LIST_ITEM_NODE;
}

bool isAtx(const Node* node) {
    return node->type == ONDO_ATX_HEADING_NODE;
}

bool isDocument(const Node* node) {
    return node && node->category == Node::Category::Document;
}

const Node* nextThatIsNotBlank(const Node* node) {
    do
        node = node->nextSibling;
    while (node && node->type == ONDO_BLANK_LINE_NODE);
    return node;
}

/// The heading whose fold hides a first-level block. The head of a run of hidden blocks stands before it.
Node* hidingHeading(const Node* block) {
    if (!block->folded) return nullptr;
    std::int64_t rank = FoldMarkerNode::headingLevel(block);
    bool isHidden = true;
    for (Node* node = block->previousSibling; node && isHidden; node = node->previousSibling) {
        isHidden = node->folded;
        const std::int64_t level = FoldMarkerNode::headingLevel(node);
        if (level == 0 || (rank != 0 && level >= rank)) continue;
        if (FoldMarkerNode::isContentHeadFolded(node)) return node;
        rank = level;
    }
    return nullptr;
}

/// The head among the siblings of a block whose fold hides it.
Node* hidingSibling(const Node* block) {
    if (isDocument(block->parent)) return hidingHeading(block);
    if (!isListItem(block->parent)) return nullptr;
    Node* const first = block->parent->firstChild;
    return first != block && FoldMarkerNode::isContentHeadFolded(first) ? first : nullptr;
}

Node* hidingHead(const Node* block) {
    for (; block; block = block->parent)
        if (Node* const head = hidingSibling(block)) return head;
    return nullptr;
}

} // namespace

void FoldMarkerNode::toHtml(std::u16string&, std::u16string_view, std::int64_t) const {}

std::int64_t FoldMarkerNode::headingLevel(const Node* node) {
    if (isAtx(node)) return static_cast<const Block::AtxHeadingNode*>(node)->level;
    if (node->type == ONDO_SETEXT_HEADING_NODE)
        return static_cast<const Block::SetextHeadingNode*>(node)->level;
    return 0;
}

bool FoldMarkerNode::isContentHeadOfFoldable(const Node* node) {
    if (!isAtx(node) && !(isListItem(node->parent) && node->parent->firstChild == node)) return false;
    if (node->firstChild && node->firstChild->isBlock()) return false;
    if (std::find(std::begin(unfoldableTypes), std::end(unfoldableTypes), node->type) !=
        std::end(unfoldableTypes))
        return false;
    if (isAtx(node) && !isDocument(node->parent)) return false;
    const Node* const follower = nextThatIsNotBlank(node);
    if (!follower) return false;
    const std::int64_t level = headingLevel(follower);
    return !isAtx(node) || level == 0 || level > headingLevel(node);
}

bool FoldMarkerNode::isContentHeadFolded(const Node* node) {
    const Node* const last = node->lastChild;
    return last && last->previousSibling && last->previousSibling->type == ONDO_FOLD_MARKER_NODE &&
           isContentHeadOfFoldable(node);
}

bool FoldMarkerNode::isFoldableHeadingOrListItem(const Node* node) {
    if (isListItem(node)) return node->firstChild && isContentHeadOfFoldable(node->firstChild);
    return isAtx(node) && isContentHeadOfFoldable(node);
}

Node* FoldMarkerNode::foldableTailFromContentHead(const Node* head) {
    if (isListItem(head->parent)) return head->parent->lastChild;
    Node* tail = head->nextSibling;
    while (tail && tail->nextSibling) {
        const std::int64_t level = headingLevel(tail->nextSibling);
        if (level != 0 && level <= headingLevel(head)) break;
        tail = tail->nextSibling;
    }
    return tail;
}

Node* FoldMarkerNode::foldedContentHead(Node* node) {
    Node* const block = node->isBlock() ? node : node->parentBlock();
    if (!block) return nullptr;
    return isContentHeadFolded(block) ? block : hidingHead(block);
}

Node* FoldMarkerNode::previousFoldedContentHead(const Node* head) {
    return hidingHead(head);
}

Node* FoldMarkerNode::topmostFoldedContentHead(Node* node) {
    Node* topmost = nullptr;
    for (Node* head = foldedContentHead(node); head; head = previousFoldedContentHead(head))
        topmost = head;
    return topmost;
}

Node* FoldMarkerNode::foldNode(const Node* marker) {
    Node* const block = marker->parentBlock();
    if (!block || isAtx(block)) return block;
    return isListItem(block->parent) ? block->parent : nullptr;
}

} // namespace Ondo::Inline
