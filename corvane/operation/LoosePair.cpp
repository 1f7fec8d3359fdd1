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

/// Whether the run of delimiters at an offset can be a marker of the style, and not one of another style.
bool isMarkerAt(const Tree& tree, std::int64_t offset, InlineToggles style) {
    const std::int64_t length = runAt(tree, offset, endMarkerOf(style).front());
    if (style == InlineToggles::CodeSpan || style == InlineToggles::MathSpan) return length == 1;
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
    return isMarkerAt(tree, range.offset, style) && isMarkerAt(tree, end, style);
}

bool isEscaped(const Node* leaf) {
    return isOfType(leaf->parent, Ondo::ONDO_ESCAPE_NODE);
}

bool isPlainText(const Node* leaf) {
    return leaf->category == Node::Category::Text;
}

bool isUnstyledText(const Node* leaf, InlineToggles style) {
    return isPlainText(leaf) && !ignoredTypeNode(leaf) && !toggleTypeNode(leaf, style);
}

bool isMarkerOf(const Node::Iterator& leaf, InlineToggles style) {
    return isInlineMarker(leaf.node) && isNodeOfToggleType(leaf->maker, style);
}

/// Code and math take their text as it is: a marker behind the range may stand within a run that ends later.
bool isPairAround(const Tree& tree, const Range& range, InlineToggles style) {
    if (!hasMarkersAtEnds(tree, range, style)) return false;
    const Node::Iterator first = leafAt(tree, range.offset);
    const Node::Iterator last = leafAt(tree, range.end() - 1);
    const bool isFirstText = isUnstyledText(first.node, style) && !isEscaped(first.node);
    const bool isLastText = isUnstyledText(last.node, style);
    if (isFirstText && isLastText) return true;
    if (isMarkerOf(first, style) && isOpeningMarker(first.node)) {
        const std::int64_t runEnd = climbedTo(first, first->maker).end();
        if (isIgnoredInline(first->maker) && runEnd > range.end()) return isPlainText(last.node);
        return isLastText && runEnd <= range.end() - sizeOf(endMarkerOf(style));
    }
    if (isFirstText && isMarkerOf(last, style) && isClosingMarker(last.node))
        return climbedTo(last, last->maker).offset >= range.offset + sizeOf(startMarkerOf(style));
    return false;
}

bool isPairInside(const Tree& tree, const Range& range, InlineToggles style) {
    if (!hasMarkersAtEnds(tree, range, style)) return false;
    const Node* const first = leafAt(tree, range.offset).node;
    const Node* const last = leafAt(tree, range.end() - 1).node;
    return isUnstyledText(first, style) && isUnstyledText(last, style) && !isEscaped(first) &&
           !isEscaped(last);
}

} // namespace

Range loosePair(const Tree& tree, const Range& range, InlineToggles style) {
    if (startMarkerOf(style).empty() || range.length <= 0) return {};
    const std::int64_t added = sizeOf(startMarkerOf(style)) + sizeOf(endMarkerOf(style));
    const Range around{range.offset - sizeOf(startMarkerOf(style)), range.length + added};
    if (isPairAround(tree, around, style)) return around;
    return range.length > added && isPairInside(tree, range, style) ? range : Range{};
}

} // namespace CVN::Operation
