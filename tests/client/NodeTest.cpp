#include <gtest/gtest.h>

#include <functional>

#include "corvane/client/CVNASTNodes.h"
#include "corvane/client/CVNAttributeName.h"
#include "corvane/scan/Util.h"
#include "corvane/tree/Tree.h"

namespace {

using Ondo::Tree;

std::optional<CVNASTNode> rootOf(const Tree& tree) {
    return CVNASTNode::nodeForASTNode(tree.root.get());
}

/// What `ask` answers for all nodes of a text that are of the class T, in order.
template <class T, class Ask>
auto answers(const Tree& tree, Ask ask) {
    std::vector<std::decay_t<std::invoke_result_t<Ask, const T&>>> found;
    for (auto node = rootOf(tree); node; node = node->nextInSequence())
        if (const std::optional<T> wrapper = node->as<T>()) found.push_back(ask(*wrapper));
    return found;
}

template <class T>
using All = std::vector<T>;

TEST(ASTNode, ClassesByTypeWithTypesAndRanges) {
    const struct {
        const char16_t* text;
        std::string description;
    } cases[] = {
        {u"x\n\n# a\n", "CVNASTATXHeadingNode atx_heading {3, 4}"},
        {u"a\n=", "CVNASTSetextHeadingNode setext_heading {0, 3}"},
        {u"> a", "CVNASTBlockQuoteNode block_quote {0, 3}"},
        {u"```\n```", "CVNASTFencedCodeBlockNode fenced_code {0, 7}"},
        {u"[^1]: a", "CVNASTFootnoteDefinitionNode footnote_definition {0, 7}"},
        {u"- a\n- b", "CVNASTListNode list {0, 7}"},
        {u"- a", "CVNASTListItemNode list_item {0, 3}"},
        {u"|a|\n|-|", "CVNASTTableCellNode table_cell {1, 1}"},
        {u"a &amp;", "CVNASTEntityNode entity {2, 5}"},
        {u"a ![b](c)", "CVNASTLinkAndImageNode image {2, 7}"},
        {u"> a [b](c)", "CVNASTLinkAndImageNode link {4, 6}"},
        {u"a <b>", "CVNASTHTMLInlineNode raw_html {2, 3}"},
        {u"[[a]]", "CVNASTWikiNode wikilink {0, 5}"},
        {u"a", "CVNASTNode paragraph {0, 1}"},
        {u"**a**", "CVNASTNode strong {0, 5}"},
    };
    for (const auto& c : cases) {
        const Tree tree(c.text);
        std::string all;
        bool isFound = false;
        for (auto node = rootOf(tree); node; node = node->nextInSequence()) {
            const std::string description = Ondo::Util::utf8(node->description());
            isFound |= description == c.description;
            all += description + "\n";
        }
        EXPECT_TRUE(isFound) << c.description << " is none of\n" << all;
    }
}

TEST(ASTNode, RootOfAnEmptyNote) {
    const Tree tree(u"");
    const auto root = rootOf(tree);
    EXPECT_EQ(root->nodeClass(), CVNASTNode::Class::Node);
    EXPECT_EQ(root->type(), 0);
    EXPECT_EQ(root->range(), (CVNRange{0, 0}));
    EXPECT_FALSE(root->parent() || root->firstChild() || root->nextInSequence());
    EXPECT_FALSE(CVNASTNode::nodeForASTNode(nullptr));
}

TEST(ASTNode, Relations) {
    const Tree tree(u"- *a* b\n\n> c");
    const auto same = [](const std::optional<CVNASTNode>& wrapper, const Ondo::Node* node) {
        return wrapper ? wrapper->node == node : !node;
    };
    for (const Ondo::Node* node = tree.root.get(); node; node = node->nextInSequence()) {
        const CVNASTNode wrapper = *CVNASTNode::nodeForASTNode(node);
        EXPECT_TRUE(same(wrapper.parent(), node->parent) && same(wrapper.firstChild(), node->firstChild) &&
                    same(wrapper.lastChild(), node->lastChild) &&
                    same(wrapper.previousSibling(), node->previousSibling) &&
                    same(wrapper.nextSibling(), node->nextSibling) &&
                    same(wrapper.nextInSequence(), node->nextInSequence()) &&
                    same(wrapper.previousInSequence(), node->previousInSequence()))
            << node->startOffset();
    }
}

TEST(ASTNode, OnlyADirectionOfItsOwnCounts) {
    const Tree tree(u"a\n\n\u05D0\n\n1");
    std::vector<std::int64_t> directions;
    for (auto block = rootOf(tree)->firstChild(); block; block = block->nextSibling())
        if (block->type() == Ondo::ONDO_PARAGRAPH_NODE) directions.push_back(block->direction());
    EXPECT_EQ(directions,
              (All<std::int64_t>{CVNDirectionLtrValue, CVNDirectionRtlValue, CVNDirectionNaturalValue}));
}

TEST(ASTNode, AsNeedsAFittingType) {
    const Tree tree(u"# a");
    const CVNASTNode heading = *rootOf(tree)->firstChild();
    EXPECT_TRUE(heading.as<CVNASTATXHeadingNode>());
    EXPECT_FALSE(heading.as<CVNASTSetextHeadingNode>());
    EXPECT_FALSE(heading.firstChild()->as<CVNASTATXHeadingNode>());
}

TEST(ASTNode, Headings) {
    const auto level = [](const auto& heading) { return heading.level(); };
    const Tree tree(u"### a\n\nb\n=\n\nc\n--");
    EXPECT_EQ(answers<CVNASTATXHeadingNode>(tree, level), (All<std::int64_t>{3}));
    EXPECT_EQ(answers<CVNASTSetextHeadingNode>(tree, level), (All<std::int64_t>{1, 2}));
}

TEST(ASTNode, Callouts) {
    const Tree tree(u"> [!TIP]\n> a\n\n- b\n\n> c\n> > [!CAUTION]");
    using Quote = CVNASTBlockQuoteNode;
    EXPECT_EQ(answers<Quote>(tree, std::mem_fn(&Quote::isCallout)), (All<bool>{true, false, true}));
    EXPECT_EQ(answers<Quote>(tree, std::mem_fn(&Quote::calloutType)), (All<std::int64_t>{1, CVNNotFound, 4}));
}

TEST(ASTNode, ListItems) {
    const Tree tree(u"3. a\n4. b\n9. c\n\n- [ ] d\n- [x] e\n- f");
    using Item = CVNASTListItemNode;
    EXPECT_EQ(answers<Item>(tree, std::mem_fn(&Item::itemIndex)), (All<std::int64_t>{0, 1, 2, 0, 1, 2}));
    EXPECT_EQ(answers<Item>(tree, std::mem_fn(&Item::orderedListItemNumber)),
              (All<std::int64_t>{3, 4, 9, 0, 0, 0}));
    EXPECT_EQ(answers<Item>(tree, std::mem_fn(&Item::isTask)),
              (All<bool>{false, false, false, true, true, false}));
    EXPECT_EQ(answers<Item>(tree, std::mem_fn(&Item::isTaskCompleted)),
              (All<bool>{false, false, false, false, true, false}));
    EXPECT_EQ(answers<CVNASTListNode>(tree, std::mem_fn(&CVNASTListNode::isOrdered)),
              (All<bool>{true, false}));
}

TEST(ASTNode, NestingLevelCountsFromTheGrandparentSoThatItemsHaveNone) {
    const Tree tree(u"- a\n  - b\n    1. c\n       > - d\n       >   - e");
    EXPECT_EQ(answers<CVNASTListNode>(tree, std::mem_fn(&CVNASTListNode::nestingLevel)),
              (All<std::int64_t>{0, 1, 2, 0, 1}));
    EXPECT_EQ(answers<CVNASTListItemNode>(tree, std::mem_fn(&CVNASTListItemNode::nestingLevel)),
              (All<std::int64_t>{0, 0, 0, 0, 0}));
}

TEST(ASTNode, FencedCode) {
    const Tree tree(u"> ```c++ x\n> a\n>  b\n> ```");
    using Fence = CVNASTFencedCodeBlockNode;
    EXPECT_EQ(answers<Fence>(tree, std::mem_fn(&Fence::language)), (All<std::u16string_view>{u"c++"}));
    EXPECT_EQ(answers<Fence>(tree, std::mem_fn(&Fence::code)), (All<std::u16string_view>{u"a\n b\n"}));
}

TEST(ASTNode, TableCells) {
    const Tree tree(u"|a|b|c|d|\n|-|:-|:-:|-:|");
    EXPECT_EQ(answers<CVNASTTableCellNode>(tree, std::mem_fn(&CVNASTTableCellNode::alignment)),
              (All<std::int64_t>{4, 0, 1, 2}));
}

TEST(ASTNode, LinksImagesAndWhatTheyLeadTo) {
    const Tree tree(u"[a](<b c> \"d\") ![e](f%20g) [h][I\tJ] [k]\n\n[i j]: l 'm'\n\n[^N]: o");
    using Link = CVNASTLinkAndImageNode;
    EXPECT_EQ(answers<Link>(tree, std::mem_fn(&Link::type)), (All<std::int64_t>{100, 85, 100, 100}));
    EXPECT_EQ(answers<Link>(tree, std::mem_fn(&Link::url)),
              (All<std::u16string>{u"b c", u"f%20g", u"l", u""}));
    EXPECT_EQ(answers<Link>(tree, std::mem_fn(&Link::title)), (All<std::u16string>{u"d", u"", u"m", u""}));
    EXPECT_EQ(answers<Link>(tree, std::mem_fn(&Link::label)),
              (All<std::u16string_view>{u"", u"", u"i j", u"k"}));
    using Footnote = CVNASTFootnoteDefinitionNode;
    EXPECT_EQ(answers<Footnote>(tree, std::mem_fn(&Footnote::label)), (All<std::u16string_view>{u"n"}));
}

TEST(ASTNode, EntitiesAndWikilinks) {
    const Tree tree(u"&auml;&#x1F600;&#0; [[a/b\\/c| d ]] [[e]]");
    using Wiki = CVNASTWikiNode;
    EXPECT_EQ(answers<CVNASTEntityNode>(tree, std::mem_fn(&CVNASTEntityNode::toString)),
              (All<std::u16string>{u"\u00E4", u"\U0001F600", u"\uFFFD"}));
    EXPECT_EQ(answers<Wiki>(tree, std::mem_fn(&Wiki::title)), (All<std::u16string>{u"a/b\\/c", u"e"}));
    EXPECT_EQ(answers<Wiki>(tree, std::mem_fn(&Wiki::alias)), (All<std::u16string_view>{u"d", u""}));
}

TEST(ASTNode, Metadata) {
    const Tree tree(u"> a<!-- {\"b\":\n> 1} --> <!-- c --> <d>");
    using HTML = CVNASTHTMLInlineNode;
    const auto metadata = answers<HTML>(tree, std::mem_fn(&HTML::metadata));
    ASSERT_EQ(metadata.size(), 3U);
    EXPECT_EQ(metadata[0], (CVNDictionary{{u"b", CVNValue::integer(1)}}));
    EXPECT_FALSE(metadata[1] || metadata[2]);
}

} // namespace
