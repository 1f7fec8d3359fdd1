// Attribute runs: of a whole note, and on the road of a keystroke, which is replace, extend, annotate.

#include <benchmark/benchmark.h>

#include <vector>

#include "bench/BenchNote.h"
#include "bench/CpuClock.h"
#include "bench/Heap.h"
#include "bench/Quantiles.h"
#include "bench/Typing.h"
#include "corvane/client/CVNAST.h"
#include "corvane/scan/Util.h"

namespace Ondo::Bench {
namespace {

std::int64_t runCount(const CVNAttributedString& text) {
    std::int64_t count = 0;
    for (std::int64_t id = 0; id < CVNAttributeName::count; ++id)
        count += text.runs(CVNAttributeName::withId(id)).size();
    return count;
}

/// Loading the note is measured in the same run, for comparison.
void annotateNote(benchmark::State& state) {
    const Note source = realNote(static_cast<std::size_t>(state.range(0)));
    state.SetLabel(source.source);
    const std::u16string text = Util::utf16(source.text);
    double parsing = 0;
    double annotating = 0;
    for (auto _ : state) {
        const double start = cpuSeconds();
        const CVNAST note = CVNAST::fromMarkdown(text);
        const double parsed = cpuSeconds();
        const CVNAttributedString runs = note.annotatedString();
        const double end = cpuSeconds();
        benchmark::DoNotOptimize(runs.length());
        parsing += parsed - start;
        annotating += end - parsed;
        state.SetIterationTime(end - parsed);
    }
    const CVNAST note = CVNAST::fromMarkdown(text);
    const std::size_t before = bytesInUse();
    const CVNAttributedString runs = note.annotatedString();
    const double bytes = static_cast<double>(bytesInUse() - before) - 2 * static_cast<double>(text.size());
    state.SetBytesProcessed(static_cast<std::int64_t>(source.text.size()) * state.iterations());
    state.counters["share_of_load"] = annotating / parsing;
    state.counters["runs"] = static_cast<double>(runCount(runs));
    state.counters["bytes_per_run"] = bytes / static_cast<double>(runCount(runs));
}

bool isPlainText(const Tree& tree, std::int64_t offset) {
    return tree.nodeAtOffset(offset, LevelSetting::Leaf)->parent->type == ONDO_PARAGRAPH_NODE;
}

/// Types and deletes a character in turn. In the label of a link it restyles all from the first to the last
/// use of the label; `onlyText` leaves out these and all other inlines.
void typeAndRestyle(benchmark::State& state, bool onlyText) {
    CVNAST note = CVNAST::fromMarkdown(noteToTypeIn(state, u"# Note\n\n"));
    MiddleOfNote place;
    std::vector<double> editing;
    std::vector<double> annotating;
    std::vector<double> all;
    std::int64_t offset = 0;
    bool isTyping = true;
    for (auto _ : state) {
        while (isTyping) {
            offset = place(*note.ast);
            if (!onlyText || isPlainText(*note.ast, offset)) break;
        }
        const double start = cpuSeconds();
        const CVNRange range = note.replaceRange({offset, isTyping ? 0 : 1}, isTyping ? u"x" : u"");
        const double edited = cpuSeconds();
        benchmark::DoNotOptimize(note.annotatedStringForRange(range).length());
        const double end = cpuSeconds();
        state.SetIterationTime(end - start);
        editing.push_back((edited - start) * 1e6);
        annotating.push_back((end - edited) * 1e6);
        all.push_back((end - start) * 1e6);
        isTyping = !isTyping;
    }
    reportQuantiles(state, all);
    reportQuantiles(state, editing, "edit_");
    reportQuantiles(state, annotating, "annotate_");
}

BENCHMARK(annotateNote)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond)
    ->Arg(10'000)
    ->Arg(1'000'000)
    ->Arg(10'000'000);
void keystrokes(benchmark::internal::Benchmark* b) {
    b->UseManualTime()->Unit(benchmark::kMicrosecond)->Iterations(4000);
    b->Arg(10'000)->Arg(100'000)->Arg(1'000'000)->Arg(10'000'000);
}

BENCHMARK_CAPTURE(typeAndRestyle, text, true)->Apply(keystrokes);
BENCHMARK_CAPTURE(typeAndRestyle, anywhere, false)->Apply(keystrokes);

} // namespace
} // namespace Ondo::Bench
