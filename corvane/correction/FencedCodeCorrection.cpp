#include "corvane/correction/FencedCodeCorrection.h"

#include <algorithm>

#include "corvane/block/FencedCode.h"
#include "corvane/correction/EditedLine.h"
#include "corvane/correction/FencePairs.h"
#include "corvane/operation/LineWalk.h"

namespace CVN::Correction {

using namespace Operation;
using Ondo::Node;

namespace {

constexpr char16_t tick = u'`';
constexpr std::int64_t leastFence = 3;

std::int64_t countTicksBackward(const Ondo::Tree& tree, std::int64_t offset) {
    std::int64_t count = 0;
    while (unitAt(tree, offset - count - 1) == tick)
        ++count;
    return count;
}

std::int64_t countTicksForward(const Ondo::Tree& tree, std::int64_t offset) {
    std::int64_t count = 0;
    while (unitAt(tree, offset + count) == tick)
        ++count;
    return count;
}

std::int64_t leadingTicks(std::u16string_view text) {
    return static_cast<std::int64_t>(std::min(text.find_first_not_of(tick), text.size()));
}

bool isOnlyTicks(std::u16string_view text) {
    return !text.empty() && leadingTicks(text) == static_cast<std::int64_t>(text.size());
}

/// Whether the content of a line is an opening fence: further backticks would make it text.
bool isOpeningFence(std::u16string_view content) {
    const std::int64_t ticks = leadingTicks(content);
    return ticks >= leastFence &&
           content.find(tick, static_cast<std::size_t>(ticks)) == std::u16string_view::npos;
}

const Ondo::Block::FencedCodeNode& asCode(const Node* block) {
    return static_cast<const Ondo::Block::FencedCodeNode&>(*block);
}

bool isBlockOfTicks(const Node* block) {
    return isOfType(block, Ondo::ONDO_FENCED_CODE_NODE) && asCode(block).fenceCharacter == tick;
}

bool isOpeningMarker(const Node* node) {
    return isOfType(node, Ondo::ONDO_FENCED_CODE_OPEN_MARKER_NODE) && isBlockOfTicks(node->maker);
}

bool isClosingMarker(const Node* node) {
    return isOfType(node, Ondo::ONDO_FENCED_CODE_CLOSE_MARKER_NODE) && isBlockOfTicks(node->maker);
}

/// The other fence of the block, from one of them; without a node when the block is open.
Node::Iterator otherFence(Node::Iterator fence) {
    const bool isOpening = isOpeningMarker(fence.node);
    fence.maker();
    if (isOpening)
        fence.lastChild();
    else
        fence.firstChild();
    while (fence.node && !(isOpening ? isClosingMarker(fence.node) : isOpeningMarker(fence.node)))
        if (isOpening)
            fence.previousSibling();
        else
            fence.nextSibling();
    return fence;
}

/// A change of the other fence along with an edit of this one.
std::vector<Result> withChange(const PendingEdit& edit, const Change& change) {
    return change.offset > edit.offset ? keepingEdit(edit, change, {}) : keepingEdit(edit, {}, change);
}

std::vector<Result> grownFences(const PendingEdit& edit, const Node::Iterator& fence) {
    const Node::Iterator other = otherFence(fence);
    if (!other.node) return {};
    const std::int64_t ticks = fence->charCount;
    const bool isForAnother = isOpeningMarker(fence.node) && weightFrom(fence->maker, ticks + edit.growth()) <
                                                                 weightFrom(fence->maker, ticks);
    if (isForAnother) return {};
    return withChange(edit, {other.offset, 0, std::u16string(edit.replacement)});
}

std::vector<Result> shrunkFences(const PendingEdit& edit, const Node::Iterator& fence) {
    const Node::Iterator other = otherFence(fence);
    if (!other.node || edit.end() > fence.end()) return {};
    const std::int64_t ticks = std::min(fence->charCount, other->charCount) - edit.length;
    if (ticks < leastFence || holdsFence(asCode(fence->maker).code, ticks)) return {};
    return withChange(edit, {other.offset, edit.length, {}});
}

/// Whether the fences below pair up better when one of so many backticks opens behind a block.
bool isBetterWithFence(const Node* block, std::int64_t ticks) {
    return weightBehind(block, ticks) < weightBehind(block, 0);
}

/// In a closed block: takes its closing fence away when the edit closes it before, or doesn't open it.
std::vector<Result> withoutClosingFence(const PendingEdit& edit, const EditedLine& line) {
    const std::u16string fence = line.fenceBehind();
    const Node::Iterator opening = line.contentLeaf();
    if (isOpeningMarker(opening.node)) {
        if (edit.end() <= opening.offset || isOpeningFence(fence)) return {};
    } else {
        const bool closes = isOnlyTicks(edit.replacement) && isOnlyTicks(fence) &&
                            leadingTicks(fence) >= line.block()->firstMarker()->charCount;
        if (!closes) return {};
    }
    const auto removal = line.removalOfClosingFence();
    if (!removal || isBetterWithFence(line.block(), closingFence(*line.block())->charCount)) return {};
    return keepingEdit(edit, removal, {});
}

} // namespace

std::vector<Result> FencedCodeCorrection::closedBlock(const PendingEdit& edit, const EditedLine& line) const {
    if (!isOnlyTicks(edit.replacement)) return {};
    const std::int64_t before = countTicksBackward(edit.tree, edit.offset);
    const bool isAtContent = edit.offset - before == line.contentStart() && line.isFenceIndentation();
    if (!isAtContent || before + countTicksForward(edit.tree, edit.end()) >= leastFence) return {};
    const std::u16string content = line.contentBehind();
    const std::int64_t ticks = leadingTicks(content);
    if (!isOpeningFence(content) || isBetterWithFence(line.blockBeforeFence(), ticks)) return {};
    std::u16string text = u"\n" + line.furtherPrefix(style_);
    text.append(static_cast<std::size_t>(ticks), tick);
    return keepingEdit(edit, Change{line.endBehindEdit(), 0, std::move(text)}, {});
}

std::vector<Result> FencedCodeCorrection::run(const Ondo::Tree& tree, std::int64_t offset,
                                              std::int64_t length, std::u16string_view replacement,
                                              std::int64_t selectionOffset,
                                              std::int64_t selectionLength) const {
    const PendingEdit edit{tree, offset, length, replacement, selectionOffset, selectionLength};
    const EditedLine line(edit);
    if (!line.isInsideLine()) return {};
    if (isBlockOfTicks(line.block())) {
        const Node::Iterator run = leafAt(tree, offset - countTicksBackward(tree, offset));
        const bool isFence = isOpeningMarker(run.node) || isClosingMarker(run.node);
        if (isFence && length == 0 && isOnlyTicks(replacement)) return grownFences(edit, run);
        const auto shrunk = isFence && replacement.empty() ? shrunkFences(edit, run) : std::vector<Result>();
        return shrunk.empty() ? withoutClosingFence(edit, line) : shrunk;
    }
    const bool isText =
        canBecomeFence(line.block()) || isOfType(line.block(), Ondo::ONDO_SETEXT_HEADING_NODE);
    return isText ? closedBlock(edit, line) : std::vector<Result>();
}

} // namespace CVN::Correction
