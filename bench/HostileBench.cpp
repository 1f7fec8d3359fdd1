// Hostile input: what doubling it costs, in the place of a note where that is most. Linear time doubles; 0
// stands for input of which 200,000 repetitions are parsed in less than a millisecond.

#include <benchmark/benchmark.h>

#include <algorithm>

#include "bench/CpuClock.h"
#include "corvane/scan/Util.h"
#include "corvane/tree/NodeArena.h"
#include "corvane/tree/Parser.h"
#include "corvane/tree/RuleConfig.h"
#include "tests/support/Hostile.h"

namespace Ondo::Bench {
namespace {

using Test::Hostile;
using Test::HostilePlace;

constexpr std::size_t maximumCount = 64 * 1600;
constexpr double longEnough = 0.01; // seconds that can be measured
constexpr double shortest = 0.001;
constexpr double maximumRatio = 2.6;

struct Cost {
    const char* place = "";
    std::size_t count = 0; ///< before it is doubled
    double once = 0;       ///< seconds
    double twice = 0;
    double ratio() const { return twice < shortest ? 0 : twice / once; }
};

double parseSeconds(const std::u16string& text, RuleConfig& config) {
    NodeArena::Owner arena = NodeArena::make();
    const NodeArena::Scope scope(*arena);
    const double start = cpuSeconds();
    const std::unique_ptr<Node> root = Parser::parse(text, config);
    return cpuSeconds() - start;
}

/// The best of a few tries where the first is bad: a machine that is busy with something else is slow for a
/// while; what is slow every time is ours.
Cost costOf(const Hostile& hostile, const HostilePlace& place, RuleConfig& config, std::size_t count) {
    const std::u16string once = hostileText(hostile, place, count);
    const std::u16string twice = hostileText(hostile, place, count * 2);
    Cost cost{place.name, count, parseSeconds(once, config), parseSeconds(twice, config)};
    for (int retry = 0; retry < 4 && cost.ratio() > maximumRatio * 0.9; ++retry) {
        cost.once = std::min(cost.once, parseSeconds(once, config));
        cost.twice = std::min(cost.twice, parseSeconds(twice, config));
    }
    return cost;
}

/// Starts low, so that what is worse than linear shows before it takes minutes.
Cost costOf(const Hostile& hostile, const HostilePlace& place, RuleConfig& config) {
    std::size_t count = maximumCount / 64;
    while (count < maximumCount && parseSeconds(hostileText(hostile, place, count), config) < longEnough)
        count *= 2;
    const Cost cost = costOf(hostile, place, config, count);
    // Once more with twice as much: a cache that is outgrown costs only at one size.
    return cost.ratio() > maximumRatio ? costOf(hostile, place, config, count * 2) : cost;
}

void doubleHostile(benchmark::State& state, const Hostile& hostile, RuleConfig::RuleSet rules) {
    RuleConfig config(rules);
    Cost worst;
    for (auto _ : state) {
        for (const HostilePlace& place : Test::hostilePlaces) {
            const Cost cost = costOf(hostile, place, config);
            if (worst.count == 0 || cost.ratio() > worst.ratio()) worst = cost;
        }
        state.SetIterationTime(worst.twice);
    }
    state.counters["count"] = static_cast<double>(worst.count);
    state.counters["ratio"] = worst.ratio();
    state.SetLabel(std::string(worst.place) + (worst.ratio() > maximumRatio ? ", MORE THAN LINEAR" : ""));
}

std::string nameOf(const Hostile& hostile) {
    if (hostile.open.empty()) return "rising backticks";
    return Util::utf8(Util::escape(hostile.open)) + ' ' + Util::utf8(Util::escape(hostile.close));
}

void registerRuleSet(const std::string& name, RuleConfig::RuleSet rules) {
    for (const Hostile& hostile : Test::hostileUnits)
        benchmark::RegisterBenchmark(("hostile/" + name + '/' + nameOf(hostile)).c_str(), doubleHostile,
                                     hostile, rules)
            ->UseManualTime()
            ->Iterations(1)
            ->Unit(benchmark::kMillisecond);
}

[[maybe_unused]] const bool isRegistered = [] {
    registerRuleSet("commonmark", RuleConfig::Commonmark);
    registerRuleSet("extended", RuleConfig::Extended);
    return true;
}();

} // namespace
} // namespace Ondo::Bench
