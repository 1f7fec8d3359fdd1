#include "corvane/correction/MathBlockCorrection.h"

#include "corvane/block/Fence.h"
#include "corvane/correction/EditedLine.h"
#include "corvane/operation/LineWalk.h"

namespace CVN::Correction {

using Ondo::Node;
using Operation::Result;

namespace {

constexpr std::u16string_view fence = u"$$";
constexpr std::u16string_view heldFence = u"\\$$";
constexpr std::u16string_view escape = u"\\";

std::int64_t sizeOf(std::u16string_view text) {
    return static_cast<std::int64_t>(text.size());
}

bool isDeletionOfOne(const PendingEdit& edit) {
    return edit.length == 1 && edit.replacement.empty();
}

/// Whether the container of a block ends with an open fence: one more fence before it serves as its other
/// half, and another pair would turn the text between them into math.
bool isBeforeOpenFence(const Node* block) {
    return block && block->parent &&
           Ondo::Block::isOpenFence(block->parent->lastChild, Ondo::ONDO_MATH_BLOCK_NODE,
                                    Ondo::ONDO_MATH_BLOCK_CLOSE_MARKER_NODE);
}

bool isLineBreakBehindFence(const PendingEdit& edit, const EditedLine& line) {
    return edit.length == 0 && edit.replacement == u"\n" &&
           edit.offset >= line.contentStart() + sizeOf(heldFence) &&
           Operation::isOfType(line.block(), Ondo::ONDO_PARAGRAPH_NODE);
}

/// Whether the text puts further lines below the one that it goes into.
bool bringsLines(std::u16string_view text) {
    const bool startsLine = !text.empty() && (text.front() == u'\n' || text.front() == u'\r');
    return startsLine && text.find_first_not_of(u"\r\n \t") != std::u16string_view::npos;
}

std::vector<Result> withoutEscape(const PendingEdit& edit, const EditedLine& line) {
    const bool isBehindEscape = edit.offset >= line.contentStart() + sizeOf(escape);
    if (!isBehindEscape || isDeletionOfLineEnding(edit)) return {};
    if (line.contentBehind() == heldFence && !bringsLines(edit.replacement)) return {};
    return keepingEdit(edit, {}, Change{line.contentStart(), sizeOf(escape), {}});
}

/// In a math block: the typed fence takes the place of the one that is there.
std::vector<Result> inMathBlock(const PendingEdit& edit, const EditedLine& line) {
    const Node::Iterator opening = line.contentLeaf();
    const bool isOpening = Operation::isOfType(opening.node, Ondo::ONDO_MATH_BLOCK_OPEN_MARKER_NODE);
    const bool isBeforeFence = isOpening && edit.end() <= opening.offset;
    if (isBeforeFence || (line.fenceBehind() == fence) == isOpening) return {};
    const auto removal = line.removalOfClosingFence();
    return removal && !isBeforeOpenFence(line.block()) ? keepingEdit(edit, removal, {})
                                                       : std::vector<Result>();
}

} // namespace

std::vector<Result> MathBlockCorrection::releasedFence(const PendingEdit& edit,
                                                       const EditedLine& line) const {
    const std::u16string nextLine = u"\n" + line.furtherPrefix(style_);
    const std::int64_t caret = edit.offset + sizeOf(nextLine);
    std::u16string text = nextLine;
    if (!isBeforeOpenFence(line.blockBeforeFence())) text.append(nextLine).append(fence);
    std::vector<Result> results;
    results.emplace_back(edit.offset, 0, std::move(text), caret, 0);
    Result::addToList(results, line.contentStart(), sizeOf(escape), {}, 0, 0);
    return results;
}

std::vector<Result> MathBlockCorrection::run(const Ondo::Tree& tree, std::int64_t offset, std::int64_t length,
                                             std::u16string_view replacement, std::int64_t selectionOffset,
                                             std::int64_t selectionLength) const {
    if (!tree.ruleConfig().ruleInstanceByName("MathBlock")) return {};
    const PendingEdit edit{tree, offset, length, replacement, selectionOffset, selectionLength};
    const EditedLine line(edit);
    if (!line.isFenceIndentation()) return {};
    if (Operation::isOfType(line.block(), Ondo::ONDO_MATH_BLOCK_NODE))
        return line.isInsideLine() ? inMathBlock(edit, line) : std::vector<Result>();
    if (!canBecomeFence(line.block())) return {};
    if (line.contentBefore() == heldFence)
        return isLineBreakBehindFence(edit, line) ? releasedFence(edit, line) : withoutEscape(edit, line);
    const bool leavesFence = line.contentBehind() == fence && line.isInsideLine();
    if (!leavesFence || isDeletionOfOne(edit)) return {};
    return keepingEdit(edit, {}, Change{line.contentStart(), 0, std::u16string(escape)});
}

} // namespace CVN::Correction
