#include "corvane/tree/SyncRanges.h"

#include <algorithm>
#include <utility>

#include "corvane/scan/Assert.h"

namespace Ondo {

void SyncRanges::adjustReplacement(Replacement& replacement, const Range& redraw) {
    Range& range = replacement.range;
    std::u16string& text = replacement.replacement;
    const auto textEnd = [&] { return range.offset + static_cast<std::int64_t>(text.size()); };
    if (redraw.offset > range.offset && redraw.offset <= textEnd()) {
        const std::int64_t clipped = redraw.offset - range.offset;
        range.offset = redraw.offset;
        range.length = std::max<std::int64_t>(range.length - clipped, 0);
        text.erase(0, static_cast<std::size_t>(clipped));
    }
    if (range.offset <= redraw.end() && redraw.end() < textEnd()) {
        const std::int64_t clipped = textEnd() - redraw.end();
        range.length = std::max<std::int64_t>(range.length - clipped, 0);
        text.resize(static_cast<std::size_t>(redraw.end() - range.offset));
    }
}

void SyncRanges::add(const std::vector<Range>& newRanges, Replacement replacement) {
    CORVANE_ASSERT(newRanges.size() > 0, "SyncRanges"); // NOLINT(readability-container-size-empty)
    adjustReplacement(replacement, newRanges.front());
    replacements.push_back(std::move(replacement));
    const Replacement& added = replacements.back();
    for (RangePair& pair : ranges)
        Range::modifyRangeAsAfterReplace(pair.redrawRange, added.range, added.replacement);
    for (const Range& range : newRanges)
        ranges.push_back({range, range});
    // Going back to the last sync and forward again widens a range to all that an edit inside it touched.
    for (RangePair& pair : ranges) {
        Range range = pair.redrawRange;
        for (auto edit = replacements.rbegin(); edit != replacements.rend(); ++edit)
            Range::modifyRangeAsBeforeReplace(range, edit->range, edit->replacement);
        pair.initialRange = range;
        for (const Replacement& edit : replacements)
            Range::modifyRangeAsAfterReplace(range, edit.range, edit.replacement);
        pair.redrawRange = range;
    }
}

void SyncRanges::addAndMerge(const std::vector<Range>& newRanges, Replacement replacement) {
    add(newRanges, std::move(replacement));
    ranges = mergeRanges(std::move(ranges));
}

std::vector<RangePair> SyncRanges::mergeRanges(std::vector<RangePair> pairs) {
    std::stable_sort(pairs.begin(), pairs.end(), [](const RangePair& a, const RangePair& b) {
        return a.initialRange.end() > b.initialRange.end();
    });
    std::vector<RangePair> merged;
    for (const RangePair& pair : pairs) {
        if (merged.empty() || merged.back().initialRange.offset > pair.initialRange.end()) {
            merged.push_back(pair);
            continue;
        }
        RangePair& last = merged.back();
        if (last.initialRange.offset < pair.initialRange.offset) continue;
        last.initialRange = {pair.initialRange.offset, last.initialRange.end() - pair.initialRange.offset};
        last.redrawRange = {pair.redrawRange.offset, last.redrawRange.end() - pair.redrawRange.offset};
    }
    return merged;
}

} // namespace Ondo
