#pragma once

#include <cstdint>

#include "corvane/client/QueryTypes.h"
#include "corvane/client/QueryUtilities.h"

/// List items, or the lines of quotes, as their runs tell them.
///
/// A run is what an item has for itself between items of deeper levels: the first one begins with the item's
/// indentation and marker, further ones are paragraphs behind a sublist. Between the items of a list that
/// stands in a quote or in another item lie the markers of what is around them: a gap, or a run of the outer
/// item that says nothing (isPrefix).

namespace CVN::Query {

class CORVANE_EXPORT ItemRuns {
public:
    static constexpr std::int64_t noRun = -1;

    /// Of the keys of the items and of their markers. The text outlives the object.
    ItemRuns(const CVNAttributedString& text, const KeyList& keys)
        : text_(text), runs_(text.runs(keys[0])), markerKey_(keys[1]) {}

    std::int64_t size() const { return runs_.size(); }
    /// The run that holds the index, noRun when there is none.
    std::int64_t at(std::int64_t index) const;
    /// The first run that ends behind a location; size() when there is none.
    std::int64_t firstEndingBehind(std::int64_t location) const { return runs_.firstEndingBehind(location); }

    const CVNListInfo& info(std::int64_t run) const;
    CVNRange range(std::int64_t run) const { return CVNRange::between(runs_[run].location, runs_[run].end); }
    CVNRange rangeOfRuns(std::int64_t first, std::int64_t last) const {
        return CVNRange::between(runs_[first].location, runs_[last].end);
    }
    /// The first marker in the run. A run that has one begins an item.
    CVNRange marker(std::int64_t run) const;
    bool beginsItem(std::int64_t run) const { return marker(run).isFound(); }
    /// Whether a run is nothing but blanks and the markers of quotes, and begins no list item.
    bool isPrefix(std::int64_t run) const;
    bool touchesPrevious(std::int64_t run) const;

    // Items. A walk takes as long as there are runs on its way.

    /// The run that begins the item of a run; the run itself when that isn't there.
    std::int64_t firstOfItem(std::int64_t run) const { return firstOfItem(run, run); }
    /// The same, of the item that `run` belongs to, when all runs from `from` on are known to lie in it.
    std::int64_t firstOfItem(std::int64_t run, std::int64_t from) const;
    /// The last run of the item, deeper ones included, that is directly behind the run.
    std::int64_t lastOfItem(std::int64_t run) const { return lastOfItem(run, level(run)); }
    /// The same, of an item of that level that `run` lies in.
    std::int64_t lastOfItem(std::int64_t run, std::int64_t level) const;
    /// Whether an item of a deeper level is directly behind the run that begins an item.
    bool hasSubItems(std::int64_t run) const;
    /// A run of the item around the one of this run; noRun when there is none.
    std::int64_t parent(std::int64_t run) const;
    /// The run that begins the next item of the same list; noRun when there is none.
    std::int64_t nextSibling(std::int64_t run) const;

    // Lists, or quotes

    /// The first and last run of the list of that level that the run lies in, or in an item of which it does.
    CVNRange rangeOfLevel(std::int64_t run, std::int64_t level) const;
    /// A list of a type that begins between two runs, and lies in no other list of that type, as far as one can
    /// tell from there: its first and last run.
    struct Span {
        std::int64_t first;
        std::int64_t last;
    };
    /// The first such list from `first` on, up to `end`; {end, end - 1} when there is none.
    Span nextList(std::int64_t listType, std::int64_t first, std::int64_t end) const;

private:
    std::int64_t level(std::int64_t run) const { return info(run).listLevel; }
    /// Whether the run begins the first item of a list.
    bool beginsList(std::int64_t run) const;
    std::int64_t firstOfList(std::int64_t run) const;
    std::int64_t lastOfList(std::int64_t run, std::int64_t end) const;

    const CVNAttributedString& text_;
    const AttributeRuns& runs_;
    CVNAttributeName markerKey_;
};

} // namespace CVN::Query
