#include "corvane/correction/CalloutCorrection.h"

#include "corvane/correction/EditedLine.h"
#include "corvane/operation/LineWalk.h"

namespace CVN::Correction {

using namespace Operation;

namespace {

bool isBehindMarker(const Ondo::Tree& tree, std::int64_t offset) {
    if (offset == 0) return false;
    const Ondo::Node::Iterator leaf = leafAt(tree, offset - 1);
    return isOfType(leaf.node, Ondo::ONDO_CALLOUT_MARKER_NODE) && leaf.end() == offset;
}

bool canFollowMarker(char16_t unit) {
    return unit == u' ' || unit == u'\n' || unit == u'\r';
}

/// The end of the text can follow, too.
bool canFollowMarker(const Ondo::Tree& tree, std::int64_t offset) {
    return offset == tree.length() || canFollowMarker(unitAt(tree, offset));
}

} // namespace

std::vector<Result> CalloutCorrection::run(const Ondo::Tree& tree, std::int64_t offset, std::int64_t length,
                                           std::u16string_view replacement, std::int64_t selectionOffset,
                                           std::int64_t selectionLength) const {
    const PendingEdit edit{tree, offset, length, replacement, selectionOffset, selectionLength};
    if (replacement.empty() && (length == 0 || canFollowMarker(tree, offset + length))) return {};
    if (!replacement.empty() && canFollowMarker(replacement.front())) return {};
    if (!isBehindMarker(tree, offset) || isDeletionOfLineEnding(edit)) return {};
    std::u16string spaced = u" ";
    spaced += replacement;
    return keepingEdit(padded(edit, spaced, 1, 0), {}, {});
}

} // namespace CVN::Correction
