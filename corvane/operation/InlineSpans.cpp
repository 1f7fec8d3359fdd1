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

Range rangeOf(const Node::Iterator& at) {
    return {at.offset, at->charCount};
}

/// What two ranges have in common; they overlap or meet.
Range common(const Range& one, const Range& other) {
    const std::int64_t start = std::max(one.offset, other.offset);
    return {start, std::min(one.end(), other.end()) - start};
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

/// The innermost inline construct that holds a range and text on both sides of it; null when there is none.
const Node* constructAround(const Tree& tree, const Range& range) {
    Node::Iterator at = leafAt(tree, range.offset);
    for (; at.node && !at->isBlock(); at.parent())
        if (isPartOfInline(at.node) && at.offset < range.offset && at.end() > range.end()) return at.node;
    return nullptr;
}

/// The outermost inline construct that begins before a leaf and doesn't hold the one around the range, unless
/// it is of the style itself; null when there is none.
const Node* constructBefore(const Node* leaf, const Node* around, InlineToggles style) {
    const Node* found = nullptr;
    bool isBehindStart = leaf->previousSibling;
    bool isAround = false;
    for (const Node* node = leaf->parent; node && isPartOfInline(node); node = node->parent) {
        isAround = isAround || node == around;
        if (isBehindStart && (!isAround || isNodeOfToggleCategory(node, style))) found = node;
        isBehindStart = isBehindStart || node->previousSibling;
    }
    return found;
}

/// Back to the first leaf of the line, or to the one that holds the offset if that comes first.
void toLineStart(Node::Iterator& leaf, std::int64_t offset) {
    Node::Iterator before = leaf;
    toPreviousLeaf(before);
    while (leaf.offset > offset && before.node && before->category != Node::Category::LineEnding) {
        leaf = before;
        toPreviousLeaf(before);
    }
}

/// The first leaf of the line of a leaf, or of the line in which a construct begins that joins both. Nothing
/// before the range counts.
Node::Iterator firstOfJoinedLines(Node::Iterator leaf, const Range& range, const Node* around,
                                  InlineToggles style) {
    for (;;) {
        toLineStart(leaf, range.offset);
        const Node* first = leaf.offset > range.offset ? constructBefore(leaf.node, around, style) : nullptr;
        if (!first) return leaf;
        while (first->firstChild)
            first = first->firstChild;
        while (leaf.node != first && leaf.offset > range.offset)
            toPreviousLeaf(leaf);
    }
}

void addSpan(const Tree& tree, std::vector<InlineSpan>& spans, const Node::Iterator& first,
             const Node::Iterator& last, const Range& part) {
    InlineSpan span{first, last, part.offset, part.end(), part};
    while (span.first.node && span.first.end() <= span.offset)
        toNextLeaf(span.first);
    while (span.last.node && span.last.offset >= span.end)
        toPreviousLeaf(span.last);
    if (span.first.node && span.last.node && trimSpan(tree, span)) spans.push_back(span);
}

void addCells(const Tree& tree, std::vector<InlineSpan>& spans, Node::Iterator row, const Range& range) {
    for (row.lastChild(); row.node; row.previousSibling()) {
        if (row->type != Ondo::ONDO_TABLE_CELL_NODE || row.offset >= range.end() || row.end() <= range.offset)
            continue;
        Node::Iterator first = row;
        toFirstLeaf(first);
        Node::Iterator last = row;
        last.lastNodeOfSubtree();
        addSpan(tree, spans, first, last, common(rangeOf(row), range));
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

std::vector<InlineSpan> inlineSpans(const Tree& tree, const Range& range, InlineToggles style) {
    std::vector<InlineSpan> spans;
    const Node* const around = constructAround(tree, range);
    Node::Iterator last = leafAt(tree, range.end());
    if (last.node && last.offset >= range.end()) toPreviousLeaf(last);
    while (last.node && last->parent && last.end() > range.offset) {
        const Node::Iterator first = firstOfJoinedLines(last, range, around, style);
        const Node::Iterator row = rowOf(last);
        if (row.node)
            addCells(tree, spans, row, range);
        else
            addSpan(tree, spans, first, last, common({first.offset, last.end() - first.offset}, range));
        last = first;
        toPreviousLeaf(last);
    }
    return spans;
}

std::optional<InlineSpan> spanBetweenRuns(const Tree& tree, const Range& range, InlineToggles style) {
    const Node::Iterator leaf = leafAt(tree, range.offset);
    const auto isRun = [&](const Node* node) { return node && isNodeOfToggleType(node, style); };
    if (!leaf.node || leaf->category != Node::Category::Text || !(rangeOf(leaf) == range) ||
        !isRun(leaf->previousSibling) || !isRun(leaf->nextSibling))
        return std::nullopt;
    return InlineSpan{leaf, leaf, range.offset, range.end(), range};
}

Node::Iterator leafFrom(Node::Iterator leaf, std::int64_t offset) {
    while (leaf.node && leaf.offset > offset)
        toPreviousLeaf(leaf);
    while (leaf.node && leaf.end() <= offset)
        toNextLeaf(leaf);
    return leaf;
}

std::int64_t behindBlanks(const Tree& tree, Node::Iterator leaf, std::int64_t offset) {
    while (offset < tree.length()) {
        if (isBlankAt(tree, offset)) {
            ++offset;
            continue;
        }
        leaf = leafFrom(leaf, offset);
        if (leaf.offset != offset || !isAroundText(leaf.node)) return offset;
        offset = leaf.end();
    }
    return offset;
}

std::int64_t beforeBlanks(const Tree& tree, Node::Iterator leaf, std::int64_t offset) {
    while (offset > 0) {
        if (isBlankAt(tree, offset - 1)) {
            --offset;
            continue;
        }
        leaf = leafFrom(leaf, offset - 1);
        if (!isAroundText(leaf.node)) return offset;
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
