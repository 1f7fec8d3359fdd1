#include "Painted.h"

#include <algorithm>
#include <utility>

namespace Cli {

namespace {

/// The same run as it lies in the text when that is read backwards. The value moves along.
AttributeRun mirrored(AttributeRun run, std::int64_t length) {
    return {length - run.end, length - run.location, std::move(run.value)};
}

/// Moves the runs that end behind a location, or the parts of them, from the end of one list to that of
/// another that counts from the other end of the text.
void moveBehind(std::vector<AttributeRun>& from, std::vector<AttributeRun>& to, std::int64_t location,
                std::int64_t length) {
    while (!from.empty() && from.back().end > location) {
        AttributeRun& last = from.back();
        const bool isCut = last.location < location;
        to.push_back(mirrored({std::max(last.location, location), last.end, last.value}, length));
        if (isCut)
            last.end = location;
        else
            from.pop_back();
    }
}

void addMerged(std::vector<AttributeRun>& runs, AttributeRun run) {
    const bool continues = !runs.empty() && runs.back().end == run.location && runs.back().value == run.value;
    if (continues)
        runs.back().end = run.end;
    else
        runs.push_back(std::move(run));
}

/// Where two lists of merged runs begin to differ.
std::optional<std::int64_t> firstDifference(const std::vector<AttributeRun>& painted,
                                            const AttributeRuns& fresh) {
    const auto count = static_cast<std::int64_t>(painted.size());
    for (std::int64_t i = 0; i < std::max(count, fresh.size()); ++i) {
        if (i == count) return fresh[i].location;
        const AttributeRun& run = painted[static_cast<std::size_t>(i)];
        if (i == fresh.size()) return run.location;
        if (run.location != fresh[i].location || !(run.value == fresh[i].value))
            return std::min(run.location, fresh[i].location);
        if (run.end != fresh[i].end) return std::min(run.end, fresh[i].end);
    }
    return std::nullopt;
}

} // namespace

void Painted::Runs::moveGap(std::int64_t location, std::int64_t length) {
    moveBehind(before, behind, location, length);
    moveBehind(behind, before, length - location, length);
}

void Painted::Runs::eraseBefore(std::int64_t location) {
    while (!before.empty() && before.back().location >= location)
        before.pop_back();
    if (!before.empty()) before.back().end = std::min(before.back().end, location);
}

std::vector<AttributeRun> Painted::Runs::merged(std::int64_t length) const {
    std::vector<AttributeRun> all;
    for (const AttributeRun& run : before)
        addMerged(all, run);
    for (auto run = behind.rbegin(); run != behind.rend(); ++run)
        addMerged(all, mirrored(*run, length));
    return all;
}

const CVNValue* Painted::Runs::valueAt(std::int64_t offset, std::int64_t length) const {
    for (const AttributeRun& run : before)
        if (run.location <= offset && offset < run.end) return &run.value;
    const std::int64_t back = length - offset;
    for (const AttributeRun& run : behind)
        if (run.location < back && back <= run.end) return &run.value;
    return nullptr;
}

void Painted::replace(CVNRange range, std::int64_t insertedLength) {
    for (Runs& runs : runs_) {
        runs.moveGap(range.end(), length_);
        runs.eraseBefore(range.location);
    }
    length_ += insertedLength - range.length;
}

void Painted::paint(std::int64_t location, const CVNAttributedString& share) {
    replace({location, share.length()}, share.length());
    for (std::int64_t id = 0; id < CVNAttributeName::count; ++id) {
        const AttributeRuns& runs = share.runs(CVNAttributeName::withId(id));
        for (std::int64_t i = 0; i < runs.size(); ++i)
            runs_[static_cast<std::size_t>(id)].before.push_back(
                {location + runs[i].location, location + runs[i].end, runs[i].value});
    }
}

std::optional<Painted::Difference>
Painted::differenceFrom(const CVNAttributedString& fresh,
                        const std::vector<CVNAttributeName>& skipped) const {
    std::optional<Difference> first;
    for (std::int64_t id = 0; id < CVNAttributeName::count; ++id) {
        const CVNAttributeName key = CVNAttributeName::withId(id);
        if (std::find(skipped.begin(), skipped.end(), key) != skipped.end()) continue;
        const Runs& runs = runs_[key.id()];
        const std::optional<std::int64_t> offset = firstDifference(runs.merged(length_), fresh.runs(key));
        if (!offset || (first && first->offset <= *offset)) continue;
        first = Difference{key, *offset, runs.valueAt(*offset, length_), fresh.attribute(key, *offset)};
    }
    return first;
}

} // namespace Cli
