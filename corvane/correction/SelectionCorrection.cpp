#include "corvane/correction/SelectionCorrection.h"

#include <algorithm>

#include "corvane/correction/EditEdges.h"
#include "corvane/correction/InlineConstruct.h"
#include "corvane/operation/LineWalk.h"
#include "corvane/scan/Assert.h"

namespace CVN::Correction {

using namespace Operation;

namespace {

/// The outermost first.
std::vector<InlineConstruct> constructsInward(const Ondo::Tree& tree, std::int64_t position) {
    std::vector<InlineConstruct> around = constructsAround(tree, position);
    std::reverse(around.begin(), around.end());
    return around;
}

bool isInPair(const Ondo::Tree& tree, std::int64_t position) {
    return (unitAt(tree, position - 1) & 0xFC00) == 0xD800 && (unitAt(tree, position) & 0xFC00) == 0xDC00;
}

Span withWholePairs(const Ondo::Tree& tree, const Ondo::Range& selection) {
    return {selection.offset - (isInPair(tree, selection.offset) ? 1 : 0),
            selection.end() + (isInPair(tree, selection.end()) ? 1 : 0)};
}

bool isInside(const Span& span, const Span& other) {
    return other.holds(span.start) && other.holds(span.end);
}

/// A grown selection without the markers at its grown edges whose construct holds the other edge. It is left
/// as it was where nothing of what it grew by would remain.
Span withoutOwnMarkers(const Ondo::Tree& tree, const Span& grown, const Span& old) {
    Span span = grown;
    if (!old.holds(grown.start))
        for (const InlineConstruct& each : constructsInward(tree, grown.end))
            if (each.span.start <= span.start && span.start < each.content.start)
                span.start = each.content.start;
    if (!old.holds(grown.end))
        for (const InlineConstruct& each : constructsInward(tree, grown.start))
            if (each.content.end < span.end && span.end <= each.span.end) span.end = each.content.end;
    return span.isEmpty() || isInside(span, old) ? grown : span;
}

/// Takes in what a selection splits of the constructs inside a limit.
Span withSplitConstructs(const Ondo::Tree& tree, const Span& selection, const Span& limit) {
    Span span = selection;
    const std::vector<InlineConstruct> aroundStart = constructsAround(tree, selection.start);
    for (const InlineConstruct& each : aroundStart)
        if (selection.end >= each.span.end && isInside(each.span, limit)) span.start = each.span.start;
    for (const InlineConstruct& each : constructsAround(tree, selection.end))
        if (selection.start <= each.span.start && isInside(each.span, limit)) span.end = each.span.end;
    for (const InlineConstruct& each : aroundStart) {
        if (selection.end >= each.span.end || !isInside(each.span, limit)) continue;
        if (each.touchesMarker(span)) span = each.span;
    }
    return span;
}

/// Takes in the markers around what a selection holds all of.
Span withMarkersAround(const Ondo::Tree& tree, const Span& selection) {
    Span span = selection;
    for (const InlineConstruct& each : constructsAround(tree, selection.start))
        if (span == each.content) span = each.span;
    return span;
}

/// Gives up the constructs that the end lies in and the start doesn't. Where the selection begins with one,
/// that is but the opening marker.
void leaveAtEnd(const Ondo::Tree& tree, Span& span) {
    for (const InlineConstruct& each : constructsInward(tree, span.end)) {
        if (span.start < each.span.start) {
            span.end = each.span.start;
            return;
        }
        span.start = std::max(span.start, each.content.start);
    }
}

/// The same the other way round.
void leaveAtStart(const Ondo::Tree& tree, Span& span) {
    for (const InlineConstruct& each : constructsInward(tree, span.start)) {
        if (span.end > each.span.end) {
            span.start = each.span.end;
            return;
        }
        span.end = std::min(span.end, each.content.end);
    }
}

/// Cuts a selection inside of a link or image to the first of its parts that it has something of.
void keepOnePart(const Ondo::Tree& tree, Span& span) {
    for (const InlineConstruct& each : constructsAround(tree, span.start)) {
        if (span.end >= each.span.end) continue;
        for (const Span& marker : each.innerMarkers()) {
            if (!span.touches(marker)) continue;
            if (span.start < marker.start)
                span.end = marker.start;
            else
                span.start = marker.end;
        }
    }
}

/// A selection without what it splits; empty when nothing is left.
Span withoutSplitConstructs(const Ondo::Tree& tree, Span span) {
    for (Span before{0, 0}; !span.isEmpty() && !(span == before);) {
        before = span;
        leaveAtEnd(tree, span);
        if (!span.isEmpty()) leaveAtStart(tree, span);
        if (!span.isEmpty()) keepOnePart(tree, span);
    }
    return span;
}

Span grown(const Ondo::Tree& tree, const Span& proposed, const Span& old) {
    const Span span = withoutOwnMarkers(tree, proposed, old);
    return withMarkersAround(tree, withSplitConstructs(tree, span, {0, tree.length()}));
}

/// What a key does to a selection that it shrinks. All that is split by that is the construct that the edge
/// stood at.
bool isOneStep(const Span& proposed, const Span& old) {
    return (proposed.start == old.start && proposed.end == old.end - 1) ||
           (proposed.end == old.end && proposed.start == old.start + 1);
}

/// A shrunk selection with the constructs that it splits and the old one held. One that splits none stays, so
/// that the content of a construct can be selected.
Span withKeptConstructs(const Ondo::Tree& tree, const Span& proposed, const Span& old) {
    const Span span = withSplitConstructs(tree, proposed, old);
    return span == proposed ? span : withMarkersAround(tree, span);
}

Span shrunk(const Ondo::Tree& tree, const Span& proposed, const Span& old) {
    const bool isStep = isOneStep(proposed, old);
    const Span span =
        withoutSplitConstructs(tree, isStep ? proposed : withKeptConstructs(tree, proposed, old));
    if (!span.isEmpty()) return span;
    const bool hasStartMoved = proposed.start != old.start && proposed.end == old.end;
    const std::int64_t caret = hasStartMoved ? proposed.end : proposed.start;
    return {caret, caret};
}

} // namespace

std::vector<Result> SelectionCorrection::run(const Ondo::Tree& tree, std::int64_t offset, std::int64_t length,
                                             std::u16string_view replaceString, std::int64_t selectionOffset,
                                             std::int64_t selectionLength) const {
    // NOLINTNEXTLINE(readability-container-size-empty): the condition is printed as it stands
    CORVANE_ASSERT(replaceString == u"", "SelectionCorrection");
    const Ondo::Range selection = clampedTo(tree.length(), selectionOffset, selectionLength);
    if (selection.length == 0) return {};
    const Span old = withWholePairs(tree, clampedTo(tree.length(), offset, length));
    const Span proposed = withWholePairs(tree, selection);
    const Span span = isInside(proposed, old) ? shrunk(tree, proposed, old) : grown(tree, proposed, old);
    return {Result(0, 0, std::u16string(), span.start, span.end - span.start)};
}

} // namespace CVN::Correction
