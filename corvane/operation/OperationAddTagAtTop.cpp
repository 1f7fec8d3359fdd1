#include "corvane/operation/OperationAddTagAtTop.h"

#include "corvane/operation/DocumentParts.h"

namespace CVN::Operation {

using Ondo::Node;
using Ondo::Tree;

namespace {

constexpr std::int64_t none = -1;

/// Behind the first line, or behind the whole block when a tag would break it up.
std::int64_t endOfTitle(const Tree& tree, Node::Iterator block) {
    const std::int64_t blockEnd = placeBehind(tree, block, block.offset).offset;
    if (blockEnd != block.offset) return blockEnd;
    block.endOfLine();
    return block.end();
}

/// The end of the tag that ends a line; none when the line ends in something else.
std::int64_t endOfLastTag(const Tree& tree, std::int64_t lineStart) {
    Node::Iterator at = leafAt(tree, lineStart);
    at.endOfLine();
    if (isLineEnding(at.node)) toPreviousLeaf(at);
    if (isOfType(at.node, Ondo::ONDO_SPACE_NODE)) toPreviousLeaf(at);
    return at.offset >= lineStart && isInTag(at.node) ? at.end() : none;
}

/// The same for the line behind the title, or behind one blank line there.
std::int64_t endOfTagline(const Tree& tree, std::int64_t lineStart) {
    for (int i = 0; i < 2 && lineStart < tree.length(); ++i) {
        if (const std::int64_t end = endOfLastTag(tree, lineStart); end != none) return end;
        const Node::Iterator line = tree.iteratorAtOffset(lineStart, Ondo::LevelSetting::FirstLevel);
        if (!isBlank(line.node)) return none;
        lineStart = line.end();
    }
    return none;
}

/// A line free for a title, where the caret goes, and the tag below it.
std::vector<Result> belowEmptyTitle(const Tree& tree, const std::u16string& tag) {
    const InsertionPlace place = placeBehind(tree, {}, tree.length());
    const std::u16string above(place.above);
    const auto title = place.offset + static_cast<std::int64_t>(above.size());
    return {Result(place.offset, 0, above + u'\n' + tag + u'\n', title, 0)};
}

} // namespace

std::vector<Result> AddTagAtTop::run(const Tree& tree, std::int64_t, std::int64_t,
                                     std::int64_t selectionOffset, std::int64_t selectionLength) const {
    const Node::Iterator block(firstContentBlock(tree));
    const std::u16string tag = encodedSegmentsToMarkdown(tag_);
    if (tag.empty()) return {};
    if (!block.node) return belowEmptyTitle(tree, tag);

    std::vector<Result> results;
    const auto insert = [&](std::int64_t at, const std::u16string& text) {
        if (!text.empty()) Result::addToList(results, at, 0, text, selectionOffset, selectionLength);
        return results;
    };
    if (isLeftOpen(tree, block)) return insert(block.offset, u'\n' + tag + u'\n');
    if (isOnlyFootnotes(tree)) return insert(block.offset, withLineBelow(tree, tag + u'\n', block.offset));

    const std::int64_t offset = endOfTitle(tree, block);
    const std::int64_t end = endOfTagline(tree, offset);
    if (end != none) return insert(end, encodedSegmentsToMarkdown(tree, end, u" ", tag_));
    const InsertionPlace place = placeBehind(tree, block, offset);
    const std::u16string line = encodedSegmentsToMarkdown(tree, place.offset, place.above, tag_);
    if (line.empty() || !isLineStart(tree, place.offset)) return insert(place.offset, line);
    return insert(place.offset, withLineBelow(tree, line + u'\n', place.offset));
}

} // namespace CVN::Operation
