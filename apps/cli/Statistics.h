#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace Cli {

/// Durations in nanoseconds, and what they come to.
class Durations {
    std::vector<std::int64_t> sorted_;

public:
    explicit Durations(std::vector<std::int64_t> durations);

    /// The smallest one that at least `percent` of 100 of all don't exceed, in microseconds; 0 when there are
    /// none.
    double percentile(int percent) const;
};

/// With one digit behind the point.
std::string oneDecimal(double value);

} // namespace Cli
