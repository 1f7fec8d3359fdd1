#include "corvane/tree/Node.h"

#include <gtest/gtest.h>

#include "tests/support/Nodes.h"
#include "tests/support/TreeCheck.h"

namespace Ondo::Test {
namespace {

constexpr LevelSetting Highest = LevelSetting::Highest;
constexpr LevelSetting Leaf = LevelSetting::Leaf;
constexpr LevelSetting FirstLevel = LevelSetting::FirstLevel;

Node* find(Node* root, const std::string& wanted) {
    return root->descendantWhere([&](const Node* node) { return label(node) == wanted; });
}

auto isType(NodeType type) {
    return [type](const Node* node) { return node->type == type; };
}

TEST(Node, NodeAtRelativeOffset) {
    const auto root = makeTree("d0-9(p0-4(t0-1 e1-3(t1-2 t2-3) t3-4) p4-9(e4-8(t4-8) n8-9))");
    const struct {
        std::int64_t offset;
        const char* highest;
        const char* leaf;
        const char* firstLevel;
    } cases[] = {
        {0, "d0-9", "t0-1", "p0-4"}, {1, "e1-3", "t1-2", "e1-3"}, {2, "t2-3", "t2-3", "t2-3"},
        {3, "t3-4", "t3-4", "t3-4"}, {4, "p4-9", "t4-8", "p4-9"}, {6, "t4-8", "t4-8", "t4-8"},
        {8, "n8-9", "n8-9", "n8-9"}, {9, "d0-9", "n8-9", "p4-9"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(label(root->nodeAtRelativeOffset(c.offset, Highest)), c.highest) << c.offset;
        EXPECT_EQ(label(root->nodeAtRelativeOffset(c.offset, Leaf)), c.leaf) << c.offset;
        EXPECT_EQ(label(root->nodeAtRelativeOffset(c.offset, FirstLevel)), c.firstLevel) << c.offset;
    }
    // From a node inside the tree the offset counts from its start.
    EXPECT_EQ(label(root->lastChild->nodeAtRelativeOffset(1, Highest)), "t4-8");
    const auto empty = makeTree("t3-3");
    const auto document = makeTree("d0-0");
    for (const LevelSetting level : {Highest, Leaf, FirstLevel}) {
        EXPECT_EQ(empty->nodeAtRelativeOffset(0, level), empty.get());
        EXPECT_EQ(document->nodeAtRelativeOffset(0, level), document.get());
    }
}

TEST(Node, AncestorWhere) {
    const auto root = makeTree("d0-9(q0-9(q1-9(i2-9(q3-9(p3-9(t3-9))))))");
    const auto detached = makeTree("q0-9(q1-9(p2-9(t3-9)))");
    const auto isQuote = isType(ONDO_BLOCK_QUOTE_NODE);
    const auto isAboveTwo = [](const Node* node) { return node->treeLevel() < 2; };
    Node* const text = find(root.get(), "t3-9");
    EXPECT_EQ(label(text->ancestorWhere(isQuote, Leaf)), "q3-9");
    EXPECT_EQ(label(text->ancestorWhere(isQuote, Highest)), "q0-9");
    EXPECT_EQ(label(text->ancestorWhere(isQuote, FirstLevel)), "q0-9");
    // Only FirstLevel stops below the document, or at a root that satisfies.
    EXPECT_EQ(label(text->ancestorWhere(isAboveTwo, Highest)), "d0-9");
    EXPECT_EQ(label(text->ancestorWhere(isAboveTwo, FirstLevel)), "q0-9");
    EXPECT_EQ(label(find(detached.get(), "t3-9")->ancestorWhere(isQuote, FirstLevel)), "q0-9");
    // Never the node itself.
    EXPECT_EQ(label(find(root.get(), "q1-9")->ancestorWhere(isQuote, Leaf)), "q0-9");
    EXPECT_EQ(root->firstChild->ancestorWhere(isQuote, Highest), nullptr);
    EXPECT_TRUE(text->hasAncestorOfType(ONDO_LIST_ITEM_NODE));
    EXPECT_FALSE(text->hasAncestorOfType(ONDO_TEXT_NODE));
    EXPECT_EQ(label(text->parentBlock()), "p3-9");
    EXPECT_EQ(label(find(root.get(), "p3-9")->parentBlock()), "q3-9");
    EXPECT_EQ(label(text->firstLevelAncestor()), "q0-9");
}

TEST(Node, SearchesBelowANode) {
    const auto root =
        makeTree("d0-9(p0-3(e0-2(t0-2) t2-3) q3-6(p3-6(e4-5(s4-5))) p6-9(m6-7 a7-8(a7-8) t8-8 a8-9))");
    Node* const first = root->firstChild;
    EXPECT_EQ(label(first->childWhere(isType(ONDO_TEXT_NODE))), "t2-3");
    EXPECT_EQ(label(first->descendantWhere(isType(ONDO_TEXT_NODE))), "t0-2");
    EXPECT_EQ(label(root->descendantWhere(isType(ONDO_SPACE_NODE))), "s4-5");
    // The search ends with the subtree, and leaves out the node itself.
    EXPECT_FALSE(first->hasDescendantWhere(isType(ONDO_SPACE_NODE)));
    EXPECT_FALSE(first->hasDescendantWhere(isType(ONDO_PARAGRAPH_NODE)));
    // Attributes are sought among the children, not below them.
    EXPECT_EQ(label(root->lastChild->firstAttribute()), "a7-8");
    EXPECT_EQ(label(root->lastChild->firstAttribute()->nextAttribute()), "a8-9");
    EXPECT_EQ(root->firstAttribute(), nullptr);
    EXPECT_EQ(root->lastChild->lastChild->nextAttribute(), nullptr);
}

TEST(Node, MarkersOfOneMakerSkipThoseOfOthers) {
    // The markers of the outer quote lie in the inner one's blocks, before those of the inner.
    const Tree tree(u"> > a\n> > b\n> c\n>\n> > ```\n> > x\n\n> d", RuleConfig::Commonmark);
    const auto markers = [](Node* node) {
        std::string offsets;
        for (const Node* marker = node->firstMarker(); marker; marker = marker->nextMarker())
            offsets += std::to_string(marker->startOffset()) + " ";
        return offsets;
    };
    Node* const outer = tree.root->firstChild;
    EXPECT_EQ(markers(outer), "0 6 12 16 18 26 ");
    EXPECT_EQ(markers(outer->childWhere(isType(ONDO_BLOCK_QUOTE_NODE))), "2 8 ");
    EXPECT_EQ(markers(tree.root->lastChild), "33 ");
    EXPECT_EQ(tree.root->firstMarker(), nullptr);
    EXPECT_EQ(outer->nextMarker(), nullptr) << "called on what is no marker";
}

TEST(Node, Lines) {
    const Tree tree(u"> a\n> b\n\n- c\n  d", RuleConfig::Commonmark);
    const std::int64_t starts[] = {0, 4, 8, 9, 13, 16}; // of the lines, and the end of the text
    for (int line = 0; line < 5; ++line) {
        for (std::int64_t offset = starts[line]; offset < starts[line + 1]; ++offset) {
            Node* const leaf = tree.nodeAtOffset(offset, Leaf);
            EXPECT_EQ(leaf->beginningOfLine()->startOffset(), starts[line]) << offset;
            EXPECT_EQ(leaf->endOfLine()->endOffset(), starts[line + 1]) << offset;
        }
    }
    // The first node of a line is the highest one below the document.
    EXPECT_EQ(tree.nodeAtOffset(2, Leaf)->beginningOfLine(), tree.root->firstChild);
    EXPECT_EQ(tree.root->firstChild->endOfLine(), tree.nodeAtOffset(3, Leaf));
}

TEST(Node, LinkingUnlinkingAndHandingOver) {
    const auto root = makeTree("p0-9");
    Node* const b = root->linkSubtree(makeTree("t3-5"));
    Node* const a = root->linkSubtree(makeTree("e0-3(t0-3)"), b);
    Node* const d = root->linkSubtree(makeTree("t7-9"), nullptr);
    Node* const c = root->linkSubtree(makeTree("s5-7"), d);
    EXPECT_EQ(notation(root.get()), "p0-9(e0-3(t0-3) t3-5 s5-7 t7-9)");
    EXPECT_TRUE(root->lastChild == d && c->previousSibling == b);
    const auto target = makeTree("p0-9");
    root->moveAllChildrenTo(target.get());
    EXPECT_EQ(notation(target.get()), "p0-9(e0-3(t0-3) t3-5 s5-7 t7-9)");
    EXPECT_TRUE(target->lastChild == d && a->parent == target.get() && d->parent == target.get());
    EXPECT_FALSE(root->firstChild || root->lastChild);
    for (Node* const gone : {c, a, d}) {
        const std::unique_ptr<Node> owned = gone->unlinkSubtree();
        ASSERT_EQ(owned.get(), gone);
        EXPECT_FALSE(owned->parent || owned->previousSibling || owned->nextSibling);
    }
    EXPECT_TRUE(target->firstChild == b && target->lastChild == b && !b->previousSibling && !b->nextSibling);
    EXPECT_EQ(target->charCount, 9) << "counts are the callers' business";
    b->unlinkSubtree().reset();
    EXPECT_FALSE(target->firstChild || target->lastChild);
}

TEST(Node, DeepTreesDieWithoutRecursionAndAreCounted) {
    const std::int64_t before = Node::instanceCount;
    auto root = makeTree("d0-1");
    Node* deepest = root.get();
    for (int i = 0; i < 1'000'000; ++i)
        deepest = deepest->linkSubtree(makeTree("e0-1"));
    root->linkSubtree(makeTree("p0-1(e0-1(t0-1) t0-1)"), root->firstChild);
    root->linkSubtree(makeTree("p0-1(t0-1)"));
    EXPECT_EQ(deepest->treeLevel(), 1'000'000);
    EXPECT_EQ(Node::instanceCount, before + 1'000'007);
    root.reset();
    EXPECT_EQ(Node::instanceCount, before);
}

TEST(Node, ExpensiveSubstringClampsTheLengthOnly) {
    const auto root = makeTree("d0-9(p0-4 p4-9)");
    EXPECT_EQ(root->lastChild->expensiveSubstring(u"012345678"), u"45678");
    EXPECT_EQ(root->lastChild->expensiveSubstring(u"0123456"), u"456");
    EXPECT_EQ(root->lastChild->expensiveSubstring(u"0123"), u"");
    const auto startOutside = [&root]() noexcept { return root->lastChild->expensiveSubstring(u"012"); };
    EXPECT_DEATH(startOutside(), "string_view::substr");
}

} // namespace
} // namespace Ondo::Test
