// What a list of notes shows of a whole vault, on one thread and on all cores: notes and bytes of UTF-8 a
// second by the wall clock, from UTF-8 in memory to the summary, beside a parser that gives no summary.

#include <benchmark/benchmark.h>
#include <cmark.h>

#include <algorithm>
#include <atomic>
#include <string>
#include <string_view>
#include <thread>
#include <vector>

#include "bench/BenchNote.h"
#include "corvane/analysis/TreeSummary.h"
#include "corvane/scan/Util.h"
#include "corvane/tree/Tree.h"
#include "tests/support/RealNotes.h"

namespace Ondo::Bench {
namespace {

constexpr std::size_t noteCount = 10'000;

struct Vault {
    std::vector<std::string> notes;
    std::size_t bytes = 0;
    const char* source = "real";
};

/// The start of the next section that leaves at least `least` bytes before it.
std::size_t nextSection(std::string_view text, std::size_t least) {
    std::size_t at = std::min(least, text.size());
    do
        at = text.find("\n#", at);
    while (at != std::string_view::npos && text.substr(++at, 2) != "# " && text.substr(at, 3) != "## ");
    return std::min(at, text.size());
}

/// Long files are manuals and logs of changes: their sections make notes as people keep them.
void addNotes(std::string_view file, std::vector<std::string>& notes) {
    constexpr std::size_t longest = 20'000;
    constexpr std::size_t shortest = 2'000;
    while (file.size() > longest) {
        const std::size_t end = nextSection(file, shortest);
        notes.emplace_back(file.substr(0, end));
        file.remove_prefix(end);
    }
    if (!file.empty()) notes.emplace_back(file);
}

/// The Markdown files of this machine, the longer ones cut into sections, from the first to the last and
/// again until they suffice.
Vault makeVault() {
    Vault vault;
    for (const Test::RealNote& file : Test::realNotes(300'000))
        addNotes(file.text, vault.notes);
    if (vault.notes.empty()) {
        vault.source = "made";
        vault.notes.push_back(benchNote(5'000));
    }
    const std::size_t distinct = vault.notes.size();
    vault.notes.resize(std::min(distinct, noteCount));
    vault.notes.reserve(noteCount);
    for (std::size_t i = distinct; i < noteCount; ++i)
        vault.notes.push_back(vault.notes[i - distinct]);
    for (const std::string& note : vault.notes)
        vault.bytes += note.size();
    return vault;
}

void summarize(const std::string& note) {
    const Tree tree(Util::utf16(note), RuleConfig::Extended);
    const CVN::TreeSummary summary(tree);
    benchmark::DoNotOptimize(summary.title.data());
}

void parseCmark(const std::string& note) {
    cmark_node_free(cmark_parse_document(note.data(), note.size(), CMARK_OPT_DEFAULT));
}

/// Calls `work` with all notes; each thread takes the next few when it is done with some.
template <class Work>
void onThreads(std::int64_t count, const std::vector<std::string>& notes, Work work) {
    constexpr std::size_t few = 8;
    std::atomic<std::size_t> next = 0;
    const auto run = [&] {
        for (std::size_t at; (at = next.fetch_add(few)) < notes.size();)
            std::for_each_n(notes.begin() + static_cast<std::ptrdiff_t>(at), std::min(few, notes.size() - at),
                            work);
    };
    std::vector<std::thread> threads;
    for (std::int64_t i = 1; i < count; ++i)
        threads.emplace_back(run);
    run();
    for (std::thread& thread : threads)
        thread.join();
}

void vault(benchmark::State& state, void (*work)(const std::string&)) {
    static const Vault vault = makeVault();
    state.SetLabel(vault.source);
    for (auto _ : state)
        onThreads(state.range(0), vault.notes, work);
    state.SetBytesProcessed(static_cast<std::int64_t>(vault.bytes) * state.iterations());
    state.SetItemsProcessed(static_cast<std::int64_t>(vault.notes.size()) * state.iterations());
}

void threads(benchmark::internal::Benchmark* b) {
    const std::int64_t cores = std::max(std::thread::hardware_concurrency(), 1U);
    b->ArgName("threads")->UseRealTime()->Unit(benchmark::kMillisecond)->Arg(1);
    if (cores > 1) b->Arg(cores);
}

BENCHMARK_CAPTURE(vault, summary, summarize)->Apply(threads);
BENCHMARK_CAPTURE(vault, cmark, parseCmark)->Apply(threads);

} // namespace
} // namespace Ondo::Bench
