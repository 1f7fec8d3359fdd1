#include "corvane/client/QueryLists.h"

#include <algorithm>

#include "corvane/client/QueryItems.h"

namespace CVN::Query {

namespace {

/// With the sublists, from whichever run of the item.
CVNRange rangeOfWholeItem(const ItemRuns& items, std::int64_t run) {
    const std::int64_t first = items.firstOfItem(run);
    return items.rangeOfRuns(first, items.lastOfItem(first));
}

} // namespace

const CVNListInfo* Answer::itemInfo(const CVNAttributedString& text, const KeyList& keys, std::int64_t index,
                                    CVNRange* itemRange, CVNRange* markerRange) {
    const ItemRuns items(text, keys);
    const std::int64_t run = items.at(index);
    if (run == ItemRuns::noRun) return nullptr;
    if (itemRange) *itemRange = items.rangeOfRuns(run, items.lastOfItem(run));
    if (markerRange) *markerRange = items.marker(run);
    return &items.info(run);
}

CVNRange Answer::rangeOfItem(const CVNAttributedString& text, const KeyList& keys, std::int64_t index,
                             CVNRange* markerRange) {
    CVNRange range = CVNRange::notFound();
    itemInfo(text, keys, index, &range, markerRange);
    return range;
}

CVNRange Answer::rangeOfOwnText(const CVNAttributedString& text, const KeyList& keys, std::int64_t index,
                                CVNRange* markerRange) {
    const ItemRuns items(text, keys);
    const std::int64_t run = items.at(index);
    if (run == ItemRuns::noRun) return CVNRange::notFound();
    if (markerRange) *markerRange = items.marker(run);
    return items.range(run);
}

CVNRange Answer::rangeOfNextSibling(const CVNAttributedString& text, const KeyList& keys, std::int64_t index,
                                    CVNRange* markerRange) {
    const ItemRuns items(text, keys);
    const std::int64_t run = items.at(index);
    const std::int64_t next = run == ItemRuns::noRun ? run : items.nextSibling(run);
    return next == ItemRuns::noRun ? CVNRange::notFound()
                                   : rangeOfItem(text, keys, items.range(next).location, markerRange);
}

CVNRange Answer::rangeOfSublists(const CVNAttributedString& text, const KeyList& keys, std::int64_t index,
                                 CVNRange*) {
    const ItemRuns items(text, keys);
    const std::int64_t run = items.at(index);
    const std::int64_t first = run == ItemRuns::noRun ? run : items.firstOfItem(run);
    if (first == ItemRuns::noRun || !items.hasSubitems(first)) return CVNRange::notFound();
    std::int64_t last = items.lastOfItem(first);
    while (items.level(last) == items.level(first))
        --last;
    return items.rangeOfRuns(first + 1, last);
}

CVNRange Answer::rangeOfIndent(const CVNAttributedString& text, const KeyList& keys, std::int64_t index,
                               CVNRange*) {
    const ItemRuns items(text, keys);
    const std::int64_t run = items.at(index);
    if (run == ItemRuns::noRun) return CVNRange::notFound();
    const std::int64_t first = items.firstOfItem(run);
    const CVNRange marker = items.marker(first);
    const std::int64_t start = items.range(first).location;
    return marker.isFound() && start < marker.location ? CVNRange::between(start, marker.location)
                                                       : CVNRange::notFound();
}

CVNRange Answer::rangeOfParent(const CVNAttributedString& text, const KeyList& keys, std::int64_t listType,
                               std::int64_t index) {
    const ItemRuns items(text, keys);
    std::int64_t run = items.at(index);
    do
        run = run == ItemRuns::noRun ? run : items.parent(run);
    while (run != ItemRuns::noRun && listType != 0 && items.info(run).listType != listType);
    return run == ItemRuns::noRun ? CVNRange::notFound() : rangeOfWholeItem(items, run);
}

CVNRange Answer::rangeOfLevel(const CVNAttributedString& text, const KeyList& keys, std::int64_t listLevel,
                              std::int64_t index) {
    const ItemRuns items(text, keys);
    return items.rangeOfLevel(items.at(index), listLevel);
}

CVNRange Answer::rangeOfMarkerIn(const CVNAttributedString& text, const KeyList& keys, CVNRange range) {
    const CVNRange marker = firstRunIn(text, keys[1], clippedRange(text, range));
    const CVNRange item = longestRangeForAttribute(text, keys[0], marker.location);
    return item.isFound() ? CVNRange::intersect(marker, item) : marker;
}

CVNRange Answer::extendToItems(const CVNAttributedString& text, const KeyList& keys, CVNRange range) {
    if (range.location < 0 || range.location > text.length()) return range;
    const CVNRange clipped = clippedRange(text, range);
    const std::int64_t start = std::min(clipped.location, text.length() - 1);
    const std::int64_t end = std::max(clipped.end(), start + 1);

    const ItemRuns items(text, keys);
    std::int64_t run = items.firstEndingBehind(start);
    if (run == items.size() || items.range(run).location >= end) return clipped;
    while (items.isPrefix(run, start) && run + 1 < items.size() && items.touchesPrevious(run + 1))
        ++run;
    // The outermost item so far that could go on behind the range.
    std::int64_t level = items.level(run);
    std::int64_t first = items.firstOfItem(run);
    std::int64_t last = run;
    for (++run; run < items.size() && items.range(run).location < end; ++run) {
        if (items.isPrefix(run)) continue;
        if (items.touchesPrevious(run) && items.level(run) < level && !items.beginsItem(run))
            first = items.firstOfItem(run, first);
        level = items.touchesPrevious(run) ? std::min(level, items.level(run)) : items.level(run);
        last = run;
    }
    return CVNRange::unite(clipped, items.rangeOfRuns(first, items.lastOfItem(last, level)));
}

CVNRange Answer::extendToRuns(const CVNAttributedString& text, const KeyList& keys, CVNRange range) {
    const CVNAttributeName key = keys[0];
    return extendRange(text, range, {&key, 1});
}

} // namespace CVN::Query
