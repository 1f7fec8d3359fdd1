// A character typed into a note, and what finding the edited block costs.

#include <benchmark/benchmark.h>

#include <random>
#include <vector>

#include "bench/BenchNote.h"
#include "bench/CpuClock.h"
#include "bench/Quantiles.h"
#include "bench/Typing.h"
#include "corvane/scan/Util.h"
#include "corvane/tree/DocumentNode.h"
#include "corvane/tree/Tree.h"

namespace Ondo::Bench {
namespace {

/// Types and deletes a character in turn at the offset that `place` gives.
template <class Place>
void typeAt(benchmark::State& state, const char16_t* head, Place place) {
    Tree tree(noteToTypeIn(state, head), RuleConfig::Extended);
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

void typeInTheMiddle(benchmark::State& state, const char16_t* head) {
    typeAt(state, head, MiddleOfNote());
}

/// Each keystroke somewhere else: the worst that an index of blocks and a gap in the text can meet.
void typeAnywhere(benchmark::State& state) {
    std::mt19937_64 random(1);
    typeAt(state, noFrontMatter, [&](const Tree& tree) {
        const auto width = static_cast<std::uint64_t>(tree.length() * 9 / 10);
        return paragraphBehind(tree, static_cast<std::int64_t>(random() % width));
    });
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
