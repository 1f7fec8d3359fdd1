#include "corvane/tree/WritingDirection.h"

#include <gtest/gtest.h>

#include "tests/support/Nodes.h"
#include "tests/support/Print.h"
#include "tests/support/TreeCheck.h"

namespace Ondo::Test {
namespace {

constexpr RuleConfig::RuleSet E = RuleConfig::Extended;

char digit(Direction direction) {
    return static_cast<char>('0' + static_cast<int>(direction));
}

/// The direction of each first-level block: 1 left to right, 2 right to left, 3 and 4 the same by
/// inheritance.
std::string directions(const Node* root) {
    std::string digits;
    for (const Node* block = root->firstChild; block; block = block->nextSibling)
        digits += digit(block->direction);
    return digits;
}

TEST(WritingDirection, OfFirstLevelBlocks) {
    // U+05D0 is a Hebrew letter (R), U+0627 an Arabic one (AL); U+10900 is R and U+1D400 L, in two units
    // each.
    const std::pair<std::u16string, const char*> cases[] = {
        {u"", ""},
        {u"12", "0"},
        {u"1. \u0627 a", "2"},
        {u"(a) \u05D0", "1"},
        {u"12\n\na\n\n34\n\n\u05D0\n\n56\n", "001333244"},
        {u"\u05D0\n***\n \n", "244"},
        // The first strong character decides, whatever holds it.
        {u"> - 1\n> - \u05D0\n> - a\n", "2"},
        {u"- 1\n  > # a\n- \u05D0\n", "1"},
        // Code is left to right and hands on what stood before it.
        {u"\u05D0\n\n```\nx\n```\n\n12\n", "24144"},
        {u"```\n\u05D0\n```\n12\n", "10"},
        {u"a\n\n    \u05D0\n\n12\n", "13133"},
        {u"\u05D0\n\n$$\nx\n$$\n12\n", "2414"},
        {u"> ``` a\n> 1\n> ```\n> \u05D0\n", "2"},
        // Pairs of surrogates are one character, and half of one is none.
        {u"\U0001F534 \U00010900 a", "2"},
        {u"\U0001F534 \U0001D400 \u05D0", "1"},
        {std::u16string{0xD802, u' ', 0xDD00, 0x05D0, 0xD802}, "2"},
    };
    for (const auto& [text, expected] : cases)
        EXPECT_EQ(directions(Tree(text, E).root.get()), expected) << visible(text);
}

TEST(WritingDirection, OnlyCodeHasOneBelowTheFirstLevel) {
    const Tree tree(u"> - \u05D0\n>   ```\n>   x\n>   ```\n>\n>       y\n\n- 1\n\n      \u05D0\n", E);
    std::string deep;
    for (const Placed& at : placedNodes(tree.root.get()))
        if (at.level > 1 && at.node->direction != Direction::None)
            deep += std::to_string(at.node->type) + digit(at.node->direction) + ' ';
    EXPECT_EQ(deep, "101 221 221 ");
}

TEST(WritingDirection, ASeedIsHandedToWhatHasNone) {
    const auto root = makeTree("d0-9(p0-2(t0-2) p2-4(t2-4) q4-9(p4-9(t4-9)))");
    setWritingDirection(u"1\n2\n> \u05D0\n", root.get(), Direction::InheritedLeftToRight);
    EXPECT_EQ(directions(root.get()), "332");
    EXPECT_EQ(digit(directionBehind(nullptr)), '0');
    EXPECT_EQ(digit(directionBehind(root->firstChild)), '3');
    EXPECT_EQ(digit(directionBehind(root->lastChild)), '4');
}

/// What a Hebrew letter below holders of those types, the outermost first, gives its paragraph.
char contentOf(std::initializer_list<NodeType> holders) {
    const auto paragraph = makeTree("p0-1");
    Node* parent = paragraph.get();
    for (const NodeType type : holders)
        parent = parent->linkSubtree(std::make_unique<PlainNode>(type, 0, 1, 0, 0, paragraph.get()));
    parent->linkSubtree(makeTree("t0-1"));
    return digit(writingDirectionOfContent(u"\u05D0", paragraph.get()));
}

TEST(WritingDirection, OnlyTextThatAReaderSeesCounts) {
    constexpr NodeType visibleTypes[] = {
        ONDO_HASHTAG_SEGMENT_ATTRIBUTE_NODE, ONDO_IMAGE_TEXT_ATTRIBUTE_NODE,
        ONDO_LINK_TEXT_ATTRIBUTE_NODE,       ONDO_WIKILINK_SEGMENT_ATTRIBUTE_NODE,
        ONDO_WIKILINK_ALIAS_ATTRIBUTE_NODE,  ONDO_EMPHASE_NODE};
    constexpr NodeType hiddenTypes[] = {ONDO_LINK_DESTINATION_ATTRIBUTE_NODE,
                                        ONDO_IMAGE_TITLE_ATTRIBUTE_NODE,
                                        ONDO_WIKILINK_TARGET_ATTRIBUTE_NODE,
                                        ONDO_CODE_SPAN_NODE,
                                        ONDO_RAW_HTML_NODE,
                                        ONDO_MATH_SPAN_NODE};
    for (const NodeType type : visibleTypes)
        EXPECT_EQ(contentOf({type}), '2') << type;
    for (const NodeType type : hiddenTypes)
        EXPECT_EQ(contentOf({type}), '0') << type;
    EXPECT_EQ(contentOf({ONDO_LINK_TEXT_ATTRIBUTE_NODE, ONDO_STRONG_NODE}), '2');
    EXPECT_EQ(contentOf({ONDO_LINK_DESTINATION_ATTRIBUTE_NODE, ONDO_ENTITY_NODE}), '0');
}

TEST(WritingDirection, ChangesAreHandedOnThroughEdits) {
    const struct {
        const char* what;
        std::u16string text;
        Range range;
        std::u16string piece;
        const char* directions;
        const char* redraw;
    } cases[] = {
        {"up to the next of its own", u"a\n\n1\n\n2\n\nb\n\n3\n", {0, 1}, u"\u05D0", "244444133", "[0, 9]"},
        {"over code", u"a\n\n```\nx\n```\n1\n\nb\n", {0, 1}, u"\u05D0", "241441", "[0, 16]"},
        {"not without a change", u"a\n\n1\n\n2\n", {0, 1}, u"b", "13333", "[0, 2]"},
        {"none is handed on, too", u"a\n\n1\n\n2\n", {0, 1}, u"0", "00000", "[0, 8]"},
        {"from before a run of code",
         u"\u05D0\n```\n```\n~~~\n~~~\n1\n2\n",
         {20, 1},
         u"3",
         "2114",
         "[18, 4]"},
        {"when the block that had one goes", u"1\n\na\n\n2\n\n3\n", {3, 3}, u"", "00000", "[3, 5]"},
        {"from within a list", u"- 1\n- a\n\n2\n", {6, 1}, u"\u05D0", "244", "[0, 11]"},
    };
    for (const auto& c : cases) {
        Tree tree(c.text, E);
        EXPECT_EQ(show(tree.replace(c.range, c.piece)), c.redraw) << c.what;
        EXPECT_EQ(directions(tree.root.get()), c.directions) << c.what;
        EXPECT_EQ(differenceFromFreshParse(tree), "") << c.what;
    }
}

} // namespace
} // namespace Ondo::Test
