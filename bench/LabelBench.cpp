// Many definitions and as many references: loading them, and edits that touch one.

#include <benchmark/benchmark.h>

#include "bench/CpuClock.h"
#include "bench/Quantiles.h"
#include "corvane/scan/Util.h"
#include "corvane/tree/Tree.h"

namespace Ondo::Bench {
namespace {

enum Labels { Shared, Distinct };

std::u16string label(Labels labels, std::size_t number) {
    return labels == Shared ? u"label" : Util::utf16("label" + std::to_string(number));
}

/// Paragraphs with a reference each, and a definition behind each.
std::u16string labelledNote(Labels labels, std::size_t count) {
    std::u16string text;
    for (std::size_t i = 0; i < count; ++i) {
        const std::u16string name = label(labels, i);
        text += u"See [" + name + u"] for it.\n\n[" + name + u"]: /url\n\n";
    }
    return text;
}

void loadLabels(benchmark::State& state, Labels labels) {
    const std::u16string text = labelledNote(labels, static_cast<std::size_t>(state.range(0)));
    for (auto _ : state) {
        const double start = cpuSeconds();
        const Tree tree(text, RuleConfig::Extended);
        state.SetIterationTime(cpuSeconds() - start);
    }
}

/// Types and deletes a character in turn behind `mark` in the middle of the note.
void editLabels(benchmark::State& state, Labels labels, const char16_t* mark) {
    Tree tree(labelledNote(labels, static_cast<std::size_t>(state.range(0))), RuleConfig::Extended);
    const auto middle = static_cast<std::size_t>(tree.length() / 2);
    const auto offset = static_cast<std::int64_t>(tree.markdown().find(mark, middle)) + 1;
    std::vector<double> microseconds;
    bool isTyping = true;
    for (auto _ : state) {
        const double start = cpuSeconds();
        benchmark::DoNotOptimize(tree.replace({offset, isTyping ? 0 : 1}, isTyping ? u"x" : u""));
        const double seconds = cpuSeconds() - start;
        state.SetIterationTime(seconds);
        microseconds.push_back(seconds * 1e6);
        isTyping = !isTyping;
    }
    reportQuantiles(state, microseconds);
}

void loads(benchmark::internal::Benchmark* b) {
    b->UseManualTime()->Unit(benchmark::kMillisecond)->Arg(1'000)->Arg(10'000)->Arg(20'000);
}

void edits(benchmark::internal::Benchmark* b) {
    b->UseManualTime()->Unit(benchmark::kMicrosecond)->Iterations(200)->Arg(1'000)->Arg(10'000)->Arg(20'000);
}

BENCHMARK_CAPTURE(loadLabels, shared, Shared)->Apply(loads);
BENCHMARK_CAPTURE(loadLabels, distinct, Distinct)->Apply(loads);
BENCHMARK_CAPTURE(editLabels, shared_text, Shared, u" for it")->Apply(edits);
BENCHMARK_CAPTURE(editLabels, shared_reference, Shared, u"e [")->Apply(edits);
BENCHMARK_CAPTURE(editLabels, shared_definition, Shared, u"\n[")->Apply(edits);
BENCHMARK_CAPTURE(editLabels, distinct_text, Distinct, u" for it")->Apply(edits);
BENCHMARK_CAPTURE(editLabels, distinct_reference, Distinct, u"[label")->Apply(edits);
BENCHMARK_CAPTURE(editLabels, distinct_definition, Distinct, u"\n[")->Apply(edits);
BENCHMARK_CAPTURE(editLabels, distinct_url, Distinct, u"/url")->Apply(edits);

} // namespace
} // namespace Ondo::Bench
