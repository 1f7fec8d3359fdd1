#include "corvane/correction/PasteDeduplicateBlockCorrection.h"

#include "corvane/correction/EditEdges.h"
#include "corvane/correction/PastedItemMarkers.h"

namespace CVN::Correction {

using Operation::Result;

std::vector<Result> PasteDeduplicateBlockCorrection::run(const Ondo::Tree& tree, std::int64_t offset,
                                                         std::int64_t length, std::u16string_view replacement,
                                                         std::int64_t selectionOffset,
                                                         std::int64_t selectionLength) const {
    const auto size = static_cast<std::int64_t>(replacement.size());
    if (size == 0 || !isBehindItemMarker(tree, offset)) return {};
    const std::int64_t dropped = lengthOfItemMarkers(replacement);
    if (dropped == 0 || dropped == size) return {};
    const ChangedEnds ends{offset, size, -dropped, 0};
    const Ondo::Range selection = ends.moved(tree.length() - length + size, selectionOffset, selectionLength);
    return {Result(offset, length, std::u16string(replacement.substr(static_cast<std::size_t>(dropped))),
                   selection.offset, selection.length)};
}

} // namespace CVN::Correction
