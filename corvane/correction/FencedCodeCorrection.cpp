#include "corvane/correction/FencedCodeCorrection.h"

#include <algorithm>

#include "corvane/block/Fence.h"
#include "corvane/block/FencedCode.h"
#include "corvane/correction/EditedLine.h"
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

bool isBlockOfTicks(const Node* block) {
    return isOfType(block, Ondo::ONDO_FENCED_CODE_NODE) &&
           static_cast<const Ondo::Block::FencedCodeNode*>(block)->fenceCharacter == tick;
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
    return withChange(edit, {other.offset, 0, std::u16string(edit.replacement)});
}

std::vector<Result> shrunkFences(const PendingEdit& edit, const Node::Iterator& fence) {
    const Node::Iterator other = otherFence(fence);
    const bool staysFence = other.node && edit.end() <= fence.end() &&
                            std::min(fence->charCount, other->charCount) - edit.length >= leastFence;
    if (!staysFence) return {};
    return withChange(edit, {other.offset, edit.length, {}});
}

/// In a closed block: takes its closing fence away when the edit closes it before, or doesn't open it.
std::vector<Result> withoutClosingFence(const PendingEdit& edit, const EditedLine& line) {
    const std::u16string content = line.contentBehind();
    const bool isOpening = isOpeningMarker(leafAt(edit.tree, line.contentStart()).node);
    const std::int64_t opening = line.block()->firstMarker()->charCount;
    const bool closes = isOnlyTicks(edit.replacement) && isOnlyTicks(content) &&
                        leadingTicks(content) >= opening && line.isFenceIndentation();
    if (isOpening ? isOpeningFence(content) : !closes) return {};
    const auto removal = line.removalOfClosingFence();
    return removal ? keepingEdit(edit, removal, {}) : std::vector<Result>();
}

/// Whether an open block below, in the same container, gives a block of that many backticks its closing
/// fence.
bool isClosedBelow(Node* block, std::int64_t ticks) {
    constexpr auto code = Ondo::ONDO_FENCED_CODE_NODE;
    constexpr auto closing = Ondo::ONDO_FENCED_CODE_CLOSE_MARKER_NODE;
    if (!block || !block->parent || !Ondo::Block::isOpenFence(block->parent->lastChild, code, closing))
        return false;
    while (block && block->type != code)
        block = block->nextSibling;
    if (!isBlockOfTicks(block) || block->nextSibling) return false;
    const auto* const open = static_cast<const Ondo::Block::FencedCodeNode*>(block);
    return open->info.empty() && block->firstMarker()->charCount >= ticks;
}

} // namespace

std::vector<Result> FencedCodeCorrection::closedBlock(const PendingEdit& edit, const EditedLine& line) const {
    if (!isOnlyTicks(edit.replacement)) return {};
    const std::int64_t before = countTicksBackward(edit.tree, edit.offset);
    const bool isAtContent = edit.offset - before == line.contentStart() && line.isFenceIndentation();
    if (!isAtContent || before + countTicksForward(edit.tree, edit.end()) >= leastFence) return {};
    const std::u16string content = line.contentBehind();
    const std::int64_t ticks = leadingTicks(content);
    if (!isOpeningFence(content) || isClosedBelow(line.block(), ticks)) return {};
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
    return canBecomeFence(line.block()) ? closedBlock(edit, line) : std::vector<Result>();
}

} // namespace CVN::Correction
