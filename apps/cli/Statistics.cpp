#include "Statistics.h"

#include <algorithm>
#include <charconv>
#include <iterator>
#include <utility>

namespace Cli {

Durations::Durations(std::vector<std::int64_t> durations) : sorted_(std::move(durations)) {
    std::sort(sorted_.begin(), sorted_.end());
}

double Durations::percentile(int percent) const {
    if (sorted_.empty()) return 0;
    const std::size_t rank = (sorted_.size() * static_cast<std::size_t>(percent) + 99) / 100;
    return static_cast<double>(sorted_[std::max<std::size_t>(rank, 1) - 1]) / 1000;
}

std::string oneDecimal(double value) {
    char digits[64];
    return {digits,
            std::to_chars(std::begin(digits), std::end(digits), value, std::chars_format::fixed, 1).ptr};
}

} // namespace Cli
