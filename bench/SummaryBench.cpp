// What a list of notes shows of one, beside the parse that it needs.

#include <benchmark/benchmark.h>

#include <string>
#include <string_view>

#include "bench/BenchNote.h"
#include "bench/CpuClock.h"
#include "corvane/analysis/TreeSummary.h"
#include "corvane/scan/Util.h"

namespace Ondo::Bench {
namespace {

void summarize(benchmark::State& state) {
    const Note source = realNote(static_cast<std::size_t>(state.range(0)));
    state.SetLabel(source.source);
    const std::u16string text = Util::utf16(source.text);
    double parsing = 0;
    double summarizing = 0;
    for (auto _ : state) {
        const double start = cpuSeconds();
        const Tree tree(text, RuleConfig::Extended);
        const double parsed = cpuSeconds();
        const CVN::TreeSummary summary(tree);
        const double end = cpuSeconds();
        benchmark::DoNotOptimize(summary.links.data());
        parsing += parsed - start;
        summarizing += end - parsed;
        state.SetIterationTime(end - parsed);
    }
    state.SetBytesProcessed(static_cast<std::int64_t>(source.text.size()) * state.iterations());
    state.counters["share_of_parse"] = summarizing / parsing;
}

/// A note that is meant to hurt: `unit` repeated between `head` and `tail`, with its number for each "@".
struct HostileNote {
    const char* name;
    std::u16string_view head;
    std::u16string_view unit;
    std::u16string_view tail = {};
};

constexpr HostileNote hostileNotes[] = {
    {"tags on a line", u"a\n", u"#b "},
    {"lines of tags", u"a\n", u"#b #c\n"},
    {"comments and tags", u"a\n", u"<!--\n--> #b "},
    {"links", u"", u"[a](b) "},
    {"quotes", u"", u"> > > a\n"},
    {"definitions in quotes", u"", u"> [@]: u@\n\n[@]\n\n"},
    {"references of one definition", u"[a]: /xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx\n\n",
     u"[a] "},
    {"definitions of one label", u"[a]\n\n", u"> [a]: b\n"},
    {"emphasis over lines", u"- x ", u"*a\n  ", u"b*"},
    {"a long line", u"", u"xxxxxxxxxx"},
    {"blank lines", u"", u"\n\n\n\n\n\n\n\n\n\n", u"a"},
    {"lines without text", u"a\n", u"<b>\n"},
};

std::u16string textOf(const HostileNote& note, std::int64_t count) {
    std::u16string text(note.head);
    for (std::int64_t i = 0; i < count; ++i)
        text += Util::replaceAll(note.unit, u"@", Util::toString(i));
    text += note.tail;
    return text;
}

double summarySeconds(const HostileNote& note, std::int64_t count) {
    const Tree tree(textOf(note, count), RuleConfig::Extended);
    const double start = cpuSeconds();
    const CVN::TreeSummary summary(tree);
    const double end = cpuSeconds();
    benchmark::DoNotOptimize(summary.links.data());
    return end - start;
}

/// What ten times as much costs: about 10 for linear time.
void summarizeHostile(benchmark::State& state) {
    const HostileNote& note = hostileNotes[state.range(0)];
    constexpr std::int64_t count = 10'000;
    double once = 0;
    double tenTimes = 0;
    for (auto _ : state) {
        once += summarySeconds(note, count);
        const double seconds = summarySeconds(note, 10 * count);
        tenTimes += seconds;
        state.SetIterationTime(seconds);
    }
    state.SetLabel(note.name);
    state.counters["ratio"] = tenTimes / once;
}

BENCHMARK(summarize)
    ->UseManualTime()
    ->Unit(benchmark::kMicrosecond)
    ->Arg(10'000)
    ->Arg(1'000'000)
    ->Arg(10'000'000);

BENCHMARK(summarizeHostile)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond)
    ->Iterations(5)
    ->DenseRange(0, std::ssize(hostileNotes) - 1);

} // namespace
} // namespace Ondo::Bench
