#include "corvane/inline/Folding.h"

#include <algorithm>

#include "corvane/block/AtxHeading.h"
#include "corvane/inline/FoldMarker.h"
#include "corvane/tree/InlineParser.h"
#include "corvane/tree/ReparseRanges.h"

namespace Ondo::Inline {

namespace {

/// The outermost fold that is open somewhere in the first level. Inner ones hide nothing more, and end no
/// later.
struct OpenFold {
    std::int64_t level = 0;          ///< of its heading; 0 when no fold is open
    std::int64_t offset = Go::NoPos; ///< of its heading; NoPos when nobody has asked yet
};

OpenFold openFoldBefore(const Node* block, std::int64_t offset) {
    const Node* const previous = block->previousSibling;
    if (!previous) return {};
    if (previous->folded) return {previous->foldLevel, Go::NoPos};
    if (!FoldMarkerNode::isContentHeadFolded(previous)) return {};
    return {FoldMarkerNode::headingLevel(previous), offset - previous->charCount};
}

/// The offset of the heading whose fold hides all up to `block`, which stands at `offset`.
std::int64_t offsetOfHead(const Node* block, std::int64_t offset) {
    const Node* head = block->previousSibling;
    for (; head->folded; head = head->previousSibling)
        offset -= head->charCount;
    return offset - head->charCount;
}

/// The fold that is open at `block`, which a heading of the same or a higher rank closes.
void enter(OpenFold& fold, const Node* block) {
    const std::int64_t level = FoldMarkerNode::headingLevel(block);
    if (level != 0 && level <= fold.level) fold = {};
}

void updateFoldability(Node* block) {
    if (block->type != ONDO_ATX_HEADING_NODE) return;
    static_cast<Block::AtxHeadingNode*>(block)->isFoldable = FoldMarkerNode::isContentHeadOfFoldable(block);
}

/// New blocks come without flags, so that only those that are hidden are visited.
void setFoldStatusForListItemContent(Node* first, const Node* behind) {
    for (Node* node = first; node && node != behind;) {
        const bool isHead =
            node->parent->type == ONDO_LIST_ITEM_NODE && FoldMarkerNode::isContentHeadFolded(node);
        if (isHead)
            for (Node* hidden = node->nextSibling; hidden; hidden = hidden->nextSibling)
                hidden->folded = true;
        const bool holdsBlocks = node->firstChild && node->firstChild->isBlock();
        node = holdsBlocks ? node->firstChild : node->nextInSequenceSkippingSubtree();
    }
}

} // namespace

std::int64_t Folding::match(InlineParserNode& parser, Node* node, GoLines cursor) {
    if (!cursor.isNextString(comment)) return Go::NoPos;
    const std::int64_t start = cursor.pos();
    const std::int64_t line = cursor.currentLine();
    const std::int64_t end = cursor.nextMatchString(comment);
    if (cursor.nextWhileLineEnding() != cursor.maxPos()) return Go::NoPos;
    if (!FoldMarkerNode::isContentHeadOfFoldable(node)) return Go::NoPos;
    const std::int64_t lines = cursor.currentLine() - line;
    return parser.merge(node, std::make_unique<FoldMarkerNode>(start, end, line, lines)) ? end : Go::NoPos;
}

void Folding::afterParseAll(ReparseRanges ranges) {
    hasRedrawRange_ = false;
    if (!ranges.newStart.node || !ranges.newEnd.node) return;
    setFoldStatusForHeadingContent(ranges);
    setFoldStatusForListItemContent(ranges.newStart.node, ranges.newEnd.node->nextSibling);
}

void Folding::setFoldStatusForHeadingContent(const ReparseRanges& ranges) {
    Node* const first = ranges.newStart.node;
    std::int64_t offset = ranges.oldStart.offset;
    updateHeadingBefore(first, offset);
    OpenFold fold = openFoldBefore(first, offset);
    bool isNew = true;     // up to the last new block
    bool isHidden = false; // some new block lies in a fold
    for (Node* block = first; block; block = block->nextSibling) {
        enter(fold, block);
        const bool folded = fold.level != 0;
        // From a block on that is hidden as it was, all is as it was.
        if (!isNew && block->foldLevel == fold.level && !(isHidden && folded)) break;
        isHidden = isHidden || (isNew && folded);
        const std::int64_t end = offset + block->charCount;
        if (isHidden && folded && fold.offset == Go::NoPos)
            fold.offset = offsetOfHead(first, ranges.oldStart.offset);
        if (isHidden && folded) addRedrawRange(fold.offset, end);
        if (!isNew && block->folded != folded) addRedrawRange(ranges.oldStart.offset, end);
        block->folded = folded;
        block->foldLevel = static_cast<std::uint8_t>(fold.level);
        if (isNew) updateFoldability(block);
        if (!folded && FoldMarkerNode::isContentHeadFolded(block))
            fold = {FoldMarkerNode::headingLevel(block), offset};
        offset = end;
        if (block == ranges.newEnd.node) isNew = false;
    }
}

/// Whether a heading can be folded hangs on what follows it, which may be the first block that changed.
void Folding::updateHeadingBefore(Node* first, std::int64_t offset) {
    Node* block = first->previousSibling;
    for (; block && block->type == ONDO_BLANK_LINE_NODE; block = block->previousSibling)
        offset -= block->charCount;
    if (!block || block->type != ONDO_ATX_HEADING_NODE) return;
    auto* const heading = static_cast<Block::AtxHeadingNode*>(block);
    const bool wasFoldable = heading->isFoldable;
    updateFoldability(heading);
    if (heading->isFoldable != wasFoldable) addRedrawRange(offset - heading->charCount, offset);
}

void Folding::addRedrawRange(std::int64_t start, std::int64_t end) {
    redrawStart_ = hasRedrawRange_ ? std::min(redrawStart_, start) : start;
    redrawEnd_ = hasRedrawRange_ ? std::max(redrawEnd_, end) : end;
    hasRedrawRange_ = true;
}

void Folding::expandRedrawRanges(std::vector<Range>& ranges, Node* root) {
    if (hasRedrawRange_ && !ranges.empty())
        ranges[0] = Range::unite(ranges[0], {redrawStart_, redrawEnd_ - redrawStart_});
    for (std::size_t i = 1; i < ranges.size(); ++i) {
        Range& range = ranges[i];
        Node* const startHead = FoldMarkerNode::topmostFoldedContentHead(
            root->nodeAtRelativeOffset(range.offset, LevelSetting::FirstLevel));
        Node* const endHead = FoldMarkerNode::topmostFoldedContentHead(
            root->nodeAtRelativeOffset(range.end(), LevelSetting::FirstLevel));
        const std::int64_t start = startHead ? startHead->startOffset() : range.offset;
        std::int64_t end = range.end();
        if (endHead) end = std::max(end, FoldMarkerNode::foldableTailFromContentHead(endHead)->endOffset());
        range = {start, end - start};
    }
}

} // namespace Ondo::Inline
