// Which blocks an edit replaces, what it asks to restyle, and when it parses the whole text.

#include "corvane/tree/ReparseRanges.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "corvane/tree/TreeText.h"
#include "tests/support/Print.h"
#include "tests/support/RandomNote.h"
#include "tests/support/TreeCheck.h"

namespace Ondo::Test {
namespace {

constexpr RuleConfig::RuleSet C = RuleConfig::Commonmark;
constexpr RuleConfig::RuleSet E = RuleConfig::Extended;

/// A first-level block as a value.
struct Block {
    Node* node;
    Range range;
    std::u16string tree; ///< all that it holds
    Direction direction;
};

std::vector<Block> blocksOf(const Tree& tree) {
    std::vector<Block> blocks;
    std::int64_t offset = 0;
    for (Node* node = tree.root->firstChild; node; offset += node->charCount, node = node->nextSibling)
        blocks.push_back(
            {node, {offset, node->charCount}, Util::toIndentedTree(node, tree.markdown()), node->direction});
    return blocks;
}

/// Which old blocks stay the same objects ("+" or "-", in order), the first redraw range, and whether the
/// whole text was parsed.
std::string outcome(const std::string& kept, const Range& redraw, bool isFull) {
    return kept + ' ' + show(redraw) + (isFull ? " full" : "");
}

std::string replaced(Tree& tree, const Range& range, std::u16string_view piece) {
    const std::vector<Block> before = blocksOf(tree);
    const std::int64_t full = tree.fullReparseCount();
    const Range redraw = tree.replace(range, piece).front();
    const std::vector<Block> now = blocksOf(tree);
    std::string kept;
    for (const Block& block : before) {
        const auto isSame = [&block](const Block& other) { return other.node == block.node; };
        kept += std::any_of(now.begin(), now.end(), isSame) ? '+' : '-';
    }
    EXPECT_EQ(checkTree(tree) + differenceFromFreshParse(tree), "");
    return outcome(kept, redraw, tree.fullReparseCount() > full);
}

struct Case {
    const char* what; ///< and why
    RuleConfig::RuleSet rules;
    std::u16string text;
    Range range;
    std::u16string piece;
    const char* outcome;
};

void expectOutcomes(std::initializer_list<Case> cases) {
    for (const Case& c : cases) {
        Tree tree(c.text, c.rules);
        EXPECT_EQ(replaced(tree, c.range, c.piece), c.outcome)
            << c.what << ", now " << visible(tree.markdown());
    }
}

// Blocks a [0, 2), blank, b [3, 5), blank, c [6, 8), blank, d [9, 11).
const std::u16string letters = u"a\n\nb\n\nc\n\nd\n";

TEST(Reparse, ReplacesOnlyBlocksThatCameOutDifferent) {
    expectOutcomes({
        // The region is a to c; a and the blanks come out equal on both sides of b.
        {"into a paragraph", C, letters, {3, 0}, u"x", "++-++++ [3, 3]"},
        {"the same text again: one block always goes", C, letters, {3, 1}, u"b", "++-++++ [3, 2]"},
        // From b, which is not blank, to c; all three come out as one paragraph of 6 units.
        {"into the blank line between", C, letters, {5, 0}, u"x", "++---++ [3, 6]"},
        {"the blank line itself away", C, letters, {5, 1}, u"", "++---++ [3, 4]"},
        // Three new blocks for b, of which the last is b again.
        {"a new paragraph before b", C, letters, {3, 0}, u"x\n\n", "++-++++ [3, 5]"},
        {"at the start of the text", C, letters, {0, 0}, u"x", "-++++++ [0, 3]"},
        // The end of the text is reckoned to the last block.
        {"a line behind the last line ending", C, letters, {11, 0}, u"# x", "++++++- [9, 5]"},
        // The region is a to d. Nothing before the edit ends there; d and the blank before it are equal.
        {"from inside a to inside c", C, letters, {1, 6}, u"", "-----++ [0, 2]"},
        {"b and a blank away: c is equal, but one block must go", C, letters, {3, 3}, u"", "++---++ [3, 2]"},
        {"lists join", C, u"- a\n\nx\n- b\n", {5, 2}, u"", "---- [0, 9]"},
        {"a heading joins the paragraphs around it", C, u"a\n# b\nc\n", {2, 1}, u"", "--- [0, 7]"},
        {"nothing but blanks before the edit", C, u"\n\na\n\nb", {2, 1}, u"x", "++-++ [2, 2]"},
        {"a change of what is handed on is restyled",
         C,
         u"a\n\n1\n\n2\n\nb\n",
         {0, 1},
         u"\u05D0",
         "-++++++ [0, 9]"},
    });
}

TEST(Reparse, FencesThatOpenParseTheWholeText) {
    expectOutcomes({
        {"an opening fence", C, letters, {3, 0}, u"```\n", "++----- [3, 12] full"},
        {"in the last block, where nothing is swallowed", C, u"a\n\nb", {3, 0}, u"~~~\n", "++- [3, 5] full"},
        {"closed at once", C, letters, {3, 0}, u"```\n```\n", "++-++++ [3, 10]"},
        {"in a quote", C, letters, {3, 0}, u"> ```\n", "++-++++ [3, 8]"},
        {"a closing fence away", C, u"```\na\n```\n\nb\n\nc", {6, 3}, u"", "----- [0, 12] full"},
        {"a closing fence typed", C, u"```\na\n\nb\n", {6, 0}, u"```\n", "- [0, 13]"},
        {"an open fence typed into", C, u"x\n\n```\na\n", {8, 0}, u"b", "++- [3, 7]"},
        {"an opening fence away", C, u"```\na\n\nb\n", {0, 1}, u"", "- [0, 8]"},
        {"math", E, letters, {3, 0}, u"$$\n", "++----- [3, 11] full"},
        {"math where it is text", C, letters, {3, 0}, u"$$\n", "++-++++ [3, 5]"},
    });
}

TEST(Reparse, DeletingAllTextAndStartingAgain) {
    Tree tree(u"a\n\nb\n", E);
    EXPECT_EQ(show(tree.replaceAll(u"")), "[0, 0]");
    EXPECT_EQ(tree.root->firstChild, nullptr);
    EXPECT_EQ(show(tree.replace({0, 0}, u"x\n\n```\ny")), "[0, 8]");
    EXPECT_EQ(checkTree(tree) + differenceFromFreshParse(tree), "");
    EXPECT_EQ(tree.fullReparseCount(), 0) << "a first parse is none";
    EXPECT_EQ(show(tree.replaceAll(u"z")), "[0, 1]");
    // A replacement may be a view of the text.
    tree.replace({1, 0}, tree.markdown());
    tree.replace({1, 1}, tree.markdown());
    EXPECT_EQ(visible(tree.markdown()), "zzz");
}

TEST(Reparse, ContainersAreEquivalentByTheirOwnValues) {
    const struct {
        const char16_t* a;
        const char16_t* b;
        bool lists; ///< whether the first-level blocks are equivalent
        bool items; ///< whether their last children are
    } cases[] = {
        {u"- a", u"- b\n- c\n", true, false},
        {u"- a", u"* a", false, false},
        {u"- a\n- b", u"- a\n\n- b", false, true},
        {u"2. a", u"2. b", true, true},
        {u"2. a\n3. b", u"2. a\n9. b", true, false},
        {u"- a", u"- [ ] a", true, false},
        {u"> a", u"> b\n> - c", true, false},
        {u"> - a", u"> - \u05D0", false, true},
        {u"a", u"a", false, false},
        {u"- a", u"> a", false, false},
    };
    for (const auto& c : cases) {
        const Tree first(c.a, E);
        const Tree second(c.b, E);
        Node::Iterator a(first.root->firstChild);
        Node::Iterator b(second.root->firstChild);
        SCOPED_TRACE(visible(first.markdown()) + " and " + visible(second.markdown()));
        EXPECT_EQ(ReparseRanges::isContainerBlockEquivalent(a, b), c.lists);
        a.lastChild();
        b.lastChild();
        EXPECT_EQ(ReparseRanges::isContainerBlockEquivalent(a, b), c.items);
    }
}

// The plain steps, a second time and on values: the region is the blocks around the edit, up to the next that
// is not blank on both sides, and one parse of it is compared with what stood there.

/// A stretch of first-level blocks, by index.
struct Stretch {
    std::vector<Block> blocks;
    std::size_t first = 0;
    std::size_t last = 0;
};

std::u16string part(std::u16string_view text, const Range& at) {
    return std::u16string(
        text.substr(static_cast<std::size_t>(at.offset), static_cast<std::size_t>(at.length)));
}

std::size_t blockAt(const std::vector<Block>& blocks, std::int64_t offset) {
    std::size_t i = 0;
    while (i + 1 < blocks.size() && blocks[i].range.end() <= offset)
        ++i;
    return i;
}

Stretch region(const Tree& tree, const Range& range) {
    const std::vector<Block> blocks = blocksOf(tree);
    const auto isBlank = [&blocks](std::size_t i) { return blocks[i].node->type == ONDO_BLANK_LINE_NODE; };
    const std::size_t editStart = blockAt(blocks, range.offset);
    const std::size_t editEnd = blockAt(blocks, range.end());
    std::size_t first = editStart;
    while (first > 0 && (first == editStart || isBlank(first)))
        --first;
    std::size_t last = editEnd;
    while (last + 1 < blocks.size() && (last == editEnd || isBlank(last)))
        ++last;
    return {blocks, first, last};
}

/// Whether the last block of a parse newly is an open fence: it has a first marker and no next one.
bool opensFence(const Tree& fragment, Node* endNode) {
    const auto isOpen = [](Node* node, NodeType type) {
        return node && node->type == type && !node->firstMarker()->nextMarker();
    };
    for (const NodeType type : {ONDO_FENCED_CODE_NODE, ONDO_MATH_BLOCK_NODE})
        if (isOpen(fragment.root->lastChild, type) && !isOpen(endNode, type)) return true;
    return false;
}

void shrink(Stretch& old, const Tree& tree, Stretch& fresh, const Tree& fragment, const Range& range) {
    const auto isEqual = [&](std::size_t i, std::size_t j) {
        return part(tree.markdown(), old.blocks[i].range) == part(fragment.markdown(), fresh.blocks[j].range);
    };
    const auto hasMore = [&] { return old.first != old.last && fresh.first != fresh.last; };
    for (; hasMore() && old.blocks[old.first].range.end() <= range.offset; ++old.first, ++fresh.first)
        if (!isEqual(old.first, fresh.first)) break;
    for (; hasMore() && old.blocks[old.last].range.offset >= range.end(); --old.last, --fresh.last)
        if (!isEqual(old.last, fresh.last)) break;
}

/// Empty when the plain steps give another tree than a fresh parse.
std::string plainOutcome(const Tree& tree, const Range& range, const std::u16string& piece) {
    std::u16string text(tree.markdown());
    text.replace(static_cast<std::size_t>(range.offset), static_cast<std::size_t>(range.length), piece);
    const std::int64_t delta = static_cast<std::int64_t>(piece.size()) - range.length;
    Stretch old = region(tree, range);
    const std::int64_t start = old.blocks[old.first].range.offset;
    Tree fragment(part(text, {start, old.blocks[old.last].range.end() + delta - start}), tree.ruleSet);
    const bool isFull = opensFence(fragment, old.blocks[old.last].node);
    if (isFull) {
        fragment = Tree(text, tree.ruleSet);
        old = {old.blocks, 0, old.blocks.size() - 1};
    }
    Stretch fresh{blocksOf(fragment)};
    const bool hasNew = !fresh.blocks.empty();
    if (hasNew) {
        fresh.last = fresh.blocks.size() - 1;
        shrink(old, tree, fresh, fragment, range);
    }
    std::string kept;
    std::vector<std::u16string> result;
    Range redraw{old.blocks[old.first].range.offset, 0};
    const std::vector<Block> expected = blocksOf(Tree(text, tree.ruleSet));
    for (std::size_t i = 0; i < old.blocks.size(); ++i) {
        const bool isOld = i < old.first || i > old.last;
        kept += isOld ? '+' : '-';
        if (isOld) result.push_back(old.blocks[i].tree);
        for (std::size_t j = fresh.first; i == old.first && hasNew && j <= fresh.last; ++j) {
            result.push_back(fresh.blocks[j].tree);
            redraw.length += fresh.blocks[j].range.length;
        }
        // Blocks behind the edit that inherit another direction than before are restyled.
        const bool isBehind = isOld && i > old.last && result.size() <= expected.size();
        if (isBehind && expected[result.size() - 1].direction != old.blocks[i].direction)
            redraw.length = expected[result.size() - 1].range.end() - redraw.offset;
    }
    const auto isEqual = [](const std::u16string& a, const Block& b) { return a == b.tree; };
    const bool isFresh = std::equal(result.begin(), result.end(), expected.begin(), expected.end(), isEqual);
    return isFresh ? outcome(kept, redraw, isFull) : "";
}

TEST(Reparse, WherePlainStepsAreEnoughTheyAreFollowedExactly) {
    int count = 0;
    int notEnough = 0;
    for (std::uint64_t seed = 0; seed < 300; ++seed) {
        RandomNote random(seed);
        Tree tree(random.note(14), allRuleSets[seed % 3]);
        for (int edit = 0; edit < 8 && tree.root->firstChild; ++edit, ++count) {
            const Range range = random.range(tree.length());
            const std::u16string piece = random.piece();
            const std::string before = visible(tree.markdown());
            const std::string plain = plainOutcome(tree, range, piece);
            const std::string result = replaced(tree, range, piece);
            ASSERT_EQ(result, plain.empty() ? result : plain)
                << "seed " << seed << ", \"" << before << "\" " << show(Replacement{range, piece});
            notEnough += plain.empty();
        }
    }
    EXPECT_GT(notEnough, 0);
    EXPECT_LT(notEnough, count / 10);
}

TEST(Reparse, BlocksThatGrowBeyondTheRegionAreTakenIn) {
    const std::initializer_list<Case> cases = {
        {"an item takes in what is indented behind", C, u"x\n\n  a\n\n  b", {0, 0}, u"- ", "----- [0, 13]"},
        // Several steps on, and what the last one took in for nothing stays.
        {"however far that is",
         C,
         u"x\n\n  a\n\n  b\n\n  c\n\n  d\n\n  e\n\nf\n",
         {0, 0},
         u"- ",
         "-----------++ [0, 29]"},
        {"an underline behind code that became text", C, u"\n    c\n=", {0, 0}, u"a", "--- [0, 9]"},
    };
    expectOutcomes(cases);
    for (const Case& c : cases)
        EXPECT_EQ(plainOutcome(Tree(c.text, c.rules), c.range, c.piece), "") << c.what;
    for (const RuleConfig::RuleSet rules : allRuleSets) {
        Tree joined(u"- a\n\nb\n- c", rules);
        replaced(joined, {4, 2}, u"  x");
        Tree html(u"a\n# c\n\nd", rules);
        replaced(html, {0, 0}, u"<div>");
    }
}

} // namespace
} // namespace Ondo::Test
