#pragma once

#include <cstdint>
#include <string_view>

#include "corvane/client/CVNRange.h"
#include "corvane/scan/Export.h"

/// Questions to a CVNAST that only its tree can answer.
class CORVANE_EXPORT CVNASTQuery {
public:
    /// From the first marker of the first ATX heading with that title to the heading's end. Titles are
    /// compared without regard to case; {CVNNotFound, 0} if there is none.
    CVNRange rangeOfHeaderWithTitle(std::u16string_view title) const;
    /// Whether the block at an offset is a heading or an item's first block with something to fold behind it.
    /// False for an offset outside the text.
    bool hasFoldableContentAtIndex(std::int64_t index) const;
    /// The first footnote definition and reference with a label, which is taken as it stands; {CVNNotFound,
    /// 0} if there is none.
    CVNRange footnoteDefinitionRangeForLabel(std::u16string_view label) const;
    CVNRange footnoteReferenceRangeForLabel(std::u16string_view label) const;

protected:
    CVNASTQuery() = default;
};
