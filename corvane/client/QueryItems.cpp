#include "corvane/client/QueryItems.h"

#include <algorithm>

namespace CVN::Query {

std::int64_t ItemRuns::at(std::int64_t index) const {
    const std::int64_t run = runs_.firstEndingBehind(index);
    return run < size() && runs_[run].location <= index ? run : noRun;
}

const CVNListInfo& ItemRuns::info(std::int64_t run) const {
    static const CVNListInfo nothing;
    const CVNListInfo* const info = runs_[run].value.listInfoValue();
    return info ? *info : nothing;
}

bool ItemRuns::isBlank(CVNRange range) const {
    for (std::int64_t at = range.location; at < range.end(); ++at)
        if (!isBlankOrQuoteMarker(text_, at)) return false;
    return true;
}

bool ItemRuns::isPrefix(std::int64_t run, std::int64_t from) const {
    const CVNRange rest = CVNRange::between(std::max(from, runs_[run].location), runs_[run].end);
    return isBlank(rest) && lineBreakIn(text_, rest) == CVNNotFound;
}

// Items

std::int64_t ItemRuns::firstOfItem(std::int64_t run, std::int64_t from) const {
    const CVNListInfo& item = info(run);
    for (std::int64_t at = from; at >= 0; --at) {
        const bool isOwn = info(at).isEqual(item);
        if (isOwn && beginsItem(at)) return at;
        if (!touchesPrevious(at) || (!isOwn && level(at) <= item.listLevel)) break;
    }
    return from;
}

std::int64_t ItemRuns::lastOfItem(std::int64_t run, std::int64_t itemLevel) const {
    const auto continues = [&](std::int64_t next) {
        return touchesPrevious(next) &&
               (level(next) > itemLevel || (level(next) == itemLevel && !beginsItem(next)));
    };
    while (run + 1 < size() && continues(run + 1))
        ++run;
    return run;
}

bool ItemRuns::hasSubitems(std::int64_t run) const {
    return run + 1 < size() && touchesPrevious(run + 1) && level(run + 1) > level(run);
}

std::int64_t ItemRuns::parent(std::int64_t run) const {
    const std::int64_t own = level(run);
    if (own == 0) return noRun;
    for (; touchesPrevious(run); --run)
        if (level(run - 1) < own) return run - 1;
    return noRun;
}

std::int64_t ItemRuns::nextSibling(std::int64_t run) const {
    const CVNListInfo& item = info(run);
    std::int64_t next = lastOfItem(run) + 1;
    while (next < size() && level(next) < item.listLevel && isBlank(next))
        ++next;
    const bool isSibling = next < size() && level(next) == item.listLevel && beginsItem(next) &&
                           info(next).itemIndex > item.itemIndex;
    return isSibling ? next : noRun;
}

// Lists. A run of their level that begins with the first item begins another list, and so does a deeper run
// that doesn't touch an item. What is between two items is blank.

CVNRange ItemRuns::rangeOfLevel(std::int64_t run, std::int64_t listLevel) const {
    while (run != noRun && level(run) > listLevel)
        run = parent(run);
    if (run == noRun || level(run) != listLevel) return CVNRange::notFound();
    return rangeOfRuns(firstOfList(run), lastOfList(run, size(), 0));
}

std::int64_t ItemRuns::firstOfList(std::int64_t run) const {
    const std::int64_t listLevel = level(run);
    std::int64_t first = run;
    for (std::int64_t at = run; at >= 0; --at) {
        if (level(at) < listLevel && !isBlank(at)) break;
        if (level(at) != listLevel) continue;
        first = at;
        if (beginsList(at)) break;
    }
    return first;
}

/// `outerType`: the type of an item around the list in which the list goes on, 0 for none.
std::int64_t ItemRuns::lastOfList(std::int64_t run, std::int64_t end, std::int64_t outerType) const {
    std::int64_t listLevel = level(run);
    std::int64_t last = run;
    for (std::int64_t at = run + 1; at < end; ++at) {
        if (level(at) > listLevel) {
            if (at != last + 1 || !touchesPrevious(at)) break;
        } else {
            if (beginsList(at)) break;
            if (level(at) < listLevel && isBlank(at)) continue;
            if (level(at) < listLevel && info(at).listType != outerType) break;
            listLevel = level(at);
        }
        last = at;
    }
    return last;
}

ItemRuns::Span ItemRuns::nextList(std::int64_t listType, std::int64_t first, std::int64_t end) const {
    while (first < end && (info(first).listType != listType || (isPrefix(first) && !beginsItem(first))))
        ++first;
    return {first, first < end ? lastOfList(first, end, listType) : end - 1};
}

} // namespace CVN::Query
