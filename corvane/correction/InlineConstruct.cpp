#include "corvane/correction/InlineConstruct.h"

#include "corvane/operation/LineWalk.h"

namespace CVN::Correction {

using namespace Operation;
using Ondo::Node;

namespace {

bool isMarkerOf(const Node* node, const Node* construct) {
    return node && node->isMarker() && node->maker == construct;
}

/// A tag may end in a separator, which closes nothing: "#tag/".
bool hasPair(const Node* node) {
    return node->category == Node::Category::Inline && node->firstChild != node->lastChild &&
           isMarkerOf(node->firstChild, node) && isMarkerOf(node->lastChild, node) &&
           !isOfType(node->lastChild, Ondo::ONDO_HASHTAG_SEPARATOR_MARKER_NODE);
}

bool hasParts(const Node* node) {
    return isOfType(node, Ondo::ONDO_LINK_NODE) || isOfType(node, Ondo::ONDO_IMAGE_NODE);
}

} // namespace

std::vector<Span> InlineConstruct::innerMarkers() const {
    if (!hasParts(node)) return {};
    std::vector<Span> markers;
    std::int64_t at = content.start;
    for (const Node* child = node->firstChild->nextSibling; child != node->lastChild;
         child = child->nextSibling) {
        if (isMarkerOf(child, node)) markers.push_back({at, at + child->charCount});
        at += child->charCount;
    }
    return markers;
}

bool InlineConstruct::touchesMarker(const Span& inside) const {
    if (inside.start < content.start || inside.end > content.end) return true;
    for (const Span& marker : innerMarkers())
        if (inside.touches(marker)) return true;
    return false;
}

std::vector<InlineConstruct> constructsAround(const Ondo::Tree& tree, std::int64_t position) {
    std::vector<InlineConstruct> around;
    Node::Iterator at = leafAt(tree, position);
    while (at.node && at->parent && !at->parent->isBlock()) {
        at.parent();
        if (!hasPair(at.node) || at.offset >= position || at.end() <= position) continue;
        const Span content{at.offset + at->firstChild->charCount, at.end() - at->lastChild->charCount};
        around.push_back({at.node, {at.offset, at.end()}, content});
    }
    return around;
}

} // namespace CVN::Correction
