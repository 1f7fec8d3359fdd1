#pragma once

#include <string>

#include "corvane/client/CVNRange.h"
#include "corvane/scan/Export.h"

/// A replacement that a command or correction proposes, for an editor.
///
/// The results of a list are applied in its order, each to the text that the ones before it left; the
/// selection of the last one is to be shown.
struct CORVANE_EXPORT CVNASTOperationResult {
    CVNRange replacementRange;        ///< an empty one inserts
    std::u16string replacementString; ///< empty deletes
    CVNRange proposedSelection;       ///< in the text behind this replacement; an empty one is a caret

    /// "CVNASTOperationResult rep {0, 1} with text select {4, 0}".
    std::u16string description() const;
    bool operator==(const CVNASTOperationResult&) const = default;
};
