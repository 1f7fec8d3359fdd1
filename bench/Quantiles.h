#pragma once

#include <benchmark/benchmark.h>

#include <algorithm>
#include <string>
#include <vector>

namespace Ondo::Bench {

/// `what` stands before the names of the counters.
inline void reportQuantiles(benchmark::State& state, std::vector<double>& microseconds,
                            const std::string& what = {}) {
    std::sort(microseconds.begin(), microseconds.end());
    const auto quantile = [&](double q) {
        return microseconds[static_cast<std::size_t>(q * static_cast<double>(microseconds.size() - 1))];
    };
    state.counters[what + "p50_us"] = quantile(0.50);
    state.counters[what + "p95_us"] = quantile(0.95);
    state.counters[what + "p99_us"] = quantile(0.99);
}

} // namespace Ondo::Bench
