#include "corvane/operation/InlineRuns.h"

#include "corvane/operation/InlineSpans.h"
#include "corvane/operation/LineWalk.h"
#include "corvane/scan/Assert.h"

namespace CVN::Operation {

using Ondo::Node;
using Ondo::Range;
using Ondo::Tree;

bool isTextAt(const Tree& tree, std::int64_t offset, std::u16string_view text) {
    if (offset < 0 || offset + sizeOf(text) > tree.length()) return false;
    return tree.markdownIn({offset, sizeOf(text)}) == text;
}

Node::Iterator climbedTo(Node::Iterator at, const Node* ancestor) {
    if (!ancestor) return {};
    while (at.node && at.node != ancestor)
        at.parent();
    return at;
}

Node::Iterator childOf(const Node::Iterator& run, Node::Iterator leaf) {
    while (leaf->parent != run.node)
        leaf.parent();
    return leaf;
}

Range openingMarker(const Node::Iterator& run) {
    CORVANE_ASSERT(run->firstChild && run->firstChild->isMarker(), "InlineRuns");
    return {run.offset, run->firstChild->charCount};
}

Range closingMarker(const Node::Iterator& run) {
    CORVANE_ASSERT(run->lastChild && run->lastChild->isMarker(), "InlineRuns");
    return {run.end() - run->lastChild->charCount, run->lastChild->charCount};
}

bool isUnderscore(const Tree& tree, const Range& marker) {
    return unitAt(tree, marker.offset) == u'_';
}

std::u16string markerText(const Tree& tree, const Range& marker) {
    std::u16string text(tree.markdownIn(marker));
    if (text.front() == u'_') text.assign(text.size(), u'*');
    return text;
}

std::int64_t behindLeadingMarkers(const Node::Iterator& run) {
    Node::Iterator at = run;
    at.firstChild();
    std::int64_t end = at.end();
    for (; at.node && (at->category == Node::Category::Inline || isInlineMarker(at.node));
         at.nextInSequence())
        if (at->isMarker()) end = at.end();
    return end;
}

std::int64_t beforeTrailingMarkers(const Node::Iterator& run) {
    Node::Iterator at = run;
    at.lastChild();
    std::int64_t start = at.offset;
    for (toPreviousLeaf(at); at.node && at.offset > run.offset && isInlineMarker(at.node); toPreviousLeaf(at))
        start = at.offset;
    return start;
}

} // namespace CVN::Operation
