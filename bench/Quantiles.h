#pragma once

#include <benchmark/benchmark.h>

#include <algorithm>
#include <vector>

namespace Ondo::Bench {

inline void reportQuantiles(benchmark::State& state, std::vector<double>& microseconds) {
    std::sort(microseconds.begin(), microseconds.end());
    const auto quantile = [&](double q) {
        return microseconds[static_cast<std::size_t>(q * static_cast<double>(microseconds.size() - 1))];
    };
    state.counters["p50_us"] = quantile(0.50);
    state.counters["p95_us"] = quantile(0.95);
    state.counters["p99_us"] = quantile(0.99);
}

} // namespace Ondo::Bench
