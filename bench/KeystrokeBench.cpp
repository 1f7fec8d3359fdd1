// A character typed into a note, and what finding the edited block costs.

#include <benchmark/benchmark.h>

#include <random>
#include <vector>

#include "bench/BenchNote.h"
#include "bench/CpuClock.h"
#include "bench/Quantiles.h"
#include "corvane/scan/Util.h"
#include "corvane/tree/DocumentNode.h"
#include "corvane/tree/Tree.h"

namespace Ondo::Bench {
namespace {

/// In the paragraph of first level nearest behind `offset`, or in the first one of the note.
std::int64_t paragraphBehind(const Tree& tree, std::int64_t offset) {
    Node::Iterator at = tree.iteratorAtOffset(offset, LevelSetting::FirstLevel);
    while (at->parent != tree.root.get())
        at.parent();
    while (at.node && at->type != ONDO_PARAGRAPH_NODE)
        at.nextSibling();
    return at.node ? at.offset + at->charCount / 2 : paragraphBehind(tree, 0);
}

/// Notes of all sizes have the same text in their midst, so that only what is around it differs.
std::u16string noteFor(benchmark::State& state, const char16_t* head) {
    static const std::string middle = realNote(10'000).text;
    const Note note = realNoteAround(middle, static_cast<std::size_t>(state.range(0)));
    state.SetLabel(note.source);
    return head + Util::utf16(note.text);
}

/// Types and deletes a character in turn at the offset that `place` gives.
template <class Place>
void typeAt(benchmark::State& state, const char16_t* head, Place place) {
    Tree tree(noteFor(state, head), RuleConfig::Extended);
    std::vector<double> microseconds;
    std::int64_t offset = 0;
    bool isTyping = true;
    for (auto _ : state) {
        if (isTyping) offset = place(tree);
        const Range range{offset, isTyping ? 0 : 1};
        const double start = cpuSeconds();
        benchmark::DoNotOptimize(tree.replace(range, isTyping ? u"x" : u""));
        const double seconds = cpuSeconds() - start;
        state.SetIterationTime(seconds);
        microseconds.push_back(seconds * 1e6);
        isTyping = !isTyping;
    }
    reportQuantiles(state, microseconds);
}

constexpr const char16_t* noFrontMatter = u"# Note\n\n";

/// Types in paragraphs picked at random between two offsets.
void typeBetween(benchmark::State& state, const char16_t* head, std::int64_t (*first)(std::int64_t),
                 std::int64_t (*last)(std::int64_t)) {
    std::mt19937_64 random(1);
    typeAt(state, head, [&](const Tree& tree) {
        const std::int64_t from = first(tree.length());
        const auto width = static_cast<std::uint64_t>(last(tree.length()) - from);
        return paragraphBehind(tree, from + static_cast<std::int64_t>(random() % width));
    });
}

/// A person at work on a page: within 4,000 code units of the middle.
void typeInTheMiddle(benchmark::State& state, const char16_t* head) {
    typeBetween(
        state, head, [](std::int64_t length) { return length / 2 - 4000; },
        [](std::int64_t length) { return length / 2 + 4000; });
}

/// Each keystroke somewhere else: the worst that an index of blocks and a gap in the text can meet.
void typeAnywhere(benchmark::State& state) {
    typeBetween(
        state, noFrontMatter, [](std::int64_t) { return std::int64_t{0}; },
        [](std::int64_t length) { return length * 9 / 10; });
}

/// The position of a first-level block, asked of blocks in random order.
void findBlock(benchmark::State& state) {
    const Tree tree(Util::utf16(benchNote(static_cast<std::size_t>(state.range(0)))), RuleConfig::Extended);
    std::vector<Node*> blocks;
    for (Node* block = tree.root->firstChild; block; block = block->nextSibling)
        blocks.push_back(block);
    std::mt19937_64 random(1);
    for (auto _ : state)
        benchmark::DoNotOptimize(blocks[random() % blocks.size()]->startOffset());
    state.counters["blocks"] = static_cast<double>(blocks.size());
}

/// The same by the plain walk over the siblings, which the index replaces.
void findBlockByWalk(benchmark::State& state) {
    const Tree tree(Util::utf16(benchNote(static_cast<std::size_t>(state.range(0)))), RuleConfig::Extended);
    std::vector<Node*> blocks;
    for (Node* block = tree.root->firstChild; block; block = block->nextSibling)
        blocks.push_back(block);
    std::mt19937_64 random(1);
    for (auto _ : state) {
        std::int64_t offset = 0;
        for (const Node* at = blocks[random() % blocks.size()]->previousSibling; at; at = at->previousSibling)
            offset += at->charCount;
        benchmark::DoNotOptimize(offset);
    }
    state.counters["blocks"] = static_cast<double>(blocks.size());
}

void sizes(benchmark::internal::Benchmark* b) {
    b->Unit(benchmark::kMicrosecond)->Arg(10'000)->Arg(100'000)->Arg(1'000'000)->Arg(10'000'000);
}

void keystrokes(benchmark::internal::Benchmark* b) {
    sizes(b);
    b->UseManualTime()->Iterations(4000);
}

BENCHMARK_CAPTURE(typeInTheMiddle, plain, noFrontMatter)->Apply(keystrokes);
/// A "." or "-" beside what is deleted may have been a fence of the front matter: the note is parsed again.
BENCHMARK_CAPTURE(typeInTheMiddle, front_matter, u"---\ntitle: Note\n---\n\n")->Apply(keystrokes);
BENCHMARK(typeAnywhere)->Apply(keystrokes);
BENCHMARK(findBlock)->Apply(sizes);
BENCHMARK(findBlockByWalk)->Apply(sizes);

} // namespace
} // namespace Ondo::Bench

BENCHMARK_MAIN();
