#include "corvane/correction/SelectionCorrection.h"

#include <algorithm>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/support/Caret.h"
#include "tests/support/RandomNote.h"
#include "tests/support/TreeCheck.h"

using namespace Ondo;
using namespace Ondo::Test;
using CVN::Correction::SelectionCorrection;

namespace {

/// The corrected selection; the one proposed where there is no opinion.
Range corrected(const Tree& tree, const Range& old, const Range& proposed) {
    const auto results =
        SelectionCorrection().run(tree, old.offset, old.length, u"", proposed.offset, proposed.length);
    if (results.empty()) return proposed;
    EXPECT_EQ(results.size(), 1U);
    EXPECT_EQ(results[0].replaceOffset + results[0].replaceLength + results[0].replacementLength(), 0);
    return {results[0].selectionOffset, results[0].selectionLength};
}

struct Case {
    std::u16string_view old;
    std::u16string_view proposed;
    std::u16string_view corrected;
};

void expectCorrected(const std::vector<Case>& cases) {
    for (const Case& each : cases) {
        const Drawn old(each.old);
        const Drawn proposed(each.proposed);
        ASSERT_EQ(old.text, proposed.text);
        const Tree tree(old.text);
        const Drawn answer{old.text, corrected(tree, old.selection, proposed.selection)};
        EXPECT_EQ(visible(answer.drawing()), visible(each.corrected))
            << visible(each.old) << " to " << visible(each.proposed);
    }
}

TEST(SelectionCorrection, GrowingTakesConstructsIn) {
    expectCorrected({
        {u"⟦te⟧xt **bold** b", u"⟦text **bo⟧ld** b", u"⟦text **bold**⟧ b"},
        {u"⟦te⟧xt **bold** b", u"⟦text *⟧*bold** b", u"⟦text **bold**⟧ b"},
        {u"‸text **bold** b", u"⟦text **⟧bold** b", u"⟦text **bold**⟧ b"},
        {u"‸text **bold** b", u"⟦te⟧xt **bold** b", u"⟦te⟧xt **bold** b"},
        {u"‸text **bold** b", u"⟦text ⟧**bold** b", u"⟦text ⟧**bold** b"},
        {u"a **bold** te‸xt", u"a **bo⟦ld** te⟧xt", u"a ⟦**bold** te⟧xt"},
        {u"a **bold** te‸xt", u"a **bold*⟦* te⟧xt", u"a ⟦**bold** te⟧xt"},
        {u"**bo⟦l⟧d** text", u"**bo⟦ld** te⟧xt", u"⟦**bold** te⟧xt"}, // the edge that stayed
        // a jump to somewhere else
        {u"a ‸b **c** _d_ e", u"a b **c⟦** _⟧d_ e", u"a b ⟦**c** _d_⟧ e"},
        // nested ones
        {u"‸a **b _c d_ e** f", u"⟦a **b _c⟧ d_ e** f", u"⟦a **b _c d_ e**⟧ f"},
        {u"a **b‸ _c d_ e** f", u"a **b⟦ _c⟧ d_ e** f", u"a **b⟦ _c d_⟧ e** f"},
        {u"a **b‸ _c d_ e** f", u"a **b⟦ _c d_ e*⟧* f", u"a **b⟦ _c d_ e⟧** f"},
        // one kind after the other
        {u"‸a `code` b", u"⟦a `co⟧de` b", u"⟦a `code`⟧ b"},
        {u"‸a $m+n$ b", u"⟦a $m⟧+n$ b", u"⟦a $m+n$⟧ b"},
        {u"‸a ==🔴mn== b", u"⟦a ==🔴m⟧n== b", u"⟦a ==🔴mn==⟧ b"},
        {u"‸a ![alt](u.png) b", u"⟦a ![a⟧lt](u.png) b", u"⟦a ![alt](u.png)⟧ b"},
        {u"‸a [^1] b\n\n[^1]: x", u"⟦a [^⟧1] b\n\n[^1]: x", u"⟦a [^1]⟧ b\n\n[^1]: x"},
        {u"‸a [[p/q|r]] b", u"⟦a [[p/⟧q|r]] b", u"⟦a [[p/q|r]]⟧ b"},
        {u"‸a #t u# b", u"⟦a #t⟧ u# b", u"⟦a #t u#⟧ b"},
        {u"‸a <http://b.c> d", u"⟦a <http://⟧b.c> d", u"⟦a <http://b.c>⟧ d"},
        // single markers
        {u"‸a \\* b", u"⟦a \\⟧* b", u"⟦a \\⟧* b"},
        {u"‸a #tag b", u"⟦a #t⟧ag b", u"⟦a #t⟧ag b"},
        {u"a #t‸ag/ b", u"a #t⟦ag/⟧ b", u"a #t⟦ag/⟧ b"},
        // blocks, cells, other scripts
        {u"# a **‸b c**\n\n> _d e_ f", u"# a **b⟦ c**\n\n> _d⟧ e_ f", u"# a ⟦**b c**\n\n> _d e_⟧ f"},
        {u"> **a ‸b\n> c** d\n", u"> **a ⟦b\n> c** ⟧d\n", u"> ⟦**a b\n> c** ⟧d\n"},
        {u"| _a b‸_ | c |\n|--|--|\n", u"| _a ⟦b_ | c⟧ |\n|--|--|\n", u"| ⟦_a b_ | c⟧ |\n|--|--|\n"},
        {u"שלום **עולם‸** 😀", u"שלום **עו⟦לם** 😀⟧", u"שלום ⟦**עולם** 😀⟧"},
    });
}

TEST(SelectionCorrection, EdgesThatMoveOverTheirOwnMarkersStayInside) {
    expectCorrected({
        {u"**a b‸c d**", u"**a b⟦c d**⟧", u"**a b⟦c d⟧**"},
        {u"**a b‸c d**", u"⟦**a b⟧c d**", u"**⟦a b⟧c d**"},
        {u"**a _b ‸c_**", u"**a _b ⟦c_*⟧*", u"**a _b ⟦c⟧_**"},
        {u"[t‸ext](u)", u"[t⟦ext]⟧(u)", u"⟦[text](u)⟧"}, // between parts of a link there is no inside
        // but a key that extends the selection doesn't stand still
        {u"**a b⟦c d⟧**", u"**a b⟦c d*⟧*", u"⟦**a bc d**⟧"},
        {u"**⟦a b⟧c d**", u"*⟦*a b⟧c d**", u"⟦**a bc d**⟧"},
        {u"**‸a b**", u"*⟦*⟧a b**", u"⟦**a b**⟧"},
    });
}

TEST(SelectionCorrection, AllOfTheContentTakesTheMarkersIn) {
    expectCorrected({
        {u"a **b‸old** c", u"a **⟦bold⟧** c", u"a ⟦**bold**⟧ c"},
        {u"a **_bo‸ld_** c", u"a **_⟦bold⟧_** c", u"a ⟦**_bold_**⟧ c"},
        {u"a **_bo‸ld_ d** c", u"a **_⟦bold⟧_ d** c", u"a **⟦_bold_⟧ d** c"},
        {u"a `co‸de` c", u"a `⟦code⟧` c", u"a ⟦`code`⟧ c"},
        {u"[te‸xt](url)", u"[⟦text⟧](url)", u"[⟦text⟧](url)"},
        {u"[te‸xt]\n\n[text]: u", u"[⟦text⟧]\n\n[text]: u", u"⟦[text]⟧\n\n[text]: u"},
        {u"a **⟦bold⟧** c", u"a **⟦bold⟧** c", u"a **⟦bold⟧** c"},
    });
}

TEST(SelectionCorrection, PartsOfLinks) {
    expectCorrected({
        {u"[te‸xt](url)", u"[t⟦e⟧xt](url)", u"[t⟦e⟧xt](url)"},
        {u"[text](u‸rl)", u"[text](⟦url⟧)", u"[text](⟦url⟧)"},
        {u"[text](url \"‸title\")", u"[text](url \"⟦ti⟧tle\")", u"[text](url \"⟦ti⟧tle\")"},
        {u"[text](url ‸\"title\")", u"[text](url ⟦\"title\"⟧)", u"⟦[text](url \"title\")⟧"},
        {u"a [te‸xt](url)", u"a [te⟦xt](u⟧rl)", u"a ⟦[text](url)⟧"},
        {u"a [te⟦xt⟧](<url>)", u"a [te⟦xt](<url>)⟧", u"a ⟦[text](<url>)⟧"},
        {u"a ⟦[text](url)⟧", u"a [te⟦xt](u⟧rl)", u"a ⟦[text](url)⟧"},
        {u"a ⟦[text](url)⟧", u"a ⟦[text](url⟧)", u"a [⟦text⟧](url)"},
        {u"a ⟦[text](url)⟧", u"a [⟦text](url)⟧", u"a [⟦text⟧](url)"},
        {u"a ⟦[](url)⟧", u"a ⟦[](url⟧)", u"a [](⟦url⟧)"},
        {u"‸[![alt](u)](v)", u"⟦[![al⟧t](u)](v)", u"⟦[![alt](u)](v)⟧"},
    });
}

TEST(SelectionCorrection, ShrinkingKeepsConstructsWhole) {
    expectCorrected({
        {u"⟦a **bold** c⟧", u"⟦a **bold*⟧* c", u"⟦a **bold**⟧ c"},
        {u"⟦a **bold** c⟧", u"⟦a **⟧bold** c", u"⟦a **bold**⟧ c"},
        {u"⟦a **bold** c⟧", u"⟦a ⟧**bold** c", u"⟦a ⟧**bold** c"},
        {u"⟦**bold** c⟧", u"**bol⟦d** c⟧", u"⟦**bold** c⟧"},
        {u"⟦**bold** c⟧", u"**bold**⟦ c⟧", u"**bold**⟦ c⟧"},
        {u"⟦**bold**⟧", u"⟦**bo⟧ld**", u"⟦**bold**⟧"},
        {u"⟦**bold**⟧", u"**b⟦ol⟧d**", u"**b⟦ol⟧d**"},
        {u"⟦**bold**⟧", u"**⟦bold⟧**", u"**⟦bold⟧**"},
        {u"⟦**a b** c __d e__⟧", u"**a ⟦b** c __d⟧ e__", u"⟦**a b** c __d e__⟧"},
        {u"⟦**a _b c_ d**⟧", u"⟦**a _b⟧ c_ d**", u"⟦**a _b c_ d**⟧"},
        {u"⟦**_bold_**⟧", u"**_bo⟦ld_⟧**", u"⟦**_bold_**⟧"},
        // of an old selection that split a construct there is nothing to keep
        {u"⟦a **bol⟧d**", u"⟦a **b⟧old**", u"⟦a ⟧**bold**"},
    });
}

TEST(SelectionCorrection, KeysThatShrinkGiveConstructsUp) {
    expectCorrected({
        {u"⟦a **bold**⟧ c", u"⟦a **bold*⟧* c", u"⟦a ⟧**bold** c"},
        {u"a ⟦`x` c⟧", u"a `⟦x` c⟧", u"a `x`⟦ c⟧"},
        {u"⟦**bold**⟧", u"⟦**bold*⟧*", u"**⟦bold⟧**"},
        {u"⟦**bold**⟧", u"*⟦*bold**⟧", u"**⟦bold⟧**"},
        {u"**⟦_bold_⟧**", u"**⟦_bold⟧_**", u"**_⟦bold⟧_**"},
        {u"⟦[]()⟧", u"⟦[](⟧)", u"‸[]()"},
        {u"⟦😀 **a** b⟧", u"⟦😀 **a** ⟧b", u"⟦😀 **a** ⟧b"},
    });
}

TEST(SelectionCorrection, CaretsAndPartedPairs) {
    const Tree tree(u"**a**");
    EXPECT_TRUE(SelectionCorrection().run(tree, 0, 3, u"", 1, 0).empty());
    EXPECT_TRUE(SelectionCorrection().run(Tree(u""), 0, 0, u"", 0, 4).empty());
    EXPECT_EQ(corrected(tree, {9, 9}, {1, 9}), (Range{0, 5}));
    EXPECT_EQ(corrected(Tree(u"😀😀😀"), {3, 0}, {3, 2}), (Range{2, 4}));
}

TEST(SelectionCorrectionDeathTest, TextIsNoneOfItsBusiness) {
    EXPECT_DEATH(SelectionCorrection().run(Tree(u"a"), 0, 1, u"b", 0, 1), "replaceString == u\"\"");
}

/// Markers of inlines with more than one, by walking over the whole tree.
struct MarkerSpan {
    const Node* maker;
    Range range;
};

std::vector<MarkerSpan> markersOf(const Tree& tree) {
    std::vector<MarkerSpan> markers;
    for (Node::Iterator at = tree.root->begin(); at.node; ++at) {
        const bool counts = at->isMarker() && at->maker && at->maker->category == Node::Category::Inline &&
                            at->type != ONDO_HASHTAG_SEPARATOR_MARKER_NODE &&
                            at->type != ONDO_WIKILINK_SEPARATOR_MARKER_NODE &&
                            at->type != ONDO_WIKILINK_ALIAS_SEPARATOR_MARKER_NODE;
        if (counts) markers.push_back({at->maker, {at.offset, at->charCount}});
    }
    return markers;
}

/// The first construct that a selection holds a part of the markers of; -1 when there is none.
std::int64_t splitConstruct(const std::vector<MarkerSpan>& markers, const Range& selection) {
    for (const MarkerSpan& one : markers)
        for (const MarkerSpan& other : markers) {
            if (&one == &other || one.maker != other.maker) continue;
            const bool touchesOne = one.range.offset < selection.end() && selection.offset < one.range.end();
            const bool holdsOther =
                selection.offset <= other.range.offset && other.range.end() <= selection.end();
            if (selection.length > 0 && touchesOne && !holdsOther) return one.range.offset;
        }
    return -1;
}

bool isLostText(const std::vector<MarkerSpan>& markers, std::int64_t offset) {
    for (const MarkerSpan& marker : markers)
        if (marker.range.offset <= offset && offset < marker.range.end()) return false;
    return true;
}

bool isInPair(std::u16string_view text, std::int64_t at) {
    return at > 0 && at < static_cast<std::int64_t>(text.size()) &&
           (text[static_cast<std::size_t>(at)] & 0xFC00) == 0xDC00 &&
           (text[static_cast<std::size_t>(at - 1)] & 0xFC00) == 0xD800;
}

/// Of a range whose edges may part surrogate pairs.
Range withPairs(std::u16string_view text, const Range& range) {
    const std::int64_t start = range.offset - (isInPair(text, range.offset) ? 1 : 0);
    return {start, range.end() + (isInPair(text, range.end()) ? 1 : 0) - start};
}

bool isInside(const Range& range, const Range& other) {
    return other.offset <= range.offset && range.end() <= other.end();
}

TEST(SelectionCorrection, HoldsAllMarkersOrNone) {
    RandomNote random(11);
    const auto anyRange = [&random](std::int64_t length) {
        const auto a = static_cast<std::int64_t>(random.below(static_cast<std::size_t>(length) + 1));
        const auto b = static_cast<std::int64_t>(random.below(static_cast<std::size_t>(length) + 1));
        return Range{std::min(a, b), std::max(a, b) - std::min(a, b)};
    };
    for (int round = 0; round < 1500; ++round) {
        const std::u16string text = random.note(4);
        const Tree tree(text, allRuleSets[random.below(3)]);
        const std::vector<MarkerSpan> markers = markersOf(tree);
        for (int i = 0; i < 4; ++i) {
            const Range old = anyRange(tree.length());
            const Range proposed = anyRange(tree.length());
            const Range answer = corrected(tree, old, proposed);
            SCOPED_TRACE(visible(Drawn(text, old).drawing()) + "\n" +
                         visible(Drawn(text, proposed).drawing()) + "\n" +
                         visible(Drawn(text, answer).drawing()));
            ASSERT_EQ(splitConstruct(markers, answer), -1);
            ASSERT_EQ(corrected(tree, old, answer), answer);
            ASSERT_EQ(corrected(tree, proposed, answer), answer);
            ASSERT_EQ(corrected(tree, answer, answer), answer);
            if (isInside(proposed, withPairs(text, old))) continue;
            for (std::int64_t at = proposed.offset; at < proposed.end(); ++at)
                ASSERT_TRUE(isInside({at, 1}, answer) || !isLostText(markers, at));
        }
    }
}

bool isContent(const std::vector<MarkerSpan>& markers, const Range& range) {
    for (const MarkerSpan& one : markers)
        for (const MarkerSpan& other : markers)
            if (one.maker == other.maker && one.range.end() == range.offset &&
                other.range.offset == range.end())
                return true;
    return false;
}

/// Where one edge moved back by a unit a drag looks like a key.
bool looksLikeKey(const Range& old, const Range& proposed) {
    return proposed.length == old.length - 1 && isInside(proposed, old);
}

Range between(std::int64_t a, std::int64_t b) {
    return {std::min(a, b), std::abs(a - b)};
}

std::string trace(const std::u16string& text, const Range& old, const Range& proposed, const Range& answer) {
    return visible(Drawn(text, old).drawing()) + "\n" + visible(Drawn(text, proposed).drawing()) + "\n" +
           visible(Drawn(text, answer).drawing());
}

/// Drags from a place to the end of the text on one side, by strides, and back.
void expectSteadyDrag(const Tree& tree, const std::u16string& text, std::int64_t anchor,
                      std::int64_t stride) {
    const std::vector<MarkerSpan> markers = markersOf(tree);
    Range old{anchor, 0};
    Range largest = old;
    bool isOutward = true;
    for (std::int64_t pointer = anchor + stride; pointer != anchor; pointer += isOutward ? stride : -stride) {
        if (pointer < 0 || pointer > tree.length()) isOutward = false;
        if (pointer < 0 || pointer > tree.length() || isInPair(text, pointer)) continue;
        const Range proposed = between(anchor, pointer);
        const Range answer = corrected(tree, old, proposed);
        SCOPED_TRACE(trace(text, old, proposed, answer));
        ASSERT_EQ(splitConstruct(markers, answer), -1);
        for (const Range& from : {old, proposed, answer})
            ASSERT_EQ(corrected(tree, from, answer), answer);
        const bool isExempt = looksLikeKey(old, proposed) || isContent(markers, proposed);
        if (isOutward && !isExempt) {
            ASSERT_TRUE(isInside(largest, answer)) << visible(Drawn(text, largest).drawing());
            for (std::int64_t at = proposed.offset; at < proposed.end(); ++at)
                ASSERT_TRUE(isInside({at, 1}, answer) || !isLostText(markers, at));
            largest = answer;
        }
        old = answer;
    }
}

/// Presses a key until its edge is at the end of the text on that side: each press moves the edge that way.
void expectProgress(const Tree& tree, const std::u16string& text, Range old, std::int64_t step, bool isEnd) {
    for (;;) {
        if (old.length == 0) isEnd = step > 0;
        const std::int64_t edge = isEnd ? old.end() : old.offset;
        std::int64_t target = edge + step;
        if (target >= 0 && target <= tree.length() && isInPair(text, target)) target += step;
        if (target < 0 || target > tree.length()) return;
        const Range proposed = between(isEnd ? old.offset : old.end(), target);
        const Range answer = corrected(tree, old, proposed);
        SCOPED_TRACE(trace(text, old, proposed, answer));
        ASSERT_GT(((isEnd ? answer.end() : answer.offset) - edge) * step, 0);
        old = answer;
    }
}

void expectSteady(const std::u16string& text, std::int64_t from, RuleConfig::RuleSet rules) {
    if (isInPair(text, from)) return;
    const Tree tree(text, rules);
    for (const std::int64_t stride : {1, -1, 2, -3, 5})
        expectSteadyDrag(tree, text, from, stride);
    for (const std::int64_t step : {1, -1}) {
        expectProgress(tree, text, {from, 0}, step, true);
        // out to a place and back again, with the same edge
        const Range all = corrected(tree, {from, 0}, between(from, step > 0 ? tree.length() : 0));
        expectProgress(tree, text, all, -step, step > 0);
    }
}

TEST(SelectionCorrection, DragsAreSteadyAndKeysGoOn) {
    for (const char16_t* text : {
             u"a **bold** c",
             u"**_bold_** `x` *y*",
             u"a **b _c d_ e** f ~~g *h*~~",
             u"a [te **b** xt](<url> \"t\") b ![i](u) [](v)",
             u"[![alt](u)](v) `` c`d `` $m+n$ ==🔴x==",
             u"a [[p/q|r]] #t/u v# &amp; <http://b.c> [^1]\n\n[^1]: *x*",
             u"> **a\n> b** c\n\n| _a_ | `b` |\n|--|--|\n| **c** | d |\n",
             u"😀 **😀** 😀",
         }) {
        const std::u16string note(text);
        for (std::int64_t from = 0; from <= static_cast<std::int64_t>(note.size()); ++from)
            expectSteady(note, from, RuleConfig::Extended);
    }
    RandomNote random(23);
    for (int round = 0; round < 150; ++round) {
        const std::u16string text = random.note(3);
        const auto from = static_cast<std::int64_t>(random.below(text.size() + 1));
        expectSteady(text, from, allRuleSets[random.below(3)]);
    }
}

} // namespace
