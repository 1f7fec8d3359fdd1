#pragma once

#include <string_view>
#include <vector>

#include "corvane/client/QueryItems.h"
#include "corvane/client/QueryLists.h"
#include "corvane/client/QueryTypes.h"
#include "corvane/client/QueryWrapped.h"

/// Enumerations that call back for a construct and then for its parts, in the order of the options both. All
/// ranges are clipped to the range that is enumerated. Each block ends the whole enumeration by setting
/// `stop`.

namespace CVN::Query {

// Highlights

/// For each highlight, with those in it:
///
///     highlighterBlock(CVNRange text, CVNRange opening, CVNRange closing, bool& stop)
///     colorBlock(CVNRange range, std::int64_t color, bool& stop)
///     markerBlock(CVNRange marker, std::int64_t value, std::int64_t nesting, bool& stop)
///
/// The first one is called once, as in QueryWrapped.h; the second one for each stretch of a colour, 0 for
/// none or 1 to 5, markers included; the third one for each marker. Its `value` is CVNOpenMarkerValue or
/// CVNCloseMarkerValue, and `nesting` is the same number for the two markers of a highlight.
struct HighlighterQuery {
    std::string_view name;

    template <class HighlighterBlock, class ColorBlock, class MarkerBlock>
    void operator()(const CVNAttributedString& text, CVNRange range, CVNEnumerationOptions options,
                    HighlighterBlock&& highlighterBlock, ColorBlock&& colorBlock,
                    MarkerBlock&& markerBlock) const;
};

inline constexpr HighlighterQuery enumerateHighlighterInRange{"enumerateHighlighterInRange"};

// Tables

struct TableCell {
    CVNRange range;         ///< from pipe to pipe
    CVNRange content;       ///< without the blanks at both ends; {CVNNotFound, 0} in an empty cell
    std::int64_t alignment; ///< 4 natural, 0 left, 1 center, 2 right
    bool isDelimiter;       ///< of the row below the head, which tells the alignments
};

/// For each table:
///
///     tableBlock(CVNRange table, std::int64_t rowCount, std::int64_t columnCount, bool& stop)
///     cellBlock(const TableCell& cell, bool& stop)
///
/// The first one is called once. Its counts are those of the whole table, with the head and without the
/// delimiter row. The second one is called for each cell; cells of a row stand on a line.
struct TableQuery {
    std::string_view name;

    template <class TableBlock, class CellBlock>
    void operator()(const CVNAttributedString& text, CVNRange range, CVNEnumerationOptions options,
                    TableBlock&& tableBlock, CellBlock&& cellBlock) const;

    /// Of a run of CVNTableCellAttributeName and its value.
    CORVANE_EXPORT static TableCell cell(const CVNAttributedString& text, CVNRange range,
                                         const CVNValue& value);
    CORVANE_EXPORT static std::int64_t count(const CVNValue& table, std::u16string_view name);
};

inline constexpr TableQuery enumerateTableInRange{"enumerateTableInRange"};

// Lists and quotes

/// For each list of a CVNListInfo::ListType, or each quote, that lies in no other one of that type:
///
///     listBlock(CVNRange list, bool& stop)
///     listItemBlock(CVNRange text, CVNRange marker, const CVNListInfo& info, bool& stop)
///
/// The first one is called once. The second one is called for each item of the type in the list, of all
/// levels, or for each line of the quote, with the text that the item has for itself, indentation and marker
/// included, and with its marker. Text of an item behind a sublist comes by itself, without a marker:
/// {CVNNotFound, 0}. Nothing is allocated, but backwards the lists are gathered first.
struct ListQuery {
    std::string_view name;
    std::int64_t listType;

