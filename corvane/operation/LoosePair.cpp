#include "corvane/operation/LoosePair.h"

#include <algorithm>
#include <iterator>

#include "corvane/inline/Context.h"
#include "corvane/operation/InlineRuns.h"
#include "corvane/operation/LineWalk.h"

namespace CVN::Operation {

using Ondo::Node;
using Ondo::Range;
using Ondo::Tree;

namespace {

/// The length of the run of a code unit that holds the offset. Counts up to 4 on each side.
std::int64_t runAt(const Tree& tree, std::int64_t offset, char16_t unit) {
    constexpr std::int64_t limit = 4;
    std::int64_t start = offset;
    while (start > offset - limit && unitAt(tree, start - 1) == unit)
        --start;
    std::int64_t end = offset;
    while (end < offset + limit && unitAt(tree, end) == unit)
        ++end;
    return end - start;
}

/// Whether the run of delimiters at an offset can be a marker of the style, and not one of another style. The
/// pair is all there is where code holds nothing but the delimiter itself.
bool isMarkerAt(const Tree& tree, std::int64_t offset, const Range& pair, InlineToggles style) {
    const std::int64_t length = runAt(tree, offset, endMarkerOf(style).front());
    if (style == InlineToggles::CodeSpan || style == InlineToggles::MathSpan)
        return length == 1 || length == pair.length;
    return endMarkerOf(style).size() == 1 ? length == 1 || length == 3 : length >= 2;
}

bool hasColorAt(const Tree& tree, std::int64_t offset) {
    return std::any_of(std::begin(Ondo::Inline::colorEmoji), std::end(Ondo::Inline::colorEmoji),
                       [&](std::u16string_view emoji) { return isTextAt(tree, offset, emoji); });
}

bool hasMarkersAtEnds(const Tree& tree, const Range& range, InlineToggles style) {
    const std::u16string_view startMarker = startMarkerOf(style);
    const std::int64_t end = range.end() - sizeOf(endMarkerOf(style));
    if (!isTextAt(tree, range.offset, startMarker) || !isTextAt(tree, end, endMarkerOf(style))) return false;
    if (style == InlineToggles::Highlight && hasColorAt(tree, range.offset + sizeOf(startMarker)))
        return false;
    return isMarkerAt(tree, range.offset, range, style) && isMarkerAt(tree, end, range, style);
}

bool isEscaped(const Node* leaf) {
    return isOfType(leaf->parent, Ondo::ONDO_ESCAPE_NODE);
}

bool isPlainText(const Node* leaf) {
    return leaf->category == Node::Category::Text;
}

/// Whether a leaf shows a marker that makes no run of the style: as text, or as the marker of another style.
bool isLoose(const Node* leaf, InlineToggles style) {
    const bool isForeign = isInlineMarker(leaf) && !isNodeOfToggleCategory(leaf->maker, style);
    return (isPlainText(leaf) || isForeign) && !ignoredTypeNode(leaf) && !toggleTypeNode(leaf, style);
}

/// Whether a leaf and the one that holds the last unit of a marker are loose.
bool isLooseMarker(const Node::Iterator& leaf, std::int64_t lastUnit, InlineToggles style) {
    return isLoose(leaf.node, style) && isLoose(leafFrom(leaf, lastUnit).node, style);
}

bool isMarkerOf(const Node::Iterator& leaf, InlineToggles style) {
    return isInlineMarker(leaf.node) && isNodeOfToggleType(leaf->maker, style);
}

/// What stands at the ends of a pair.
struct Ends {
    Node::Iterator first; ///< the leaf that holds the first unit
    Node::Iterator last;  ///< the leaf that holds the last one
    bool isFirstLoose;
    bool isLastLoose;
};

Ends endsOf(const InlineSpan& span, const Range& pair, InlineToggles style) {
    const Node::Iterator first = leafFrom(span.first, pair.offset);
    const Node::Iterator last = leafFrom(span.last, pair.end() - 1);
    const std::int64_t firstEnd = pair.offset + sizeOf(startMarkerOf(style));
    const std::int64_t lastStart = pair.end() - sizeOf(endMarkerOf(style));
    return {first, last, isLooseMarker(first, firstEnd - 1, style) && !isEscaped(first.node),
            isLooseMarker(last, lastStart, style)};
}

/// Code and math take their text as it is: a marker behind the range may stand within a run that ends later.
bool isPairAround(const Tree& tree, const InlineSpan& span, const Range& pair, InlineToggles style) {
    if (!hasMarkersAtEnds(tree, pair, style)) return false;
    const Ends ends = endsOf(span, pair, style);
    if (ends.isFirstLoose && ends.isLastLoose) return true;
    const Node::Iterator& first = ends.first;
    const Node::Iterator& last = ends.last;
    if (isMarkerOf(first, style) && isOpeningMarker(first.node)) {
        const std::int64_t runEnd = climbedTo(first, first->maker).end();
        if (isIgnoredInline(first->maker) && runEnd > pair.end()) return isPlainText(last.node);
        return ends.isLastLoose && runEnd <= pair.end() - sizeOf(endMarkerOf(style));
    }
    if (ends.isFirstLoose && isMarkerOf(last, style) && isClosingMarker(last.node))
        return climbedTo(last, last->maker).offset >= pair.offset + sizeOf(startMarkerOf(style));
    return false;
}

bool isPairInside(const Tree& tree, const InlineSpan& span, const Range& pair, InlineToggles style) {
    if (!hasMarkersAtEnds(tree, pair, style)) return false;
    const Ends ends = endsOf(span, pair, style);
    return ends.isFirstLoose && ends.isLastLoose && !isEscaped(ends.last.node);
}

} // namespace

Range loosePair(const Tree& tree, const InlineSpan& span, const Range& range, InlineToggles style) {
    if (startMarkerOf(style).empty() || range.length <= 0) return {};
    const std::int64_t added = sizeOf(startMarkerOf(style)) + sizeOf(endMarkerOf(style));
    const Range around{range.offset - sizeOf(startMarkerOf(style)), range.length + added};
    if (isPairAround(tree, span, around, style)) return around;
    return range.length > added && isPairInside(tree, span, range, style) ? range : Range{};
}

} // namespace CVN::Operation
