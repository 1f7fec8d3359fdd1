#pragma once

#include <span>

#include "corvane/client/CVNAttributedString.h"
#include "corvane/scan/Export.h"

/// Ranges of runs, with which the other queries are made.

namespace CVN::Query {

/// The part of a range that lies in the text, whatever its numbers are; empty when there is none.
CORVANE_EXPORT CVNRange clippedRange(const CVNAttributedString& text, CVNRange range);

/// The widest range around the index over which the key's value stays equal; {CVNNotFound, 0} when there is
/// no value at the index.
CORVANE_EXPORT CVNRange longestRangeForAttribute(const CVNAttributedString& text, CVNAttributeName key,
                                                 std::int64_t index);

/// The first and the last run of the key in a range, clipped to it; {CVNNotFound, 0} when there is none.
CORVANE_EXPORT CVNRange firstRunIn(const CVNAttributedString& text, CVNAttributeName key, CVNRange range);
CORVANE_EXPORT CVNRange lastRunIn(const CVNAttributedString& text, CVNAttributeName key, CVNRange range);

/// A space, a tab, a line break, or a character of a quote's marker. The index lies in the text.
CORVANE_EXPORT bool isBlankOrQuoteMarker(const CVNAttributedString& text, std::int64_t index);
/// The location of the first LF or CR in a range of the text, CVNNotFound when there is none.
CORVANE_EXPORT std::int64_t lineBreakIn(const CVNAttributedString& text, CVNRange range);
/// Behind the line break at a location.
CORVANE_EXPORT std::int64_t behindLineBreak(const CVNAttributedString& text, std::int64_t location);

/// The range, clipped to the text and grown for one key after the other: at its start over all runs that
/// touch it or one another, and at its end over the run at its last index, and over those that touch that
/// run. A run that ends where the range starts touches it. So an empty range grows over what is on both sides
/// of it, at the end of the text over what ends there. A range whose location lies outside the text comes
/// back as it is.
CORVANE_EXPORT CVNRange extendRange(const CVNAttributedString& text, CVNRange range,
                                    std::span<const CVNAttributeName> keys);

} // namespace CVN::Query
