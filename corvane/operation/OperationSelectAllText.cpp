#include "corvane/operation/OperationSelectAllText.h"

#include "corvane/operation/LineWalk.h"

namespace CVN::Operation {

using Ondo::Node;

namespace {

/// From a leaf to the code or math around it; to none when its block is another one.
Node::Iterator fencedBlockAt(const Ondo::Tree& tree, std::int64_t offset) {
    Node::Iterator block = leafAt(tree, offset);
    do
        block.parent();
    while (block.node && !block->isBlock());
    const bool isFenced =
        isOfType(block.node, Ondo::ONDO_FENCED_CODE_NODE) || isOfType(block.node, Ondo::ONDO_MATH_BLOCK_NODE);
    return isFenced ? block : Node::Iterator();
}

bool isContent(const Node* node) {
    return isOfType(node, Ondo::ONDO_FENCED_CODE_CONTENT_ATTRIBUTE_NODE) ||
           isOfType(node, Ondo::ONDO_MATH_BLOCK_CONTENT_ATTRIBUTE_NODE);
}

} // namespace

Node::Iterator SelectAllText::contentAround(const Ondo::Tree& tree, std::int64_t offset,
                                            std::int64_t length) {
    Node::Iterator content = fencedBlockAt(tree, offset);
    if (!content.node || content.node != fencedBlockAt(tree, offset + length).node) return {};
    content.firstChild();
    while (content.node && !isContent(content.node))
        content.nextSibling();
    return content;
}

std::vector<Result> SelectAllText::run(const Ondo::Tree& tree, std::int64_t offset, std::int64_t length,
                                       std::int64_t selectionOffset, std::int64_t selectionLength) const {
    if (offset == tree.length()) return {Result(0, 0, {}, 0, tree.length())};
    const Node::Iterator content = contentAround(tree, offset, length);
    const bool isSelected =
        content.node && selectionOffset == content.offset && selectionLength == content->charCount;
    if (content.node && !isSelected) return {Result(offset, 0, {}, content.offset, content->charCount)};
    return {Result(offset, 0, {}, 0, tree.length())};
}

} // namespace CVN::Operation
