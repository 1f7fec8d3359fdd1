#include "corvane/correction/PastedItemMarkers.h"

#include "corvane/block/List.h"
#include "corvane/operation/LineWalk.h"
#include "corvane/scan/Go.h"

namespace CVN::Correction {

using Ondo::Go;
using Ondo::Block::List;

bool isBehindItemMarker(const Ondo::Tree& tree, std::int64_t offset) {
    if (offset == 0) return false;
    const Ondo::Node::Iterator leaf = Operation::leafAt(tree, offset - 1);
    return Operation::isOfType(leaf.node, Ondo::ONDO_LIST_ITEM_MARKER_NODE) && leaf.end() == offset;
}

std::int64_t lengthOfItemMarkers(std::u16string_view text) {
    Go go(text);
    for (;;) {
        const List::MarkerType marker = List::matchMarker(go, false);
        if (marker == List::MarkerType::none) return go.pos();
        Go box = go;
        if (marker == List::MarkerType::unordered_dash && List::matchTask(box) != List::TaskType::none)
            go = box;
    }
}

bool isOnlyItemMarkers(const Ondo::Tree& tree, std::int64_t offset, std::u16string_view text) {
    return lengthOfItemMarkers(text) == static_cast<std::int64_t>(text.size()) &&
           isBehindItemMarker(tree, offset);
}

} // namespace CVN::Correction
