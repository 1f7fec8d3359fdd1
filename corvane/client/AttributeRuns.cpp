#include "corvane/client/AttributeRuns.h"

#include <utility>

#include "corvane/scan/Assert.h"

const AttributeRun& AttributeRuns::operator[](std::int64_t index) const {
    CORVANE_ASSERT(index >= 0 && index < size(), "AttributeRuns");
    const auto at = static_cast<std::size_t>(index);
    return at < before_.size() ? before_[at] : behind_[behind_.size() - 1 - (at - before_.size())];
}

std::int64_t AttributeRuns::firstEndingBehind(std::int64_t location) const {
    std::int64_t first = 0;
    std::int64_t last = size();
    while (first < last) {
        const std::int64_t middle = first + (last - first) / 2;
        if ((*this)[middle].end > location)
            last = middle;
        else
            first = middle + 1;
    }
    return first;
}

void AttributeRuns::set(std::int64_t location, std::int64_t end, CVNValue value) {
    if (location >= end) return;
    moveGap(location);
    clearUntil(end);
    append({location, end, std::move(value)});
}

/// A run that holds the location in its midst becomes two.
void AttributeRuns::moveGap(std::int64_t location) {
    while (!before_.empty() && before_.back().end > location) {
        behind_.push_back(std::move(before_.back()));
        before_.pop_back();
    }
    while (!behind_.empty() && behind_.back().end <= location) {
        before_.push_back(std::move(behind_.back()));
        behind_.pop_back();
    }
    if (!behind_.empty() && behind_.back().location < location) {
        before_.push_back({behind_.back().location, location, behind_.back().value});
        behind_.back().location = location;
    }
}

void AttributeRuns::clearUntil(std::int64_t end) {
    while (!behind_.empty() && behind_.back().end <= end)
        behind_.pop_back();
    if (!behind_.empty() && behind_.back().location < end) behind_.back().location = end;
}

void AttributeRuns::append(AttributeRun run) {
    const bool continues =
        !before_.empty() && before_.back().end == run.location && before_.back().value == run.value;
    if (continues)
        before_.back().end = run.end;
    else
        before_.push_back(std::move(run));

    AttributeRun& last = before_.back();
    if (!behind_.empty() && behind_.back().location == last.end && behind_.back().value == last.value) {
        last.end = behind_.back().end;
        behind_.pop_back();
    }
}
