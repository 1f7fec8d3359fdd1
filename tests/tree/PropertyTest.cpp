#include <gtest/gtest.h>

#include <cstdlib>
#include <set>

#include "corvane/scan/Util.h"
#include "tests/support/RandomNote.h"
#include "tests/support/TreeCheck.h"

// What must hold of any text and any edit. CORVANE_SEED and CORVANE_ROUNDS set seed and length; a failure
// prints the seed and the edits that led to it.

namespace Ondo::Test {
namespace {

std::uint64_t environmentNumber(const char* name, std::uint64_t otherwise) {
    const char* const value = std::getenv(name);
    return value ? std::strtoull(value, nullptr, 10) : otherwise;
}

/// The first-level blocks with their places.
using FirstLevel = std::set<std::pair<std::int64_t, const Node*>>;

FirstLevel firstLevel(const Tree& tree) {
    FirstLevel blocks;
    std::int64_t offset = 0;
    for (const Node* block = tree.root->firstChild; block;
         offset += block->charCount, block = block->nextSibling)
        blocks.insert({offset, block});
    return blocks;
}

/// Blocks that lie outside the first redraw range are the same objects, moved by the edit.
std::string untouchedBlocksDiffer(const FirstLevel& before, const Tree& tree, const Range& redraw,
                                  std::int64_t delta) {
    for (const auto& [offset, block] : firstLevel(tree)) {
        if (offset < redraw.offset && !before.count({offset, block}))
            return "a block before the redraw range is new";
        if (offset >= redraw.end() && !before.count({offset - delta, block}))
            return "a block behind the redraw range is new";
    }
    return {};
}

std::string checkEdit(Tree& tree, const Range& range, const std::u16string& piece) {
    std::u16string expected(tree.markdown());
    expected.replace(static_cast<std::size_t>(range.offset), static_cast<std::size_t>(range.length), piece);
    const FirstLevel before = firstLevel(tree);
    const std::vector<Range> redraw = tree.replace(range, piece);
    if (tree.markdown() != expected) return "the text is wrong";
    if (redraw.empty() || redraw[0].offset < 0 || redraw[0].end() > tree.length())
        return "the redraw range is outside";
    const std::string broken = checkTree(tree);
    if (!broken.empty()) return broken;
    const std::string difference = differenceFromFreshParse(tree);
    if (!difference.empty()) return difference;
    const auto delta = static_cast<std::int64_t>(piece.size()) - range.length;
    return untouchedBlocksDiffer(before, tree, redraw[0], delta);
}

TEST(Property, RandomEditsKeepTheTreeEqualToAFreshParse) {
    const std::uint64_t seed = environmentNumber("CORVANE_SEED", 20261122);
    const std::uint64_t rounds = environmentNumber("CORVANE_ROUNDS", 1500);
    const std::int64_t instances = Node::instanceCount;
    const std::int64_t rules = RuleBase::instanceCount;
    for (std::uint64_t round = 0; round < rounds; ++round) {
        RandomNote random(seed + round);
        const RuleConfig::RuleSet set = allRuleSets[random.below(3)];
        Tree tree(random.note(14), set);
        ASSERT_EQ(checkTree(tree), "") << visible(tree.markdown());
        for (int edit = 0; edit < 12; ++edit) {
            const std::string before = visible(tree.markdown());
            const Range range = random.range(tree.length());
            const std::u16string piece = random.piece();
            ASSERT_EQ(checkEdit(tree, range, piece), "")
                << "seed " << seed + round << ", " << nameOf(set) << "\n\"" << before << "\"\n["
                << range.offset << ", " << range.length << "] by \"" << visible(piece) << "\"";
        }
    }
    EXPECT_EQ(Node::instanceCount, instances);
    EXPECT_EQ(RuleBase::instanceCount, rules);
}

} // namespace
} // namespace Ondo::Test
