// Node::mergeSubtreeOnParsedOffsets: laying a late construct over nodes that already exist.

#include "corvane/tree/Node.h"

namespace Ondo {

namespace {

/// A place for a range in a parent's child list: behind all that ends before it.
struct Place {
    Node* parent;
    Node* next;  ///< the first child that ends behind the range's start, or null
    bool isFree; ///< nothing stands there yet
};

bool isSameRange(const Node* a, const Node* b) {
    return a->offsetWhenParsed == b->offsetWhenParsed && a->charCount == b->charCount;
}

bool isEnclosing(const Node* outer, const Node* inner) {
    return outer->offsetWhenParsed <= inner->offsetWhenParsed &&
           outer->endWhenParsed() >= inner->endWhenParsed();
}

/// Goes down from (parent, next) to where `node` belongs. It stops at the first child that touches the
/// range without holding it.
Place descend(Node* parent, Node* next, const Node* node) {
    while (true) {
        while (next && next->endWhenParsed() <= node->offsetWhenParsed)
            next = next->nextSibling;
        if (!next || next->offsetWhenParsed >= node->endWhenParsed()) return {parent, next, true};
        const bool holds =
            isSameRange(next, node) ? next->category == Node::Category::Attribute : isEnclosing(next, node);
        if (!holds) return {parent, next, false};
        parent = next;
        next = next->firstChild;
    }
}

/// The node behind the run of siblings from `first` that lie inside `range`; `isCrossing` when one of them
/// reaches out of it.
Node* endOfRun(Node* first, const Node* range, bool& isCrossing) {
    Node* node = first;
    while (node && node->offsetWhenParsed < range->endWhenParsed() && isEnclosing(range, node))
        node = node->nextSibling;
    isCrossing = node && node->offsetWhenParsed < range->endWhenParsed();
    return node;
}

/// Moves the siblings from `first` to `end` into `subtree`, in order, each to its place by offset. The last
/// place is where the search for the next one begins. What meets a node of the subtree's own is dropped.
void moveInto(Node* subtree, Node* first, const Node* end) {
    Place place{subtree, subtree->firstChild, true};
    for (Node* node = first; node != end;) {
        Node* const following = node->nextSibling;
        std::unique_ptr<Node> moved = node->unlinkSubtree();
        while (place.parent != subtree && place.parent->endWhenParsed() <= moved->offsetWhenParsed)
            place = {place.parent->parent, place.parent->nextSibling, true};
        place = descend(place.parent, place.next, moved.get());
        const bool fits = isEnclosing(place.parent, moved.get());
        if (place.isFree && fits) place.parent->linkSubtree(std::move(moved), place.next);
        node = following;
    }
}

} // namespace

Node* Node::mergeSubtreeOnParsedOffsets(std::unique_ptr<Node> subtree, Node* passed) {
    const Place place = descend(this, passed ? passed->nextSibling : firstChild, subtree.get());
    bool isCrossing = false;
    Node* const behind = endOfRun(place.next, subtree.get(), isCrossing);
    if (isCrossing) return nullptr;
    Node* const merged = subtree.get();
    place.parent->linkSubtree(std::move(subtree), behind);
    if (place.next != behind) moveInto(merged, place.next, merged);
    return merged;
}

} // namespace Ondo
