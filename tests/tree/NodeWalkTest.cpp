// Node::Iterator against positions that are summed up from the root, on random notes.

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>

#include "tests/support/Nodes.h"
#include "tests/support/RandomNote.h"
#include "tests/support/TreeCheck.h"

namespace Ondo::Test {
namespace {

using Iterator = Node::Iterator;
using Nodes = std::vector<Placed>;
using Step = void (Iterator::*)();

std::string text(const Placed& at) {
    return label(at.node) + " at " + std::to_string(at.offset) + ", line " + std::to_string(at.line) +
           ", level " + std::to_string(at.level);
}

std::string text(const Iterator& at) {
    return at.node ? text(Placed{at.node, at.offset, at.line, at.level, 0}) : "null";
}

std::string text(const Nodes& nodes, std::size_t index) {
    return index < nodes.size() ? text(nodes[index]) : "null";
}

std::string text(const Nodes& nodes, const Node* node) {
    std::size_t index = 0;
    while (index < nodes.size() && nodes[index].node != node)
        ++index;
    return text(nodes, index);
}

Iterator iterator(const Placed& placed) {
    Iterator at;
    at.offset = placed.offset;
    at.line = placed.line;
    at.level = placed.level;
    at.node = placed.node;
    return at;
}

std::string after(Iterator at, Step step) {
    (at.*step)();
    return text(at);
}

void forRandomTrees(const std::function<void(const Tree&, const Nodes&)>& check) {
    for (std::uint64_t seed = 0; seed < 90; ++seed) {
        const Tree tree(seed == 0 ? u"" : RandomNote(seed).note(12), allRuleSets[seed % 3]);
        SCOPED_TRACE(visible(tree.markdown()));
        check(tree, placedNodes(tree.root.get()));
    }
}

TEST(NodeWalk, StepsInSequence) {
    forRandomTrees([](const Tree& tree, const Nodes& nodes) {
        for (std::size_t i = 0; i < nodes.size(); ++i) {
            Iterator at = iterator(nodes[i]);
            EXPECT_EQ(text(Iterator(at.node)), text(nodes, i));
            EXPECT_EQ(text(at->end()), text(nodes, nodes[i].behind));
            EXPECT_EQ(after(at, &Iterator::nextInSequenceSkippingSubtree), text(nodes, nodes[i].behind));
            EXPECT_EQ(after(at, &Iterator::previousInSequence), text(nodes, i - 1));
            const bool entersBlock = at->firstChild && at->firstChild->category < Node::Category::Inline;
            Iterator overBlocks = at;
            overBlocks.nextInSequence(true);
            EXPECT_EQ(text(overBlocks), text(nodes, entersBlock ? i + 1 : nodes[i].behind));
            EXPECT_EQ(text(at++), text(nodes, i));
            EXPECT_EQ(text(at), text(nodes, i + 1));
            EXPECT_TRUE(at.node || at.offset == tree.length()) << "the end stands behind the last node";
        }
    });
}

const std::pair<Step, Node* (*)(Node*)> relatives[] = {
    {&Iterator::parent, [](Node* node) { return node->parent; }},
    {&Iterator::firstChild, [](Node* node) { return node->firstChild; }},
    {&Iterator::previousSibling, [](Node* node) { return node->previousSibling; }},
    {&Iterator::nextSibling, [](Node* node) { return node->nextSibling; }},
    {&Iterator::maker, [](Node* node) { return node->maker ? node->maker : node; }},
    {&Iterator::beginningOfLine, [](Node* node) { return node->beginningOfLine(); }},
    {&Iterator::endOfLine, [](Node* node) { return node->endOfLine(); }},
};

TEST(NodeWalk, StepsToRelatives) {
    forRandomTrees([](const Tree&, const Nodes& nodes) {
        for (const Placed& at : nodes)
            for (const auto& [step, relative] : relatives)
                EXPECT_EQ(after(iterator(at), step), text(nodes, relative(at.node)));
    });
    for (const auto& [step, relative] : relatives)
        EXPECT_EQ(after(Iterator(nullptr), step), "null");
}

/// The line of what is reached from behind is reckoned from the end of the subtree.
TEST(NodeWalk, StepsToTheEndOfASubtree) {
    forRandomTrees([](const Tree&, const Nodes& nodes) {
        for (const Placed& at : nodes) {
            const Node* const child = at.node->lastChild;
            const auto isChild = [child](const Placed& other) { return other.node == child; };
            Placed last = child ? *std::find_if(nodes.begin(), nodes.end(), isChild) : at;
            last.line = child ? at.line + at.node->lineCount - child->lineCount : at.line;
            EXPECT_EQ(after(iterator(at), &Iterator::lastChild), child ? text(last) : "null");
            EXPECT_EQ(after(iterator(at), &Iterator::lastNodeOfSubtree), text(nodes, at.behind - 1));
        }
    });
}

/// Where a cursor on the node `from` gets by nextByOffset(), found by looking at all nodes.
std::size_t naiveNextByOffset(const Nodes& nodes, std::size_t from, std::int64_t target, LevelSetting level) {
    std::size_t found = from;
    while (found < nodes.size() && nodes[found].offset != target)
        ++found;
    if (found == nodes.size()) {
        // No node starts there: the leaf that holds it, or the last leaf for the end of the document.
        if (target == nodes[0].node->charCount) return nodes.size() - 1;
        for (found = from; found < nodes.size(); ++found) {
            const Placed& at = nodes[found];
            const bool holds = at.offset < target && target < at.offset + at.node->charCount;
            if (!at.node->firstChild && holds) return found;
        }
        return found;
    }
    const auto goesDown = [level](const Node* node) {
        return level == LevelSetting::Leaf ||
               (level == LevelSetting::FirstLevel && node->type == ONDO_DOCUMENT_NODE);
    };
    while (nodes[found].node->firstChild && goesDown(nodes[found].node))
        ++found;
    return found;
}

TEST(NodeWalk, NextByOffset) {
    forRandomTrees([](const Tree& tree, const Nodes& nodes) {
        for (std::size_t from = 0; from < nodes.size(); from += 1 + from * 3) {
            for (std::int64_t target = nodes[from].offset; target <= tree.length() + 1; ++target) {
                for (const auto level :
                     {LevelSetting::Highest, LevelSetting::Leaf, LevelSetting::FirstLevel}) {
                    Iterator at = iterator(nodes[from]);
                    at.nextByOffset(target - at.offset, level);
                    EXPECT_EQ(text(at), text(nodes, naiveNextByOffset(nodes, from, target, level)))
                        << "from " << label(nodes[from].node) << " to " << target;
                    if (level != LevelSetting::Leaf || target > tree.length()) continue;
                    EXPECT_EQ(tree.nodeAtOffset(target, level), tree.iteratorAtOffset(target, level).node);
                }
            }
        }
    });
}

TEST(NodeWalk, Comparisons) {
    const auto root = makeTree("d0-9(q0-4(p0-4(t0-4)) p4-9(t4-9))");
    const Nodes nodes = placedNodes(root.get());
    const auto at = [&](std::size_t index) { return iterator(nodes[index]); }; // d q p t p t
    const Iterator end = root->end();
    EXPECT_TRUE(at(1).isBeforeOrEqual(at(4)) && at(1).isBeforeOrEqual(at(1)) && at(0).isBeforeOrEqual(at(3)));
    EXPECT_FALSE(at(4).isBeforeOrEqual(at(1)) || at(3).isBeforeOrEqual(at(0)));
    EXPECT_TRUE(at(5).isBeforeOrEqual(end));
    EXPECT_FALSE(end.isBeforeOrEqual(end)) << "same offset, but no node";
    EXPECT_TRUE(at(1).isContaining(at(3)) && at(1).isContaining(at(1)));
    EXPECT_TRUE(at(1).isContaining(at(4))) << "the right edge belongs to it";
    EXPECT_FALSE(at(3).isContaining(at(1))) << "on a higher level";
    EXPECT_FALSE(at(4).isContaining(at(3)) || at(0).isContaining(end) || end.isContaining(at(0)));
}

} // namespace
} // namespace Ondo::Test
