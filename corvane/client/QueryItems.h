#pragma once

#include <cstdint>

#include "corvane/client/QueryTypes.h"
#include "corvane/client/QueryUtilities.h"

/// List items, or the lines of quotes, as their runs tell them.
///
/// A run is what an item has for itself before, between and behind items of deeper levels: the first one
/// begins with the item's indentation and marker, further ones are paragraphs behind a sublist. Between the
/// items of a list that stands in a quote lie the markers of that quote: a gap or, in an item, a run of that
/// item that says nothing (isPrefix).

namespace CVN::Query {

class CORVANE_EXPORT ItemRuns {
public:
    static constexpr std::int64_t noRun = -1;

    /// With the keys of the items and of their markers. The text outlives the object.
    ItemRuns(const CVNAttributedString& text, const KeyList& keys)
        : text_(text), runs_(text.runs(keys[0])), markerKey_(keys[1]) {}

    std::int64_t size() const { return runs_.size(); }
    /// The run that holds the index, noRun when there is none.
    std::int64_t at(std::int64_t index) const;
    /// The first run that ends behind a location; size() when there is none.
    std::int64_t firstEndingBehind(std::int64_t location) const { return runs_.firstEndingBehind(location); }

    const CVNListInfo& info(std::int64_t run) const;
    std::int64_t level(std::int64_t run) const { return info(run).listLevel; }
    CVNRange range(std::int64_t run) const { return rangeOfRuns(run, run); }
    CVNRange rangeOfRuns(std::int64_t first, std::int64_t last) const {
        return CVNRange::between(runs_[first].location, runs_[last].end);
    }
    /// The item's marker, {CVNNotFound, 0} in a run that doesn't begin an item.
    CVNRange marker(std::int64_t run) const { return firstRunIn(text_, markerKey_, range(run)); }
    bool beginsItem(std::int64_t run) const { return marker(run).isFound(); }
    bool touchesPrevious(std::int64_t run) const {
        return run > 0 && runs_[run - 1].end == runs_[run].location;
    }
    /// Whether a run is nothing but blanks, line breaks and markers of quotes.
    bool isBlank(std::int64_t run) const { return isBlank(range(run)); }
    /// Whether what a run has behind `from` is only what stands on a line before a deeper item.
    bool isPrefix(std::int64_t run, std::int64_t from = 0) const;

    // Items. Each walk goes one way, over runs next to one another.

    /// The run that begins the item of a run; when it isn't there, the run itself.
    std::int64_t firstOfItem(std::int64_t run) const { return firstOfItem(run, run); }
    /// The same, found from a run that is known to lie behind it; when it isn't there, that run.
    std::int64_t firstOfItem(std::int64_t run, std::int64_t from) const;
    /// The last run of the item that the run belongs to, deeper ones included.
    std::int64_t lastOfItem(std::int64_t run) const { return lastOfItem(run, level(run)); }
    /// The same, of an item of that level around the run.
    std::int64_t lastOfItem(std::int64_t run, std::int64_t itemLevel) const;
    /// Whether a deeper item follows the run.
    bool hasSubitems(std::int64_t run) const;
    /// A run of the item around that of the run; noRun when there is none.
    std::int64_t parent(std::int64_t run) const;
    /// The run that begins the next item of the same list; noRun when there is none.
    std::int64_t nextSibling(std::int64_t run) const;

    // Lists, or quotes

    /// The list of that level that the run lies in; {CVNNotFound, 0} when there is none.
    CVNRange rangeOfLevel(std::int64_t run, std::int64_t listLevel) const;

    struct Span {
        std::int64_t first;
        std::int64_t last;
    };
    /// The first list of a type among the runs from `first` on, up to before `end`, with all that lies in it.
    /// Of a list that begins before `first` the rest counts. {end, end - 1} when there is none.
    Span nextList(std::int64_t listType, std::int64_t first, std::int64_t end) const;

private:
    bool isBlank(CVNRange range) const;
    bool beginsList(std::int64_t run) const { return info(run).itemIndex == 0 && beginsItem(run); }
    std::int64_t firstOfList(std::int64_t run) const;
    std::int64_t lastOfList(std::int64_t run, std::int64_t end, std::int64_t outerType) const;

    const CVNAttributedString& text_;
    const AttributeRuns& runs_;
    CVNAttributeName markerKey_;
};

} // namespace CVN::Query
