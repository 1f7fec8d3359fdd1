#pragma once

#include "corvane/client/QueryTypes.h"

/// List items around an index, and their lists.
///
/// The item at an index is the innermost one, by the text it has for itself. An item's range begins with its
/// indentation and holds its sublists. From text that stands behind a sublist, rangeOfListItemAtIndex and
/// listItemInfoAtIndex know only what is there and behind it, without a marker; all others know the whole
/// item. {CVNNotFound, 0} is the answer when there is no item at the index, or not what is asked for.

namespace CVN::Query {

namespace Answer {

CORVANE_EXPORT const CVNListInfo* itemInfo(const CVNAttributedString& text, const KeyList& keys,
                                           std::int64_t index, CVNRange* itemRange, CVNRange* markerRange);
CORVANE_EXPORT CVNRange rangeOfItem(const CVNAttributedString& text, const KeyList& keys, std::int64_t index,
                                    CVNRange* markerRange);
CORVANE_EXPORT CVNRange rangeOfOwnText(const CVNAttributedString& text, const KeyList& keys,
                                       std::int64_t index, CVNRange* markerRange);
CORVANE_EXPORT CVNRange rangeOfNextSibling(const CVNAttributedString& text, const KeyList& keys,
                                           std::int64_t index, CVNRange* markerRange);
CORVANE_EXPORT CVNRange rangeOfSublists(const CVNAttributedString& text, const KeyList& keys,
                                        std::int64_t index, CVNRange* markerRange);
CORVANE_EXPORT CVNRange rangeOfIndent(const CVNAttributedString& text, const KeyList& keys,
                                      std::int64_t index, CVNRange* markerRange);
CORVANE_EXPORT CVNRange rangeOfParent(const CVNAttributedString& text, const KeyList& keys,
                                      std::int64_t listType, std::int64_t index);
CORVANE_EXPORT CVNRange rangeOfLevel(const CVNAttributedString& text, const KeyList& keys,
                                     std::int64_t listLevel, std::int64_t index);
CORVANE_EXPORT CVNRange rangeOfMarkerIn(const CVNAttributedString& text, const KeyList& keys, CVNRange range);
CORVANE_EXPORT CVNRange extendToItems(const CVNAttributedString& text, const KeyList& keys, CVNRange range);
/// extendRange() with these keys.
CORVANE_EXPORT CVNRange extendToRuns(const CVNAttributedString& text, const KeyList& keys, CVNRange range);

} // namespace Answer

inline constexpr KeyList listKeys = {CVNListItemAttributeName, CVNListMarkerAttributeName};

/// With the ranges that rangeOfListItemAtIndex gives.
inline constexpr ItemInfoQuery listItemInfoAtIndex{"listItemInfoAtIndex", listKeys, Answer::itemInfo};

inline constexpr RangeAtIndexQuery rangeOfListItemAtIndex{"rangeOfListItemAtIndex", listKeys,
                                                          Answer::rangeOfItem};
/// The text around the index that the item has for itself: up to its first sublist, or behind one. With the
/// marker, if it holds it.
inline constexpr RangeAtIndexQuery rangeOfListItemWithoutSublistsAtIndex{
    "rangeOfListItemWithoutSublistsAtIndex", listKeys, Answer::rangeOfOwnText};
/// The next item of the same list, with its marker. None behind the last one, whatever follows the list.
inline constexpr RangeAtIndexQuery rangeOfNextSiblingListItemAtIndex{"rangeOfNextSiblingListItemAtIndex",
                                                                     listKeys, Answer::rangeOfNextSibling};
/// From the first item below this one up to the end of the last; what stands between sublists is inside.
inline constexpr RangeAtIndexQuery rangeOfSublistsForListItemAtIndex{"rangeOfSublistsForListItemAtIndex",
                                                                     listKeys, Answer::rangeOfSublists};
/// The blanks before the item's marker.
inline constexpr RangeAtIndexQuery rangeOfIndentForListItemAtIndex{"rangeOfIndentForListItemAtIndex",
                                                                   listKeys, Answer::rangeOfIndent};

/// The nearest item around the item at the index that is of a CVNListInfo::ListType, of whichever for 0.
inline constexpr NumberedRangeQuery rangeOfParentListItemOfType{"rangeOfParentListItemOfType", listKeys,
                                                                Answer::rangeOfParent};
/// The list with that `listLevel` in which the index lies, from its first item up to the end of the last.
inline constexpr NumberedRangeQuery rangeOfListLevel{"rangeOfListLevel", listKeys, Answer::rangeOfLevel};

/// The first marker in a range, without those of deeper items that touch it.
inline constexpr RangeOfRangeQuery rangeOfListMarkerForListItemRange{"rangeOfListMarkerForListItemRange",
                                                                     listKeys, Answer::rangeOfMarkerIn};
/// The range, clipped to the text and grown until each item is wholly inside, sublists included, that has
/// text of its own in the range. An item around these grows nothing. An empty range counts as the character
/// at its location, at the end of the text as the last one.
inline constexpr RangeOfRangeQuery extendRangeToFullyContainListItems{"extendRangeToFullyContainListItems",
                                                                      listKeys, Answer::extendToItems};
/// The range, grown as by extendRange() over the lists that it touches, with the lists around them.
inline constexpr RangeOfRangeQuery extendRangeToFullyContainLists{
    "extendRangeToFullyContainLists", {CVNListAttributeName}, Answer::extendToRuns};

inline constexpr const RangeAtIndexQuery* listRangeQueries[] = {
    &rangeOfListItemAtIndex,
    &rangeOfListItemWithoutSublistsAtIndex,
    &rangeOfNextSiblingListItemAtIndex,
    &rangeOfSublistsForListItemAtIndex,
    &rangeOfIndentForListItemAtIndex,
};
inline constexpr const NumberedRangeQuery* numberedListRangeQueries[] = {&rangeOfParentListItemOfType,
                                                                         &rangeOfListLevel};
inline constexpr const RangeOfRangeQuery* listRangeOfRangeQueries[] = {
    &rangeOfListMarkerForListItemRange,
    &extendRangeToFullyContainListItems,
    &extendRangeToFullyContainLists,
};

} // namespace CVN::Query
