#include "corvane/correction/PasteDeduplicateBlockCorrection.h"

#include "corvane/block/List.h"
#include "corvane/correction/EditEdges.h"
#include "corvane/operation/LineWalk.h"
#include "corvane/scan/Go.h"

namespace CVN::Correction {

using namespace Operation;
using Ondo::Go;
using Ondo::Block::List;

namespace {

bool isBehindItemMarker(const Ondo::Tree& tree, std::int64_t offset) {
    if (offset == 0) return false;
    const Ondo::Node::Iterator leaf = leafAt(tree, offset - 1);
    return isOfType(leaf.node, Ondo::ONDO_LIST_ITEM_MARKER_NODE) && leaf.end() == offset;
}

/// The units of all markers at the start of a text.
std::int64_t lengthOfMarkers(std::u16string_view text) {
    Go go(text);
    for (;;) {
        const List::MarkerType marker = List::matchMarker(go, false);
        if (marker == List::MarkerType::none) return go.pos();
        Go box = go;
        if (marker == List::MarkerType::unordered_dash && List::matchTask(box) != List::TaskType::none)
            go = box;
    }
}

} // namespace

std::vector<Result> PasteDeduplicateBlockCorrection::run(const Ondo::Tree& tree, std::int64_t offset,
                                                         std::int64_t length, std::u16string_view replacement,
                                                         std::int64_t selectionOffset,
                                                         std::int64_t selectionLength) const {
    const auto size = static_cast<std::int64_t>(replacement.size());
    if (size == 0 || !isBehindItemMarker(tree, offset)) return {};
    const std::int64_t dropped = lengthOfMarkers(replacement);
    if (dropped == 0 || dropped == size) return {};
    const ChangedEnds ends{offset, size, -dropped, 0};
    const Ondo::Range selection = ends.moved(tree.length() - length + size, selectionOffset, selectionLength);
    return {Result(offset, length, std::u16string(replacement.substr(static_cast<std::size_t>(dropped))),
                   selection.offset, selection.length)};
}

} // namespace CVN::Correction
