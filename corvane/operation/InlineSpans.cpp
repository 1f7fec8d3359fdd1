#include "corvane/operation/InlineSpans.h"

#include <algorithm>

#include "corvane/operation/LineWalk.h"
#include "corvane/scan/Go.h"

namespace CVN::Operation {

using Ondo::Node;
using Ondo::Range;
using Ondo::Tree;

namespace {

bool isBlankAt(const Tree& tree, std::int64_t offset) {
    return Ondo::Go::unicodeWhitespace(unitAt(tree, offset));
}

/// What stands around the text of a line.
bool isAroundText(const Node* leaf) {
    return leaf->category == Node::Category::Space || leaf->category == Node::Category::LineEnding ||
           leaf->type == Ondo::ONDO_FOLD_MARKER_NODE ||
           leaf->type == Ondo::ONDO_HARD_LINE_BREAK_MARKER_NODE || isBlockMarker(leaf) ||
           isInBlockSyntax(leaf);
}

/// The row of a table with cells to write in that a leaf belongs to; without a node when there is none.
Node::Iterator rowOf(Node::Iterator leaf) {
    if (!selfOrAncestor(leaf.node, Ondo::ONDO_TABLE_NODE)) return {};
    while (leaf.node && leaf->type != Ondo::ONDO_TABLE_HEADER_ROW_NODE &&
           leaf->type != Ondo::ONDO_TABLE_DATA_ROW_NODE)
        if (leaf->category == Node::Category::ContainerBlock || leaf->category == Node::Category::InlineBlock)
            return {};
        else
            leaf.parent();
    return leaf;
}

/// Whether a node is an inline construct that markers can stand around, so that lines joined by it are one.
bool isConstruct(const Node* node) {
    return node->category == Node::Category::Inline && node->type != Ondo::ONDO_TABLE_CELL_NODE &&
           node->type != Ondo::ONDO_FOOTNOTE_DEFINITION_CONTENT_NODE;
}

bool isPartOfInline(const Node* node) {
    return isConstruct(node) ||
           (node->category == Node::Category::Attribute && node->maker && !node->maker->isBlock());
}

/// The number of steps up from a leaf to the outermost inline construct that begins before it; 0 when there
/// is none.
int stepsToConstructBefore(const Node* leaf) {
    int found = 0;
    int steps = 0;
    bool isBehindStart = leaf->previousSibling;
    for (const Node* node = leaf->parent; node && isPartOfInline(node); node = node->parent) {
        ++steps;
        if (isBehindStart) found = steps;
        isBehindStart = isBehindStart || node->previousSibling;
    }
    return found;
}

/// The first leaf of the line of a leaf. Where an inline construct runs on from the line before, that of the
/// line in which it begins, but no line that starts before the offset counts.
Node::Iterator firstOfJoinedLines(Node::Iterator leaf, std::int64_t offset) {
    for (;;) {
        leaf.beginningOfLine();
        toFirstLeaf(leaf);
        const int steps = leaf.offset > offset ? stepsToConstructBefore(leaf.node) : 0;
        if (steps == 0) return leaf;
        for (int i = 0; i < steps; ++i)
            leaf.parent();
        toFirstLeaf(leaf);
    }
}

void addSpan(const Tree& tree, std::vector<InlineSpan>& spans, InlineSpan span) {
    while (span.first.node && span.first.end() <= span.offset)
        toNextLeaf(span.first);
    while (span.last.node && span.last.offset >= span.end)
        toPreviousLeaf(span.last);
    if (span.first.node && span.last.node && trimSpan(tree, span)) spans.push_back(span);
}

void addCells(const Tree& tree, std::vector<InlineSpan>& spans, Node::Iterator row, const Range& range) {
    for (row.lastChild(); row.node; row.previousSibling()) {
        if (row->type != Ondo::ONDO_TABLE_CELL_NODE || row->charCount == 0) continue;
        Node::Iterator first = row;
        toFirstLeaf(first);
        Node::Iterator last = row;
        last.lastNodeOfSubtree();
        addSpan(tree, spans,
                {first, last, std::max(row.offset, range.offset), std::min(row.end(), range.end())});
    }
}

Node::Iterator makerOf(Node::Iterator leaf) {
    leaf.maker();
    return leaf;
}

/// Whether a span may begin or end with the marker: one that its command takes away or replaces.
bool isOwnMarker(const Node* leaf, bool facesInwards, InlineToggles style) {
    return facesInwards ? isNodeOfToggleCategory(leaf->maker, style) : isNodeOfToggleType(leaf->maker, style);
}

/// Moves the end of a span out to an offset if only inline markers lie between.
bool growEnd(InlineSpan& span, std::int64_t end) {
    Node::Iterator last = span.last;
    if (last.end() != span.end) return false;
    while (last.end() < end) {
        toNextLeaf(last);
        if (!last.node || !isInlineMarker(last.node)) return false;
    }
    span.last = last;
    span.end = end;
    return true;
}

bool growStart(InlineSpan& span, std::int64_t start) {
    Node::Iterator first = span.first;
    if (first.offset != span.offset) return false;
    while (first.offset > start) {
        toPreviousLeaf(first);
        if (!first.node || !isInlineMarker(first.node)) return false;
    }
    span.first = first;
    span.offset = start;
    return true;
}

/// Whether the start had to move.
bool uncrossStart(InlineSpan& span, InlineToggles style) {
    const Node* const leaf = span.first.node;
    const bool isOpening = isInlineMarker(leaf) && isOpeningMarker(leaf);
    const bool isClosing = isInlineMarker(leaf) && isClosingMarker(leaf);
    if ((!isOpening && !isClosing) || isOwnMarker(leaf, isOpening, style)) return false;
    if (isOpening && span.first.offset == span.offset) {
        const std::int64_t partner = makerOf(span.first).end();
        if (partner <= span.end) return false;
        if (growEnd(span, partner)) return true;
    }
    span.offset = span.first.end();
    toNextLeaf(span.first);
    return true;
}

/// Whether the end had to move.
bool uncrossEnd(InlineSpan& span, InlineToggles style) {
    const Node* const leaf = span.last.node;
    const bool isOpening = isInlineMarker(leaf) && isOpeningMarker(leaf);
    const bool isClosing = isInlineMarker(leaf) && isClosingMarker(leaf);
    if ((!isOpening && !isClosing) || isOwnMarker(leaf, isClosing, style)) return false;
    if (isClosing && span.last.end() == span.end) {
        const std::int64_t partner = makerOf(span.last).offset;
        if (partner >= span.offset) return false;
        if (growStart(span, partner)) return true;
    }
    span.end = span.last.offset;
    toPreviousLeaf(span.last);
    return true;
}

/// Whether the range lies in the brackets of a link.
bool isInText(const Node::Iterator& link, const Range& range) {
    const std::int64_t start = link.offset + link->firstChild->charCount;
    std::int64_t end = start;
    for (const Node* child = link->firstChild->nextSibling;
         child && child->type != Ondo::ONDO_LINK_TEXT_CLOSE_MARKER_NODE &&
         child->type != Ondo::ONDO_LINK_LABEL_CLOSE_MARKER_NODE;
         child = child->nextSibling)
        end += child->charCount;
    return range.offset >= start && range.end() <= end && hasFreeText(link.node);
}

bool mustStayWhole(const Node::Iterator& at, const Range& range, InlineToggles style) {
    if (isInlineMarker(at.node)) return range.length > 0;
    if (at->type == Ondo::ONDO_LINK_NODE) return !isInText(at, range);
    if (isIgnoredInline(at.node))
        return !isNodeOfToggleType(at.node, style) && (range.offset < at.offset || range.end() > at.end());
    return isIndivisible(at.node);
}

/// Metadata that belongs to the link or image in front of it.
bool isMetadataOfLink(const Tree& tree, const Node::Iterator& leaf) {
    const Node* const html = leaf->parent;
    if (!isOfType(html, Ondo::ONDO_RAW_HTML_NODE)) return false;
    return (isOfType(html->previousSibling, Ondo::ONDO_LINK_NODE) ||
            isOfType(html->previousSibling, Ondo::ONDO_IMAGE_NODE)) &&
           textOf(tree, leaf).starts_with(u"<!-- {");
}

std::int64_t behindMetadata(const Tree& tree, std::int64_t offset) {
    const Node::Iterator leaf = leafAt(tree, offset);
    if (!leaf.node || leaf.offset != offset || !isMetadataOfLink(tree, leaf)) return offset;
    return leaf.offset + leaf->parent->charCount;
}

} // namespace

bool trimSpan(const Tree& tree, InlineSpan& span) {
    while (span.offset < span.end) {
        if (isAroundText(span.first.node)) {
            span.offset = span.first.end();
            toNextLeaf(span.first);
        } else if (isAroundText(span.last.node)) {
            span.end = span.last.offset;
            toPreviousLeaf(span.last);
        } else if (isBlankAt(tree, span.offset)) {
            if (++span.offset == span.first.end()) toNextLeaf(span.first);
        } else if (isBlankAt(tree, span.end - 1)) {
            if (--span.end == span.last.offset) toPreviousLeaf(span.last);
        } else {
            const Node* const ignored = ignoredTypeNode(span.first.node);
            return !ignored || !ignored->isBlock();
        }
    }
    return false;
}

bool uncrossSpan(const Tree& tree, InlineSpan& span, InlineToggles style) {
    while (span.offset < span.end && span.first.node && span.last.node) {
        if (uncrossStart(span, style) || uncrossEnd(span, style)) continue;
        const InlineSpan before = span;
        if (!trimSpan(tree, span)) return false;
        if (before.offset == span.offset && before.end == span.end) return true;
    }
    return false;
}

std::vector<InlineSpan> inlineSpans(const Tree& tree, std::int64_t offset, std::int64_t end) {
    std::vector<InlineSpan> spans;
    Node::Iterator last = leafAt(tree, end);
    if (last.node && last.offset >= end) toPreviousLeaf(last);
    while (last.node && last->parent && last.end() > offset) {
        const Node::Iterator first = firstOfJoinedLines(last, offset);
        const Node::Iterator row = rowOf(last);
        if (row.node)
            addCells(tree, spans, row, {offset, end - offset});
        else
            addSpan(tree, spans, {first, last, std::max(first.offset, offset), std::min(last.end(), end)});
        last = first;
        toPreviousLeaf(last);
    }
    return spans;
}

std::int64_t behindBlanks(const Tree& tree, std::int64_t offset) {
    for (;;) {
        if (isBlankAt(tree, offset)) {
            ++offset;
            continue;
        }
        const Node::Iterator leaf = leafAt(tree, offset);
        if (!leaf.node || leaf.offset != offset || leaf->charCount == 0 || !isAroundText(leaf.node))
            return offset;
        offset = leaf.end();
    }
}

std::int64_t beforeBlanks(const Tree& tree, std::int64_t offset) {
    while (offset > 0) {
        if (isBlankAt(tree, offset - 1)) {
            --offset;
            continue;
        }
        const Node::Iterator leaf = leafAt(tree, offset - 1);
        if (!leaf.node || !isAroundText(leaf.node)) return offset;
        offset = leaf.offset;
    }
    return offset;
}

Node::Iterator nodeCutAt(const Tree& tree, std::int64_t offset, const Range& range, InlineToggles style) {
    Node::Iterator found;
    Node::Iterator at = leafAt(tree, offset);
    for (; at.node && !at->isBlock(); at.parent())
        if (at.offset < offset && offset < at.end() && mustStayWhole(at, range, style)) found = at;
    return found;
}

Range withoutCuts(const Tree& tree, Range range, InlineToggles style) {
    for (;;) {
        const Node::Iterator atStart = nodeCutAt(tree, range.offset, range, style);
        const Node::Iterator atEnd = nodeCutAt(tree, range.end(), range, style);
        const std::int64_t start = atStart.node ? atStart.offset : range.offset;
        const std::int64_t end = behindMetadata(tree, atEnd.node ? atEnd.end() : range.end());
        if (start == range.offset && end == range.end()) return range;
        range = {start, end - start};
    }
}

} // namespace CVN::Operation
