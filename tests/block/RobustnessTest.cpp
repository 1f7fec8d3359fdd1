#include <gtest/gtest.h>

#include <string>

#include "corvane/tree/BlockParser.h"
#include "tests/support/Hostile.h"
#include "tests/support/TreeCheck.h"

// Hostile and huge texts. Nothing is timed here, but what takes more than linear time would not come to an
// end.

namespace Ondo::Test {
namespace {

#ifdef __SANITIZE_ADDRESS__
constexpr std::size_t scale = 20; ///< by how much repetitions are fewer
#else
constexpr std::size_t scale = 1;
#endif

constexpr auto maximumDepth = static_cast<std::int64_t>(BlockParser::maximumContainerDepth);

std::u16string repeated(std::u16string_view unit, std::size_t count) {
    std::u16string text;
    text.reserve(unit.size() * count);
    for (; count > 0; --count)
        text += unit;
    return text;
}

/// That children tile their parents, in one walk: checkTree() asks every node for its position, which takes
/// too long where nodes have very many siblings.
bool isTiled(const Tree& tree) {
    for (const Node* node = tree.root.get(); node; node = node->nextInSequence()) {
        std::int64_t length = 0;
        for (const Node* child = node->firstChild; child; child = child->nextSibling)
            length += child->charCount;
        if (node->firstChild ? length != node->charCount : !node->isLeafKind()) return false;
    }
    return tree.root->charCount == tree.length();
}

/// Inserts, and deletes again, in the middle.
void expectEditable(Tree& tree, std::u16string_view piece) {
    const std::int64_t middle = tree.length() / 2;
    tree.replace({middle, 0}, piece);
    EXPECT_EQ(differenceFromFreshParse(tree), "");
    tree.replace({middle, static_cast<std::int64_t>(piece.size())}, u"");
    EXPECT_EQ(differenceFromFreshParse(tree), "");
}

bool isContainer(const Node* node) {
    return node->type == ONDO_BLOCK_QUOTE_NODE || node->type == ONDO_LIST_ITEM_NODE;
}

/// How deep containers nest at the end of the text.
std::int64_t containerDepth(const Tree& tree) {
    std::int64_t depth = 0;
    for (const Node* node = tree.root.get(); node; node = node->lastChild)
        if (isContainer(node)) ++depth;
    return depth;
}

constexpr struct {
    const char16_t* text;
    std::int64_t depth;
} markers[] = {{u">", 1}, {u"> ", 1}, {u"- ", 1}, {u"1. ", 1}, {u"> - ", 2}, {u"- [ ] ", 1}};

TEST(Robustness, ContainersNestUpToTheLimitOnOneLine) {
    for (const auto& marker : markers) {
        const std::int64_t most = maximumDepth / marker.depth;
        for (const std::int64_t count : {most - 1, most, most + 1, most + 100}) {
            const Tree tree(repeated(marker.text, static_cast<std::size_t>(count)) + u"x\n",
                            RuleConfig::Extended);
            const std::int64_t nested = std::min(count, most);
            EXPECT_EQ(containerDepth(tree), nested * marker.depth);
            EXPECT_EQ(checkTree(tree), "");
            const Node* const ending = tree.root->lastNodeOfSubtree();
            ASSERT_EQ(ending->parent->type, ONDO_PARAGRAPH_NODE);
            EXPECT_EQ(tree.markdownForNode(ending->previousSibling),
                      repeated(marker.text, static_cast<std::size_t>(count - nested)) + u"x")
                << "the markers beyond the limit are text";
        }
    }
}

TEST(Robustness, ContainersNestUpToTheLimitLineByLine) {
    const struct {
        const char16_t* indentation;
        const char16_t* content;
    } cases[] = {{u"  ", u"- a\n"}, {u"> ", u"> a\n"}, {u"   ", u"1. a\n"}};
    for (const RuleConfig::RuleSet set : allRuleSets) {
        for (const auto& c : cases) {
            std::u16string text;
            for (std::size_t level = 0; level < 300; ++level)
                text += repeated(c.indentation, level) + c.content;
            Tree tree(text, set);
            EXPECT_EQ(containerDepth(tree), maximumDepth);
            EXPECT_EQ(checkTree(tree), "");
            const Node* const paragraph = tree.root->lastNodeOfSubtree()->parent;
            EXPECT_EQ(paragraph->type, ONDO_PARAGRAPH_NODE);
            EXPECT_EQ(paragraph->lineCount, 300 - maximumDepth + 1);
            expectEditable(tree, u"\n");
        }
    }
}

TEST(Robustness, AnyNumberOfMarkersOnALine) {
    for (const auto& marker : markers) {
        Tree tree(repeated(marker.text, 100'000 / scale) + u"x", RuleConfig::Extended);
        EXPECT_EQ(containerDepth(tree), maximumDepth);
        EXPECT_TRUE(isTiled(tree));
        expectEditable(tree, u"y");
        tree.replace({0, 0}, u"# ");
        EXPECT_EQ(differenceFromFreshParse(tree), "");
    }
}

TEST(Robustness, ManyLinesBelowDeepContainers) {
    for (const char16_t* marker : {u"> ", u"- "}) {
        Tree tree(repeated(marker, 300) + u"x\n" + repeated(u"y\n", 2000 / scale), RuleConfig::Extended);
        EXPECT_EQ(tree.root->firstChild, tree.root->lastChild) << "lazy lines";
        EXPECT_TRUE(isTiled(tree));
        expectEditable(tree, u"\n");
    }
}

TEST(Robustness, ManyBlocks) {
    const struct {
        const char16_t* unit;
        std::size_t count;
        std::size_t firstLevelBlocks; ///< 0 for one a unit
    } cases[] = {
        {u"\n", 1'000'000, 0},
        {u"> =\n", 200'000, 1},
        {u"> a\n>\n", 100'000, 1},
        {u"- a\n", 100'000, 1},
        {u"- a\n\n", 100'000, 2}, // the last blank line is outside
        {u"- a\n* b\n", 50'000, 100'000 / scale},
        {u"    a\n\n", 100'000, 2},
        {u"a\n=\n", 100'000, 0},
        {u"```\n\n```\n", 50'000, 0},
        {u"a\n", 100'000, 1},
        {u"a\r", 100'000, 1},
    };
    for (const auto& c : cases) {
        const std::size_t count = c.count / scale;
        Tree tree(repeated(c.unit, count), RuleConfig::Extended);
        SCOPED_TRACE(visible(c.unit));
        std::size_t blocks = 0;
        for (const Node* block = tree.root->firstChild; block; block = block->nextSibling)
            ++blocks;
        EXPECT_EQ(blocks, c.firstLevelBlocks == 0 ? count : c.firstLevelBlocks);
        EXPECT_TRUE(isTiled(tree));
        expectEditable(tree, u"x");
    }
}

/// Each quote ends at a line that might have been a lazy one of its own, and looks no further.
TEST(Robustness, ManyQuotesWithALineBetween) {
    for (const char16_t* unit : {u"> # a\nb\n", u"> ```\nb\n", u"> > # a\n> b\n", u"> - # a\nb\n"}) {
        Tree tree(repeated(unit, 100'000 / scale), RuleConfig::Extended);
        EXPECT_TRUE(isTiled(tree));
        expectEditable(tree, u"x");
    }
}

TEST(Robustness, VeryLongLines) {
    for (const char16_t* unit : {u"a", u" ", u"\t", u"#", u"* ", u"`", u"=", u"-", u"\u05D0"}) {
        const std::size_t count = *unit == u'a' ? 5'000'000 : 1'000'000;
        Tree tree(u"x\n" + repeated(unit, count / scale), RuleConfig::Extended);
        EXPECT_EQ(checkTree(tree), "");
        expectEditable(tree, u"x");
    }
}

/// Each in every place, in all rule sets, edited.
TEST(Robustness, HostileInlines) {
    for (const RuleConfig::RuleSet set : allRuleSets) {
        for (const Hostile& hostile : hostileUnits) {
            for (const HostilePlace& place : hostilePlaces) {
                SCOPED_TRACE(visible(hostile.open) + ' ' + visible(hostile.close) + " in " + place.name);
                Tree tree(hostileText(hostile, place, 1000 / scale), set);
                EXPECT_TRUE(isTiled(tree));
                expectEditable(tree, u"x\n");
            }
        }
    }
}

/// As many as a hostile paste may hold, and the HTML of it. The indented tree of what nests so deep would be
/// mostly indentation.
TEST(Robustness, VeryManyHostileInlines) {
    for (const Hostile& hostile : hostileUnits) {
        SCOPED_TRACE(visible(hostile.open) + ' ' + visible(hostile.close));
        const Tree tree(hostileText(hostile, hostilePlaces[0], 100'000 / scale), RuleConfig::Extended);
        EXPECT_TRUE(isTiled(tree));
        EXPECT_FALSE(tree.toHtml().empty());
        EXPECT_TRUE(!hostile.close.empty() || !tree.toIndentedTree().empty());
    }
}

/// NUL, halves of surrogate pairs, and line endings that an edit takes apart and puts together.
TEST(Robustness, OddCharactersSurviveEveryEdit) {
    const std::u16string high{u'\xD83D'};
    const std::u16string low{u'\xDE00'};
    const std::u16string nul{u'\0'};
    const std::u16string texts[] = {
        nul + u"\r\n> " + high + u"\r\n> " + low + u"\r- " + nul,
        u"```\r\n" + high + u"\r" + low + nul + u"\r\n```\r\n\r\n\ra",
        u"- " + high + low + u"\r\n\r\n  " + nul + u"\r\n=\r#\r\n",
        u"a\r\n-\r\n    b\r\n\r    c\n\r\nd",
    };
    const std::u16string pieces[] = {u"",   u"\r", u"\n", u"\r\n", nul,     high,     low,
                                     u"> ", u"- ", u"\t", u"```",  u"\x7F", u"\u2028"};
    for (const RuleConfig::RuleSet set : allRuleSets) {
        for (const std::u16string& text : texts) {
            for (std::size_t at = 0; at <= text.size(); ++at) {
                for (std::size_t deleted = 0; deleted <= std::min<std::size_t>(2, text.size() - at);
                     ++deleted) {
                    for (const std::u16string& piece : pieces) {
                        Tree tree(text, set);
                        tree.replace({static_cast<std::int64_t>(at), static_cast<std::int64_t>(deleted)},
                                     piece);
                        ASSERT_EQ(checkTree(tree) + differenceFromFreshParse(tree), "")
                            << visible(text) << " [" << at << ", " << deleted << "] " << visible(piece);
                    }
                }
            }
        }
    }
}

} // namespace
} // namespace Ondo::Test
