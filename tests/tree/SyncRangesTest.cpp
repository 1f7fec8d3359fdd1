#include "corvane/tree/SyncRanges.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "tests/support/Print.h"
#include "tests/support/RandomNote.h"
#include "tests/support/TreeCheck.h"

namespace Ondo::Test {
namespace {

TEST(SyncRanges, AdjustReplacementClipsToTheRedrawRange) {
    const struct {
        const char* what;
        Range redraw;
        Replacement edit;
        const char* adjusted;
    } cases[] = {
        {"inside", {0, 9}, {{2, 1}, u"abc"}, "[2, 1]abc"},
        {"the same", {2, 3}, {{2, 1}, u"abc"}, "[2, 1]abc"},
        {"begins before", {4, 9}, {{2, 3}, u"abcd"}, "[4, 1]cd"},
        {"begins before by its whole text", {4, 9}, {{2, 2}, u"ab"}, "[4, 0]"},
        {"lies before", {5, 9}, {{2, 2}, u"ab"}, "[2, 2]ab"},
        {"ends behind", {0, 4}, {{2, 3}, u"abcd"}, "[2, 1]ab"},
        {"begins where the range ends", {0, 2}, {{2, 3}, u"ab"}, "[2, 1]"},
        {"lies behind", {0, 1}, {{2, 3}, u"ab"}, "[2, 3]ab"},
        {"reaches out at both ends", {4, 2}, {{2, 9}, u"abcdefg"}, "[4, 4]cd"},
        {"replaces less than is clipped", {4, 9}, {{2, 1}, u"abcd"}, "[4, 0]cd"},
    };
    for (const auto& c : cases) {
        Replacement edit = c.edit;
        SyncRanges::adjustReplacement(edit, c.redraw);
        EXPECT_EQ(show(edit), c.adjusted) << c.what;
    }
}

TEST(SyncRanges, AddKeepsRangesCurrentAndWidensThem) {
    SyncRanges sync;
    sync.add({{10, 4}}, {{11, 0}, u"xy"}); // 2 units wider than it was
    EXPECT_EQ(show(sync.ranges), "[10, 2]->[10, 4]");
    sync.add({{0, 3}, {20, 2}},
             {{1, 2}, u""}); // 2 units fewer before it, and a second range of the same edit
    EXPECT_EQ(show(sync.ranges), "[10, 2]->[8, 4] [0, 5]->[0, 3] [20, 2]->[20, 2]");
    // An edit that takes the first unit off the first range.
    sync.add({{7, 2}}, {{7, 2}, u"uv"});
    EXPECT_EQ(show(sync.ranges), "[11, 1]->[9, 3] [0, 5]->[0, 3] [20, 2]->[20, 2] [9, 2]->[7, 4]");
    EXPECT_EQ(show(sync.replacements), "[11, 0]xy [1, 2] [7, 2]uv");
}

TEST(SyncRanges, MergeRanges) {
    const struct {
        const char* what;
        std::vector<RangePair> pairs; ///< redraw range, initial range
        const char* merged;
    } cases[] = {
        {"none", {}, ""},
        {"apart", {{{1, 2}, {0, 2}}, {{8, 1}, {6, 1}}}, "[6, 1]->[8, 1] [0, 2]->[1, 2]"},
        {"touching", {{{0, 3}, {0, 2}}, {{3, 4}, {2, 3}}}, "[0, 5]->[0, 7]"},
        {"overlapping", {{{0, 6}, {0, 4}}, {{4, 4}, {2, 4}}}, "[0, 6]->[0, 8]"},
        {"one in the other", {{{0, 9}, {0, 9}}, {{2, 1}, {3, 1}}}, "[0, 9]->[0, 9]"},
        {"one in the other, at its end", {{{0, 9}, {0, 9}}, {{6, 3}, {6, 3}}}, "[0, 9]->[0, 9]"},
        {"a chain", {{{0, 2}, {0, 2}}, {{2, 2}, {2, 2}}, {{4, 3}, {4, 3}}}, "[0, 7]->[0, 7]"},
    };
    const auto isBefore = [](const RangePair& a, const RangePair& b) {
        return a.initialRange.offset < b.initialRange.offset;
    };
    for (const auto& c : cases) {
        std::vector<RangePair> pairs = c.pairs;
        do
            EXPECT_EQ(show(SyncRanges::mergeRanges(pairs)), c.merged) << c.what;
        while (std::next_permutation(pairs.begin(), pairs.end(), isBefore));
    }
}

TEST(SyncRanges, DeferredEditsAreHandedOverOnce) {
    Tree tree(u"a\n\nb\n\nc\n\nd\n", RuleConfig::Commonmark);
    tree.replaceDeferSync({0, 1}, u"aa", false);   // its block is [0, 3) now
    tree.replaceDeferSync({10, 1}, u"ddd", false); // [10, 14) now, [9, 11) at first
    tree.addRedrawRange({4, 2});                   // b, one unit further than at first
    const std::string expected = "[9, 2]->[10, 4] [3, 2]->[4, 2] [0, 2]->[0, 3]";
    EXPECT_FALSE(tree.isSynced());
    EXPECT_EQ(show(tree.unsyncedRangesMerged()), expected);
    EXPECT_EQ(show(tree.unsyncedRanges()), expected) << "looking changes nothing";
    EXPECT_EQ(show(tree.sync()), expected);
    EXPECT_TRUE(tree.isSynced() && tree.sync().empty() && tree.syncRanges.replacements.empty());
    // A clean edit is not pending: as if the text had been so at the last sync.
    tree.replaceDeferSync({4, 1}, u"bbb", true);
    EXPECT_EQ(show(tree.sync()), "[4, 4]->[4, 4]");
    tree.syncRanges.add({{0, 2}}, {{0, 0}, u""});
    tree.syncRanges.add({{1, 3}}, {{0, 0}, u""});
    EXPECT_EQ(show(tree.unsyncedRangesMerged()), "[0, 4]->[0, 4]");
    EXPECT_EQ(show(tree.unsyncedRanges()), "[0, 2]->[0, 2] [1, 3]->[1, 3]");
}

TEST(SyncRanges, ADeferredReplacementMayBeAViewOfTheText) {
    Tree tree(u"abcdef", RuleConfig::Commonmark);
    tree.replaceDeferSync({0, 0}, u"x", false);
    tree.replaceDeferSync({2, 0}, tree.markdown(), false);
    EXPECT_EQ(visible(tree.markdown()), "xaxabcdefbcdef");
    EXPECT_EQ(show(tree.syncRanges.replacements), "[0, 0]x [2, 0]xabcdef");
}

/// What lies outside the ranges is the same text in the old and the new note, one to one.
std::string differenceOutside(std::u16string_view before, std::u16string_view now,
                              std::vector<RangePair> pairs) {
    const RangePair end{{static_cast<std::int64_t>(now.size()), 0},
                        {static_cast<std::int64_t>(before.size()), 0}};
    pairs.insert(pairs.begin(), end);
    Range initial;
    Range redraw;
    for (auto pair = pairs.rbegin(); pair != pairs.rend(); ++pair) {
        const std::int64_t length = pair->initialRange.offset - initial.end();
        if (length < 0 || length != pair->redrawRange.offset - redraw.end()) return "lengths differ";
        const auto part = [length](std::u16string_view text, std::int64_t from) {
            return text.substr(static_cast<std::size_t>(from), static_cast<std::size_t>(length));
        };
        if (part(before, initial.end()) != part(now, redraw.end())) return "texts differ";
        initial = pair->initialRange;
        redraw = pair->redrawRange;
    }
    return {};
}

TEST(SyncRanges, OutsideThemOldAndNewTextAreEqual) {
    for (std::uint64_t seed = 0; seed < 1500; ++seed) {
        RandomNote random(seed);
        Tree tree(random.note(30), allRuleSets[seed % 3]);
        const std::u16string before(tree.markdown());
        std::vector<Replacement> edits;
        for (std::size_t count = 1 + random.below(8); count > 0; --count) {
            const Range range = random.range(tree.length());
            if (random.below(8) == 0) {
                tree.addRedrawRange(range);
                continue;
            }
            edits.push_back({range, random.piece()});
            tree.replaceDeferSync(range, edits.back().replacement, false);
            ASSERT_EQ(differenceOutside(before, tree.markdown(), tree.unsyncedRangesMerged()), "")
                << "seed " << seed << " \"" << visible(before) << "\" " << show(edits) << '\n'
                << show(tree.unsyncedRanges());
        }
    }
}

} // namespace
} // namespace Ondo::Test
