// Whole documents: MB/s of UTF-8 input, bytes of tree a UTF-16 code unit, and what it costs to free the tree.
// The label says whether the notes are real or made.

#include <benchmark/benchmark.h>
#include <cmark.h>
#include <malloc.h>
#include <md4c.h>

#include "bench/BenchNote.h"
#include "bench/CpuClock.h"
#include "bench/Heap.h"
#include "corvane/scan/Util.h"
#include "corvane/tree/Parser.h"
#include "corvane/tree/Tree.h"

namespace Ondo::Bench {
namespace {

/// All parsers get their memory from a heap that keeps what is freed, so that the kernel's page faults, which
/// come and go with the state of the machine, are not measured.
[[maybe_unused]] const bool heapIsKept = [] {
    return mallopt(M_TRIM_THRESHOLD, 1 << 30) && mallopt(M_MMAP_THRESHOLD, 1 << 29);
}();

Note noteFor(benchmark::State& state) {
    Note note = realNote(static_cast<std::size_t>(state.range(0)));
    state.SetLabel(note.source);
    return note;
}

/// Runs `parse` under the clock and `release` outside it.
template <class Parse, class Release>
void measure(benchmark::State& state, std::size_t bytes, Parse parse, Release release) {
    for (auto _ : state) {
        const double start = cpuSeconds();
        auto tree = parse();
        state.SetIterationTime(cpuSeconds() - start);
        release(tree);
    }
    state.SetBytesProcessed(static_cast<std::int64_t>(bytes) * state.iterations());
}

void parseCorvane(benchmark::State& state, RuleConfig::RuleSet rules) {
    const std::string note = noteFor(state).text;
    RuleConfig config(rules);
    const std::u16string text = Util::utf16(note);
    const auto parse = [&] {
        NodeArena::Owner arena = NodeArena::make();
        const NodeArena::Scope scope(*arena);
        return Parser::parse(text, config);
    };
    measure(state, note.size(), parse, [](std::unique_ptr<Node>& root) { root.reset(); });
    const std::size_t before = bytesInUse();
    const std::int64_t nodes = Node::instanceCount;
    const std::unique_ptr<Node> root = parse();
    state.counters["tree_bytes_per_unit"] =
        static_cast<double>(bytesInUse() - before) / static_cast<double>(text.size());
    state.counters["nodes"] = static_cast<double>(Node::instanceCount - nodes);
}

void freeCorvane(benchmark::State& state) {
    const std::u16string text = Util::utf16(noteFor(state).text);
    for (auto _ : state) {
        Tree tree(text, RuleConfig::Extended);
        const double start = cpuSeconds();
        tree.root.reset();
        state.SetIterationTime(cpuSeconds() - start);
    }
}

void parseCmark(benchmark::State& state) {
    const std::string note = noteFor(state).text;
    measure(
        state, note.size(), [&] { return cmark_parse_document(note.data(), note.size(), CMARK_OPT_DEFAULT); },
        [](cmark_node* root) { cmark_node_free(root); });
}

void parseMd4c(benchmark::State& state) {
    const std::string note = noteFor(state).text;
    MD_PARSER parser{};
    parser.enter_block = [](MD_BLOCKTYPE, void*, void*) { return 0; };
    parser.leave_block = parser.enter_block;
    parser.enter_span = [](MD_SPANTYPE, void*, void*) { return 0; };
    parser.leave_span = parser.enter_span;
    parser.text = [](MD_TEXTTYPE, const MD_CHAR*, MD_SIZE, void*) { return 0; };
    measure(
        state, note.size(),
        [&] { return md_parse(note.data(), static_cast<MD_SIZE>(note.size()), &parser, nullptr); },
        [](int) {});
}

void sizes(benchmark::internal::Benchmark* b) {
    b->UseManualTime()->Unit(benchmark::kMillisecond)->Arg(10'000)->Arg(1'000'000)->Arg(10'000'000);
}

BENCHMARK_CAPTURE(parseCorvane, commonmark, RuleConfig::Commonmark)->Apply(sizes);
BENCHMARK_CAPTURE(parseCorvane, extended, RuleConfig::Extended)->Apply(sizes);
BENCHMARK(parseCmark)->Apply(sizes);
BENCHMARK(parseMd4c)->Apply(sizes);
BENCHMARK(freeCorvane)->Apply(sizes);

} // namespace
} // namespace Ondo::Bench
