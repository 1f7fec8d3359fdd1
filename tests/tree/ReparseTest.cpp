// Which blocks an edit replaces, what it asks to restyle, and when it parses the whole text.

#include "corvane/tree/ReparseRanges.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <optional>
#include <set>

#include "corvane/scan/Lines.h"
#include "tests/support/Print.h"
#include "tests/support/RandomNote.h"
#include "tests/support/TreeCheck.h"

namespace Ondo::Test {
namespace {

constexpr RuleConfig::RuleSet C = RuleConfig::Commonmark;
constexpr RuleConfig::RuleSet E = RuleConfig::Extended;

/// A first-level block, and what of it changes with an edit.
struct Block {
    Node* node;
    Range range;
    Direction direction;
};

std::vector<Block> blocksOf(const Tree& tree) {
    std::vector<Block> blocks;
    std::int64_t offset = 0;
    for (Node* node = tree.root->firstChild; node; offset += node->charCount, node = node->nextSibling)
        blocks.push_back({node, {offset, node->charCount}, node->direction});
    return blocks;
}

struct Outcome {
    std::string kept;    ///< which old blocks stay the same objects, "+" or "-", in order
    Range redraw;        ///< the first range
    bool isFull = false; ///< whether the whole text was parsed
};

std::string describe(const Outcome& outcome) {
    return outcome.kept + ' ' + show(outcome.redraw) + (outcome.isFull ? " full" : "");
}

Outcome replaced(Tree& tree, const Range& range, std::u16string_view piece) {
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
    return {kept, redraw, tree.fullReparseCount() > full};
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
        EXPECT_EQ(describe(replaced(tree, c.range, c.piece)), c.outcome)
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

const std::u16string frontMatter = u"---\n1\n---\n\nb\n\nc\n";

TEST(Reparse, FrontMatterThatComesOrGoesParsesTheWholeText) {
    expectOutcomes({
        {"a third dash", E, frontMatter.substr(1), {0, 0}, u"-", "-++++ [0, 10] full"},
        {"a dash away", E, frontMatter, {0, 1}, u"", "-++++ [0, 9] full"},
        {"a closing line amid", E, u"---\na\n\nb\n", {6, 0}, u"...", "---+ [0, 10] full"},
        {"made by a line break", E, u"---\na\n\nb...\n", {8, 0}, u"\n", "---- [0, 13] full"},
        {"another closing line behind it", E, frontMatter, {13, 0}, u"---\n", "++-++ [11, 6] full"},
        {"typed into", E, frontMatter, {4, 0}, u"x", "-++++ [0, 11]"},
        {"what would be some at the head", E, u"x\n\n---\na\n", {9, 0}, u"\n---\n", "+++- [7, 7]"},
    });
}

const std::u16string reference = u"[b]\n\na\n\nc\n";

TEST(Reparse, LabelsThatComeOrGoParseTheWholeTextWhereReferencesNeedThem) {
    expectOutcomes({
        {"a definition", C, reference, {5, 1}, u"[b]: /u", "---++ [0, 13] full"},
        {"whose references are links anyway", E, reference, {5, 1}, u"[b]: /u", "++-++ [5, 8]"},
        {"without reference", C, reference, {5, 1}, u"[d]: /u", "++-++ [5, 8] full"},
        {"of a label that has one", C, u"[b]: /u\n\n[b]\n\na\n", {14, 1}, u"[b]: /v", "++++- [14, 8]"},
        {"one of two away", C, u"[b]: /u\n\n[b]\n\n[b]: /v", {14, 7}, u"x", "++++- [14, 1]"},
        {"the only one away", C, u"[b]: /u\n\na\n\nc\n\n[b]\n", {0, 1}, u"", "------- [0, 18] full"},
    });
}

const std::u16string fold = u"# f <!-- {\"fold\":true} -->\n"; // 27 units

TEST(Reparse, FoldMarkersThatComeOrGoReplaceTheirHeading) {
    expectOutcomes({
        {"text below", E, fold + u"\n", {28, 0}, u"x", "-- [0, 29]"},
        {"text below away", E, fold + u"\na\n", {28, 2}, u"", "--- [0, 28]"},
        {"a heading below, by an edit behind it", E, fold + u"a\n\n==", {29, 1}, u"", "---- [0, 31]"},
        {"more text below", E, fold + u"a\n\nb\n", {30, 0}, u"x", "+++- [0, 33]"},
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
// is not blank on both sides, with runs of definitions and a heading before it. One parse of it is compared
// with what stood there.

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
    const auto typeAt = [&blocks](std::size_t i) { return blocks[i].node->type; };
    const auto isBlank = [&](std::size_t i) { return typeAt(i) == ONDO_BLANK_LINE_NODE; };
    const auto isDefinition = [&](std::size_t i) {
        return typeAt(i) == ONDO_LINK_REFERENCE_DEFINITION_NODE || typeAt(i) == ONDO_FOOTNOTE_DEFINITION_NODE;
    };
    const std::size_t editStart = blockAt(blocks, range.offset);
    const std::size_t editEnd = blockAt(blocks, range.end());
    std::size_t first = editStart;
    while (first > 0 && (first == editStart || isBlank(first)))
        --first;
    while (first > 0 && isDefinition(first - 1))
        --first;
    std::size_t heading = first;
    while (heading > 0 && (heading == first || isBlank(heading)))
        --heading;
    if (typeAt(heading) == ONDO_ATX_HEADING_NODE) first = heading;
    std::size_t last = editEnd;
    while (last + 1 < blocks.size() && (last == editEnd || isBlank(last) || isDefinition(last)))
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

bool isClosingTouched(const std::u16string& text, const Range& inserted) {
    const Lines lines(text);
    for (std::int64_t i = 0; i < lines.size(); ++i) {
        if (lines[i].start > inserted.end() || lines[i].end < inserted.offset) continue;
        const std::u16string line = part(text, {lines[i].start, lines[i].end - lines[i].start});
        if (line == u"---" || line == u"...") return true;
    }
    return false;
}

/// Whether front matter at the head of the text may have come or gone.
bool changesFrontMatter(const Stretch& old, const Tree& fragment, const std::u16string& text,
                        const Range& inserted) {
    if (fragment.ruleSet == C) return false;
    const auto isYaml = [](const Node* node) { return node && node->type == ONDO_YAML_NODE; };
    const bool was = isYaml(old.blocks[0].node);
    const bool is = isYaml(fragment.root->firstChild);
    if (was && !is && old.blocks[0].range.length > inserted.offset) return true;
    const bool opens = text.starts_with(u"---");
    if (!was && !is && inserted.offset < 5 && opens) return true;
    const std::size_t start = static_cast<std::size_t>(std::max<std::int64_t>(inserted.offset - 1, 0));
    const std::size_t count = inserted.offset == 0 ? 1 : 2;
    const bool mayClose = inserted.length == 0
                              ? text.substr(start, count).find_first_of(u"-.") != std::u16string::npos
                              : isClosingTouched(text, inserted);
    return opens && mayClose;
}

using Labels = std::set<std::u16string>;

void addLabels(Labels& labels, Node* block) {
    const Node* const end = block->nextInSequenceSkippingSubtree();
    for (Node* node = block; node != end; node = node->nextInSequence())
        if (node->type == ONDO_LINK_REFERENCE_DEFINITION_NODE)
            labels.insert(static_cast<LabeledNode*>(node)->label);
}

Labels labelsOf(const std::vector<Block>& blocks) {
    Labels labels;
    for (const Block& block : blocks)
        addLabels(labels, block.node);
    return labels;
}

/// Definitions of the labels, one a block, and a blank line.
std::u16string definitions(const Labels& labels) {
    std::u16string text;
    for (const std::u16string& label : labels)
        text += u'[' + label + u"]: /\n";
    return text + u'\n';
}

template <class IsSame>
bool isSameTree(Node* a, Node* b, IsSame isSame) {
    Node* const end = a->nextInSequenceSkippingSubtree();
    Node* const otherEnd = b->nextInSequenceSkippingSubtree();
    for (; a != end && b != otherEnd; a = a->nextInSequence(), b = b->nextInSequence())
        if (!isSame(*a, *b)) return false;
    return a == end && b == otherEnd;
}

bool hasSameTypes(Node* a, Node* b) {
    return isSameTree(a, b, [](const Node& x, const Node& y) { return x.type == y.type; });
}

void shrink(Stretch& old, const Tree& tree, Stretch& fresh, const Tree& fragment, const Range& range,
            bool comparesAll) {
    const auto isEqual = [&](std::size_t i, std::size_t j, bool comparesTypes) {
        const Block& a = old.blocks[i];
        const Block& b = fresh.blocks[j];
        return part(tree.markdown(), a.range) == part(fragment.markdown(), b.range) &&
               (!comparesTypes || hasSameTypes(a.node, b.node));
    };
    const auto hasMore = [&] { return old.first != old.last && fresh.first != fresh.last; };
    for (; hasMore() && old.blocks[old.first].range.end() <= range.offset; ++old.first, ++fresh.first)
        if (!isEqual(old.first, fresh.first, true)) break;
    for (; hasMore() && old.blocks[old.last].range.offset >= range.end(); --old.last, --fresh.last)
        if (!isEqual(old.last, fresh.last, comparesAll)) break;
}

/// The labels when the region has been replaced.
Labels labelsAfter(const Stretch& old, const std::vector<Block>& fresh) {
    Labels labels = labelsOf(fresh);
    for (std::size_t i = 0; i < old.blocks.size(); ++i)
        if (i < old.first || i > old.last) addLabels(labels, old.blocks[i].node);
    return labels;
}

bool isEqual(Node* node, const Block& block) {
    return isSameTree(node, block.node, [](const Node& a, const Node& b) {
        return a.type == b.type && a.charCount == b.charCount && a.hasEqualData(b);
    });
}

/// Nothing when the plain steps give another tree than a fresh parse.
std::optional<Outcome> plainOutcome(const Tree& tree, const Range& range, const std::u16string& piece) {
    std::u16string text(tree.markdown());
    text.replace(static_cast<std::size_t>(range.offset), static_cast<std::size_t>(range.length), piece);
    const std::int64_t delta = static_cast<std::int64_t>(piece.size()) - range.length;
    Stretch old = region(tree, range);
    const std::int64_t start = old.blocks[old.first].range.offset;
    const Labels labels = tree.ruleSet == C ? labelsOf(old.blocks) : Labels();
    const std::u16string fragmentText = part(text, {start, old.blocks[old.last].range.end() + delta - start});
    // Behind other blocks as in the note, so that references are those of the note.
    const bool isHead = start == 0 && labels.empty();
    Tree fragment((isHead ? u"" : definitions(labels)) + fragmentText, tree.ruleSet);
    Stretch fresh{blocksOf(fragment)};
    if (!isHead)
        fresh.blocks.erase(fresh.blocks.begin(),
                           fresh.blocks.begin() + static_cast<std::ptrdiff_t>(labels.size()) + 1);
    const bool changesLabels = tree.ruleSet == C && labelsAfter(old, fresh.blocks) != labels;
    const bool isFull =
        changesLabels || opensFence(fragment, old.blocks[old.last].node) ||
        changesFrontMatter(old, fragment, text, {range.offset, static_cast<std::int64_t>(piece.size())});
    const Tree whole(text, tree.ruleSet);
    const std::vector<Block> expected = blocksOf(whole);
    if (isFull) {
        fresh = {expected};
        old = {old.blocks, 0, old.blocks.size() - 1};
    }
    const bool hasNew = !fresh.blocks.empty();
    if (hasNew) {
        fresh.last = fresh.blocks.size() - 1;
        shrink(old, tree, fresh, isFull ? whole : fragment, range, changesLabels);
    }
    std::string kept;
    std::vector<Node*> result;
    Range redraw{old.blocks[old.first].range.offset, 0};
    for (std::size_t i = 0; i < old.blocks.size(); ++i) {
        const bool isOld = i < old.first || i > old.last;
        kept += isOld ? '+' : '-';
        if (isOld) result.push_back(old.blocks[i].node);
        for (std::size_t j = fresh.first; i == old.first && hasNew && j <= fresh.last; ++j) {
            result.push_back(fresh.blocks[j].node);
            redraw.length += fresh.blocks[j].range.length;
        }
        // Blocks behind the edit that inherit another direction than before are restyled.
        const bool isBehind = isOld && i > old.last && result.size() <= expected.size();
        if (isBehind && expected[result.size() - 1].direction != old.blocks[i].direction)
            redraw.length = expected[result.size() - 1].range.end() - redraw.offset;
    }
    const bool isFresh = std::equal(result.begin(), result.end(), expected.begin(), expected.end(), isEqual);
    return isFresh ? std::optional<Outcome>({kept, redraw, isFull}) : std::nullopt;
}

/// Headings and folded items ask for more to be restyled than what an edit has replaced.
bool canFold(const Tree& tree) {
    return tree.root->descendantWhere([](const Node* node) {
        return node->type == ONDO_ATX_HEADING_NODE || node->type == ONDO_FOLD_MARKER_NODE;
    });
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
            std::optional<Outcome> plain = plainOutcome(tree, range, piece);
            bool folds = canFold(tree);
            const Outcome result = replaced(tree, range, piece);
            folds = folds || canFold(tree);
            notEnough += !plain;
            if (!plain) continue;
            if (folds) plain->redraw = Range::unite(plain->redraw, result.redraw);
            ASSERT_EQ(describe(result), describe(*plain))
                << "seed " << seed << ", \"" << before << "\" " << show(Replacement{range, piece});
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
        EXPECT_FALSE(plainOutcome(Tree(c.text, c.rules), c.range, c.piece)) << c.what;
    for (const RuleConfig::RuleSet rules : allRuleSets) {
        Tree joined(u"- a\n\nb\n- c", rules);
        replaced(joined, {4, 2}, u"  x");
        Tree html(u"a\n# c\n\nd", rules);
        replaced(html, {0, 0}, u"<div>");
    }
}

/// Regions of first-level blocks are what an edit replaces today; the operation holds below them, too.
TEST(Reparse, ATitleCutByADefinitionGoesOnWhenItCan) {
    const struct {
        std::u16string before;
        Range range;
        std::u16string piece;
    } edits[] = {
        {u"[B]:u \"\n[a]:u\n---\n\"", {14, 1}, u""},
        {u"[B]:u \"\n[a]:u\n[c]:u\n[d]:u\n", {25, 0}, u"\""},
        {u"  [B]:u '\n[a]:u\nb\n[c]:u\n---\n'\n", {24, 3}, u"-"},
    };
    for (const auto& edit : edits) {
        Tree tree(edit.before, RuleConfig::Simplified);
        replaced(tree, edit.range, edit.piece);
        EXPECT_EQ(tree.root->firstChild->type, ONDO_LINK_REFERENCE_DEFINITION_NODE) << visible(edit.before);
    }
}

TEST(Reparse, ReplacesNodesBelowTheFirstLevel) {
    const Tree tree(u"a\n\n> b\n>\n> c\n\nd");
    const std::int64_t unasked = tree.root->lastChild->startOffset(); // makes the index
    const Tree fragment(u"> x *y*\n> z\n>\n> w\n");
    Node* const quote = tree.root->firstChild->nextSibling->nextSibling;
    Node* const newQuote = fragment.root->firstChild;
    newQuote->firstChild->firstChild->maker = newQuote;
    ReparseRanges ranges{Node::Iterator(quote->lastChild), Node::Iterator(quote->lastChild),
                         Node::Iterator(newQuote->firstChild), Node::Iterator(newQuote->firstChild)};
    const std::int64_t delta = newQuote->firstChild->charCount - quote->lastChild->charCount;
    ReparseRanges::replaceNodes(ranges);
    EXPECT_EQ(quote->lastChild, ranges.newStart.node);
    EXPECT_EQ(quote->lastChild->firstChild->maker, quote);
    EXPECT_EQ(tree.root->lastChild->startOffset(), unasked + delta);
    EXPECT_EQ(tree.root->lastChild->startLine(), 7);
    EXPECT_EQ(tree.nodeAtOffset(unasked + delta, LevelSetting::Highest), tree.root->lastChild);
    EXPECT_EQ(tree.root->charCount, tree.length() + delta);
}

TEST(Tree, TakesOverWhenMoved) {
    Tree tree(u"[a]\n\n[a]: /b\n");
    Tree moved(std::move(tree));
    moved.replace({1, 0}, u"x");
    EXPECT_EQ(checkTree(moved) + differenceFromFreshParse(moved), "");
    tree = std::move(moved);
    tree.replace({1, 1}, u"");
    EXPECT_EQ(tree.markdown(), u"[a]\n\n[a]: /b\n");
    EXPECT_EQ(checkTree(tree) + differenceFromFreshParse(tree), "");
}

TEST(Tree, MarkdownOfANodeIsThatOfTheText) {
    Tree tree(u"abc\n\ndef");
    EXPECT_EQ(tree.markdownForNode(tree.root->lastChild), u"def");
    tree.root->lastChild->charCount = 100;
    EXPECT_EQ(tree.markdownForNode(tree.root->lastChild), u"def") << "clamped";
    tree.root->firstChild->charCount = 100;
    tree.root->linkSubtree(tree.root->lastChild->unlinkSubtree()); // ask for the position anew
    const auto startOutside = [&tree]() noexcept { return tree.markdownForNode(tree.root->lastChild); };
    EXPECT_DEATH(startOutside(), "string_view::substr");
}

} // namespace
} // namespace Ondo::Test
