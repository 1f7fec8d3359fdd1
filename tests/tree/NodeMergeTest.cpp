// Node::mergeSubtreeOnParsedOffsets(). Ranges are those of the parse; for the notation see Nodes.h.

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "tests/support/Nodes.h"

namespace Ondo::Test {
namespace {

/// The tree behind the merge, and what came back.
std::string merged(const Sketch& tree, const Sketch& subtree, bool isHinted = false) {
    const std::int64_t before = Node::instanceCount;
    const auto root = makeTree(tree);
    Node* passed = nullptr;
    for (Node* child = root->firstChild; child && child->endWhenParsed() <= subtree.start;
         child = child->nextSibling)
        passed = child;
    const Node* const result =
        root->mergeSubtreeOnParsedOffsets(makeTree(subtree), isHinted ? passed : nullptr);
    EXPECT_EQ(Node::instanceCount - before, static_cast<std::int64_t>(placedNodes(root.get()).size()))
        << "what is not in the tree is gone";
    return notation(root.get()) + " > " + notation(result);
}

TEST(NodeMerge, Cases) {
    const struct {
        const char* what;
        const char* tree;
        const char* subtree;
        const char* expected; ///< null: it can't be placed
    } cases[] = {
        {"into nothing", "p0-9", "e2-4", "p0-9(e2-4)"},
        {"between", "p0-9(t0-2 t4-6)", "e2-4", "p0-9(t0-2 e2-4 t4-6)"},
        {"enclosed", "p0-9(t0-2 e2-8(t2-4 t6-8) t8-9)", "e4-6", "p0-9(t0-2 e2-8(t2-4 e4-6 t6-8) t8-9)"},
        {"enclosed twice, with an edge in common", "p0-9(e2-8(e2-7))", "e2-6(m2-3)",
         "p0-9(e2-8(e2-7(e2-6(m2-3))))"},
        {"an attribute's range", "p0-9(m1-2 a2-5 m5-6)", "e2-5", "p0-9(m1-2 a2-5(e2-5) m5-6)"},
        {"an attribute's range, with children", "p0-9(a2-6(t2-3 n3-4 t4-6))", "e2-6(m2-3)",
         "p0-9(a2-6(e2-6(m2-3 n3-4 t4-6)))"},
        {"the range of another node", "p0-9(e2-5(t3-4) t5-9)", "e2-5", "p0-9(e2-5(e2-5(t3-4)) t5-9)"},
        {"the same, but there is no room for that node", "p0-9(e2-5(t3-4))", "e2-5(m2-3)",
         "p0-9(e2-5(m2-3))"},
        {"crossing at its start", "p0-9(e0-4(t0-4))", "e2-6(m2-3)", nullptr},
        {"crossing at its end, behind what it holds", "p0-9(t2-3 t3-4 e4-8)", "e2-6", nullptr},
        {"a run moves in order, and its neighbours stay", "p0-9(t0-1 t1-2 n2-3 s3-4 t5-6 t7-9)",
         "e1-7(m1-2 m6-7)", "p0-9(t0-1 e1-7(m1-2 n2-3 s3-4 t5-6 m6-7) t7-9)"},
        {"a run moves to several depths", "p0-20(t2-3 e4-6(t4-6) t7-8 n10-11 t12-13 t16-17)",
         "e1-18(m1-2 e3-9(m6-7 a7-8) e10-14(m11-12) m17-18)",
         "p0-20(e1-18(m1-2 t2-3 e3-9(e4-6(t4-6) m6-7 a7-8(t7-8)) e10-14(n10-11 m11-12 t12-13) t16-17 "
         "m17-18))"},
        {"what meets a marker goes", "p0-9(t1-4 e5-7(t5-7) t7-8)", "e1-8(m1-2 m6-7)",
         "p0-9(e1-8(m1-2 m6-7 t7-8))"},
        {"what would enclose a child goes", "p0-9(t2-6)", "e1-8(m3-4)", "p0-9(e1-8(m3-4))"},
        {"what crosses the end of a child goes", "p0-9(t2-3 t4-7 t7-8)", "e1-9(e2-6(e2-5))",
         "p0-9(e1-9(e2-6(e2-5(t2-3)) t7-8))"},
    };
    for (const auto& c : cases) {
        const std::string result = merged(sketch(c.tree), sketch(c.subtree));
        EXPECT_EQ(result.substr(0, result.find(" > ")), c.expected ? c.expected : c.tree) << c.what;
        EXPECT_EQ(result.substr(result.find(" > ")) == " > null", !c.expected) << c.what;
    }
}

// The same on values, step by step, with no thought of speed.

bool isInside(const Sketch& inner, const Sketch& outer) {
    return inner.start >= outer.start && inner.end <= outer.end;
}

/// Whether a node of `range` goes into `child`: into what is larger, and into an attribute of the same range.
bool takes(const Sketch& child, const Sketch& range) {
    return isInside(range, child) && (!isInside(child, range) || child.kind == 'a');
}

/// The first child that ends behind the start of `range`.
std::size_t firstBehind(const std::vector<Sketch>& children, const Sketch& range) {
    std::size_t i = 0;
    while (i < children.size() && children[i].end <= range.start)
        ++i;
    return i;
}

/// Puts a moved sibling to its place below `parent`, unless it would overlap what is there.
void placeMoved(Sketch& parent, const Sketch& moved) {
    std::vector<Sketch>& children = parent.children;
    const std::size_t i = firstBehind(children, moved);
    const bool meets = i < children.size() && children[i].start < moved.end;
    if (meets && takes(children[i], moved)) return placeMoved(children[i], moved);
    if (!meets) children.insert(children.begin() + static_cast<std::ptrdiff_t>(i), moved);
}

/// Returns whether it could be placed; `subtree` is then what stands in the tree.
bool naiveMerge(Sketch& parent, Sketch& subtree) {
    std::vector<Sketch>& children = parent.children;
    const std::size_t first = firstBehind(children, subtree);
    const auto isMet = [&](std::size_t i) { return i < children.size() && children[i].start < subtree.end; };
    if (isMet(first) && takes(children[first], subtree)) return naiveMerge(children[first], subtree);
    std::size_t behind = first;
    while (isMet(behind) && isInside(children[behind], subtree))
        ++behind;
    if (isMet(behind)) return false;
    for (std::size_t i = first; i < behind; ++i)
        placeMoved(subtree, children[i]);
    const auto at = children.begin() + static_cast<std::ptrdiff_t>(first);
    children.insert(children.erase(at, at + static_cast<std::ptrdiff_t>(behind - first)), subtree);
    return true;
}

using Random = std::mt19937_64;

std::int64_t below(Random& random, std::int64_t limit) {
    return static_cast<std::int64_t>(random() % static_cast<std::uint64_t>(limit));
}

/// A node with children that leave gaps, down to `depth` levels.
Sketch randomSketch(Random& random, char kind, std::int64_t start, std::int64_t end, int depth) {
    Sketch made{kind, start, end, {}};
    for (std::int64_t at = start + below(random, 3); depth > 0 && at < end; at += below(random, 3)) {
        const std::int64_t childEnd = std::min(end, at + 1 + below(random, below(random, 3) == 0 ? 12 : 4));
        // Attributes do not stand in attributes.
        const char childKind = kind == 'a' ? 't' : "eeetma"[below(random, 6)];
        const int further = childKind == 'e' || childKind == 'a' ? depth - 1 : 0;
        made.children.push_back(randomSketch(random, childKind, at, childEnd, further));
        at = childEnd;
    }
    return made;
}

TEST(NodeMerge, EqualsTheNaiveMergeOnRandomTrees) {
    int placed = 0;
    for (std::uint64_t seed = 0; seed < 10000; ++seed) {
        Random random(seed);
        const Sketch tree = randomSketch(random, 'p', 0, 30, 3);
        const std::int64_t start = below(random, 28);
        const Sketch subtree = randomSketch(random, 'e', start, start + 1 + below(random, 29 - start), 2);
        Sketch expectedTree = tree;
        Sketch expectedSubtree = subtree;
        const bool fits = naiveMerge(expectedTree, expectedSubtree);
        const std::string expected =
            notation(expectedTree) + " > " + (fits ? notation(expectedSubtree) : "null");
        placed += fits;
        ASSERT_EQ(merged(tree, subtree), expected)
            << seed << ": " << notation(subtree) << " into " << notation(tree);
        ASSERT_EQ(merged(tree, subtree, true), expected) << seed << ", hinted";
    }
    EXPECT_GT(placed, 2500);
    EXPECT_LT(placed, 7500);
}

} // namespace
} // namespace Ondo::Test
