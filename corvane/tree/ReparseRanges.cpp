#include "corvane/tree/ReparseRanges.h"

#include <vector>

#include "corvane/tree/DocumentNode.h"

namespace Ondo {

namespace {

/// The ancestors of a node below the root, from the nearest upward; `node` itself is the first.
std::vector<Node*> spine(Node* node) {
    std::vector<Node*> nodes;
    for (; node && node->parent; node = node->parent)
        nodes.push_back(node);
    return nodes;
}

/// Markers of the new nodes can belong to a construct of the fragment that has a counterpart in the live
/// tree. With regions of first-level blocks there is none: both spines are empty.
void moveMakers(const ReparseRanges& ranges, const std::vector<Node*>& from, const std::vector<Node*>& to) {
    if (from.empty()) return;
    const Node* const end = ranges.newEnd.node->nextInSequenceSkippingSubtree();
    for (Node* node = ranges.newStart.node; node != end; node = node->nextInSequence())
        for (std::size_t i = 0; i < from.size() && i < to.size(); ++i)
            if (node->maker == from[i]) node->maker = to[i];
}

/// Counts of neighbouring siblings.
struct Sum {
    std::int64_t chars = 0;
    std::int64_t lines = 0;
    void add(const Node* node) {
        chars += node->charCount;
        lines += node->lineCount;
    }
};

Sum moveIn(const ReparseRanges& ranges, Node* parent, Node* next) {
    Sum sum;
    for (Node* node = ranges.newStart.node; node;) {
        Node* const following = node == ranges.newEnd.node ? nullptr : node->nextSibling;
        sum.add(parent->linkSubtree(node->unlinkSubtree(), next));
        node = following;
    }
    return sum;
}

Sum destroyOld(const ReparseRanges& ranges) {
    Sum sum;
    for (Node* node = ranges.oldStart.node; node;) {
        Node* const following = node == ranges.oldEnd.node ? nullptr : node->nextSibling;
        sum.add(node);
        node->unlinkSubtree().reset();
        node = following;
    }
    return sum;
}

bool hasSameLength(const Node::Iterator& a, const Node::Iterator& b) {
    return a.node->charCount == b.node->charCount;
}

/// Whether two subtrees consist of nodes of the same types and lengths.
bool hasSameShape(const Node::Iterator& a, const Node::Iterator& b) {
    const Node* const end = a.node->nextInSequenceSkippingSubtree();
    const Node* other = b.node;
    for (const Node* node = a.node; node != end; node = node->nextInSequence()) {
        if (node->type != other->type || node->charCount != other->charCount) return false;
        const bool isLeaf = !node->firstChild;
        if (isLeaf != !other->firstChild) return false;
        other = other->nextInSequence();
    }
    return true;
}

} // namespace

void ReparseRanges::shrink(ReparseRanges& ranges, const Range& replaced, bool comparesAll) {
    if (!ranges.newStart.node) return;
    const auto isAtLeastTwo = [&ranges] {
        return ranges.oldStart.node != ranges.oldEnd.node && ranges.newStart.node != ranges.newEnd.node;
    };
    while (isAtLeastTwo() && ranges.oldStart.end() <= replaced.offset &&
           hasSameLength(ranges.oldStart, ranges.newStart) &&
           hasSameShape(ranges.oldStart, ranges.newStart)) {
        ranges.oldStart.nextSibling();
        ranges.newStart.nextSibling();
    }
    while (isAtLeastTwo() && ranges.oldEnd.offset >= replaced.end() &&
           hasSameLength(ranges.oldEnd, ranges.newEnd) &&
           (!comparesAll || hasSameShape(ranges.oldEnd, ranges.newEnd))) {
        ranges.oldEnd.previousSibling();
        ranges.newEnd.previousSibling();
    }
}

void ReparseRanges::replaceNodes(ReparseRanges& ranges) {
    Node* const next = ranges.oldEnd.node->nextSibling;
    Node* const parent = ranges.oldEnd.node->parent;
    Node* const newParent = ranges.newEnd.node ? ranges.newEnd.node->parent : nullptr;
    // In a region below the first level the block around it changes its length.
    Node* const first = ranges.oldStart.node->firstLevelAncestor();
    Node* const document = first->parent;
    const Node* const kept = first->previousSibling;
    FirstLevelIndex::Change change(static_cast<DocumentNode*>(document)->index, first,
                                   ranges.oldEnd.node->firstLevelAncestor());
    const std::vector<Node*> newSpine = spine(newParent);
    const Sum in = moveIn(ranges, parent, next);
    const Sum out = destroyOld(ranges);
    if (ranges.newEnd.node) moveMakers(ranges, newSpine, spine(parent));
    for (Node* node = parent; node; node = node->parent) {
        node->charCount += in.chars - out.chars;
        node->lineCount += in.lines - out.lines;
    }
    change.finish(kept ? kept->nextSibling : document->firstChild);
}

Range ReparseRanges::redrawRange(const ReparseRanges& ranges) {
    // The new iterators count from the fragment's start: their difference is the length of what came in.
    return {ranges.oldStart.offset, ranges.newEnd.node ? ranges.newEnd.end() - ranges.newStart.offset : 0};
}

bool ReparseRanges::isContainerBlockEquivalent(const Node::Iterator& a, const Node::Iterator& b) {
    if (a->category != Node::Category::ContainerBlock || b->category != Node::Category::ContainerBlock)
        return false;
    return a->type == b->type && a->direction == b->direction && a->hasEqualData(*b.node);
}

} // namespace Ondo
