#include "corvane/correction/PasteWhitespaceCorrection.h"

#include <algorithm>
#include <utility>

#include "corvane/correction/EditEdges.h"
#include "corvane/correction/PastedItemMarkers.h"
#include "corvane/operation/LineWalk.h"
#include "corvane/scan/Go.h"
#include "corvane/scan/Util.h"

namespace CVN::Correction {

using namespace Operation;
using Ondo::Go;
using Ondo::Node;

namespace {

constexpr auto closingMarks = Go::characterAnyOf(u".,;:!?\u00BB\u2019\u201D\u203A");

/// One side of the pasted text: what stands beside it in the note, and its own outermost character.
struct Edge {
    char32_t beside;
    char32_t own;
    bool isSpaced; ///< no space needed
    bool mayDrop;  ///< spaces are surplus here
    bool isVerbatim;
    bool isExempt;
};

/// How much the text changes on its two sides.
struct Change {
    std::int64_t before;
    std::int64_t behind;
};

bool isSpace(char32_t c) {
    return Go::whitespace(c) || Go::unicodeWhitespace(c);
}

bool isBlank(std::u16string_view text) {
    return std::all_of(text.begin(), text.end(), [](char16_t unit) { return isSpace(unit); });
}

bool isSpacedBefore(const Ondo::Tree& tree, std::int64_t offset, const Node* leaf) {
    const char32_t before = characterBefore(tree, offset);
    if (isSpace(before) || isOpener(leaf)) return true;
    if (!Go::unicodePunctuation(before) || Go::unicodeClosePunctuation(before)) return false;
    return !closingMarks(before) && !isCloser(leaf);
}

bool isSpacedBehind(const Ondo::Tree& tree, std::int64_t end, const Node* leaf) {
    if (end == tree.length()) return true;
    const char32_t behind = characterAt(tree, end);
    if (isSpace(behind)) return true;
    return Go::unicodePunctuation(behind) && !Go::unicodeOpenPunctuation(behind) && !isOpener(leaf);
}

bool standTogether(char32_t left, char32_t right) {
    if (Go::unicodeDecimalNumber(left) && Go::unicodeDecimalNumber(right)) return true;
    if (Go::unicodeCurrencySymbol(left) || Go::unicodeCurrencySymbol(right)) return true;
    return left == U'«' || right == U'»' || (Go::logogram(left) && Go::logogram(right));
}

std::int64_t spacesAtEnd(std::u16string_view text) {
    const auto last = text.find_last_not_of(u' ');
    return static_cast<std::int64_t>(last == std::u16string_view::npos ? text.size()
                                                                       : text.size() - last - 1);
}

/// How many of `spaces` units at an edge to drop, as a negative number, or the one to put.
std::int64_t changeAt(const Edge& edge, std::int64_t spaces) {
    if (edge.isExempt || edge.isVerbatim) return 0;
    if (edge.mayDrop) return -spaces;
    return edge.isSpaced || isSpace(edge.own) ? 0 : 1;
}

std::u16string changed(std::u16string_view text, const Change& change) {
    if (change.before < 0) text.remove_prefix(static_cast<std::size_t>(-change.before));
    const auto behind = static_cast<std::size_t>(std::max<std::int64_t>(-change.behind, 0));
    text.remove_suffix(std::min(behind, text.size()));
    std::u16string out(change.before > 0 ? u" " : u"");
    out += text;
    if (change.behind > 0) out += u' ';
    return out;
}

} // namespace

std::vector<Result> PasteWhitespaceCorrection::run(const Ondo::Tree& tree, std::int64_t offset,
                                                   std::int64_t length, std::u16string_view replacement,
                                                   std::int64_t selectionOffset,
                                                   std::int64_t selectionLength) const {
    if (tree.length() == 0 || replacement.empty() || isOnlyItemMarkers(tree, offset, replacement)) return {};
    const std::int64_t end = offset + length;
    const bool startsLine = isLineStart(tree, offset);
    const Node* const left = leafEndingAt(tree, offset);
    const Node* const right = leafStartingAt(tree, end);
    // The line ending of a block of code above is not what the text is pasted behind.
    const bool isVerbatim = isInVerbatim(right) || (!startsLine && isInVerbatim(left));

    Edge before{characterBefore(tree, offset), firstCharacter(replacement), false, false, isVerbatim, false};
    before.isSpaced = startsLine || isSpacedBefore(tree, offset, left);
    before.mayDrop = before.isSpaced && !startsLine;
    before.isExempt = standTogether(before.beside, before.own);
    Edge behind{characterAt(tree, end), lastCharacter(replacement), false, false, isVerbatim, false};
    behind.isSpaced = isSpacedBehind(tree, end, right);
    behind.mayDrop = behind.isSpaced && !(startsLine && isBlank(replacement));
    behind.isExempt = standTogether(behind.own, behind.beside);

    const Change change{changeAt(before, Ondo::Util::countLeading(replacement, Go::character(u' '))),
                        changeAt(behind, spacesAtEnd(replacement))};
    std::u16string text = changed(replacement, change);
    if (text == replacement) return {};
    const auto size = static_cast<std::int64_t>(replacement.size());
    const ChangedEnds ends{offset, size, change.before, change.behind};
    const Ondo::Range selection = ends.moved(tree.length() - length + size, selectionOffset, selectionLength);
    return {Result(offset, length, std::move(text), selection.offset, selection.length)};
}

} // namespace CVN::Correction
