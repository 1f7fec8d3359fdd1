#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "corvane/tree/Range.h"

namespace Ondo {

/// An edit; `range` counts in the text just before it.
struct CORVANE_EXPORT Replacement {
    Range range;
    std::u16string replacement;
};

/// A range to restyle: as it stands now, and where it stood at the last sync.
struct CORVANE_EXPORT RangePair {
    Range redrawRange;
    Range initialRange;
};

/// The redraw ranges of several edits, kept valid until they are handed over at once.
class CORVANE_EXPORT SyncRanges {
public:
    /// Adds the redraw ranges of one edit. Asserts that there is at least one.
    void add(const std::vector<Range>& newRanges, Replacement replacement);
    void addAndMerge(const std::vector<Range>& newRanges, Replacement replacement);

    /// Clips a replacement to the part outside a redraw range.
    static void adjustReplacement(Replacement& replacement, const Range& redraw);
    /// Unites pairs whose initial ranges touch. The result is in order from the end of the text to its start.
    static std::vector<RangePair> mergeRanges(std::vector<RangePair> pairs);

    std::vector<RangePair> ranges;
    std::vector<Replacement> replacements; ///< the pending edits, in the order made
};

} // namespace Ondo
