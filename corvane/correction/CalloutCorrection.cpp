#include "corvane/correction/CalloutCorrection.h"

#include "corvane/correction/EditedLine.h"
#include "corvane/operation/LinePrefix.h"
#include "corvane/operation/LineWalk.h"

namespace CVN::Correction {

using namespace Operation;

namespace {

/// The marker that ends at an offset; null when none does.
const Ondo::Node* markerBefore(const Ondo::Tree& tree, std::int64_t offset) {
    if (offset == 0) return nullptr;
    const Ondo::Node::Iterator leaf = leafAt(tree, offset - 1);
    const bool isMarker = isOfType(leaf.node, Ondo::ONDO_CALLOUT_MARKER_NODE) && leaf.end() == offset;
    return isMarker ? leaf.node : nullptr;
}

/// What a line begins with before its text in a quote; 0 for a line without the quote's marker.
std::int64_t prefixLength(const Ondo::Tree& tree, std::int64_t lineStart, const Ondo::Node* quote) {
    if (lineStart == tree.length()) return 0;
    const LinePrefix prefix(tree, lineAt(tree, lineStart));
    for (std::size_t i = 0; i < prefix.markers.size(); ++i)
        if (prefix.markers[i].container == quote) return static_cast<std::int64_t>(prefix.blanksEnd(i));
    return 0;
}

bool canFollowMarker(char16_t unit) {
    return unit == u' ' || unit == u'\n' || unit == u'\r';
}

/// The end of the text can follow, too.
bool canFollowMarker(const Ondo::Tree& tree, std::int64_t offset) {
    return offset == tree.length() || canFollowMarker(unitAt(tree, offset));
}

std::vector<Result> withNextLine(const PendingEdit& edit, const Ondo::Node* marker) {
    const Ondo::Node* const quote = selfOrAncestor(marker, Ondo::ONDO_BLOCK_QUOTE_NODE);
    const std::int64_t text = edit.end() + prefixLength(edit.tree, edit.end(), quote);
    if (canFollowMarker(edit.tree, text)) return {};
    return {Result(edit.offset, text - edit.offset, u" ", edit.offset + 1, 0)};
}

} // namespace

std::vector<Result> CalloutCorrection::run(const Ondo::Tree& tree, std::int64_t offset, std::int64_t length,
                                           std::u16string_view replacement, std::int64_t selectionOffset,
                                           std::int64_t selectionLength) const {
    const Ondo::Node* const marker = markerBefore(tree, offset);
    if (!marker) return {};
    const PendingEdit edit{tree, offset, length, replacement, selectionOffset, selectionLength};
    if (isDeletionOfLineEnding(edit)) return withNextLine(edit, marker);
    if (replacement.empty() && (length == 0 || canFollowMarker(tree, edit.end()))) return {};
    if (!replacement.empty() && canFollowMarker(replacement.front())) return {};
    std::u16string spaced = u" ";
    spaced += replacement;
    return keepingEdit(padded(edit, spaced, 1, 0), {}, {});
}

} // namespace CVN::Correction
