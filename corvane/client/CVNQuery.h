#pragma once

#include <string_view>

#include "corvane/client/QueryBlockquotes.h"
#include "corvane/client/QueryCode.h"
#include "corvane/client/QueryHas.h"
#include "corvane/client/QueryInside.h"
#include "corvane/client/QueryLinks.h"
#include "corvane/client/QueryLists.h"
#include "corvane/client/QueryParts.h"
#include "corvane/client/QueryRangeAtIndex.h"
#include "corvane/client/QueryRuns.h"
#include "corvane/client/QueryTypes.h"
#include "corvane/client/QueryUtilities.h"
#include "corvane/client/QueryValues.h"
#include "corvane/client/QueryWrapped.h"

/// What an editor asks about a note, answered from the attribute runs alone: is the caret inside a link,
/// which range is this list item, where are the markers of this bold text.
///
/// A query is a constant that is called like a function:
///
///     if (CVN::Query::isRangeInsideLink(text, selection)) ...
///     CVNRange item = CVN::Query::rangeOfListItemAtIndex(text, caret, &marker);
///     CVN::Query::enumerateStrongInRange(text, visible, options,
///         [&](CVNRange inner, CVNRange opening, CVNRange closing, bool& stop) { ... });
///
/// Locations and lengths count UTF-16 code units. Queries read the text and change nothing. Any number will
/// do as an index or range: what lies outside the text is not there. An index is that of a character, so at
/// the end of the text nothing is found; an editor whose caret stands there asks about the character before.
/// A range that is not found is {CVNNotFound, 0}.
///
/// Enumerations go through a range in the order of the options. Their blocks are called as long as they leave
/// `stop` alone, and may not change the text. What reaches into the range is clipped to it.
///
/// The cost of a query grows with the logarithm of the runs in the text, and with the runs in what it
/// answers: the range that is enumerated, the item with its sublists, the list.

namespace CVN::Query {

// By name, for those who don't write C++: null when no query of the type has the name, which is that of the
// constant.

CORVANE_EXPORT const WrappedQuery* wrappedQuery(std::string_view name);
CORVANE_EXPORT const LinkQuery* linkQuery(std::string_view name);
CORVANE_EXPORT const RunQuery* runQuery(std::string_view name);
CORVANE_EXPORT const ListQuery* listQuery(std::string_view name);
CORVANE_EXPORT const RangeTest* rangeTest(std::string_view name);
CORVANE_EXPORT const IndexTest* indexTest(std::string_view name);
CORVANE_EXPORT const NumberAtIndexQuery* numberAtIndexQuery(std::string_view name);
CORVANE_EXPORT const RangeAtIndexQuery* rangeAtIndexQuery(std::string_view name);
CORVANE_EXPORT const NumberedRangeQuery* numberedRangeQuery(std::string_view name);
CORVANE_EXPORT const RangeOfRangeQuery* rangeOfRangeQuery(std::string_view name);
CORVANE_EXPORT const ItemInfoQuery* itemInfoQuery(std::string_view name);

} // namespace CVN::Query
