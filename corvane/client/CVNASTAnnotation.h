#pragma once

#include "corvane/client/CVNAttributedString.h"
#include "corvane/client/CVNRange.h"
#include "corvane/scan/Export.h"

/// The attribute runs of a CVNAST's text: what an editor paints from.
class CORVANE_EXPORT CVNASTAnnotation {
public:
    /// The text and runs of a range, from offset 0. The range should be one that an edit gave, or made of
    /// whole first-level blocks: a construct that begins before it is not seen. Runs are clipped to the
    /// range, and the range to the text's end; a location behind the end is the standard library's
    /// out-of-range failure. An empty range gives no runs.
    CVNAttributedString annotatedStringForRange(CVNRange range) const;
    /// The same for the whole text.
    CVNAttributedString annotatedString() const;
    /// annotatedStringForRange(), logged.
    CVNAttributedString annotatedStringForStringRange(CVNRange range) const;

protected:
    CVNASTAnnotation() = default;
};
