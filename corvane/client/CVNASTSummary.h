#pragma once

#include "corvane/client/CVNTextSummary.h"
#include "corvane/scan/Export.h"

/// What a list of notes shows of a CVNAST.
class CORVANE_EXPORT CVNASTSummary {
public:
    /// Walks over the whole note.
    CVNTextSummary textSummary() const;

protected:
    CVNASTSummary() = default;
};
