#include "corvane/correction/MathBlockCorrection.h"

#include "corvane/correction/EditedLine.h"
#include "corvane/operation/LineWalk.h"

namespace CVN::Correction {

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

bool isLineBreakBehindFence(const PendingEdit& edit, const EditedLine& line) {
    return edit.length == 0 && edit.replacement == u"\n" &&
           edit.offset >= line.contentStart() + sizeOf(heldFence) &&
           Operation::isOfType(line.block(), Ondo::ONDO_PARAGRAPH_NODE);
}

std::vector<Result> withoutEscape(const PendingEdit& edit, const EditedLine& line) {
    const bool isBehindEscape = edit.offset >= line.contentStart() + sizeOf(escape);
    if (!isBehindEscape || line.contentBehind() == heldFence) return {};
    return keepingEdit(edit, {}, Change{line.contentStart(), sizeOf(escape), {}});
}

/// In a math block: the typed fence takes the place of the one that is there.
std::vector<Result> inMathBlock(const PendingEdit& edit, const EditedLine& line) {
    const bool isOpening =
        Operation::leafAt(edit.tree, line.contentStart())->type == Ondo::ONDO_MATH_BLOCK_OPEN_MARKER_NODE;
    if ((line.contentBehind() == fence) == isOpening) return {};
    const auto removal = line.removalOfClosingFence();
    return removal ? keepingEdit(edit, removal, {}) : std::vector<Result>();
}

} // namespace

std::vector<Result> MathBlockCorrection::releasedFence(const PendingEdit& edit,
                                                       const EditedLine& line) const {
    const std::u16string nextLine = u"\n" + line.furtherPrefix(style_);
    const std::int64_t caret = edit.offset + sizeOf(nextLine);
    std::u16string text = nextLine + nextLine;
    text += fence;
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
