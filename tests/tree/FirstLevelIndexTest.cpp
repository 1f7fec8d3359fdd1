#include "corvane/tree/FirstLevelIndex.h"

#include <gtest/gtest.h>

#include "corvane/tree/DocumentNode.h"
#include "tests/support/Nodes.h"
#include "tests/support/RandomNote.h"
#include "tests/support/TreeCheck.h"

namespace Ondo::Test {
namespace {

using Position = FirstLevelIndex::Position;

/// The children of a document and where they stand, added up.
std::vector<Position> blocks(const Node* document) {
    std::vector<Position> found;
    Position at{document->firstChild, 0, 0};
    for (; at.node; at.node = at.node->nextSibling) {
        found.push_back(at);
        at.offset += at.node->charCount;
        at.line += at.node->lineCount;
    }
    return found;
}

bool isEqual(const Position& a, const Position& b) {
    return a.node == b.node && a.offset == b.offset && a.line == b.line;
}

/// Asks for blocks here and there, mostly near the last one; returns the first question with a wrong answer.
std::string wrongAnswer(Node* root, RandomNote& random, std::size_t questions) {
    FirstLevelIndex& index = static_cast<DocumentNode*>(root)->index;
    const std::vector<Position> expected = blocks(root);
    if (expected.empty()) return index.find(0).node ? "a block in an empty document" : "";
    std::size_t i = random.below(expected.size());
    for (; questions > 0; --questions) {
        i = random.below(4) == 0 ? random.below(expected.size()) : (i + random.below(5)) % expected.size();
        const Position& block = expected[i];
        const auto inside = random.below(static_cast<std::size_t>(block.node->charCount));
        const std::int64_t offset = block.offset + static_cast<std::int64_t>(inside);
        if (!isEqual(index.find(offset), block)) return "find " + std::to_string(offset);
        if (!isEqual(index.positionOf(block.node), block)) return "position " + std::to_string(block.offset);
    }
    // The last block stands for the end, too.
    return isEqual(index.find(root->charCount), expected.back()) ? "" : "find the end";
}

std::u16string manyBlocks(std::size_t count) {
    const std::u16string_view kinds[] = {u"text\n",     u"\n",    u"# h\n",
                                         u"- a\n  b\n", u"***\n", u"> q\n> r\n\n"};
    std::u16string note;
    for (std::size_t i = 0; i < count; ++i)
        note += kinds[i * i % 7 % 6];
    return note;
}

TEST(FirstLevelIndex, StaysRightThroughEdits) {
    RandomNote random(7);
    for (const std::size_t size : {1U, 40U, 3000U}) {
        Tree tree(manyBlocks(size), RuleConfig::Extended);
        for (int edit = 0; edit < 250; ++edit) {
            Range range = random.range(tree.length());
            // Now and then a whole stretch of blocks, from the start or up to the end.
            if (edit % 25 == 0) range.offset = 0;
            const std::int64_t rest = tree.length() - range.offset;
            const auto stretch = std::min(rest, static_cast<std::int64_t>(random.below(1500)));
            if (edit % 10 == 0) range.length = stretch;
            if (edit % 25 == 1) range = {tree.length() - stretch, stretch};
            range.length = std::min(range.length, rest);
            tree.replace(range, edit % 7 == 0 ? manyBlocks(random.below(200)) : random.piece());
            // Some edits follow one another with no question between them.
            if (edit % 3 == 0) continue;
            ASSERT_EQ(wrongAnswer(tree.root.get(), random, 12), "") << "size " << size << ", edit " << edit;
        }
        for (const std::size_t count : {0U, 200U}) {
            tree.replaceAll(manyBlocks(count));
            EXPECT_EQ(wrongAnswer(tree.root.get(), random, 100), "");
        }
    }
}

TEST(FirstLevelIndex, StaysRightThroughLinkingByHand) {
    RandomNote random(11);
    DocumentNode document(0, 0, 0);
    std::unique_ptr<Node> taken = makeTree("p0-5");
    for (int step = 0; step < 3000; ++step) {
        const std::vector<Position> all = blocks(&document);
        Node* const at = all.empty() ? nullptr : all[random.below(all.size())].node;
        if (taken || random.below(3) > 0) {
            if (!taken) taken = makeTree(random.below(2) == 0 ? "p0-3" : "p0-7");
            document.charCount += taken->charCount;
            document.linkSubtree(std::move(taken), random.below(3) == 0 ? nullptr : at);
        } else if (at) {
            taken = at->unlinkSubtree();
            document.charCount -= taken->charCount;
        }
        ASSERT_EQ(wrongAnswer(&document, random, step % 8 == 0 ? 3 : 0), "") << step;
    }
}

TEST(FirstLevelIndex, SeesChildrenThatAreHandedOver) {
    RandomNote random(1);
    const auto from = makeTree("d0-4(p0-2 p2-4)");
    const auto to = makeTree("d0-4");
    ASSERT_EQ(wrongAnswer(from.get(), random, 4) + wrongAnswer(to.get(), random, 4), "");
    from->moveAllChildrenTo(to.get());
    EXPECT_EQ(static_cast<DocumentNode&>(*from).index.find(0).node, nullptr);
    ASSERT_EQ(static_cast<DocumentNode&>(*to).index.find(0).node, to->firstChild);
    EXPECT_EQ(wrongAnswer(to.get(), random, 4), "");
}

} // namespace
} // namespace Ondo::Test
