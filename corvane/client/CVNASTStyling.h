#pragma once

#include <string_view>

#include "corvane/client/CVNRange.h"
#include "corvane/scan/Export.h"
#include "corvane/tree/Node.h"

/// How ranges are widened and trimmed for styling.
class CORVANE_EXPORT CVNASTStyling {
public:
    /// Widens a range so that every node that styling could touch lies wholly within it. An empty range at 0
    /// stays as it is. Asserts that the location lies in the text.
    CVNRange extendReparsedRange(CVNRange range) const;
    /// Moves the start of a range behind the container markers and spaces at the head of a block; with
    /// `keepLastSpace` a space that stands last stays inside.
    static void removeMarkersAndSpaceFromStartOfRange(CVNRange& range, const Ondo::Node* block,
                                                      bool keepLastSpace);
    /// Grows a range over a CR and then an LF directly behind it.
    static void addLineBreakToEndOfRange(CVNRange& range, std::u16string_view markdown);
    /// Takes an LF and then a CR off the end of a range.
    static void removeLineBreakFromEndOfRange(CVNRange& range, std::u16string_view markdown);

protected:
    CVNASTStyling() = default;
};
