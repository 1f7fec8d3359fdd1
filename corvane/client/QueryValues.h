#pragma once

#include <cstdint>

#include "corvane/client/CVNValue.h"
#include "corvane/client/QueryTypes.h"

/// What runs say about a place.

namespace CVN::Query {

/// The dictionary of the metadata comment at the index, null when there is none. Good until the next
/// addAttribute().
CORVANE_EXPORT const CVNDictionary* metadataAtIndex(const CVNAttributedString& text, std::int64_t index);

/// Whether the key has a value at the range's location, or anywhere in the range.
CORVANE_EXPORT bool rangeContainsAttribute(const CVNAttributedString& text, CVNRange range,
                                           CVNAttributeName key);

namespace Answer {

CORVANE_EXPORT std::int64_t headerLevel(const CVNAttributedString& text, const KeyList& keys,
                                        std::int64_t index);
CORVANE_EXPORT std::int64_t writingDirection(const CVNAttributedString& text, const KeyList& keys,
                                             std::int64_t index);
CORVANE_EXPORT bool containsAny(const CVNAttributedString& text, const KeyList& keys, CVNRange range);

} // namespace Answer

/// 1 to 6, 0 when there is no heading.
inline constexpr NumberAtIndexQuery headerLevelAtIndex{
    "headerLevelAtIndex", {CVNHeadingAttributeName}, Answer::headerLevel};
/// 0 from left to right, 1 from right to left, -1 natural or not known.
inline constexpr NumberAtIndexQuery writingDirectionAtIndex{
    "writingDirectionAtIndex", {CVNDirectionAttributeName}, Answer::writingDirection};
/// rangeContainsAttribute() of a link with a destination of its own.
inline constexpr RangeTest rangeContainsLink{
    "rangeContainsLink", {CVNLinkAttributeName}, Answer::containsAny};

inline constexpr const NumberAtIndexQuery* numberQueries[] = {&headerLevelAtIndex, &writingDirectionAtIndex};
inline constexpr const RangeTest* valueTests[] = {&rangeContainsLink};

} // namespace CVN::Query
