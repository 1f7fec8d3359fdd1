#include "corvane/operation/OperationAddTag.h"

#include "corvane/operation/DocumentParts.h"

namespace CVN::Operation {

using Ondo::Node;

namespace {

/// The block that the tag goes behind. Below one that is left open it would be code or HTML.
Node::Iterator blockAbove(const Ondo::Tree& tree) {
    Node::Iterator block = lastContentBlock(tree);
    if (!isLeftOpen(tree, block)) return block;
    do
        block.previousSibling();
    while (isBlank(block.node));
    return block;
}

/// The last leaf of a block that is more than a blank. Behind a marker the blanks count: they make it one.
Node::Iterator lastText(Node::Iterator block) {
    Node::Iterator at = block;
    at.lastNodeOfSubtree();
    Node::Iterator behind = at;
    while (at.offset > block.offset &&
           (isOfType(at.node, Ondo::ONDO_SPACE_NODE) || isLineEnding(at.node) || isBlank(at.node))) {
        behind = at;
        at.previousInSequence();
    }
    return isBlockMarker(at.node) && isOfType(behind.node, Ondo::ONDO_SPACE_NODE) ? behind : at;
}

/// A tag in a note without text: it goes above what there is, a block left open or footnotes.
std::u16string aboveAll(const Ondo::Tree& tree, const std::u16string& tag) {
    if (isOnlyFootnotes(tree)) return withLineBelow(tree, tag + u'\n', 0);
    return lastContentBlock(tree).node ? tag + u"\n\n" : tag;
}

} // namespace

std::vector<Result> AddTag::run(const Ondo::Tree& tree, std::int64_t, std::int64_t,
                                std::int64_t selectionOffset, std::int64_t selectionLength) const {
    const Node::Iterator block = blockAbove(tree);
    const Node::Iterator last = block.node ? lastText(block) : tree.root->begin();
    const std::int64_t offset = block.node ? last.end() : 0;
    std::u16string text;
    if (isInTag(last.node)) text = encodedSegmentsToMarkdown(tree, offset, u" ", tag_);
    if (text.empty()) {
        text = encodedSegmentsToMarkdown(tag_);
        if (text.empty()) return {};
        if (!block.node)
            text = aboveAll(tree, text);
        else
            text.insert(0, u"\n\n").append(isDefinition(block->nextSibling) ? u"\n" : u"");
    }

    std::vector<Result> results;
    Result::addToList(results, offset, 0, text, selectionOffset, selectionLength);
    return results;
}

} // namespace CVN::Operation
