#include "corvane/tree/TreeText.h"

#include <gtest/gtest.h>

#include "corvane/scan/Util.h"
#include "corvane/tree/Common.h"
#include "corvane/tree/InlineParser.h"
#include "tests/support/Nodes.h"
#include "tests/support/TreeCheck.h"

namespace Ondo::Test {
namespace {

constexpr RuleConfig::RuleSet C = RuleConfig::Commonmark;

TEST(TreeText, IndentedTree) {
    EXPECT_EQ(indentedTree(u"", C), "document()\n");
    EXPECT_EQ(
        indentedTree(u" a\tb\\ \r\nc", C),
        "document\n  paragraph\n    space( )\n    text(a\\tb\\\\)\n    space( )\n    line_ending(\\r\\n)\n"
        "    text(c)\n");
    // A subtree keeps its level.
    const Tree tree(u"a\n\n> b\nc", C);
    Node* const paragraph = tree.nodeAtOffset(5, LevelSetting::Leaf)->parentBlock();
    paragraph->folded = true;
    EXPECT_EQ(Util::utf8(Util::toIndentedTree(paragraph, tree.markdown())),
              "    paragraph{folded}{lazy}\n      marker(> )\n      text(b)\n      line_ending(\\n)\n      "
              "text(c)\n");
}

TEST(TreeText, Html) {
    EXPECT_EQ(html(u"\n  \n", C), "");
    // Blanks around a line leave no trace, nor does the line ending at the edge.
    EXPECT_EQ(html(u"  a \r\n b \rc\n\n\n\"&<>'", C), "<p>a\nb\nc</p>\n<p>&quot;&amp;&lt;&gt;'</p>\n");
    const auto lines = makeTree("p0-3");
    for (const int offset : {0, 1, 2})
        lines->linkSubtree(std::make_unique<Inline::LineEndingNode>(offset, offset + 1, 0));
    std::u16string out;
    lines->childrenToHtml(out, u"\r\r\r", 0);
    EXPECT_EQ(out, u"\n");
    Tree tree(u"a\n\n> b & c\n", C);
    tree.replace({0, 1}, u"longer");
    EXPECT_EQ(Util::utf8(Util::toHtml(tree.root->lastChild->lastChild, tree.markdown())),
              "<p>b &amp; c</p>\n");
}

TEST(TreeText, TextFillsGapsAtAllDepths) {
    const auto root = makeTree("p0-20(m1-3(t1-2) e4-9(e5-7(s6-7) n8-9) n12-13 e13-13)");
    InlineParserNode::addTextNodes(root.get());
    EXPECT_EQ(notation(root.get()),
              "p0-20(t0-1 m1-3(t1-2) t3-4 e4-9(t4-5 e5-7(t5-6 s6-7) t7-8 n8-9) t9-12 n12-13 e13-13 t13-20)");
}

/// Blanks belong to the value of an attribute directly before a line ending.
TEST(TreeText, TheValueOfAnAttribute) {
    const auto link = makeTree("p0-10");
    Inline::AttributeNode attribute(ONDO_LINK_TEXT_ATTRIBUTE_NODE, 0, 10, 4, 1, link.get());
    attribute.linkSubtree(std::make_unique<Inline::SpaceNode>(0, 2, 4));
    attribute.linkSubtree(std::make_unique<Inline::SpaceNode>(4, 6, 4));
    attribute.linkSubtree(std::make_unique<Inline::LineEndingNode>(6, 7, 4));
    InlineParserNode::addTextNodes(&attribute);
    EXPECT_EQ(notation(&attribute), "a0-10(s0-2 t2-4 s4-6 n6-7 t7-10)");
    EXPECT_EQ(attribute.lastChild->lineWhenParsed, 5);
    EXPECT_EQ(Util::utf8(InlineParserNode::attributeString(u"  ab  \nc d", &attribute)), "ab  \nc d");
}

} // namespace
} // namespace Ondo::Test
