#pragma once

#include "corvane/client/QueryLists.h"
#include "corvane/client/QueryTypes.h"

/// The lines of quotes, which are their items.
///
/// The item at an index belongs to the innermost quote that has a marker before it on the line, or that the
/// line continues lazily. Its range goes from the quote's marker, with the blanks before it, up to the end of
/// the line, and over lazy lines behind it; deeper quotes are inside. {CVNNotFound, 0} is the answer when
/// there is no item at the index.

namespace CVN::Query {

namespace Answer {

CORVANE_EXPORT const CVNListInfo* innermostItemInfo(const CVNAttributedString& text, const KeyList& keys,
                                                    std::int64_t index, CVNRange* itemRange,
                                                    CVNRange* markerRange);
CORVANE_EXPORT bool isParagraphEmpty(const CVNAttributedString& text, const KeyList& keys,
                                     std::int64_t index);
CORVANE_EXPORT std::int64_t calloutNestLevel(const CVNAttributedString& text, const KeyList& keys,
                                             std::int64_t index);

} // namespace Answer

inline constexpr KeyList blockquoteKeys = {CVNBlockquoteItemAttributeName, CVNBlockquoteMarkerAttributeName};

inline constexpr ItemInfoQuery blockquoteItemInfoAtIndex{"blockquoteItemInfoAtIndex", blockquoteKeys,
                                                         Answer::itemInfo};
/// Of the list item or the quote line at the index, whichever lies in the other.
inline constexpr ItemInfoQuery listOrBlockquoteItemInfoAtIndex{
    "listOrBlockquoteItemInfoAtIndex", {}, Answer::innermostItemInfo};

inline constexpr RangeAtIndexQuery rangeOfBlockquoteItemAtIndex{"rangeOfBlockquoteItemAtIndex",
                                                                blockquoteKeys, Answer::rangeOfItem};
/// The quote with that `listLevel` in which the index lies.
inline constexpr NumberedRangeQuery rangeOfBlockquoteLevel{"rangeOfBlockquoteLevel", blockquoteKeys,
                                                           Answer::rangeOfLevel};
/// The range, grown as by extendRange() over the quotes that it touches, with the quotes around them.
inline constexpr RangeOfRangeQuery extendRangeToFullyContainBlockquote{
    "extendRangeToFullyContainBlockquote", {CVNBlockquoteAttributeName}, Answer::extendToRuns};

/// Whether the line around the index is one of an item or a quote, and there is nothing on it but their
/// markers, boxes of tasks included. A blank line of code, math or HTML is not.
inline constexpr IndexTest isListOrBlockquoteParagraphEmptyAtIndex{
    "isListOrBlockquoteParagraphEmptyAtIndex", {}, Answer::isParagraphEmpty};
/// How many of the quotes around the index are callouts.
inline constexpr NumberAtIndexQuery calloutNestLevelAtIndex{"calloutNestLevelAtIndex", blockquoteKeys,
                                                            Answer::calloutNestLevel};

inline constexpr const ItemInfoQuery* itemInfoQueries[] = {&listItemInfoAtIndex, &blockquoteItemInfoAtIndex,
                                                           &listOrBlockquoteItemInfoAtIndex};
inline constexpr const RangeAtIndexQuery* blockquoteRangeQueries[] = {&rangeOfBlockquoteItemAtIndex};
inline constexpr const NumberedRangeQuery* numberedBlockquoteRangeQueries[] = {&rangeOfBlockquoteLevel};
inline constexpr const RangeOfRangeQuery* blockquoteRangeOfRangeQueries[] = {
    &extendRangeToFullyContainBlockquote};
inline constexpr const IndexTest* blockquoteTests[] = {&isListOrBlockquoteParagraphEmptyAtIndex};
inline constexpr const NumberAtIndexQuery* blockquoteNumberQueries[] = {&calloutNestLevelAtIndex};

} // namespace CVN::Query
