// The cursor against Node::Iterator and against the text, on random notes; its states in tables.

#include "corvane/tree/NodeIterator.h"

#include <gtest/gtest.h>

#include <functional>

#include "corvane/scan/Util.h"
#include "tests/support/Nodes.h"
#include "tests/support/RandomNote.h"
#include "tests/support/TreeCheck.h"

namespace Ondo::Test {
namespace {

using Step = void (NodeIterator::*)();
using Nodes = std::vector<Placed>;

/// The node with its text, and the position: "text(ab)@1"; or the two states without a node, or "none" after
/// a step to a relative that there isn't.
std::string state(const NodeIterator& at) {
    const std::string position = "@" + std::to_string(at.markdownOffset());
    if (at.node) return Util::utf8(nodeName(at->type)) + "(" + visible(at.markdownForNode()) + ")" + position;
    if (at.isAtEndOfDocument()) return "end";
    return at.nodeOffset == 0 && at.line == 0 && at.level == 0 && at.markdownOffset() == 0 ? "nullified"
                                                                                           : "none";
}

/// All fields, to compare two roads to a place.
std::string fields(const NodeIterator& at) {
    return label(at.node) + " at " + std::to_string(at.nodeOffset) + ", line " + std::to_string(at.line) +
           ", level " + std::to_string(at.level) + ", position " + std::to_string(at.markdownOffset());
}

std::string fields(const Node::Iterator& at) {
    return label(at.node) + " at " + std::to_string(at.offset) + ", line " + std::to_string(at.line) +
           ", level " + std::to_string(at.level) + ", position " + std::to_string(at.offset);
}

NodeIterator after(NodeIterator at, std::initializer_list<Step> steps) {
    for (const Step step : steps)
        (at.*step)();
    return at;
}

NodeIterator end(const Tree& tree) {
    NodeIterator at(tree.markdown(), tree.root.get());
    at.endOfDocument();
    return at;
}

void forRandomTrees(const std::function<void(const Tree&, const Nodes&)>& check) {
    for (std::uint64_t seed = 0; seed < 90 && !testing::Test::HasFailure(); ++seed) {
        const Tree tree(seed == 0 ? u"" : RandomNote(seed).note(12), allRuleSets[seed % 3]);
        SCOPED_TRACE(visible(tree.markdown()));
        check(tree, placedNodes(tree.root.get()));
    }
}

// Steps

const std::pair<Step, void (Node::Iterator::*)()> steps[] = {
    {&NodeIterator::previousInSequence, &Node::Iterator::previousInSequence},
    {&NodeIterator::lastNodeOfSubtree, &Node::Iterator::lastNodeOfSubtree},
    {&NodeIterator::parent, &Node::Iterator::parent},
    {&NodeIterator::firstChild, &Node::Iterator::firstChild},
    {&NodeIterator::lastChild, &Node::Iterator::lastChild},
    {&NodeIterator::previousSibling, &Node::Iterator::previousSibling},
    {&NodeIterator::nextSibling, &Node::Iterator::nextSibling},
    {&NodeIterator::maker, &Node::Iterator::maker},
};

TEST(NodeIterator, StepsAsNodeIteratorsDo) {
    forRandomTrees([](const Tree& tree, const Nodes& nodes) {
        for (const Placed& placed : nodes) {
            NodeIterator at(tree.markdown(), placed.node);
            EXPECT_EQ(fields(at), fields(Node::Iterator(placed.node)));
            at.endOfNode();
            EXPECT_EQ(at.markdownOffset(), placed.offset + placed.node->charCount);
            for (const auto& [step, iteratorStep] : steps) {
                Node::Iterator expected(placed.node);
                (expected.*iteratorStep)();
                EXPECT_EQ(fields(after(at, {step})), fields(expected));
            }
        }
    });
}

TEST(NodeIterator, WalksTheTreeToItsEndAndBack) {
    forRandomTrees([](const Tree& tree, const Nodes& nodes) {
        NodeIterator at(tree.markdown(), tree.root.get());
        for (std::size_t i = 0; i < nodes.size(); ++i) {
            const auto fieldsOf = [&](std::size_t index) {
                return fields(index < nodes.size() ? NodeIterator(tree.markdown(), nodes[index].node)
                                                   : end(tree));
            };
            EXPECT_EQ(fields(at), fieldsOf(i));
            EXPECT_EQ(fields(after(at, {&NodeIterator::nextInSequenceSkippingSubtree})),
                      fieldsOf(nodes[i].behind));
            EXPECT_EQ(fields(at++), fieldsOf(i));
        }
        EXPECT_EQ(state(at), "end");
        EXPECT_EQ(state(++at), "end");
        for (std::size_t i = nodes.size(); i-- > 0;) {
            at.previousInSequence();
            EXPECT_EQ(at.node, nodes[i].node);
            EXPECT_EQ(at.nodeOffset, nodes[i].offset);
        }
        at.previousInSequence();
        EXPECT_EQ(state(at), "nullified");
    });
}

TEST(NodeIterator, FindsMarkersOfAConstruct) {
    forRandomTrees([](const Tree& tree, const Nodes& nodes) {
        for (const Placed& placed : nodes) {
            const NodeIterator at(tree.markdown(), placed.node);
            EXPECT_EQ(after(at, {&NodeIterator::firstMarker}).node, placed.node->firstMarker());
            NodeIterator next = after(at, {&NodeIterator::nextMarker});
            EXPECT_EQ(fields(next), fields(Node::Iterator(placed.node->nextMarker())));
        }
    });
}

// Places

/// The highest node below the document that starts at the offset, or the leaf that holds it.
const Node* nodeAt(const Nodes& nodes, std::int64_t offset) {
    const Node* holding = nullptr;
    for (std::size_t i = 1; i < nodes.size(); ++i) {
        if (nodes[i].offset == offset) return nodes[i].node;
        if (nodes[i].offset < offset && offset < nodes[i].offset + nodes[i].node->charCount)
            holding = nodes[i].node;
    }
    return holding;
}

TEST(NodeIterator, FindsOffsets) {
    forRandomTrees([](const Tree& tree, const Nodes& nodes) {
        for (std::int64_t target = 0; target < tree.length(); ++target) {
            const NodeIterator found = tree.nodeIteratorAtOffset(target);
            EXPECT_EQ(found.node, nodeAt(nodes, target)) << target;
            EXPECT_EQ(found.nodeOffset, found->startOffset());
            EXPECT_EQ(found.line, found->startLine());
            EXPECT_EQ(found.level, found->treeLevel());
            EXPECT_EQ(found.markdownOffset(), target);
            for (std::int64_t from = target % 5; from < target; from += 5) {
                NodeIterator at = tree.nodeIteratorAtOffset(from);
                at.nextByOffset(target - from);
                // On the way down it can meet a node that starts there below the highest.
                EXPECT_TRUE(at.node == found.node || (at.nodeOffset == target && !at->previousSibling));
            }
        }
        EXPECT_EQ(state(tree.nodeIteratorAtOffset(tree.length())), "end");
    });
}

TEST(NodeIterator, LeavesThePositionWhereItIs) {
    forRandomTrees([](const Tree& tree, const Nodes&) {
        for (std::int64_t offset = 0; offset <= tree.length(); ++offset) {
            const NodeIterator at = tree.nodeIteratorAtOffset(offset);
            const NodeIterator leaf = after(at, {&NodeIterator::leafWithSameNodeOffset});
            const NodeIterator block = after(leaf, {&NodeIterator::firstLevelWithSameNodeOffset});
            const NodeIterator before = after(leaf, {&NodeIterator::endOfPreviousInSequenceWithSameOffset});
            const NodeIterator behind = after(before, {&NodeIterator::startOfNextInSequenceWithSameOffset});
            for (const NodeIterator& moved : {leaf, block, before, behind})
                EXPECT_EQ(moved.markdownOffset(), offset);
            EXPECT_EQ(fields(block), fields(at));
            EXPECT_EQ(behind.node, leaf.node);
            EXPECT_EQ(behind.nodeOffset, leaf.nodeOffset);
            const bool isBetween = offset > 0 && (!leaf.node || leaf.nodeOffset == offset);
            const Node* const expected =
                isBetween ? tree.nodeAtOffset(offset - 1, LevelSetting::Leaf) : leaf.node;
            EXPECT_EQ(before.node, expected);
        }
    });
}

TEST(NodeIterator, FindsLinesAndBlocks) {
    forRandomTrees([](const Tree& tree, const Nodes&) {
        const std::u16string_view text = tree.markdown();
        const auto isBreak = [text](std::int64_t at) {
            const auto i = static_cast<std::size_t>(at);
            return text[i] == u'\n' || (text[i] == u'\r' && (i + 1 == text.size() || text[i + 1] != u'\n'));
        };
        for (std::int64_t offset = 0; offset <= tree.length(); ++offset) {
            SCOPED_TRACE(offset);
            const NodeIterator at = tree.nodeIteratorAtOffset(offset);
            const auto position = [&at](Step step) { return after(at, {step}).markdownOffset(); };
            std::int64_t start = offset;
            while (start > 0 && !isBreak(start - 1))
                --start;
            EXPECT_EQ(position(&NodeIterator::startOfLine), start);
            std::int64_t last = offset;
            while (last < tree.length() && !isBreak(last))
                ++last;
            if (last > 0 && last < tree.length() && text[static_cast<std::size_t>(last) - 1] == u'\r') --last;
            EXPECT_EQ(position(&NodeIterator::endOfLine), last);
            EXPECT_EQ(position(&NodeIterator::endOfLineBeforeLineBreak), last);

            const NodeIterator block = after(at, {&NodeIterator::firstLevelBlock});
            if (at.node) {
                EXPECT_EQ(block.level, 1);
                EXPECT_EQ(block.node, at.node->firstLevelAncestor());
            } else {
                EXPECT_EQ(block.node ? block.node : nullptr,
                          offset == 0 || isBreak(offset - 1) ? nullptr : tree.root->lastChild);
            }
        }
    });
}

/// A note with the caret, moves, and the state that they end in.
struct Case {
    std::u16string_view note;
    std::initializer_list<Step> steps;
    const char* expected;
};

constexpr Step firstLevel = &NodeIterator::firstLevelBlock;
constexpr Step leafBlock = &NodeIterator::leafBlock;
constexpr Step behindMarkers = &NodeIterator::nextAfterBlockMarkers;
constexpr Step nextIfSpace = &NodeIterator::nextIfSpace;
constexpr Step previousIfSpace = &NodeIterator::previousIfSpace;
constexpr Step endOfPrevious = &NodeIterator::endOfPreviousInSequenceWithSameOffset;
constexpr Step startOfNext = &NodeIterator::startOfNextInSequenceWithSameOffset;
constexpr Step endOfLine = &NodeIterator::endOfLine;
constexpr Step beforeBreak = &NodeIterator::endOfLineBeforeLineBreak;
constexpr Step startOfLine = &NodeIterator::startOfLine;
constexpr Step root = &NodeIterator::root;
constexpr Step parent = &NodeIterator::parent;
constexpr Step nullify = &NodeIterator::nullify;
constexpr Step startOfDocument = &NodeIterator::startOfDocument;
constexpr Step endOfNode = &NodeIterator::endOfNode;
constexpr Step startOfNode = &NodeIterator::startOfNode;
constexpr Step previous = &NodeIterator::previousInSequence;

const Case cases[] = {
    // Without a node
    {u"‸", {}, "end"},
    {u"‸", {startOfDocument}, "end"},
    {u"‸", {root}, "document()@0"},
    {u"‸", {root, firstLevel}, "end"},
    {u"‸", {root, leafBlock}, "end"},
    {u"‸", {root, startOfLine}, "end"},
    {u"‸", {previous}, "document()@0"},
    {u"‸", {endOfPrevious}, "end"},
    {u"‸", {leafBlock}, "end"},
    {u"a‸", {}, "end"},
    {u"a‸", {parent}, "document(a)@0"},
    {u"a‸", {previous}, "text(a)@0"},
    {u"a‸", {endOfNode}, "end"},
    {u"a‸", {startOfNode}, "end"},
    {u"a‸", {endOfLine}, "end"},
    {u"a‸", {nullify}, "nullified"},
    {u"a‸", {nullify, previous, parent, startOfLine, leafBlock}, "nullified"},
    {u"‸a", {root, parent}, "nullified"},
    {u"‸a", {root, endOfNode}, "document(a)@1"},
    {u"‸a", {&NodeIterator::previousSibling}, "none"},
    {u"‸a", {endOfPrevious}, "paragraph(a)@0"},
    {u"ab‸c", {endOfPrevious}, "text(abc)@2"},
    {u"ab‸c", {startOfNext}, "text(abc)@2"},
    {u"a\n‸b", {endOfPrevious}, "line_ending(\\n)@2"},
    {u"a‸\nb", {endOfPrevious}, "text(a)@1"},
    {u"a‸", {endOfPrevious}, "text(a)@1"},
    {u"a‸", {endOfPrevious, startOfNext}, "end"},
    // Blocks
    {u"a\nb‸", {firstLevel}, "paragraph(a\\nb)@0"},
    {u"a\nb\n‸", {firstLevel}, "end"},
    {u"> a\n> - b *c‸*", {firstLevel}, "block_quote(> a\\n> - b *c*)@0"},
    {u"> a\n> - b *c‸*", {leafBlock}, "paragraph(> - b *c*)@4"},
    {u"‸> a", {leafBlock}, "paragraph(> a)@0"},
    {u"# a\n‸b", {leafBlock}, "paragraph(b)@4"},
    {u"a\n\nb‸", {leafBlock}, "paragraph(b)@3"},
    {u"a\n\n‸", {leafBlock}, "end"},
    {u"```\nb‸\n```", {leafBlock}, "fenced_code(```\\nb\\n```)@0"},
    // Prefixes
    {u"> ‸- a", {behindMarkers}, "text(a)@4"},
    {u"‸> - a", {behindMarkers}, "text(a)@4"},
    {u"‸> > # a", {behindMarkers}, "text(a)@6"},
    {u"‸*a*", {behindMarkers}, "marker(*)@0"},
    {u"a‸b", {behindMarkers}, "text(ab)@0"},
    {u"‸- ", {behindMarkers}, "end"},
    {u"> a\n‸> b", {behindMarkers}, "text(b)@6"},
    // Lines
    {u"> a\n> - b *c‸*\n", {startOfLine}, "list(> - b *c*\\n)@4"},
    {u"> a\n> - b‸ *c*\nd", {endOfLine}, "line_ending(\\n)@13"},
    {u"> a\n> - b‸ *c*\nd", {beforeBreak}, "marker(*)@13"},
    {u"a\n‸\nb", {endOfLine}, "line_ending(\\n)@2"},
    {u"a\n‸\nb", {beforeBreak}, "line_ending(\\n)@2"},
    {u"‸\nb", {beforeBreak}, "line_ending(\\n)@0"},
    {u"a‸\r\nb", {startOfLine}, "paragraph(a\\r\\nb)@0"},
    {u"a\n‸", {startOfLine}, "end"},
    {u"a\nb‸", {startOfLine}, "text(b)@2"},
    {u"‸a", {root, startOfLine}, "paragraph(a)@0"},
};

TEST(NodeIterator, EndsInTheseStates) {
    for (const Case& c : cases) {
        const std::size_t caret = c.note.find(u'‸');
        const std::u16string note = std::u16string(c.note.substr(0, caret)) += c.note.substr(caret + 1);
        const Tree tree(note);
        NodeIterator at = tree.nodeIteratorAtOffset(static_cast<std::int64_t>(caret));
        for (const Step step : c.steps)
            (at.*step)();
        EXPECT_EQ(state(at), c.expected) << visible(c.note);
    }
}

TEST(NodeIterator, StepsOverSpaces) {
    const auto tree = makeTree("d0-9(p0-9(t0-3 s3-5 e5-8(m5-6 s6-7 m7-8) s8-9))");
    const std::u16string_view text = u"abc  * * ";
    const auto from = [&](std::int64_t offset, std::initializer_list<Step> moves) {
        NodeIterator at(text, tree.get());
        at.nextByOffset(offset);
        return after(at, moves);
    };
    const auto expect = [](const NodeIterator& at, const char* node, std::int64_t position) {
        EXPECT_EQ(label(at.node), node);
        EXPECT_EQ(at.markdownOffset(), position);
    };
    expect(from(3, {nextIfSpace}), "e5-8", 5);
    expect(from(4, {nextIfSpace}), "e5-8", 5);
    expect(from(5, {nextIfSpace}), "m5-6", 5);
    expect(from(1, {nextIfSpace}), "t0-3", 0);
    EXPECT_EQ(state(from(8, {nextIfSpace})), "end");
    expect(from(5, {previousIfSpace}), "s3-5", 3);
    expect(from(4, {previousIfSpace}), "s3-5", 3);
    expect(from(3, {previousIfSpace}), "s3-5", 3);
    expect(from(7, {previousIfSpace}), "s6-7", 6);
    expect(from(9, {previousIfSpace}), "s8-9", 8);
    expect(from(2, {previousIfSpace}), "t0-3", 2);
}

TEST(NodeIterator, ReadsTheText) {
    const Tree tree(u"a *b* c\n");
    const NodeIterator at = tree.nodeIteratorAtOffset(3);
    EXPECT_EQ(at.markdownForNode(), u"b");
    EXPECT_EQ(at.markdownBetween(end(tree)), u"b* c\n");
    EXPECT_EQ(end(tree).markdownBetween(at), u"");
    EXPECT_EQ(end(tree).markdownForNode(), u"");
    const auto startOutside = [&at]() noexcept { return NodeIterator(u"a", at.node).markdownForNode(); };
    EXPECT_DEATH(startOutside(), "string_view::substr");
}

TEST(NodeIterator, Comparisons) {
    const auto tree = makeTree("d0-9(q0-4(p0-4(t0-4)) p4-9(t4-9))");
    const Nodes nodes = placedNodes(tree.get()); // d q p t p t
    const auto at = [&](std::size_t index) { return NodeIterator(u"abcdefghi", nodes[index].node); };
    const auto endOf = [&](std::size_t index) { return after(at(index), {endOfNode}); };
    NodeIterator behind = at(0);
    behind.endOfDocument();
    EXPECT_TRUE(at(1).isBeforeOrEqual(at(4)) && at(1).isBeforeOrEqual(at(1)) &&
                at(3).isBeforeOrEqual(endOf(3)));
    EXPECT_TRUE(at(4).isBeforeOrEqual(endOf(3)) && endOf(5).isBeforeOrEqual(behind) == false);
    EXPECT_FALSE(endOf(3).isBeforeOrEqual(at(3)) || at(3).isBeforeOrEqual(at(0)) ||
                 behind.isBeforeOrEqual(behind));
    EXPECT_TRUE(at(1).isContaining(at(3)) && at(1).isContaining(endOf(3)) && at(1).isContaining(at(4)));
    EXPECT_TRUE(endOf(1).isContaining(at(3))) << "the node counts, not the position in it";
    EXPECT_FALSE(at(1).isContaining(endOf(4)) || at(3).isContaining(at(1)) || at(0).isContaining(behind));
}

TEST(NodeIterator, Ancestors) {
    const auto tree = makeTree("d0-9(t0-1 q1-9(t1-2 q2-9(p2-9(e2-9(t2-9)))))");
    const std::u16string_view text = u"abcdefghi";
    Node* const leaf = tree->lastNodeOfSubtree();
    const auto isQuote = [](const Node* node) { return node->type == ONDO_BLOCK_QUOTE_NODE; };
    const auto isTree = [](const Node*) { return true; };
    const auto isImage = [](const Node* node) { return node->type == ONDO_IMAGE_NODE; };
    using Search = std::function<void(NodeIterator&)>;
    const std::tuple<Node*, Search, const char*> searches[] = {
        {leaf, [&](auto& at) { at.leafAncestorWhere(isQuote); }, "q2-9"},
        {leaf, [&](auto& at) { at.rootAncestorWhere(isQuote); }, "q1-9"},
        {leaf, [&](auto& at) { at.ancestorWhere(isTree, LevelSetting::FirstLevel); }, "q1-9"},
        {leaf, [&](auto& at) { at.rootAncestorWhere(isTree); }, "d0-9"},
        {leaf, [&](auto& at) { at.leafAncestorWhereInclusive(isTree); }, "t2-9"},
        {leaf->firstLevelAncestor(), [&](auto& at) { at.leafAncestorWhere(isQuote); }, "null"},
        {leaf->firstLevelAncestor(), [&](auto& at) { at.leafAncestorWhereInclusive(isQuote); }, "q1-9"},
        {leaf->firstLevelAncestor(), [&](auto& at) { at.rootAncestorWhereInclusive(isQuote); }, "q1-9"},
        {leaf->firstLevelAncestor(),
         [&](auto& at) { at.ancestorWhereInclusive(isTree, LevelSetting::FirstLevel); }, "q1-9"},
        {leaf, [&](auto& at) { at.leafAncestorWhere(isImage); }, "null"},
        {leaf, [&](auto& at) { at.rootAncestorWhereInclusive(isImage); }, "null"},
    };
    for (const auto& [from, search, expected] : searches) {
        NodeIterator at(text, from);
        at.endOfNode();
        search(at);
        const bool isFound = std::string_view(expected) != "null";
        ASSERT_EQ(notation(at.node).substr(0, std::string_view(expected).size()), expected);
        EXPECT_EQ(fields(at), isFound ? fields(NodeIterator(text, at.node)) : fields(Node::Iterator()));
    }
    const NodeIterator at(text, leaf);
    EXPECT_TRUE(at.hasAncestorWhere(isQuote) && at.hasAncestorOfType(ONDO_PARAGRAPH_NODE));
    EXPECT_FALSE(at.hasAncestorWhere(isImage) || at.hasAncestorOfType(ONDO_TEXT_NODE));
    EXPECT_TRUE(at.hasAncestorOfTypeInclusive(ONDO_TEXT_NODE) && at.hasAncestorWhereInclusive(isTree));
    EXPECT_FALSE(after(at, {nullify}).hasAncestorWhereInclusive(isTree));
}

} // namespace
} // namespace Ondo::Test