    template <class ListBlock, class ListItemBlock>
    void operator()(const CVNAttributedString& text, CVNRange range, CVNEnumerationOptions options,
                    ListBlock&& listBlock, ListItemBlock&& listItemBlock) const;
};

template <class ListBlock, class ListItemBlock>
void enumerateListType(const CVNAttributedString& text, std::int64_t listType, CVNRange range,
                       CVNEnumerationOptions options, ListBlock&& listBlock, ListItemBlock&& listItemBlock) {
    ListQuery{{}, listType}(text, range, options, listBlock, listItemBlock);
}

inline constexpr ListQuery enumerateBlockquoteInRange{"enumerateBlockquoteInRange", CVNListInfo::BlockQuote};
inline constexpr ListQuery enumerateUnorderedListInRange{"enumerateUnorderedListInRange",
                                                         CVNListInfo::Unordered};
inline constexpr ListQuery enumerateOrderedListInRange{"enumerateOrderedListInRange", CVNListInfo::Ordered};

inline constexpr const ListQuery* listQueries[] = {
    &enumerateBlockquoteInRange, &enumerateUnorderedListInRange, &enumerateOrderedListInRange};

/// A walk over lists of a type in a range, and over their items.
class CORVANE_EXPORT ListWalk {
public:
    ListWalk(const CVNAttributedString& text, std::int64_t listType, CVNRange range,
             CVNEnumerationOptions options);

    /// Moves to the next list, at first to the first one. False when none is left.
    bool nextList();
    CVNRange list() const;
    /// Moves to the next run of the list that an item of the type has for itself.
    bool nextItem();
    CVNRange item() const { return CVNRange::intersect(items_.range(item_), range_); }
    CVNRange marker() const;
    const CVNListInfo& info() const { return items_.info(item_); }

private:
    bool showsItem() const;

    ItemRuns items_;
    std::int64_t listType_;
    CVNRange range_;
    bool isReverse_;
    std::int64_t end_;                ///< behind the runs of the range
    ItemRuns::Span list_;             ///< the list at hand
    std::int64_t item_ = 0;           ///< its run at hand
    std::vector<ItemRuns::Span> all_; ///< backwards: the lists to come, the next one last
};

template <class HighlighterBlock, class ColorBlock, class MarkerBlock>
void HighlighterQuery::operator()(const CVNAttributedString& text, CVNRange range,
                                  CVNEnumerationOptions options, HighlighterBlock&& highlighterBlock,
                                  ColorBlock&& colorBlock, MarkerBlock&& markerBlock) const {
    // Markers of two levels can touch, and so can those of one level that open and close.
    const auto forEachMarker = [&](CVNRange run, const CVNValue& value, bool& stop) {
        forEachRun(text, CVNHighlighterMarkerNestingAttributeName, run, options, stop,
                   [&](CVNRange marker, const CVNValue& nesting, bool& stopMarkers) {
                       markerBlock(marker, value.integerValue(), nesting.integerValue(), stopMarkers);
                   });
    };
    forEachConstruct(
        text, constructKeys(CVNHighlighterAttributeName), range, options,
        [&](CVNRange highlight, const CVNValue&, bool& stop) {
            const Wrapping parts = wrappingOf(text, CVNHighlighterMarkerAttributeName, highlight);
            highlighterBlock(parts.text, parts.opening, parts.closing, stop);
            forEachRun(text, CVNHighlighterColorAttributeName, highlight, options, stop,
                       [&](CVNRange run, const CVNValue& color, bool& stopColors) {
                           colorBlock(run, color.integerValue(), stopColors);
                       });
            forEachRun(text, CVNHighlighterMarkerAttributeName, highlight, options, stop, forEachMarker);
        });
}

template <class TableBlock, class CellBlock>
void TableQuery::operator()(const CVNAttributedString& text, CVNRange range, CVNEnumerationOptions options,
                            TableBlock&& tableBlock, CellBlock&& cellBlock) const {
    forEachConstruct(text, constructKeys(CVNTableAttributeName), range, options,
                     [&](CVNRange table, const CVNValue& value, bool& stop) {
                         tableBlock(table, count(value, CVNTableRowCountName),
                                    count(value, CVNTableColumnCountName), stop);
                         forEachRun(text, CVNTableCellAttributeName, table, options, stop,
                                    [&](CVNRange run, const CVNValue& cellValue, bool& stopCells) {
                                        cellBlock(cell(text, run, cellValue), stopCells);
                                    });
                     });
}

template <class ListBlock, class ListItemBlock>
void ListQuery::operator()(const CVNAttributedString& text, CVNRange range, CVNEnumerationOptions options,
                           ListBlock&& listBlock, ListItemBlock&& listItemBlock) const {
    bool stop = false;
    for (ListWalk walk(text, listType, range, options); !stop && walk.nextList();) {
        listBlock(walk.list(), stop);
        while (!stop && walk.nextItem())
            listItemBlock(walk.item(), walk.marker(), walk.info(), stop);
    }
}

} // namespace CVN::Query
