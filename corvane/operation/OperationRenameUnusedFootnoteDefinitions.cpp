#include "corvane/operation/OperationRenameUnusedFootnoteDefinitions.h"

#include "corvane/operation/FootnoteLabels.h"

namespace CVN::Operation {

using namespace Ondo;

std::vector<Result> RenameUnusedFootnoteDefinitions::run(const Tree& tree, std::int64_t, std::int64_t,
                                                         std::int64_t selectionOffset,
                                                         std::int64_t selectionLength) const {
    const LabeledConnections* const footnotes = footnotesOf(tree);
    if (!footnotes) return {};
    UnusedMarks markFor(*footnotes);
    std::vector<Result> results;
    const std::vector<LabelEntry> definitions = footnotes->definitions();
    for (auto entry = definitions.rbegin(); entry != definitions.rend(); ++entry) {
        LabeledNode* const node = entry->node;
        if (node->connections() > 0 || !isNumericLabel(node->label)) continue;
        const Node* const firstMarker = node->firstMarker();
        const Node* const markerNode = firstMarker ? firstMarker->nextMarker() : nullptr;
        CORVANE_ASSERT(markerNode && markerNode->type == ONDO_FOOTNOTE_DEFINITION_LABEL_CLOSE_MARKER_NODE,
                       "OperationRenameUnusedFootnoteDefinitions");
        Result::addToList(results, offsetIn(*entry, markerNode), 0, markFor(node->label), selectionOffset,
                          selectionLength);
    }
    return results;
}

} // namespace CVN::Operation
