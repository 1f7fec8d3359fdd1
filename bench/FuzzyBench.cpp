// Search as somebody types it, over the titles of a large library, and statistics of notes.

#include <benchmark/benchmark.h>

#include "bench/CpuClock.h"
#include "corvane/analysis/FuzzySearch.h"
#include "corvane/analysis/TextStatistics.h"
#include "corvane/scan/Util.h"
#include "tests/support/RealNotes.h"

namespace Ondo::Bench {
namespace {

constexpr std::size_t titleCount = 100'000;
constexpr std::size_t shortestTitle = 8;
constexpr std::size_t longestTitle = 80;
constexpr std::size_t longestNote = 300'000;

/// Lines of real notes in small letters, from the start again where there are too few.
std::vector<std::u16string> makeTitles() {
    std::vector<std::u16string> titles;
    for (const Test::RealNote& note : Test::realNotes(longestNote)) {
        const std::u16string text = Util::downcaseUnicode(Util::utf16(note.text));
        for (std::size_t at = 0; at < text.size() && titles.size() < titleCount;) {
            const std::size_t end = std::min(text.find(u'\n', at), text.size());
            if (end - at >= shortestTitle && end - at <= longestTitle)
                titles.push_back(text.substr(at, end - at));
            at = end + 1;
        }
    }
    for (std::size_t i = 0; titles.size() < titleCount; ++i)
        titles.push_back(i < titles.size() ? titles[i] : u"notes of the meeting on parsers");
    return titles;
}

const std::vector<std::u16string>& titles() {
    static const std::vector<std::u16string> made = makeTitles();
    return made;
}

void fuzzySearchTitles(benchmark::State& state, std::u16string_view pattern) {
    std::int64_t matched = 0;
    double seconds = 0;
    CVN::FuzzyMatch match;
    titles();
    for (auto _ : state) {
        matched = 0;
        const double start = cpuSeconds();
        for (const std::u16string& title : titles()) {
            CVN::fuzzySearch(pattern, title, match);
            matched += match.matched;
        }
        const double passed = cpuSeconds() - start;
        state.SetIterationTime(passed);
        seconds += passed;
    }
    const auto searches = static_cast<double>(state.iterations()) * titleCount;
    state.counters["title_ns"] = seconds * 1e9 / searches;
    state.counters["matched"] = static_cast<double>(matched);
}

void textStatistics(benchmark::State& state, bool isCjk) {
    std::u16string text;
    for (const std::u16string& title : titles())
        text += isCjk ? u"この記事は「統計」の例です。\n" : title + u'\n';
    for (auto _ : state) {
        const double start = cpuSeconds();
        benchmark::DoNotOptimize(CVN::TextStatistics(text).wordsCount);
        state.SetIterationTime(cpuSeconds() - start);
    }
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations()) *
                            static_cast<std::int64_t>(Util::utf8(text).size()));
}

void times(benchmark::internal::Benchmark* b) {
    b->UseManualTime()->Unit(benchmark::kMillisecond);
}
BENCHMARK_CAPTURE(fuzzySearchTitles, one_letter, u"e")->Apply(times);
BENCHMARK_CAPTURE(fuzzySearchTitles, two_letters, u"re")->Apply(times);
BENCHMARK_CAPTURE(fuzzySearchTitles, word, u"config")->Apply(times);
BENCHMARK_CAPTURE(fuzzySearchTitles, words, u"parser option")->Apply(times);
BENCHMARK_CAPTURE(fuzzySearchTitles, nowhere, u"zzzq")->Apply(times);
BENCHMARK_CAPTURE(fuzzySearchTitles, logogram, u"日")->Apply(times);
BENCHMARK_CAPTURE(textStatistics, latin, false)->Apply(times);
BENCHMARK_CAPTURE(textStatistics, cjk, true)->Apply(times);

} // namespace
} // namespace Ondo::Bench
