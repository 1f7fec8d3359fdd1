#include "corvane/client/QueryUtilities.h"

#include <algorithm>

namespace CVN::Query {

namespace {

CVNRange rangeOf(const AttributeRun& run) {
    return CVNRange::between(run.location, run.end);
}

std::int64_t startOfRunsThatEndAt(const CVNAttributedString& text, CVNAttributeName key, std::int64_t start) {
    while (start > 0) {
        const CVNRange run = longestRangeForAttribute(text, key, start - 1);
        if (!run.isFound()) break;
        start = run.location;
    }
    return start;
}

std::int64_t endOfRunsFrom(const CVNAttributedString& text, CVNAttributeName key, std::int64_t index) {
    CVNRange run = longestRangeForAttribute(text, key, index);
    std::int64_t end = index;
    for (; run.isFound(); run = longestRangeForAttribute(text, key, end))
        end = run.end();
    return end;
}

} // namespace

CVNRange clippedRange(const CVNAttributedString& text, CVNRange range) {
    const std::int64_t length = text.length();
    const std::int64_t start = std::clamp<std::int64_t>(range.location, 0, length);
    if (range.length <= 0 || range.location >= length) return {start, 0};
    const bool reachesEnd = range.location >= 0 && range.length >= length - range.location;
    return CVNRange::between(start, reachesEnd ? length : std::clamp(range.end(), start, length));
}

CVNRange longestRangeForAttribute(const CVNAttributedString& text, CVNAttributeName key, std::int64_t index) {
    CVNRange run;
    return text.attribute(key, index, &run) ? run : CVNRange::notFound();
}

CVNRange firstRunIn(const CVNAttributedString& text, CVNAttributeName key, CVNRange range) {
    const AttributeRuns& runs = text.runs(key);
    const std::int64_t first = runs.firstEndingBehind(range.location);
    if (range.length <= 0 || first == runs.size() || runs[first].location >= range.end())
        return CVNRange::notFound();
    return CVNRange::intersect(rangeOf(runs[first]), range);
}

CVNRange lastRunIn(const CVNAttributedString& text, CVNAttributeName key, CVNRange range) {
    if (range.length <= 0) return CVNRange::notFound();
    const AttributeRuns& runs = text.runs(key);
    std::int64_t last = runs.firstEndingBehind(range.end() - 1);
    if (last == runs.size() || runs[last].location >= range.end()) --last;
    if (last < 0 || runs[last].end <= range.location) return CVNRange::notFound();
    return CVNRange::intersect(rangeOf(runs[last]), range);
}

bool isBlankOrQuoteMarker(const CVNAttributedString& text, std::int64_t index) {
    const char16_t c = text.characterAtIndex(index);
    return c == u' ' || c == u'\t' || c == u'\n' || c == u'\r' ||
           text.attribute(CVNBlockquoteMarkerAttributeName, index);
}

std::int64_t lineBreakIn(const CVNAttributedString& text, CVNRange range) {
    const std::u16string_view part = text.string().substr(static_cast<std::size_t>(range.location),
                                                          static_cast<std::size_t>(range.length));
    const std::size_t found = part.find_first_of(u"\n\r");
    return found == std::u16string_view::npos ? CVNNotFound
                                              : range.location + static_cast<std::int64_t>(found);
}

std::int64_t behindLineBreak(const CVNAttributedString& text, std::int64_t location) {
    const bool isPair = text.string().substr(static_cast<std::size_t>(location), 2) == u"\r\n";
    return location + (isPair ? 2 : 1);
}

CVNRange extendRange(const CVNAttributedString& text, CVNRange range,
                     std::span<const CVNAttributeName> keys) {
    if (range.location < 0 || range.location > text.length()) return range;
    CVNRange grown = clippedRange(text, range);
    const std::int64_t start = grown.location;
    for (const CVNAttributeName key : keys) {
        const std::int64_t last = std::max(grown.end() - 1, start);
        const std::int64_t grownStart = startOfRunsThatEndAt(text, key, grown.location);
        grown = CVNRange::between(grownStart, std::max(grown.end(), endOfRunsFrom(text, key, last)));
    }
    return grown;
}

} // namespace CVN::Query
