#include "corvane/correction/EditEdges.h"

#include <algorithm>

#include "corvane/operation/LineWalk.h"
#include "corvane/scan/Util.h"

namespace CVN::Correction {

using Ondo::Node;
using Operation::leafAt;

namespace {

constexpr std::int64_t longestCharacter = 2;

} // namespace

char32_t firstCharacter(std::u16string_view text) {
    return text.empty() ? 0 : Ondo::Util::codePointAt(text, 0);
}

char32_t lastCharacter(std::u16string_view text) {
    const auto length = static_cast<std::int64_t>(text.size());
    if (length < longestCharacter) return firstCharacter(text);
    const char32_t pair = Ondo::Util::codePointAt(text, length - longestCharacter);
    return Ondo::Util::codeUnitCount(pair) == longestCharacter ? pair : text.back();
}

char32_t characterBefore(const Ondo::Tree& tree, std::int64_t offset) {
    const std::int64_t count = std::min(offset, longestCharacter);
    return lastCharacter(tree.markdownIn({offset - count, count}));
}

char32_t characterAt(const Ondo::Tree& tree, std::int64_t offset) {
    return firstCharacter(tree.markdownIn({offset, std::min(tree.length() - offset, longestCharacter)}));
}

const Node* leafEndingAt(const Ondo::Tree& tree, std::int64_t offset) {
    return offset == 0 ? nullptr : leafAt(tree, offset - 1).node;
}

const Node* leafStartingAt(const Ondo::Tree& tree, std::int64_t offset) {
    return leafAt(tree, offset).node;
}

bool isOpener(const Node* leaf) {
    return leaf && leaf->isMarker() && leaf->maker && leaf->maker->firstMarker() == leaf;
}

bool isCloser(const Node* leaf) {
    if (!leaf || !leaf->isMarker() || !leaf->maker) return false;
    return !leaf->nextMarker() && leaf->type != Ondo::ONDO_HASHTAG_SEPARATOR_MARKER_NODE;
}

std::int64_t ChangedEnds::moved(std::int64_t position) const {
    if (position < offset) return position;
    const std::int64_t growth = std::max(before + behind, -length);
    if (position >= offset + length) return position + growth;
    return std::clamp(position + before, offset, offset + length + growth);
}

Ondo::Range ChangedEnds::moved(std::int64_t textLength, std::int64_t selectionOffset,
                               std::int64_t selectionLength) const {
    const Ondo::Range selection = clampedTo(textLength, selectionOffset, selectionLength);
    if (selection.length == 0) return {moved(selection.offset), 0};
    const std::int64_t start = selection.offset == offset ? offset : moved(selection.offset);
    return {start, moved(selection.end()) - start};
}

Ondo::Range clampedTo(std::int64_t textLength, std::int64_t selectionOffset, std::int64_t selectionLength) {
    const std::int64_t start = std::clamp<std::int64_t>(selectionOffset, 0, textLength);
    return {start, std::clamp<std::int64_t>(selectionLength, 0, textLength - start)};
}

} // namespace CVN::Correction
