#include "corvane/operation/OperationUnfoldRangeEdges.h"

#include <algorithm>

#include "corvane/inline/FoldMarker.h"
#include "corvane/operation/FoldSections.h"
#include "corvane/operation/LineWalk.h"

namespace CVN::Operation {

namespace {

using Ondo::Node;
using Ondo::Inline::FoldMarkerNode;

bool isIn(const Node* node, const Node* block) {
    while (node && node != block)
        node = node->parent;
    return node;
}

/// Adds the markers of the folds that hide a leaf.
void addMarkers(std::vector<Node::Iterator>& markers, Node* leaf) {
    for (const Node* head = FoldMarkerNode::foldedContentHead(leaf); head;
         head = FoldMarkerNode::previousFoldedContentHead(head))
        if (!isIn(leaf, head)) markers.push_back(foldMarkerOf(head));
}

/// From the last to the first, each once.
void putInOrder(std::vector<Node::Iterator>& markers) {
    const auto isBehind = [](const Node::Iterator& a, const Node::Iterator& b) {
        return a.offset > b.offset;
    };
    const auto isSame = [](const Node::Iterator& a, const Node::Iterator& b) { return a.node == b.node; };
    std::sort(markers.begin(), markers.end(), isBehind);
    markers.erase(std::unique(markers.begin(), markers.end(), isSame), markers.end());
}

} // namespace

std::vector<Result> OperationUnfoldRangeEdges::run(const Ondo::Tree& tree, std::int64_t offset,
                                                   std::int64_t length, std::int64_t selectionOffset,
                                                   std::int64_t selectionLength) const {
    const Node::Iterator start = leafAt(tree, offset);
    if (!start.node) return {};
    if (length == 0 && offset == tree.length() && isLineEnding(start.node)) return {};

    std::vector<Node::Iterator> markers;
    addMarkers(markers, start.node);
    if (length > 0) addMarkers(markers, leafAt(tree, offset + length).node);
    putInOrder(markers);

    std::vector<Result> results;
    for (const Node::Iterator& each : markers)
        removeFold(results, each, tree, {selectionOffset, selectionLength});
    return results;
}

} // namespace CVN::Operation
