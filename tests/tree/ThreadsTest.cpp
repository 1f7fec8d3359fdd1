// Trees on several threads at a time: each belongs to one of them, and nothing of one may show in another. A
// ThreadSanitizer build (preset thread) sees what these tests can't.

#include <gtest/gtest.h>

#include <array>
#include <atomic>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <thread>
#include <vector>

#include "corvane/analysis/TreeSummary.h"
#include "corvane/client/CVNAST.h"
#include "corvane/inline/Entity.h"
#include "corvane/scan/Util.h"
#include "corvane/tree/Parser.h"
#include "tests/support/Nodes.h"
#include "tests/support/Painted.h"
#include "tests/support/RandomNote.h"
#include "tests/support/TreeCheck.h"

namespace Ondo::Test {
namespace {

constexpr std::size_t threadCount = 4;
constexpr std::uint64_t rounds = 60;

/// Runs `work` with the numbers of the threads, all at a time.
void onThreads(const std::function<void(std::size_t)>& work) {
    std::atomic<std::size_t> waiting = threadCount;
    std::vector<std::thread> threads;
    for (std::size_t number = 0; number < threadCount; ++number)
        threads.emplace_back([&, number] {
            for (--waiting; waiting > 0;)
                std::this_thread::yield();
            work(number);
        });
    for (std::thread& thread : threads)
        thread.join();
}

/// How many nodes and rules are alive beyond those at construction.
class Alive {
public:
    std::int64_t nodes() const { return Node::instanceCount - nodes_; }
    std::int64_t rules() const { return RuleBase::instanceCount - rules_; }

private:
    std::int64_t nodes_ = Node::instanceCount;
    std::int64_t rules_ = RuleBase::instanceCount;
};

std::int64_t countNodes(const Node* root) {
    std::int64_t count = 1;
    root->descendantWhere([&count](const Node*) {
        ++count;
        return false;
    });
    return count;
}

std::int64_t rulesOf(RuleConfig::RuleSet rules) {
    const Alive alive;
    const RuleConfig config(rules);
    return alive.rules();
}

std::unique_ptr<Node> makeNode() {
    return std::make_unique<PlainNode>(ONDO_PARAGRAPH_NODE, 0, 1, 0, 0);
}

void edit(Tree& tree, RandomNote& random, int edits) {
    for (int i = 0; i < edits; ++i)
        tree.replace(random.range(tree.length()), random.piece());
}

/// All that the library says about a random note, edited, as one string.
std::u16string everythingAbout(std::uint64_t seed) {
    RandomNote random(seed);
    CVNAST note = CVNAST::fromMarkdown(random.note(20));
    edit(*note.ast, random, 8);
    const CVN::TreeSummary summary(*note.ast);
    std::u16string all = note.ast->toIndentedTree() + note.ast->toHtml() + summary.title + summary.subtitle;
    for (const std::u16string& link : summary.links)
        all += link;
    all += Util::utf16(showRuns(note.annotatedString(), true));
    for (const auto& result : note.renameTag(u"tag", u"other", {0, 0}))
        all += result.replacementString;
    return all;
}

TEST(Threads, TreesSayWhatTheySayAlone) {
    std::vector<std::u16string> expected;
    for (std::uint64_t seed = 0; seed < rounds; ++seed)
        expected.push_back(everythingAbout(seed));
    const Alive alive;
    onThreads([&expected](std::size_t number) {
        for (std::size_t i = 0; i < expected.size(); ++i) {
            const std::size_t seed = (i + number * expected.size() / threadCount) % expected.size();
            EXPECT_EQ(everythingAbout(seed), expected[seed]) << "seed " << seed;
        }
    });
    EXPECT_EQ(alive.nodes(), 0);
    EXPECT_EQ(alive.rules(), 0);
}

/// Each thread makes notes and puts them where the next one finds them, which edits them and, unless they are
/// `kept`, drops them.
TEST(Threads, HandTreesToOneAnother) {
    using Slot = std::atomic<Tree*>;
    const Alive alive;
    std::array<Slot, threadCount> slots{};
    onThreads([&slots](std::size_t number) {
        RandomNote random(number);
        for (std::uint64_t round = 0; round < rounds; ++round) {
            auto made = std::make_unique<Tree>(random.note(12), RuleConfig::Extended);
            edit(*made, random, 2);
            const std::unique_ptr<Tree> missed(slots[number].exchange(made.release()));
            const std::unique_ptr<Tree> found(slots[(number + 1) % threadCount].exchange(nullptr));
            if (!found) continue;
            edit(*found, random, 3);
            EXPECT_EQ(checkTree(*found) + differenceFromFreshParse(*found), "");
        }
    });
    std::int64_t nodes = 0;
    std::int64_t trees = 0;
    for (const Slot& slot : slots) {
        if (!slot) continue;
        nodes += countNodes(slot.load()->root.get());
        ++trees;
    }
    EXPECT_EQ(alive.nodes(), nodes);
    EXPECT_EQ(alive.rules(), trees * rulesOf(RuleConfig::Extended));
    for (const Slot& slot : slots)
        delete slot.load();
    EXPECT_EQ(alive.nodes(), 0);
    EXPECT_EQ(alive.rules(), 0);
}

TEST(Threads, NodesAreCountedBehindEachStep) {
    RandomNote random(7);
    const Alive alive;
    std::optional<Tree> tree(std::in_place, random.note(40), RuleConfig::Extended);
    std::unique_ptr<Node> cut;
    const auto expectCount = [&](const char* step) {
        const std::int64_t inTree = tree ? countNodes(tree->root.get()) : 0;
        EXPECT_EQ(alive.nodes(), inTree + (cut ? countNodes(cut.get()) : 0)) << step;
    };
    expectCount("parsed");
    for (int i = 0; i < 20; ++i) {
        edit(*tree, random, 1);
        expectCount("edited");
    }
    // Without labels, whose nodes may not outlive the rules of their tree.
    tree.emplace(u"# a *b*\n\n- c\n", RuleConfig::Extended);
    expectCount("made anew");
    cut = tree->root->firstChild->unlinkSubtree();
    expectCount("cut off");
    tree.reset();
    expectCount("outlives its tree");
    tree.emplace(u"other", RuleConfig::Commonmark);
    tree->root->linkSubtree(std::move(cut));
    expectCount("in another tree");
    tree->root->lastChild->unlinkSubtree();
    expectCount("dropped from it");
    tree.emplace(u"moved into", RuleConfig::Commonmark);
    *tree = Tree(random.note(10), RuleConfig::Simplified);
    expectCount("moved");
    tree.reset();
    EXPECT_EQ(alive.nodes(), 0);
}

TEST(Threads, ScopesInOneAnother) {
    const Alive alive;
    const NodeArena::Owner arena = NodeArena::make();
    RuleConfig config(RuleConfig::Extended);
    std::unique_ptr<Node> outer;
    {
        const NodeArena::Scope scope(*arena);
        outer = Parser::parse(u"- a *b*\n", config);
        const Tree inner(u"# other\n\nnote", RuleConfig::Extended);
        outer->lastChild->unlinkSubtree().reset();
        outer = Parser::parse(u"- a *b* c\n", config);
    }
    EXPECT_EQ(alive.nodes(), countNodes(outer.get()));
    outer.reset();
    EXPECT_EQ(alive.nodes(), 0);
}

TEST(Threads, NodesOfAnArenaThatIsGoneBelowOneOfTheHeap) {
    const Alive alive;
    NodeArena::Owner arena = NodeArena::make();
    std::unique_ptr<Node> root = makeNode();
    {
        const NodeArena::Scope scope(*arena);
        root->linkSubtree(makeNode());
        root->linkSubtree(makeNode());
    }
    arena.reset();
    EXPECT_EQ(alive.nodes(), 3);
    root->firstChild->unlinkSubtree().reset();
    EXPECT_EQ(alive.nodes(), 2);
    root.reset();
    EXPECT_EQ(alive.nodes(), 0);
}

/// Little but counting, so that threads meet there.
TEST(Threads, CountAtTheSameTime) {
    const Alive alive;
    onThreads([](std::size_t) {
        const NodeArena::Owner arena = NodeArena::make();
        for (int i = 0; i < 60'000; ++i) {
            std::unique_ptr<Node> fromArena;
            {
                const NodeArena::Scope scope(*arena);
                fromArena = makeNode();
            }
            const std::unique_ptr<Node> fromHeap = makeNode();
            const auto rule = std::make_shared<Inline::Entity>();
            const RuleBase::Batch batch;
            const auto batched = std::make_shared<Inline::Entity>();
        }
    });
    EXPECT_EQ(alive.nodes(), 0);
    EXPECT_EQ(alive.rules(), 0);
}

TEST(Threads, RulesAreCountedOneByOne) {
    const Alive alive;
    std::optional<RuleConfig> config(RuleConfig::Commonmark);
    const std::int64_t all = alive.rules();
    EXPECT_GT(all, 0);
    std::shared_ptr<RuleBase> kept = config->ruleInstanceByName("CodeSpan");
    config->removeRuleByName("CodeSpan");
    config->removeRuleByName("Entity");
    EXPECT_EQ(alive.rules(), all - 2) << "two were Entity";
    *config = RuleConfig(RuleConfig::Commonmark);
    EXPECT_EQ(alive.rules(), all + 1);
    config.reset();
    EXPECT_EQ(alive.rules(), 1);
    kept.reset();
    EXPECT_EQ(alive.rules(), 0);
}

} // namespace
} // namespace Ondo::Test
