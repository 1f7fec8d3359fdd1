#include "corvane/client/CVNASTStyling.h"

#include "corvane/client/CVNAST.h"
#include "corvane/client/HeadWalk.h"
#include "corvane/inline/FoldMarker.h"

namespace {

using Ondo::LevelSetting;
using Ondo::Node;
using Ondo::Inline::FoldMarkerNode;

CVNRange rangeOf(const Node* node) {
    return {node->startOffset(), node->charCount};
}

bool isEndingAt(std::u16string_view markdown, std::int64_t end, char16_t c) {
    return end > 0 && end <= static_cast<std::int64_t>(markdown.size()) &&
           markdown[static_cast<std::size_t>(end - 1)] == c;
}

/// The heading before a range when it hides something or is hidden.
bool isFoldedHeading(const Node* node) {
    return node && node->type == Ondo::ONDO_ATX_HEADING_NODE &&
           (node->folded || FoldMarkerNode::isContentHeadFolded(node));
}

bool isShownMathBlock(const Node* node) {
    return node && node->type == Ondo::ONDO_MATH_BLOCK_NODE && !node->folded;
}

/// Widens one range of a tree, step by step.
class Widening {
    const Ondo::Tree& tree_;
    CVNRange range_;
    std::int64_t askedLocation_ = 0; ///< what `before_` was found for
    Node* before_ = nullptr;

public:
    Widening(const Ondo::Tree& tree, CVNRange range) : tree_(tree), range_(range) {}

    CVNRange range() const { return range_; }

    void takeHeadingBefore() { takeBlockBefore(isFoldedHeading); }
    void takeMathBlockBefore() { takeBlockBefore(isShownMathBlock); }
    void takeBlankLineBehind();
    void takeWholeBlocks();
    void takeFoldsAround();

private:
    void takeBlockBefore(bool (*isWanted)(const Node*)) {
        const Node* node = nodeBefore();
        if (node && isWanted(node->parent)) unite(node->parent);
    }
    Node* nodeBefore();
    void takeBlockAt(std::int64_t offset);
    static const Node* headOfFoldOver(Node* node);
    void unite(const Node* node) { range_ = CVNRange::unite(range_, rangeOf(node)); }
    std::int64_t lineBreakLengthAt(std::int64_t offset) const;
};

/// The highest node at the character before the range. The way into a long block costs its length, so it is
/// kept.
Node* Widening::nodeBefore() {
    if (range_.location != askedLocation_)
        before_ =
            range_.location > 0 ? tree_.nodeAtOffset(range_.location - 1, LevelSetting::Highest) : nullptr;
    askedLocation_ = range_.location;
    return before_;
}

/// A lone line ending behind the range is a blank line or ends the line that the range lies in.
void Widening::takeBlankLineBehind() {
    if (range_.end() >= tree_.length()) return;
    if (const std::int64_t length = lineBreakLengthAt(range_.end())) {
        range_.length += length;
        return;
    }
    const Node* leaf = tree_.nodeAtOffset(range_.end() - 1, LevelSetting::Leaf);
    const Node* next = leaf ? leaf->nextInSequence() : nullptr;
    if (next && next->type == Ondo::ONDO_BLANK_LINE_NODE) range_.length += next->charCount;
}

std::int64_t Widening::lineBreakLengthAt(std::int64_t offset) const {
    const std::u16string_view text =
        tree_.markdownIn({offset, std::min<std::int64_t>(2, tree_.length() - offset)});
    if (text.substr(0, 2) == u"\r\n") return 2;
    return text[0] == u'\r' || text[0] == u'\n' ? 1 : 0;
}

void Widening::takeWholeBlocks() {
    if (range_.end() != 0) takeBlockAt(range_.end() - 1);
    takeBlockAt(range_.location);
}

void Widening::takeBlockAt(std::int64_t offset) {
    const Node* leaf = tree_.nodeAtOffset(offset, LevelSetting::Leaf);
    if (!leaf) return;
    const Node* block = leaf->ancestorWhere([](const Node*) { return true; }, LevelSetting::FirstLevel);
    if (block && block != tree_.root.get()) unite(block);
}

/// The run of a fold hangs on its head, and its end on the first block that is not hidden: when the range
/// begins in what a fold hides or directly behind it, all from the head on belongs to it.
void Widening::takeFoldsAround() {
    const bool isInText = range_.location < tree_.length();
    const Node* head =
        headOfFoldOver(isInText ? tree_.nodeAtOffset(range_.location, LevelSetting::Leaf) : nullptr);
    if (!head) head = headOfFoldOver(nodeBefore());
    if (head) unite(head);
}

const Node* Widening::headOfFoldOver(Node* node) {
    Node* block = node ? node->firstLevelAncestor() : nullptr;
    return block && block->folded ? FoldMarkerNode::topmostFoldedContentHead(block) : nullptr;
}

} // namespace

CVNRange CVNASTStyling::extendReparsedRange(CVNRange range) const {
    if (range == CVNRange{0, 0}) return range;
    Widening widening(*static_cast<const CVNAST&>(*this).ast, range);
    widening.takeHeadingBefore();
    widening.takeMathBlockBefore();
    widening.takeBlankLineBehind();
    if (widening.range() != range) widening.takeWholeBlocks();
    const CVNRange withoutFolds = widening.range();
    widening.takeFoldsAround();
    if (widening.range() != withoutFolds) widening.takeWholeBlocks();
    return widening.range();
}

void CVNASTStyling::removeMarkersAndSpaceFromStartOfRange(CVNRange& range, const Ondo::Node* block,
                                                          bool keepLastSpace) {
    HeadWalk head(block);
    head.walk(block);
    range.location += head.passed(keepLastSpace);
    range.length -= head.passed(keepLastSpace);
}

void CVNASTStyling::addLineBreakToEndOfRange(CVNRange& range, std::u16string_view markdown) {
    if (isEndingAt(markdown, range.end() + 1, u'\r')) ++range.length;
    if (isEndingAt(markdown, range.end() + 1, u'\n')) ++range.length;
}

void CVNASTStyling::removeLineBreakFromEndOfRange(CVNRange& range, std::u16string_view markdown) {
    if (range.length > 0 && isEndingAt(markdown, range.end(), u'\n')) --range.length;
    if (range.length > 0 && isEndingAt(markdown, range.end(), u'\r')) --range.length;
}
