#include "corvane/operation/OperationToggleInlineStyle.h"

#include <algorithm>
#include <string>

#include "corvane/operation/InlineEdits.h"
#include "corvane/operation/InlineRuns.h"
#include "corvane/operation/InlineSpans.h"
#include "corvane/operation/InlineStyle.h"
#include "corvane/operation/InlineWord.h"
#include "corvane/operation/LineWalk.h"
#include "corvane/operation/LoosePair.h"
#include "corvane/scan/Go.h"

namespace CVN::Operation {

using Ondo::Node;
using Ondo::Range;
using Ondo::Tree;

namespace {

/// Whether an offset parts a surrogate pair or a CR LF.
bool partsCharacter(const Tree& tree, std::int64_t offset) {
    const char16_t before = unitAt(tree, offset - 1);
    const char16_t behind = unitAt(tree, offset);
    return (before == u'\r' && behind == u'\n') ||
           ((before & 0xFC00) == 0xD800 && (behind & 0xFC00) == 0xDC00);
}

/// A range with its edges moved out to whole characters; a caret moves in front of the one it parts.
Range onCharacters(const Tree& tree, std::int64_t offset, std::int64_t length) {
    const std::int64_t start = offset - (partsCharacter(tree, offset) ? 1 : 0);
    if (length == 0) return {start, 0};
    const std::int64_t end = offset + length;
    return {start, end + (partsCharacter(tree, end) ? 1 : 0) - start};
}

/// The range without blanks at its ends, unless there is nothing else in it.
Range withoutBlanks(const Tree& tree, const Range& range) {
    const auto isBlank = [&](std::int64_t at) { return Ondo::Go::spaceOrTab(unitAt(tree, at)); };
    std::int64_t start = range.offset;
    std::int64_t end = range.end();
    while (start < end && isBlank(start))
        ++start;
    while (end > start && isBlank(end - 1))
        --end;
    return start == end ? range : Range{start, end - start};
}

/// Replaces a marker of underscores, which would not close what asterisks open.
void replaceUnderscore(const Tree& tree, InlineEdits& edits, const Range& marker, std::u16string_view text) {
    if (isUnderscore(tree, marker)) edits.replace(marker.offset, marker.length, text);
}

Result caretAt(std::int64_t offset, std::int64_t caret) {
    return Result(offset, 0, {}, caret, 0);
}

} // namespace

std::u16string_view ToggleInlineStyle::startMarkerString() const {
    return startMarkerOf(style_);
}

std::u16string_view ToggleInlineStyle::endMarkerString() const {
    return endMarkerOf(style_);
}

std::int64_t ToggleInlineStyle::startLength() const {
    return sizeOf(startMarkerString());
}

std::int64_t ToggleInlineStyle::endLength() const {
    return sizeOf(endMarkerString());
}

std::vector<Result> ToggleInlineStyle::run(const Tree& tree, std::int64_t offset, std::int64_t length,
                                           std::int64_t selectionOffset, std::int64_t selectionLength) const {
    const Range range = onCharacters(tree, offset, length);
    const Range selection = onCharacters(tree, selectionOffset, selectionLength);
    std::vector<Result> results =
        range.length != 0 ? runSelection(tree, range.offset, range.length, selection.offset, selection.length)
                          : runCursor(tree, range.offset, selection.offset, selection.length);
    const bool changesNothing = std::all_of(results.begin(), results.end(), [&](const Result& each) {
        return each.replaceLength == 0 && each.replacementString.empty() &&
               each.selectionOffset == selectionOffset && each.selectionLength == selectionLength;
    });
    return changesNothing ? std::vector<Result>() : results;
}

// At a caret

std::vector<Result> ToggleInlineStyle::runCursor(const Tree& tree, std::int64_t offset,
                                                 std::int64_t selectionOffset,
                                                 std::int64_t selectionLength) const {
    const bool hasMarkers = startLength() > 0;
    if (hasMarkers && isEmptyPairAt(tree, offset)) {
        const std::int64_t start = offset - startLength();
        return {Result(start, startLength() + endLength(), {}, start, 0)};
    }
    const Node::Iterator leaf = leafAt(tree, offset);
    if (isBlockMarker(leaf.node) && offset != tree.length()) return {};
    if (hasMarkers)
        if (std::vector<Result> step = stepOverMarker(tree, offset); !step.empty()) return step;
    if (const Node* const run = toggleCategoryNode(leaf.node, style_)) {
        const Node::Iterator at = climbedTo(leaf, run);
        return runSelection(tree, at.offset, at->charCount, selectionOffset, selectionLength);
    }
    const Node* const ignored = ignoredTypeNode(leaf.node);
    if (ignored) {
        const Node::Iterator at = climbedTo(leaf, ignored);
        if (at.offset != offset && at.end() != offset) return {};
    }
    const Range word = wordAround(tree, leaf, offset, style_);
    if (word.length > 0)
        return runSelection(tree, word.offset, word.length, selectionOffset, selectionLength);
    if (!hasMarkers || (!ignored && isInBlockSyntax(leaf.node))) return {};
    std::vector<Result> results;
    std::u16string pair(startMarkerString());
    Result::addToList(results, offset, 0, pair.append(endMarkerString()), selectionOffset, selectionLength);
    if (selectionOffset == offset && selectionLength == 0) results.back().selectionOffset -= endLength();
    return results;
}

/// A pair may read as a fence, a rule or the underline of a heading: the text counts, not the tree. But a
/// marker that starts at the caret belongs to a run that isn't empty.
bool ToggleInlineStyle::isEmptyPairAt(const Tree& tree, std::int64_t offset) const {
    if (!isTextAt(tree, offset - startLength(), startMarkerString()) ||
        !isTextAt(tree, offset, endMarkerString()))
        return false;
    const Node::Iterator leaf = leafAt(tree, offset);
    if (leaf.offset == offset && isInlineMarker(leaf.node)) return false;
    const char16_t unit = startMarkerString().front();
    const bool isInDouble =
        isTextAt(tree, offset - 2, std::u16string(2, unit)) && unitAt(tree, offset - 3) != unit &&
        isTextAt(tree, offset, std::u16string(2, unit)) && unitAt(tree, offset + 2) != unit;
    return !isSingleCharacter() || !isInDouble;
}

/// Two asterisks beside the caret are no marker of italic: then the caret stays.
std::vector<Result> ToggleInlineStyle::stepOverMarker(const Tree& tree, std::int64_t offset) const {
    const std::u16string both(2, startMarkerString().front());
    const bool isDoubleBefore = isTextAt(tree, offset - 2, both) && unitAt(tree, offset - 3) != both[0];
    const bool isDoubleBehind = isTextAt(tree, offset, both) && unitAt(tree, offset + 2) != both[0];
    if (!isSingleCharacter() || !isDoubleBehind) {
        if (isTextAt(tree, offset, startMarkerString())) return {caretAt(offset, offset + startLength())};
        if (isTextAt(tree, offset, endMarkerString())) return {caretAt(offset, offset + endLength())};
    }
    if (!isSingleCharacter() || !isDoubleBefore) {
        if (isTextAt(tree, offset - startLength(), startMarkerString()))
            return {caretAt(offset, offset - startLength())};
        if (isTextAt(tree, offset - endLength(), endMarkerString()))
            return {caretAt(offset, offset - endLength())};
    }
    return {};
}

// On a range

std::vector<Result> ToggleInlineStyle::runSelection(const Tree& tree, std::int64_t offset,
                                                    std::int64_t length, std::int64_t selectionOffset,
                                                    std::int64_t selectionLength) const {
    const Range given{offset, length};
    Range selection{selectionOffset, selectionLength};
    const Range trimmed = withoutBlanks(tree, given);
    if (!(trimmed == given)) selection = trimmed;
    const Range range = withoutCuts(tree, trimmed, style_);
    if (!(range == trimmed) && selection == trimmed) selection = range;

    std::vector<InlineSpan> spans = inlineSpans(tree, range, style_);
    std::erase_if(spans, [&](InlineSpan& span) { return !settle(tree, span, trimmed, selection); });
    if (spans.empty())
        if (const auto span = spanBetweenRuns(tree, range, style_)) spans.push_back(*span);
    const bool isOneLine = isOnOneLine(tree, range);
    const bool sets = std::any_of(spans.begin(), spans.end(), [&](const InlineSpan& span) {
        return hasUnstyledText(span) && span.loose.length == 0;
    });
    InlineEdits edits;
    for (const InlineSpan& span : spans) {
        if (sets && span.loose.length == 0) {
            setType(tree, edits, span, selection, isOneLine);
        } else if (!sets && span.loose.length > 0) {
            edits.replace(span.loose.end() - endLength(), endLength(), {});
            edits.replace(span.loose.offset, startLength(), {});
        } else if (!sets) {
            removeType(tree, edits, span);
        }
    }
    return edits.results(selection, tree.length());
}

/// A pair may have become markers of other styles, which a span moves off, or an address may have swallowed
/// the marker behind the range, so that the span goes beyond it.
bool ToggleInlineStyle::settle(const Tree& tree, InlineSpan& span, const Range& range,
                               Range& selection) const {
    const auto find = [&](std::int64_t start, std::int64_t end) {
        span.loose = loosePair(tree, span, {start, end - start}, style_);
        return span.loose.length > 0;
    };
    if (find(span.offset, span.end)) return true;
    if (!uncross(tree, span, selection)) return false;
    if (!find(span.offset, span.end))
        find(std::max(span.offset, range.offset), std::min(span.end, range.end()));
    return true;
}

/// A selection that ends where the span does goes with it when it moves out. False when nothing is left.
bool ToggleInlineStyle::uncross(const Tree& tree, InlineSpan& span, Range& selection) const {
    const InlineSpan before = span;
    if (!uncrossSpan(tree, span, style_)) return false;
    const std::int64_t start = std::min(span.offset, span.part.offset);
    span.part = {start, std::max(span.end, span.part.end()) - start};
    if (selection.length == 0) return true;
    if (selection.offset == before.offset && span.offset < before.offset) {
        selection.length += before.offset - span.offset;
        selection.offset = span.offset;
    }
    if (selection.end() == before.end && span.end > before.end) selection.length += span.end - before.end;
    return true;
}

/// A run of the style that the range begins or ends in counts as a whole, and so does one in front of it.
bool ToggleInlineStyle::isOnOneLine(const Tree& tree, const Range& range) const {
    const auto lineOf = [&](const Node::Iterator& leaf) {
        const Node* const run = toggleTypeNode(leaf.node, style_);
        return run ? climbedTo(leaf, run).line : leaf.line;
    };
    Node::Iterator first = leafAt(tree, range.offset);
    const Node* const before = first->previousSibling;
    if (before && first.offset == range.offset && isNodeOfToggleType(before, style_)) first.previousSibling();
    Node::Iterator last = leafAt(tree, range.end());
    if (last.offset >= range.end()) toPreviousLeaf(last);
    return lineOf(first) == lineOf(last);
}

bool ToggleInlineStyle::hasUnstyledText(const InlineSpan& span) const {
    for (Node::Iterator leaf = span.first; leaf.node && leaf.offset < span.end; toNextLeaf(leaf))
        if (leaf->category == Node::Category::Text && !toggleTypeNode(leaf.node, style_) &&
            !ignoredTypeNode(leaf.node))
            return true;
    return false;
}

// Setting

void ToggleInlineStyle::setType(const Tree& tree, InlineEdits& edits, const InlineSpan& span,
                                const Range& selection, bool isOneLine) const {
    const Node* const ignored = ignoredTypeNode(span.first.node);
    if (ignored && ignored == ignoredTypeNode(span.last.node)) return;
    const Runs runs = runsAtEnds(span, edits);
    setEnd(tree, edits, span, runs.end);
    eraseInnerMarkers(edits, span, runs);
    setStart(tree, edits, span, runs.start);
    growSelection(tree, edits, span, runs, selection, isOneLine);
}

/// A run that touches the span is joined with it: its marker in between goes.
ToggleInlineStyle::Runs ToggleInlineStyle::runsAtEnds(const InlineSpan& span, InlineEdits& edits) const {
    const auto touches = [&](const Node::Iterator& leaf) {
        return isInlineMarker(leaf.node) && isNodeOfToggleType(leaf->maker, style_);
    };
    Runs runs{climbedTo(span.first, toggleCategoryNode(span.first.node, style_)),
              climbedTo(span.last, toggleCategoryNode(span.last.node, style_))};
    Node::Iterator before = span.first;
    toPreviousLeaf(before);
    if (!runs.start.node && before.end() == span.offset && touches(before) && isClosingMarker(before.node)) {
        runs.start = climbedTo(before, before->maker);
        edits.replace(before.offset, before->charCount, {});
    }
    Node::Iterator behind = span.last;
    toNextLeaf(behind);
    if (!runs.end.node && behind.offset == span.end && touches(behind) && isOpeningMarker(behind.node)) {
        runs.end = climbedTo(behind, behind->maker);
        edits.replace(behind.offset, behind->charCount, {});
    }
    return runs;
}

void ToggleInlineStyle::setEnd(const Tree& tree, InlineEdits& edits, const InlineSpan& span,
                               const Node::Iterator& run) const {
    if (!run.node) {
        edits.insert(span.end, endMarkerString());
        return;
    }
    const Range closing = closingMarker(run);
    replaceUnderscore(tree, edits, closing, startMarkerString());
    if (isNodeOfToggleType(run.node, style_)) return;
    const std::int64_t behind = behindBlanks(tree, span.last, span.end);
    if (behind >= closing.offset) {
        edits.replace(closing.offset, closing.length, endMarkerString());
        return;
    }
    edits.insert(behind, markerText(tree, openingMarker(run)));
    edits.insert(span.end, endMarkerString());
}

void ToggleInlineStyle::eraseInnerMarkers(InlineEdits& edits, const InlineSpan& span,
                                          const Runs& runs) const {
    const Node* const opening = runs.start.node ? runs.start->firstChild : nullptr;
    const Node* const closing = runs.end.node ? runs.end->lastChild : nullptr;
    for (Node::Iterator leaf = span.last; leaf.node && leaf.end() > span.offset; toPreviousLeaf(leaf))
        if (isInlineMarker(leaf.node) && isNodeOfToggleCategory(leaf->maker, style_) &&
            leaf.node != opening && leaf.node != closing)
            edits.replace(leaf.offset, leaf->charCount, {});
}

void ToggleInlineStyle::setStart(const Tree& tree, InlineEdits& edits, const InlineSpan& span,
                                 const Node::Iterator& run) const {
    if (!run.node) {
        edits.insert(span.offset, startMarkerString());
        return;
    }
    const Range opening = openingMarker(run);
    replaceUnderscore(tree, edits, opening, endMarkerString());
    if (isNodeOfToggleType(run.node, style_)) {
        if (run.end() < span.end) edits.dropResizingBefore(closingMarker(run).offset);
        return;
    }
    const std::int64_t before = beforeBlanks(tree, span.first, span.offset);
    if (before <= opening.end()) {
        edits.replace(opening.offset, opening.length, startMarkerString());
        return;
    }
    edits.insert(span.offset, startMarkerString());
    edits.insert(before, markerText(tree, closingMarker(run)));
}

/// A marker at an edge of the selection joins it where the styled text isn't just the selection: where there
/// are several lines, or blanks and other syntax around the text. A run takes in the blanks next to it, at
/// its end also those behind it. A caret where a marker goes in comes behind it, and takes in no end.
void ToggleInlineStyle::growSelection(const Tree& tree, InlineEdits& edits, const InlineSpan& span,
                                      const Runs& runs, const Range& selection, bool isOneLine) const {
    const auto isExact = [&](const Node::Iterator& run) {
        return run.node && isNodeOfToggleType(run.node, style_);
    };
    const auto isBlankAt = [&](std::int64_t offset) {
        return Ondo::Go::unicodeWhitespace(unitAt(tree, offset));
    };
    const bool reachesBack =
        isExact(runs.start) && runs.start.offset < span.offset && isBlankAt(span.offset - 1);
    const bool reachesOn = isExact(runs.end) && span.end < tree.length() - 1 && isBlankAt(span.end);
    const bool movesStart = span.offset != span.part.offset || reachesBack;
    const bool movesEnd = span.end != span.part.end() || reachesOn;
    const bool joinsStart = !runs.start.node && span.offset == selection.offset && (movesEnd || !isOneLine);
    const bool joinsEnd =
        !runs.end.node && selection.length > 0 && span.end == selection.end() && (movesStart || !isOneLine);
    edits.growSelection(joinsStart ? startLength() : 0, joinsEnd ? endLength() : 0);
}

// Removing

void ToggleInlineStyle::removeType(const Tree& tree, InlineEdits& edits, const InlineSpan& span) const {
    const Node::Iterator startRun = climbedTo(span.first, toggleTypeNode(span.first.node, style_));
    const Node::Iterator endRun = climbedTo(span.last, toggleTypeNode(span.last.node, style_));
    if (endRun.node) removeFromRun(tree, edits, endRun, span);
    for (Node::Iterator leaf = span.last; leaf.node && leaf.end() > span.offset; toPreviousLeaf(leaf))
        if (isInlineMarker(leaf.node) && isOpeningMarker(leaf.node) && leaf->maker != endRun.node &&
            leaf->maker != startRun.node && isNodeOfToggleType(leaf->maker, style_))
            removeFromRun(tree, edits, climbedTo(leaf, leaf->maker), span);
    if (startRun.node && startRun.node != endRun.node) removeFromRun(tree, edits, startRun, span);
}

void ToggleInlineStyle::removeFromRun(const Tree& tree, InlineEdits& edits, const Node::Iterator& run,
                                      const InlineSpan& span) {
    const Range opening = openingMarker(run);
    const Range closing = closingMarker(run);
    const Range part = adjustForWhitespace(tree, run, span);
    const std::int64_t contentEnd = beforeTrailingMarkers(run);
    const bool isMarkerAlone = part.offset >= contentEnd;
    if (part.end() > opening.end() && part.end() < contentEnd) {
        edits.replace(closing.offset, closing.length, markerText(tree, closing));
        edits.insert(part.end(), markerText(tree, opening));
    } else {
        edits.replace(closing.offset, closing.length, {});
    }
    if (part.offset > behindLeadingMarkers(run) && !isMarkerAlone) {
        edits.insert(part.offset, markerText(tree, closing));
        edits.replace(opening.offset, opening.length, markerText(tree, opening));
    } else {
        edits.replace(opening.offset, opening.length, {});
    }
}

/// What the run holds is covered in whole: its markers and those of the run would cross.
Range ToggleInlineStyle::adjustForWhitespace(const Tree& tree, const Node::Iterator& run,
                                             const InlineSpan& span) {
    std::int64_t start = span.offset;
    std::int64_t end = span.end;
    if (start > run.offset) {
        const Node::Iterator child = childOf(run, span.first);
        start = beforeBlanks(tree, span.first, child->firstChild ? child.offset : start);
    }
    if (end < run.end()) {
        const Node::Iterator child = childOf(run, span.last);
        end = behindBlanks(tree, span.last, child->firstChild ? child.end() : end);
    }
    return {start, end - start};
}

} // namespace CVN::Operation
