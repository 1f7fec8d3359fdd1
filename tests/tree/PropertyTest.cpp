#include <gtest/gtest.h>

#include <cstdlib>
#include <optional>
#include <set>

#include "corvane/scan/Util.h"
#include "tests/support/BruteForce.h"
#include "tests/support/RandomNote.h"
#include "tests/support/RealNotes.h"
#include "tests/support/TreeCheck.h"

// What must hold of any text and any edit. CORVANE_SEED and CORVANE_ROUNDS set seed and length; a failure
// prints the seed and the edit that led to it.

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

std::string broken(const Tree& tree) {
    for (std::string (*check)(const Tree&) : {checkTree, labelsDiffer, foldsDiffer})
        if (std::string what = check(tree); !what.empty()) return what;
    return {};
}

/// A note under edits. Each edit is followed by all checks.
class Edited {
public:
    Edited(std::u16string text, RuleConfig::RuleSet rules) : tree_(text, rules), last_(text, rules) {}

    const Tree& tree() const { return tree_; }
    std::string replace(const Range& range, const std::u16string& piece);

private:
    std::string compare(const Range& range, const std::u16string& piece, const std::vector<Range>& redraw);
    static std::string untouchedBlocksDiffer(const FirstLevel& before, const Tree& tree, const Range& redraw,
                                             std::int64_t delta);

    Tree tree_;
    Tree last_; ///< a fresh parse of the text before the edit
};

std::string Edited::replace(const Range& range, const std::u16string& piece) {
    std::u16string expected(tree_.markdown());
    expected.replace(static_cast<std::size_t>(range.offset), static_cast<std::size_t>(range.length), piece);
    const FirstLevel before = firstLevel(tree_);
    const std::vector<Range> redraw = tree_.replace(range, piece);
    if (tree_.markdown() != expected) return "the text is wrong";
    for (const Range& each : redraw)
        if (each.offset < 0 || each.end() > tree_.length()) return "a redraw range is outside";
    if (redraw.empty()) return "there is no redraw range";
    if (std::string what = broken(tree_); !what.empty()) return what;
    if (std::string what = compare(range, piece, redraw); !what.empty()) return what;
    const auto delta = static_cast<std::int64_t>(piece.size()) - range.length;
    return untouchedBlocksDiffer(before, tree_, redraw[0], delta);
}

/// With fresh parses of the text before and behind the edit.
std::string Edited::compare(const Range& range, const std::u16string& piece,
                            const std::vector<Range>& redraw) {
    Tree fresh(std::u16string(tree_.markdown()), tree_.ruleSet);
    std::string what = difference(tree_, fresh);
    if (what.empty())
        what = missesRedraw(last_, tree_, range, static_cast<std::int64_t>(piece.size()), redraw);
    last_ = std::move(fresh);
    return what;
}

/// Blocks that lie outside the first redraw range are the same objects, moved by the edit.
std::string Edited::untouchedBlocksDiffer(const FirstLevel& before, const Tree& tree, const Range& redraw,
                                          std::int64_t delta) {
    for (const auto& [offset, block] : firstLevel(tree)) {
        if (offset < redraw.offset && !before.count({offset, block}))
            return "a block before the redraw range is new";
        if (offset >= redraw.end() && !before.count({offset - delta, block}))
            return "a block behind the redraw range is new";
    }
    return {};
}

void expectEditsKeepTheTree(const std::u16string& note, RandomNote& random, int edits) {
    const RuleConfig::RuleSet set = allRuleSets[random.below(3)];
    SCOPED_TRACE(nameOf(set));
    Edited edited(note, set);
    ASSERT_EQ(broken(edited.tree()), "") << visible(note);
    for (int edit = 0; edit < edits; ++edit) {
        const std::string before = visible(edited.tree().markdown());
        const Range range = random.range(edited.tree().length());
        const std::u16string piece = random.piece();
        ASSERT_EQ(edited.replace(range, piece), "") << "\"" << before << "\"\n[" << range.offset << ", "
                                                    << range.length << "] by \"" << visible(piece) << "\"";
    }
}

/// Runs `round` with seeds that follow each other; nothing made in it may be left over.
template <class Round>
void runRounds(std::uint64_t count, Round round) {
    const std::uint64_t seed = environmentNumber("CORVANE_SEED", 20261122);
    const std::uint64_t last = seed + environmentNumber("CORVANE_ROUNDS", count);
    const std::int64_t instances = Node::instanceCount;
    const std::int64_t rules = RuleBase::instanceCount;
    for (std::uint64_t at = seed; at < last && !testing::Test::HasFatalFailure(); ++at) {
        SCOPED_TRACE("seed " + std::to_string(at));
        RandomNote random(at);
        round(random);
    }
    EXPECT_EQ(Node::instanceCount, instances);
    EXPECT_EQ(RuleBase::instanceCount, rules);
}

TEST(Property, RandomEditsKeepTheTreeEqualToAFreshParse) {
    runRounds(1500, [](RandomNote& random) { expectEditsKeepTheTree(random.note(14), random, 12); });
}

TEST(Property, EditsOfRealNotesKeepTheTreeEqualToAFreshParse) {
    const std::vector<RealNote> notes = realNotes(300'000);
    if (notes.empty()) GTEST_SKIP() << "needs the packages of tests/npm, or notes in /usr/share/doc";
    runRounds(150, [&notes](RandomNote& random) {
        const RealNote& note = notes[random.below(notes.size())];
        SCOPED_TRACE(note.file.string());
        expectEditsKeepTheTree(random.slice(Util::utf16(note.text), 1000), random, 8);
    });
}

} // namespace
} // namespace Ondo::Test
