#include "corvane/correction/ListItemSpaceCorrection.h"

#include <algorithm>

#include "corvane/correction/EditedLine.h"
#include "corvane/operation/LineWalk.h"

namespace CVN::Correction {

using namespace Operation;

namespace {

bool isBehindSpacedMarker(const Ondo::Tree& tree, std::int64_t offset) {
    if (offset == 0) return false;
    const Ondo::Node::Iterator leaf = leafAt(tree, offset - 1);
    const char16_t last = unitAt(tree, offset - 1);
    return isOfType(leaf.node, Ondo::ONDO_LIST_ITEM_MARKER_NODE) && leaf.end() == offset &&
           (last == u' ' || last == u'\t');
}

/// A position in the text behind the edit, when `cut` units at its start are missing.
std::int64_t movedBack(std::int64_t position, std::int64_t start, std::int64_t cut) {
    return position <= start ? position : std::max(start, position - cut);
}

} // namespace

std::vector<Result> ListItemSpaceCorrection::run(const Ondo::Tree& tree, std::int64_t offset,
                                                 std::int64_t length, std::u16string_view replacement,
                                                 std::int64_t selectionOffset,
                                                 std::int64_t selectionLength) const {
    const std::size_t blanks = std::min(replacement.find_first_not_of(u" \t"), replacement.size());
    if (blanks == 0 || !isBehindSpacedMarker(tree, offset)) return {};
    const auto cut = static_cast<std::int64_t>(blanks);
    const std::int64_t start = movedBack(selectionOffset, offset, cut);
    const std::int64_t end = movedBack(selectionOffset + selectionLength, offset, cut);
    return keepingEdit({tree, offset, length, replacement.substr(blanks), start, end - start}, {}, {});
}

} // namespace CVN::Correction
